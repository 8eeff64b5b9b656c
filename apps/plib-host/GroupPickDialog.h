#pragma once

#include <QDialog>

#include <vector>

class AnimatorView;
class QListWidget;

// The host's pick of groups for a group dialog that was left with "Pick in model": in the 3D
// preview (click, Ctrl-click, a rectangle dragged over them; a right drag turns the model) or in
// the list of the model's groups beside it. Both show the same pick.
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
    void showPickInList();
    void showPickInPreview();

    AnimatorView* m_preview;
    QListWidget* m_list;
};
