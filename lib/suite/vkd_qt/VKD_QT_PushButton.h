#pragma once

#include <QPushButton>

class VKD_QT_PushButton : public QPushButton
{
    Q_OBJECT
public:
    VKD_QT_PushButton(const QString& text, QWidget* parent, const char* name = nullptr);
    explicit VKD_QT_PushButton(QWidget* parent, const char* name = nullptr);
};
