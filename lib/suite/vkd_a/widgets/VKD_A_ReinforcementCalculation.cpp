#include "VKD_A_ReinforcementCalculation.h"

#include "VKD_A_BarDiameterCombo.h"

#include <VKD_H_UnitLabel.h>
#include <VKD_QT_Ok.h>
#include <vkd_a_reinforcement.h>
#include <vkd_h_units.h>

#include <QButtonGroup>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr float kNotSet = -99999.0f;
constexpr double kDefaultSpacing = 0.15; // m, a usual spacing to start from
constexpr double kMinSpacing = 0.01;     // m
constexpr double kMaxSpacing = 1.0;      // m
constexpr double kMinCount = 1.0;        // bars per metre
constexpr double kMaxCount = 100.0;
constexpr int kCountDecimals = 2;
constexpr double kSquareCentimetre = 1.0e-4; // m²
constexpr int kBarAreaDecimals = 3;

QString reinforcementText(double value)
{
    return vkd_h_getDimStringFromVal(value, VKD_H_DIM_REINFORCEMENT, -1) +
           VKD_H_UnitLabel::dimString(VKD_H_DIM_REINFORCEMENT, VKD_H_UnitLabel::BehindNumber);
}

// The unit system's distance unit, so that the spacing reads like the layer distances.
QDoubleSpinBox* spacingBox(QWidget* parent)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setObjectName(QStringLiteral("spacing"));
    box->setLocale(QLocale::c()); // a point as decimal separator, as everywhere in the suite
    box->setDecimals(vkd_h_unit(VKD_H_DIM_DISTANCE)->decimals);
    box->setRange(vkd_h_toUserUnit(kMinSpacing, VKD_H_DIM_DISTANCE),
                  vkd_h_toUserUnit(kMaxSpacing, VKD_H_DIM_DISTANCE));
    box->setSuffix(VKD_H_UnitLabel::dimString(VKD_H_DIM_DISTANCE, VKD_H_UnitLabel::BehindNumber));
    box->setValue(vkd_h_toUserUnit(kDefaultSpacing, VKD_H_DIM_DISTANCE));
    return box;
}

} // namespace

VKD_A_ReinforcementCalculationDialog::VKD_A_ReinforcementCalculationDialog(QWidget* parent, int index,
                                                                           int layers, float value,
                                                                           float barValue)
    : QDialog(parent), m_layers(qMax(1, layers))
{
    setObjectName(QStringLiteral("reinforcementCalculation"));
    setWindowTitle(tr("Reinforcement from Bars"));

    auto* grid = new QGridLayout;
    int row = 0;
    grid->addWidget(new QLabel(tr("Present value"), this), row, 0);
    auto* present = new QLabel(value == kNotSet ? tr("not set") : reinforcementText(double(value)), this);
    present->setObjectName(QStringLiteral("present"));
    grid->addWidget(present, row++, 1);

    m_bar = new VKD_A_BarDiameterCombo(this, "bar");
    m_bar->load(index);
    m_bar->setCurrent(barValue);
    grid->addWidget(new QLabel(tr("Bar"), this), row, 0);
    grid->addWidget(m_bar, row++, 1);

    m_bySpacing = new QRadioButton(tr("Spacing"), this);
    m_bySpacing->setObjectName(QStringLiteral("bySpacing"));
    m_byCount = new QRadioButton(tr("Bars per metre"), this);
    m_byCount->setObjectName(QStringLiteral("byCount"));
    auto* choice = new QButtonGroup(this);
    choice->addButton(m_bySpacing);
    choice->addButton(m_byCount);
    m_bySpacing->setChecked(true);

    m_spacing = spacingBox(this);
    m_count = new QDoubleSpinBox(this);
    m_count->setObjectName(QStringLiteral("count"));
    m_count->setLocale(QLocale::c());
    m_count->setDecimals(kCountDecimals);
    m_count->setRange(kMinCount, kMaxCount);
    m_count->setSuffix(tr(" /m"));
    grid->addWidget(m_bySpacing, row, 0);
    grid->addWidget(m_spacing, row++, 1);
    grid->addWidget(m_byCount, row, 0);
    grid->addWidget(m_count, row++, 1);

    m_barArea = new QLabel(this);
    m_barArea->setObjectName(QStringLiteral("barArea"));
    grid->addWidget(new QLabel(tr("Cross section of one bar"), this), row, 0);
    grid->addWidget(m_barArea, row++, 1);
    if (m_layers > 1) {
        grid->addWidget(new QLabel(tr("Layers"), this), row, 0);
        grid->addWidget(new QLabel(QString::number(m_layers), this), row++, 1);
    }
    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("result"));
    QFont bold = m_result->font();
    bold.setBold(true);
    m_result->setFont(bold);
    auto* resultLabel = new QLabel(tr("Reinforcement"), this);
    resultLabel->setFont(bold);
    grid->addWidget(resultLabel, row, 0);
    grid->addWidget(m_result, row++, 1);

    auto* buttons = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    m_ok = buttons->cmdOk();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(buttons);

    connect(m_bar, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &VKD_A_ReinforcementCalculationDialog::update);
    connect(m_spacing, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &VKD_A_ReinforcementCalculationDialog::spacingChanged);
    connect(m_count, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &VKD_A_ReinforcementCalculationDialog::countChanged);
    connect(m_bySpacing, &QRadioButton::toggled, this, &VKD_A_ReinforcementCalculationDialog::update);
    spacingChanged();
}

// The two inputs say the same; the one not chosen follows the other.
void VKD_A_ReinforcementCalculationDialog::spacingChanged()
{
    if (m_bySpacing->isChecked()) {
        const QSignalBlocker block(m_count);
        m_count->setValue(vkd_a_barsPerMetre(vkd_h_fromUserUnit(m_spacing->value(), VKD_H_DIM_DISTANCE)));
    }
    update();
}

void VKD_A_ReinforcementCalculationDialog::countChanged()
{
    if (m_byCount->isChecked()) {
        const QSignalBlocker block(m_spacing);
        m_spacing->setValue(vkd_h_toUserUnit(1.0 / m_count->value(), VKD_H_DIM_DISTANCE));
    }
    update();
}

double VKD_A_ReinforcementCalculationDialog::reinforcement() const
{
    const double count = m_bySpacing->isChecked()
                             ? vkd_a_barsPerMetre(vkd_h_fromUserUnit(m_spacing->value(), VKD_H_DIM_DISTANCE))
                             : m_count->value();
    return vkd_a_reinforcementFromBars(m_bar->getCurrent(), count, m_layers);
}

void VKD_A_ReinforcementCalculationDialog::update()
{
    m_spacing->setEnabled(m_bySpacing->isChecked());
    m_count->setEnabled(m_byCount->isChecked());
    const double bar = vkd_a_barCrossSection(m_bar->getCurrent());
    m_barArea->setText(bar > 0.0 ? vkd_h_formatNumber(bar / kSquareCentimetre, kBarAreaDecimals) + tr(" cm²")
                                 : tr("no bar chosen"));
    const double area = reinforcement();
    m_result->setText(area > 0.0 ? reinforcementText(area) : QStringLiteral("-"));
    m_ok->setEnabled(area > 0.0);
}

void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int layers, float& value, float barValue)
{
    VKD_A_ReinforcementCalculationDialog dialog(parent, index, layers, value, barValue);
    if (dialog.exec() == QDialog::Accepted)
        value = float(dialog.reinforcement());
}
