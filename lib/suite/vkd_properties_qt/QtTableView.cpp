#include "QtTableView.h"

#include <QDropEvent>

namespace vkd::properties::nextGen {

QtTableView::QtTableView(QWidget* parent)
    : QTableView(parent)
{
}

void QtTableView::set_read_only(bool readOnly)
{
    m_readOnly = readOnly;
    // Persistent editors are the host's own widgets in cells and stay.
    if (!m_readOnly || state() != EditingState || !m_editedIndex.isValid() ||
        isPersistentEditorOpen(m_editedIndex))
        return;
    if (QWidget* editor = indexWidget(m_editedIndex))
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

// Every editor that the user or edit(index) opens comes through here, whatever the edit
// triggers are; they stay as set, so leaving read-only needs nothing restored.
bool QtTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (m_readOnly)
        return false;
    const bool opened = QTableView::edit(index, trigger, event);
    if (opened && state() == EditingState)
        m_editedIndex = index;
    return opened;
}

// A drop writes into the model, so it is an edit too.
void QtTableView::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_readOnly) {
        event->ignore();
        return;
    }
    QTableView::dragEnterEvent(event);
}

void QtTableView::dragMoveEvent(QDragMoveEvent* event)
{
    if (m_readOnly) {
        event->ignore();
        return;
    }
    QTableView::dragMoveEvent(event);
}

void QtTableView::dropEvent(QDropEvent* event)
{
    if (m_readOnly) {
        event->ignore();
        return;
    }
    QTableView::dropEvent(event);
}

} // namespace vkd::properties::nextGen
