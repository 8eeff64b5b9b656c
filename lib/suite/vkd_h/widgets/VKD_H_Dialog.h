#pragma once

#include <VKD_QT_Dialog.h>

// A dialog of the project layer: a VKD_QT_Dialog that pages find among their ancestors.
class VKD_H_Dialog : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    explicit VKD_H_Dialog(QWidget* parent = nullptr, const char* name = nullptr);
};
