#pragma once

#include <StructLineEdit.h>

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;

// The description of a labelled number field: where the label stands, its text and tooltip, and
// the field itself.
struct StructBoxedEdit
{
    // 1: the label stands beside the field, 0: above it.
    int labelBeside = 1;
    // 1: the label and the field stand in a frame.
    int framed = 0;
    QString label;
    QString toolTip;
    QString whatsThis;
    QString name;
    StructLineEdit lineEdit;
};

// A labelled field for one number with limits. Text that is no number or lies outside the limits
// is refused visibly (red frame, a tooltip that says why) and the field goes on answering with
// the last value it accepted. A decimal comma reads as a point.
class VKD_H_BoxedLineEdit : public QWidget
{
    Q_OBJECT
public:
    VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name);

    // The text of the last accepted value, as it was typed or set.
    QString getText() const;
    // Shows the text; it becomes the value if it is accepted.
    void setText(const QString& text);
    void setVal(double value);
    // The text as it stands in the field, accepted or not.
    QString shownText() const;
    bool isRefused() const { return m_refused; }

    // The value of a text by the description's rules; false for text that is no finite number
    // or lies outside the limits.
    static bool readValue(const QString& text, const StructLineEdit& description, double* value);

signals:
    // A new value was accepted.
    void valueChanged(double value);

private:
    void check(const QString& text);
    void normalize();

    StructLineEdit m_description;
    QString m_toolTip;
    QLabel* m_label;
    QLineEdit* m_edit;
    QString m_accepted;
    bool m_refused = false;
};
