#pragma once

#include <QHash>
#include <QTreeWidget>

#include <vector>

class VKD_QT_Menu;

// A tree with an optional automatic check state: checking or unchecking an item carries the
// state down to all its descendants, and every change makes each ancestor Checked if all its
// children are, Unchecked if none is, and PartiallyChecked otherwise.
//
// Each item with children keeps its number of Checked and PartiallyChecked children and the
// states its children had when last seen, by row, so a change of one item costs in proportion
// to the depth of the tree, carrying a state down a subtree updates the ancestors once, not once
// per descendant, and a leaf costs the tree a byte.
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
    // An item with children, or the invisible root for the top level items.
    struct Parent
    {
        int checked = 0;
        int partial = 0;
        std::vector<quint8> states; // Qt::CheckState of each child by row
    };

    void onItemChanged(QTreeWidgetItem* item, int column);
    void onRowsInserted(const QModelIndex& parent, int first, int last);
    void onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void onRowsRemoved(const QModelIndex& parent, int first, int last);
    void rebuildCounts();
    // Counts of a subtree from its leaves up, its root's state brought in line; gives that state.
    Qt::CheckState initialiseSubtree(QTreeWidgetItem* item);
    void forgetSubtree(QTreeWidgetItem* item);
    void carryDown(QTreeWidgetItem* item, Qt::CheckState state);
    void childChanged(QTreeWidgetItem* parent, Qt::CheckState oldState, Qt::CheckState newState);
    // Sets the item's state from its children's counts; with propagate, its ancestors follow.
    void updateFromCounts(QTreeWidgetItem* item, bool propagate = true);
    void setStateQuietly(QTreeWidgetItem* item, Qt::CheckState state);
    QTreeWidgetItem* itemOf(const QModelIndex& parent) const;
    // The entry of an item's parent, the root's for a top level item; null if it has none.
    Parent* parentOf(const QTreeWidgetItem* item);
    int rowOf(const QTreeWidgetItem* item) const;

    bool m_automatic = false;
    bool m_updating = false;
    QTreeWidgetItem* m_removedFrom = nullptr;
    Parent m_root;
    QHash<const QTreeWidgetItem*, Parent> m_parents;
    QList<QMetaObject::Connection> m_connections;
};
