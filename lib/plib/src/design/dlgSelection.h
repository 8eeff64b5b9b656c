#pragma once
// The editor of a row's groups in the first column of the design parameter table: a combo of
// "None", "Remaining Groups" and the row's own list, and the buttons that open the group
// dialogs. It lives only while its cell is current; the page acts on its signals.

#include "DesignParameterData.h"

#include <QWidget>

class VKD_QT4_ComboBox;

class dlgSelection : public QWidget
{
    Q_OBJECT
public:
    dlgSelection(int zobIndex, QWidget* parent);

    // Rebuilds the entries for this row and selects the one that stands for its list.
    // "Remaining Groups" is offered unless another row holds it (remainingInUse and this row's
    // list is not [-1]), so at most one row of a page can hold it.
    void fillCombo(const DesignParameterRow& row, bool remainingInUse);

    VKD_QT4_ComboBox* comboGroups = nullptr;
    int32_t zobIndex = 0;

signals:
    void signal_groupButtonClicked();
    void signal_sekGroupButtonClicked();
    void signal_selectionComboChanged(QString text);
};
