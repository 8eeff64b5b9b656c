#pragma once
// vkd_a: bars and reinforcement. A bar value is a float that names a reinforcing bar: its
// nominal diameter in millimetres (see docs/units.md). -99999.0 names no bar.

#include <QString>
#include <cstdint>
#include <vector>

// The project's bar table lives at this key pair, one VKD_A_BarRecord per bar, in the order in
// which the bars are offered.
constexpr int VKD_A_BAR_TABLE_KEY1 = 90;
constexpr int VKD_A_BAR_TABLE_KEY2 = 1;

#pragma pack(push, 4)
struct VKD_A_BarRecord
{
    float diameter; // bar value: nominal diameter, mm
    char name[12];  // designation, UTF-8, zero-padded; empty for the usual "Ø<diameter>"
};
#pragma pack(pop)
static_assert(sizeof(VKD_A_BarRecord) == 16);

// The default bar of a bar class: 5 lower side and 6 upper side of surface elements, both 10 mm.
// Classes without a default give -99999.0.
float vkd_a_get_min_bar_type(int barClass);

// The bars a project offers and their texts.
class VKD_A_BarDiameterData
{
public:
    struct Bar
    {
        float diameter; // bar value
        QString name;   // designation as shown to the user
    };

    VKD_A_BarDiameterData() = default;

    // Reads the bar table of the project with this database index. A project without one gets
    // the standard series. False, and an empty table, when the index names no open project.
    bool load(int index);
    // Replaces the project's bar table by this one.
    void save(int index) const;

    // The designation of a bar value: the name the table gives it, else "Ø" and the diameter
    // in millimetres. Empty for a value that names no bar (not positive, not finite).
    QString getString(float value) const;
    // Position of the bar with this value in the table, or -1.
    int find(float value) const;

    const std::vector<Bar>& bars() const { return m_bars; }
    void setBars(std::vector<Bar> bars) { m_bars = std::move(bars); }
    bool isEmpty() const { return m_bars.empty(); }

    // Nominal diameters of the usual European bar series, 6 to 40 mm.
    static std::vector<Bar> standardSeries();
    static QString defaultName(float diameter);

private:
    std::vector<Bar> m_bars;
};
