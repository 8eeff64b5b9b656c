#include <VKD_QT_Menu.h>
#include <VKD_QT_TreeWidget.h>

#include <QtTest>

namespace {

QTreeWidgetItem* item(QTreeWidgetItem* parent, const QString& name, Qt::CheckState state = Qt::Unchecked)
{
    auto* i = new QTreeWidgetItem(parent, QStringList{name});
    i->setCheckState(0, state);
    return i;
}

} // namespace

class TestTreeWidget : public QObject
{
    Q_OBJECT
private slots:
    void checkStates_data()
    {
        // Steps: name=state, "new name parent row state" (made with its state, then put in),
        // "delete name", "move name parent row", "sort", "off", "on".
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("states"); // name and state of each item, depth first
        auto row = [](const char* name, const char* steps, const char* states) {
            QTest::newRow(name) << QString::fromLatin1(steps).split(QStringLiteral(", "), Qt::SkipEmptyParts)
                                << QString::fromLatin1(states);
        };
        row("nothing", "", "root0 a0 a10 a20 a30 b0 b10");
        row("one leaf", "a2=2", "root1 a1 a10 a22 a30 b0 b10");
        row("every leaf", "a1=2, a2=2, a3=2, b1=2", "root2 a2 a12 a22 a32 b2 b12");
        row("root carries down", "root=2", "root2 a2 a12 a22 a32 b2 b12");
        row("leaf unchecked under checked root", "root=2, a3=0", "root1 a1 a12 a22 a30 b2 b12");
        row("partial leaf counts as partial", "b1=1", "root1 a0 a10 a20 a30 b1 b11");
        row("back and forth", "a1=2, a1=0, a1=2, a2=2, a3=2, a=0", "root0 a0 a10 a20 a30 b0 b10");
        row("checked newcomer", "b1=2, new c a 3 2", "root1 a1 a10 a20 a30 c2 b2 b12");
        row("unchecked newcomer under a checked parent", "root=2, new c a 3 0",
            "root1 a1 a12 a22 a32 c0 b2 b12");
        row("removing a partial child", "a1=1, delete a1", "root0 a0 a20 a30 b0 b10");
        row("removing the only unchecked child", "a1=2, a2=2, delete a3", "root1 a2 a12 a22 b0 b10");
        row("off leaves states alone", "off, a1=2, a2=2, a3=2", "root0 a0 a12 a22 a32 b0 b10");
        row("switched on, brought in line at once", "off, a1=2, a2=2, a3=2, on",
            "root1 a2 a12 a22 a32 b0 b10");
        // What is kept of each child by row follows rows that move.
        row("sorted, then the moved leaf unchecked", "a1=2, sort, a1=0", "root0 b0 b10 a0 a30 a20 a10");
        row("sorted, then the leaf in the checked leaf's old row checked", "a1=2, a2=2, sort, a3=2",
            "root1 b0 b10 a2 a32 a22 a12");
        row("row inserted in front, then the shifted leaf unchecked", "a1=2, new n a 0 0, a1=0",
            "root0 a0 n0 a10 a20 a30 b0 b10");
        row("row inserted in front, then the newcomer checked", "a1=2, a2=2, a3=2, new n a 0 0, n=2",
            "root1 a2 n2 a12 a22 a32 b0 b10");
        row("row removed in front, then the shifted leaf unchecked", "a3=2, delete a1, a3=0",
            "root0 a0 a20 a30 b0 b10");
        row("row removed in front, then the rest checked", "a1=2, delete a1, a2=2, a3=2",
            "root1 a2 a22 a32 b0 b10");
        row("parent emptied and filled again", "delete b1, b=2, new c b 0 0, c=2, c=0",
            "root0 a0 a10 a20 a30 b0 c0");
        row("checked leaf moved to the other parent, then unchecked", "a2=2, move a2 b 0, a2=0",
            "root0 a0 a10 a30 b0 a20 b10");
        row("checked subtree moved under a leaf", "a=2, move a b1 0, b=0", "root0 b0 b10 a0 a10 a20 a30");
    }

