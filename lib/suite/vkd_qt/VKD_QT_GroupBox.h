#pragma once

#include <QGroupBox>

class VKD_QT_GroupBox : public QGroupBox
{
    Q_OBJECT
public:
    VKD_QT_GroupBox(const QString& title, QWidget* parent, const char* name = nullptr);
};
