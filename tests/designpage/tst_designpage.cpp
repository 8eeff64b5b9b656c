// The design parameter page driven as a host and a user drive it, offscreen, on temporary
// projects; and the host program around it.
#include "DesignParameter.h"
#include "DesignParameterTable.h"
#include "PlibHostDialog.h"
#include "designrecord.h"
#include "reference.h"
#include "rowtext.h"

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderItem.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Menu.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_TableWidgetButton.h>
#include <demomodel.h>
#include <design.h>
#include <vkd_q.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>

#include <cstring>
#include <map>
#include <memory>

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

// All records of the design key pair, byte for byte.
QByteArray designRecords(int index)
{
    QByteArray all;
    char buffer[212];
    for (int position = 0;; ++position) {
        int length = int(sizeof buffer);
        if (vkd_zob_get(index, 200, 6, buffer, &length, position) >= ZOB_END)
            return all;
        all.append(buffer, length);
    }
}

// Design type of each group in the project.
std::map<int, int> typesByGroup(int index)
{
    const QByteArray records = designRecords(index);
    std::map<int, int> types;
    for (int at = 0; at + 212 <= records.size(); at += 212) {
        tagZOB_QUAD_RIM r;
        std::memcpy(&r, records.constData() + at, sizeof r);
        types[r.group] = r.type;
    }
    return types;
}

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

QString columnText(const QTableWidget* table, int column)
{
    QStringList texts;
    for (int r = 0; r < table->rowCount(); ++r)
        texts << oneLine(table->item(r, column)->text());
    return texts.join(QLatin1Char('|'));
}

void clickCell(QTableWidget* table, int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualRect(table->model()->index(row, column)).center());
}

// Clicks the Type cell of the row, opens its combo with F2 and picks the entry with the
// keyboard. False if no combo opened or it has no such entry.
bool chooseType(QTableWidget* table, int row, const QString& text)
{
    // The editor closed last goes first; a click on the cell that is current already would
    // start the view's delayed editing instead of selecting.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (table->currentRow() != row || table->currentColumn() != 1)
        clickCell(table, row, 1);
    QTest::keyClick(table, Qt::Key_F2);
    QComboBox* combo = nullptr;
    for (QComboBox* c : table->viewport()->findChildren<QComboBox*>(QStringLiteral("cellCombo")))
        if (c->isVisible())
            combo = c;
    const int target = combo ? combo->findText(text) : -1;
    if (target < 0)
        return false;
    while (combo->currentIndex() != target)
        QTest::keyClick(combo, combo->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Return);
    return true;
}

// Answers the next modal message box with a button, as a person would, and remembers what
// the box said: its title, its text and its buttons.
class BoxAnswerer : public QObject
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            m_timer.stop();
            seen = QStringList{box->windowTitle(), box->text(), QString::number(box->standardButtons())};
            if (QAbstractButton* button = box->button(answer))
                button->click();
            else
                box->reject();
        });
        m_timer.start(10);
    }
    QStringList seen;

private:
    QTimer m_timer;
};

} // namespace

class TestDesignPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void layout();
    void construction_data();
    void construction();
    void writeAndReadBack();
    void userSteps_data();
    void userSteps();
    void typeChangeKeepsTheRecord();
    void entriesRoundTrip();
    void help_data();
    void help();
    void hostCommandLine_data();
    void hostCommandLine();

private:
    // A page on the project, initialised and read, shown at a size that shows every cell.
    std::unique_ptr<VKD_P_DesignParameter> openPage(Project& project, bool show = true);
    DesignParameter* inner(QWidget* page) { return page->findChild<DesignParameter*>(); }
    DesignParameterData& dataOf(QWidget* page) { return *inner(page)->data; }
    DesignParameterTable* tableOf(QWidget* page) { return dataOf(page).table; }
    QPushButton* button(QWidget* page, const char* name)
    {
        return page->findChild<QPushButton*>(QLatin1String(name));
    }
    // Each cell shows the text of its row.
    bool tableShowsRows(QWidget* page);
    // The cell of the open editor, and each cell widget with its mode; "stale" if it does not show
    // the text of its cell, "leftover" if a button lives on outside the cells.
    static QString editorState(const DesignParameter* page);
    // Runs one step of userSteps; gives what a menu showed or what checkVals did.
    QString runStep(VKD_P_DesignParameter* page, const QString& step);
    // One part of the state that a step of userSteps expects, named by its first word.
    QString state(VKD_P_DesignParameter* page, const QString& part, QSignalSpy& rowCounts,
                  const QString& said);
};

