#pragma once
// Tagged parts of a persistent string: "<tag>value</tag>", chained with nothing between them.
// Tag and value are escaped ("&", "<", ">" as entities), so no value can end its part early or
// look like the start of another one; everything else, line ends included, is kept as it is.

#include <QString>

// One part holding value under tag.
QString vkd_qt_writeXMLpart(const QString& value, const QString& tag);

// The value of the first part with this tag that starts at or behind from. A null string if there
// is none (also for a part that is not closed); an empty value gives an empty string that is not
// null. next, if given, receives the position behind the part, or -1 if none was found.
QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag, int* next);
