#include "VKD_H_Dialog.h"

VKD_H_Dialog::VKD_H_Dialog(QWidget* parent, const char* name) : VKD_QT_Dialog(parent, name) {}