QString TestDesignPage::editorState(const DesignParameter* page)
{
    const QTableWidget* table = page->data->table;
    QString out = QStringLiteral("edit %1,%2").arg(page->editRow).arg(page->editColumn);
    int buttons = 0;
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            auto* b = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(r, c));
            if (!table->cellWidget(r, c))
                continue;
            out += b ? QStringLiteral(" button %1,%2 mode %3").arg(r).arg(c).arg(int(b->mode()))
                     : QStringLiteral(" widget %1,%2").arg(r).arg(c);
            const QString shown = !b ? QString()
                                  : b->mode() == VKD_QT_TableWidgetButton::EditText
                                      ? b->findChild<QLabel*>()->text()
                                      : b->button()->text();
            buttons += b ? 1 : 0;
            if (shown != table->item(r, c)->text())
                out += QStringLiteral(" stale");
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (table->findChildren<VKD_QT_TableWidgetButton*>().size() > buttons)
        out += QStringLiteral(" leftover");
    return out;
}

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

bool TestDesignPage::tableShowsRows(QWidget* page)
{
    const DesignParameterData& data = dataOf(page);
    bool same = size_t(data.table->rowCount()) == data.rows.size();
    for (int r = 0; same && r < data.table->rowCount(); ++r)
        for (int c = 0; c < 5; ++c)
            same = same && data.table->item(r, c)->text() == rowText(data.rows[size_t(r)], c);
    return same;
}

// The interface of the three classes and the table as a new page builds it.
void TestDesignPage::layout()
{
    Project project;
    VKD_P_DesignParameter page(project.doc.get(), project.doc.get(), nullptr, false, false);
    QVERIFY(!page.findChild<DesignParameterTable*>());
    QVERIFY(page.init());
    QString out;
    const char* const access[] = {"private", "protected", "public"};
    const char* const kind[] = {"method", "signal", "slot"};
    for (const QMetaObject* meta :
         {&VKD_P_DesignParameter::staticMetaObject, &DesignParameter::staticMetaObject,
          &DesignParameterTable::staticMetaObject}) {
        out += QStringLiteral("%1 : %2\n").arg(meta->className(), meta->superClass()->className());
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
            out += QStringLiteral("  %1 %2 %3\n")
                       .arg(access[meta->method(i).access()], kind[meta->method(i).methodType()],
                            meta->method(i).methodSignature());
    }
    DesignParameterTable* table = tableOf(&page);
    out +=
        QStringLiteral("table \"%1\", %2 rows, minimum width %3, edit %4,%5, headers %6 %7\n")
            .arg(table->objectName())
            .arg(table->rowCount())
            .arg(inner(&page)->minimumWidth())
            .arg(inner(&page)->editRow)
            .arg(inner(&page)->editColumn)
            .arg(table->horizontalHeader()->sectionResizeMode(0) == QHeaderView::Interactive ? "interactive"
                                                                                             : "fixed")
            .arg(table->verticalHeader()->isHidden() ? "hidden" : "shown");
    for (int c = 0; c < 5; ++c) {
        auto* header = dynamic_cast<VKD_H_TwHeaderItem*>(table->horizontalHeaderItem(c));
        QVERIFY(header && header->columnId() == c && table->getColumnNumber(c) == c);
        out += QStringLiteral("column %1 \"%2\" tip \"%3\" alignment %4 width %5\n")
                   .arg(c)
                   .arg(header->text(), header->toolTip())
                   .arg(header->textAlignment())
                   .arg(table->columnWidth(c));
        if (auto* combo = dynamic_cast<VKD_H_TwHeaderComboBoxItem*>(header))
            for (const ComboList& e : combo->entries())
                out += QStringLiteral("  combo %1 \"%2\" %3\n").arg(e.id).arg(e.text).arg(e.extra);
    }
    // The framework's own New and Delete are off: the page's stand in the table's menu.
    QScopedPointer<VKD_QT_Menu> menu(table->getContextMenu());
    for (QAction* a : menu->actions())
        out += QStringLiteral("menu \"%1\"\n").arg(a->text());
    auto* box = page.findChild<VKD_H_TableWidgetBox*>();
    out += QStringLiteral("box \"%1\"\n").arg(box->title());
    for (const char* name : {"btnNew", "btnDelete", "btnUp", "btnDown"})
        out += QStringLiteral("  %1 \"%2\"%3\n")
                   .arg(QLatin1String(name), button(&page, name)->text())
                   .arg(button(&page, name)->parentWidget() == box ? "" : " outside");
    QVERIFY(matchesReference(out, QStringLiteral("layout.txt")));
}

