#include "DesignParameterTable.h"

#include <VKD_QT_Menu.h>

#include <QContextMenuEvent>
#include <QCursor>
#include <QScopedPointer>

DesignParameterTable::DesignParameterTable(QWidget* parent) : VKD_H_TableWidget(0, 5, parent, "table") {}

void DesignParameterTable::contextMenuEvent(QContextMenuEvent*)
{
    QScopedPointer<VKD_QT_Menu> menu(getContextMenu());
    if (!menu)
        return;
    menu->addSeparator();
    auto* add = new VKD_QT_Action(QIcon(), tr("New"), QKeySequence(), menu.data());
    menu->addAction(add);
    connect(add, &QAction::triggered, this, &DesignParameterTable::signal_newClicked);
    auto* del = new VKD_QT_Action(QIcon(), tr("Delete"), QKeySequence(), menu.data());
    menu->addAction(del);
    connect(del, &QAction::triggered, this, &DesignParameterTable::signal_delClicked);
    menu->exec(QCursor::pos(), nullptr);
}
