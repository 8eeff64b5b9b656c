// The design parameter page driven as a host and a user drive it, offscreen, on temporary
// projects.
#include "pagedriver.h"
#include "reference.h"

#include "DesignParameter.h"
#include "DesignParameterTable.h"
#include "designrecord.h"
#include "rowtext.h"

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderItem.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Menu.h>
#include <VKD_QT_TableWidgetButton.h>
#include <demomodel.h>
#include <design.h>
#include <vkd_q.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <cstring>
#include <memory>

Q_DECLARE_METATYPE(const QMetaObject*)

using namespace vkd::plib::design;

namespace {

// A project in a temporary folder: new, or with the demo model and its design parameters.
struct Project
{
    explicit Project(bool demo = false)
    {
        doc = std::make_unique<VKD_H_ZOBDoc>(dir.filePath(QStringLiteral("project.vkd")));
        if (demo) {
            writeDemoModel(doc->index());
            writeDemoDesign(*doc);
        }
    }
    int index() const { return doc->index(); }

    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1String(" / "));
}

// Every cell of the table under its column heading.
QString tableText(const QTableWidget* table)
{
    QString out;
    for (int r = 0; r < table->rowCount(); ++r) {
        out += QStringLiteral("row %1\n").arg(r);
        for (int c = 0; c < table->columnCount(); ++c)
            out += QStringLiteral("  %1: %2\n")
                       .arg(table->horizontalHeaderItem(c)->text(), oneLine(table->item(r, c)->text()));
    }
    return out;
}

QStringList columnTexts(const QTableWidget* table, int column)
{
    QStringList texts;
    for (int r = 0; r < table->rowCount(); ++r)
        texts << oneLine(table->item(r, column)->text());
    return texts;
}

QStringList methodsOf(const QMetaObject& meta)
{
    QStringList out;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod m = meta.method(i);
        const char* access = m.access() == QMetaMethod::Public      ? "public"
                             : m.access() == QMetaMethod::Protected ? "protected"
                                                                    : "private";
        const char* kind = m.methodType() == QMetaMethod::Signal ? "signal"
                           : m.methodType() == QMetaMethod::Slot ? "slot"
                                                                 : "method";
        out << QStringLiteral("%1 %2 %3")
                   .arg(QLatin1String(access), QLatin1String(kind), QLatin1String(m.methodSignature()));
    }
    return out;
}

} // namespace

class TestDesignPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();

    void metaObjectOrder_data();
    void metaObjectOrder();
    void tableLayout();
    void construction_data();
    void construction();
    void dialogAncestor_data();
    void dialogAncestor();
    void demoProjectTable();
    void writeAndReadBack();
    void nothingWrittenOnDestruction();
    void newRows();
    void deleteRows_data();
    void deleteRows();
    void deleteTheRowOfTheEditor();
    void upAndDown_data();
    void upAndDown();
    void rowCountSignal();
    void contextMenu();
    void typeChange();
    void typeChangeKeepsOtherFields();
    void cellEditor_data();
    void cellEditor();
    void checkVals_data();
    void checkVals();
    void entriesRoundTrip();
    void help_data();
    void help();

private:
    // A page on the project, initialised and read, shown at a size that shows every cell.
    std::unique_ptr<VKD_P_DesignParameter> openPage(Project& project, bool show = true);
    DesignParameter* inner(VKD_P_DesignParameter* page) { return page->findChild<DesignParameter*>(); }
    DesignParameterData& dataOf(VKD_P_DesignParameter* page) { return *inner(page)->data; }
    DesignParameterTable* tableOf(VKD_P_DesignParameter* page) { return dataOf(page).table; }
    QPoint editCell(VKD_P_DesignParameter* page) { return {inner(page)->editColumn, inner(page)->editRow}; }
    void setGroups(VKD_P_DesignParameter* page, int row, std::vector<int32_t> groups)
    {
        dataOf(page).rows[size_t(row)].groups = std::move(groups);
        inner(page)->refreshRows(row);
    }
    QPushButton* button(VKD_P_DesignParameter* page, const char* name)
    {
        return page->findChild<QPushButton*>(QLatin1String(name));
    }
    // Five rows: the remaining groups, then new rows for the groups 1, 2, 3 and 4.
    std::unique_ptr<VKD_P_DesignParameter> fiveRows(Project& project);
    // Each cell shows the text of its row.
    bool tableShowsRows(VKD_P_DesignParameter* page);
};

