#include "vkd_qt_namedicon.h"

#include <QFile>

namespace vkd::qt {

QIcon icon(const QString& name)
{
    // QIcon would take a missing file for an empty but non-null icon.
    return QFile::exists(name) ? QIcon(name) : QIcon();
}

} // namespace vkd::qt
