#pragma once
// The design parameter page itself, behind the exported shell VKD_P_DesignParameter. It owns
// the rows; the table only shows texts made from them. Every edit goes into a row first, and
// the row is then drawn again.
//
// A cell editor lives only while its cell is current: selecting a summary cell lays a button
// over it, selecting elsewhere removes it. editRow and editColumn name the cell that holds it.

#include "DesignParameterData.h"

#include <VKD_A_BarDiameterData.h>

#include <QString>
#include <QWidget>

#include <memory>

class QTableWidgetItem;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

class DesignParameter : public QWidget
{
    Q_OBJECT
public:
    DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA, bool flagB);
    ~DesignParameter() override;

    bool init();
    void readZob();
    void writeToZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);
    void setEntrys(VKD_H_ProjectDialogPage& page);
    bool checkVals();

signals:
    void signal_rowCountChanged(int rowCount);

public slots:
    void help_clicked();

private slots:
    void slot_typComboChanged(QTableWidgetItem* item);
    void slot_newRowClicked();
    void slot_deleteClicked();
    void slot_editButtonClicked();
    void slot_calcReinforcementButtonClicked();
    void slot_calcCrackButtonClicked();
    void slot_openGroups();
    void slot_openSekGroups();
    void slot_editCellWidget();
    void slot_up();
    void slot_down();
    void slot_selectionComboChanged(QString text);
    void slot_onReopenGroups();
    void slot_onReopenGroupsSecondary();

private:
    void buildTable();
    bool isRowNumber(int number) const;
    // The row of the table's current cell; -1 if there is none.
    int currentDesignRow() const;
    // The row with this number, its group list sorted first.
    DesignParameterRow& rowAt(int number);
    void drawRow(const DesignParameterRow& row, int number, bool isNew);
    // Draws one row again, or with -1 appends all rows to an empty table.
    void refreshRows(int number);
    void appendRows();
    // A cell shows its text centred, read-only but for the type.
    static void showText(QTableWidgetItem& item, int column, const QString& text);
    void swapRows(int a, int b);
    // True if some row applies to the remaining groups.
    bool hasRemainingRow() const;
    // Appends the groups of all rows but this one to list (not [-1]), then sorts it.
    void collectUsedGroups(int row, std::vector<int>& list) const;
    // Takes a list a group dialog gave this row, and shows it in the row's editor if open.
    void takeGroups(int row, const std::vector<int>& groups, int editorRow);
    void widenColumns();

    std::unique_ptr<DesignParameterData> data;
    int32_t editRow = 0;
    int32_t editColumn = 0;
    bool converted = false;
    VKD_A_BarDiameterData barTable;
};
