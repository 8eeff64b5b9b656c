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
        QTest::addColumn<QString>("steps");  // name=state, +parent/name=state (a new child), -name, off, on
        QTest::addColumn<QString>("states"); // name and state of each item, depth first
        QTest::newRow("nothing") << ""
                                 << "root0 a0 a10 a20 a30 b0 b10";
        QTest::newRow("one leaf") << "a2=2"
                                  << "root1 a1 a10 a22 a30 b0 b10";
        QTest::newRow("every leaf") << "a1=2 a2=2 a3=2 b1=2"
                                    << "root2 a2 a12 a22 a32 b2 b12";
        QTest::newRow("root carries down") << "root=2"
                                           << "root2 a2 a12 a22 a32 b2 b12";
        QTest::newRow("leaf unchecked under checked root") << "root=2 a3=0"
                                                           << "root1 a1 a12 a22 a30 b2 b12";
        QTest::newRow("partial leaf counts as partial") << "b1=1"
                                                        << "root1 a0 a10 a20 a30 b1 b11";
        QTest::newRow("back and forth") << "a1=2 a1=0 a1=2 a2=2 a3=2 a=0"
                                        << "root0 a0 a10 a20 a30 b0 b10";
        QTest::newRow("checked newcomer") << "b1=2 +a/c=2"
                                          << "root1 a1 a10 a20 a30 c2 b2 b12";
        QTest::newRow("unchecked newcomer under a checked parent") << "root=2 +a/c=0"
                                                                   << "root1 a1 a12 a22 a32 c0 b2 b12";
        QTest::newRow("removing a partial child") << "a1=1 -a1"
                                                  << "root0 a0 a20 a30 b0 b10";
        QTest::newRow("removing the only unchecked child") << "a1=2 a2=2 -a3"
                                                           << "root1 a2 a12 a22 b0 b10";
        QTest::newRow("off leaves states alone") << "off a1=2 a2=2 a3=2"
                                                 << "root0 a0 a12 a22 a32 b0 b10";
        QTest::newRow("switched on, brought in line at once") << "off a1=2 a2=2 a3=2 on"
                                                              << "root1 a2 a12 a22 a32 b0 b10";
    }

    void checkStates()
    {
        QFETCH(QString, steps);
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
        for (const QString& step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const auto state = Qt::CheckState(step.section(QLatin1Char('='), 1).toInt());
            if (step == QLatin1String("off") || step == QLatin1String("on"))
                tree.setAutomaticCheckStateUpdate(step == QLatin1String("on"));
            else if (step.startsWith(QLatin1Char('+')))
                item(byName(step.mid(1).section(QLatin1Char('/'), 0, 0)),
                     step.section(QLatin1Char('/'), 1).section(QLatin1Char('='), 0, 0), state);
            else if (step.startsWith(QLatin1Char('-')))
                delete byName(step.mid(1));
            else
                byName(step.section(QLatin1Char('='), 0, 0))->setCheckState(0, state);
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
