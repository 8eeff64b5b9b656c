#include "VKD_A_BarDiameterCombo.h"

#include <cmath>

namespace {

constexpr float kNotSet = -99999.0f;
// As in the bar table: a bar is the same bar within a thousandth of a millimetre.
constexpr float kSameBar = 1e-3f;

} // namespace

VKD_A_BarDiameterCombo::VKD_A_BarDiameterCombo(QWidget* parent, const char* name) : QComboBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

bool VKD_A_BarDiameterCombo::load(int index)
{
    const float current = getCurrent();
    const bool loaded = m_bars.load(index);
    if (!loaded)
        m_bars.setBars(VKD_A_BarDiameterData::standardSeries());
    clear();
    for (const VKD_A_BarDiameterData::Bar& bar : m_bars.bars())
        addItem(bar.name, QVariant(bar.diameter));
    setCurrent(current);
    return loaded;
}

int VKD_A_BarDiameterCombo::findValue(float value) const
{
    for (int i = 0; i < count(); ++i)
        if (std::fabs(itemData(i).toFloat() - value) <= kSameBar)
            return i;
    return -1;
}

bool VKD_A_BarDiameterCombo::setCurrent(float value)
{
    if (!std::isfinite(value) || value <= 0.0f) {
        setCurrentIndex(-1);
        return true;
    }
    int i = findValue(value);
    if (i >= 0) {
        setCurrentIndex(i);
        return m_bars.find(value) >= 0;
    }
    // Keep the entries in the order of their diameters where the table has that order.
    i = 0;
    while (i < count() && itemData(i).toFloat() < value)
        ++i;
    insertItem(i, m_bars.getString(value), QVariant(value));
    setCurrentIndex(i);
    return false;
}

float VKD_A_BarDiameterCombo::getCurrent() const
{
    return currentIndex() < 0 ? kNotSet : currentData().toFloat();
}
