#include "VKD_QT_Ok.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

VKD_QT_Ok::VKD_QT_Ok(QWidget* parent, int buttons, const char* name)
    : QWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addStretch(1);
    QDialog* dialog = nullptr;
    for (QWidget* w = parent; w && !dialog; w = w->parentWidget())
        dialog = qobject_cast<QDialog*>(w);
    if (buttons & 1) {
        m_ok = new QPushButton(tr("OK"), this);
        m_ok->setObjectName(QStringLiteral("ok"));
        m_ok->setDefault(true);
        layout->addWidget(m_ok);
        if (dialog)
            connect(m_ok, &QPushButton::clicked, dialog, &QDialog::accept);
    }
    if (buttons & 2) {
        m_cancel = new QPushButton(tr("Cancel"), this);
        m_cancel->setObjectName(QStringLiteral("cancel"));
        layout->addWidget(m_cancel);
        if (dialog)
            connect(m_cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    }
}
