#include "VKD_QT_Layouts.h"

namespace {
template <typename Layout> void nameLayout(Layout* layout, const char* name)
{
    if (name)
        layout->setObjectName(QString::fromLatin1(name));
}
} // namespace

VKD_QT_VBoxLayout::VKD_QT_VBoxLayout(QWidget* parent, const char* name)
    : QVBoxLayout(parent)
{
    nameLayout(this, name);
}

VKD_QT_HBoxLayout::VKD_QT_HBoxLayout(QWidget* parent, const char* name)
    : QHBoxLayout(parent)
{
    nameLayout(this, name);
}

VKD_QT_GridLayout::VKD_QT_GridLayout(QWidget* parent, const char* name)
    : QGridLayout(parent)
{
    nameLayout(this, name);
}
