#pragma once

#include <QIcon>
#include <QString>

namespace vkd::qt {

// An icon of the suite by its resource name, as ":/icon/program/calculator". A name that no
// resource carries gives a null icon.
QIcon icon(const QString& name);

} // namespace vkd::qt
