#pragma once

#include "GraphicalOutputRecord.h"

#include <vector>

class QIODevice;

namespace vkd::plib::widgetgraphicaloutput {

// The catalogue of the process, in file order, shared by all output trees. It only grows: a
// load in a further language puts the new records behind those of the earlier one.
std::vector<GraphicalOutputRecord>& catalogueList();

// Language of the last successful load; -1 until one succeeded.
extern int catalogueLanguage;

// Reads catalogue lines until the device ends and appends the records it accepts; a bad line is
// skipped without a word. The first form appends to catalogueList().
void parseCatalogue(QIODevice& device);
void parseCatalogue(QIODevice& device, std::vector<GraphicalOutputRecord>& records);

} // namespace vkd::plib::widgetgraphicaloutput