void TestDesignPage::initTestCase()
{
    vkd_lib_setvalue(102, 1);
}

void TestDesignPage::init()
{
    // A test that failed with a box open must not leave it to the next one.
    while (QWidget* modal = QApplication::activeModalWidget())
        modal->close();
}

std::unique_ptr<VKD_P_DesignParameter> TestDesignPage::openPage(Project& project, bool show)
{
    auto page =
        std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(), nullptr, false, false);
    page->init();
    page->readZob();
    if (show) {
        page->resize(1400, 700);
        page->show();
        if (!QTest::qWaitForWindowExposed(page.get()))
            qWarning("the page was not exposed");
    }
    return page;
}

std::unique_ptr<VKD_P_DesignParameter> TestDesignPage::fiveRows(Project& project)
{
    auto page = openPage(project);
    for (int i = 1; i <= 4; ++i) {
        button(page.get(), "btnNew")->click();
        setGroups(page.get(), i, {i});
    }
    return page;
}

bool TestDesignPage::tableShowsRows(VKD_P_DesignParameter* page)
{
    const DesignParameterData& data = dataOf(page);
    const QTableWidget* table = data.table;
    if (size_t(table->rowCount()) != data.rows.size())
        return false;
    for (int r = 0; r < table->rowCount(); ++r)
        for (int c = 0; c < 5; ++c)
            if (table->item(r, c)->text() != rowText(data.rows[size_t(r)], c))
                return false;
    return true;
}

void TestDesignPage::metaObjectOrder_data()
{
    QTest::addColumn<const QMetaObject*>("meta");
    QTest::addColumn<QStringList>("methods");
    QTest::newRow("exported shell") << &VKD_P_DesignParameter::staticMetaObject
                                    << QStringList{"public signal signal_rowCountChanged(int)",
                                                   "public slot showHelp()"};
    QTest::newRow("inner page") << &DesignParameter::staticMetaObject
                                << QStringList{"public signal signal_rowCountChanged(int)",
                                               "public slot help_clicked()",
                                               "private slot slot_typComboChanged(QTableWidgetItem*)",
                                               "private slot slot_newRowClicked()",
                                               "private slot slot_deleteClicked()",
                                               "private slot slot_editButtonClicked()",
                                               "private slot slot_calcReinforcementButtonClicked()",
                                               "private slot slot_calcCrackButtonClicked()",
                                               "private slot slot_openGroups()",
                                               "private slot slot_openSekGroups()",
                                               "private slot slot_editCellWidget()",
                                               "private slot slot_up()",
                                               "private slot slot_down()",
                                               "private slot slot_selectionComboChanged(QString)",
                                               "private slot slot_onReopenGroups()",
                                               "private slot slot_onReopenGroupsSecondary()"};
    QTest::newRow("table") << &DesignParameterTable::staticMetaObject
                           << QStringList{"public signal signal_newClicked()",
                                          "public signal signal_delClicked()"};
}

void TestDesignPage::metaObjectOrder()
{
    QFETCH(const QMetaObject*, meta);
    QFETCH(QStringList, methods);
    QCOMPARE(methodsOf(*meta), methods);
    QCOMPARE(meta->superClass(), meta == &DesignParameterTable::staticMetaObject
                                     ? &VKD_H_TableWidget::staticMetaObject
                                     : &QWidget::staticMetaObject);
}

