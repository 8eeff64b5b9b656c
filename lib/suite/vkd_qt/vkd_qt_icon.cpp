#include "vkd_qt_icon.h"

#include <QFile>

QIcon vkd_qt_icon(int number, int size)
{
    // The pictures are drawn at 32 pixels and at twice that; QIcon scales them to other sizes.
    const QString base = QStringLiteral(":/vkd_qt/icons/%1").arg(number);
    const QString normal = base + QStringLiteral(".png");
    if (!QFile::exists(normal))
        return QIcon();
    QIcon icon;
    icon.addFile(normal, QSize(size, size));
    icon.addFile(base + QStringLiteral("@2x.png"), QSize(2 * size, 2 * size));
    return icon;
}
