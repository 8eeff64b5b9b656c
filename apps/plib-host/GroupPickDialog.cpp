#include "GroupPickDialog.h"

#include <AnimatorView.h>
#include <VKD_QT_SignalBlocker.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

GroupPickDialog::GroupPickDialog(int projectIndex, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("groupPick"));
    setWindowTitle(tr("Pick Groups in the Model"));
    auto* layout = new QVBoxLayout(this);
    auto* note =
        new QLabel(tr("Choose the groups for the row in the model: click, Ctrl-click or drag a rectangle "
                      "over them (a right drag turns the model), or in the list."),
                   this);
    note->setWordWrap(true);
    layout->addWidget(note);
    auto* splitter = new QSplitter(this);
    m_preview = new AnimatorView(projectIndex, splitter);
    m_preview->setPickMode(true);
    m_preview->setMinimumSize(360, 280);
    m_list = new QListWidget(splitter);
    m_list->setObjectName(QStringLiteral("groupList"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    using namespace vkd::dbo;
    for (const GroupRecord& g : readAll<GroupRecord>(projectIndex, KeyGroups)) {
        auto* item = new QListWidgetItem(QStringLiteral("%1  %2").arg(g.number).arg(groupTitle(g)), m_list);
        item->setData(Qt::UserRole, g.number);
    }
    for (const GroupRecord& g : readAll<GroupRecord>(projectIndex, KeySecondaryGroups)) {
        auto* item = new QListWidgetItem(
            QStringLiteral("%1  %2").arg(secondaryGroupName(g.number), groupTitle(g)), m_list);
        item->setData(Qt::UserRole, g.number);
    }
    // The list shows its titles whole; the model takes the rest.
    m_list->setMinimumWidth(m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth() +
                            m_list->verticalScrollBar()->sizeHint().width());
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);
    connect(m_preview, &AnimatorView::pickChanged, this, &GroupPickDialog::showPickInList);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &GroupPickDialog::showPickInPreview);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(sizeHint().expandedTo(QSize(760, 480)));
}

void GroupPickDialog::showPickInList()
{
    const std::vector<int>& picked = m_preview->pickedGroups();
    const VKD_QT_SignalBlocker blocker(m_list);
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        item->setSelected(std::binary_search(picked.begin(), picked.end(), item->data(Qt::UserRole).toInt()));
    }
    m_list->viewport()->update();
}

void GroupPickDialog::showPickInPreview()
{
    m_preview->setPickedGroups(pickedGroups());
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