void TestDesignPage::tableLayout()
{
    Project project;
    VKD_P_DesignParameter page(project.doc.get(), project.doc.get(), nullptr, false, false);
    QVERIFY(!page.findChild<DesignParameterTable*>());
    QVERIFY(page.init());
    DesignParameterTable* table = tableOf(&page);
    QVERIFY(table);
    QCOMPARE(table->objectName(), QStringLiteral("table"));
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(inner(&page)->minimumWidth(), 890);
    QCOMPARE(editCell(&page), QPoint(-1, -1));
    QVERIFY(!table->verticalHeader()->isHidden());
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);

    const QStringList headers{"Selection", "Type", "Direction and Distance", "Reinforcement",
                              "Crack Control"};
    const int widths[] = {150, 150, 200, 120, 120};
    for (int c = 0; c < 5; ++c) {
        auto* header = dynamic_cast<VKD_H_TwHeaderItem*>(table->horizontalHeaderItem(c));
        QVERIFY(header);
        QCOMPARE(header->columnId(), c);
        QCOMPARE(table->getColumnNumber(c), c);
        QCOMPARE(header->text(), headers.at(c));
        QCOMPARE(header->toolTip(), headers.at(c));
        QCOMPARE(header->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(table->columnWidth(c), widths[c]);
        QCOMPARE(dynamic_cast<VKD_H_TwHeaderComboBoxItem*>(header) != nullptr, c == 1);
    }
    auto* typeHeader = dynamic_cast<VKD_H_TwHeaderComboBoxItem*>(table->horizontalHeaderItem(1));
    QStringList entries;
    for (const ComboList& e : typeHeader->entries())
        entries << QStringLiteral("%1=%2 (%3)").arg(e.id).arg(e.text).arg(e.extra);
    QCOMPARE(entries,
             (QStringList{"0=No design (-99999)", "1=Two Layers (orthogonal) (-99999)",
                          "2=Two Layers (-99999)", "3=Three Layers (-99999)", "4=Circular (-99999)"}));

    // The framework's own New and Delete are off: the page's stand in the table's menu.
    QScopedPointer<VKD_QT_Menu> menu(table->getContextMenu());
    QStringList actions;
    for (QAction* a : menu->actions())
        actions << a->text();
    QCOMPARE(actions, (QStringList{"Copy", "Select All"}));

    auto* box = page.findChild<VKD_H_TableWidgetBox*>();
    QVERIFY(box);
    QCOMPARE(box->title(), QStringLiteral("Design parameter"));
    QStringList buttons;
    for (const char* name : {"btnNew", "btnDelete", "btnUp", "btnDown"}) {
        QPushButton* b = button(&page, name);
        QVERIFY2(b, name);
        QCOMPARE(b->parentWidget(), box);
        buttons << b->text();
    }
    QCOMPARE(buttons, (QStringList{"New", "Delete", "Up", "Down"}));
}

void TestDesignPage::construction_data()
{
    QTest::addColumn<bool>("flagA");
    QTest::addColumn<bool>("flagB");
    QTest::newRow("no flags") << false << false;
    QTest::newRow("first flag") << true << false;
    QTest::newRow("second flag") << false << true;
    QTest::newRow("both flags") << true << true;
}

void TestDesignPage::construction()
{
    QFETCH(bool, flagA);
    QFETCH(bool, flagB);
    Project project;
    QCOMPARE(vkd_zob_count(project.index(), 200, 6), 0);
    VKD_P_DesignParameter page(project.doc.get(), project.doc.get(), nullptr, flagA, flagB);
    // The record for the remaining groups exists before anything else is called.
    const QByteArray records = designRecords(project.index());
    QCOMPARE(records.size(), 212);
    tagZOB_QUAD_RIM expected = VKD_P_DesignParameter::getDefaultMerPara(true);
    QCOMPARE(records, QByteArray(reinterpret_cast<const char*>(&expected), 212));
    QCOMPARE(dataOf(&page).flagA, flagA);
    QCOMPARE(dataOf(&page).flagB, flagB);

    QSignalSpy rowCount(&page, &VKD_P_DesignParameter::signal_rowCountChanged);
    page.init();
    page.readZob();
    QCOMPARE(rowCount.count(), 1);
    QCOMPARE(rowCount.at(0).at(0).toInt(), 1);
    QVERIFY(compareWithReference(tableText(tableOf(&page)), QStringLiteral("new-project.txt")));
    // Reading writes nothing.
    QCOMPARE(designRecords(project.index()), records);
}

void TestDesignPage::dialogAncestor_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("no parent") << -1;
    QTest::newRow("child of a dialog") << 0;
    QTest::newRow("two widgets below a dialog") << 2;
}

void TestDesignPage::dialogAncestor()
{
    QFETCH(int, depth);
    Project project;
    VKD_QT_Dialog dialog;
    QWidget* parent = depth < 0 ? nullptr : &dialog;
    for (int i = 0; i < depth; ++i)
        parent = new QWidget(parent);
    auto* page = new VKD_P_DesignParameter(project.doc.get(), project.doc.get(), parent, false, false);
    QCOMPARE(dataOf(page).dialog, depth < 0 ? nullptr : &dialog);
    if (!parent)
        delete page;
}

