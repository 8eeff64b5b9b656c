#pragma once

#include "vkd_p_export.h"

#include <QObject>

class VKD_H_TableWidget;
class VKD_P_WidgetGraphicalOutput;
struct TableWidgetDataRecord;

// Binds a table of load cases of the host to a graphical output page: the checked rows of the
// table become the load case rows of the page's tree, "12 : Dead load" for the number 12 with a
// title, sorted by number. A change of the table that leaves the rows as they are costs nothing
// and keeps the user's choice in the tree; a real change brings back its default choice.
class VKD_P_EXPORT VKD_P_WidgetGraphicalOutput_TableWidgetData : public QObject
{
    Q_OBJECT
public:
    VKD_P_WidgetGraphicalOutput_TableWidgetData();
    ~VKD_P_WidgetGraphicalOutput_TableWidgetData() override;

    // Neither is owned. checkColumn and titleColumn are negative where the table has no such
    // column. The rows come with the first change of the table or a call of reset().
    void setWidgets(VKD_P_WidgetGraphicalOutput* page, VKD_H_TableWidget* table, int numberColumn,
                    int checkColumn, int titleColumn);

public slots:
    // Reads the table into the tree's rows.
    void reset();

private:
    TableWidgetDataRecord* data;
};
