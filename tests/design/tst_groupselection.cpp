// The groups of a row, chosen in the first column of the design parameter table: the combo of
// its editor, the two group dialogs driven by clicks, the pick in the model through a host
// dialog, and the German words the combo and the page have to share.
#include "DesignParameter.h"
#include "DesignParameterTable.h"
#include "designstore.h"
#include "dlgSelection.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <demomodel.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>

#include "groupdialogdriver.h"

#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

using GroupList = std::vector<int>;
Q_DECLARE_METATYPE(GroupList)

namespace {

// "3,4" is a list of groups, "-1" the remaining groups, "" no group, letters a secondary group.
GroupList groupsOf(const QString& text)
{
    GroupList groups;
    for (const QString& token : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const int number = token.toInt(&isNumber);
        int32_t packed = number;
        if (!isNumber)
            vkd::dbo::packSecondaryGroupName(token, &packed);
        groups.push_back(packed);
    }
    return groups;
}

// "[None|*3;4]": the entries of the combo, the current one marked.
QString entriesText(const QComboBox* combo)
{
    QStringList entries;
    for (int i = 0; i < combo->count(); ++i)
        entries << (i == combo->currentIndex() ? QStringLiteral("*") : QString()) + combo->itemText(i);
    return QLatin1Char('[') + entries.join(QLatin1Char('|')) + QLatin1Char(']');
}

// "{-}" for each list a dialog showed, where the list is not the point.
QString withoutLists(QString noted)
{
    return noted.replace(QRegularExpression(QStringLiteral("\\{[^}]*\\}")), QStringLiteral("{-}"));
}

} // namespace

class TestGroupSelection : public QObject
{
    Q_OBJECT
private slots:
    void fillCombo_data();
    void fillCombo();
    void userSteps_data();
    void userSteps();
    void usedGroups_data();
    void usedGroups();
    void pickInModelTwice();
    void groupsReachTheStore();
    void buttonsFollowTheModel_data();
    void buttonsFollowTheModel();
    void sharedGermanWords();

private:
    // A page on a project with the demo model (or one without secondary groups), its rows as
    // in "-1|3,4|", shown.
    DesignParameter* makePage(const QString& rows, QWidget* parent = nullptr,
                              DemoSecondaryGroups secondary = DemoSecondaryGroups::Included);
    QTableWidget* table() const { return m_page->data->table; }
    void clickCell(int row, int column);
    dlgSelection* editor() const;
    QString run(const QString& steps);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    DesignParameter* m_page = nullptr;
};

DesignParameter* TestGroupSelection::makePage(const QString& rows, QWidget* parent,
                                              DemoSecondaryGroups secondary)
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir->filePath(QStringLiteral("p.vkd")));
    writeDemoModel(m_doc->index(), secondary);
    m_page = new DesignParameter(m_doc.get(), m_doc.get(), parent, false, false);
    m_page->init();
    for (const QString& row : rows.split(QLatin1Char('|')))
        vkd::plib::design::addDefaultRow(*m_page->data).groups = groupsOf(row);
    m_page->refreshRows(-1);
    if (parent) {
        parent->layout()->addWidget(m_page);
    } else {
        m_page->show();
        if (!QTest::qWaitForWindowExposed(m_page))
            qWarning("the page was not shown");
    }
    return m_page;
}

void TestGroupSelection::clickCell(int row, int column)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table()->visualRect(table()->model()->index(row, column)).center());
}

dlgSelection* TestGroupSelection::editor() const
{
    for (int row = 0; row < table()->rowCount(); ++row)
        if (auto* e = qobject_cast<dlgSelection*>(table()->cellWidget(row, 0)))
            return e;
    return nullptr;
}