void TestDesignPage::demoProjectTable()
{
    Project project(true);
    auto page = openPage(project, false);
    QVERIFY(compareWithReference(tableText(tableOf(page.get())), QStringLiteral("demo-project.txt")));
    QVERIFY(tableShowsRows(page.get()));
}

void TestDesignPage::writeAndReadBack()
{
    Project project(true);
    QString before;
    {
        auto page = openPage(project);
        DesignParameterTable* table = tableOf(page.get());
        button(page.get(), "btnNew")->click();
        setGroups(page.get(), 4, {12, 7});
        QCOMPARE(table->item(4, 0)->text(), QStringLiteral("12;7"));
        QVERIFY(chooseType(table, 4, QStringLiteral("Circular")));
        // Taking a row in hand sorts its groups.
        QCOMPARE(table->item(4, 0)->text(), QStringLiteral("7;12"));
        QVERIFY(chooseType(table, 2, QStringLiteral("No design")));
        before = tableText(table);
        QVERIFY(page->checkVals());
        page->writeToZob();
    }
    auto again = openPage(project, false);
    const QString after = tableText(tableOf(again.get()));
    QVERIFY2(after == before, qPrintable(lineDifference(before, after)));
}

void TestDesignPage::nothingWrittenOnDestruction()
{
    Project project(true);
    const QByteArray records = designRecords(project.index());
    {
        auto page = openPage(project);
        button(page.get(), "btnNew")->click();
        setGroups(page.get(), 4, {20});
        QVERIFY(chooseType(tableOf(page.get()), 1, QStringLiteral("Three Layers")));
        clickCell(tableOf(page.get()), 3, 2);
        QVERIFY(page->checkVals());
    }
    QCOMPARE(designRecords(project.index()), records);
}

void TestDesignPage::newRows()
{
    Project project(true);
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    QSignalSpy rowCount(page.get(), &VKD_P_DesignParameter::signal_rowCountChanged);
    button(page.get(), "btnNew")->click();
    button(page.get(), "btnNew")->click();
    QCOMPARE(table->rowCount(), 6);
    QCOMPARE(rowCount.count(), 2);
    QCOMPARE(rowCount.at(1).at(0).toInt(), 6);
    const DesignParameterRow& row = dataOf(page.get()).rows.back();
    QVERIFY(row.groups.empty());
    QCOMPARE(row.barData, dataOf(page.get()).barData);
    tagZOB_QUAD_RIM expected = getDefaultMerPara(false);
    toEditedForm(expected, dataOf(page.get()).kindOfSystem);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(&row.record), 212),
             QByteArray(reinterpret_cast<const char*>(&expected), 212));
    QCOMPARE(columnTexts(table, 0).mid(4), (QStringList{"None", "None"}));
    QCOMPARE(columnTexts(table, 1).mid(4), (QStringList{"No design", "No design"}));
    QCOMPARE(columnTexts(table, 2).mid(4), (QStringList{"", ""}));
    QVERIFY(table->item(5, 1)->flags() & Qt::ItemIsEditable);
    for (int c : {0, 2, 3, 4})
        QVERIFY(!(table->item(5, c)->flags() & Qt::ItemIsEditable));
    QVERIFY(tableShowsRows(page.get()));
}

void TestDesignPage::deleteRows_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QStringList>("groups");
    const QStringList all{"Remaining Groups", "1", "2", "3", "4"};
    QTest::newRow("rows 1 and 3") << QList<int>{1, 3} << QStringList{"Remaining Groups", "2", "4"};
    QTest::newRow("the last row") << QList<int>{4} << QStringList{"Remaining Groups", "1", "2", "3"};
    QTest::newRow("all but row 0") << QList<int>{1, 2, 3, 4} << QStringList{"Remaining Groups"};
    QTest::newRow("row 0 with row 3") << QList<int>{0, 3} << all;
    QTest::newRow("row 0 alone") << QList<int>{0} << all;
    QTest::newRow("nothing selected") << QList<int>{} << all;
}

