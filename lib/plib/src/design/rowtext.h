#pragma once
// The texts that the design parameter table shows for a row: one per column, up to two lines.
// For reading only; nothing parses them back.

#include "DesignParameterData.h"

#include <QString>

namespace vkd::plib::design {

enum DesignColumn
{
    ColumnSelection = 0,
    ColumnType = 1,
    ColumnDirection = 2,
    ColumnReinforcement = 3,
    ColumnCrackControl = 4
};

// Number of design types with a name (0 to 4) and the untranslated name of one; null outside.
constexpr int kDesignTypeCount = 5;
const char* designTypeName(int type);

// "None", "Remaining Groups", or the groups joined by ";" in the order of the list.
QString groupListText(const std::vector<int32_t>& groups);

QString rowText(const DesignParameterRow& row, int column);
// One value of a row: " - " when not set, the bar text for bar diameters (code 1023), else the
// number in the user's unit followed directly by unit.
QString valueText(const DesignParameterRow& row, float value, int code, const QString& unit);

} // namespace vkd::plib::design
