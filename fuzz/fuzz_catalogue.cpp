// Any bytes as a catalogue file: the parser must neither crash nor read out of bounds.
#include <catalogue.h>

#include <QBuffer>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    std::vector<GraphicalOutputRecord> records;
    vkd::plib::widgetgraphicaloutput::parseCatalogue(buffer, records);
    return 0;
}