void TestDesignPage::deleteRows()
{
    QFETCH(QList<int>, selected);
    QFETCH(QStringList, groups);
    Project project;
    auto page = fiveRows(project);
    DesignParameterTable* table = tableOf(page.get());
    table->clearSelection();
    for (int r : selected)
        clickCell(table, r, 1, Qt::ControlModifier);
    QCOMPARE(table->getSelectetRows().size(), size_t(selected.size()));
    QSignalSpy rowCount(page.get(), &VKD_P_DesignParameter::signal_rowCountChanged);
    QTest::mouseClick(button(page.get(), "btnDelete"), Qt::LeftButton);
    QCOMPARE(columnTexts(table, 0), groups);
    QVERIFY(tableShowsRows(page.get()));
    if (selected.contains(0)) {
        QCOMPARE(rowCount.count(), 0);
    } else {
        QCOMPARE(rowCount.count(), 1);
        QCOMPARE(rowCount.at(0).at(0).toInt(), groups.size());
    }
}

void TestDesignPage::deleteTheRowOfTheEditor()
{
    Project project(true);
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    // A row of no design between two rows to delete, the editor open on the lower one.
    button(page.get(), "btnNew")->click();
    clickCell(table, 4, 1);
    button(page.get(), "btnUp")->click();
    QCOMPARE(columnTexts(table, 0), (QStringList{"Remaining Groups", "1;2", "3", "None", "4"}));
    clickCell(table, 2, 2);
    clickCell(table, 4, 2, Qt::ControlModifier);
    QVERIFY(table->cellWidget(4, 2));
    QTest::mouseClick(button(page.get(), "btnDelete"), Qt::LeftButton);
    QCOMPARE(columnTexts(table, 0), (QStringList{"Remaining Groups", "1;2", "None"}));
    QVERIFY(tableShowsRows(page.get()));
    // The editor went with its row. Where the selection landed, a button stands only on a
    // row with a design, and it is the one the page knows of.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QList<VKD_QT_TableWidgetButton*> buttons = table->findChildren<VKD_QT_TableWidgetButton*>();
    QVERIFY(buttons.size() <= 1);
    for (VKD_QT_TableWidgetButton* b : buttons) {
        const QPoint cell = editCell(page.get());
        QCOMPARE(table->cellWidget(cell.y(), cell.x()), b);
        QVERIFY(dataOf(page.get()).rows[size_t(cell.y())].record.type != 0);
    }
    clickCell(table, 1, 4);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(table->findChildren<VKD_QT_TableWidgetButton*>().size(), 1);
    QVERIFY(qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(1, 4)));
    QCOMPARE(editCell(page.get()), QPoint(4, 1));
}

void TestDesignPage::upAndDown_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("groups");
    QTest::addColumn<int>("currentRow");
    QTest::newRow("up from row 2") << "btnUp" << 2 << "Remaining Groups|2|1|3|4" << 1;
    QTest::newRow("up from the last row") << "btnUp" << 4 << "Remaining Groups|1|2|4|3" << 3;
    QTest::newRow("up from row 1") << "btnUp" << 1 << "Remaining Groups|1|2|3|4" << 1;
    QTest::newRow("up from row 0") << "btnUp" << 0 << "Remaining Groups|1|2|3|4" << 0;
    QTest::newRow("down from row 1") << "btnDown" << 1 << "Remaining Groups|2|1|3|4" << 2;
    QTest::newRow("down from row 3") << "btnDown" << 3 << "Remaining Groups|1|2|4|3" << 4;
    QTest::newRow("down from the last row") << "btnDown" << 4 << "Remaining Groups|1|2|3|4" << 4;
    QTest::newRow("down from row 0") << "btnDown" << 0 << "Remaining Groups|1|2|3|4" << 0;
    QTest::newRow("up with no current row") << "btnUp" << -1 << "Remaining Groups|1|2|3|4" << -1;
    QTest::newRow("down with no current row") << "btnDown" << -1 << "Remaining Groups|1|2|3|4" << -1;
}

void TestDesignPage::upAndDown()
{
    QFETCH(QString, button);
    QFETCH(int, row);
    QFETCH(QString, groups);
    QFETCH(int, currentRow);
    Project project;
    auto page = fiveRows(project);
    DesignParameterTable* table = tableOf(page.get());
    // Rows that differ in more than their groups, so that a swap of half a row would show.
    QVERIFY(chooseType(table, 2, QStringLiteral("Three Layers")));
    if (row >= 0) {
        clickCell(table, row, 3);
    } else {
        // The table makes a cell current whenever it takes the focus.
        this->button(page.get(), qPrintable(button))->setFocus();
        table->selectionModel()->clearCurrentIndex();
    }
    QCOMPARE(table->currentRow(), row);
    QTest::mouseClick(this->button(page.get(), qPrintable(button)), Qt::LeftButton);
    QCOMPARE(columnTexts(table, 0).join(QLatin1Char('|')), groups);
    QVERIFY(tableShowsRows(page.get()));
    QCOMPARE(table->currentRow(), currentRow);
    if (currentRow >= 0)
        QCOMPARE(table->currentColumn(), 3);
    // The type went with its row.
    const int typed = columnTexts(table, 0).indexOf(QStringLiteral("2"));
    QCOMPARE(table->item(typed, 1)->text(), QStringLiteral("Three Layers"));
}

