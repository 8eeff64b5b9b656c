#pragma once

#include <LoadcaseInformation.h>

#include <QString>

#include <vector>

namespace vkd::plib::widgetgraphicaloutput {

// A load case as a host's table holds it: the number as read from its cell and the title, empty
// where the table has none.
struct TableLoadcase
{
    double value = 0.0;
    QString title;
};

// "12 : Dead load"; without a title the number and one blank, "3.9 ". The number has six
// significant digits, so large ones come in exponent form: "1e+06 ".
QString loadcaseLabel(double value, const QString& title);
// The number cut towards zero, held within the range of int.
int loadcaseKey(double value);
// The rows of kind 1 in rising order of key; of cases with the same key the later one's label
// stands.
std::vector<LoadcaseInformation> loadcaseRows(const std::vector<TableLoadcase>& cases);

} // namespace vkd::plib::widgetgraphicaloutput
