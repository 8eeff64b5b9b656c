#include "VKD_QT_TreeWidget.h"

#include "VKD_QT_Menu.h"

VKD_QT_TreeWidget::VKD_QT_TreeWidget(QWidget* parent, const char* name) : QTreeWidget(parent)
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
    m_parents.clear();
    m_root = Parent();
    if (!on)
        return;
    QAbstractItemModel* m = model();
    m_connections << connect(this, &QTreeWidget::itemChanged, this, &VKD_QT_TreeWidget::onItemChanged)
                  << connect(m, &QAbstractItemModel::rowsInserted, this, &VKD_QT_TreeWidget::onRowsInserted)
                  << connect(m, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                             &VKD_QT_TreeWidget::onRowsAboutToBeRemoved)
                  << connect(m, &QAbstractItemModel::rowsRemoved, this, &VKD_QT_TreeWidget::onRowsRemoved)
                  << connect(m, &QAbstractItemModel::modelReset, this, &VKD_QT_TreeWidget::rebuildCounts)
                  // Sorting moves rows, and the states are kept by row.
                  << connect(m, &QAbstractItemModel::layoutChanged, this, &VKD_QT_TreeWidget::rebuildCounts)
                  << connect(m, &QAbstractItemModel::rowsMoved, this, &VKD_QT_TreeWidget::rebuildCounts);
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

namespace {

Qt::CheckState stateOfCounts(int checked, int partial, int children)
{
    return checked == children              ? Qt::Checked
           : (checked == 0 && partial == 0) ? Qt::Unchecked
                                            : Qt::PartiallyChecked;
}

} // namespace

VKD_QT_TreeWidget::Parent* VKD_QT_TreeWidget::parentOf(const QTreeWidgetItem* item)
{
    const QTreeWidgetItem* parent = item->parent();
    if (!parent)
        return &m_root;
    auto it = m_parents.find(parent);
    return it == m_parents.end() ? nullptr : &*it;
}

int VKD_QT_TreeWidget::rowOf(const QTreeWidgetItem* item) const
{
    // The model remembers where it found an item last, so this is no search as a rule.
    return indexFromItem(item).row();
}

void VKD_QT_TreeWidget::rebuildCounts()
{
    m_parents.clear();
    m_root = Parent();
    const int n = topLevelItemCount();
    m_root.states.resize(size_t(n));
    for (int i = 0; i < n; ++i)
        m_root.states[size_t(i)] = quint8(initialiseSubtree(topLevelItem(i)));
}

Qt::CheckState VKD_QT_TreeWidget::initialiseSubtree(QTreeWidgetItem* item)
{
    const int n = item->childCount();
    if (n == 0)
        return item->checkState(0);
    Parent counts;
    counts.states.resize(size_t(n));
    for (int i = 0; i < n; ++i) {
        const Qt::CheckState s = initialiseSubtree(item->child(i));
        counts.states[size_t(i)] = quint8(s);
        counts.checked += s == Qt::Checked;
        counts.partial += s == Qt::PartiallyChecked;
    }
    const Qt::CheckState state = stateOfCounts(counts.checked, counts.partial, n);
    m_parents[item] = std::move(counts);
    if (item->checkState(0) != state)
        setStateQuietly(item, state); // the caller accounts for the subtree's root
    return state;
}

void VKD_QT_TreeWidget::forgetSubtree(QTreeWidgetItem* item)
{
    // Only items with children have an entry.
    const int n = item->childCount();
    if (n == 0)
        return;
    m_parents.remove(item);
    for (int i = 0; i < n; ++i)
        forgetSubtree(item->child(i));
}

void VKD_QT_TreeWidget::setStateQuietly(QTreeWidgetItem* item, Qt::CheckState state)
{
    const bool was = m_updating;
    m_updating = true;
    item->setCheckState(0, state);
    m_updating = was;
}

void VKD_QT_TreeWidget::updateFromCounts(QTreeWidgetItem* item, bool propagate)
{
    const int n = item->childCount();
    auto it = m_parents.find(item);
    if (n == 0 || it == m_parents.end())
        return;
    const Qt::CheckState state = stateOfCounts(it->checked, it->partial, n);
    Parent* above = parentOf(item);
    const int row = rowOf(item);
    if (!above || row < 0 || size_t(row) >= above->states.size())
        return;
    const Qt::CheckState known = Qt::CheckState(above->states[size_t(row)]);
    if (state == known)
        return;
    above->states[size_t(row)] = quint8(state);
    setStateQuietly(item, state);
    if (propagate)
        childChanged(item->parent(), known, state);
}