void TestDesignPage::rowCountSignal()
{
    Project project;
    auto page =
        std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(), nullptr, false, false);
    QSignalSpy shell(page.get(), &VKD_P_DesignParameter::signal_rowCountChanged);
    page->init();
    QCOMPARE(shell.count(), 0);
    page->readZob();
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    DesignParameterTable* table = tableOf(page.get());
    button(page.get(), "btnNew")->click();
    button(page.get(), "btnNew")->click();
    clickCell(table, 1, 2);
    button(page.get(), "btnDelete")->click();
    clickCell(table, 0, 2);
    button(page.get(), "btnDelete")->click(); // row 0 stays, and so does the count
    QList<int> counts;
    for (const QList<QVariant>& args : shell)
        counts << args.at(0).toInt();
    QCOMPARE(counts, (QList<int>{1, 2, 3, 2}));
    QCOMPARE(table->rowCount(), 2);
}

void TestDesignPage::contextMenu()
{
    Project project;
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    QSignalSpy rowCount(page.get(), &VKD_P_DesignParameter::signal_rowCountChanged);

    // Opens the table's menu, as a right click would, and picks an entry with the keyboard.
    auto pick = [table](const QString& entry) {
        QStringList seen;
        QTimer::singleShot(50, table, [&seen, entry] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            for (QAction* a : menu->actions())
                seen << (a->isSeparator() ? QStringLiteral("-") : a->text());
            for (QAction* a : menu->actions())
                if (a->text() == entry)
                    menu->setActiveAction(a);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        const QPoint at = table->visualRect(table->model()->index(0, 1)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &event);
        return seen;
    };
    QCOMPARE(pick(QStringLiteral("New")), (QStringList{"Copy", "Select All", "-", "New", "Delete"}));
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(rowCount.count(), 1);
    clickCell(table, 1, 2);
    pick(QStringLiteral("Delete"));
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(dataOf(page.get()).rows.size(), size_t(1));
    QCOMPARE(rowCount.count(), 2);
}

void TestDesignPage::typeChange()
{
    Project project;
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    button(page.get(), "btnNew")->click();
    clickCell(table, 1, 2);
    QCOMPARE(table->cellWidget(1, 2), nullptr); // no design, nothing to edit
    QVERIFY(table->item(1, 2)->text().isEmpty());

    QVERIFY(chooseType(table, 1, QStringLiteral("Two Layers")));
    QCOMPARE(dataOf(page.get()).rows[1].record.type, 2);
    QCOMPARE(table->item(1, 1)->text(), QStringLiteral("Two Layers"));
    QCOMPARE(oneLine(table->item(1, 2)->text()),
             QStringLiteral("0.00° ;0.00° ;90.00° ;90.00° / 3.5 cm ;3.5 cm ;1.0 cm ;1.0 cm ;"));
    QVERIFY(tableShowsRows(page.get()));

    // The button comes with the next selection of a summary cell, showing the new summary.
    clickCell(table, 1, 4);
    auto* cellButton = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(1, 4));
    QVERIFY(cellButton);
    QCOMPARE(cellButton->button()->text(), table->item(1, 4)->text());
}

void TestDesignPage::typeChangeKeepsOtherFields()
{
    Project project(true);
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    const tagZOB_QUAD_RIM before = dataOf(page.get()).rows[3].record;
    QCOMPARE(table->item(3, 1)->text(), QStringLiteral("Three Layers"));
    const QString threeLayers = table->item(3, 2)->text();
    QVERIFY(chooseType(table, 3, QStringLiteral("Two Layers")));
    QVERIFY(!table->item(3, 2)->text().contains(QStringLiteral("1.5 cm")));
    tagZOB_QUAD_RIM after = dataOf(page.get()).rows[3].record;
    QCOMPARE(after.type, 2);
    after.type = before.type;
    QVERIFY(std::memcmp(&after, &before, sizeof after) == 0);
    QVERIFY(chooseType(table, 3, QStringLiteral("Three Layers")));
    QCOMPARE(table->item(3, 2)->text(), threeLayers);
}

