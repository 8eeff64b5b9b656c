#include "DesignParameter.h"

#include "DesignParameterTable.h"
#include "designrecord.h"
#include "designstore.h"
#include "dlgCrackControl.h"
#include "dlgDistanceDirection.h"
#include "dlgReinforcement.h"
#include "dlgSelection.h"
#include "projectentries.h"
#include "rowtext.h"

#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderItem.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_PushButton.h>
#include <VKD_QT_SignalBlocker.h>
#include <VKD_QT_TableWidgetButton.h>
#include <VKD_T_Help.h>
#include <vkd_dbo.h>

#include <QHeaderView>
#include <QItemSelectionModel>

#include <algorithm>
#include <list>
#include <vector>

using namespace vkd::plib::design;

namespace {

int indexOf(const VKD_H_ZOBDoc* doc)
{
    return doc ? doc->index() : -1;
}

bool isSummaryColumn(int id)
{
    return id == ColumnDirection || id == ColumnReinforcement || id == ColumnCrackControl;
}

} // namespace

DesignParameter::DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                                 bool flagB)
    : QWidget(parent), data(std::make_unique<DesignParameterData>())
{
    data->barData = &barTable;
    data->flagB = flagB;
    data->flagA = flagA;
    data->doc = doc;
    data->designDoc = designDoc;
    barTable.load(indexOf(doc));
    // The host dialog, if any, is needed to leave it for a group pick in the model and to come
    // back.
    for (QWidget* w = parentWidget(); w; w = w->parentWidget()) {
        if (auto* dialog = qobject_cast<VKD_QT_Dialog*>(w)) {
            data->dialog = dialog;
            break;
        }
    }
}

DesignParameter::~DesignParameter()
{
    // The table is a child and is destroyed after this body: what it signals on its way out
    // must not reach rows that are gone.
    if (data->table)
        data->table->disconnect(this);
}

bool DesignParameter::init()
{
    data->kindOfSystem = vkd::dbo::getKindOfSystem(indexOf(data->designDoc), nullptr);
    buildTable();
    editRow = -1;
    editColumn = -1;
    setMinimumWidth(890);
    return true;
}

