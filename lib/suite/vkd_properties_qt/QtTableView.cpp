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
    if (!m_readOnly || !m_editedIndex.isValid())
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
    // A persistent editor that is already there only gets the focus.
    const bool hadEditor = indexWidget(index) != nullptr;
    const bool opened = QTableView::edit(index, trigger, event);
    if (opened && !hadEditor && indexWidget(index))
        m_editedIndex = index;
    return opened;
}

// The one road from an editor into the model; persistent editors take it too.
void QtTableView::commitData(QWidget* editor)
{
    if (m_readOnly)
        return;
    QTableView::commitData(editor);
}

void QtTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (m_editedIndex.isValid() && indexWidget(m_editedIndex) == editor)
        m_editedIndex = QPersistentModelIndex();
    QTableView::closeEditor(editor, hint);
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
