// Any bytes as a project file: opening must fail cleanly or give a project whose design
// records fold into rows without a crash.
#include <DesignParameterData.h>
#include <VKD_H_ZOBDoc.h>
#include <designstore.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("fuzz.vkd"));
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-wal"));
    QFile::remove(path + QStringLiteral("-shm"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return 0;
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    VKD_H_ZOBDoc doc(path, VKD_H_ZOBDoc::OpenExisting);
    if (!doc.isValid())
        return 0;
    DesignParameterData page;
    page.designDoc = &doc;
    page.doc = &doc;
    vkd::plib::design::readRowsFromZob(page);
    return 0;
}
