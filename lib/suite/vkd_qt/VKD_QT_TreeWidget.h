#pragma once

#include <QHash>
#include <QTreeWidget>

class VKD_QT_Menu;

// A tree with an optional automatic check state: checking or unchecking an item carries the
// state down to all its descendants, and every change makes each ancestor Checked if all its
// children are, Unchecked if none is, and PartiallyChecked otherwise.
//
// Each item's number of Checked and PartiallyChecked children is kept, so a change of one
// item costs in proportion to the depth of the tree, and carrying a state down a subtree
// updates the ancestors once, not once per descendant.
class VKD_QT_TreeWidget : public QTreeWidget
{
    Q_OBJECT
public:
    explicit VKD_QT_TreeWidget(QWidget* parent = nullptr, const char* name = nullptr);
    ~VKD_QT_TreeWidget() override;

    void setAutomaticCheckStateUpdate(bool on);
    bool automaticCheckStateUpdate() const { return m_automatic; }
    void addExpandAll(VKD_QT_Menu* menu);
    void addCollapseAll(VKD_QT_Menu* menu);

private:
    struct CheckCounts
    {
        Qt::CheckState state = Qt::Unchecked;
        int checked = 0;
        int partial = 0;
    };

    void onItemChanged(QTreeWidgetItem* item, int column);
    void onRowsInserted(const QModelIndex& parent, int first, int last);
    void onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void onRowsRemoved(const QModelIndex& parent, int first, int last);
    void rebuildCounts();
    // Counts and state of a subtree from its leaves up; gives the state of its root.
    Qt::CheckState initialiseSubtree(QTreeWidgetItem* item);
    void forgetSubtree(QTreeWidgetItem* item);
    void carryDown(QTreeWidgetItem* item, Qt::CheckState state);
    void childChanged(QTreeWidgetItem* parent, Qt::CheckState oldState, Qt::CheckState newState);
    // Sets the item's state from its children's; with propagate, its ancestors follow.
    void updateFromCounts(QTreeWidgetItem* item, bool propagate = true);
    void setStateQuietly(QTreeWidgetItem* item, Qt::CheckState state);
    QTreeWidgetItem* itemOf(const QModelIndex& parent) const;

    bool m_automatic = false;
    bool m_updating = false;
    QTreeWidgetItem* m_removedFrom = nullptr;
    QHash<QTreeWidgetItem*, CheckCounts> m_counts;
    QList<QMetaObject::Connection> m_connections;
};
