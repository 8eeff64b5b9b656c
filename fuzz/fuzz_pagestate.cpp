// Any text as the kept state of a graphical output page, read by a standard page with a preview
// and by a split page. What a page writes after reading it must read back to the same string.
#include <AnimatorView.h>
#include <VKD_P_WidgetGraphicalOutput.h>
#include <catalogue.h>
#include <vkd_q.h>
#include <vkd_qt_xmlpart.h>

#include <QApplication>
#include <QBuffer>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

struct Pages
{
    Pages()
    {
        QBuffer catalogue;
        catalogue.setData("1|122|0|@T01 T|@C01 C|@P01 P|All|0|last-l|1|3| |0|BILD|PICT\n"
                          "1|122|0|@T01 T|@C01 C|@P02 Q|All|0|none|0|3| |0|BILD|PICT\n");
        catalogue.open(QIODevice::ReadOnly);
        vkd::plib::widgetgraphicaloutput::parseCatalogue(catalogue);
        vkd::plib::widgetgraphicaloutput::catalogueLanguage = vkd_lib_getvalue(102);
        standard =
            new VKD_P_WidgetGraphicalOutput(nullptr, GraphicalOutputStandard, nullptr, new AnimatorView(0));
        split = new VKD_P_WidgetGraphicalOutput(nullptr, GraphicalOutputSplit, nullptr, nullptr);
    }
    int argc = 1;
    char name[8] = "fuzz";
    char* argv[2] = {name, nullptr};
    QApplication app{argc, argv};
    VKD_P_WidgetGraphicalOutput* standard;
    VKD_P_WidgetGraphicalOutput* split;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Pages pages;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    for (int from = 0, next = 0; from >= 0 && from <= text.size(); from = next)
        vkd_qt_readXMLpart(text, from, QStringLiteral("List_4"), &next);
    for (VKD_P_WidgetGraphicalOutput* page : {pages.standard, pages.split}) {
        page->readXMLstring(text);
        const QString written = page->writeXMLstring();
        page->readXMLstring(written);
        if (page->writeXMLstring() != written)
            std::abort();
    }
    return 0;
}
