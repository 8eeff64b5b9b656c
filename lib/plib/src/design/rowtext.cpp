#include "rowtext.h"

#include "designrecord.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_UnitLabel.h>
#include <vkd_dbo.h>
#include <vkd_h_units.h>

#include <QCoreApplication>
#include <QStringList>

#include <initializer_list>
#include <vector>

namespace vkd::plib::design {

namespace {

using R = tagZOB_QUAD_RIM;

const char* const kTypeNames[kDesignTypeCount] = {
    QT_TRANSLATE_NOOP("DesignParameter", "No design"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers (orthogonal)"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Three Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Circular"),
};

QString tr(const char* text)
{
    return QCoreApplication::translate("DesignParameter", text);
}

struct Field
{
    float R::*member;
    int code;
};
using Line = std::vector<Field>;

Line line(std::initializer_list<float R::*> members, int code)
{
    Line l;
    for (auto m : members)
        l.push_back({m, code});
    return l;
}

// The two lines of a summary column, and whether the second line ends with a separator too.
struct Summary
{
    Line first;
    Line second;
    bool closing;
};

bool summarise(int column, int type, Summary& s)
{
    if (type <= 0 || type > 5)
        return false;
    switch (column) {
    case ColumnDirection:
        if (type == 2 || type == 3)
            s.first = line({&R::rio, &R::riu, &R::rioq, &R::riuq}, VKD_H_DIM_DIRECTION);
        else
            s.first = line({&R::rio, &R::riu}, VKD_H_DIM_DIRECTION);
        // No third-layer direction even for three layers, but the third-layer distances.
        if (type == 3)
            s.second = line({&R::hio, &R::hiu, &R::hioq, &R::hiuq, &R::hioi, &R::hiui}, VKD_H_DIM_DISTANCE);
        else
            s.second = line({&R::hio, &R::hiu, &R::hioq, &R::hiuq}, VKD_H_DIM_DISTANCE);
        s.closing = true;
        return true;
    case ColumnReinforcement:
        // Only the principal layer of each side, whatever the type.
        s.first = {{&R::dio, VKD_H_DIM_BAR_DIAMETER},
                   {&R::aso, VKD_H_DIM_REINFORCEMENT},
                   {&R::amo, VKD_H_DIM_REINFORCEMENT}};
        s.second = {{&R::diu, VKD_H_DIM_BAR_DIAMETER},
                    {&R::asu, VKD_H_DIM_REINFORCEMENT},
                    {&R::amu, VKD_H_DIM_REINFORCEMENT}};
        s.closing = false;
        return true;
    case ColumnCrackControl:
        // Crack widths for type 1 alone, steel stresses for all others; always three layers.
        if (type == 1) {
            s.first = line({&R::wko, &R::wkoq, &R::wkoi}, VKD_H_DIM_CRACK_WIDTH);
            s.second = line({&R::wku, &R::wkuq, &R::wkui}, VKD_H_DIM_CRACK_WIDTH);
        } else {
            s.first = line({&R::sigo, &R::sigoq, &R::sigoi}, VKD_H_DIM_STEEL_STRESS);
            s.second = line({&R::sigu, &R::siguq, &R::sigui}, VKD_H_DIM_STEEL_STRESS);
        }
        s.closing = true;
        return true;
    default:
        return false;
    }
}

QString lineText(const DesignParameterRow& row, const Line& fields)
{
    QStringList parts;
    for (const Field& f : fields)
        parts << valueText(row, row.record.*f.member, f.code, VKD_H_UnitLabel::dimString(f.code, 0));
    return parts.join(QStringLiteral(" ;"));
}

} // namespace

const char* designTypeName(int type)
{
    return type >= 0 && type < kDesignTypeCount ? kTypeNames[type] : nullptr;
}

QString groupListText(const std::vector<int32_t>& groups)
{
    if (groups.empty())
        return tr(QT_TRANSLATE_NOOP("DesignParameter", "None"));
    if (groups.size() == 1 && groups.front() == -1)
        return tr(QT_TRANSLATE_NOOP("DesignParameter", "Remaining Groups"));
    QStringList parts;
    for (int32_t v : groups)
        parts << (v < vkd::dbo::kFirstSecondaryGroup ? QStringLiteral("%1").arg(v, 0, 10, QChar(' '))
                                                     : vkd::dbo::secondaryGroupName(v));
    return parts.join(QLatin1Char(';'));
}

QString valueText(const DesignParameterRow& row, float value, int code, const QString& unit)
{
    if (value == kNotSet)
        return QStringLiteral(" - ");
    if (code == VKD_H_DIM_BAR_DIAMETER)
        return row.barData ? row.barData->getString(value) : QString();
    return vkd_h_getDimStringFromVal(value, code, -1) + unit;
}

QString rowText(const DesignParameterRow& row, int column)
{
    if (column == ColumnSelection)
        return groupListText(row.groups);
    if (column == ColumnType) {
        const char* name = designTypeName(row.record.type % 10);
        return name ? tr(name) : QString();
    }
    Summary s;
    if (!summarise(column, row.record.type, s))
        return QString();
    return lineText(row, s.first) + QLatin1Char('\n') + lineText(row, s.second) +
           (s.closing ? QStringLiteral(" ;") : QString());
}

} // namespace vkd::plib::design