void TestDesignPage::cellEditor_data()
{
    // Clicks on cells of the demo project with a fifth row of no design, each followed by the
    // cell that counts as the editor's and the cell that shows a button, if any.
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("a button per summary column")
        << QStringList{"click 1,2 => edit 1,2 button 1,2 mode 0", "click 1,3 => edit 1,3 button 1,3 mode 2",
                       "click 2,4 => edit 2,4 button 2,4 mode 2", "click 2,1 => edit 2,1 none"};
    QTest::newRow("a second selection closes")
        << QStringList{"click 2,2 => edit 2,2 button 2,2 mode 0", "click 0,0 => edit 2,2 button 2,2 mode 0",
                       "click 2,2 => edit -1,-1 none", "click 0,0 => edit -1,-1 none",
                       "click 2,2 => edit 2,2 button 2,2 mode 0"};
    QTest::newRow("a row of no design keeps the old cell")
        << QStringList{"click 2,3 => edit 2,3 button 2,3 mode 2", "click 4,3 => edit 2,3 none",
                       "click 2,3 => edit -1,-1 none", "click 4,2 => edit -1,-1 none",
                       "click 2,3 => edit 2,3 button 2,3 mode 2"};
    QTest::newRow("the type cell of a row of no design")
        << QStringList{"click 3,4 => edit 3,4 button 3,4 mode 2", "click 4,1 => edit 4,1 none",
                       "click 3,4 => edit 3,4 button 3,4 mode 2"};
}

void TestDesignPage::cellEditor()
{
    QFETCH(QStringList, steps);
    Project project(true);
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    button(page.get(), "btnNew")->click();
    const QRegularExpression step(
        QStringLiteral("^click (\\d),(\\d) => edit (-?\\d),(-?\\d) (none|button (\\d),(\\d) mode (\\d))$"));
    for (const QString& s : steps) {
        const QRegularExpressionMatch m = step.match(s);
        QVERIFY2(m.hasMatch(), qPrintable(s));
        clickCell(table, m.captured(1).toInt(), m.captured(2).toInt());
        QCOMPARE(editCell(page.get()), QPoint(m.captured(4).toInt(), m.captured(3).toInt()));
        QList<QPoint> withWidget;
        for (int r = 0; r < table->rowCount(); ++r)
            for (int c = 0; c < table->columnCount(); ++c)
                if (table->cellWidget(r, c))
                    withWidget << QPoint(c, r);
        if (m.captured(5) == QLatin1String("none")) {
            QVERIFY2(withWidget.isEmpty(), qPrintable(s));
            continue;
        }
        const int row = m.captured(6).toInt();
        const int column = m.captured(7).toInt();
        QCOMPARE(withWidget, QList<QPoint>{QPoint(column, row)});
        auto* cellButton = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(row, column));
        QVERIFY2(cellButton, qPrintable(s));
        QCOMPARE(int(cellButton->mode()), m.captured(8).toInt());
        const QString shown = cellButton->mode() == VKD_QT_TableWidgetButton::EditText
                                  ? cellButton->findChild<QLabel*>()->text()
                                  : cellButton->button()->text();
        QCOMPARE(shown, table->item(row, column)->text());
    }
}

void TestDesignPage::checkVals_data()
{
    QTest::addColumn<bool>("entries");
    QTest::addColumn<bool>("rowWithoutGroups");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<bool>("result");
    QTest::newRow("read from the project, every row with groups")
        << false << false << int(QMessageBox::No) << false << true;
    QTest::newRow("read from the project, a row without groups, Yes")
        << false << true << int(QMessageBox::Yes) << true << true;
    QTest::newRow("read from the project, a row without groups, No")
        << false << true << int(QMessageBox::No) << true << false;
    QTest::newRow("read with the project page, a row without groups")
        << true << true << int(QMessageBox::No) << false << true;
}

