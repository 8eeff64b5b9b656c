#include "VKD_P_WidgetGraphicalOutput_TableWidgetData.h"

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "WidgetGraphicalOutputData.h"
#include "loadcaserows.h"

#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>

#include <algorithm>

using namespace vkd::plib::widgetgraphicaloutput;

struct TableWidgetDataRecord
{
    VKD_H_TableWidget* table = nullptr;
    int numberColumn = 0;
    int checkColumn = 0;
    int titleColumn = 0;
    GraphicalOutputTreeWidget* tree = nullptr;
    // What the table held at the last reset and the rows made of it: a host reports every
    // edit of any cell, and most leave the load cases as they were.
    std::vector<TableLoadcase> lastCases;
    std::vector<LoadcaseInformation> lastRows;
};

namespace {

bool sameCases(const std::vector<TableLoadcase>& a, const std::vector<TableLoadcase>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const TableLoadcase& x, const TableLoadcase& y) {
                          return x.value == y.value && x.title == y.title;
                      });
}

} // namespace

VKD_P_WidgetGraphicalOutput_TableWidgetData::VKD_P_WidgetGraphicalOutput_TableWidgetData()
    : data(new TableWidgetDataRecord)
{
}

VKD_P_WidgetGraphicalOutput_TableWidgetData::~VKD_P_WidgetGraphicalOutput_TableWidgetData()
{
    delete data;
}

void VKD_P_WidgetGraphicalOutput_TableWidgetData::setWidgets(VKD_P_WidgetGraphicalOutput* page,
                                                             VKD_H_TableWidget* table, int numberColumn,
                                                             int checkColumn, int titleColumn)
{
    data->table = table;
    data->numberColumn = numberColumn;
    data->checkColumn = checkColumn;
    data->titleColumn = titleColumn;
    data->tree = page ? page->data->tree : nullptr;
    if (!table)
        return;
    connect(table, &QTableWidget::itemChanged, this, &VKD_P_WidgetGraphicalOutput_TableWidgetData::reset);
    connect(table, &VKD_H_TableWidget::signal_rowCountChanged, this,
            &VKD_P_WidgetGraphicalOutput_TableWidgetData::reset);
}

void VKD_P_WidgetGraphicalOutput_TableWidgetData::reset()
{
    if (!data->tree || !data->table)
        return;
    std::vector<TableLoadcase> cases;
    for (int row = 0; row < data->table->rowCount(); ++row) {
        if (data->checkColumn >= 0) {
            const auto* check =
                dynamic_cast<VKD_H_TwSimpleCheckBoxItem*>(data->table->item(row, data->checkColumn));
            if (!check || !check->isChecked())
                continue;
        }
        const auto* number =
            dynamic_cast<VKD_H_TwSimpleLineEditItem*>(data->table->item(row, data->numberColumn));
        if (!number)
            continue;
        const QTableWidgetItem* title =
            data->titleColumn >= 0 ? data->table->item(row, data->titleColumn) : nullptr;
        cases.push_back({number->getVal(nullptr), title ? title->text() : QString()});
    }
    if (!sameCases(cases, data->lastCases)) {
        data->lastRows = loadcaseRows(cases);
        data->lastCases = std::move(cases);
    }
    // The tree is given the rows even when the table is unchanged: it may have been given
    // others in between, and it ignores rows equal to its own.
    data->tree->setUsedNumbersAndNames(data->lastRows);
}
