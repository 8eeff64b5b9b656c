#include "VKD_H_TabDialog.h"

VKD_H_TabDialog::VKD_H_TabDialog(QWidget* parent, const char* name) : VKD_QT_TabDialog(parent, name) {}