    void checkStates()
    {
        QFETCH(QStringList, steps);
        QFETCH(QString, states);
        VKD_QT_TreeWidget tree;
        tree.setAutomaticCheckStateUpdate(true);
        QTreeWidgetItem* root = item(nullptr, QStringLiteral("root"));
        tree.addTopLevelItem(root);
        QTreeWidgetItem* a = item(root, QStringLiteral("a"));
        for (const char* leaf : {"a1", "a2", "a3"})
            item(a, QLatin1String(leaf));
        item(item(root, QStringLiteral("b")), QStringLiteral("b1"));
        auto byName = [&tree](const QString& name) {
            return tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        };
        for (const QString& step : steps) {
            const QStringList w = step.split(QLatin1Char(' '));
            if (w.at(0) == QLatin1String("off") || w.at(0) == QLatin1String("on")) {
                tree.setAutomaticCheckStateUpdate(w.at(0) == QLatin1String("on"));
            } else if (w.at(0) == QLatin1String("sort")) {
                tree.sortItems(0, Qt::DescendingOrder);
            } else if (w.at(0) == QLatin1String("delete")) {
                delete byName(w.at(1));
            } else if (w.at(0) == QLatin1String("new") || w.at(0) == QLatin1String("move")) {
                QTreeWidgetItem* moved = w.at(0) == QLatin1String("new")
                                             ? item(nullptr, w.at(1), Qt::CheckState(w.at(4).toInt()))
                                             : byName(w.at(1));
                if (QTreeWidgetItem* from = moved->parent())
                    from->takeChild(from->indexOfChild(moved));
                byName(w.at(2))->insertChild(w.at(3).toInt(), moved);
            } else {
                byName(step.section(QLatin1Char('='), 0, 0))
                    ->setCheckState(0, Qt::CheckState(step.section(QLatin1Char('='), 1).toInt()));
            }
        }
        QStringList seen;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            seen << (*it)->text(0) + QString::number(int((*it)->checkState(0)));
        QCOMPARE(seen.join(QLatin1Char(' ')), states);
    }

    // A subtree built outside the tree takes its state from its children when it comes in;
    // carrying a state down changes each ancestor once.
    void subtrees()
    {
        VKD_QT_TreeWidget tree;
        tree.setAutomaticCheckStateUpdate(true);
        QTreeWidgetItem* top = item(nullptr, QStringLiteral("top"));
        tree.addTopLevelItem(top);
        QTreeWidgetItem* caption = item(top, QStringLiteral("caption"));
        item(caption, QStringLiteral("other"));
        QTreeWidgetItem* plot = item(nullptr, QStringLiteral("plot"));
        for (int i = 0; i < 50; ++i)
            item(plot, QString::number(i), Qt::Checked);
        caption->addChild(plot);
        QCOMPARE(plot->checkState(0), Qt::Checked);
        QCOMPARE(top->checkState(0), Qt::PartiallyChecked);
        plot->setCheckState(0, Qt::Unchecked);
        QHash<QTreeWidgetItem*, int> changes;
        connect(&tree, &QTreeWidget::itemChanged, [&](QTreeWidgetItem* i, int) { ++changes[i]; });
        plot->setCheckState(0, Qt::Checked);
        QCOMPARE(plot->child(49)->checkState(0), Qt::Checked);
        QCOMPARE(changes.value(caption), 1);
        QCOMPARE(changes.value(top), 1);
        QCOMPARE(changes.value(plot->child(17)), 1);

        VKD_QT_Menu menu(nullptr, "menu");
        tree.addExpandAll(&menu);
        tree.addCollapseAll(&menu);
        menu.actions().at(0)->trigger();
        QVERIFY(plot->isExpanded());
        menu.actions().at(1)->trigger();
        QVERIFY(!top->isExpanded());
    }
};

QTEST_MAIN(TestTreeWidget)
#include "tst_treewidget.moc"