void DesignParameter::buildTable()
{
    auto* table = new DesignParameterTable(this);
    data->table = table;
    table->setContextmenueEnabled_new_del(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    table->verticalHeader()->show();

    std::list<ComboList> types;
    for (int type = 0; type < kDesignTypeCount; ++type)
        types.push_back({tr(designTypeName(type)), type, -99999});
    const QString selection = tr("Selection");
    const QString type = tr("Type");
    const QString direction = tr("Direction and Distance");
    const QString reinforcement = tr("Reinforcement");
    const QString crack = tr("Crack Control");
    table->setHorizontalHeaderItem(ColumnSelection, new VKD_H_TwHeaderItem(ColumnSelection, selection,
                                                                           selection, true, Qt::AlignCenter));
    table->setHorizontalHeaderItem(
        ColumnType, new VKD_H_TwHeaderComboBoxItem(ColumnType, types, type, type, true, Qt::AlignCenter));
    table->setHorizontalHeaderItem(ColumnDirection, new VKD_H_TwHeaderItem(ColumnDirection, direction,
                                                                           direction, true, Qt::AlignCenter));
    table->setHorizontalHeaderItem(
        ColumnReinforcement,
        new VKD_H_TwHeaderItem(ColumnReinforcement, reinforcement, reinforcement, true, Qt::AlignCenter));
    table->setHorizontalHeaderItem(
        ColumnCrackControl, new VKD_H_TwHeaderItem(ColumnCrackControl, crack, crack, true, Qt::AlignCenter));
    // The summaries are plain texts; the type keeps the table's own editor, its combo box.
    auto* texts = new TextSizeDelegate(table);
    for (int id : {ColumnSelection, ColumnDirection, ColumnReinforcement, ColumnCrackControl})
        table->setItemDelegateForColumn(table->getColumnNumber(id), texts);
    table->setItemDelegateForColumn(table->getColumnNumber(ColumnType),
                                    new TextSizeDelegate(table, table->itemDelegate()));
    table->resizeColumnsToContents();
    const int widths[] = {150, 150, 200, 120, 120};
    for (int id = ColumnSelection; id <= ColumnCrackControl; ++id)
        table->setColumnWidth(table->getColumnNumber(id), widths[id]);
    // Every summary has two lines: directions over distances, upper side over lower side.
    table->verticalHeader()->setDefaultSectionSize(2 * table->fontMetrics().lineSpacing() + 10);
    // A host that sizes its dialog from the page shows all columns of the rows read.
    table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContentsOnFirstShow);

    auto* box = new VKD_H_TableWidgetBox(table, tr("Design parameter"), this);
    box->createDefaultLayout(false, true);
    box->addButton(VKD_H_TableWidgetBox::New, false);
    box->addButton(VKD_H_TableWidgetBox::Delete, false);

    auto* up = new VKD_QT_PushButton(tr("Up"), table, "btnUp");
    connect(up, &QPushButton::clicked, this, &DesignParameter::slot_up);
    box->addWidget(up);
    auto* down = new VKD_QT_PushButton(tr("Down"), table, "btnDown");
    connect(down, &QPushButton::clicked, this, &DesignParameter::slot_down);
    box->addWidget(down);

    connect(box->getButton(VKD_H_TableWidgetBox::New), &QPushButton::clicked, this,
            &DesignParameter::slot_newRowClicked);
    connect(box->getButton(VKD_H_TableWidgetBox::Delete), &QPushButton::clicked, this,
            &DesignParameter::slot_deleteClicked);

    auto* layout = new VKD_QT_VBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);

    connect(table, &QTableWidget::itemChanged, this, &DesignParameter::slot_typComboChanged);
    connect(table, &QTableWidget::itemSelectionChanged, this, &DesignParameter::slot_editCellWidget);
    connect(table, &DesignParameterTable::signal_newClicked, this, &DesignParameter::slot_newRowClicked);
    connect(table, &DesignParameterTable::signal_delClicked, this, &DesignParameter::slot_deleteClicked);
}

void DesignParameter::readZob()
{
    readRowsFromZob(*data);
    refreshRows(-1);
}

void DesignParameter::writeToZob()
{
    writeRowsToZob(*data, converted);
}

void DesignParameter::getEntrys(VKD_H_ProjectDialogPage& page)
{
    readRowsFromZob(*data);
    readRowsFromEntries(*data, page);
    refreshRows(-1);
    data->entriesLoaded = true;
}

void DesignParameter::setEntrys(VKD_H_ProjectDialogPage& page)
{
    // The entries are written from the rows in the stored form, which the first writer makes.
    writeRowsToZob(*data, converted);
    writeRowsToEntries(*data, page);
}

bool DesignParameter::checkVals()
{
    // Rows without groups are kept by the project page, if there is one.
    if (data->entriesLoaded)
        return true;
    const bool allNamed = std::all_of(data->rows.begin(), data->rows.end(),
                                      [](const DesignParameterRow& row) { return !row.groups.empty(); });
    if (allNamed)
        return true;
    return VKD_QT_MessageBox::warning(this, tr("Warning"), tr("No groups selected.\nPossible loss of data!"),
                                      QMessageBox::Yes, QMessageBox::No, 0) != QMessageBox::No;
}

void DesignParameter::help_clicked()
{
    VKD_T_Help::show(this, "MERDAN", "PARA");
}

bool DesignParameter::isRowNumber(int number) const
{
    return number >= 0 && size_t(number) < data->rows.size();
}

DesignParameterRow& DesignParameter::rowAt(int number)
{
    DesignParameterRow& row = data->rows[size_t(number)];
    std::sort(row.groups.begin(), row.groups.end());
    return row;
}

