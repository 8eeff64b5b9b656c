// The output tree at the size of a large project: plots with hundreds of load case rows each.
// Usage: bench_outputtree [--quick] [--json] [--runs N] [plots [rows per plot]], by default 300
// plots of 500 rows. With --memory-of tree|bare it builds once and prints the peak memory.

#include "GraphicalOutputTreeWidget.h"
#include "benchcatalogue.h"
#include "benchharness.h"
#include "catalogue.h"
#include "outputtreeicons.h"

#include <VKD_H_PluginParameter.h>
#include <vkd_q.h>

#include <QApplication>
#include <QProcess>
#include <QTreeWidget>

#include <cstdio>
#include <cstring>

using namespace vkd::plib::widgetgraphicaloutput;
using bench::fillCatalogue;
using bench::loadcases;

namespace {

// The same items in a plain tree, built the cheapest way Qt offers: texts, check boxes and
// icons, each top level subtree made before it enters the view, a plot's rows listed in one block
// without a string list per row.
void bareBuild(QTreeWidget& tree, const std::vector<LoadcaseInformation>& rows)
{
    tree.clear();
    const std::vector<GraphicalOutputRecord>& list = catalogueList();
    const QIcon plotPicture = plotIcon();
    const QIcon rowPicture = rowIcon(1);
    QList<QTreeWidgetItem*> tops;
    QTreeWidgetItem* top = nullptr;
    QTreeWidgetItem* caption = nullptr;
    for (const GraphicalOutputRecord& r : list) {
        if (!top || top->text(0) != r.title1) {
            top = new QTreeWidgetItem(QStringList(r.title1));
            top->setCheckState(0, Qt::Unchecked);
            tops << top;
            caption = nullptr;
        }
        if (!caption || caption->text(0) != r.title2) {
            caption = new QTreeWidgetItem(top, QStringList(r.title2));
            caption->setCheckState(0, Qt::Unchecked);
        }
        auto* plot = new QTreeWidgetItem(caption, QStringList(r.title3));
        plot->setCheckState(0, Qt::Unchecked);
        plot->setIcon(0, plotPicture);
        QList<QTreeWidgetItem*> children;
        children.reserve(int(rows.size()));
        for (const LoadcaseInformation& info : rows) {
            auto* row = new QTreeWidgetItem;
            row->setText(0, info.name);
            row->setCheckState(0, Qt::Unchecked);
            row->setIcon(0, rowPicture);
            children << row;
        }
        plot->addChildren(children);
    }
    tree.addTopLevelItems(tops);
}

int itemCount(const QTreeWidgetItem* item)
{
    int n = 1;
    for (int i = 0; i < item->childCount(); ++i)
        n += itemCount(item->child(i));
    return n;
}

void forEachItem(QTreeWidget& tree, const std::function<void(QTreeWidgetItem*)>& visit)
{
    std::function<void(QTreeWidgetItem*)> walk = [&](QTreeWidgetItem* item) {
        visit(item);
        for (int i = 0; i < item->childCount(); ++i)
            walk(item->child(i));
    };
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        walk(tree.topLevelItem(i));
}

std::vector<QTreeWidgetItem*> plotsOf(QTreeWidget& tree)
{
    std::vector<QTreeWidgetItem*> plots;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        for (int j = 0; j < tree.topLevelItem(i)->childCount(); ++j)
            for (int k = 0; k < tree.topLevelItem(i)->child(j)->childCount(); ++k)
                plots.push_back(tree.topLevelItem(i)->child(j)->child(k));
    return plots;
}

// Every other plot fully checked, the rest with every other row: a choice that names plots
// and rows.
void mixedChoice(QTreeWidget& tree)
{
    const std::vector<QTreeWidgetItem*> plots = plotsOf(tree);
    for (size_t p = 0; p < plots.size(); ++p) {
        if (p % 2 == 0) {
            plots[p]->setCheckState(0, Qt::Checked);
            continue;
        }
        for (int r = 0; r < plots[p]->childCount(); ++r)
            plots[p]->child(r)->setCheckState(0, r % 2 ? Qt::Checked : Qt::Unchecked);
    }
}

// The growth of peak memory while one tree is built, in kB: run in a process of its own so
// that neither build sees the other's freed memory.
int printMemoryOf(const char* which, int plots, int rowsPerPlot)
{
    fillCatalogue(plots);
    const std::vector<LoadcaseInformation> rows = loadcases(rowsPerPlot);
    const long before = bench::statusKiB("VmRSS");
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    QTreeWidget bare;
    if (!std::strcmp(which, "tree"))
        tree.setUsedNumbersAndNames(rows);
    else
        bareBuild(bare, rows);
    std::printf("%ld\n", bench::statusKiB("VmHWM") - before);
    return 0;
}

double memoryOf(const char* which, int plots, int rowsPerPlot)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--memory-of"), QString::fromLatin1(which), QString::number(plots),
                 QString::number(rowsPerPlot)});
    if (!child.waitForFinished(-1) || child.exitCode() != 0)
        return 0.0;
    return child.readAllStandardOutput().trimmed().toDouble() / 1024.0;
}

