// The groups of a row, chosen in the first column of the design parameter table: the combo of
// its editor, the two group dialogs driven by clicks, the pick in the model through a host
// dialog, and the German words the combo and the page have to share.
#include "DesignParameter.h"
#include "designstore.h"
#include "designtest.h"
#include "dlgSelection.h"

#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>

#include <QLineEdit>
#include <QTranslator>
#include <QTreeWidget>

using GroupList = std::vector<int>;

namespace {

// "3,4" is a list of groups, "-1" the remaining groups, "" no group, letters a secondary group.
GroupList groupsOf(const QString& text)
{
    GroupList groups;
    for (const QString& token : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool isNumber = false;
        int32_t number = token.toInt(&isNumber);
        if (!isNumber)
            vkd::dbo::packSecondaryGroupName(token, &number);
        groups.push_back(number);
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

// Answers the next group dialog as a person would: notes each line of its list (check mark,
// group, title and note), then runs the steps, space separated: "filter:<text>", or the object
// name of a button to click. No group, title or note may be cut short, and one click must empty
// the filter.
void answerGroupDialog(QString* seen, const QString& steps)
{
    onModal([](QWidget* w) { return w->findChild<QTreeWidget*>(QStringLiteral("groupList")) != nullptr; },
            [seen, steps](QWidget* dialog) {
                auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("groupList"));
                auto* filter = dialog->findChild<QLineEdit*>(QStringLiteral("groupFilter"));
                QStringList lines, cut;
                for (int i = 0; i < list->topLevelItemCount(); ++i) {
                    const QTreeWidgetItem* item = list->topLevelItem(i);
                    lines << QStringLiteral("%1 %2|%3|%4")
                                 .arg(item->checkState(0) == Qt::Checked ? 'x' : '-')
                                 .arg(item->text(0), item->text(1), item->text(2));
                    for (int c = 0; c < 3; ++c)
                        if (list->columnWidth(c) < list->fontMetrics().horizontalAdvance(item->text(c)))
                            cut << item->text(c);
                }
                *seen = lines.join(QStringLiteral(" / "));
                const bool clearable = filter->isClearButtonEnabled();
                for (const QString& step : steps.split(' ', Qt::SkipEmptyParts)) {
                    if (step.startsWith(QLatin1String("filter:"))) {
                        filter->clear();
                        QTest::keyClicks(filter, step.mid(7));
                    } else if (auto* button = dialog->findChild<QPushButton*>(step)) {
                        QTest::mouseClick(button, Qt::LeftButton);
                    } else {
                        QFAIL(qPrintable(QStringLiteral("no step ") + step));
                    }
                }
                // Looked at once the steps closed the dialog.
                QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral(", "))));
                QVERIFY(clearable);
            });
}

// A host dialog around the page, as the suite's project dialogs are.
class HostDialog : public VKD_QT_Dialog
{
public:
    HostDialog() { new VKD_QT_VBoxLayout(this); }
    int reopenConnections() const { return receivers(SIGNAL(isReOpen(int))); }
};

} // namespace

