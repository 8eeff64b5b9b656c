#include <VKD_H_TableWidget.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderItem.h>
#include <VKD_QT_Menu.h>

#include <QPushButton>
#include <QtTest>

namespace {

std::list<ComboList> typeEntries()
{
    return {{"none", 0, -99999}, {"two", 1, -99999}, {"three", 2, -99999}};
}

// Columns in the order of ids 10, 11 (combo), 12.
VKD_H_TableWidget* makeTable()
{
    auto* t = new VKD_H_TableWidget(0, 3, nullptr, "table");
    t->setHorizontalHeaderItem(0, new VKD_H_TwHeaderItem(10, "A", "Column A", true, Qt::AlignCenter));
    t->setHorizontalHeaderItem(1, new VKD_H_TwHeaderComboBoxItem(11, typeEntries(), "B", "Column B", true, Qt::AlignCenter));
    t->setHorizontalHeaderItem(2, new VKD_H_TwHeaderItem(12, "C", "Column C", false, Qt::AlignLeft));
    return t;
}

} // namespace

class TestTableWidget : public QObject
{
    Q_OBJECT
private slots:
    void columnIds_data();
    void columnIds();
    void newRowsGetTheirColumnsItems();
    void comboItemFollowsItsText_data();
    void comboItemFollowsItsText();
    void deleteSelectedRows();
    void contextMenu();
    void box();
};

void TestTableWidget::columnIds_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("column");
    QTest::newRow("first") << 10 << 0;
    QTest::newRow("combo") << 11 << 1;
    QTest::newRow("hidden") << 12 << 2;
    QTest::newRow("unknown id") << 13 << -1;
}

void TestTableWidget::columnIds()
{
    QFETCH(int, id);
    QFETCH(int, column);
    QScopedPointer<VKD_H_TableWidget> t(makeTable());
    QCOMPARE(t->getColumnNumber(id), column);
    if (column >= 0)
        QCOMPARE(t->getColumnId(column), id);
    QCOMPARE(t->getColumnId(7), -1);
    QVERIFY(t->isColumnHidden(2));
}

void TestTableWidget::newRowsGetTheirColumnsItems()
{
    QScopedPointer<VKD_H_TableWidget> t(makeTable());
    QSignalSpy changed(t.data(), &QTableWidget::itemChanged);
    QCOMPARE(t->addNewRow(false), 0);
    QCOMPARE(t->addNewRow(false), 1);
    QCOMPARE(t->rowCount(), 2);
    // Empty cells are no edit: owners that follow itemChanged must not take them for one.
    QCOMPARE(changed.count(), 0);
    auto* combo = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(t->itemOnColId(1, 11));
    QVERIFY(combo);
    QCOMPARE(combo->getCurrentId(), 0);
    QCOMPARE(combo->text(), QStringLiteral("none"));
    QVERIFY(t->itemOnColId(1, 10));
    QVERIFY(!dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(t->itemOnColId(1, 10)));
    QCOMPARE(t->itemOnColId(0, 99), nullptr);
}

void TestTableWidget::comboItemFollowsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("id");
    QTest::newRow("entry text") << "three" << 2;
    QTest::newRow("another entry") << "two" << 1;
    QTest::newRow("text of no entry keeps the id") << "something else" << 0;
}

void TestTableWidget::comboItemFollowsItsText()
{
    QFETCH(QString, text);
    QFETCH(int, id);
    QScopedPointer<VKD_H_TableWidget> t(makeTable());
    t->addNewRow(false);
    auto* combo = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(t->itemOnColId(0, 11));
    QSignalSpy changed(t.data(), &QTableWidget::itemChanged);
    combo->setText(text);
    QCOMPARE(combo->getCurrentId(), id);
    QCOMPARE(changed.count(), 1);
}

void TestTableWidget::deleteSelectedRows()
{
    QScopedPointer<VKD_H_TableWidget> t(makeTable());
    for (int i = 0; i < 5; ++i) {
        t->addNewRow(false);
        t->itemOnColId(i, 10)->setText(QString::number(i));
    }
    t->setSelectionMode(QAbstractItemView::MultiSelection);
    t->item(1, 0)->setSelected(true);
    t->item(3, 2)->setSelected(true);
    QCOMPARE(t->getSelectetRows(), (std::set<int>{1, 3}));
    QVERIFY(t->isRowSelected(3));
    QVERIFY(!t->isRowSelected(2));
    t->deleteSelectedRows();
    QCOMPARE(t->rowCount(), 3);
    QCOMPARE(t->item(0, 0)->text() + t->item(1, 0)->text() + t->item(2, 0)->text(), QStringLiteral("024"));
}

void TestTableWidget::contextMenu()
{
    QScopedPointer<VKD_H_TableWidget> t(makeTable());
    auto texts = [&t] {
        QScopedPointer<VKD_QT_Menu> menu(t->getContextMenu());
        QStringList out;
        for (QAction* a : menu->actions())
            if (!a->isSeparator())
                out << a->text();
        return out;
    };
    QCOMPARE(texts(), (QStringList{"Copy", "Select All", "New", "Delete"}));
    t->setContextmenueEnabled_new_del(false);
    QCOMPARE(texts(), (QStringList{"Copy", "Select All"}));
}

void TestTableWidget::box()
{
    VKD_H_TableWidget* t = makeTable();
    VKD_H_TableWidgetBox box(t, "Rows", nullptr, "box");
    box.createDefaultLayout(false, true);
    QPushButton* add = box.addButton(VKD_H_TableWidgetBox::New, true);
    QPushButton* del = box.addButton(VKD_H_TableWidgetBox::Delete, false);
    QCOMPARE(box.getButton(VKD_H_TableWidgetBox::New), add);
    QCOMPARE(box.getButton(VKD_H_TableWidgetBox::Delete), del);
    QCOMPARE(box.addButton(VKD_H_TableWidgetBox::New, true), add);
    add->click();
    add->click();
    QCOMPARE(t->rowCount(), 2);
    t->selectRow(0);
    del->click(); // not connected to the table: the owner decides
    QCOMPARE(t->rowCount(), 2);
    QCOMPARE(t->parentWidget(), &box);
}

QTEST_MAIN(TestTableWidget)
#include "tst_tablewidget.moc"
