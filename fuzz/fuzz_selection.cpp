// Any text as the kept choice of the output tree, applied to the tree of the shipped catalogue on
// the demo project (plots with load case rows). The choice the tree then shows, written out and
// applied again, must come back unchanged.
#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "demomodel.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

struct DemoTree
{
    DemoTree()
    {
        doc = std::make_unique<VKD_H_ZOBDoc>(dir.filePath(QStringLiteral("demo.vkd")));
        if (!doc->isValid())
            std::abort();
        writeDemoModel(doc->index());
        std::vector<LoadcaseInformation> rows;
        for (const auto& lc :
             vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(doc->index(), vkd::dbo::KeyLoadCases))
            rows.push_back({lc.kind == 4 ? 2 : 1, lc.number, QString::number(lc.number)});
        parameter = std::make_unique<VKD_H_PluginParameter>(doc.get());
        tree = std::make_unique<GraphicalOutputTreeWidget>(nullptr, 1, parameter.get(), "m_list");
        tree->setUsedNumbersAndNames(rows);
        // Without the shipped catalogue every input would meet an empty tree.
        if (catalogueList().empty() || tree->topLevelItemCount() < 2) {
            std::fprintf(stderr, "fuzz_selection: the shipped catalogue was not found beside the program\n");
            std::abort();
        }
    }
    int argc = 1;
    char name[8] = "fuzz";
    char* argv[2] = {name, nullptr};
    QApplication app{argc, argv};
    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
    std::unique_ptr<VKD_H_PluginParameter> parameter;
    std::unique_ptr<GraphicalOutputTreeWidget> tree;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static DemoTree demo;
    GraphicalOutputTreeWidget& tree = *demo.tree;
    tree.applySelection(QString::fromUtf8(reinterpret_cast<const char*>(data), int(size)));
    const QString shown = tree.selectionText();
    tree.applySelection(shown);
    if (tree.selectionText() != shown) {
        std::fprintf(stderr, "choice changed when applied again:\n%s\n", qPrintable(shown));
        std::abort();
    }
    return 0;
}
