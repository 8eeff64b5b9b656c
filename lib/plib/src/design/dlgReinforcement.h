#pragma once
// Bar diameters and minimum and maximum reinforcement of each layer of a row. The calculator
// buttons work a reinforcement out from bars; OK refuses a minimum above its maximum.

#include <VKD_QT_Dialog.h>
#include <tagZOB_QUAD_RIM.h>

class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT_GroupBox;
struct StructLineEdit;

class dlgReinforcement : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    dlgReinforcement(int zobIndex, tagZOB_QUAD_RIM* record, QWidget* parent);

    // Overwrites the 18 diameter, minimum and maximum fields; those without a widget become
    // not set.
    void writeToRecord(tagZOB_QUAD_RIM* record);
    // True if the pair may stand (either side not set, or maximum >= minimum); else warns.
    bool checkMinMax(float minimum, float maximum);

public slots:
    void calcO();
    void calcU();
    void calcOQ();
    void calcUQ();
    void calcOI();
    void calcUI();
    void calcMaxO();
    void calcMaxU();
    void calcMaxOQ();
    void calcMaxUQ();
    void calcMaxOI();
    void calcMaxUI();
    void accept() override;

private:
    struct Layer;
    static const Layer kLayers[6];

    VKD_QT_GroupBox* buildGroup(bool upper, bool thirdLayer, StructLineEdit* description);
    void calculate(VKD_A_BarDiameterCombo* combo, VKD_H_LineEdit* edit);

    int32_t zobIndex;
    VKD_A_BarDiameterCombo* m_pDIO = nullptr;
    VKD_A_BarDiameterCombo* m_pDIU = nullptr;
    VKD_A_BarDiameterCombo* m_pDIOQ = nullptr;
    VKD_A_BarDiameterCombo* m_pDIUQ = nullptr;
    VKD_A_BarDiameterCombo* m_pDIOI = nullptr;
    VKD_A_BarDiameterCombo* m_pDIUI = nullptr;
    VKD_H_LineEdit* aso = nullptr;
    VKD_H_LineEdit* asu = nullptr;
    VKD_H_LineEdit* asoq = nullptr;
    VKD_H_LineEdit* asuq = nullptr;
    VKD_H_LineEdit* asoi = nullptr;
    VKD_H_LineEdit* asui = nullptr;
    VKD_H_LineEdit* amo = nullptr;
    VKD_H_LineEdit* amu = nullptr;
    VKD_H_LineEdit* amoq = nullptr;
    VKD_H_LineEdit* amuq = nullptr;
    VKD_H_LineEdit* amoi = nullptr;
    VKD_H_LineEdit* amui = nullptr;
};
