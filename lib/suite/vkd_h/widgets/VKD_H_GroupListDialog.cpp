#include "VKD_H_GroupListDialog.h"

#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_PushButton.h>
#include <vkd_dbo.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

#include <algorithm>
#include <set>

namespace {

enum ListColumn
{
    ColumnGroup = 0,
    ColumnTitle = 1,
    ColumnNote = 2
};

constexpr int NumberRole = Qt::UserRole;

bool isSecondary(int number)
{
    return number >= vkd::dbo::kFirstSecondaryGroup;
}

} // namespace

QString VKD_H_GroupListDialog::groupLabel(int number)
{
    return isSecondary(number) ? vkd::dbo::secondaryGroupName(number) : QString::number(number);
}

VKD_H_GroupListDialog::VKD_H_GroupListDialog(const std::vector<Entry>& groups, bool secondary,
                                             const std::vector<int>& checked, const std::vector<int>& used,
                                             QWidget* parent, const char* name)
    : VKD_QT_Dialog(parent, name)
{
    setModal(true);
    setPalette(QPalette(Qt::white));
    setAutoFillBackground(true);

    m_filter = new QLineEdit(this);
    m_filter->setObjectName(QStringLiteral("groupFilter"));
    m_filter->setPlaceholderText(tr("Filter by number, name or title"));
    m_filter->setClearButtonEnabled(true);

    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("groupList"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setColumnCount(3);
    m_list->setHeaderLabels({secondary ? tr("Name") : tr("Group"), tr("Title"), tr("Note")});

    const std::set<int> checkedSet(checked.begin(), checked.end());
    const std::set<int> usedSet(used.begin(), used.end());
    std::set<int> listed;
    for (const Entry& g : groups) {
        const bool isUsed = usedSet.count(g.number) > 0;
        addItem(g.number, g.title, isUsed ? tr("used in another row") : QString(),
                checkedSet.count(g.number) > 0, isUsed, false);
        listed.insert(g.number);
    }
    for (int number : checkedSet) {
        if (listed.count(number))
            continue;
        QString note;
        if (isSecondary(number) != secondary)
            note = isSecondary(number) ? tr("secondary group") : tr("group, not secondary");
        else
            note = tr("not in the model");
        const bool isUsed = usedSet.count(number) > 0;
        if (isUsed)
            note += QStringLiteral("; ") + tr("used in another row");
        addItem(number, QString(), note, true, isUsed, isSecondary(number) == secondary);
    }
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(true);

    auto* all = new VKD_QT_PushButton(tr("Select all"), this, "selectAll");
    auto* none = new VKD_QT_PushButton(tr("Select none"), this, "selectNone");
    all->setToolTip(tr("Ticks the groups the filter shows"));
    none->setToolTip(tr("Unticks the groups the filter shows"));
    m_count = new QLabel(this);
    m_count->setObjectName(QStringLiteral("checkedCount"));
    m_footer = new VKD_QT_Ok(this, 3, "okayandcancelbutton");

    auto* row = new VKD_QT_HBoxLayout();
    row->addWidget(all);
    row->addWidget(none);
    row->addStretch(1);
    row->addWidget(m_count);
    auto* layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addLayout(row);
    layout->addWidget(m_footer);

    connect(m_filter, &QLineEdit::textChanged, this, &VKD_H_GroupListDialog::applyFilter);
    connect(all, &QPushButton::clicked, this, [this] { checkShown(true); });
    connect(none, &QPushButton::clicked, this, [this] { checkShown(false); });
    connect(m_list, &QTreeWidget::itemChanged, this, &VKD_H_GroupListDialog::updateCount);
    updateCount();
    // Wide enough for the notes, which are read as a whole.
    int columns = 0;
    for (int column = ColumnGroup; column <= ColumnNote; ++column) {
        m_list->resizeColumnToContents(column);
        columns += m_list->header()->sectionSize(column);
    }
    resize(qMax(sizeHint().width(), qMax(420, columns + 60)), 420);
}

void VKD_H_GroupListDialog::addItem(int number, const QString& title, const QString& note, bool checked,
                                    bool used, bool missing)
{
    auto* item = new QTreeWidgetItem(m_list);
    item->setText(ColumnGroup, groupLabel(number));
    item->setText(ColumnTitle, title);
    item->setText(ColumnNote, note);
    item->setData(ColumnGroup, NumberRole, number);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(ColumnGroup, checked ? Qt::Checked : Qt::Unchecked);
    if (missing || used) {
        const QColor colour =
            missing ? QColor(0xb0, 0x20, 0x20) : palette().color(QPalette::Disabled, QPalette::Text);
        for (int column = ColumnGroup; column <= ColumnNote; ++column)
            item->setForeground(column, colour);
    }
}

void VKD_H_GroupListDialog::applyFilter(const QString& text)
{
    const QString wanted = text.trimmed();
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = m_list->topLevelItem(i);
        const bool shown = wanted.isEmpty() ||
                           item->text(ColumnGroup).contains(wanted, Qt::CaseInsensitive) ||
                           item->text(ColumnTitle).contains(wanted, Qt::CaseInsensitive);
        item->setHidden(!shown);
    }
}

void VKD_H_GroupListDialog::checkShown(bool checked)
{
    {
        const QSignalBlocker blocker(m_list);
        for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
            QTreeWidgetItem* item = m_list->topLevelItem(i);
            if (!item->isHidden())
                item->setCheckState(ColumnGroup, checked ? Qt::Checked : Qt::Unchecked);
        }
    }
    updateCount();
}

void VKD_H_GroupListDialog::updateCount()
{
    std::vector<int> checked;
    m_count->setText(tr("%1 of %2 checked").arg(getChecked(checked)).arg(m_list->topLevelItemCount()));
}

int VKD_H_GroupListDialog::getChecked(std::vector<int>& checked) const
{
    checked.clear();
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = m_list->topLevelItem(i);
        if (item->checkState(ColumnGroup) == Qt::Checked)
            checked.push_back(item->data(ColumnGroup, NumberRole).toInt());
    }
    std::sort(checked.begin(), checked.end());
    return int(checked.size());
}
