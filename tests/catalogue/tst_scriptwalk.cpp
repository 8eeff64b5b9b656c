// Which rows the script lines come from when the tree's states were set without its automatic
// update: a plot's own state then says nothing about its rows.
#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "testsupport.h"

#include <VKD_H_PluginParameter.h>
#include <vkd_q.h>

#include <QtTest>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// Two plots with load case rows under one caption, and one without rows.
const QByteArray catalogue = "1|122|0|T|C|a|All|0|last-l|0|0| |0|BILD A|PICT A\n"
                             "1|122|0|T|C|b|All|0|last-l|0|0| |0|BILD B|PICT B\n"
                             "1|122|0|T|C|c|All|0|none|0|0| |0|BILD C|PICT C\n";

} // namespace

class TestScriptWalk : public QObject
{
    Q_OBJECT
private slots:
    void rowsByTheirOwnStates_data();
    void rowsByTheirOwnStates();
};

void TestScriptWalk::rowsByTheirOwnStates_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("unchecked");
    QTest::addColumn<QString>("expected");

    // Paths are plot.row under the one caption; a plot alone is plot.
    QTest::newRow("automatic: a checked plot gives all its rows")
        << true << "0"
        << ""
        << "LC 1 DESI 1\nPICT A\nLC 2 DESI 2\nPICT A\n";
    QTest::newRow("automatic: one row of a plot") << true << "1.1"
                                                  << ""
                                                  << "LC 2 DESI 2\nPICT B\n";
    QTest::newRow("by hand: a row under an unchecked plot") << false << "1.1"
                                                            << ""
                                                            << "LC 2 DESI 2\nPICT B\n";
    QTest::newRow("by hand: a plot checked, one row unchecked") << false << "0"
                                                                << "0.0"
                                                                << "LC 2 DESI 2\nPICT A\n";
    QTest::newRow("by hand: the plot without rows under an unchecked caption") << false << "2"
                                                                               << ""
                                                                               << "PICT C\n";
}

void TestScriptWalk::rowsByTheirOwnStates()
{
    QFETCH(bool, automatic);
    QFETCH(QString, checked);
    QFETCH(QString, unchecked);
    QFETCH(QString, expected);
    catalogueList() = parseText(catalogue);
    catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames({{1, 1, "1: r1"}, {1, 2, "2: r2"}});
    QTreeWidgetItem* caption = tree.topLevelItem(0)->child(0);
    for (int i = 0; i < caption->childCount(); ++i)
        caption->child(i)->setCheckState(0, Qt::Unchecked);
    tree.setAutomaticCheckStateUpdate(automatic);
    auto at = [caption](const QString& path) {
        const QStringList parts = path.split(QLatin1Char('.'));
        QTreeWidgetItem* item = caption->child(parts[0].toInt());
        return parts.size() > 1 ? item->child(parts[1].toInt()) : item;
    };
    // A plot checked by hand carries nothing down either.
    if (!checked.isEmpty())
        at(checked)->setCheckState(0, Qt::Checked);
    if (!checked.isEmpty() && !automatic && at(checked)->childCount() > 0)
        for (int i = 0; i < at(checked)->childCount(); ++i)
            at(checked)->child(i)->setCheckState(0, Qt::Checked);
    if (!unchecked.isEmpty())
        at(unchecked)->setCheckState(0, Qt::Unchecked);
    std::vector<QString> lines;
    tree.collectScriptLines(lines, true);
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    QCOMPARE(text, expected);
}

QTEST_MAIN(TestScriptWalk)
#include "tst_scriptwalk.moc"
