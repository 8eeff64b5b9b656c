#include "VKD_QT_CheckBox.h"

VKD_QT_CheckBox::VKD_QT_CheckBox(const QString& text, QWidget* parent, const char* name)
    : QCheckBox(text, parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}
