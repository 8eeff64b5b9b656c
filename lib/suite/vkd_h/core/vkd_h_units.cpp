#include "vkd_h_units.h"
#include "VKD_H_UnitLabel.h"

#include <algorithm>

namespace {

constexpr double kPi = 3.14159265358979323846;

// Base units kN, m, rad; bar diameters are bar values (millimetres) of the bar table.
const VKD_H_Unit kUnits[] = {
    {VKD_H_DIM_DIRECTION, 180.0 / kPi, 2, "\u00B0", false},
    {VKD_H_DIM_COORDINATE, 1.0, 3, "m", true},
    {VKD_H_DIM_REINFORCEMENT, 1.0e4, 2, "cm\u00B2/m", true},
    {VKD_H_DIM_BAR_DIAMETER, 1.0, 1, "mm", true},
    {VKD_H_DIM_DISTANCE, 100.0, 1, "cm", true},
    {VKD_H_DIM_CRACK_WIDTH, 1000.0, 2, "mm", true},
    {VKD_H_DIM_STEEL_STRESS, 1.0e-3, 1, "MPa", true},
};

} // namespace

const VKD_H_Unit* vkd_h_unit(int code)
{
    for (const VKD_H_Unit& unit : kUnits)
        if (unit.code == code)
            return &unit;
    return nullptr;
}

double vkd_h_toUserUnit(double baseValue, int code)
{
    const VKD_H_Unit* unit = vkd_h_unit(code);
    return unit ? baseValue * unit->factor : baseValue;
}

double vkd_h_fromUserUnit(double userValue, int code)
{
    const VKD_H_Unit* unit = vkd_h_unit(code);
    return unit ? userValue / unit->factor : userValue;
}

QString vkd_h_formatNumber(double value, int decimals)
{
    QString text = QString::number(value, 'f', qMax(0, decimals));
    // "-0.00" would tell the user of a sign that the shown digits do not carry.
    if (text.startsWith(QLatin1Char('-')) && std::none_of(text.cbegin(), text.cend(), [](QChar c) {
            return c >= QLatin1Char('1') && c <= QLatin1Char('9');
        }))
        text.remove(0, 1);
    return text;
}

QString vkd_h_getDimStringFromVal(double value, int code, int decimals)
{
    const VKD_H_Unit* unit = vkd_h_unit(code);
    if (!unit)
        return decimals >= 0 ? vkd_h_formatNumber(value, decimals) : QString::number(value, 'g', 6);
    return vkd_h_formatNumber(value * unit->factor, decimals >= 0 ? decimals : unit->decimals);
}

QString VKD_H_UnitLabel::dimString(int code, int form)
{
    const VKD_H_Unit* unit = vkd_h_unit(code);
    if (!unit || !*unit->label)
        return QString();
    const QString label = QString::fromUtf8(unit->label);
    return form == BehindNumber && unit->spaced ? QLatin1Char(' ') + label : label;
}
