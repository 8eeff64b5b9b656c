#pragma once

#include <VKD_H_GroupListDialog.h>

class QPoint;
class VKD_H_ZOBDoc;

// The groups of the model by number and title, to be checked for one row of a caller's table.
// OK ends it with 1 and Cancel with 0. "Pick in model" ends it with PickInModel: the caller
// leaves its own dialog so that the user can pick the groups in the model view, and on return
// reads the pick with getAniSelectionFromZob.
class VKD_H_SelGRP_Dialog : public VKD_H_GroupListDialog
{
    Q_OBJECT
public:
    enum Result
    {
        PickInModel = 6
    };

    // callerFlag and recordKey name the caller's state and the key of its per-group records;
    // the list is the same for every caller, so the dialog keeps neither. position, if given,
    // is where the dialog opens.
    VKD_H_SelGRP_Dialog(bool callerFlag, int recordKey, VKD_H_ZOBDoc* doc, std::vector<int>& checked,
                        const std::vector<int>& used, QPoint* position, QWidget* parent, const char* name);

    // The groups picked in the model view since the last "Pick in model" of the project with
    // this database index, into groups. Their count, or -1 (groups untouched) when there is none.
    static int getAniSelectionFromZob(int index, std::vector<int>& groups);
};
