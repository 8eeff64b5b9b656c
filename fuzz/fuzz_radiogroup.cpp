// Any text as the kept state of the radio group, read by each of its three forms, once coupled to
// a table and once to a plain widget. What a group writes after reading must read back to itself,
// and the coupled widget must follow the choice.
#include <QtTableView.h>
#include <VKD_P_RadioGroup.h>

#include <QApplication>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <list>
#include <memory>
#include <vector>

namespace {

struct Groups
{
    Groups()
    {
        const std::list<VKD_P_RadioGroup::ButtonID> loadCases = {
            VKD_P_RadioGroup::AllAccidental, VKD_P_RadioGroup::AllFire,
            VKD_P_RadioGroup::AllEarthquake, VKD_P_RadioGroup::AllCharacteristic,
            VKD_P_RadioGroup::AllFrequent,   VKD_P_RadioGroup::AllQuasiPermanent,
            VKD_P_RadioGroup::AllNonFrequent};
        for (int form = 0; form < 3; ++form) {
            for (bool table : {true, false}) {
                Group g;
                g.parent = std::make_unique<QWidget>();
                if (table)
                    g.table = new vkd::properties::nextGen::QtTableView(g.parent.get());
                else
                    g.plain = new QWidget(g.parent.get());
                g.group = std::make_unique<VKD_P_RadioGroup>();
                if (form == 0)
                    g.group->init(g.parent.get());
                else if (form == 1)
                    g.group->initForLF(g.parent.get(), loadCases);
                else
                    g.group->initEchoOutput(g.parent.get());
                g.group->useWidget(table ? static_cast<QWidget*>(g.table) : g.plain);
                groups.push_back(std::move(g));
            }
        }
    }
    struct Group
    {
        std::unique_ptr<QWidget> parent;
        std::unique_ptr<VKD_P_RadioGroup> group;
        vkd::properties::nextGen::QtTableView* table = nullptr;
        QWidget* plain = nullptr;
    };
    int argc = 1;
    char name[8] = "fuzz";
    char* argv[2] = {name, nullptr};
    QApplication app{argc, argv};
    std::vector<Group> groups;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Groups all;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    for (Groups::Group& g : all.groups) {
        g.group->readXML(text);
        const QString written = g.group->writeXML();
        const VKD_P_RadioGroup::ButtonID id = g.group->getSelectedId();
        g.group->readXML(written);
        if (g.group->writeXML() != written || g.group->getSelectedId() != id)
            std::abort();
        const bool manual = id == VKD_P_RadioGroup::Manually;
        if (g.table ? g.table->is_read_only() == manual : g.plain->isEnabled() != manual)
            std::abort();
    }
    return 0;
}
