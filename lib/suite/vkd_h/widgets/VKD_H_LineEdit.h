#pragma once

#include <StructLineEdit.h>
#include <vkd_h_fieldcheck.h>

#include <QLineEdit>

class QLabel;

// An input field for one real of a record. It shows the value in the user's unit of its
// dimension code, with the unit at its right end, and gives it back in base units. Not set
// (-99999.0) is an empty field. Text it cannot take (no number, beyond the limits, required
// but empty) is kept as typed, framed in red, and the tooltip says why; the field's validator
// then refuses it, so a VKD_QT_Dialog does not accept while the field holds it.
class VKD_H_LineEdit : public QLineEdit
{
    Q_OBJECT
public:
    // text describes the field (its tooltip), secondText, if not empty, is its longer help
    // (What's This); showUnit puts the unit of the dimension code beside the number. A null
    // description takes the default one of a bare number.
    VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* name, const QString& text,
                   const QString& secondText, bool showUnit);

    void setVal(double value);
    // The value in base units. While the text is refused, the last value the field accepted
    // or was given: never a zero made up from text it could not read.
    double getVal() const;

    bool isInputAccepted() const { return m_check.accepted(); }
    // Why the text is refused; empty while it is accepted.
    QString problemText() const;
    const StructLineEdit& description() const { return m_description; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    VKD_H_FieldCheck checkText(const QString& text) const;
    void textWasChanged(const QString& text);
    void placeUnit();

    friend class VKD_H_LineEditValidator;

    StructLineEdit m_description;
    QString m_help;
    QLabel* m_unit = nullptr;
    double m_givenValue = VKD_H_NOT_SET; // what setVal gave
    QString m_textOfGiven;               // the text shown for it, which stands for it exactly
    double m_value = VKD_H_NOT_SET;      // the last value accepted or given
    VKD_H_FieldCheck m_check;
};