void DesignParameter::drawRow(const DesignParameterRow& row, int number, bool isNew)
{
    DesignParameterTable* table = data->table;
    VKD_QT_SignalBlocker blocker(table);
    if (isNew)
        table->createEmptyItems(number);
    RowTextMaker texts;
    for (int column = ColumnSelection; column <= ColumnCrackControl; ++column)
        if (QTableWidgetItem* item = table->itemOnColId(number, column))
            showText(*item, column, texts.text(row, column));
}

void DesignParameter::showText(QTableWidgetItem& item, int column, const QString& text)
{
    item.setText(text);
    item.setTextAlignment(Qt::AlignCenter);
    if (column != ColumnType)
        item.setFlags(item.flags() & ~Qt::ItemIsEditable);
}

void DesignParameter::refreshRows(int number)
{
    DesignParameterTable* table = data->table;
    if (!table)
        return;
    if (number != -1) {
        if (isRowNumber(number) && number < table->rowCount()) {
            drawRow(data->rows[size_t(number)], number, false);
            widenColumns();
        }
        return;
    }
    appendRows();
    widenColumns();
    emit signal_rowCountChanged(table->rowCount());
}

void DesignParameter::appendRows()
{
    // The rows are appended at the end and drawn from the top, so that a table that had rows
    // already keeps rows without text behind the drawn ones. All rows come in at once, every
    // cell is filled before it enters the table, and the model reports all drawn cells in one,
    // not each cell on its own (unless the table sorts, which moves rows as cells come).
    DesignParameterTable* table = data->table;
    QAbstractItemModel* model = table->model();
    const int first = table->rowCount();
    const int count = int(data->rows.size());
    const int columns = table->columnCount();
    const bool reportOnce = !table->isSortingEnabled() && count > 0 && columns > 0;
    // The table tells of its new row count once, as it told of each added row.
    table->setRowCount(first + count);
    {
        VKD_QT_SignalBlocker blocker(table);
        RowTextMaker texts;
        std::vector<int> ids(size_t(columns), -1);
        std::vector<const VKD_H_TwHeaderItem*> headers(size_t(columns), nullptr);
        for (int c = 0; c < columns; ++c) {
            ids[size_t(c)] = table->getColumnId(c);
            headers[size_t(c)] = dynamic_cast<const VKD_H_TwHeaderItem*>(table->horizontalHeaderItem(c));
        }
        const QSignalBlocker quiet(reportOnce ? model : nullptr);
        for (int r = 0; r < count; ++r) {
            const DesignParameterRow& row = data->rows[size_t(r)];
            for (int c = 0; c < columns; ++c) {
                // A new item of the column as its header makes them, as an added row has.
                const VKD_H_TwHeaderItem* header = headers[size_t(c)];
                QTableWidgetItem* item = header ? header->createEmptyItem() : new QTableWidgetItem;
                const int id = ids[size_t(c)];
                if (id >= ColumnSelection && id <= ColumnCrackControl)
                    showText(*item, id, texts.text(row, id));
                table->setItem(r, c, item);
            }
        }
    }
    if (reportOnce)
        emit model->dataChanged(model->index(0, 0), model->index(count - 1, columns - 1));
    {
        VKD_QT_SignalBlocker blocker(table);
        for (int r = std::max(first, count); r < first + count; ++r)
            table->createEmptyItems(r);
    }
    for (int r = first; r < first + count; ++r)
        emit table->rowsAdded(r);
}

void DesignParameter::widenColumns()
{
    // A summary is read as a whole or not at all, so a column grows with its texts. It never
    // shrinks below what it has (the user may have widened it), nor grows past a width at
    // which a long list of groups would push the other columns out of sight.
    constexpr int widest = 480;
    DesignParameterTable* table = data->table;
    for (int column = 0; column < table->columnCount(); ++column) {
        const int width = table->columnWidth(column);
        if (width >= widest)
            continue;
        table->resizeColumnToContents(column);
        table->setColumnWidth(column, qBound(width, table->columnWidth(column), widest));
    }
    // Lays out the headers now, so that the size the table asks for counts the row numbers too.
    table->doItemsLayout();
}

