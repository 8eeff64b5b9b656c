#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

namespace vkd::properties::nextGen {

// A table view that can be switched to read-only. Read-only is not disabled: the view keeps
// focus, selection, scrolling and copying, so the user can still look at and pick from a table
// that they may not change. Every way into an editor, and dropping, is refused while it lasts.
class QtTableView : public QTableView
{
    Q_OBJECT
public:
    explicit QtTableView(QWidget* parent = nullptr);

    // Switching on closes the editor the user is working in without writing its value back.
    // Persistent editors, which the host placed in cells, stay open but write nothing.
    void set_read_only(bool readOnly);
    bool is_read_only() const { return m_readOnly; }
    using QTableView::edit;

protected slots:
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool m_readOnly = false;
    // The cell of the editor that edit() opened and that is still open. Qt tells neither which
    // editor is the user's nor, for a cell, whether its editor is persistent.
    QPersistentModelIndex m_editedIndex;
};

} // namespace vkd::properties::nextGen
