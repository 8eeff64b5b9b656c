#pragma once

#include <QIcon>

namespace vkd::plib::widgetgraphicaloutput {

// The pictures of the output tree, drawn into the code.
QIcon plotIcon();
// "LF" for a German desktop (language 0), "LC" for any other.
QIcon rowIcon(int language);
QIcon closeIcon();

} // namespace vkd::plib::widgetgraphicaloutput
