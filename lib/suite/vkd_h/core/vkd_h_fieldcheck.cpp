#include "vkd_h_fieldcheck.h"

#include "VKD_H_UnitLabel.h"
#include "vkd_h_numbertext.h"
#include "vkd_h_units.h"

#include <QCoreApplication>
#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
// Records hold floats: a stored limit such as 2π comes back a little beyond the double limit.
constexpr double kLimitTolerance = 1.0e-6;

struct DefaultLimits
{
    int code;
    double minimum;
    double maximum;
};

// In base units (docs/units.md). Wide enough for any structure, narrow enough to catch a value
// typed in the wrong unit or a damaged record.
const DefaultLimits kDefaultLimits[] = {
    {VKD_H_DIM_DIRECTION, -2.0 * kPi, 2.0 * kPi},
    {VKD_H_DIM_COORDINATE, -99999.0, 99999.0},
    {VKD_H_DIM_REINFORCEMENT, 0.0, 0.1},
    {VKD_H_DIM_BAR_DIAMETER, 0.0, 100.0},
    {VKD_H_DIM_DISTANCE, 0.0, 10.0},
    {VKD_H_DIM_CRACK_WIDTH, 0.0, 0.01},
    {VKD_H_DIM_STEEL_STRESS, 0.0, 2.0e6},
};

QString translate(const char* text)
{
    return QCoreApplication::translate("VKD_H_LineEdit", text);
}

bool beyond(double value, double limit, double sign)
{
    return sign * (value - limit) > kLimitTolerance * qMax(1.0, std::fabs(limit));
}

// A number in the user's unit, with the unit, as the refusal texts show limits.
QString withUnit(const StructLineEdit& d, double baseValue)
{
    const QString unit = vkd_h_fieldUnit(d);
    const QString number = vkd_h_getDimStringFromVal(baseValue, d.dimensionCode, -1);
    if (unit.isEmpty())
        return number;
    const VKD_H_Unit* known = vkd_h_unit(d.dimensionCode);
    return number + (known && !known->spaced && d.unitText.isEmpty() ? QString() : QStringLiteral(" ")) +
           unit;
}

} // namespace

StructLineEdit vkd_h_defaultLineEdit(int code)
{
    StructLineEdit d{VKD_H_LE_KIND_REAL,
                     code,
                     0.0,
                     99999.0,
                     -99999.0,
                     -99998.0,
                     VKD_H_LE_EMPTY_MEANS_NOT_SET,
                     QString(),
                     QStringLiteral(","),
                     QString(),
                     {}};
    for (const DefaultLimits& limits : kDefaultLimits)
        if (limits.code == code) {
            d.minimum = limits.minimum;
            d.maximum = limits.maximum;
        }
    return d;
}

VKD_H_FieldCheck vkd_h_checkFieldValue(const StructLineEdit& d, double value)
{
    VKD_H_FieldCheck check;
    if (!std::isfinite(value))
        check.problem = VKD_H_FieldCheck::NotFinite;
    else if (value <= d.notSetLimit)
        check.problem = d.flags & VKD_H_LE_EMPTY_MEANS_NOT_SET ? VKD_H_FieldCheck::NoProblem
                                                               : VKD_H_FieldCheck::ValueRequired;
    else if (beyond(value, d.maximum, 1.0) || beyond(value, d.minimum, -1.0))
        check.problem = VKD_H_FieldCheck::OutOfLimits;
    else if (d.kind == VKD_H_LE_KIND_INTEGER) {
        const double user = vkd_h_toUserUnit(value, d.dimensionCode);
        if (std::fabs(user - std::round(user)) > kLimitTolerance)
            check.problem = VKD_H_FieldCheck::NotWhole;
    }
    check.value = value <= d.notSetLimit ? VKD_H_NOT_SET : value;
    return check;
}

VKD_H_FieldCheck vkd_h_checkFieldText(const StructLineEdit& d, const QString& text)
{
    QString typed = text.trimmed();
    if (typed.isEmpty())
        return vkd_h_checkFieldValue(d, VKD_H_NOT_SET);
    for (QChar separator : d.decimalSeparators)
        typed.replace(separator, QLatin1Char('.'));
    double user = 0.0;
    if (!vkd_h_parseUserNumber(typed, &user)) {
        VKD_H_FieldCheck check;
        check.problem = VKD_H_FieldCheck::NotANumber;
        return check;
    }
    if (d.kind == VKD_H_LE_KIND_INTEGER && user != std::round(user)) {
        VKD_H_FieldCheck check;
        check.problem = VKD_H_FieldCheck::NotWhole;
        return check;
    }
    const double value = vkd_h_fromUserUnit(user, d.dimensionCode);
    VKD_H_FieldCheck check;
    check.value = value;
    // A typed number is a value even where it falls among the not-set values.
    if (beyond(value, d.maximum, 1.0) || beyond(value, d.minimum, -1.0))
        check.problem = VKD_H_FieldCheck::OutOfLimits;
    return check;
}

QString vkd_h_fieldText(const StructLineEdit& d, double value)
{
    if (!std::isfinite(value))
        return QString::number(value);
    if (value <= d.notSetLimit)
        return QString();
    if (d.kind == VKD_H_LE_KIND_INTEGER)
        return vkd_h_getDimStringFromVal(value, d.dimensionCode, 0);
    return vkd_h_getDimStringFromVal(value, d.dimensionCode, -1);
}

QString vkd_h_fieldUnit(const StructLineEdit& d)
{
    if (!d.unitText.isEmpty())
        return d.unitText;
    return VKD_H_UnitLabel::dimString(d.dimensionCode, VKD_H_UnitLabel::Bare);
}

QString vkd_h_fieldProblemText(const StructLineEdit& d, VKD_H_FieldCheck::Problem problem,
                               const QString& text)
{
    switch (problem) {
    case VKD_H_FieldCheck::NoProblem:
        return QString();
    case VKD_H_FieldCheck::NotANumber:
        return translate("\"%1\" is not a number.").arg(text.trimmed());
    case VKD_H_FieldCheck::NotWhole:
        return translate("\"%1\" is not a whole number.").arg(text.trimmed());
    case VKD_H_FieldCheck::ValueRequired:
        return translate("A value is required.");
    case VKD_H_FieldCheck::OutOfLimits:
        return translate("The value must lie between %1 and %2.")
            .arg(withUnit(d, d.minimum), withUnit(d, d.maximum));
    case VKD_H_FieldCheck::NotFinite:
        return translate("The stored value \"%1\" is not a number. Enter a value or empty the field.")
            .arg(text);
    }
    return QString();
}
