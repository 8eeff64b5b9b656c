#pragma once

#include <QLabel>

// A label with an object name.
class VKD_QT_Label : public QLabel
{
    Q_OBJECT
public:
    explicit VKD_QT_Label(QWidget* parent = nullptr, const char* name = nullptr, Qt::WindowFlags flags = {});
    VKD_QT_Label(const QString& text, QWidget* parent = nullptr, const char* name = nullptr,
                 Qt::WindowFlags flags = {});
};
