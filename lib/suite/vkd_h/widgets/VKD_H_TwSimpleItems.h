#pragma once

#include <QTableWidgetItem>

// A table cell with a check box.
class VKD_H_TwSimpleCheckBoxItem : public QTableWidgetItem
{
public:
    enum
    {
        Type = QTableWidgetItem::UserType + 2
    };
    explicit VKD_H_TwSimpleCheckBoxItem(bool checked = false);
    bool isChecked() const;
    void setChecked(bool checked);
    QTableWidgetItem* clone() const override;
};

// A table cell that holds one number as text. A decimal comma reads as a point.
class VKD_H_TwSimpleLineEditItem : public QTableWidgetItem
{
public:
    enum
    {
        Type = QTableWidgetItem::UserType + 3
    };
    explicit VKD_H_TwSimpleLineEditItem(const QString& text = QString());
    // The number of the cell's text; 0 with *ok false if the text is no number. ok may be null.
    double getVal(bool* ok) const;
    void setVal(double value);
    QTableWidgetItem* clone() const override;
};
