#pragma once

#include <QString>

namespace vkd::plib::widgetgraphicaloutput {

// One load case row of the output tree. kind 1 rows hang under plots of load cases and
// combinations, kind 2 rows under plots of design cases and extremes. A name that begins with
// "a+b" asks for the plot of a overlaid with that of b.
struct LoadcaseInformation
{
    int kind = 0;
    int number = 0;
    QString name;
};

inline bool operator==(const LoadcaseInformation& a, const LoadcaseInformation& b)
{
    return a.kind == b.kind && a.number == b.number && a.name == b.name;
}

inline bool operator!=(const LoadcaseInformation& a, const LoadcaseInformation& b)
{
    return !(a == b);
}

} // namespace vkd::plib::widgetgraphicaloutput
