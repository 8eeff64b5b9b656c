#pragma once

#include <VKD_QT_TableWidget.h>

class VKD_H_TwHeaderItem;
class VKD_QT_Menu;

// The project layer's table: columns are known by the id of their header item
// (VKD_H_TwHeaderItem), cells are made by their column's header item, and combo columns
// edit through a combo box. A context menu offers copying and, unless switched off, New
// and Delete.
class VKD_H_TableWidget : public VKD_QT_TableWidget
{
    Q_OBJECT
public:
    VKD_H_TableWidget(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);

    void setContextmenueEnabled_new_del(bool enabled);
    // Installs a header item and takes it over; a VKD_H_TwHeaderItem names the column's id.
    void setHorizontalHeaderItem(int column, QTableWidgetItem* item);
    int getColumnNumber(int id) const;
    int getColumnId(int column) const;
    // Appends one row with the empty items of each column and gives its number.
    virtual int addNewRow(bool selectIt);
    // Gives each cell of the row the empty item of its column; emits no itemChanged.
    virtual void createEmptyItems(int row);
    void deleteSelectedRows();
    QTableWidgetItem* itemOnColId(int row, int id) const;
    // A new menu for the current position, owned by the caller, or null.
    virtual VKD_QT_Menu* getContextMenu();

signals:
    void rowsAdded(int row);
    // The number of rows went from oldCount to newCount, whichever way rows came or went.
    void signal_rowCountChanged(int oldCount, int newCount);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void copySelection();
    VKD_H_TwHeaderItem* headerItem(int column) const;
    bool m_newDeleteInMenu = true;
};
