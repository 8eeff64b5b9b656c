#pragma once

#include <VKD_QT_TabDialog.h>

// A tab dialog of the project layer: a VKD_QT_TabDialog that pages find among their ancestors.
class VKD_H_TabDialog : public VKD_QT_TabDialog
{
    Q_OBJECT
public:
    explicit VKD_H_TabDialog(QWidget* parent = nullptr, const char* name = nullptr);
};
