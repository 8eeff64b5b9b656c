#include "VKD_QT_GroupBox.h"

VKD_QT_GroupBox::VKD_QT_GroupBox(const QString& title, QWidget* parent, const char* name)
    : QGroupBox(title, parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}
