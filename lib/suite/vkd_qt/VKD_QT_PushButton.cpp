#include "VKD_QT_PushButton.h"

VKD_QT_PushButton::VKD_QT_PushButton(const QString& text, QWidget* parent, const char* name)
    : QPushButton(text, parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

VKD_QT_PushButton::VKD_QT_PushButton(QWidget* parent, const char* name)
    : VKD_QT_PushButton(QString(), parent, name)
{
}
