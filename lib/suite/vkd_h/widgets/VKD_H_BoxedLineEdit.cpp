#include "VKD_H_BoxedLineEdit.h"

#include <vkd_h_fieldcheck.h>

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

VKD_H_BoxedLineEdit::VKD_H_BoxedLineEdit(QWidget* parent, StructBoxedEdit* description, const char* name)
    : QWidget(parent), m_description(description ? description->lineEdit : StructLineEdit()),
      m_toolTip(description ? description->toolTip : QString()),
      m_label(new QLabel(description ? description->label : QString(), this)), m_edit(new QLineEdit(this))
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_edit->setObjectName(QStringLiteral("edit"));
    m_label->setObjectName(QStringLiteral("label"));
    m_label->setBuddy(m_edit);
    const bool beside = !description || description->labelBeside == 1;
    auto* layout = new QBoxLayout(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_edit, 1);
    if (description && description->framed == 1) {
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(QStringLiteral("VKD_H_BoxedLineEdit { border: 1px solid palette(mid); }"));
    }
    m_label->setToolTip(m_toolTip);
    if (description && !description->whatsThis.isEmpty())
        setWhatsThis(description->whatsThis);
    connect(m_edit, &QLineEdit::textChanged, this, &VKD_H_BoxedLineEdit::check);
    connect(m_edit, &QLineEdit::editingFinished, this, &VKD_H_BoxedLineEdit::normalize);
    setVal(m_description.value);
}

QString VKD_H_BoxedLineEdit::getText() const
{
    return m_accepted;
}

QString VKD_H_BoxedLineEdit::shownText() const
{
    return m_edit->text();
}

void VKD_H_BoxedLineEdit::setText(const QString& text)
{
    m_edit->setText(text);
    // setText of the same text emits no textChanged.
    check(text);
}

void VKD_H_BoxedLineEdit::setVal(double value)
{
    setText(QString::number(value, 'g', 15));
}

void VKD_H_BoxedLineEdit::check(const QString& text)
{
    const VKD_H_FieldCheck result = vkd_h_checkFieldText(m_description, text);
    m_refused = !result.accepted();
    if (m_refused) {
        m_edit->setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid red; }"));
        m_edit->setToolTip(vkd_h_fieldProblemText(m_description, result.problem, text) + QLatin1Char(' ') +
                           tr("%1 stays in use.").arg(m_accepted));
        return;
    }
    m_edit->setStyleSheet(QString());
    m_edit->setToolTip(m_toolTip);
    const bool changed = text != m_accepted;
    m_accepted = text;
    if (changed)
        emit valueChanged(result.value);
}

// A decimal comma turns into a point once the user leaves the field, so that readers of the
// text that know only the point get the value meant.
void VKD_H_BoxedLineEdit::normalize()
{
    if (m_refused)
        return;
    QString plain = m_edit->text().trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    for (const QChar separator : m_description.decimalSeparators)
        plain.replace(separator, QLatin1Char('.'));
    if (plain != m_edit->text())
        m_edit->setText(plain);
}
