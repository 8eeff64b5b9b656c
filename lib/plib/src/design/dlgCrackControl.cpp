#include "dlgCrackControl.h"

#include "designdialogs.h"
#include "designrecord.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_GroupBox.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <vkd_h_units.h>

#include <QLabel>

using namespace vkd::plib::design;

namespace {

enum GridColumn
{
    ColumnLabel = 0,
    ColumnCrackWidth = 1,
    ColumnSteelStress = 3,
};

// Usual values in the units the user reads: crack widths in mm, steel stresses in MPa.
const double kCrackPresets[] = {0.2, 0.3, 0.4};
const double kStressPresets[] = {160, 200, 240, 280, 320, 360, 400, 450};
constexpr int kPresetDecimals = 2;
// Room for the widest value and its unit, which sits inside the edit.
constexpr int kComboCharacters = 10;

} // namespace

// One combo: its field, its names and the layer it belongs to.
struct dlgCrackControl::Field
{
    VKD_QT4_ComboBox* dlgCrackControl::*combo;
    const char* comboName;
    const char* editName;
    float tagZOB_QUAD_RIM::*field;
    bool upper;
    int row; // 1 principal, 2 cross, 3 third layer
    bool crack;
};

const dlgCrackControl::Field dlgCrackControl::kFields[12] = {
    {&dlgCrackControl::m_pWKO, "m_pWKO", "crackWKO", &tagZOB_QUAD_RIM::wko, true, 1, true},
    {&dlgCrackControl::m_pWKOQ, "m_pWKOQ", "crackWKOQ", &tagZOB_QUAD_RIM::wkoq, true, 2, true},
    {&dlgCrackControl::m_pWKOI, "m_pWKOI", "crackWKOI", &tagZOB_QUAD_RIM::wkoi, true, 3, true},
    // The lower crack widths share one plain name.
    {&dlgCrackControl::m_pWKU, "m_pWKU", "crack", &tagZOB_QUAD_RIM::wku, false, 1, true},
    {&dlgCrackControl::m_pWKUQ, "m_pWKUQ", "crack", &tagZOB_QUAD_RIM::wkuq, false, 2, true},
    {&dlgCrackControl::m_pWKUI, "m_pWKUI", "crack", &tagZOB_QUAD_RIM::wkui, false, 3, true},
    {&dlgCrackControl::m_pSIGO, "m_pSIGO", "stressSIGO", &tagZOB_QUAD_RIM::sigo, true, 1, false},
    {&dlgCrackControl::m_pSIGOQ, "m_pSIGOQ", "stressSIGOQ", &tagZOB_QUAD_RIM::sigoq, true, 2, false},
    {&dlgCrackControl::m_pSIGOI, "m_pSIGOI", "stressSIGOI", &tagZOB_QUAD_RIM::sigoi, true, 3, false},
    {&dlgCrackControl::m_pSIGU, "m_pSIGU", "stressSIGU", &tagZOB_QUAD_RIM::sigu, false, 1, false},
    {&dlgCrackControl::m_pSIGUQ, "m_pSIGUQ", "stressSIGUQ", &tagZOB_QUAD_RIM::siguq, false, 2, false},
    {&dlgCrackControl::m_pSIGUI, "m_pSIGUI", "stressSIGUI", &tagZOB_QUAD_RIM::sigui, false, 3, false},
};

dlgCrackControl::dlgCrackControl(tagZOB_QUAD_RIM* record, QWidget* parent)
    : VKD_QT_Dialog(parent), type(record->type)
{
    setUpDesignDialog(this, tr("Crack Control"));

    auto* layout = new VKD_QT_VBoxLayout;
    layout->addWidget(buildGroup(true));
    layout->addWidget(buildGroup(false));
    layout->addWidget(
        new VKD_QT_InfoText(true,
                            tr("Permissible crack width for crack width control with or without direct "
                               "calculation. Crack width control acc. to EN 1992-1-1, table 7.3N "
                               "requires input for permissible steel stress."),
                            this, "infoCrack"));
    auto* buttons = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    layout->addWidget(buttons);
    connectButtonRow(this, buttons);
    setLayout(layout);

    // The stored value goes into the edit as it is: the presets only help typing.
    for (const Field& f : kFields)
        if (VKD_QT4_ComboBox* combo = this->*f.combo)
            if (auto* edit = qobject_cast<VKD_H_LineEdit*>(combo->lineEdit()))
                edit->setVal(double(record->*f.field));
}

VKD_QT_GroupBox* dlgCrackControl::buildGroup(bool upper)
{
    auto* group = upper ? new VKD_QT_GroupBox(tr("Upper"), this, "upper")
                        : new VKD_QT_GroupBox(tr("Lower"), this, "Lower");
    auto* grid = new VKD_QT_GridLayout(group);
    grid->addWidget(new QLabel(tr("Crack width"), group), 0, ColumnCrackWidth);
    grid->addWidget(new QLabel(tr("Steel stress"), group), 0, ColumnSteelStress);
    const bool thirdLayer = type == kTypeThreeLayers;
    const int rows = thirdLayer ? 3 : 2;
    grid->addWidget(new QLabel(tr("Principal Reinforcement"), group), 1, ColumnLabel);
    grid->addWidget(new QLabel(tr("Cross Reinforcement"), group), 2, ColumnLabel);
    if (thirdLayer)
        grid->addWidget(new QLabel(tr("Third Layer"), group), 3, ColumnLabel);

    StructLineEdit crackDescription = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(VKD_H_DIM_CRACK_WIDTH);
    StructLineEdit stressDescription = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(VKD_H_DIM_STEEL_STRESS);
    for (const Field& f : kFields) {
        if (f.upper != upper || f.row > rows)
            continue;
        auto* combo = new VKD_QT4_ComboBox(this, f.comboName);
        combo->setEditable(true);
        // A typed value is a value, not a new preset.
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setMinimumContentsLength(kComboCharacters);
        auto* edit = new VKD_H_LineEdit(this, f.crack ? &crackDescription : &stressDescription, f.editName,
                                        f.crack ? tr("Crack width") : tr("Steel stress"), QString(), true);
        combo->setLineEdit(edit);
        if (f.crack)
            for (double value : kCrackPresets)
                combo->insertItem(combo->count(), QIcon(), QString::number(value, 'f', kPresetDecimals),
                                  QVariant());
        else
            for (double value : kStressPresets)
                combo->insertItem(combo->count(), QIcon(), QString::number(value, 'f', kPresetDecimals),
                                  QVariant());
        this->*f.combo = combo;
        grid->addWidget(combo, f.row, f.crack ? ColumnCrackWidth : ColumnSteelStress);
    }
    return group;
}

void dlgCrackControl::writeToRecord(tagZOB_QUAD_RIM* record)
{
    for (const Field& f : kFields)
        record->*f.field = kNotSet;
    for (const Field& f : kFields)
        if (const VKD_QT4_ComboBox* combo = this->*f.combo)
            if (const auto* edit = qobject_cast<const VKD_H_LineEdit*>(combo->lineEdit()))
                record->*f.field = float(edit->getVal());
}

// Nothing to compare: the base class only keeps text a field refuses from being accepted.
void dlgCrackControl::accept()
{
    VKD_QT_Dialog::accept();
}
