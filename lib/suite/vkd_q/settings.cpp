#include "vkd_q.h"

#include <QHash>
#include <QLocale>

namespace {

// Language of the desktop from VKD_LANGUAGE ("0"/"de" German, "1"/"en" English); without it,
// from the locale of the process.
int languageFromEnvironment()
{
    const QByteArray value = qgetenv("VKD_LANGUAGE").trimmed().toLower();
    if (value == "0" || value.startsWith("de"))
        return 0;
    if (value == "1" || value.startsWith("en"))
        return 1;
    return QLocale::system().language() == QLocale::German ? 0 : 1;
}

int echoLevelFromEnvironment()
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue("VKD_ECHO_LEVEL", &ok);
    return ok ? value : 1;
}

QHash<int, int>& settings()
{
    static QHash<int, int> values{{kSettingLanguage, languageFromEnvironment()},
                                  {kSettingEchoLevel, echoLevelFromEnvironment()}};
    return values;
}

} // namespace

int vkd_lib_getvalue(int key)
{
    return settings().value(key, 0);
}

void vkd_lib_setvalue(int key, int value)
{
    settings().insert(key, value);
}
