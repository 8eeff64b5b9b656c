// Loads libvkd_p_fea.so as a host does and runs its self-check with the given arguments.
// Prints the language before and after, a text translated by the library's translator and one
// by the suite's.
#include <VKD_P_Frame.h>
#include <vkd_q.h>

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const int before = vkd_lib_getvalue(kSettingLanguage);
    const int result = vkd_unittests(args);
    std::printf(
        "result %d\nlanguage %d %d\ntext %s\nsuite %s\n", result, before, vkd_lib_getvalue(kSettingLanguage),
        qUtf8Printable(QCoreApplication::translate("VKD_P_Mix_UnitTest", "Self-check of the library")),
        qUtf8Printable(QCoreApplication::translate("VKD_QT_Ok", "Cancel")));
    return result;
}