void DesignParameter::swapRows(int a, int b)
{
    const DesignParameterRow copy = data->rows[size_t(a)];
    data->rows[size_t(a)] = data->rows[size_t(b)];
    data->rows[size_t(b)] = copy;
}

void DesignParameter::slot_typComboChanged(QTableWidgetItem* item)
{
    if (!item || !item->tableWidget() || item->column() != ColumnType)
        return;
    DesignParameterTable* table = data->table;
    const int row = item->row();
    auto* combo = dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(table->itemOnColId(row, ColumnType));
    if (!combo || !isRowNumber(row))
        return;
    VKD_QT_SignalBlocker blocker(table);
    // Only the type changes: values of a third layer stay in the record when the type goes to
    // two layers, and come back with it.
    rowAt(row).record.type = combo->getCurrentId();
    refreshRows(row);
}

void DesignParameter::slot_newRowClicked()
{
    DesignParameterTable* table = data->table;
    const int target = table->rowCount() + 1;
    table->addNewRow(false);
    while (table->rowCount() > target)
        table->removeRow(table->rowCount() - 1);
    const DesignParameterRow& row = addDefaultRow(*data);
    const int added = table->rowCount() - 1;
    drawRow(row, added, true);
    widenColumns();
    // The user goes on in the new row: current on its type, the one cell it edits, and in sight
    // however long the table has grown. The selection stays as it was, so that no cell editor
    // moves and Delete still acts on the rows the user chose.
    const QModelIndex type = table->model()->index(added, table->getColumnNumber(ColumnType));
    table->selectionModel()->setCurrentIndex(type, QItemSelectionModel::NoUpdate);
    table->scrollTo(type);
    emit signal_rowCountChanged(table->rowCount());
}

void DesignParameter::slot_deleteClicked()
{
    DesignParameterTable* table = data->table;
    // The row of the remaining groups stays; a selection that holds it deletes nothing at all.
    if (table->isRowSelected(0))
        return;
    const std::set<int> selected = table->getSelectetRows();
    table->deleteSelectedRows();
    for (auto it = selected.rbegin(); it != selected.rend(); ++it) {
        if (isRowNumber(*it))
            data->rows.erase(data->rows.begin() + *it);
    }
    emit signal_rowCountChanged(table->rowCount());
}

void DesignParameter::slot_up()
{
    DesignParameterTable* table = data->table;
    const int r = table->currentRow();
    // Row 0 belongs to the remaining groups: nothing moves onto it.
    if (r <= 1 || !isRowNumber(r))
        return;
    swapRows(r, r - 1);
    refreshRows(r);
    refreshRows(r - 1);
    table->setCurrentCell(r - 1, table->currentColumn());
}

void DesignParameter::slot_down()
{
    DesignParameterTable* table = data->table;
    const int r = table->currentRow();
    if (r >= table->rowCount() - 1 || r <= 0 || !isRowNumber(r + 1))
        return;
    swapRows(r, r + 1);
    refreshRows(r);
    refreshRows(r + 1);
    table->setCurrentCell(r + 1, table->currentColumn());
}

