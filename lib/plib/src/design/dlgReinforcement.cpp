#include "dlgReinforcement.h"

#include "designdialogs.h"
#include "designrecord.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_ReinforcementCalculation.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT_GroupBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_PushButton.h>
#include <vkd_h_units.h>
#include <vkd_qt_namedicon.h>

#include <QLabel>

using namespace vkd::plib::design;

namespace {

enum GridColumn
{
    ColumnLabel = 0,
    ColumnDiameter = 1,
    ColumnMinimum = 4,
    ColumnMinimumCalc = 6,
    ColumnMaximum = 8,
    ColumnMaximumCalc = 10,
};

// The calculator's third argument: one layer of bars.
constexpr int kOneLayer = 1;

} // namespace

// One layer of one side: its widgets, its record fields, its calculator slots. In the order of
// the limit checks.
struct dlgReinforcement::Layer
{
    const char* label;
    const char* comboName;
    VKD_A_BarDiameterCombo* dlgReinforcement::*combo;
    const char* minimumName;
    VKD_H_LineEdit* dlgReinforcement::*minimum;
    const char* maximumName;
    VKD_H_LineEdit* dlgReinforcement::*maximum;
    float tagZOB_QUAD_RIM::*diameterField;
    float tagZOB_QUAD_RIM::*minimumField;
    float tagZOB_QUAD_RIM::*maximumField;
    void (dlgReinforcement::*calcMinimum)();
    void (dlgReinforcement::*calcMaximum)();
};

const dlgReinforcement::Layer dlgReinforcement::kLayers[6] = {
    {QT_TR_NOOP("Principal Reinforcement"), "m_pDIO", &dlgReinforcement::m_pDIO, "aso",
     &dlgReinforcement::aso, "amo", &dlgReinforcement::amo, &tagZOB_QUAD_RIM::dio, &tagZOB_QUAD_RIM::aso,
     &tagZOB_QUAD_RIM::amo, &dlgReinforcement::calcO, &dlgReinforcement::calcMaxO},
    {QT_TR_NOOP("Principal Reinforcement"), "m_pDIU", &dlgReinforcement::m_pDIU, "asu",
     &dlgReinforcement::asu, "amu", &dlgReinforcement::amu, &tagZOB_QUAD_RIM::diu, &tagZOB_QUAD_RIM::asu,
     &tagZOB_QUAD_RIM::amu, &dlgReinforcement::calcU, &dlgReinforcement::calcMaxU},
    {QT_TR_NOOP("Cross Reinforcement"), "m_pDIOQ", &dlgReinforcement::m_pDIOQ, "asoq",
     &dlgReinforcement::asoq, "amoq", &dlgReinforcement::amoq, &tagZOB_QUAD_RIM::dioq, &tagZOB_QUAD_RIM::asoq,
     &tagZOB_QUAD_RIM::amoq, &dlgReinforcement::calcOQ, &dlgReinforcement::calcMaxOQ},
    {QT_TR_NOOP("Cross Reinforcement"), "m_pDIUQ", &dlgReinforcement::m_pDIUQ, "asuq",
     &dlgReinforcement::asuq, "amuq", &dlgReinforcement::amuq, &tagZOB_QUAD_RIM::diuq, &tagZOB_QUAD_RIM::asuq,
     &tagZOB_QUAD_RIM::amuq, &dlgReinforcement::calcUQ, &dlgReinforcement::calcMaxUQ},
    {QT_TR_NOOP("Third Layer"), "m_pDIOI", &dlgReinforcement::m_pDIOI, "asoi", &dlgReinforcement::asoi,
     "amoi", &dlgReinforcement::amoi, &tagZOB_QUAD_RIM::dioi, &tagZOB_QUAD_RIM::asoi, &tagZOB_QUAD_RIM::amoi,
     &dlgReinforcement::calcOI, &dlgReinforcement::calcMaxOI},
    {QT_TR_NOOP("Third Layer"), "m_pDIUI", &dlgReinforcement::m_pDIUI, "asui", &dlgReinforcement::asui,
     "amui", &dlgReinforcement::amui, &tagZOB_QUAD_RIM::diui, &tagZOB_QUAD_RIM::asui, &tagZOB_QUAD_RIM::amui,
     &dlgReinforcement::calcUI, &dlgReinforcement::calcMaxUI},
};

dlgReinforcement::dlgReinforcement(int zobIndex, tagZOB_QUAD_RIM* record, QWidget* parent)
    : VKD_QT_Dialog(parent), zobIndex(zobIndex)
{
    setUpDesignDialog(this, tr("Reinforcement"));
    StructLineEdit description = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(VKD_H_DIM_REINFORCEMENT);
    const bool thirdLayer = record->type == kTypeThreeLayers;

    auto* layout = new VKD_QT_VBoxLayout;
    layout->addWidget(buildGroup(true, thirdLayer, &description));
    layout->addWidget(buildGroup(false, thirdLayer, &description));
    auto* buttons = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    layout->addWidget(buttons);
    connectButtonRow(this, buttons);
    setLayout(layout);

    for (const Layer& layer : kLayers) {
        if (VKD_A_BarDiameterCombo* combo = this->*layer.combo)
            combo->setCurrent(record->*layer.diameterField);
        if (VKD_H_LineEdit* edit = this->*layer.minimum)
            edit->setVal(double(record->*layer.minimumField));
        if (VKD_H_LineEdit* edit = this->*layer.maximum)
            edit->setVal(double(record->*layer.maximumField));
    }
    // The upper third layer's maximum opens with the lower one's; OK stores it as its own.
    if (amoi)
        amoi->setVal(double(record->amui));
}

