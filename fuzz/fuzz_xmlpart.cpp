// Tagged parts of a kept string. The first line of the input is a tag, the rest a value and also
// a text to read parts of that tag from. A part written with any tag and value must read back to
// the value, also behind a part of another tag; reading the rest as it stands must end.
#include <vkd_qt_xmlpart.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const int lineEnd = input.indexOf(QLatin1Char('\n'));
    const QString tag = lineEnd < 0 ? input : input.left(lineEnd);
    const QString value = lineEnd < 0 ? QString() : input.mid(lineEnd + 1);

    const QString other = tag + QLatin1Char('x');
    const QString chained = vkd_qt_writeXMLpart(value, other) + vkd_qt_writeXMLpart(value, tag);
    int next = 0;
    const QString first = vkd_qt_readXMLpart(chained, 0, tag, &next);
    if (first != value || first.isNull() || next != chained.size()) {
        std::fprintf(stderr, "part of tag \"%s\" read back as \"%s\" (next %d of %d)\n", qPrintable(tag),
                     qPrintable(first), next, int(chained.size()));
        std::abort();
    }
    for (int from = 0; from >= 0 && from <= value.size();) {
        const int before = from;
        vkd_qt_readXMLpart(value, from, tag, &from);
        if (from >= 0 && from <= before)
            std::abort();
    }
    return 0;
}
