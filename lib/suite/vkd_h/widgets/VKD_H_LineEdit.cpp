#include "VKD_H_LineEdit.h"

#include <QCompleter>
#include <QLabel>
#include <QValidator>

// Lets the user type anything (never Invalid), but only text the field can take counts as
// acceptable input.
class VKD_H_LineEditValidator : public QValidator
{
public:
    explicit VKD_H_LineEditValidator(VKD_H_LineEdit* edit) : QValidator(edit), m_edit(edit) {}
    State validate(QString& input, int&) const override
    {
        return m_edit->checkText(input).accepted() ? Acceptable : Intermediate;
    }

private:
    const VKD_H_LineEdit* m_edit;
};

namespace {
const char kRefusedStyle[] = "QLineEdit { border: 2px solid #d01010; border-radius: 2px; padding: 0px 1px; }";
constexpr int kUnitGap = 4;
} // namespace

VKD_H_LineEdit::VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* name,
                               const QString& text, const QString& secondText, bool showUnit)
    : QLineEdit(parent), m_description(description ? *description : vkd_h_defaultLineEdit(-1)), m_help(text)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    if (!secondText.isEmpty())
        setWhatsThis(secondText);
    setPlaceholderText(m_description.placeholderText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (!m_description.choices.isEmpty())
        setCompleter(new QCompleter(m_description.choices, this));
    const QString unit = vkd_h_fieldUnit(m_description);
    if (showUnit && !unit.isEmpty()) {
        m_unit = new QLabel(unit, this);
        m_unit->setObjectName(QStringLiteral("unit"));
        m_unit->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_unit->setEnabled(false); // greyed, so it reads as part of the frame, not as input
        setTextMargins(0, 0, m_unit->sizeHint().width() + kUnitGap, 0);
    }
    setValidator(new VKD_H_LineEditValidator(this));
    connect(this, &QLineEdit::textChanged, this, &VKD_H_LineEdit::textWasChanged);
    setVal(m_description.value);
}

void VKD_H_LineEdit::setVal(double value)
{
    m_givenValue = value;
    m_value = value;
    m_textOfGiven = vkd_h_fieldText(m_description, value);
    if (text() == m_textOfGiven)
        textWasChanged(m_textOfGiven);
    else
        setText(m_textOfGiven);
    setCursorPosition(0);
}

double VKD_H_LineEdit::getVal() const
{
    return m_check.accepted() ? m_check.value : m_value;
}

QString VKD_H_LineEdit::problemText() const
{
    return vkd_h_fieldProblemText(m_description, m_check.problem, text());
}

VKD_H_FieldCheck VKD_H_LineEdit::checkText(const QString& text) const
{
    // The text that setVal showed stands for the exact value, not for its rounded digits.
    if (text == m_textOfGiven)
        return vkd_h_checkFieldValue(m_description, m_givenValue);
    return vkd_h_checkFieldText(m_description, text);
}

void VKD_H_LineEdit::textWasChanged(const QString& text)
{
    m_check = checkText(text);
    if (m_check.accepted()) {
        m_value = m_check.value;
        setStyleSheet(QString());
        setToolTip(m_help);
    } else {
        setStyleSheet(QLatin1String(kRefusedStyle));
        const QString why = problemText();
        setToolTip(m_help.isEmpty() ? why : why + QLatin1Char('\n') + m_help);
    }
}

void VKD_H_LineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeUnit();
}

void VKD_H_LineEdit::placeUnit()
{
    if (!m_unit)
        return;
    const QSize size = m_unit->sizeHint();
    m_unit->setGeometry(width() - size.width() - kUnitGap, (height() - size.height()) / 2, size.width(),
                        size.height());
}
