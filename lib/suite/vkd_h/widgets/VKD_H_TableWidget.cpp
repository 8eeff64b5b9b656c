#include "VKD_H_TableWidget.h"

#include "VKD_H_TwHeaderItem.h"

#include <VKD_QT_Menu.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace {

// Edits the cells of combo columns with a combo box of the column's entries.
class ComboColumnDelegate : public QStyledItemDelegate
{
public:
    explicit ComboColumnDelegate(VKD_H_TableWidget* table) : QStyledItemDelegate(table), m_table(table) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        auto* item = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(m_table->item(index.row(), index.column()));
        if (!item)
            return QStyledItemDelegate::createEditor(parent, option, index);
        auto* combo = new QComboBox(parent);
        combo->setObjectName(QStringLiteral("cellCombo"));
        for (const ComboList& e : item->entries())
            combo->addItem(e.text, e.id);
        // Commit as soon as the user picks, not only when the editor closes.
        connect(combo, QOverload<int>::of(&QComboBox::activated), combo, [this, combo](int) {
            auto* self = const_cast<ComboColumnDelegate*>(this);
            emit self->commitData(combo);
        });
        return combo;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        if (auto* combo = qobject_cast<QComboBox*>(editor))
            combo->setCurrentIndex(combo->findText(index.data(Qt::EditRole).toString()));
        else
            QStyledItemDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        if (auto* combo = qobject_cast<QComboBox*>(editor)) {
            if (combo->currentText() != index.data(Qt::EditRole).toString())
                model->setData(index, combo->currentText(), Qt::EditRole);
        } else {
            QStyledItemDelegate::setModelData(editor, model, index);
        }
    }

private:
    VKD_H_TableWidget* m_table;
};

} // namespace

VKD_H_TableWidget::VKD_H_TableWidget(int rows, int columns, QWidget* parent, const char* name)
    : VKD_QT_TableWidget(rows, columns, parent, name)
{
    setItemDelegate(new ComboColumnDelegate(this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                    | QAbstractItemView::EditKeyPressed);
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
        emit signal_rowCountChanged(rowCount() - (last - first + 1), rowCount());
    });
    connect(model(), &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        emit signal_rowCountChanged(rowCount() + (last - first + 1), rowCount());
    });
}

void VKD_H_TableWidget::setContextmenueEnabled_new_del(bool enabled)
{
    m_newDeleteInMenu = enabled;
}

void VKD_H_TableWidget::setHorizontalHeaderItem(int column, QTableWidgetItem* item)
{
    QTableWidget::setHorizontalHeaderItem(column, item);
    if (auto* header = dynamic_cast<VKD_H_TwHeaderItem*>(item))
        setColumnHidden(column, !header->isColumnVisible());
}

VKD_H_TwHeaderItem* VKD_H_TableWidget::headerItem(int column) const
{
    return dynamic_cast<VKD_H_TwHeaderItem*>(horizontalHeaderItem(column));
}

int VKD_H_TableWidget::getColumnNumber(int id) const
{
    for (int c = 0; c < columnCount(); ++c) {
        const VKD_H_TwHeaderItem* h = headerItem(c);
        if (h ? h->columnId() == id : c == id)
            return c;
    }
    return -1;
}

int VKD_H_TableWidget::getColumnId(int column) const
{
    if (column < 0 || column >= columnCount())
        return -1;
    const VKD_H_TwHeaderItem* h = headerItem(column);
    return h ? h->columnId() : column;
}

int VKD_H_TableWidget::addNewRow(bool selectIt)
{
    const int row = rowCount();
    insertRow(row);
    createEmptyItems(row);
    if (selectIt)
        setCurrentCell(row, 0);
    emit rowsAdded(row);
    return row;
}

void VKD_H_TableWidget::createEmptyItems(int row)
{
    // Empty cells are no change of the user's: itemChanged is for edits.
    const QSignalBlocker blocker(this);
    for (int c = 0; c < columnCount(); ++c) {
        const VKD_H_TwHeaderItem* h = headerItem(c);
        setItem(row, c, h ? h->createEmptyItem() : new QTableWidgetItem);
    }
}

void VKD_H_TableWidget::deleteSelectedRows()
{
    const std::set<int> rows = getSelectetRows();
    for (auto it = rows.rbegin(); it != rows.rend(); ++it)
        removeRow(*it);
}

QTableWidgetItem* VKD_H_TableWidget::itemOnColId(int row, int id) const
{
    const int column = getColumnNumber(id);
    return column < 0 ? nullptr : item(row, column);
}

VKD_QT_Menu* VKD_H_TableWidget::getContextMenu()
{
    auto* menu = new VKD_QT_Menu(this);
    menu->setObjectName(QStringLiteral("tableContextMenu"));
    QAction* copy = menu->addAction(tr("Copy"));
    copy->setEnabled(!selectedRanges().isEmpty());
    connect(copy, &QAction::triggered, this, &VKD_H_TableWidget::copySelection);
    QAction* all = menu->addAction(tr("Select All"));
    connect(all, &QAction::triggered, this, &QTableWidget::selectAll);
    if (m_newDeleteInMenu) {
        menu->addSeparator();
        QAction* add = menu->addAction(tr("New"));
        connect(add, &QAction::triggered, this, [this] { addNewRow(true); });
        QAction* del = menu->addAction(tr("Delete"));
        del->setEnabled(!selectedRanges().isEmpty());
        connect(del, &QAction::triggered, this, &VKD_H_TableWidget::deleteSelectedRows);
    }
    return menu;
}

void VKD_H_TableWidget::contextMenuEvent(QContextMenuEvent* event)
{
    VKD_QT_Menu* menu = getContextMenu();
    if (!menu)
        return;
    menu->exec(event->globalPos());
    delete menu;
}

void VKD_H_TableWidget::copySelection()
{
    QStringList lines;
    for (int r : getSelectetRows()) {
        QStringList cells;
        for (int c = 0; c < columnCount(); ++c)
            if (!isColumnHidden(c))
                cells << (item(r, c) ? item(r, c)->text() : QString());
        lines << cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
