#include "rowtext.h"

#include "designrecord.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_UnitLabel.h>
#include <vkd_dbo.h>
#include <vkd_h_units.h>

#include <QCoreApplication>
#include <QStringList>

#include <cstring>
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

} // namespace

struct SummaryField
{
    float R::*member;
    int code;
};

// The two lines of a summary column, and whether the second line ends with a separator too.
struct SummaryLayout
{
    const SummaryField* first;
    int firstCount;
    const SummaryField* second;
    int secondCount;
    bool closing;
};

namespace {

constexpr SummaryField kDirections2[] = {{&R::rio, VKD_H_DIM_DIRECTION}, {&R::riu, VKD_H_DIM_DIRECTION}};
constexpr SummaryField kDirections4[] = {{&R::rio, VKD_H_DIM_DIRECTION},
                                         {&R::riu, VKD_H_DIM_DIRECTION},
                                         {&R::rioq, VKD_H_DIM_DIRECTION},
                                         {&R::riuq, VKD_H_DIM_DIRECTION}};
constexpr SummaryField kDistances4[] = {{&R::hio, VKD_H_DIM_DISTANCE},
                                        {&R::hiu, VKD_H_DIM_DISTANCE},
                                        {&R::hioq, VKD_H_DIM_DISTANCE},
                                        {&R::hiuq, VKD_H_DIM_DISTANCE}};
constexpr SummaryField kDistances6[] = {{&R::hio, VKD_H_DIM_DISTANCE},  {&R::hiu, VKD_H_DIM_DISTANCE},
                                        {&R::hioq, VKD_H_DIM_DISTANCE}, {&R::hiuq, VKD_H_DIM_DISTANCE},
                                        {&R::hioi, VKD_H_DIM_DISTANCE}, {&R::hiui, VKD_H_DIM_DISTANCE}};
constexpr SummaryField kUpperReinforcement[] = {{&R::dio, VKD_H_DIM_BAR_DIAMETER},
                                                {&R::aso, VKD_H_DIM_REINFORCEMENT},
                                                {&R::amo, VKD_H_DIM_REINFORCEMENT}};
constexpr SummaryField kLowerReinforcement[] = {{&R::diu, VKD_H_DIM_BAR_DIAMETER},
                                                {&R::asu, VKD_H_DIM_REINFORCEMENT},
                                                {&R::amu, VKD_H_DIM_REINFORCEMENT}};
constexpr SummaryField kUpperCrackWidths[] = {
    {&R::wko, VKD_H_DIM_CRACK_WIDTH}, {&R::wkoq, VKD_H_DIM_CRACK_WIDTH}, {&R::wkoi, VKD_H_DIM_CRACK_WIDTH}};
constexpr SummaryField kLowerCrackWidths[] = {
    {&R::wku, VKD_H_DIM_CRACK_WIDTH}, {&R::wkuq, VKD_H_DIM_CRACK_WIDTH}, {&R::wkui, VKD_H_DIM_CRACK_WIDTH}};
constexpr SummaryField kUpperStresses[] = {{&R::sigo, VKD_H_DIM_STEEL_STRESS},
                                           {&R::sigoq, VKD_H_DIM_STEEL_STRESS},
                                           {&R::sigoi, VKD_H_DIM_STEEL_STRESS}};
constexpr SummaryField kLowerStresses[] = {{&R::sigu, VKD_H_DIM_STEEL_STRESS},
                                           {&R::siguq, VKD_H_DIM_STEEL_STRESS},
                                           {&R::sigui, VKD_H_DIM_STEEL_STRESS}};

template <int N, int M>
SummaryLayout summary(const SummaryField (&first)[N], const SummaryField (&second)[M], bool closing)
{
    return {first, N, second, M, closing};
}

bool summarise(int column, int type, SummaryLayout& s)
{
    if (type <= 0 || type > 5)
        return false;
    switch (column) {
    case ColumnDirection:
        // No third-layer direction even for three layers, but the third-layer distances.
        if (type == 3)
            s = summary(kDirections4, kDistances6, true);
        else if (type == 2)
            s = summary(kDirections4, kDistances4, true);
        else
            s = summary(kDirections2, kDistances4, true);
        return true;
    case ColumnReinforcement:
        // Only the principal layer of each side, whatever the type.
        s = summary(kUpperReinforcement, kLowerReinforcement, false);
        return true;
    case ColumnCrackControl:
        // Crack widths for type 1 alone, steel stresses for all others; always three layers.
        if (type == 1)
            s = summary(kUpperCrackWidths, kLowerCrackWidths, true);
        else
            s = summary(kUpperStresses, kLowerStresses, true);
        return true;
    default:
        return false;
    }
}

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
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
    return RowTextMaker().text(row, column);
}

QString RowTextMaker::text(const DesignParameterRow& row, int column)
{
    if (column == ColumnSelection)
        return groupListText(row.groups);
    if (column == ColumnType)
        return typeName(row.record.type % 10);
    SummaryLayout s;
    if (!summarise(column, row.record.type, s))
        return QString();
    SummaryKey key{column, row.record.type, row.barData, {}};
    for (int i = 0; i < s.firstCount; ++i)
        key.bits[i] = bitsOf(row.record.*s.first[i].member);
    for (int i = 0; i < s.secondCount; ++i)
        key.bits[s.firstCount + i] = bitsOf(row.record.*s.second[i].member);
    auto kept = m_summaries.constFind(key);
    if (kept == m_summaries.constEnd())
        kept = m_summaries.insert(key, summary(row, s));
    return *kept;
}

bool RowTextMaker::SummaryKey::operator==(const SummaryKey& other) const
{
    return column == other.column && type == other.type && bars == other.bars &&
           std::memcmp(bits, other.bits, sizeof bits) == 0;
}

uint qHash(const RowTextMaker::SummaryKey& key, uint seed)
{
    return qHashBits(key.bits, sizeof key.bits, seed) ^ uint(key.column * 31 + key.type);
}

QString RowTextMaker::summary(const DesignParameterRow& row, const SummaryLayout& s)
{
    QString out;
    appendLine(out, row, s.first, s.firstCount);
    out += QLatin1Char('\n');
    appendLine(out, row, s.second, s.secondCount);
    if (s.closing)
        out += QLatin1String(" ;");
    return out;
}

void RowTextMaker::appendLine(QString& out, const DesignParameterRow& row, const SummaryField* fields,
                              int count)
{
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            out += QLatin1String(" ;");
        out += value(row, row.record.*fields[i].member, fields[i].code);
    }
}

const QString& RowTextMaker::value(const DesignParameterRow& row, float value, int code)
{
    if (code == VKD_H_DIM_BAR_DIAMETER) {
        const QPair<const void*, quint32> key(row.barData, bitsOf(value));
        auto it = m_bars.constFind(key);
        if (it == m_bars.constEnd())
            it = m_bars.insert(key, valueText(row, value, code, QString()));
        return *it;
    }
    const QPair<int, quint32> key(code, bitsOf(value));
    auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        it = m_values.insert(key, valueText(row, value, code, unit(code)));
    return *it;
}

const QString& RowTextMaker::unit(int code)
{
    auto it = m_units.constFind(code);
    if (it == m_units.constEnd())
        it = m_units.insert(code, VKD_H_UnitLabel::dimString(code, 0));
    return *it;
}

const QString& RowTextMaker::typeName(int type)
{
    auto it = m_typeNames.constFind(type);
    if (it == m_typeNames.constEnd()) {
        const char* name = designTypeName(type);
        it = m_typeNames.insert(type, name ? tr(name) : QString());
    }
    return *it;
}

} // namespace vkd::plib::design