// Restoring a choice that names rows one by one, under plots of many or of few rows.
double restoreRowByRow(bench::Harness& harness, int plots, int rowsPerPlot)
{
    fillCatalogue(plots);
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(loadcases(rowsPerPlot));
    for (QTreeWidgetItem* plot : plotsOf(tree))
        for (int r = 0; r < plot->childCount(); ++r)
            plot->child(r)->setCheckState(0, r % 2 ? Qt::Checked : Qt::Unchecked);
    const QString text = tree.selectionText();
    std::vector<double> times;
    for (int run = 0; run < harness.runs(); ++run)
        times.push_back(bench::milliseconds([&] { tree.applySelection(text); }));
    return bench::median(times);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc == 5 && !std::strcmp(argv[1], "--memory-of"))
        return printMemoryOf(argv[2], atoi(argv[3]), atoi(argv[4]));

    bench::Harness harness("output tree", argc, argv);
    const auto& rest = harness.rest();
    const int plots = rest.size() > 0 ? atoi(rest[0]) : harness.size(300, 10);
    const int rowsPerPlot = rest.size() > 1 ? atoi(rest[1]) : harness.size(500, 20);
    if (plots <= 0 || rowsPerPlot < 0) {
        std::fprintf(stderr, "usage: %s [--quick] [--json] [--runs N] [plots [rows per plot]]\n", argv[0]);
        return 2;
    }
    fillCatalogue(plots);
    const std::vector<LoadcaseInformation> rows = loadcases(rowsPerPlot);

    QTreeWidget bare;
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(rows);
    int items = 0;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        items += itemCount(tree.topLevelItem(i));
    const QString size = QStringLiteral("%1 x %2, %3 items").arg(plots).arg(rowsPerPlot).arg(items);
    const QString bareText = QStringLiteral("bare build of the same items");

    // Each bare build also clears the one before, as a rebuild does.
    const auto bareWork = [&] { bareBuild(bare, rows); };
    harness.compare(
        {QStringLiteral("rebuild(true)"), size, bareText, [&] { tree.rebuild(true); }, bareWork, 1.25});

    mixedChoice(tree);
    tree.applySelection(tree.selectionText());
    harness.compare({QStringLiteral("rebuild keeping the choice"), size, bareText,
                     [&] { tree.rebuild(false); }, bareWork, 1.5});

    bareBuild(bare, rows);
    mixedChoice(bare);
    std::vector<Qt::CheckState> states;
    harness.compare(
        {QStringLiteral("selectionText + applySelection"), size,
         QStringLiteral("one walk reading, one setting check states"),
         [&] { tree.applySelection(tree.selectionText()); },
         [&] {
             states.clear();
             forEachItem(bare, [&](QTreeWidgetItem* item) { states.push_back(item->checkState(0)); });
             size_t i = 0;
             forEachItem(bare, [&](QTreeWidgetItem* item) { item->setCheckState(0, states[i++]); });
         },
         1.5});

    const int restoredRows = harness.size(60000, 600);
    const double fewPlots = restoreRowByRow(harness, 3, restoredRows / 3);
    const double manyPlots = restoreRowByRow(harness, 60, restoredRows / 60);
    harness.report(QStringLiteral("restore a choice row by row"),
                   QStringLiteral("%1 rows under 3 plots").arg(restoredRows),
                   QStringLiteral("the same under 60 plots"), fewPlots, manyPlots, "ms", 2.0);

    const double ourMemory = memoryOf("tree", plots, rowsPerPlot);
    const double bareMemory = memoryOf("bare", plots, rowsPerPlot);
    harness.report(QStringLiteral("peak memory of the built tree"), size,
                   QStringLiteral("the bare build, each in a process of its own"), ourMemory, bareMemory,
                   "MB", 1.25, 1);
    return harness.finish();
}
