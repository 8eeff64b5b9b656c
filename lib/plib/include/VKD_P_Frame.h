#pragma once

#include "vkd_p_export.h"

#include <QString>
#include <QStringList>

class VKD_H_Plugin;

// The library offers no plug-in object by name: always null.
VKD_P_EXPORT VKD_H_Plugin* VKD_H_PluginFactory(const QString& name);

// Runs the library's self-check. An argument holding "logpath:" (any case) names the folder of
// the log file VKD_P_Mix_UnitTest.log; the last such argument wins. 0 if all checks passed.
VKD_P_EXPORT int vkd_unittests(const QStringList& args);
