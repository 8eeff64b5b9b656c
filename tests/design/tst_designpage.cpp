// The design parameter page driven as a host and a user drive it, offscreen, on temporary
// projects; and the host program around it. Widgets are found by their object names. Also the row
// texts that one maker keeps while the table fills many rows: they must be what a fresh
// computation gives.
#include "PlibHostDialog.h"
#include "designrecord.h"
#include "designtest.h"
#include "reference.h"
#include "rowtext.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_TwHeaderItem.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_InitTranslator.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QCryptographicHash>
#include <QHeaderView>
#include <QLayout>
#include <QMenu>
#include <QScrollBar>

#include <cstring>
#include <map>

using namespace vkd::plib::design;
using R = tagZOB_QUAD_RIM;

namespace {

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1String(" / "));
}

QPushButton* button(QWidget* page, const QString& name)
{
    return page->findChild<QPushButton*>(name);
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

// Clicks the Type cell of the row, opens its combo with F2 and picks the entry with the
// keyboard. False if no combo opened or it has no such entry.
bool chooseType(QTableWidget* table, int row, const QString& text)
{
    // A click on the cell that is current already would start the view's delayed editing
    // instead of selecting.
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

// Each button laid over a cell with its mode; "stale" if it does not show the text of its cell,
// "see-through" if the cell's own text shows under it, "leftover" if a button lives on outside
// the cells.
QString editorState(const QTableWidget* table)
{
    QString out = QStringLiteral("edit");
    int buttons = 0;
    for (int r = 0; r < table->rowCount(); ++r)
        for (int c = 0; c < table->columnCount(); ++c)
            if (auto* b = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(r, c))) {
                ++buttons;
                out += QStringLiteral(" button %1,%2 mode %3%4%5")
                           .arg(r)
                           .arg(c)
                           .arg(int(b->mode()))
                           .arg(buttonText(b) != table->item(r, c)->text() ? " stale" : "")
                           .arg(b->autoFillBackground() ? "" : " see-through");
            }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (table->findChildren<VKD_QT_TableWidgetButton*>().size() > buttons)
        out += QStringLiteral(" leftover");
    return buttons == 0 ? out + QStringLiteral(" none") : out;
}

// Opens the table's menu, as a right click would, picks the entry with the keyboard and gives
// the entries it showed.
QString menuStep(QTableWidget* table, const QString& entry)
{
    QStringList seen;
    QTimer::singleShot(50, table, [&seen, entry] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* a : menu ? menu->actions() : QList<QAction*>()) {
            seen << (a->isSeparator() ? QStringLiteral("-") : a->text());
            if (a->text() == entry)
                menu->setActiveAction(a);
        }
        if (menu)
            QTest::keyClick(menu, Qt::Key_Return);
    });
    const QPoint at = table->visualRect(table->model()->index(0, 1)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, table->viewport()->mapToGlobal(at));
    QApplication::sendEvent(table->viewport(), &event);
    return seen.join(QLatin1Char('|'));
}

// Runs one step of userSteps; gives what a menu or a message box showed.
QString runStep(VKD_P_DesignParameter* page, const QString& word, const QString& rest)
{
    DesignParameterTable* table = tableOf(page);
    if (QStringList{"new", "delete", "up", "down"}.contains(word)) {
        QTest::mouseClick(button(page, QStringLiteral("btn") + word.at(0).toUpper() + word.mid(1)),
                          Qt::LeftButton);
    } else if (word == "click" || word == "ctrl") {
        clickCell(table, rest.section(',', 0, 0).toInt(), rest.section(',', 1).toInt(),
                  word == "ctrl" ? Qt::ControlModifier : Qt::NoModifier);
    } else if (word == "type") {
        if (!chooseType(table, rest.section(' ', 0, 0).toInt(), rest.section(' ', 1)))
            return QStringLiteral("no such type");
    } else if (word == "nocurrent") {
        // The table makes a cell current whenever it takes the focus.
        button(page, QStringLiteral("btnUp"))->setFocus();
        table->selectionModel()->clearCurrentIndex();
    } else if (word == "menu") {
        return menuStep(table, rest);
    } else if (word == "ok" || word == "check") {
        BoxWatcher boxes(rest == "Yes" ? QMessageBox::Yes : QMessageBox::No);
        QString result = QStringLiteral("nothing");
        if (word == "ok")
            QTest::mouseClick(qobject_cast<PlibHostDialog*>(page->window())->buttonRow()->cmdOk(),
                              Qt::LeftButton);
        else
            result = page->checkVals() ? "true" : "false";
        if (boxes.seen.isEmpty())
            return result;
        const QString asked = oneLine(boxes.seen.join('|')) +
                              (boxes.buttons == (QMessageBox::Yes | QMessageBox::No) ? " (Yes, No)" : " (?)");
        return word == "ok" ? asked : result + ", asked " + asked;
    } else {
        qFatal("no step \"%s\" in data/steps.txt", qPrintable(word));
    }
    return QString();
}