// Steps separated by "|": "at R" clicks the groups cell of row R, "type R" its type cell,
// "choose T" picks entry T with the keyboard, "entries" notes the combo, "groups: ..." and
// "secondary: ..." press a button of the editor and answer the dialog with the clicks after
// the colon. Returns what was noted, then the first column of every row.
QString TestGroupSelection::run(const QString& steps)
{
    QStringList noted;
    for (const QString& step : steps.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        const QString argument = step.section(QLatin1Char(' '), 1);
        if (step.startsWith(QLatin1String("at ")) || step.startsWith(QLatin1String("type "))) {
            clickCell(argument.toInt(), step.startsWith(QLatin1String("at ")) ? 0 : 1);
            continue;
        }
        dlgSelection* e = editor();
        if (!e)
            return QStringLiteral("no editor at: ") + step;
        if (step == QLatin1String("entries")) {
            noted << entriesText(e->comboGroups);
        } else if (step.startsWith(QLatin1String("choose "))) {
            const int target = e->comboGroups->findText(argument);
            if (target < 0)
                return QStringLiteral("no entry: ") + argument;
            while (e->comboGroups->currentIndex() != target)
                QTest::keyClick(e->comboGroups,
                                e->comboGroups->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
        } else {
            const bool primary = step.startsWith(QLatin1String("groups:"));
            QString seen;
            answerModal(&seen, step.section(QLatin1Char(':'), 1));
            QTest::mouseClick(e->findChild<QPushButton*>(primary ? QStringLiteral("buttonGroups")
                                                                 : QStringLiteral("buttonSekGroups")),
                              Qt::LeftButton);
            noted << QStringLiteral("{%1}").arg(seen.replace(QLatin1Char('\n'), QLatin1String(" / ")));
            if (editor())
                noted << entriesText(editor()->comboGroups);
        }
    }
    QStringList cells;
    for (int row = 0; row < table()->rowCount(); ++row)
        cells << table()->item(row, 0)->text();
    noted << cells.join(QLatin1Char('|'));
    return noted.join(QLatin1Char(' '));
}

void TestGroupSelection::fillCombo_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<bool>("remainingInUse");
    QTest::addColumn<QString>("entries");
    QTest::newRow("no [-1] anywhere, empty") << "" << false << "[*None|Remaining Groups]";
    QTest::newRow("no [-1] anywhere, 3 4") << "3,4" << false << "[None|Remaining Groups|*3;4]";
    QTest::newRow("this row holds [-1]") << "-1" << true << "[None|*Remaining Groups]";
    QTest::newRow("another row holds [-1], empty") << "" << true << "[*None]";
    QTest::newRow("another row holds [-1], 3 4") << "3,4" << true << "[None|*3;4]";
    QTest::newRow("secondary group behind numbers") << "SX,12" << true << "[None|*12;SX]";
}

void TestGroupSelection::fillCombo()
{
    QFETCH(QString, groups);
    QFETCH(bool, remainingInUse);
    dlgSelection selection(-1, nullptr);
    QSignalSpy changes(&selection, &dlgSelection::signal_selectionComboChanged);
    DesignParameterRow row;
    row.groups = groupsOf(groups);
    std::sort(row.groups.begin(), row.groups.end());
    selection.comboGroups->addItem(QStringLiteral("left over"));
    changes.clear();
    selection.fillCombo(row, remainingInUse);
    QTEST(entriesText(selection.comboGroups), "entries");
    QCOMPARE(changes.count(), 0);
    // No entry may pass for the ids that mean "None" and "Remaining Groups" on leaving.
    for (int i = 0; i < selection.comboGroups->count(); ++i) {
        selection.comboGroups->setCurrentIndex(i);
        QVERIFY(selection.comboGroups->getCurrentId() > 1 || selection.comboGroups->getCurrentId() < 0);
    }
}

