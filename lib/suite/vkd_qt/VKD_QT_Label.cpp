#include "VKD_QT_Label.h"

VKD_QT_Label::VKD_QT_Label(QWidget* parent, const char* name, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

VKD_QT_Label::VKD_QT_Label(const QString& text, QWidget* parent, const char* name, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}
