#pragma once

#include <QDialog>

#include <vector>

class QListWidget;

// The host's pick of groups for a group dialog that was left with "Pick in model": the groups of
// the model in a list, chosen by click, Ctrl-click, Shift-click or by dragging over them.
class GroupPickDialog : public QDialog
{
    Q_OBJECT
public:
    GroupPickDialog(int projectIndex, QWidget* parent = nullptr);

    // The groups chosen, in the order of the list.
    std::vector<int> pickedGroups() const;

    // Lets the user pick and stores the pick where the group dialog finds it; a cancelled pick
    // leaves none.
    static void pickInto(int projectIndex, QWidget* parent);

private:
    QListWidget* m_list;
};