void TestDesignPage::checkVals()
{
    QFETCH(bool, entries);
    QFETCH(bool, rowWithoutGroups);
    QFETCH(int, answer);
    QFETCH(bool, asks);
    QFETCH(bool, result);
    Project project(true);
    VKD_H_ProjectDialogPage projectPage;
    auto page =
        std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(), nullptr, false, false);
    page->init();
    if (entries)
        page->getEntrys(projectPage);
    else
        page->readZob();
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    if (rowWithoutGroups)
        button(page.get(), "btnNew")->click();

    BoxAnswerer answerer{QMessageBox::StandardButton(answer)};
    QCOMPARE(page->checkVals(), result);
    QCOMPARE(answerer.seen, asks);
    if (asks) {
        QCOMPARE(answerer.title, QStringLiteral("Warning"));
        QCOMPARE(answerer.text, QStringLiteral("No groups selected.\nPossible loss of data!"));
        QCOMPARE(answerer.buttons, QMessageBox::Yes | QMessageBox::No);
    }
    // Asking changes nothing.
    QCOMPARE(tableOf(page.get())->rowCount(), rowWithoutGroups ? 5 : 4);
}

void TestDesignPage::entriesRoundTrip()
{
    Project project(true);
    VKD_H_ProjectDialogPage projectPage;
    projectPage.setEntry(QStringLiteral("MerPara3"), QStringLiteral("left over"));
    QString before;
    {
        auto page = std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(), nullptr,
                                                            false, false);
        page->init();
        page->getEntrys(projectPage);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
        DesignParameterTable* table = tableOf(page.get());
        button(page.get(), "btnNew")->click();
        button(page.get(), "btnNew")->click();
        QVERIFY(chooseType(table, 4, QStringLiteral("Two Layers (orthogonal)")));
        QVERIFY(chooseType(table, 5, QStringLiteral("Three Layers")));
        DesignParameterRow& row = dataOf(page.get()).rows[4];
        row.record.wko = 0.0002f;
        row.record.hio = 0.05f;
        inner(page.get())->refreshRows(4);
        before = tableText(table);
        QVERIFY(page->checkVals());
        page->setEntrys(projectPage);
    }
    // The entry left over from a longer list is gone.
    QCOMPARE(projectPage.keys(), (QStringList{"MerPara1", "MerPara2"}));
    QVERIFY(projectPage.getEntry(QStringLiteral("MerPara1"), QString()).startsWith(QStringLiteral("1; | ")));
    QVERIFY(projectPage.getEntry(QStringLiteral("MerPara2"), QString()).startsWith(QStringLiteral("3; | ")));
    // Rows without groups are not records of the project.
    QCOMPARE(vkd_zob_count(project.index(), 200, 6), 5);

    auto again =
        std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(), nullptr, false, false);
    again->init();
    again->getEntrys(projectPage);
    // The entries carry no minimum and maximum reinforcement: those of the rows from the
    // entries come back as zero.
    const int fromEntries = before.indexOf(QStringLiteral("row 4\n"));
    QVERIFY(fromEntries > 0);
    before = before.left(fromEntries) +
             before.mid(fromEntries)
                 .replace(QStringLiteral("Ø10 ; -  ; -  / Ø10 ; -  ; - \n"),
                          QStringLiteral("Ø10 ;0.00 cm²/m ;0.00 cm²/m / Ø10 ;0.00 cm²/m ;0.00 cm²/m\n"));
    const QString after = tableText(tableOf(again.get()));
    QVERIFY2(after == before, qPrintable(lineDifference(before, after)));
    QVERIFY(again->checkVals());
}

void TestDesignPage::help_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("heading");
    QTest::newRow("English") << 1 << "merdan_para_en.html"
                             << "Design parameters";
    QTest::newRow("German") << 0 << "merdan_para_de.html"
                            << "Bemessungsparameter";
}

void TestDesignPage::help()
{
    QFETCH(int, language);
    QFETCH(QString, file);
    QFETCH(QString, heading);
    Project project;
    auto page = openPage(project);
    vkd_lib_setvalue(102, language);
    page->showHelp();
    vkd_lib_setvalue(102, 1);
    QWidget* viewer = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String("helpViewer") && w->isVisible())
            viewer = w;
    QVERIFY2(viewer, "no help viewer opened");
    auto* text = viewer->findChild<QTextBrowser*>(QStringLiteral("helpText"));
    QVERIFY(text);
    QCOMPARE(text->source().fileName(), file);
    QVERIFY(text->toPlainText().startsWith(heading));
    viewer->close();
}

QTEST_MAIN(TestDesignPage)
#include "tst_designpage.moc"
