#pragma once

#include <VKD_QT_Dialog.h>

#include <QString>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class VKD_QT_Ok;

// The frame of the group dialogs: a list of groups with check boxes, a filter, select all and
// none, OK and Cancel. The groups of the model are listed first. A checked group that the list
// does not hold (gone from the model, or of the other kind of group) is listed after them,
// checked, with a note: a stale selection is shown and kept until the user unticks it. Groups
// that other rows use are greyed with a note and can still be ticked.
class VKD_H_GroupListDialog : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    struct Entry
    {
        int number; // primary group number or packed secondary group name
        QString title;
    };

    // The checked groups, ascending; replaces what checked held. Returns their count.
    int getChecked(std::vector<int>& checked) const;

    // The text by which a group is known: its number, or the name of a secondary group.
    static QString groupLabel(int number);

protected:
    // groups: those of the model this dialog is for; secondary tells which kind they are.
    VKD_H_GroupListDialog(const std::vector<Entry>& groups, bool secondary, const std::vector<int>& checked,
                          const std::vector<int>& used, QWidget* parent, const char* name);
    // The row of OK and Cancel, for buttons of a derived dialog.
    VKD_QT_Ok* footer() const { return m_footer; }

private:
    void addItem(int number, const QString& title, const QString& note, bool checked, bool used,
                 bool missing);
    void applyFilter(const QString& text);
    void checkShown(bool checked);
    void updateCount();

    QTreeWidget* m_list = nullptr;
    QLineEdit* m_filter = nullptr;
    QLabel* m_count = nullptr;
    VKD_QT_Ok* m_footer = nullptr;
};
