#include <VKD_QT_Menu.h>
#include <VKD_QT_TreeWidget.h>

#include <QtTest>

namespace {

// Tree: root -> a, b; a -> a1, a2, a3; b -> b1
struct Fixture
{
    VKD_QT_TreeWidget tree;
    QTreeWidgetItem* root;
    QTreeWidgetItem* a;
    QTreeWidgetItem* b;
    QList<QTreeWidgetItem*> leaves;

    Fixture()
    {
        tree.setAutomaticCheckStateUpdate(true);
        root = new QTreeWidgetItem(QStringList{"root"});
        root->setCheckState(0, Qt::Unchecked);
        tree.addTopLevelItem(root);
        a = new QTreeWidgetItem(root, QStringList{"a"});
        a->setCheckState(0, Qt::Unchecked);
        b = new QTreeWidgetItem(root, QStringList{"b"});
        b->setCheckState(0, Qt::Unchecked);
        for (const char* n : {"a1", "a2", "a3"}) {
            auto* leaf = new QTreeWidgetItem(a, QStringList{n});
            leaf->setCheckState(0, Qt::Unchecked);
            leaves << leaf;
        }
        auto* b1 = new QTreeWidgetItem(b, QStringList{"b1"});
        b1->setCheckState(0, Qt::Unchecked);
        leaves << b1;
    }
    QTreeWidgetItem* byName(const QString& name)
    {
        return tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QString states()
    {
        QString s;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            s += QString::number(int((*it)->checkState(0)));
        return s; // root a a1 a2 a3 b b1, 0 unchecked 1 partial 2 checked
    }
};

} // namespace

class TestTreeWidget : public QObject
{
    Q_OBJECT
private slots:
    void checkStateRule_data();
    void checkStateRule();
    void insertedCheckedChildUpdatesAncestors();
    void removingTheOnlyUncheckedChildChecksTheParent();
    void carryingDownUpdatesAncestorsOnce();
    void offLeavesStatesAlone();
    void menuActions();
};

void TestTreeWidget::checkStateRule_data()
{
    QTest::addColumn<QStringList>("steps"); // "name=state" applied in order
    QTest::addColumn<QString>("expected");   // root a a1 a2 a3 b b1
    QTest::newRow("nothing") << QStringList() << "0000000";
    QTest::newRow("one leaf") << QStringList{"a2=2"} << "1102000";
    QTest::newRow("all leaves of a") << QStringList{"a1=2", "a2=2", "a3=2"} << "1222200";
    QTest::newRow("every leaf") << QStringList{"a1=2", "a2=2", "a3=2", "b1=2"} << "2222222";
    QTest::newRow("parent carries down") << QStringList{"a=2"} << "1222200";
    QTest::newRow("root carries down") << QStringList{"root=2"} << "2222222";
    QTest::newRow("root unchecked again") << QStringList{"root=2", "root=0"} << "0000000";
    QTest::newRow("leaf unchecked under checked root") << QStringList{"root=2", "a3=0"} << "1122022";
    QTest::newRow("partial leaf counts as partial") << QStringList{"b1=1"} << "1000011";
    QTest::newRow("back and forth") << QStringList{"a1=2", "a1=0", "a1=2", "a2=2", "a3=2", "a=0"} << "0000000";
}

void TestTreeWidget::checkStateRule()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, expected);
    Fixture f;
    for (const QString& step : steps) {
        const QStringList parts = step.split(QLatin1Char('='));
        f.byName(parts.at(0))->setCheckState(0, Qt::CheckState(parts.at(1).toInt()));
    }
    QCOMPARE(f.states(), expected);
}

void TestTreeWidget::insertedCheckedChildUpdatesAncestors()
{
    Fixture f;
    f.byName("b1")->setCheckState(0, Qt::Checked);
    QCOMPARE(f.states(), QStringLiteral("1000022"));
    // A subtree built outside the tree: its own parent state comes from its children.
    auto* c = new QTreeWidgetItem(QStringList{"c"});
    c->setCheckState(0, Qt::Unchecked);
    for (int i = 0; i < 3; ++i)
        (new QTreeWidgetItem(c, QStringList{QString("c%1").arg(i)}))->setCheckState(0, Qt::Checked);
    f.root->addChild(c);
    QCOMPARE(c->checkState(0), Qt::Checked);
    QCOMPARE(f.root->checkState(0), Qt::PartiallyChecked);
    f.a->setCheckState(0, Qt::Checked);
    QCOMPARE(f.root->checkState(0), Qt::Checked);
    // An unchecked newcomer turns a checked parent partial.
    (new QTreeWidgetItem(c, QStringList{"c3"}))->setCheckState(0, Qt::Unchecked);
    QCOMPARE(c->checkState(0), Qt::PartiallyChecked);
    QCOMPARE(f.root->checkState(0), Qt::PartiallyChecked);
}

