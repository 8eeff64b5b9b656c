#pragma once

#include <QString>

// A plug-in object that a module may hand to the desktop by name.
class VKD_H_Plugin
{
public:
    virtual ~VKD_H_Plugin() = default;
    virtual QString name() const = 0;
};
