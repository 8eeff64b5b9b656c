#include "VKD_H_BoxedLineEdit.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <cmath>

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

bool VKD_H_BoxedLineEdit::readValue(const QString& text, const StructLineEdit& description, double* value)
{
    QString plain = text.trimmed();
    for (const QChar separator : description.decimalSeparators)
        plain.replace(separator, QLatin1Char('.'));
    bool ok = false;
    const double v = QLocale::c().toDouble(plain, &ok);
    if (!ok || !std::isfinite(v))
        return false;
    if (description.minimum <= description.maximum && (v < description.minimum || v > description.maximum))
        return false;
    if (value)
        *value = v;
    return true;
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
    double value = 0.0;
    m_refused = !readValue(text, m_description, &value);
    if (m_refused) {
        m_edit->setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid red; }"));
        const QString why = m_description.minimum <= m_description.maximum
                                ? tr("\"%1\" is no number from %2 to %3; %4 stays in use.")
                                      .arg(text, QString::number(m_description.minimum),
                                           QString::number(m_description.maximum), m_accepted)
                                : tr("\"%1\" is no number; %2 stays in use.").arg(text, m_accepted);
        m_edit->setToolTip(why);
        return;
    }
    m_edit->setStyleSheet(QString());
    m_edit->setToolTip(m_toolTip);
    const bool changed = text != m_accepted;
    m_accepted = text;
    if (changed)
        emit valueChanged(value);
}

// A decimal comma turns into a point once the user leaves the field, so that readers of the
// text that know only the point get the value meant.
void VKD_H_BoxedLineEdit::normalize()
{
    if (m_refused)
        return;
    QString plain = m_edit->text().trimmed();
    for (const QChar separator : m_description.decimalSeparators)
        plain.replace(separator, QLatin1Char('.'));
    if (plain != m_edit->text())
        m_edit->setText(plain);
}
