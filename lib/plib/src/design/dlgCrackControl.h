#pragma once
// Permissible crack width and steel stress of each layer of a row, each in an editable combo
// that offers the usual values and takes any other.

#include <VKD_QT_Dialog.h>
#include <tagZOB_QUAD_RIM.h>

class VKD_QT4_ComboBox;
class VKD_QT_GroupBox;

class dlgCrackControl : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    dlgCrackControl(tagZOB_QUAD_RIM* record, QWidget* parent);

    // Overwrites the 12 crack width and steel stress fields; those without a combo become not
    // set.
    void writeToRecord(tagZOB_QUAD_RIM* record);

public slots:
    void accept() override;

private:
    struct Field;
    static const Field kFields[12];

    VKD_QT_GroupBox* buildGroup(bool upper);

    int32_t type;
    VKD_QT4_ComboBox* m_pWKO = nullptr;
    VKD_QT4_ComboBox* m_pWKOQ = nullptr;
    VKD_QT4_ComboBox* m_pWKOI = nullptr;
    VKD_QT4_ComboBox* m_pWKU = nullptr;
    VKD_QT4_ComboBox* m_pWKUQ = nullptr;
    VKD_QT4_ComboBox* m_pWKUI = nullptr;
    VKD_QT4_ComboBox* m_pSIGO = nullptr;
    VKD_QT4_ComboBox* m_pSIGOQ = nullptr;
    VKD_QT4_ComboBox* m_pSIGOI = nullptr;
    VKD_QT4_ComboBox* m_pSIGU = nullptr;
    VKD_QT4_ComboBox* m_pSIGUQ = nullptr;
    VKD_QT4_ComboBox* m_pSIGUI = nullptr;
};
