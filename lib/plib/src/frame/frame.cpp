// The library's two exported free functions.
#include "VKD_P_Frame.h"

#include "VKD_P_Mix_UnitTest.h"

#include <QTest>

VKD_H_Plugin* VKD_H_PluginFactory(const QString&)
{
    return nullptr;
}

int vkd_unittests(const QStringList& args)
{
    VKD_P_Mix_UnitTest test;
    const QStringList testArgs{QStringLiteral("UNITTEST"), QStringLiteral("-o"), unitTestLogFile(args)};
    return QTest::qExec(&test, testArgs) == 0 ? 0 : 1;
}