void TestGroupSelection::userSteps_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("result");
    QTest::newRow("row 0 gets no editor") << "-1|3"
                                          << "at 0|type 1|at 0|type 0"
                                          << "Remaining Groups|3";
    QTest::newRow("new row offers the remaining groups") << "5|"
                                                         << "at 1|entries|type 1"
                                                         << "[*None|Remaining Groups] 5|None";
    QTest::newRow("remaining groups taken, then given back")
        << "5||"
        << "at 1|choose Remaining Groups|at 2|entries|at 1|choose None|at 2|entries|type 2"
        << "[*None] [*None|Remaining Groups] 5|None|None";
    QTest::newRow("the list entry changes nothing") << "-1|3,4"
                                                    << "at 1|entries|choose None|choose 3;4|type 1"
                                                    << "[None|*3;4] Remaining Groups|None";
    QTest::newRow("the editor's cell is blank") << "-1|3,4"
                                                << "at 1"
                                                << "Remaining Groups|";
    QTest::newRow("primary: checked and used handed over, OK")
        << "-1|3,4|10"
        << "at 1|groups:ok|type 1"
        << "{- 1|Slab bay A| / - 2|Slab bay B| / x 3|Slab bay C| / x 4|Slab bay D| / "
           "- 10|Edge beams|used in another row / - 11|Columns|} [None|*3;4] Remaining Groups|3;4|10";
    QTest::newRow("primary: confirmed with nothing checked") << "-1|3,4"
                                                             << "at 1|groups:selectNone ok|type 1"
                                                             << "{-} [*None] "
                                                                "Remaining Groups|None";
    QTest::newRow("primary: cancelled") << "-1|3,4"
                                        << "at 1|groups:selectAll cancel|type 1"
                                        << "{-} [None|*3;4] Remaining Groups|3;4";
    QTest::newRow("primary: ticked in the filter") << "5|"
                                                   << "at 1|groups:filter:col selectAll ok|type 1"
                                                   << "{-} [None|Remaining Groups|*11] 5|11";
    QTest::newRow("secondary: sorted behind the numbers")
        << "-1|3,4|EDGE"
        << "at 1|secondary:filter:SX selectAll ok|type 1"
        << "{- EDGE|Slab edge|used in another row / - SX|Strip over the support, x| / "
           "- SY|Strip over the support, y| / x 3||group, not secondary / x 4||group, not secondary} "
           "[None|*3;4;SX] Remaining Groups|3;4;SX|EDGE";
}

void TestGroupSelection::userSteps()
{
    QFETCH(QString, rows);
    QFETCH(QString, steps);
    QFETCH(QString, result);
    std::unique_ptr<DesignParameter> page(makePage(rows));
    const QString got = run(steps);
    QCOMPARE(result.contains(QLatin1String("{-}")) ? withoutLists(got) : got, result);
}

void TestGroupSelection::usedGroups_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("row");
    QTest::addColumn<GroupList>("before");
    QTest::addColumn<GroupList>("used");
    QTest::newRow("remaining and empty rows add nothing") << "-1|3,4|5|" << 1 << GroupList{} << GroupList{5};
    QTest::newRow("other rows, sorted") << "-1|7,1|3,4|5" << 3 << GroupList{} << GroupList{1, 3, 4, 7};
    QTest::newRow("duplicates stay") << "1,7|1|" << 2 << GroupList{} << GroupList{1, 1, 7};
    QTest::newRow("appended to what was there") << "-1|2" << 0 << GroupList{9, 3} << GroupList{2, 3, 9};
    QTest::newRow("only this row") << "4" << 0 << GroupList{9, 3} << GroupList{3, 9};
    QTest::newRow("[-1, 4] is a list") << "-1,4|" << 1 << GroupList{} << GroupList{-1, 4};
}

void TestGroupSelection::usedGroups()
{
    QFETCH(QString, rows);
    QFETCH(int, row);
    QFETCH(GroupList, before);
    std::unique_ptr<DesignParameter> page(makePage(rows));
    page->collectUsedGroups(row, before);
    QTEST(before, "used");
}

// A host dialog around the page, as the suite's project dialogs are.
class HostDialog : public VKD_QT_Dialog
{
public:
    HostDialog() { new VKD_QT_VBoxLayout(this); }
    int reopenConnections() const { return receivers(SIGNAL(isReOpen(int))); }
};

