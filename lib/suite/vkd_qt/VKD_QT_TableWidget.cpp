#include "VKD_QT_TableWidget.h"

VKD_QT_TableWidget::VKD_QT_TableWidget(int rows, int columns, QWidget* parent, const char* name)
    : QTableWidget(rows, columns, parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

bool VKD_QT_TableWidget::isRowSelected(int row) const
{
    const std::set<int> rows = getSelectetRows();
    return rows.count(row) > 0;
}

std::set<int> VKD_QT_TableWidget::getSelectetRows() const
{
    std::set<int> rows;
    for (const QTableWidgetSelectionRange& range : selectedRanges())
        for (int r = range.topRow(); r <= range.bottomRow(); ++r)
            rows.insert(r);
    return rows;
}
