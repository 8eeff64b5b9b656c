#pragma once

#include <QTableWidget>
#include <set>

class VKD_QT_TableWidget : public QTableWidget
{
    Q_OBJECT
public:
    VKD_QT_TableWidget(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);

    // True if any cell of the row is selected.
    bool isRowSelected(int row) const;
    // The rows with a selected cell, ascending.
    std::set<int> getSelectetRows() const;
};