VKD_QT_GroupBox* dlgReinforcement::buildGroup(bool upper, bool thirdLayer, StructLineEdit* description)
{
    auto* group = upper ? new VKD_QT_GroupBox(tr("Upper"), this, "upper")
                        : new VKD_QT_GroupBox(tr("Lower"), this, "Lower");
    auto* grid = new VKD_QT_GridLayout(group);
    grid->addWidget(new QLabel(tr("Diameter"), group), 0, ColumnDiameter);
    grid->addWidget(new QLabel(tr("Min. Reinforcement"), group), 0, ColumnMinimum);
    grid->addWidget(new QLabel(upper ? tr("Max. Reinforcement") : tr("max. Reinforcement"), group), 0,
                    ColumnMaximum);

    const QIcon calculator = vkd::qt::icon(QStringLiteral(":/icon/program/calculator"));
    auto calcButton = [&](int row, int column, void (dlgReinforcement::*slot)()) {
        auto* button = new VKD_QT_PushButton(group, "Calc");
        button->setIcon(calculator);
        grid->addWidget(button, row, column);
        connect(button, &QPushButton::clicked, this, slot);
    };

    const int rows = thirdLayer ? 3 : 2;
    for (int row = 1; row <= rows; ++row) {
        // Upper layers stand at the even places of the table, lower ones at the odd.
        const Layer& layer = kLayers[2 * (row - 1) + (upper ? 0 : 1)];
        grid->addWidget(new QLabel(tr(layer.label), group), row, ColumnLabel);

        auto* combo = new VKD_A_BarDiameterCombo(group, layer.comboName);
        combo->load(zobIndex);
        this->*layer.combo = combo;
        grid->addWidget(combo, row, ColumnDiameter);

        auto* minimum = new VKD_H_LineEdit(group, description, layer.minimumName, tr("Minimum Reinforcement"),
                                           QString(), true);
        this->*layer.minimum = minimum;
        grid->addWidget(minimum, row, ColumnMinimum);
        calcButton(row, ColumnMinimumCalc, layer.calcMinimum);

        auto* maximum = new VKD_H_LineEdit(group, description, layer.maximumName, tr("Maximum Reinforcement"),
                                           QString(), true);
        this->*layer.maximum = maximum;
        grid->addWidget(maximum, row, ColumnMaximum);
        calcButton(row, ColumnMaximumCalc, layer.calcMaximum);
    }
    return group;
}

void dlgReinforcement::writeToRecord(tagZOB_QUAD_RIM* record)
{
    for (const Layer& layer : kLayers) {
        record->*layer.diameterField = kNotSet;
        record->*layer.minimumField = kNotSet;
        record->*layer.maximumField = kNotSet;
    }
    for (const Layer& layer : kLayers) {
        if (const VKD_A_BarDiameterCombo* combo = this->*layer.combo)
            record->*layer.diameterField = combo->getCurrent();
        if (const VKD_H_LineEdit* edit = this->*layer.minimum)
            record->*layer.minimumField = float(edit->getVal());
        if (const VKD_H_LineEdit* edit = this->*layer.maximum)
            record->*layer.maximumField = float(edit->getVal());
    }
}

bool dlgReinforcement::checkMinMax(float minimum, float maximum)
{
    if (minimum == kNotSet || maximum == kNotSet || maximum >= minimum)
        return true;
    VKD_QT_MessageBox::warning(this, tr("Warning"), tr("Min greater than Max is not allowed!"), QString(),
                               QString(), QString(), 0, -1);
    return false;
}

void dlgReinforcement::accept()
{
    // Text a field refuses is put right first; the base class points the user to it.
    for (const Layer& layer : kLayers)
        for (const VKD_H_LineEdit* edit : {this->*layer.minimum, this->*layer.maximum})
            if (edit && !edit->isInputAccepted()) {
                VKD_QT_Dialog::accept();
                return;
            }
    tagZOB_QUAD_RIM scratch{};
    writeToRecord(&scratch);
    // One message per press: the user puts the pairs right one by one.
    for (const Layer& layer : kLayers)
        if (!checkMinMax(scratch.*layer.minimumField, scratch.*layer.maximumField))
            return;
    VKD_QT_Dialog::accept();
}

void dlgReinforcement::calculate(VKD_A_BarDiameterCombo* combo, VKD_H_LineEdit* edit)
{
    if (!combo || !edit)
        return;
    float value = float(edit->getVal());
    vkd_a_ReinforcementCalculation(this, zobIndex, kOneLayer, value, combo->getCurrent());
    edit->setVal(double(value));
}

void dlgReinforcement::calcO()
{
    calculate(m_pDIO, aso);
}
void dlgReinforcement::calcU()
{
    calculate(m_pDIU, asu);
}
void dlgReinforcement::calcOQ()
{
    calculate(m_pDIOQ, asoq);
}
void dlgReinforcement::calcUQ()
{
    calculate(m_pDIUQ, asuq);
}
void dlgReinforcement::calcOI()
{
    calculate(m_pDIOI, asoi);
}
void dlgReinforcement::calcUI()
{
    calculate(m_pDIUI, asui);
}
void dlgReinforcement::calcMaxO()
{
    calculate(m_pDIO, amo);
}
void dlgReinforcement::calcMaxU()
{
    calculate(m_pDIU, amu);
}
void dlgReinforcement::calcMaxOQ()
{
    calculate(m_pDIOQ, amoq);
}
void dlgReinforcement::calcMaxUQ()
{
    calculate(m_pDIUQ, amuq);
}
void dlgReinforcement::calcMaxOI()
{
    calculate(m_pDIOI, amoi);
}
void dlgReinforcement::calcMaxUI()
{
    calculate(m_pDIUI, amui);
}
