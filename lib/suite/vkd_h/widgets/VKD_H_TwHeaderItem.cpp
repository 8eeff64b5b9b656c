#include "VKD_H_TwHeaderItem.h"

VKD_H_TwHeaderItem::VKD_H_TwHeaderItem(int id, const QString& text, const QString& longText, bool visible,
                                       Qt::Alignment alignment)
    : QTableWidgetItem(text), m_id(id), m_visible(visible)
{
    setToolTip(longText);
    setTextAlignment(int(alignment));
}

QTableWidgetItem* VKD_H_TwHeaderItem::createEmptyItem() const
{
    auto* item = new QTableWidgetItem;
    item->setTextAlignment(textAlignment());
    return item;
}

VKD_H_TwSimpleComboBoxItem::VKD_H_TwSimpleComboBoxItem(const std::list<ComboList>& entries)
    : QTableWidgetItem(Type), m_entries(entries)
{
    if (!m_entries.empty())
        setCurrentId(m_entries.front().id);
}

void VKD_H_TwSimpleComboBoxItem::setCurrentId(int id)
{
    for (const ComboList& e : m_entries)
        if (e.id == id) {
            setText(e.text);
            return;
        }
}

void VKD_H_TwSimpleComboBoxItem::setData(int role, const QVariant& value)
{
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        const QString text = value.toString();
        for (const ComboList& e : m_entries)
            if (e.text == text) {
                m_currentId = e.id;
                break;
            }
    }
    QTableWidgetItem::setData(role, value);
}

QTableWidgetItem* VKD_H_TwSimpleComboBoxItem::clone() const
{
    auto* item = new VKD_H_TwSimpleComboBoxItem(m_entries);
    *static_cast<QTableWidgetItem*>(item) = *this;
    item->m_currentId = m_currentId;
    return item;
}

VKD_H_TwHeaderComboBoxItem::VKD_H_TwHeaderComboBoxItem(int id, const std::list<ComboList>& entries,
                                                       const QString& text, const QString& longText,
                                                       bool visible, Qt::Alignment alignment)
    : VKD_H_TwHeaderItem(id, text, longText, visible, alignment), m_entries(entries)
{
}

QTableWidgetItem* VKD_H_TwHeaderComboBoxItem::createEmptyItem() const
{
    auto* item = new VKD_H_TwSimpleComboBoxItem(m_entries);
    item->setTextAlignment(textAlignment());
    return item;
}
