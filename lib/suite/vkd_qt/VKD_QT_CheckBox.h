#pragma once

#include <QCheckBox>

class VKD_QT_CheckBox : public QCheckBox
{
    Q_OBJECT
public:
    VKD_QT_CheckBox(const QString& text, QWidget* parent, const char* name = nullptr);
};
