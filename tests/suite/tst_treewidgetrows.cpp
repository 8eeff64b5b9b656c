#include <VKD_QT_TreeWidget.h>

#include <QtTest>

// The automatic check state keeps what it last saw of each child by row: these steps move rows
// under it and then change a state that only comes out right if the rows were followed.

namespace {

// root -> a (a1 a2 a3), b (b1), all unchecked.
struct Tree
{
    VKD_QT_TreeWidget tree;

    Tree()
    {
        tree.setAutomaticCheckStateUpdate(true);
        auto* root = add(nullptr, "root");
        auto* a = add(root, "a");
        auto* b = add(root, "b");
        for (const char* n : {"a1", "a2", "a3"})
            add(a, n);
        add(b, "b1");
        tree.addTopLevelItem(root);
    }
    static QTreeWidgetItem* add(QTreeWidgetItem* parent, const QString& name)
    {
        auto* item = new QTreeWidgetItem(QStringList{name});
        item->setCheckState(0, Qt::Unchecked);
        if (parent)
            parent->addChild(item);
        return item;
    }
    QTreeWidgetItem* byName(const QString& name)
    {
        return tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    // "name=state", "sort", "delete name", "new name parent row", "move name parent row".
    void run(const QString& step)
    {
        const QStringList w = step.split(QLatin1Char(' '));
        if (w.at(0) == QLatin1String("sort")) {
            tree.sortItems(0, Qt::DescendingOrder);
        } else if (w.at(0) == QLatin1String("delete")) {
            delete byName(w.at(1));
        } else if (w.at(0) == QLatin1String("new")) {
            auto* item = add(nullptr, w.at(1));
            byName(w.at(2))->insertChild(w.at(3).toInt(), item);
        } else if (w.at(0) == QLatin1String("move")) {
            QTreeWidgetItem* item = byName(w.at(1));
            QTreeWidgetItem* from = item->parent();
            from->takeChild(from->indexOfChild(item));
            byName(w.at(2))->insertChild(w.at(3).toInt(), item);
        } else {
            const QStringList set = step.split(QLatin1Char('='));
            byName(set.at(0))->setCheckState(0, Qt::CheckState(set.at(1).toInt()));
        }
    }
    // Each item in tree order as name and state: 0 unchecked, 1 partially, 2 checked.
    QString states()
    {
        QStringList out;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            out << (*it)->text(0) + QString::number(int((*it)->checkState(0)));
        return out.join(QLatin1Char(' '));
    }
};

} // namespace

class TestTreeWidgetRows : public QObject
{
    Q_OBJECT
private slots:
    void rowsFollowed_data();
    void rowsFollowed();
};

void TestTreeWidgetRows::rowsFollowed_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("expected");
    QTest::newRow("sorted, then the moved leaf unchecked")
        << QStringList{"a1=2", "sort", "a1=0"} << "root0 b0 b10 a0 a30 a20 a10";
    QTest::newRow("sorted, then the leaf in the checked leaf's old row checked")
        << QStringList{"a1=2", "a2=2", "sort", "a3=2"} << "root1 b0 b10 a2 a32 a22 a12";
    QTest::newRow("row inserted in front, then the shifted leaf unchecked")
        << QStringList{"a1=2", "new n a 0", "a1=0"} << "root0 a0 n0 a10 a20 a30 b0 b10";
    QTest::newRow("row inserted in front, then the newcomer checked")
        << QStringList{"a1=2", "a2=2", "a3=2", "new n a 0", "n=2"} << "root1 a2 n2 a12 a22 a32 b0 b10";
    QTest::newRow("row removed in front, then the shifted leaf unchecked")
        << QStringList{"a3=2", "delete a1", "a3=0"} << "root0 a0 a20 a30 b0 b10";
    QTest::newRow("row removed in front, then the rest checked")
        << QStringList{"a1=2", "delete a1", "a2=2", "a3=2"} << "root1 a2 a22 a32 b0 b10";
    QTest::newRow("parent emptied and filled again")
        << QStringList{"delete b1", "b=2", "new c b 0", "c=2", "c=0"} << "root0 a0 a10 a20 a30 b0 c0";
    QTest::newRow("checked leaf moved to the other parent, then unchecked")
        << QStringList{"a2=2", "move a2 b 0", "a2=0"} << "root0 a0 a10 a30 b0 a20 b10";
    QTest::newRow("checked subtree moved under a leaf")
        << QStringList{"a=2", "move a b1 0", "b=0"} << "root0 b0 b10 a0 a10 a20 a30";
}

void TestTreeWidgetRows::rowsFollowed()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, expected);
    Tree t;
    for (const QString& step : steps)
        t.run(step);
    QCOMPARE(t.states(), expected);
}

QTEST_MAIN(TestTreeWidgetRows)
#include "tst_treewidgetrows.moc"
