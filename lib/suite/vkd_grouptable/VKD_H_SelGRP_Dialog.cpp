#include "VKD_H_SelGRP_Dialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_PushButton.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>

#include <QHBoxLayout>
#include <QPoint>
#include <algorithm>

namespace {

std::vector<VKD_H_GroupListDialog::Entry> modelGroups(const VKD_H_ZOBDoc* doc)
{
    std::vector<VKD_H_GroupListDialog::Entry> entries;
    if (!doc)
        return entries;
    for (const vkd::dbo::GroupRecord& g :
         vkd::dbo::readAll<vkd::dbo::GroupRecord>(doc->index(), vkd::dbo::KeyGroups))
        entries.push_back({g.number, vkd::dbo::groupTitle(g)});
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto& a, const auto& b) { return a.number < b.number; });
    return entries;
}

} // namespace

VKD_H_SelGRP_Dialog::VKD_H_SelGRP_Dialog(bool, int, VKD_H_ZOBDoc* doc, std::vector<int>& checked,
                                         const std::vector<int>& used, QPoint* position, QWidget* parent,
                                         const char* name)
    : VKD_H_GroupListDialog(modelGroups(doc), false, checked, used, parent, name)
{
    setWindowTitle(tr("Group Selection"));
    auto* pick = new VKD_QT_PushButton(tr("Pick in model"), footer(), "pickInModel");
    pick->setToolTip(tr("Closes the dialogs so that you can pick the groups in the model view"));
    static_cast<QHBoxLayout*>(footer()->layout())->insertWidget(0, pick);
    const int index = doc ? doc->index() : -1;
    connect(pick, &QPushButton::clicked, this, [this, index] {
        // A pick made for an earlier dialog must not come back if this one is cancelled.
        vkd_h_clearGroupPick(index);
        done(PickInModel);
    });
    if (position)
        move(*position);
}

int VKD_H_SelGRP_Dialog::getAniSelectionFromZob(int index, std::vector<int>& groups)
{
    return vkd_h_readGroupPick(index, groups) ? int(groups.size()) : -1;
}