class TestGroupSelection : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    DesignParameter* m_page = nullptr;

    // A page on a new project with the demo model, its rows as in "-1|3,4|", shown.
    DesignParameter* makePage(const QString& rows, QWidget* host = nullptr,
                              DemoSecondaryGroups secondary = DemoSecondaryGroups::Included)
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir->filePath(QStringLiteral("p.vkd")));
        writeDemoModel(m_doc->index(), secondary);
        // Rows with groups come from the store; rows without any are added as a user does.
        DesignParameterData stored;
        stored.designDoc = m_doc.get();
        int newRows = 0;
        for (const QString& row : rows.split(QLatin1Char('|'))) {
            if (row.isEmpty()) {
                ++newRows;
                continue;
            }
            DesignParameterRow& r = vkd::plib::design::addDefaultRow(stored);
            r.groups = groupsOf(row);
            r.record.xref = float(stored.rows.size()); // keeps equal neighbours from being read as one row
        }
        bool converted = false;
        vkd::plib::design::writeRowsToZob(stored, converted);
        m_page = new DesignParameter(m_doc.get(), m_doc.get(), host, false, false);
        m_page->init();
        m_page->readZob();
        for (int i = 0; i < newRows; ++i)
            m_page->findChild<QPushButton*>(QStringLiteral("btnNew"))->click();
        if (host)
            host->layout()->addWidget(m_page);
        else if (m_page->show(), !QTest::qWaitForWindowExposed(m_page))
            qWarning("the page was not shown");
        return m_page;
    }

    QTableWidget* table() const { return tableOf(m_page); }
    dlgSelection* editor() const
    {
        return qobject_cast<dlgSelection*>(table()->cellWidget(table()->currentRow(), 0));
    }

    // Steps separated by "|": "at R" clicks the groups cell of row R, "type R" its type cell,
    // "choose T" picks entry T with the keyboard, "entries" notes the combo and its buttons,
    // "groups:..." and "secondary:..." press a button of the editor and answer the dialog with
    // the clicks after the colon. Returns what was noted, then the first column of every row.
    QString run(const QString& steps)
    {
        QStringList noted;
        for (const QString& step : steps.split(QLatin1Char('|'))) {
            const QString argument = step.section(QLatin1Char(' '), 1);
            if (step.startsWith(QLatin1String("at ")) || step.startsWith(QLatin1String("type "))) {
                clickCell(table(), argument.toInt(), step.startsWith(QLatin1String("at ")) ? 0 : 1);
                continue;
            }
            dlgSelection* e = editor();
            if (!e)
                return QStringLiteral("no editor at: ") + step;
            if (step == QLatin1String("entries")) {
                noted << entriesText(e->comboGroups);
                for (const char* name : {"buttonGroups", "buttonSekGroups"})
                    if (!e->findChild<QPushButton*>(QLatin1String(name))->isEnabled())
                        noted.last() += QStringLiteral(" %1 off").arg(QLatin1String(name));
            } else if (step.startsWith(QLatin1String("choose "))) {
                const int target = e->comboGroups->findText(argument);
                while (target >= 0 && e->comboGroups->currentIndex() != target)
                    QTest::keyClick(e->comboGroups,
                                    e->comboGroups->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
            } else {
                QString seen;
                answerGroupDialog(&seen, step.section(QLatin1Char(':'), 1));
                QTest::mouseClick(e->findChild<QPushButton*>(step.startsWith(QLatin1String("groups:"))
                                                                 ? QStringLiteral("buttonGroups")
                                                                 : QStringLiteral("buttonSekGroups")),
                                  Qt::LeftButton);
                noted << QStringLiteral("{%1}").arg(seen) << entriesText(e->comboGroups);
            }
        }
        QStringList cells;
        for (int row = 0; row < table()->rowCount(); ++row)
            cells << table()->item(row, 0)->text();
        return (noted << cells.join(QLatin1Char('|'))).join(QLatin1Char(' '));
    }

private slots:
    void fillCombo_data()
    {
        QTest::addColumn<QString>("groups");
        QTest::addColumn<bool>("remainingInUse");
        QTest::addColumn<QString>("entries");
        QTest::newRow("no [-1] anywhere, empty") << "" << false << "[*None|Remaining Groups]";
        QTest::newRow("no [-1] anywhere, 3 4") << "3,4" << false << "[None|Remaining Groups|*3;4]";
        QTest::newRow("this row holds [-1]") << "-1" << true << "[None|*Remaining Groups]";
        QTest::newRow("another row holds [-1], empty") << "" << true << "[*None]";
        QTest::newRow("secondary group behind numbers") << "12,SX" << true << "[None|*12;SX]";
    }

    void fillCombo()
    {
        QFETCH(QString, groups);
        QFETCH(bool, remainingInUse);
        dlgSelection selection(-1, nullptr);
        selection.comboGroups->addItem(QStringLiteral("left over"));
        QSignalSpy changes(&selection, &dlgSelection::signal_selectionComboChanged);
        DesignParameterRow row;
        row.groups = groupsOf(groups);
        selection.fillCombo(row, remainingInUse);
        QTEST(entriesText(selection.comboGroups), "entries");
        QCOMPARE(changes.count(), 0);
        // No entry may pass for the ids that mean "None" and "Remaining Groups" on leaving.
        for (int i = 0; i < selection.comboGroups->count(); ++i) {
            selection.comboGroups->setCurrentIndex(i);
            QVERIFY(selection.comboGroups->getCurrentId() != 0 && selection.comboGroups->getCurrentId() != 1);
        }
    }

    void userSteps_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("remaining groups taken, then given back") << "5||"
            << "at 1|entries|choose Remaining Groups|at 2|entries|at 1|choose None|at 2|entries|type 2"
            << "[*None|Remaining Groups] [*None] [*None|Remaining Groups] 5|None|None";
        QTest::newRow("the list entry changes nothing") << "-1|3,4" << "at 1|entries|choose None|choose 3;4|type 1"
            << "[None|*3;4] Remaining Groups|None";
        QTest::newRow("primary: checked, used, stale and secondary handed over") << "-1|3,99,SX|10"
            << "at 1|groups:filter:99 selectNone ok|type 1"
            << "{- 1|Slab bay A| / - 2|Slab bay B| / x 3|Slab bay C| / - 4|Slab bay D| / "
               "- 10|Edge beams|used in another row / - 11|Columns| / - 12|Walls| / x 99||not in the model / x "
               "SX||secondary group} [None|*3;SX] Remaining Groups|3;SX|10";
        QTest::newRow("primary: confirmed with nothing checked") << "-1|3,4" << "at 1|groups:selectNone ok|type 1"
            << "[*None] Remaining Groups|None";
        QTest::newRow("primary: cancelled") << "-1|3,4" << "at 1|groups:selectAll cancel|type 1"
            << "[None|*3;4] Remaining Groups|3;4";
        QTest::newRow("secondary: sorted behind the numbers") << "-1|3,4|EDGE"
            << "at 1|secondary:filter:SX selectAll ok|type 1"
            << "{- EDGE|Slab edge|used in another row / - SX|Strip over the support, x| / "
               "- SY|Strip over the support, y| / x 3||group, not secondary / x 4||group, not secondary} "
               "[None|*3;4;SX] Remaining Groups|3;4;SX|EDGE";
        QTest::newRow("no secondary groups in the model") << "-1|"
            << "at 1|entries|groups:filter:bay selectAll ok|type 1"
            << "[*None] buttonSekGroups off [None|*1;2;3;4] Remaining Groups|1;2;3;4";
        // clang-format on
    }

    // A result without "{" leaves out what the dialogs listed.
    void userSteps()
    {
        QFETCH(QString, rows);
        QFETCH(QString, steps);
        QFETCH(QString, result);
        const bool secondary = !QByteArray(QTest::currentDataTag()).startsWith("no secondary");
        std::unique_ptr<DesignParameter> page(makePage(
            rows, nullptr, secondary ? DemoSecondaryGroups::Included : DemoSecondaryGroups::LeftOut));
        QString got = run(steps);
        if (!result.contains(QLatin1Char('{')))
            got.remove(QRegularExpression(QStringLiteral("\\{[^}]*\\} ")));
        QCOMPARE(got, result);
    }

    void pickInModelTwice()
    {
        HostDialog host;
        makePage(QStringLiteral("-1|3,4|5"), &host);
        vkd_h_storeGroupPick(m_doc->index(), {99});
        QStringList seen;
        QString shown;
        GroupList list;
        auto look = [&] {
            if (!editor())
                clickCell(table(), 1, 0);
            seen << QStringLiteral("%1 %2")
                        .arg(host.reopenConnections())
                        .arg(entriesText(editor()->comboGroups));
        };
        for (const GroupList& pick : {GroupList{2, 1}, GroupList{11}}) {
            QTimer::singleShot(0, this, [&] {
                look();
                answerGroupDialog(&shown, QStringLiteral("pickInModel"));
                QTest::mouseClick(editor()->findChild<QPushButton*>(QStringLiteral("buttonGroups")),
                                  Qt::LeftButton);
            });
            QCOMPARE(host.exec(), 6);
            // Leaving for the pick forgot the older one.
            QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(m_doc->index(), list), -1);
            // The pick in the model view, stored as the host's pick does; shown again, the row
            // takes it over, once.
            vkd_h_storeGroupPick(m_doc->index(), pick);
        }
        QTimer::singleShot(0, &host, [&] {
            look();
            host.reject();
        });
        host.exec();
        QCOMPARE(seen.join(QLatin1String(", ")),
                 QStringLiteral("0 [None|*3;4], 1 [None|*1;2], 1 [None|*11]"));
    }

    // The combo and the page find a row's words by their text: in German too they must agree.
    void sharedGermanWords()
    {
        QTranslator german;
        QVERIFY(
            german.load(QCoreApplication::applicationDirPath() + QStringLiteral("/data/vkd_p_dll_de.qm")));
        for (const auto& [word, translated] :
             {std::pair{"None", "Keine"}, {"Remaining Groups", "Restliche Gruppen"}})
            for (const char* context : {"dlgSelection", "DesignParameter"})
                QCOMPARE(german.translate(context, word), QString::fromUtf8(translated));
    }
};

QTEST_MAIN(TestGroupSelection)
#include "tst_groupselection.moc"
