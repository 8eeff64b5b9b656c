#include "VKD_QT_Dialog.h"

#include <QLineEdit>
#include <QToolTip>

VKD_QT_Dialog::VKD_QT_Dialog(QWidget* parent, const char* name) : QDialog(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

void VKD_QT_Dialog::callDone(int result)
{
    m_lastDone = result;
    m_detour = true;
    done(result);
}

void VKD_QT_Dialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_detour) {
        m_detour = false;
        emit isReOpen(m_lastDone);
    }
}

void VKD_QT_Dialog::accept()
{
    for (QLineEdit* field : findChildren<QLineEdit*>()) {
        if (field->isEnabled() && field->validator() && !field->hasAcceptableInput()) {
            field->setFocus(Qt::OtherFocusReason);
            field->selectAll();
            QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())), field->toolTip(), field);
            return;
        }
    }
    QDialog::accept();
}
