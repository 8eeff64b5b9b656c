#include "VKD_QT_TreeWidget.h"

#include "VKD_QT_Menu.h"

VKD_QT_TreeWidget::VKD_QT_TreeWidget(QWidget* parent, const char* name)
    : QTreeWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

// The model outlives the members of this class and resets itself when it goes.
VKD_QT_TreeWidget::~VKD_QT_TreeWidget()
{
    setAutomaticCheckStateUpdate(false);
}

void VKD_QT_TreeWidget::setAutomaticCheckStateUpdate(bool on)
{
    if (on == m_automatic)
        return;
    m_automatic = on;
    for (const auto& c : qAsConst(m_connections))
        disconnect(c);
    m_connections.clear();
    m_counts.clear();
    if (!on)
        return;
    QAbstractItemModel* m = model();
    m_connections << connect(this, &QTreeWidget::itemChanged, this, &VKD_QT_TreeWidget::onItemChanged)
                  << connect(m, &QAbstractItemModel::rowsInserted, this, &VKD_QT_TreeWidget::onRowsInserted)
                  << connect(m, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                             &VKD_QT_TreeWidget::onRowsAboutToBeRemoved)
                  << connect(m, &QAbstractItemModel::rowsRemoved, this, &VKD_QT_TreeWidget::onRowsRemoved)
                  << connect(m, &QAbstractItemModel::modelReset, this, &VKD_QT_TreeWidget::rebuildCounts);
    rebuildCounts();
}

void VKD_QT_TreeWidget::addExpandAll(VKD_QT_Menu* menu)
{
    if (menu)
        connect(menu->addAction(tr("Expand all")), &QAction::triggered, this, &QTreeView::expandAll);
}

void VKD_QT_TreeWidget::addCollapseAll(VKD_QT_Menu* menu)
{
    if (menu)
        connect(menu->addAction(tr("Collapse all")), &QAction::triggered, this, &QTreeView::collapseAll);
}

QTreeWidgetItem* VKD_QT_TreeWidget::itemOf(const QModelIndex& parent) const
{
    return parent.isValid() ? itemFromIndex(parent) : nullptr;
}

void VKD_QT_TreeWidget::rebuildCounts()
{
    m_counts.clear();
    for (int i = 0; i < topLevelItemCount(); ++i)
        initialiseSubtree(topLevelItem(i));
}

Qt::CheckState VKD_QT_TreeWidget::initialiseSubtree(QTreeWidgetItem* item)
{
    CheckCounts counts;
    const int n = item->childCount();
    for (int i = 0; i < n; ++i) {
        const Qt::CheckState s = initialiseSubtree(item->child(i));
        counts.checked += s == Qt::Checked;
        counts.partial += s == Qt::PartiallyChecked;
    }
    counts.state = item->checkState(0);
    m_counts.insert(item, counts);
    if (n > 0)
        updateFromCounts(item, false); // the caller accounts for the subtree's root
    return m_counts.value(item).state;
}

void VKD_QT_TreeWidget::forgetSubtree(QTreeWidgetItem* item)
{
    m_counts.remove(item);
    for (int i = 0; i < item->childCount(); ++i)
        forgetSubtree(item->child(i));
}

void VKD_QT_TreeWidget::setStateQuietly(QTreeWidgetItem* item, Qt::CheckState state)
{
    m_counts[item].state = state;
    const bool was = m_updating;
    m_updating = true;
    item->setCheckState(0, state);
    m_updating = was;
}

void VKD_QT_TreeWidget::updateFromCounts(QTreeWidgetItem* item, bool propagate)
{
    const CheckCounts c = m_counts.value(item);
    const int n = item->childCount();
    if (n == 0)
        return;
    const Qt::CheckState state = c.checked == n                     ? Qt::Checked
                                 : (c.checked == 0 && c.partial == 0) ? Qt::Unchecked
                                                                      : Qt::PartiallyChecked;
    if (state == c.state)
        return;
    setStateQuietly(item, state);
    if (propagate)
        childChanged(item->parent(), c.state, state);
}

void VKD_QT_TreeWidget::childChanged(QTreeWidgetItem* parent, Qt::CheckState oldState, Qt::CheckState newState)
{
    if (!parent || oldState == newState)
        return;
    CheckCounts& c = m_counts[parent];
    c.checked += (newState == Qt::Checked) - (oldState == Qt::Checked);
    c.partial += (newState == Qt::PartiallyChecked) - (oldState == Qt::PartiallyChecked);
    updateFromCounts(parent);
}

void VKD_QT_TreeWidget::carryDown(QTreeWidgetItem* item, Qt::CheckState state)
{
    const int n = item->childCount();
    for (int i = 0; i < n; ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (child->checkState(0) != state)
            setStateQuietly(child, state);
        else
            m_counts[child].state = state;
        carryDown(child, state);
    }
    CheckCounts& c = m_counts[item];
    c.checked = state == Qt::Checked ? n : 0;
    c.partial = 0;
}

void VKD_QT_TreeWidget::onItemChanged(QTreeWidgetItem* item, int column)
{
    if (column != 0 || m_updating)
        return;
    auto it = m_counts.find(item);
    if (it == m_counts.end())
        return;
    const Qt::CheckState newState = item->checkState(0);
    const Qt::CheckState oldState = it->state;
    if (newState == oldState)
        return; // some other data of the item changed
    it->state = newState;
    if (newState != Qt::PartiallyChecked && item->childCount() > 0)
        carryDown(item, newState);
    childChanged(item->parent(), oldState, newState);
}

void VKD_QT_TreeWidget::onRowsInserted(const QModelIndex& parentIndex, int first, int last)
{
    QTreeWidgetItem* parent = itemOf(parentIndex);
    for (int row = first; row <= last; ++row) {
        QTreeWidgetItem* item = parent ? parent->child(row) : topLevelItem(row);
        if (!item)
            continue;
        const Qt::CheckState s = initialiseSubtree(item);
        if (parent)
            childChanged(parent, Qt::Unchecked, s);
    }
    if (parent && m_counts.contains(parent))
        updateFromCounts(parent); // an Unchecked child also turns a Checked parent partial
}

void VKD_QT_TreeWidget::onRowsAboutToBeRemoved(const QModelIndex& parentIndex, int first, int last)
{
    QTreeWidgetItem* parent = itemOf(parentIndex);
    m_removedFrom = parent;
    for (int row = first; row <= last; ++row) {
        QTreeWidgetItem* item = parent ? parent->child(row) : topLevelItem(row);
        if (!item)
            continue;
        const Qt::CheckState s = m_counts.value(item).state;
        if (parent) {
            CheckCounts& c = m_counts[parent];
            c.checked -= s == Qt::Checked;
            c.partial -= s == Qt::PartiallyChecked;
        }
        forgetSubtree(item);
    }
}

void VKD_QT_TreeWidget::onRowsRemoved(const QModelIndex&, int, int)
{
    QTreeWidgetItem* parent = m_removedFrom;
    m_removedFrom = nullptr;
    if (parent && m_counts.contains(parent))
        updateFromCounts(parent);
}
