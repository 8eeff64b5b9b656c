#include "VKD_P_WidgetGraphicalOutput_TableWidgetData.h"

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "WidgetGraphicalOutputData.h"
#include "loadcaserows.h"

#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>

using namespace vkd::plib::widgetgraphicaloutput;

struct TableWidgetDataRecord
{
    VKD_H_TableWidget* table = nullptr;
    int numberColumn = 0;
    int checkColumn = 0;
    int titleColumn = 0;
    GraphicalOutputTreeWidget* tree = nullptr;
};

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
    data->tree->setUsedNumbersAndNames(loadcaseRows(cases));
}