// One part of the state that a step of userSteps expects, named by its first word.
QString state(VKD_P_DesignParameter* page, int index, const QString& key, QSignalSpy& rowCounts,
              const QString& said)
{
    const DesignParameterTable* table = tableOf(page);
    QStringList values;
    if (key == "rows" || key == "types") {
        for (int r = 0; r < table->rowCount(); ++r) {
            auto* type = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(table->item(r, 1));
            values << (key == "rows" ? oneLine(table->item(r, 0)->text())
                                     : QString::number(type ? type->getCurrentId() : -1));
        }
        values = QStringList{values.join(key == "rows" ? '|' : ' ')};
    } else if (key == "current") {
        values << QStringLiteral("%1,%2").arg(table->currentRow()).arg(table->currentColumn());
    } else if (key == "signals") {
        for (const QList<QVariant>& args : rowCounts)
            values << args.at(0).toString();
        rowCounts.clear();
        values = QStringList{values.isEmpty() ? QStringLiteral("none") : values.join(',')};
    } else if (key == "stored") {
        const QByteArray records = designRecords(index);
        std::map<int, int> types;
        for (int at = 0; at + 212 <= records.size(); at += 212) {
            R r;
            std::memcpy(&r, records.constData() + at, sizeof r);
            types[r.group] = r.type;
        }
        for (const auto& [group, type] : types)
            values << QStringLiteral("%1:%2").arg(group).arg(type);
    } else if (key == "dialog") {
        auto* host = qobject_cast<QDialog*>(page->window());
        values << (host->isVisible()                     ? "open"
                   : host->result() == QDialog::Accepted ? "accepted"
                                                         : "rejected");
    } else if (key == "edit") {
        return editorState(table);
    } else {
        values << said;
    }
    return key + ' ' + values.join(' ');
}

QByteArray fileHash(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                       : QByteArray();
}

VKD_A_BarDiameterData barsNamed(const QString& name)
{
    VKD_A_BarDiameterData bars;
    bars.setBars({{12.0f, name}});
    return bars;
}

VKD_A_BarDiameterData g_bars = barsNamed(QStringLiteral("B12")),
                      g_otherBars = barsNamed(QStringLiteral("Other 12"));

DesignParameterRow row(int type, void (*change)(R&) = nullptr, VKD_A_BarDiameterData* bars = &g_bars)
{
    DesignParameterRow r{bars, getDefaultMerPara(false), {1, 2}};
    r.record.type = type;
    r.record.dio = 12.0f;
    if (change)
        change(r.record);
    return r;
}

} // namespace

Q_DECLARE_METATYPE(DesignParameterRow)

