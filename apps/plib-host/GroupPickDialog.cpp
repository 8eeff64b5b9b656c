#include "GroupPickDialog.h"

#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

GroupPickDialog::GroupPickDialog(int projectIndex, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("groupPick"));
    setWindowTitle(tr("Pick Groups in the Model"));
    auto* layout = new QVBoxLayout(this);
    auto* note = new QLabel(tr("Choose the groups for the row: click, Ctrl-click, Shift-click, or drag over them."), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("groupList"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    using namespace vkd::dbo;
    for (const GroupRecord& g : readAll<GroupRecord>(projectIndex, KeyGroups)) {
        auto* item = new QListWidgetItem(QStringLiteral("%1  %2").arg(g.number).arg(groupTitle(g)), m_list);
        item->setData(Qt::UserRole, g.number);
    }
    for (const GroupRecord& g : readAll<GroupRecord>(projectIndex, KeySecondaryGroups)) {
        auto* item = new QListWidgetItem(QStringLiteral("%1  %2").arg(secondaryGroupName(g.number), groupTitle(g)), m_list);
        item->setData(Qt::UserRole, g.number);
    }
    layout->addWidget(m_list, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

std::vector<int> GroupPickDialog::pickedGroups() const
{
    std::vector<int> groups;
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->isSelected())
            groups.push_back(m_list->item(row)->data(Qt::UserRole).toInt());
    return groups;
}

void GroupPickDialog::pickInto(int projectIndex, QWidget* parent)
{
    GroupPickDialog pick(projectIndex, parent);
    if (pick.exec() == QDialog::Accepted)
        vkd_h_storeGroupPick(projectIndex, pick.pickedGroups());
    else
        vkd_h_clearGroupPick(projectIndex);
}
