#include "demomodel.h"

#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QString>

#include <cstring>

using namespace vkd::dbo;

namespace {

// A cross section of the demo: rectangle width and height (m) and a title. The store takes any
// record at its key pair; this one is what the demo's sections need.
#pragma pack(push, 4)
struct SectionRecord
{
    int32_t number;
    float width, height;
    char title[32];
};
#pragma pack(pop)

SectionRecord makeSection(int number, float width, float height, const char* title)
{
    SectionRecord s{number, width, height, {}};
    std::strncpy(s.title, title, sizeof s.title - 1);
    return s;
}

void writeSections(int index, const std::vector<SectionRecord>& sections)
{
    vkd_zob_lock_ex(index, KeyCrossSections, 1);
    int length = 0;
    vkd_zob_put(index, KeyCrossSections, 1, nullptr, &length, 0);
    length = int(sizeof(SectionRecord));
    for (const SectionRecord& s : sections)
        vkd_zob_put(index, KeyCrossSections, 1, &s, &length, 1);
    vkd_zob_free_ex(index, KeyCrossSections, 1);
}

// Groups of the model; the slab bays keep 1 to 4.
enum DemoGroup : int
{
    BayA = 1,
    BayB,
    BayC,
    BayD,
    EdgeBeams = 10,
    Columns = 11,
    Walls = 12
};

// Two spans of 5 m in x, 6 m wide in y, quads of 1 m; columns of 3 m under the middle support.
constexpr int spans = 2, spanQuads = 5, nx = spans * spanQuads, ny = 6;
constexpr float columnHeight = 3.0f;
constexpr int firstFootNode = 1001;

int nodeNumber(int i, int j)
{
    return 1 + j * (nx + 1) + i;
}

// The camera the preview starts with: from the south-west, a little above the slab.
const char* const demoCamera = "35 30 1.2 0 0";

} // namespace

void writeDemoModel(int index, DemoSecondaryGroups secondary)
{
    // The slab: bays A and B along the south edge (span 1, span 2), C and D along the north.
    std::vector<NodeRecord> nodes;
    for (int j = 0; j <= ny; ++j)
        for (int i = 0; i <= nx; ++i)
            nodes.push_back({nodeNumber(i, j), float(i), float(j), 0.0f});
    std::vector<ElementRecord> quads;
    for (int j = 0; j < ny; ++j)
        for (int i = 0; i < nx; ++i) {
            const int group = BayA + (i >= spanQuads ? 1 : 0) + (j >= ny / 2 ? 2 : 0);
            quads.push_back(
                {int(quads.size()) + 1,
                 group,
                 {nodeNumber(i, j), nodeNumber(i + 1, j), nodeNumber(i + 1, j + 1), nodeNumber(i, j + 1)}});
        }

    // Edge beams along the south and north edges.
    std::vector<ElementRecord> beams;
    for (int i = 0; i < nx; ++i) {
        beams.push_back({1001 + i, EdgeBeams, {nodeNumber(i, 0), nodeNumber(i + 1, 0), 0, 0}});
        beams.push_back({1101 + i, EdgeBeams, {nodeNumber(i, ny), nodeNumber(i + 1, ny), 0, 0}});
    }
    // Three columns under the middle support, each on a spring at its foot.
    std::vector<ElementRecord> springs;
    const int columnRows[] = {0, ny / 2, ny};
    for (int j : columnRows) {
        const int foot = firstFootNode + int(springs.size());
        nodes.push_back({foot, float(spanQuads), float(j), -columnHeight});
        beams.push_back({1201 + int(springs.size()), Columns, {foot, nodeNumber(spanQuads, j), 0, 0}});
        springs.push_back({2001 + int(springs.size()), Columns, {foot, 0, 0, 0}});
    }
    // The end walls hold the slab along x = 0 and x = 10.
    std::vector<ElementRecord> walls;
    for (int i : {0, nx})
        for (int j = 0; j <= ny; ++j)
            walls.push_back({3001 + int(walls.size()), Walls, {nodeNumber(i, j), 0, 0, 0}});

    setKindOfSystem(index, 0);
    writeAll(index, KeyNodes, nodes);
    writeAll(index, KeyQuads, quads);
    writeAll(index, KeyBeams, beams);
    writeAll(index, KeySprings, springs);
    writeAll(index, KeyBoundaries, walls);
    writeAll(index, KeyGroups,
             std::vector<GroupRecord>{
                 makeGroup(BayA, QStringLiteral("Slab bay A")), makeGroup(BayB, QStringLiteral("Slab bay B")),
                 makeGroup(BayC, QStringLiteral("Slab bay C")), makeGroup(BayD, QStringLiteral("Slab bay D")),
                 makeGroup(EdgeBeams, QStringLiteral("Edge beams")),
                 makeGroup(Columns, QStringLiteral("Columns")), makeGroup(Walls, QStringLiteral("Walls"))});
    if (secondary == DemoSecondaryGroups::Included) {
        // Named across the numbered groups: the strips over the middle supports and the edge.
        std::vector<GroupRecord> named;
        const char* const names[][2] = {
            {"SX", "Strip over the support, x"}, {"SY", "Strip over the support, y"}, {"EDGE", "Slab edge"}};
        for (const auto& n : names) {
            int32_t number = 0;
            packSecondaryGroupName(QString::fromLatin1(n[0]), &number);
            named.push_back(makeGroup(number, QString::fromLatin1(n[1])));
        }
        writeAll(index, KeySecondaryGroups, named);
    }

    // Design lines, each its start and end point: over the middle support and at midspan.
    const float lineX[] = {float(spanQuads), spanQuads / 2.0f, spanQuads * 1.5f};
    for (int line = 1; line <= 3; ++line) {
        const float x = lineX[line - 1];
        writeAll(index, KeyDesignLines, std::vector<NodeRecord>{{1, x, 0.0f, 0.0f}, {2, x, float(ny), 0.0f}},
                 line);
    }
    writeSections(index,
                  {makeSection(1, 1.0f, 0.24f, "Slab 24 cm"), makeSection(2, 0.30f, 0.60f, "Edge beam 30/60"),
                   makeSection(3, 0.40f, 0.40f, "Column 40/40")});

    writeAll(
        index, KeyLoadCases,
        std::vector<LoadCaseRecord>{
            makeLoadCase(1, 0, QStringLiteral("Self weight")), makeLoadCase(2, 0, QStringLiteral("Finishes")),
            makeLoadCase(3, 1, QStringLiteral("Imposed load")), makeLoadCase(4, 1, QStringLiteral("Snow")),
            makeLoadCase(5, 2, QStringLiteral("Vehicle impact")),
            makeLoadCase(6, 1, QStringLiteral("Imposed load, span 1")),
            makeLoadCase(7, 1, QStringLiteral("Imposed load, span 2")),
            makeLoadCase(8, 1, QStringLiteral("Wind in x")), makeLoadCase(9, 1, QStringLiteral("Wind in y")),
            makeLoadCase(101, 4, QStringLiteral("ULS design combination")),
            makeLoadCase(102, 4, QStringLiteral("SLS characteristic combination")),
            makeLoadCase(103, 4, QStringLiteral("SLS quasi-permanent combination")),
            makeLoadCase(201, 4, QStringLiteral("Design case: slab reinforcement"))});

    // The camera store speaks of the current project.
    const int current = currentProject();
    setCurrentProject(index);
    setAnimatorPerspektive(0, QString::fromLatin1(demoCamera));
    setCurrentProject(current);
}
