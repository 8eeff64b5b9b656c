#pragma once

#include <VKD_H_TableWidget.h>

class QContextMenuEvent;

// The table of the design parameter page: five columns, one row per design parameter row.
// Its context menu adds New and Delete, which the page answers like its buttons.
class DesignParameterTable : public VKD_H_TableWidget
{
    Q_OBJECT
public:
    explicit DesignParameterTable(QWidget* parent);

signals:
    void signal_newClicked();
    void signal_delClicked();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};
