#pragma once

#include "VKD_H_GroupListDialog.h"

class VKD_H_ZOBDoc;

// The secondary groups of the model by name, to be checked for one row of a caller's table.
// OK ends it with 1, Cancel with 0; getChecked delivers the checked groups (packed names).
class VKD_H_SecondaryGroupDialog : public VKD_H_GroupListDialog
{
    Q_OBJECT
public:
    VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc, const std::vector<int>& checked,
                               const std::vector<int>& used, QWidget* parent);
};