void DesignParameter::slot_editCellWidget()
{
    DesignParameterTable* table = data->table;
    const int row = table->currentRow();
    const int col = table->currentColumn();
    const int id = col < 0 ? -1 : table->getColumnId(col);

    // The groups of row 0 are not edited; an editor open elsewhere stays open.
    if (row == 0 && col == 0)
        return;

    if (editColumn >= 0 && table->getColumnId(editColumn) == ColumnSelection) {
        if (auto* editor = qobject_cast<dlgSelection*>(table->cellWidget(editRow, editColumn))) {
            // The choice is in the row already; entries without an id (-1) change nothing here.
            const int id = editor->comboGroups->getCurrentId();
            if (isRowNumber(editRow) && id == 0)
                data->rows[size_t(editRow)].groups.clear();
            else if (isRowNumber(editRow) && id == 1)
                data->rows[size_t(editRow)].groups = {-1};
            refreshRows(editRow);
            table->setCellWidget(editRow, editColumn, nullptr);
        }
    }
    if (editColumn >= 0 && isSummaryColumn(table->getColumnId(editColumn)))
        table->setCellWidget(editRow, editColumn, nullptr);

    // Selecting the cell of the open editor again closes it and opens none.
    if (row == editRow && col == editColumn) {
        editRow = -1;
        editColumn = -1;
        return;
    }

    if (id == ColumnSelection && isRowNumber(row)) {
        auto* editor = new dlgSelection(indexOf(data->doc), table);
        editor->fillCombo(rowAt(row), hasRemainingRow());
        table->setCellWidget(row, col, editor);
        connect(editor, &dlgSelection::signal_groupButtonClicked, this, &DesignParameter::slot_openGroups);
        connect(editor, &dlgSelection::signal_selectionComboChanged, this,
                &DesignParameter::slot_selectionComboChanged);
        connect(editor, &dlgSelection::signal_sekGroupButtonClicked, this,
                &DesignParameter::slot_openSekGroups);
        if (QTableWidgetItem* item = table->item(row, col)) {
            VKD_QT_SignalBlocker blocker(table);
            item->setText(QString());
        }
    }

    if (QTableWidgetItem* item = table->item(row, col)) {
        if (isSummaryColumn(id)) {
            // A row without design has no values to edit. The old cell stays recorded.
            if (!isRowNumber(row) || data->rows[size_t(row)].record.type == 0)
                return;
            auto* button =
                new VKD_QT_TableWidgetButton(table, item,
                                             id == ColumnDirection ? VKD_QT_TableWidgetButton::EditText
                                                                   : VKD_QT_TableWidgetButton::TextButton);
            table->setCellWidget(row, col, button);
            if (id == ColumnDirection)
                connect(button, &VKD_QT_TableWidgetButton::clicked, this,
                        &DesignParameter::slot_editButtonClicked);
            else if (id == ColumnReinforcement)
                connect(button, &VKD_QT_TableWidgetButton::clicked, this,
                        &DesignParameter::slot_calcReinforcementButtonClicked);
            else
                connect(button, &VKD_QT_TableWidgetButton::clicked, this,
                        &DesignParameter::slot_calcCrackButtonClicked);
        }
    }
    editRow = row;
    editColumn = col;
}

namespace {

// Shows a design dialog on a row's record and writes it back only on OK.
template <typename Dialog> bool confirmed(Dialog& dialog, tagZOB_QUAD_RIM* record)
{
    if (dialog.exec() != QDialog::Accepted)
        return false;
    dialog.writeToRecord(record);
    return true;
}

} // namespace

int DesignParameter::currentDesignRow() const
{
    const int r = data->table ? data->table->currentRow() : -1;
    return isRowNumber(r) ? r : -1;
}

void DesignParameter::slot_editButtonClicked()
{
    const int r = currentDesignRow();
    if (r < 0)
        return;
    tagZOB_QUAD_RIM* record = &rowAt(r).record;
    dlgDistanceDirection dialog(record, this);
    if (confirmed(dialog, record))
        refreshRows(r);
}

void DesignParameter::slot_calcReinforcementButtonClicked()
{
    const int r = currentDesignRow();
    if (r < 0)
        return;
    tagZOB_QUAD_RIM* record = &rowAt(r).record;
    dlgReinforcement dialog(indexOf(data->doc), record, this);
    if (confirmed(dialog, record))
        refreshRows(r);
}

void DesignParameter::slot_calcCrackButtonClicked()
{
    const int r = currentDesignRow();
    if (r < 0)
        return;
    tagZOB_QUAD_RIM* record = &rowAt(r).record;
    dlgCrackControl dialog(record, this);
    if (confirmed(dialog, record))
        refreshRows(r);
}

bool DesignParameter::hasRemainingRow() const
{
    return std::any_of(data->rows.begin(), data->rows.end(), [](const DesignParameterRow& row) {
        return row.groups.size() == 1 && row.groups.front() == -1;
    });
}

