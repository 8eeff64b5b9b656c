#include "loadcaserows.h"

#include <cmath>
#include <limits>
#include <map>

namespace vkd::plib::widgetgraphicaloutput {

QString loadcaseLabel(double value, const QString& title)
{
    const QString titlePart = title.isEmpty() ? QString() : QStringLiteral(": ") + title;
    return QStringLiteral("%1 %2").arg(QString::number(value, 'g', 6), titlePart);
}

int loadcaseKey(double value)
{
    if (std::isnan(value))
        return 0;
    const double cut = std::trunc(value);
    if (cut >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (cut <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(cut);
}

std::vector<LoadcaseInformation> loadcaseRows(const std::vector<TableLoadcase>& cases)
{
    std::map<int, QString> labels;
    for (const TableLoadcase& c : cases)
        labels[loadcaseKey(c.value)] = loadcaseLabel(c.value, c.title);
    std::vector<LoadcaseInformation> rows;
    rows.reserve(labels.size());
    for (const auto& [key, label] : labels)
        rows.push_back({1, key, label});
    return rows;
}

} // namespace vkd::plib::widgetgraphicaloutput
