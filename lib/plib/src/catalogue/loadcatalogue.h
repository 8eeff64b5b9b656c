#pragma once

class QWidget;

namespace vkd::plib::widgetgraphicaloutput {

// Makes sure that catalogueList() holds the catalogue graphicaloutput.data from the search path
// for language (0 German, 1 English). Reads the file only if the last successful load was in
// another language, and then appends. A missing or unreadable file is reported in a message box
// over parent, and the result is false.
bool loadCatalogue(QWidget* parent, int language);

} // namespace vkd::plib::widgetgraphicaloutput
