// The suite's item views: the tree that keeps check states in line and the table view.
#include <QtTableView.h>
#include <VKD_QT_TreeWidget.h>

#include <QLineEdit>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

namespace {

QTreeWidgetItem* item(QTreeWidgetItem* parent, const QString& name, Qt::CheckState state = Qt::Unchecked)
{
    auto* i = new QTreeWidgetItem(parent, QStringList{name});
    i->setCheckState(0, state);
    return i;
}

// A 3 by 2 table of texts "r<row>c<column>" in the suite's table view; the cell 2, 0 is a check box.
struct Table
{
    QStandardItemModel model{3, 2};
    vkd::properties::nextGen::QtTableView view;
    Table()
    {
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 2; ++c)
                model.setItem(r, c, new QStandardItem(QStringLiteral("r%1c%2").arg(r).arg(c)));
        model.item(2, 0)->setCheckable(true);
        view.setModel(&model);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.resize(400, 200);
        view.show();
    }
};

} // namespace

class TestViews : public QObject
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
        // clang-format off
        row("unchecked newcomer under a checked parent", "root=2, new c a 3 0", "root1 a1 a12 a22 a32 c0 b2 b12");
        row("removing the only unchecked child", "a1=2, a2=2, delete a3", "root1 a2 a12 a22 b0 b10");
        row("off leaves states alone", "off, a1=2, a2=2, a3=2", "root0 a0 a12 a22 a32 b0 b10");
        row("switched on, brought in line at once", "off, a1=2, a2=2, a3=2, on", "root1 a2 a12 a22 a32 b0 b10");
        // What is kept of each child by row follows rows that move.
        row("sorted, then the leaf in the checked leaf's old row checked", "a1=2, a2=2, sort, a3=2", "root1 b0 b10 a2 a32 a22 a12");
        row("row inserted in front, then the shifted leaf unchecked", "a1=2, new n a 0 0, a1=0", "root0 a0 n0 a10 a20 a30 b0 b10");
        row("row removed in front, then the shifted leaf unchecked", "a3=2, delete a1, a3=0", "root0 a0 a20 a30 b0 b10");
        row("parent emptied and filled again", "delete b1, b=2, new c b 0 0, c=2, c=0", "root0 a0 a10 a20 a30 b0 c0");
        row("checked subtree moved under a leaf", "a=2, move a b1 0, b=0", "root0 b0 b10 a0 a10 a20 a30");
        // clang-format on
    }

    void checkStates()
    {
        QFETCH(QStringList, steps);
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
        QTEST(seen.join(QLatin1Char(' ')), "states");
    }

    // A subtree built outside the tree takes its state from its children when it comes in.
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
    }

    void editing_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("key"); // 0 for the ways that are no key
        QTest::addColumn<bool>("readOnly");
        const std::pair<const char*, int> ways[] = {{"double click", 0},
                                                    {"edit() from code", 0},
                                                    {"drop", 0},
                                                    {"edit key", Qt::Key_F2},
                                                    {"typing a letter", Qt::Key_X},
                                                    {"space on a check box", Qt::Key_Space}};
        for (const auto& [way, key] : ways) {
            QTest::addRow("%s, editable", way) << way << key << false;
            QTest::addRow("%s, read-only", way) << way << key << true;
        }
    }

    // The table view in read-only mode: no way of editing gets through (no editor opened, no check
    // box changed, no drop as from another program written), and the view stays enabled for looking.
    void editing()
    {
        QFETCH(QString, way);
        QFETCH(int, key);
        QFETCH(bool, readOnly);
        Table t;
        QVERIFY(QTest::qWaitForWindowExposed(&t.view));
        t.view.set_read_only(readOnly);
        const QModelIndex cell = t.model.index(key == Qt::Key_Space ? 2 : 1, 0);
        t.view.setCurrentIndex(cell);
        QSignalSpy changed(&t.model, &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(&t.model, &QAbstractItemModel::rowsInserted);
        const QPoint centre = t.view.visualRect(cell).center();
        std::unique_ptr<QMimeData> data(t.model.mimeData({t.model.index(0, 1)}));
        QDragEnterEvent enter(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDropEvent drop(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        if (key) {
            QTest::keyClick(&t.view, Qt::Key(key));
        } else if (way == QLatin1String("double click")) { // through the window: the presses come first
            QTest::mouseDClick(t.view.windowHandle(), Qt::LeftButton, {},
                               t.view.viewport()->mapTo(&t.view, centre));
        } else if (way == QLatin1String("drop")) {
            QCoreApplication::sendEvent(t.view.viewport(), &enter);
            QCoreApplication::sendEvent(t.view.viewport(), &drop);
        } else {
            if (readOnly)
                QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
            t.view.edit(cell);
        }
        QCOMPARE(t.view.indexWidget(cell) || !changed.isEmpty() || !inserted.isEmpty(), !readOnly);
        QVERIFY(t.view.isEnabled());
    }

    // Going read-only closes the editor of the cell without writing; an editor that the host
    // keeps open in a cell stays, but writes nothing until the view is editable again.
    void openEditors()
    {
        Table t;
        QVERIFY(QTest::qWaitForWindowExposed(&t.view));
        const QModelIndex edited = t.model.index(0, 1), kept = t.model.index(1, 1);
        t.view.openPersistentEditor(kept);
        t.view.edit(edited);
        auto* editor = qobject_cast<QLineEdit*>(t.view.indexWidget(edited));
        auto* persistent = qobject_cast<QLineEdit*>(t.view.indexWidget(kept));
        QVERIFY(editor && persistent);
        editor->setText(QStringLiteral("typed"));
        persistent->setText(QStringLiteral("typed"));
        t.view.set_read_only(true);
        QVERIFY(!t.view.indexWidget(edited) && t.view.isPersistentEditorOpen(kept));
        emit t.view.itemDelegate()->commitData(persistent);
        QCOMPARE(t.model.item(0, 1)->text() + ' ' + t.model.item(1, 1)->text(), QStringLiteral("r0c1 r1c1"));
        t.view.set_read_only(false);
        emit t.view.itemDelegate()->commitData(persistent);
        QCOMPARE(t.model.item(1, 1)->text(), QStringLiteral("typed"));
    }
};

QTEST_MAIN(TestViews)
#include "tst_views.moc"