void TestDesignPage::construction_data()
{
    QTest::addColumn<bool>("flagA");
    QTest::addColumn<bool>("flagB");
    QTest::addColumn<int>("depth");
    QTest::newRow("no flags, no parent") << false << false << -1;
    QTest::newRow("first flag, child of a dialog") << true << false << 0;
    QTest::newRow("both flags, two widgets below a dialog") << true << true << 2;
}

// The record of the remaining groups exists before anything else is called; the flags are kept
// and change nothing; the nearest dialog above is found. Reading writes nothing.
void TestDesignPage::construction()
{
    QFETCH(bool, flagA);
    QFETCH(bool, flagB);
    QFETCH(int, depth);
    Project project;
    QCOMPARE(vkd_zob_count(project.index(), 200, 6), 0);
    VKD_QT_Dialog outer;
    auto* dialog = new VKD_QT_Dialog(&outer);
    QWidget* parent = depth < 0 ? nullptr : dialog;
    for (int i = 0; i < depth; ++i)
        parent = new QWidget(parent);
    auto* page = new VKD_P_DesignParameter(project.doc.get(), project.doc.get(), parent, flagA, flagB);
    std::unique_ptr<VKD_P_DesignParameter> owned(parent ? nullptr : page);
    const QByteArray records = designRecords(project.index());
    const tagZOB_QUAD_RIM expected = VKD_P_DesignParameter::getDefaultMerPara(true);
    QCOMPARE(records, QByteArray(reinterpret_cast<const char*>(&expected), 212));
    QCOMPARE(dataOf(page).flagA, flagA);
    QCOMPARE(dataOf(page).flagB, flagB);
    QCOMPARE(dataOf(page).dialog, depth < 0 ? nullptr : dialog);

    QSignalSpy rowCount(page, &VKD_P_DesignParameter::signal_rowCountChanged);
    page->init();
    page->readZob();
    QCOMPARE(rowCount.count(), 1);
    QCOMPARE(rowCount.at(0).at(0).toInt(), 1);
    QVERIFY(matchesReference(tableText(tableOf(page)), QStringLiteral("new-project.txt")));
    QCOMPARE(designRecords(project.index()), records);

    // A new row names no group, has no design and edits its type only.
    button(page, "btnNew")->click();
    const DesignParameterRow& row = dataOf(page).rows.back();
    QVERIFY(row.groups.empty());
    QCOMPARE(row.barData, dataOf(page).barData);
    tagZOB_QUAD_RIM fresh = getDefaultMerPara(false);
    toEditedForm(fresh, dataOf(page).kindOfSystem);
    QVERIFY(std::memcmp(&row.record, &fresh, sizeof fresh) == 0);
    for (int c = 0; c < 5; ++c)
        QCOMPARE(bool(tableOf(page)->item(1, c)->flags() & Qt::ItemIsEditable), c == 1);
}

