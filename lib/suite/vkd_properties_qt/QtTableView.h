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
    void set_read_only(bool readOnly);
    bool is_read_only() const { return m_readOnly; }

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool m_readOnly = false;
    // The cell whose editor was opened last; Qt offers no way to ask for the open editor.
    QPersistentModelIndex m_editedIndex;
};

} // namespace vkd::properties::nextGen
