// The output tree at the size of a large project: plots with hundreds of load case rows each.
// Usage: bench_outputtree [plots [rows per plot]], by default 300 plots of 500 rows.

#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "outputtreeicons.h"

#include <VKD_H_PluginParameter.h>
#include <vkd_q.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTreeWidget>

#include <cstdio>
#include <functional>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

constexpr int plotsPerCaption = 10;
constexpr int captionsPerTop = 10;

// Plots that bind to the load cases, the first row checked, every tenth asking for a view.
void fillCatalogue(int plots)
{
    std::vector<GraphicalOutputRecord>& list = catalogueList();
    list.clear();
    for (int i = 0; i < plots; ++i) {
        GraphicalOutputRecord r;
        r.prog1 = 1;
        const int caption = i / plotsPerCaption;
        const int top = caption / captionsPerTop;
        r.title1 = QStringLiteral("Results %1").arg(top);
        r.title2 = QStringLiteral("Element group %1").arg(caption);
        r.title3 = QStringLiteral("Plot %1").arg(i);
        r.id1 = QStringLiteral("%1").arg(top, 7);
        r.id2 = QStringLiteral("%1").arg(caption, 7);
        r.id3 = QStringLiteral("%1").arg(i, 7);
        r.contentTag = QStringLiteral("All");
        r.caseWord = QStringLiteral("last-l");
        r.ctrl = 1;
        r.rowClass = 1;
        r.rowMark = 1;
        r.preselect = 1;
        r.viewKind = i % 10 == 0 ? 3 : 0;
        r.scriptGerman = QStringLiteral("QUAD SCHN M%1 ISOL $(FILLI)").arg(i);
        r.scriptEnglish = QStringLiteral("QUAD FORC M%1 ISOL $(FILLI)").arg(i);
        list.push_back(r);
    }
    catalogueLanguage = vkd_lib_getvalue(102);
}

// The same items in a plain tree, built the cheapest way Qt offers: texts, check boxes and
// icons, each top level subtree made before it enters the view.
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
        for (const LoadcaseInformation& info : rows) {
            auto* row = new QTreeWidgetItem(QStringList(info.name));
            row->setCheckState(0, Qt::Unchecked);
            row->setIcon(0, rowPicture);
            children << row;
        }
        plot->addChildren(children);
    }
    tree.addTopLevelItems(tops);
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

int itemCount(const QTreeWidgetItem* item)
{
    int n = 1;
    for (int i = 0; i < item->childCount(); ++i)
        n += itemCount(item->child(i));
    return n;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int plots = argc > 1 ? atoi(argv[1]) : 300;
    const int rowsPerPlot = argc > 2 ? atoi(argv[2]) : 500;
    if (plots <= 0 || rowsPerPlot < 0) {
        std::fprintf(stderr, "usage: %s [plots [rows per plot]]\n", argv[0]);
        return 2;
    }
    fillCatalogue(plots);
    std::vector<LoadcaseInformation> rows;
    for (int i = 1; i <= rowsPerPlot; ++i)
        rows.push_back({1, i, QStringLiteral("%1 : Load case %1").arg(i)});

    // The baseline twice, so that the second build also clears the first, as a rebuild does.
    QTreeWidget bare;
    bareBuild(bare, rows);
    const double baseline = milliseconds([&] { bareBuild(bare, rows); });

    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(rows);
    int items = 0;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        items += itemCount(tree.topLevelItem(i));

    struct Figure
    {
        const char* what;
        double ms;
    };
    std::vector<Figure> figures;
    figures.push_back({"rebuild with defaults", milliseconds([&] { tree.rebuild(true); })});
    // Every other plot fully checked; the rest keep their first row, so they are stored by
    // number.
    int plotIndex = 0;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        for (int j = 0; j < tree.topLevelItem(i)->childCount(); ++j)
            for (int k = 0; k < tree.topLevelItem(i)->child(j)->childCount(); ++k)
                if (plotIndex++ % 2 == 0)
                    tree.topLevelItem(i)->child(j)->child(k)->setCheckState(0, Qt::Checked);
    QString text;
    figures.push_back({"selection text", milliseconds([&] { text = tree.selectionText(); })});
    figures.push_back({"apply selection", milliseconds([&] { tree.applySelection(text); })});
    figures.push_back({"rebuild keeping the choice", milliseconds([&] { tree.rebuild(false); })});
    std::vector<QString> lines;
    figures.push_back({"script lines", milliseconds([&] { tree.collectScriptLines(lines, true); })});
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        tree.topLevelItem(i)->setCheckState(0, Qt::Checked);
    figures.push_back(
        {"script lines, all checked", milliseconds([&] { tree.collectScriptLines(lines, true); })});

    std::printf("output tree: %d plots, %d rows each, %d items\n", plots, rowsPerPlot, items);
    std::printf("%-30s %10.1f ms\n", "baseline: bare build", baseline);
    for (const Figure& f : figures)
        std::printf("%-30s %10.1f ms   ratio %5.2f   %6.2f us per item\n", f.what, f.ms, f.ms / baseline,
                    1000.0 * f.ms / items);
    std::printf("script lines: %zu\n", lines.size());
    return 0;
}
