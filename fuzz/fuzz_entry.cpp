// Any text as a project page entry of the design parameters.
#include <projectentries.h>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    DesignParameterRow row;
    vkd::plib::design::parseEntry(QString::fromUtf8(reinterpret_cast<const char*>(data), int(size)), row);
    return 0;
}