void TestTreeWidget::removingTheOnlyUncheckedChildChecksTheParent()
{
    Fixture f;
    f.byName("a1")->setCheckState(0, Qt::Checked);
    f.byName("a2")->setCheckState(0, Qt::Checked);
    QCOMPARE(f.a->checkState(0), Qt::PartiallyChecked);
    delete f.byName("a3");
    QCOMPARE(f.a->checkState(0), Qt::Checked);
    QCOMPARE(f.root->checkState(0), Qt::PartiallyChecked);
    f.tree.clear();
    auto* fresh = new QTreeWidgetItem(QStringList{"fresh"});
    fresh->setCheckState(0, Qt::Unchecked);
    f.tree.addTopLevelItem(fresh);
    auto* child = new QTreeWidgetItem(fresh, QStringList{"child"});
    child->setCheckState(0, Qt::Checked);
    QCOMPARE(fresh->checkState(0), Qt::Checked);
}

void TestTreeWidget::carryingDownUpdatesAncestorsOnce()
{
    VKD_QT_TreeWidget tree;
    tree.setAutomaticCheckStateUpdate(true);
    auto* top = new QTreeWidgetItem(QStringList{"top"});
    auto* caption = new QTreeWidgetItem(top, QStringList{"caption"});
    auto* plot = new QTreeWidgetItem(caption, QStringList{"plot"});
    auto* other = new QTreeWidgetItem(caption, QStringList{"other plot"});
    for (QTreeWidgetItem* i : {top, caption, plot, other})
        i->setCheckState(0, Qt::Unchecked);
    for (int i = 0; i < 5000; ++i)
        (new QTreeWidgetItem(plot, QStringList{QString::number(i)}))->setCheckState(0, Qt::Unchecked);
    tree.addTopLevelItem(top);

    QHash<QTreeWidgetItem*, int> changes;
    connect(&tree, &QTreeWidget::itemChanged, [&](QTreeWidgetItem* item, int) { ++changes[item]; });
    plot->setCheckState(0, Qt::Checked);
    QCOMPARE(plot->child(4999)->checkState(0), Qt::Checked);
    QCOMPARE(caption->checkState(0), Qt::PartiallyChecked);
    QCOMPARE(top->checkState(0), Qt::PartiallyChecked);
    QCOMPARE(changes.value(caption), 1);
    QCOMPARE(changes.value(top), 1);
    QCOMPARE(changes.value(plot->child(17)), 1);

    changes.clear();
    plot->child(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(plot->checkState(0), Qt::PartiallyChecked);
    QCOMPARE(changes.value(caption), 0); // was partial, stays partial
    QCOMPARE(changes.size(), 2);          // the row and its plot
}

void TestTreeWidget::offLeavesStatesAlone()
{
    QTreeWidget plain;
    VKD_QT_TreeWidget tree;
    auto* parent = new QTreeWidgetItem(QStringList{"p"});
    parent->setCheckState(0, Qt::Unchecked);
    tree.addTopLevelItem(parent);
    auto* child = new QTreeWidgetItem(parent, QStringList{"c"});
    child->setCheckState(0, Qt::Checked);
    QCOMPARE(parent->checkState(0), Qt::Unchecked);
    tree.setAutomaticCheckStateUpdate(true);
    QCOMPARE(parent->checkState(0), Qt::Checked); // switched on: brought in line at once
    tree.setAutomaticCheckStateUpdate(false);
    child->setCheckState(0, Qt::Unchecked);
    QCOMPARE(parent->checkState(0), Qt::Checked);
}

void TestTreeWidget::menuActions()
{
    VKD_QT_TreeWidget tree;
    auto* top = new QTreeWidgetItem(QStringList{"top"});
    new QTreeWidgetItem(top, QStringList{"child"});
    tree.addTopLevelItem(top);
    VKD_QT_Menu menu(nullptr, "menu");
    tree.addExpandAll(&menu);
    tree.addCollapseAll(&menu);
    QCOMPARE(menu.actions().size(), 2);
    menu.actions().at(0)->trigger();
    QVERIFY(top->isExpanded());
    menu.actions().at(1)->trigger();
    QVERIFY(!top->isExpanded());
}

QTEST_MAIN(TestTreeWidget)
#include "tst_treewidget.moc"