void TestDesignPage::writeAndReadBack()
{
    Project project(true);
    QString before;
    {
        auto page = openPage(project);
        DesignParameterTable* table = tableOf(page.get());
        QVERIFY(matchesReference(tableText(table), QStringLiteral("demo-project.txt")));
        QVERIFY(tableShowsRows(page.get()));
        button(page.get(), "btnNew")->click();
        dataOf(page.get()).rows[4].groups = {12, 7};
        inner(page.get())->refreshRows(4);
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
    QCOMPARE(tableText(tableOf(again.get())), before);
}

QString TestDesignPage::runStep(VKD_P_DesignParameter* page, const QString& step)
{
    DesignParameterTable* table = tableOf(page);
    const QString word = step.section(QLatin1Char(' '), 0, 0);
    const QString rest = step.section(QLatin1Char(' '), 1);
    if (word == QLatin1String("new") || word == QLatin1String("delete") || word == QLatin1String("up") ||
        word == QLatin1String("down")) {
        const QString name = QStringLiteral("btn") + word.at(0).toUpper() + word.mid(1);
        QTest::mouseClick(button(page, qPrintable(name)), Qt::LeftButton);
    } else if (word == QLatin1String("click") || word == QLatin1String("ctrl")) {
        clickCell(table, rest.section(QLatin1Char(','), 0, 0).toInt(),
                  rest.section(QLatin1Char(','), 1).toInt(),
                  word == QLatin1String("ctrl") ? Qt::ControlModifier : Qt::NoModifier);
    } else if (word == QLatin1String("type")) {
        if (!chooseType(table, rest.section(QLatin1Char(' '), 0, 0).toInt(),
                        rest.section(QLatin1Char(' '), 1)))
            return QStringLiteral("no such type");
    } else if (word == QLatin1String("nocurrent")) {
        // The table makes a cell current whenever it takes the focus.
        button(page, "btnUp")->setFocus();
        table->selectionModel()->clearCurrentIndex();
    } else if (word == QLatin1String("menu")) {
        // Opens the table's menu, as a right click would, and picks the entry with the keyboard.
        QStringList seen;
        QTimer::singleShot(50, table, [&seen, rest] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (QAction* a : menu ? menu->actions() : QList<QAction*>()) {
                seen << (a->isSeparator() ? QStringLiteral("-") : a->text());
                if (a->text() == rest)
                    menu->setActiveAction(a);
            }
            if (menu)
                QTest::keyClick(menu, Qt::Key_Return);
        });
        const QPoint at = table->visualRect(table->model()->index(0, 1)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &event);
        return seen.join(QLatin1Char('|'));
    } else if (word == QLatin1String("check") || word == QLatin1String("ok")) {
        BoxAnswerer answerer(rest == QLatin1String("Yes") ? QMessageBox::Yes : QMessageBox::No);
        QString result;
        if (word == QLatin1String("ok"))
            QTest::mouseClick(qobject_cast<PlibHostDialog*>(page->window())->buttonRow()->cmdOk(),
                              Qt::LeftButton);
        else
            result = page->checkVals() ? QStringLiteral("true, asked ") : QStringLiteral("false, asked ");
        if (answerer.seen.isEmpty())
            return result.isEmpty() ? QStringLiteral("nothing") : result.section(QLatin1Char(','), 0, 0);
        const QString buttons = answerer.seen.at(2) == QString::number(QMessageBox::Yes | QMessageBox::No)
                                    ? QStringLiteral("Yes, No")
                                    : answerer.seen.at(2);
        return result +
               QStringLiteral("%1: %2 (%3)").arg(answerer.seen.at(0), oneLine(answerer.seen.at(1)), buttons);
    } else if (word == QLatin1String("cancel")) {
        QTest::mouseClick(page->window()->findChild<QPushButton*>(QStringLiteral("cancel")), Qt::LeftButton);
    } else {
        return QStringLiteral("unknown step");
    }
    return QString();
}

QString TestDesignPage::state(VKD_P_DesignParameter* page, const QString& part, QSignalSpy& rowCounts,
                              const QString& said)
{
    const DesignParameterTable* table = tableOf(page);
    const QString key = part.section(QLatin1Char(' '), 0, 0);
    QStringList values;
    if (key == QLatin1String("rows")) {
        values << columnText(table, 0);
    } else if (key == QLatin1String("types")) {
        for (const DesignParameterRow& row : dataOf(page).rows)
            values << QString::number(row.record.type);
    } else if (key == QLatin1String("current")) {
        values << QStringLiteral("%1,%2").arg(table->currentRow()).arg(table->currentColumn());
    } else if (key == QLatin1String("signals")) {
        for (const QList<QVariant>& args : rowCounts)
            values << args.at(0).toString();
        rowCounts.clear();
        return QStringLiteral("signals ") +
               (values.isEmpty() ? QStringLiteral("none") : values.join(QLatin1Char(',')));
    } else if (key == QLatin1String("stored")) {
        for (const auto& [group, type] : typesByGroup(dataOf(page).doc->index()))
            values << QStringLiteral("%1:%2").arg(group).arg(type);
    } else if (key == QLatin1String("dialog")) {
        auto* host = qobject_cast<QDialog*>(page->window());
        values << (host->isVisible()                     ? "open"
                   : host->result() == QDialog::Accepted ? "accepted"
                                                         : "rejected");
    } else if (key == QLatin1String("edit")) {
        return editorState(inner(page));
    } else {
        values << said;
    }
    return key + QLatin1Char(' ') + values.join(QLatin1Char(' '));
}