void DesignParameter::collectUsedGroups(int row, std::vector<int>& list) const
{
    for (size_t i = 0; i < data->rows.size(); ++i) {
        const std::vector<int32_t>& groups = data->rows[i].groups;
        if (int(i) == row || groups.empty() || (groups.size() == 1 && groups.front() == -1))
            continue;
        list.insert(list.end(), groups.begin(), groups.end());
    }
    std::sort(list.begin(), list.end());
}

void DesignParameter::takeGroups(int row, const std::vector<int>& groups, int editorRow)
{
    DesignParameterTable* table = data->table;
    data->rows[size_t(row)].groups = groups;
    auto* editor =
        qobject_cast<dlgSelection*>(table->cellWidget(editorRow, table->getColumnNumber(ColumnSelection)));
    if (editor && isRowNumber(editorRow)) {
        const bool remainingInUse = hasRemainingRow();
        editor->fillCombo(rowAt(editorRow), remainingInUse);
    }
}

void DesignParameter::slot_openGroups()
{
    DesignParameterTable* table = data->table;
    const int row = table->currentRow();
    if (!isRowNumber(row))
        return;
    std::vector<int> checked = rowAt(row).groups;
    std::vector<int> used;
    collectUsedGroups(row, used);
    VKD_H_SelGRP_Dialog dialog(data->entriesLoaded, 200, data->doc, checked, used, nullptr, this,
                               "Group Selection");
    const int result = dialog.exec();
    if (result == 1) {
        std::vector<int> chosen;
        dialog.getChecked(chosen);
        takeGroups(row, chosen, row);
    } else if (result == VKD_H_SelGRP_Dialog::PickInModel && data->dialog) {
        // Without a host dialog there is nothing to leave for the pick. The connection is made
        // once however often the user leaves.
        disconnect(data->dialog, &VKD_QT_Dialog::isReOpen, this, &DesignParameter::slot_onReopenGroups);
        connect(data->dialog, &VKD_QT_Dialog::isReOpen, this, &DesignParameter::slot_onReopenGroups);
        data->dialog->callDone(VKD_H_SelGRP_Dialog::PickInModel);
    }
}

void DesignParameter::slot_onReopenGroups()
{
    std::vector<int> picked;
    if (VKD_H_SelGRP_Dialog::getAniSelectionFromZob(indexOf(data->doc), picked) == -1)
        return;
    DesignParameterTable* table = data->table;
    const int column = table->getColumnNumber(ColumnSelection);
    const int row = table->currentRow();
    if (column < 0 || !isRowNumber(row))
        return;
    takeGroups(row, picked, row);
}

// The secondary group dialog has no detour out of the host dialog, so nothing comes back here.
void DesignParameter::slot_onReopenGroupsSecondary() {}

void DesignParameter::slot_openSekGroups()
{
    DesignParameterTable* table = data->table;
    const int row = table->currentRow();
    if (!isRowNumber(row) || !table->item(row, table->getColumnNumber(ColumnSelection)))
        return;
    const std::vector<int> checked = rowAt(row).groups;
    std::vector<int> used;
    collectUsedGroups(row, used);
    VKD_H_SecondaryGroupDialog dialog(data->doc, checked, used, this);
    if (dialog.exec() != 1)
        return;
    std::vector<int> chosen;
    dialog.getChecked(chosen);
    takeGroups(row, chosen, table->currentRow());
}

void DesignParameter::slot_selectionComboChanged(QString text)
{
    DesignParameterTable* table = data->table;
    const int row = table->currentRow();
    if (!qobject_cast<dlgSelection*>(table->cellWidget(row, table->currentColumn())) || !isRowNumber(row))
        return;
    // The entries are made in the editor's context; the same words here, or no match.
    std::vector<int32_t>& groups = data->rows[size_t(row)].groups;
    if (text == tr("Remaining Groups"))
        groups = {-1};
    else if (text == tr("None"))
        groups.clear();
    else if (!text.isEmpty())
        std::sort(groups.begin(), groups.end());
}
