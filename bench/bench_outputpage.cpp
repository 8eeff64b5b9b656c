// The output page of a large project: its script with every row chosen, and a host table of load
// cases that reports a change which leaves the rows as they are.
// Usage: bench_outputpage [--quick] [--json] [--runs N]

#include "GraphicalOutputTreeWidget.h"
#include "benchcatalogue.h"
#include "benchharness.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>
#include <VKD_P_WidgetGraphicalOutput.h>

#include <QApplication>
#include <QStringList>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

std::unique_ptr<VKD_P_WidgetGraphicalOutput> newPage(VKD_H_PluginParameter& parameter)
{
    return std::make_unique<VKD_P_WidgetGraphicalOutput>(nullptr, GraphicalOutputStandard, &parameter);
}

GraphicalOutputTreeWidget* treeOf(VKD_P_WidgetGraphicalOutput& page)
{
    return page.findChild<GraphicalOutputTreeWidget*>(QStringLiteral("m_list"));
}

// The rows below item with a check state other than unchecked, each one's text read.
int readRows(QTreeWidgetItem* item)
{
    int count = 0;
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (child->childCount() > 0)
            count += readRows(child);
        else if (child->checkState(0) != Qt::Unchecked)
            count += child->text(0).isEmpty() ? 0 : 1;
    }
    return count;
}

void scriptOfAllRows(bench::Harness& harness, int plots, int rowsPerPlot)
{
    bench::fillCatalogue(plots);
    VKD_H_PluginParameter parameter;
    const auto page = newPage(parameter);
    page->setUsedNumbersAndNames(bench::loadcases(rowsPerPlot));
    GraphicalOutputTreeWidget* tree = treeOf(*page);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        tree->topLevelItem(i)->setCheckState(0, Qt::Checked);
    const QString expected = page->getTORVAL(true);
    const QStringList lines = expected.split(QLatin1Char('\n'));
    QString script;
    QString joined;
    harness.compare({QStringLiteral("getTORVAL, all rows checked"),
                     QStringLiteral("%1 x %2, %3 lines").arg(plots).arg(rowsPerPlot).arg(lines.size()),
                     QStringLiteral("concatenating the same lines"), [&] { script = page->getTORVAL(true); },
                     [&] {
                         joined.clear();
                         for (int i = 0; i < lines.size(); ++i) {
                             if (i > 0)
                                 joined += QLatin1Char('\n');
                             joined += lines.at(i);
                         }
                     },
                     1.5});
    if (script != expected || joined != expected)
        std::fprintf(stderr, "the script of a run differs from the first\n");

    // Not a target: how much of the script is the walk over the tree's items alone.
    int texts = 0;
    harness.compare({QStringLiteral("getTORVAL, all rows checked"),
                     QStringLiteral("%1 x %2 tree").arg(plots).arg(rowsPerPlot),
                     QStringLiteral("reading every row's check state and text, nothing written"),
                     [&] { script = page->getTORVAL(true); },
                     [&] {
                         texts = 0;
                         for (int i = 0; i < tree->topLevelItemCount(); ++i)
                             texts += readRows(tree->topLevelItem(i));
                     },
                     0.0});
    if (texts == 0)
        std::fprintf(stderr, "the walk read no text\n");
}

// A table as a host keeps it: check box, number, title.
void fillTable(VKD_H_TableWidget& table, int rows)
{
    table.setRowCount(rows);
    for (int r = 0; r < rows; ++r) {
        table.setItem(r, 0, new VKD_H_TwSimpleCheckBoxItem(true));
        table.setItem(r, 1, new VKD_H_TwSimpleLineEditItem(QString::number(r + 1)));
        table.setItem(r, 2, new QTableWidgetItem(QStringLiteral("Load case %1").arg(r + 1)));
    }
}

void unchangedTable(bench::Harness& harness, int tableRows)
{
    // Few plots: the tree's size does not matter when nothing is rebuilt.
    bench::fillCatalogue(3);
    VKD_H_PluginParameter parameter;
    const auto page = newPage(parameter);
    VKD_H_TableWidget table(0, 3);
    fillTable(table, tableRows);
    VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
    binding.setWidgets(page.get(), &table, 1, 0, 2);
    binding.reset();
    int rebuilds = 0;
    QObject::connect(treeOf(*page)->model(), &QAbstractItemModel::modelReset, [&rebuilds] { ++rebuilds; });
    struct Cell
    {
        double number;
        QString title;
    };
    std::vector<Cell> cells;
    harness.compare({QStringLiteral("TableWidgetData::reset, unchanged"),
                     QStringLiteral("table of %1 rows").arg(tableRows),
                     QStringLiteral("reading the same cells once"), [&] { binding.reset(); },
                     [&] {
                         cells.clear();
                         for (int r = 0; r < table.rowCount(); ++r) {
                             const auto* check = dynamic_cast<VKD_H_TwSimpleCheckBoxItem*>(table.item(r, 0));
                             const auto* number = dynamic_cast<VKD_H_TwSimpleLineEditItem*>(table.item(r, 1));
                             if (check && check->isChecked() && number)
                                 cells.push_back({number->getVal(nullptr), table.item(r, 2)->text()});
                         }
                     },
                     1.5});
    if (rebuilds != 0)
        std::fprintf(stderr, "an unchanged table rebuilt the tree %d times\n", rebuilds);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    bench::Harness harness("output page", argc, argv);
    scriptOfAllRows(harness, harness.size(300, 10), harness.size(500, 20));
    unchangedTable(harness, harness.size(10000, 100));
    return harness.finish();
}
