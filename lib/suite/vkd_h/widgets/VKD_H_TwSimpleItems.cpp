#include "VKD_H_TwSimpleItems.h"

#include <QLocale>

#include <cmath>

VKD_H_TwSimpleCheckBoxItem::VKD_H_TwSimpleCheckBoxItem(bool checked) : QTableWidgetItem(Type)
{
    setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

bool VKD_H_TwSimpleCheckBoxItem::isChecked() const
{
    return checkState() == Qt::Checked;
}

void VKD_H_TwSimpleCheckBoxItem::setChecked(bool checked)
{
    setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

QTableWidgetItem* VKD_H_TwSimpleCheckBoxItem::clone() const
{
    return new VKD_H_TwSimpleCheckBoxItem(*this);
}

VKD_H_TwSimpleLineEditItem::VKD_H_TwSimpleLineEditItem(const QString& text) : QTableWidgetItem(text, Type)
{
    setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

double VKD_H_TwSimpleLineEditItem::getVal(bool* ok) const
{
    QString plain = text().trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool read = false;
    double value = QLocale::c().toDouble(plain, &read);
    if (!read || !std::isfinite(value)) {
        read = false;
        value = 0.0;
    }
    if (ok)
        *ok = read;
    return value;
}

void VKD_H_TwSimpleLineEditItem::setVal(double value)
{
    setText(QString::number(value, 'g', 15));
}

QTableWidgetItem* VKD_H_TwSimpleLineEditItem::clone() const
{
    return new VKD_H_TwSimpleLineEditItem(*this);
}