void TestGroupSelection::pickInModelTwice()
{
    HostDialog host;
    makePage(QStringLiteral("-1|3,4|5"), &host);
    const int index = m_doc->index();
    vkd_h_storeGroupPick(index, {99});
    const GroupList picks[] = {{2, 1}, {11}};
    QStringList seen;
    for (const GroupList& pick : picks) {
        // Shown again after the pick: the row takes it over, once.
        QTimer::singleShot(0, this, [&] {
            if (table()->currentRow() != 1 || !editor())
                clickCell(1, 0);
            seen << QStringLiteral("%1 %2")
                        .arg(host.reopenConnections())
                        .arg(table()->item(1, 0)->text() + entriesText(editor()->comboGroups));
            QString dialogList;
            answerModal(&dialogList, QStringLiteral("pickInModel"));
            QTest::mouseClick(editor()->findChild<QPushButton*>(QStringLiteral("buttonGroups")),
                              Qt::LeftButton);
        });
        QCOMPARE(host.exec(), 6);
        // The pick in the model view, stored as the host's pick does.
        vkd_h_storeGroupPick(index, pick);
    }
    QTimer::singleShot(0, &host, [&] {
        seen << QStringLiteral("%1 %2").arg(host.reopenConnections()).arg(entriesText(editor()->comboGroups));
        host.reject();
    });
    host.exec();
    QCOMPARE(seen.join(QLatin1String(", ")), QStringLiteral("0 [None|*3;4], 1 [None|*1;2], 1 [None|*11]"));
    QCOMPARE(m_page->data->rows[1].groups, GroupList{11});
}

void TestGroupSelection::groupsReachTheStore()
{
    std::unique_ptr<DesignParameter> page(makePage(QStringLiteral("-1|")));
    QCOMPARE(withoutLists(run(QStringLiteral(
                 "at 1|groups:filter:bay selectAll ok|secondary:filter:SX selectAll ok|type 1"))),
             QStringLiteral("{-} [None|*1;2;3;4] {-} [None|*1;2;3;4;SX] Remaining Groups|1;2;3;4;SX"));
    page->writeToZob();
    // The next start reads one record per group and folds them into the row again.
    DesignParameter next(m_doc.get(), m_doc.get(), nullptr, false, false);
    next.init();
    next.readZob();
    QCOMPARE(next.data->table->item(1, 0)->text(), QStringLiteral("1;2;3;4;SX"));
    QCOMPARE(next.data->rows.size(), size_t(2));
}

void TestGroupSelection::buttonsFollowTheModel_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<bool>("groups");
    QTest::addColumn<bool>("secondary");
    QTest::newRow("demo model") << 1 << true << true;
    QTest::newRow("no secondary groups") << 2 << true << false;
    QTest::newRow("no project") << 0 << false << false;
}

void TestGroupSelection::buttonsFollowTheModel()
{
    QFETCH(int, model);
    std::unique_ptr<DesignParameter> page(
        makePage(QStringLiteral("-1|3"), nullptr,
                 model == 1 ? DemoSecondaryGroups::Included : DemoSecondaryGroups::LeftOut));
    std::unique_ptr<dlgSelection> unbound;
    dlgSelection* e = nullptr;
    if (model == 0) {
        unbound = std::make_unique<dlgSelection>(-1, nullptr);
        e = unbound.get();
    } else {
        QCOMPARE(run(QStringLiteral("at 1|choose None")), QStringLiteral("Remaining Groups|"));
        e = editor();
    }
    QTEST(e->findChild<QPushButton*>(QStringLiteral("buttonGroups"))->isEnabled(), "groups");
    QTEST(e->findChild<QPushButton*>(QStringLiteral("buttonSekGroups"))->isEnabled(), "secondary");
    QVERIFY(e->comboGroups->isEnabled());
    QCOMPARE(e->findChild<QPushButton*>(QStringLiteral("buttonGroups"))->text(), QString());
}

void TestGroupSelection::sharedGermanWords()
{
    QTranslator german;
    QVERIFY(german.load(QCoreApplication::applicationDirPath() + QStringLiteral("/data/vkd_p_dll_de.qm")));
    QCoreApplication::installTranslator(&german);
    const QString none = QCoreApplication::translate("dlgSelection", "None");
    const QString remaining = QCoreApplication::translate("dlgSelection", "Remaining Groups");
    const QString pageNone = QCoreApplication::translate("DesignParameter", "None");
    const QString pageRemaining = QCoreApplication::translate("DesignParameter", "Remaining Groups");
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(none, QStringLiteral("Keine"));
    QCOMPARE(remaining, QStringLiteral("Restliche Gruppen"));
    QCOMPARE(pageNone, none);
    QCOMPARE(pageRemaining, remaining);
}

QTEST_MAIN(TestGroupSelection)
#include "tst_groupselection.moc"
