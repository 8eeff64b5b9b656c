#pragma once

#include <VKD_A_BarDiameterData.h>

#include <QComboBox>

// A combo of the bars of a project's bar table. Each entry carries its bar value; no entry is
// current while the value is not set (-99999.0).
class VKD_A_BarDiameterCombo : public QComboBox
{
    Q_OBJECT
public:
    explicit VKD_A_BarDiameterCombo(QWidget* parent = nullptr, const char* name = nullptr);

    // Fills the combo with the bar table of the project with this database index. Without an
    // open project it offers the standard series and answers false.
    bool load(int index);
    // Selects the bar of this value; -99999.0 (or any value that names no bar) selects none.
    // A bar the table does not hold is added as an entry of its own, so that a stored value is
    // shown and kept; the answer is then false.
    bool setCurrent(float value);
    // The bar value of the selected entry, or -99999.0 when none is selected.
    float getCurrent() const;

    const VKD_A_BarDiameterData& barData() const { return m_bars; }

private:
    int findValue(float value) const;

    VKD_A_BarDiameterData m_bars;
};
