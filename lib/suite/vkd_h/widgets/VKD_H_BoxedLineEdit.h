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
    StructLineEdit lineEdit{};
};

// A labelled field for one number with limits, read as the suite's line edits read (a decimal
// comma as a point). Text that is no number or lies outside the limits is refused visibly (red
// frame, a tooltip that says why) and the field goes on answering with the last text it accepted.
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
