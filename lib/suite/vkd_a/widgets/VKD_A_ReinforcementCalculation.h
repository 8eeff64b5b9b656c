#pragma once

#include <QDialog>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QRadioButton;
class VKD_A_BarDiameterCombo;

// Works out a reinforcement, m²/m, from bars: the user picks a bar and gives either the spacing
// or the number of bars per metre; the result shows while they type. `layers` equal layers are
// summed; values below 1 count as 1.
class VKD_A_ReinforcementCalculationDialog : public QDialog
{
    Q_OBJECT
public:
    VKD_A_ReinforcementCalculationDialog(QWidget* parent, int index, int layers, float value, float barValue);

    // The reinforcement the present input gives, m²/m; 0 while it gives none.
    double reinforcement() const;

private slots:
    void spacingChanged();
    void countChanged();
    void update();

private:
    int m_layers;
    VKD_A_BarDiameterCombo* m_bar = nullptr;
    QRadioButton* m_bySpacing = nullptr;
    QRadioButton* m_byCount = nullptr;
    QDoubleSpinBox* m_spacing = nullptr;
    QDoubleSpinBox* m_count = nullptr;
    QLabel* m_barArea = nullptr;
    QLabel* m_result = nullptr;
    QPushButton* m_ok = nullptr;
};

// Runs the calculator modally for the project with this database index, starting from this
// bar. OK hands the reinforcement back in `value`, m²/m; Cancel leaves `value` as it was.
void vkd_a_ReinforcementCalculation(QWidget* parent, int index, int layers, float& value, float barValue);