void VKD_QT_TreeWidget::childChanged(QTreeWidgetItem* parent, Qt::CheckState oldState,
                                     Qt::CheckState newState)
{
    if (!parent || oldState == newState)
        return;
    auto it = m_parents.find(parent);
    if (it == m_parents.end())
        return;
    it->checked += (newState == Qt::Checked) - (oldState == Qt::Checked);
    it->partial += (newState == Qt::PartiallyChecked) - (oldState == Qt::PartiallyChecked);
    updateFromCounts(parent);
}

void VKD_QT_TreeWidget::carryDown(QTreeWidgetItem* item, Qt::CheckState state)
{
    auto it = m_parents.find(item);
    if (it == m_parents.end())
        return;
    // Entries stay where they are while others come and go, so the reference outlives the calls.
    Parent& counts = *it;
    const int n = item->childCount();
    counts.states.resize(size_t(n));
    for (int i = 0; i < n; ++i) {
        QTreeWidgetItem* child = item->child(i);
        if (child->checkState(0) != state)
            setStateQuietly(child, state);
        counts.states[size_t(i)] = quint8(state);
        if (child->childCount() > 0)
            carryDown(child, state);
    }
    counts.checked = state == Qt::Checked ? n : 0;
    counts.partial = 0;
}

void VKD_QT_TreeWidget::onItemChanged(QTreeWidgetItem* item, int column)
{
    if (column != 0 || m_updating)
        return;
    Parent* above = parentOf(item);
    const int row = rowOf(item);
    if (!above || row < 0 || size_t(row) >= above->states.size())
        return;
    const Qt::CheckState newState = item->checkState(0);
    const Qt::CheckState oldState = Qt::CheckState(above->states[size_t(row)]);
    if (newState == oldState)
        return; // some other data of the item changed
    above->states[size_t(row)] = quint8(newState);
    if (newState != Qt::PartiallyChecked && item->childCount() > 0)
        carryDown(item, newState);
    childChanged(item->parent(), oldState, newState);
}

void VKD_QT_TreeWidget::onRowsInserted(const QModelIndex& parentIndex, int first, int last)
{
    QTreeWidgetItem* parent = itemOf(parentIndex);
    // An item that gets its first children gets its entry here.
    Parent& counts = parent ? m_parents[parent] : m_root;
    if (size_t(first) > counts.states.size())
        counts.states.resize(size_t(first));
    counts.states.insert(counts.states.begin() + first, size_t(last - first + 1), quint8(Qt::Unchecked));
    for (int row = first; row <= last; ++row) {
        QTreeWidgetItem* item = parent ? parent->child(row) : topLevelItem(row);
        if (!item)
            continue;
        const Qt::CheckState s = initialiseSubtree(item);
        counts.states[size_t(row)] = quint8(s);
        counts.checked += s == Qt::Checked;
        counts.partial += s == Qt::PartiallyChecked;
    }
    if (parent)
        updateFromCounts(parent); // an Unchecked child also turns a Checked parent partial
}

void VKD_QT_TreeWidget::onRowsAboutToBeRemoved(const QModelIndex& parentIndex, int first, int last)
{
    QTreeWidgetItem* parent = itemOf(parentIndex);
    m_removedFrom = parent;
    Parent* counts = parent ? nullptr : &m_root;
    if (parent) {
        auto it = m_parents.find(parent);
        if (it != m_parents.end())
            counts = &*it;
    }
    for (int row = first; row <= last; ++row) {
        QTreeWidgetItem* item = parent ? parent->child(row) : topLevelItem(row);
        if (item)
            forgetSubtree(item);
        if (counts && size_t(row) < counts->states.size()) {
            const auto s = Qt::CheckState(counts->states[size_t(row)]);
            counts->checked -= s == Qt::Checked;
            counts->partial -= s == Qt::PartiallyChecked;
        }
    }
    if (counts) {
        const size_t end = qMin(size_t(last) + 1, counts->states.size());
        if (size_t(first) < end)
            counts->states.erase(counts->states.begin() + first, counts->states.begin() + qsizetype(end));
    }
}

void VKD_QT_TreeWidget::onRowsRemoved(const QModelIndex&, int, int)
{
    QTreeWidgetItem* parent = m_removedFrom;
    m_removedFrom = nullptr;
    if (!parent)
        return;
    if (parent->childCount() == 0) {
        // A leaf again: it keeps its state, and its entry goes with its children.
        m_parents.remove(parent);
        return;
    }
    updateFromCounts(parent);
}
