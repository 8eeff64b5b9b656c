#pragma once
// A catalogue and load case rows of the size of a large project, for the benchmarks of the
// output tree and the output page.

#include "catalogue.h"

#include <LoadcaseInformation.h>
#include <vkd_q.h>

#include <vector>

namespace bench {

using vkd::plib::widgetgraphicaloutput::LoadcaseInformation;

constexpr int plotsPerCaption = 10;
constexpr int captionsPerTop = 10;

// Plots that bind to the load cases, the first row checked, every tenth asking for a view.
inline void fillCatalogue(int plots)
{
    std::vector<GraphicalOutputRecord>& list = vkd::plib::widgetgraphicaloutput::catalogueList();
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
    vkd::plib::widgetgraphicaloutput::catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
}

inline std::vector<LoadcaseInformation> loadcases(int count)
{
    std::vector<LoadcaseInformation> rows;
    for (int i = 1; i <= count; ++i)
        rows.push_back({1, i, QStringLiteral("%1 : Load case %1").arg(i)});
    return rows;
}

} // namespace bench
