#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

// Layouts with an object name. Given a parent widget they install themselves on it.
class VKD_QT_VBoxLayout : public QVBoxLayout
{
    Q_OBJECT
public:
    VKD_QT_VBoxLayout() = default;
    explicit VKD_QT_VBoxLayout(QWidget* parent, const char* name = nullptr);
};

class VKD_QT_HBoxLayout : public QHBoxLayout
{
    Q_OBJECT
public:
    VKD_QT_HBoxLayout() = default;
    explicit VKD_QT_HBoxLayout(QWidget* parent, const char* name = nullptr);
};

class VKD_QT_GridLayout : public QGridLayout
{
    Q_OBJECT
public:
    VKD_QT_GridLayout() = default;
    explicit VKD_QT_GridLayout(QWidget* parent, const char* name = nullptr);
};
