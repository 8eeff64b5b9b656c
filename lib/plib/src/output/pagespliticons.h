#pragma once

#include <QImage>

namespace vkd::plib::widgetgraphicaloutput {

// The divisions of a sheet that the split variant offers, by the ids of its combo.
enum PageSplit : int
{
    PortraitWhole = 0,
    PortraitTwoRows = 1,
    PortraitTwoByTwo = 2,
    PortraitThreeRowsTwoColumns = 3,
    LandscapeWhole = 4,
    LandscapeTwoByTwo = 5,
};
constexpr int pageSplitCount = 6;

// The 32 by 32 picture of a division: the sheet's outline and division lines in blue, its
// shadow in dark blue, the rest white. A null image for an unknown id.
QImage pageSplitIcon(int id);

} // namespace vkd::plib::widgetgraphicaloutput
