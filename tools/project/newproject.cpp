#include "newproject.h"

#include "demomodel.h"
#include "design.h"

#include <VKD_H_ZOBDoc.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Makes the rename itself survive a power cut.
void syncFolder(const QString& folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

QString fillProject(const QString& path)
{
    VKD_H_ZOBDoc doc(path, VKD_H_ZOBDoc::OpenOrCreate);
    if (!doc.isValid())
        return doc.errorString();
    // One write: either all of the demo is in the new file or the file is dropped.
    doc.beginWrite();
    writeDemoModel(doc.index());
    writeDemoDesign(doc);
    doc.endWrite();
    return doc.lastWriteError();
}

} // namespace

bool createDemoProject(const QString& path, QString* error)
{
    const QFileInfo target(path);
    if (target.exists() || target.isSymLink()) {
        *error = QStringLiteral("%1 exists already; it is not overwritten.").arg(path);
        return false;
    }
    QTemporaryFile building(target.absoluteFilePath() + QStringLiteral(".new-XXXXXX"));
    if (!building.open()) {
        *error =
            QStringLiteral("The project file %1 cannot be created: %2.").arg(path, building.errorString());
        return false;
    }
    building.close();
    building.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                            QFileDevice::ReadOther);
    const QString problem = fillProject(building.fileName());
    if (!problem.isEmpty()) {
        *error = problem;
        return false;
    }
    // Fails rather than replace a file that appeared in the meantime.
    if (!building.rename(target.absoluteFilePath())) {
        *error =
            QStringLiteral("The project file %1 cannot be created: %2.").arg(path, building.errorString());
        return false;
    }
    building.setAutoRemove(false);
    syncFolder(target.absolutePath());
    return true;
}
