#pragma once

#include <ComboList.h>

#include <QTableWidgetItem>
#include <list>

// Header item of a VKD_H_TableWidget column. It carries the column id, a short and a long
// text (the long one is the tooltip) and makes the empty items of its column.
class VKD_H_TwHeaderItem : public QTableWidgetItem
{
public:
    VKD_H_TwHeaderItem(int id, const QString& text, const QString& longText, bool visible,
                       Qt::Alignment alignment);
    int columnId() const { return m_id; }
    bool isColumnVisible() const { return m_visible; }
    virtual QTableWidgetItem* createEmptyItem() const;

private:
    int m_id;
    bool m_visible;
};

// A cell of a combo column: shows the text of one entry and knows its id. Setting the text
// of an entry (as the combo editor and a redraw do) makes that entry current.
class VKD_H_TwSimpleComboBoxItem : public QTableWidgetItem
{
public:
    explicit VKD_H_TwSimpleComboBoxItem(const std::list<ComboList>& entries);
    int getCurrentId() const { return m_currentId; }
    void setCurrentId(int id);
    const std::list<ComboList>& entries() const { return m_entries; }
    void setData(int role, const QVariant& value) override;
    QTableWidgetItem* clone() const override;

    enum { Type = QTableWidgetItem::UserType + 1 };

private:
    std::list<ComboList> m_entries;
    int m_currentId = -1;
};

class VKD_H_TwHeaderComboBoxItem : public VKD_H_TwHeaderItem
{
public:
    VKD_H_TwHeaderComboBoxItem(int id, const std::list<ComboList>& entries, const QString& text,
                               const QString& longText, bool visible, Qt::Alignment alignment);
    const std::list<ComboList>& entries() const { return m_entries; }
    QTableWidgetItem* createEmptyItem() const override;

private:
    std::list<ComboList> m_entries;
};
