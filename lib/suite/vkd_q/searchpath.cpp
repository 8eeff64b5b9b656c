#include "vkd_q.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

#ifndef VKD_DATA_INSTALL_DIR
#define VKD_DATA_INSTALL_DIR ""
#endif

namespace {

QString executableFolder()
{
    if (QCoreApplication::instance())
        return QCoreApplication::applicationDirPath();
    // Before an application object exists (static initialisers, tools without one).
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

} // namespace

QStringList vkd_lib_searchfolders(int mode)
{
    QStringList folders;
    if (mode & 1) {
        const QString env = qEnvironmentVariable("VKD_SEARCHPATH");
        for (const QString& part : env.split(QDir::listSeparator(), Qt::SkipEmptyParts))
            folders << part;
        const QString installed = QString::fromUtf8(VKD_DATA_INSTALL_DIR);
        if (!installed.isEmpty())
            folders << installed;
    }
    if (mode & 2) {
        const QString exe = executableFolder();
        if (!exe.isEmpty())
            folders << exe << exe + QStringLiteral("/data");
    }
    return folders;
}

std::string vkd_lib_searchpath(const char* name, int mode)
{
    if (!name || !*name)
        return {};
    const QString file = QString::fromUtf8(name);
    for (const QString& folder : vkd_lib_searchfolders(mode)) {
        const QFileInfo info(QDir(folder), file);
        if (info.isFile())
            return QFile::encodeName(info.absoluteFilePath()).toStdString();
    }
    return {};
}
