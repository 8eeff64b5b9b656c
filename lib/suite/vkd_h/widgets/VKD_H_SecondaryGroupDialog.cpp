#include "VKD_H_SecondaryGroupDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <algorithm>

namespace {

// By name, as the user knows them.
std::vector<VKD_H_GroupListDialog::Entry> secondaryGroups(const VKD_H_ZOBDoc* doc)
{
    std::vector<VKD_H_GroupListDialog::Entry> entries;
    if (!doc)
        return entries;
    for (const vkd::dbo::GroupRecord& g :
         vkd::dbo::readAll<vkd::dbo::GroupRecord>(doc->index(), vkd::dbo::KeySecondaryGroups))
        entries.push_back({g.number, vkd::dbo::groupTitle(g)});
    std::stable_sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return VKD_H_GroupListDialog::groupLabel(a.number) < VKD_H_GroupListDialog::groupLabel(b.number);
    });
    return entries;
}

} // namespace

VKD_H_SecondaryGroupDialog::VKD_H_SecondaryGroupDialog(VKD_H_ZOBDoc* doc, const std::vector<int>& checked,
                                                       const std::vector<int>& used, QWidget* parent)
    : VKD_H_GroupListDialog(secondaryGroups(doc), true, checked, used, parent, "Secondary Group Selection")
{
    setWindowTitle(tr("Secondary Group Selection"));
}
