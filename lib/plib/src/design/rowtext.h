#pragma once
// The texts that the design parameter table shows for a row: one per column, up to two lines.
// For reading only; nothing parses them back.

#include "DesignParameterData.h"

#include <QHash>
#include <QPair>
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

struct SummaryField;
struct SummaryLayout;

// Makes the texts of many rows, as rowText does: rows share most of their values, so each unit
// label, type name and value is made once. The units must not change while it is in use.
class RowTextMaker
{
public:
    QString text(const DesignParameterRow& row, int column);

    // The most values a summary shows: four directions and six distances.
    static constexpr int kMaxSummaryValues = 10;

private:
    struct SummaryKey
    {
        int column;
        int type;
        const void* bars;
        quint32 bits[kMaxSummaryValues];
        bool operator==(const SummaryKey& other) const;
    };
    friend uint qHash(const SummaryKey& key, uint seed);

    QString summary(const DesignParameterRow& row, const SummaryLayout& layout);
    void appendLine(QString& out, const DesignParameterRow& row, const SummaryField* fields, int count);
    const QString& value(const DesignParameterRow& row, float value, int code);
    const QString& unit(int code);
    const QString& typeName(int type);

    QHash<int, QString> m_units;
    QHash<int, QString> m_typeNames;
    // By unit code and the bits of the value; bar texts by the bar table and the bits.
    QHash<QPair<int, quint32>, QString> m_values;
    QHash<QPair<const void*, quint32>, QString> m_bars;
    // Rows mostly repeat whole summaries.
    QHash<SummaryKey, QString> m_summaries;
};

} // namespace vkd::plib::design