class TestDesignPage : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        vkd_lib_setvalue(kSettingLanguage, 1);
        // A test that failed with a box open must not leave it to the next one.
        while (QWidget* modal = QApplication::activeModalWidget())
            modal->close();
    }

    // The record of the remaining groups exists before anything else is called, also for a page deep
    // inside a dialog and with both flags; the table comes with init; reading writes nothing. A new
    // row names no group, has no design and edits its type only.
    void construction()
    {
        Project project;
        QCOMPARE(vkd_zob_count(project.index(), 200, 6), 0);
        VKD_QT_Dialog dialog;
        auto* page =
            new VKD_P_DesignParameter(project.doc.get(), project.doc.get(), new QWidget(&dialog), true, true);
        const QByteArray records = designRecords(project.index());
        const tagZOB_QUAD_RIM expected = VKD_P_DesignParameter::getDefaultMerPara(true);
        QCOMPARE(records, QByteArray(reinterpret_cast<const char*>(&expected), 212));
        QVERIFY(!tableOf(page));

        QSignalSpy rowCount(page, &VKD_P_DesignParameter::signal_rowCountChanged);
        QVERIFY(page->init());
        DesignParameterTable* table = tableOf(page);
        QSignalSpy added(table, &DesignParameterTable::rowsAdded);
        page->readZob();
        QCOMPARE(added.count(), 1); // as the table tells of each row it adds
        QCOMPARE(added.at(0).at(0).toInt(), 0);
        // Each summary shows two lines.
        QVERIFY(table->verticalHeader()->defaultSectionSize() > 2 * table->fontMetrics().lineSpacing());
        QCOMPARE(rowCount.count(), 1);
        QCOMPARE(rowCount.at(0).at(0).toInt(), 1);
        QVERIFY(matchesReference(tableText(table), QStringLiteral("new-project.txt")));
        QCOMPARE(designRecords(project.index()), records);

        // Up and Down stand after New and Delete, left of the stretch.
        const QLayout* buttonRow = page->findChild<QLayout*>(QStringLiteral("buttonRow"));
        QCOMPARE(buttonRow->itemAt(3)->widget(), button(page, QStringLiteral("btnDown")));
        button(page, QStringLiteral("btnNew"))->click();
        QCOMPARE(table->item(1, 0)->text() + '|' + table->item(1, 1)->text(),
                 QStringLiteral("None|No design"));
        for (int c = 0; c < 5; ++c)
            QCOMPARE(bool(table->item(1, c)->flags() & Qt::ItemIsEditable), c == 1);
    }

    // The cases of data/steps.txt, which tells their form.
    void userSteps_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QStringList>("steps");
        QFile file(QStringLiteral(TEST_DATA_DIR "/steps.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const QString& block : text.split(QStringLiteral("\n== ")).mid(1)) {
            QStringList lines = block.split('\n', Qt::SkipEmptyParts);
            const QString head = lines.takeFirst();
            QTest::newRow(qPrintable(head.section(QStringLiteral(": "), 0, 0)))
                << head.section(": ", 1) << lines;
        }
    }

    void userSteps()
    {
        QFETCH(QString, project);
        QFETCH(QStringList, steps);
        const bool host = project == QLatin1String("host"), entries = project == QLatin1String("entries");
        Project files(host || entries ? QStringLiteral("demo") : project);
        VKD_H_ProjectDialogPage projectPage;
        std::unique_ptr<QWidget> window;
        VKD_P_DesignParameter* page = nullptr;
        if (host) {
            auto* dialog = new PlibHostDialog(files.doc.get());
            window.reset(dialog);
            page = dialog->designPage();
            dialog->resize(1400, 700);
            dialog->show();
            QVERIFY(QTest::qWaitForWindowExposed(dialog));
        } else {
            window = files.page(entries ? &projectPage : nullptr);
            page = static_cast<VKD_P_DesignParameter*>(window.get());
        }
        QSignalSpy rowCounts(page, &VKD_P_DesignParameter::signal_rowCountChanged);
        for (const QString& step : steps) {
            const QString action = step.section(QStringLiteral(" => "), 0, 0);
            const QString said = runStep(page, action.section(' ', 0, 0), action.section(' ', 1));
            QStringList parts;
            for (const QString& part :
                 step.section(QStringLiteral(" => "), 1).split(QStringLiteral("; "), Qt::SkipEmptyParts))
                parts << state(page, files.index(), part.section(' ', 0, 0), rowCounts, said);
            QCOMPARE(parts.isEmpty() ? action : action + QStringLiteral(" => ") + parts.join("; "), step);
        }
        // Nothing is written when the page goes.
        const QByteArray stored = designRecords(files.index());
        window.reset();
        QCOMPARE(designRecords(files.index()), stored);
    }

    // However many rows the table has, a new one is current on its type cell and in sight, and
    // the row the user selected stays selected.
    void newRowComesIntoSight()
    {
        Project project(QStringLiteral("demo"));
        const auto page = project.page();
        page->resize(900, 300);
        DesignParameterTable* table = tableOf(page.get());
        table->selectRow(2);
        for (int added = 1; added <= 8; ++added) {
            button(page.get(), QStringLiteral("btnNew"))->click();
            QCoreApplication::processEvents();
            const QModelIndex last = table->model()->index(table->rowCount() - 1, 1);
            QCOMPARE(table->currentIndex(), last);
            QVERIFY(table->viewport()->rect().contains(table->visualRect(last)));
            QCOMPARE(table->selectionModel()->selectedRows(), QModelIndexList{table->model()->index(2, 0)});
        }
        QVERIFY(table->verticalScrollBar()->value() > 0); // else every row fitted and nothing was tried
    }

    // The rows of the demo project; only the type changes with the type: going back shows the
    // old values again.
    void typeChangeKeepsTheOtherValues()
    {
        Project project(QStringLiteral("demo"));
        const auto page = project.page();
        DesignParameterTable* table = tableOf(page.get());
        QVERIFY(matchesReference(tableText(table), QStringLiteral("demo-project.txt")));
        QVERIFY(button(page.get(), QStringLiteral("btnNew"))->y() >
                table->y()); // the buttons below the table
        const QString threeLayers = table->item(3, 2)->text();
        QVERIFY(chooseType(table, 3, QStringLiteral("Two Layers")));
        QVERIFY(!table->item(3, 2)->text().contains(QStringLiteral("1.5 cm")));
        QVERIFY(chooseType(table, 3, QStringLiteral("Three Layers")));
        QCOMPARE(table->item(3, 2)->text(), threeLayers);
    }

    // OK of the host's dialog on a project opened for reading: one warning that names the file
    // and the reason, in the desktop's language; the dialog stays open with what was typed, the
    // project as it was.
    void hostOkThatCannotSave()
    {
        for (const auto& [language, closing] :
             {std::pair{1, "Nothing was saved. The dialog stays open so that nothing you entered is lost."},
              {0, "Es wurde nichts gespeichert. Der Dialog bleibt offen, damit nichts von Ihren Eingaben "
                  "verloren geht."}}) {
            Project files(QStringLiteral("demo"));
            const QString file = files.doc->path();
            const QByteArray before = designRecords(files.index()),
                             hash = (files.doc.reset(), fileHash(file));
            VKD_H_ZOBDoc project(file, VKD_H_ZOBDoc::ReadOnly);
            vkd_lib_setvalue(kSettingLanguage, language);
            VKD_QT_InitTranslator hostTexts("plib_host");
            PlibHostDialog dialog(&project);
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            const int rows = tableOf(dialog.designPage())->rowCount();
            BoxWatcher boxes;
            QTest::mouseClick(dialog.buttonRow()->cmdOk(), Qt::LeftButton);
            vkd_lib_setvalue(kSettingLanguage, 1);
            QCOMPARE(boxes.seen,
                     QStringList{dialog.windowTitle() +
                                 QStringLiteral(": The project file %1 is open for reading only: it "
                                                "was opened for reading only.\n\n%2")
                                     .arg(QFileInfo(file).absoluteFilePath(), QString::fromUtf8(closing))});
            QCOMPARE(boxes.icon, QMessageBox::Warning);
            QVERIFY(!boxes.busyCursor);
            QVERIFY(dialog.isVisible());
            QCOMPARE(tableOf(dialog.designPage())->rowCount(), rows);
            QCOMPARE(designRecords(project.index()), before);
            QCOMPARE(fileHash(file), hash);
        }
    }

    void makerTellsRowsApart_data()
    {
        QTest::addColumn<DesignParameterRow>("first");
        QTest::addColumn<DesignParameterRow>("second");
        auto sameCrackAndStress = [](R& r) { r.wko = r.wkoq = r.wkoi = r.sigo = r.sigoq = r.sigoi = 0.25f; };
        QTest::newRow("types 1 and 4: equal numbers, crack widths against stresses")
            << row(1, sameCrackAndStress) << row(4, sameCrackAndStress);
        QTest::newRow("types 2 and 3: equal directions, four against six distances") << row(2) << row(3);
        QTest::newRow("only the last distance of three layers differs")
            << row(3) << row(3, [](R& r) { r.hiui = 0.07f; });
        QTest::newRow("only the lower side's reinforcement differs")
            << row(1) << row(1, [](R& r) { r.amu = 3.5f; });
        QTest::newRow("a value not set, then set")
            << row(2, [](R& r) { r.riuq = kNotSet; }) << row(2, [](R& r) { r.riuq = 0.0f; });
        QTest::newRow("the same bar in another bar table") << row(1) << row(1, nullptr, &g_otherBars);
        QTest::newRow("no bar table") << row(1) << row(1, nullptr, nullptr);
    }

    // One maker makes both rows' texts; the second row's must be what a maker of its own makes,
    // and differ from the first row's somewhere (rows of the same texts would test nothing).
    void makerTellsRowsApart()
    {
        QFETCH(DesignParameterRow, first);
        QFETCH(DesignParameterRow, second);
        RowTextMaker maker;
        bool anyDiffers = false;
        for (int column = ColumnSelection; column <= ColumnCrackControl; ++column) {
            QCOMPARE(maker.text(first, column), rowText(first, column));
            QCOMPARE(maker.text(second, column), rowText(second, column));
            anyDiffers = anyDiffers || rowText(first, column) != rowText(second, column);
        }
        QVERIFY(anyDiffers);
    }
};

QTEST_MAIN(TestDesignPage)
#include "tst_designpage.moc"
