#pragma once

#include "VKD_QT_GroupBox.h"

#include <QString>

#include <vector>

class QButtonGroup;
class QGridLayout;
class QRadioButton;

// One entry of a radio group: the button's text and whether a widget of its own stands beside
// the button (flag 1). The id and the two further strings are carried for callers that keep
// them; the group numbers its entries by their place in the list.
struct StructRadioButtonGrup
{
    int id = -1;
    QString text;
    QString toolTip;
    QString whatsThis;
    int flag = 0;
};

// A titled frame of radio buttons, one per entry, numbered from 0 in the order given. The
// buttons stand in lines along the orientation, count to a line (-1: all in one line). A widget
// attached to an entry with flag 1 stands beside its button and is live only while that entry
// is checked.
class VKD_QT_RadioButtonGroup : public VKD_QT_GroupBox
{
    Q_OBJECT
public:
    VKD_QT_RadioButtonGroup(const QString& title, const std::vector<StructRadioButtonGrup>& items,
                            QWidget* parent, const char* name, Qt::Orientation orientation, int count);

    // Places the widgets attached by setWidget beside their buttons; call it after them.
    void init(const std::vector<StructRadioButtonGrup>& items);
    // Attaches a widget to an entry with flag 1; other entries take none.
    void setWidget(int entry, QWidget* widget);
    // The number of the checked entry, -1 while none is.
    int selectedButton() const;
    // Checks an entry; a number without a button changes nothing.
    void setButton(int entry);
    // Null for a number without a button.
    QRadioButton* getRadioButton(int entry) const;
    VKD_QT_GroupBox* box() { return this; }

signals:
    // The user clicked the entry with this number.
    void buttWasClicked(int entry);

private:
    void updateAttachedWidgets();

    std::vector<StructRadioButtonGrup> m_items;
    std::vector<QRadioButton*> m_buttons;
    std::vector<QWidget*> m_widgets;
    QButtonGroup* m_group;
    QGridLayout* m_grid;
    Qt::Orientation m_orientation;
    int m_count;
};
