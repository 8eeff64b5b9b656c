#include "VKD_A_BarDiameterData.h"

#include <vkd_q.h>

#include <cmath>
#include <cstring>

namespace {

constexpr float kNotSet = -99999.0f;
// Bar values travel through text with six significant digits; a bar is the same bar within
// a thousandth of a millimetre.
constexpr float kSameBar = 1e-3f;

bool namesABar(float value)
{
    return std::isfinite(value) && value > 0.0f;
}

} // namespace

float vkd_a_get_min_bar_type(int barClass)
{
    switch (barClass) {
    case 5: // lower side of slabs, walls and shells
    case 6: // upper side
        return 10.0f;
    default:
        return kNotSet;
    }
}

std::vector<VKD_A_BarDiameterData::Bar> VKD_A_BarDiameterData::standardSeries()
{
    std::vector<Bar> bars;
    for (float d : {6.0f, 8.0f, 10.0f, 12.0f, 14.0f, 16.0f, 20.0f, 25.0f, 28.0f, 32.0f, 40.0f})
        bars.push_back({d, defaultName(d)});
    return bars;
}

QString VKD_A_BarDiameterData::defaultName(float diameter)
{
    return QString(QChar(0x00D8)) + QString::number(double(diameter), 'g', 6);
}

bool VKD_A_BarDiameterData::load(int index)
{
    m_bars.clear();
    VKD_A_BarRecord record;
    for (int position = 0;; ++position) {
        std::memset(&record, 0, sizeof record);
        int length = int(sizeof record);
        const zob_status_t status =
            vkd_zob_get(index, VKD_A_BAR_TABLE_KEY1, VKD_A_BAR_TABLE_KEY2, &record, &length, position);
        if (status == ZOB_NO_DATABASE || status == ZOB_BAD_ARGUMENT)
            return false;
        if (status >= ZOB_END)
            break;
        if (length < int(sizeof(float)) || !namesABar(record.diameter))
            continue;
        const QString name =
            QString::fromUtf8(record.name, int(strnlen(record.name, sizeof record.name))).trimmed();
        m_bars.push_back({record.diameter, name.isEmpty() ? defaultName(record.diameter) : name});
    }
    if (m_bars.empty())
        m_bars = standardSeries();
    return true;
}

void VKD_A_BarDiameterData::save(int index) const
{
    vkd_zob_lock_ex(index, VKD_A_BAR_TABLE_KEY1, VKD_A_BAR_TABLE_KEY2);
    int length = 0;
    vkd_zob_put(index, VKD_A_BAR_TABLE_KEY1, VKD_A_BAR_TABLE_KEY2, nullptr, &length, 0);
    for (const Bar& bar : m_bars) {
        VKD_A_BarRecord record;
        std::memset(&record, 0, sizeof record);
        record.diameter = bar.diameter;
        if (bar.name != defaultName(bar.diameter)) {
            // Cut at a character boundary so that the stored name stays valid UTF-8.
            QString name = bar.name;
            while (name.toUtf8().size() > int(sizeof record.name) ||
                   (!name.isEmpty() && QChar(name.back()).isHighSurrogate()))
                name.chop(1);
            const QByteArray utf8 = name.toUtf8();
            std::memcpy(record.name, utf8.constData(), size_t(utf8.size()));
        }
        length = int(sizeof record);
        vkd_zob_put(index, VKD_A_BAR_TABLE_KEY1, VKD_A_BAR_TABLE_KEY2, &record, &length, 1);
    }
    vkd_zob_free_ex(index, VKD_A_BAR_TABLE_KEY1, VKD_A_BAR_TABLE_KEY2);
}

int VKD_A_BarDiameterData::find(float value) const
{
    if (!namesABar(value))
        return -1;
    for (size_t i = 0; i < m_bars.size(); ++i)
        if (std::fabs(m_bars[i].diameter - value) <= kSameBar)
            return int(i);
    return -1;
}

QString VKD_A_BarDiameterData::getString(float value) const
{
    if (!namesABar(value))
        return QString();
    const int i = find(value);
    return i >= 0 ? m_bars[size_t(i)].name : defaultName(value);
}