// The cases of data/steps.txt, which tells their form.
void TestDesignPage::userSteps_data()
{
    QTest::addColumn<QString>("project");
    QTest::addColumn<QStringList>("steps");
    QFile file(QStringLiteral(TEST_DATA_DIR "/steps.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines << QStringLiteral("== end: none");
    QString name, project;
    QStringList steps;
    for (const QString& line : qAsConst(lines)) {
        if (line.startsWith(QLatin1String("== "))) {
            if (!name.isEmpty())
                QTest::newRow(qPrintable(name)) << project << steps;
            name = line.mid(3).section(QStringLiteral(": "), 0, 0);
            project = line.section(QStringLiteral(": "), 1);
            steps.clear();
        } else if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            steps << line;
        }
    }
}

void TestDesignPage::userSteps()
{
    QFETCH(QString, project);
    QFETCH(QStringList, steps);
    Project files(project != QLatin1String("new") && project != QLatin1String("five"));
    VKD_H_ProjectDialogPage projectPage;
    std::unique_ptr<QWidget> window;
    VKD_P_DesignParameter* page = nullptr;
    if (project == QLatin1String("host")) {
        auto* host = new PlibHostDialog(files.doc.get());
        window.reset(host);
        page = host->designPage();
        QCOMPARE(host->tabWidget()->widget(0), static_cast<QWidget*>(page));
    } else {
        page = new VKD_P_DesignParameter(files.doc.get(), files.doc.get(), nullptr, false, false);
        window.reset(page);
        page->init();
        if (project == QLatin1String("entries"))
            page->getEntrys(projectPage);
        else
            page->readZob();
    }
    window->resize(1400, 700);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    for (int i = 1; project == QLatin1String("five") && i <= 4; ++i) {
        button(page, "btnNew")->click();
        dataOf(page).rows[size_t(i)].groups = {i};
        inner(page)->refreshRows(i);
    }
    QSignalSpy rowCounts(page, &VKD_P_DesignParameter::signal_rowCountChanged);
    for (const QString& step : steps) {
        const QString action = step.section(QStringLiteral(" => "), 0, 0);
        const QString said = runStep(page, action);
        // Writing turns the rows into their stored form, which the table does not show.
        QVERIFY2(action.startsWith(QLatin1String("ok")) || tableShowsRows(page), qPrintable(step));
        if (!step.contains(QLatin1String(" => ")))
            continue;
        QStringList parts;
        for (const QString& part : step.section(QStringLiteral(" => "), 1).split(QStringLiteral("; ")))
            parts << state(page, part, rowCounts, said);
        QCOMPARE(action + QStringLiteral(" => ") + parts.join(QStringLiteral("; ")), step);
    }
    // Nothing is written when the page goes.
    const QByteArray stored = designRecords(files.index());
    window.reset();
    QCOMPARE(designRecords(files.index()), stored);
}

// Only the type changes with the type: the other fields stay, so that going back shows the old
// values again.
void TestDesignPage::typeChangeKeepsTheRecord()
{
    Project project(true);
    auto page = openPage(project);
    DesignParameterTable* table = tableOf(page.get());
    const tagZOB_QUAD_RIM before = dataOf(page.get()).rows[3].record;
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

// Rows without groups go to the project page and come back from it, without their minimum and
// maximum reinforcement; an entry left over from a longer list goes.
void TestDesignPage::entriesRoundTrip()
{
    Project project(true);
    VKD_H_ProjectDialogPage projectPage;
    projectPage.setEntry(QStringLiteral("MerPara3"), QStringLiteral("left over"));
    QString before;
    {
        VKD_P_DesignParameter page(project.doc.get(), project.doc.get(), nullptr, false, false);
        page.init();
        page.getEntrys(projectPage);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        DesignParameterTable* table = tableOf(&page);
        button(&page, "btnNew")->click();
        button(&page, "btnNew")->click();
        QVERIFY(chooseType(table, 4, QStringLiteral("Two Layers (orthogonal)")));
        QVERIFY(chooseType(table, 5, QStringLiteral("Three Layers")));
        DesignParameterRow& row = dataOf(&page).rows[4];
        row.record.wko = 0.0002f;
        row.record.hio = 0.05f;
        inner(&page)->refreshRows(4);
        before = tableText(table);
        BoxAnswerer answerer(QMessageBox::No);
        QVERIFY(page.checkVals());
        QCOMPARE(answerer.seen, QStringList());
        page.setEntrys(projectPage);
    }
    QCOMPARE(projectPage.keys(), (QStringList{"MerPara1", "MerPara2"}));
    QVERIFY(projectPage.getEntry(QStringLiteral("MerPara1"), QString()).startsWith(QStringLiteral("1; | ")));
    QVERIFY(projectPage.getEntry(QStringLiteral("MerPara2"), QString()).startsWith(QStringLiteral("3; | ")));
    QCOMPARE(vkd_zob_count(project.index(), 200, 6), 5);

    VKD_P_DesignParameter again(project.doc.get(), project.doc.get(), nullptr, false, false);
    again.init();
    again.getEntrys(projectPage);
    const int fromEntries = before.indexOf(QStringLiteral("row 4\n"));
    QVERIFY(fromEntries > 0);
    before = before.left(fromEntries) +
             before.mid(fromEntries)
                 .replace(QStringLiteral("Ø10 ; -  ; -  / Ø10 ; -  ; - \n"),
                          QStringLiteral("Ø10 ;0.00 cm²/m ;0.00 cm²/m / Ø10 ;0.00 cm²/m ;0.00 cm²/m\n"));
    QCOMPARE(tableText(tableOf(&again)), before);
    QVERIFY(again.checkVals());
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
    QTextBrowser* text = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String("helpViewer") && w->isVisible())
            text = w->findChild<QTextBrowser*>(QStringLiteral("helpText"));
    QVERIFY2(text, "no help viewer opened");
    QCOMPARE(text->source().fileName(), file);
    QVERIFY(text->toPlainText().startsWith(heading));
    text->window()->close();
}

void TestDesignPage::hostCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::newRow("pictures of a project")
        << QStringList{"--lang", "de", "--screenshots", "shots", "project.vkd"} << 0 << "saved pictures of the pages and dialogs";
    QTest::newRow("script to standard output")
        << QStringList{"--script-language", "de", "--script", "-", "project.vkd"} << 0 << "\nSTEU LEER JA";
    QTest::newRow("unknown language")
        << QStringList{"--lang", "fr", "project.vkd"} << 2 << "usage: plib-host";
    QTest::newRow("screenshots without a folder")
        << QStringList{"project.vkd", "--screenshots"} << 2 << "usage: plib-host";
    QTest::newRow("two projects") << QStringList{"a.vkd", "b.vkd"} << 2 << "usage: plib-host";
    QTest::newRow("unknown option") << QStringList{"--verbose"} << 2 << "usage: plib-host";
    QTest::newRow("project that does not exist")
        << QStringList{"--script", "x.grav", "none.vkd"} << 3 << "plib-host: ";
}

// The host program run in the project's folder; a picture leaves the project as it was.
void TestDesignPage::hostCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    Project project(true);
    const QByteArray before = designRecords(project.index());
    QProcess host;
    host.setWorkingDirectory(project.dir.path());
    host.start(QStringLiteral(PLIB_HOST), arguments);
    QVERIFY(host.waitForFinished(30000));
    const QString said = QString::fromLocal8Bit(host.readAllStandardOutput() + host.readAllStandardError());
    QCOMPARE(host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1, exitCode);
    QVERIFY2(said.contains(output), qPrintable(said));
    if (exitCode == 0 && arguments.contains(QStringLiteral("--screenshots"))) {
        // The design page asks for 890 pixels at least; the dialog adds its frame.
        const QImage picture(project.dir.filePath(QStringLiteral("shots/design.png")));
        QVERIFY(picture.width() > 890 && picture.height() > 200);
    }
    QCOMPARE(designRecords(project.index()), before);
}

QTEST_MAIN(TestDesignPage)
#include "tst_designpage.moc"
