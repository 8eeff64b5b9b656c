#include "demomodel.h"

#include <vkd_dbo.h>

#include <QString>

using namespace vkd::dbo;

void writeDemoModel(int index, DemoSecondaryGroups secondary)
{
    // A slab of 8 x 6 quads of 1 m, its four bays in groups 1 to 4; edge beams in group 10,
    // columns in group 11, springs under the columns.
    constexpr int nx = 8, ny = 6;
    std::vector<NodeRecord> nodes;
    auto nodeNumber = [](int i, int j) { return 1 + j * (nx + 1) + i; };
    for (int j = 0; j <= ny; ++j)
        for (int i = 0; i <= nx; ++i)
            nodes.push_back({nodeNumber(i, j), float(i), float(j), 0.0f});
    std::vector<ElementRecord> quads;
    for (int j = 0; j < ny; ++j)
        for (int i = 0; i < nx; ++i) {
            const int group = 1 + (i >= nx / 2 ? 1 : 0) + (j >= ny / 2 ? 2 : 0);
            quads.push_back({int(quads.size()) + 1,
                             group,
                             {nodeNumber(i, j), nodeNumber(i + 1, j), nodeNumber(i + 1, j + 1), nodeNumber(i, j + 1)}});
        }
    std::vector<ElementRecord> beams;
    for (int i = 0; i < nx; ++i) {
        beams.push_back({1001 + i, 10, {nodeNumber(i, 0), nodeNumber(i + 1, 0), 0, 0}});
        beams.push_back({1101 + i, 10, {nodeNumber(i, ny), nodeNumber(i + 1, ny), 0, 0}});
    }
    std::vector<ElementRecord> springs;
    const int corners[][2] = {{0, 0}, {nx, 0}, {0, ny}, {nx, ny}, {nx / 2, ny / 2}};
    for (const auto& c : corners)
        springs.push_back({2001 + int(springs.size()), 11, {nodeNumber(c[0], c[1]), 0, 0, 0}});

    setKindOfSystem(index, 0);
    writeAll(index, KeyNodes, nodes);
    writeAll(index, KeyQuads, quads);
    writeAll(index, KeyBeams, beams);
    writeAll(index, KeySprings, springs);
    writeAll(index, KeyBoundaries, std::vector<ElementRecord>{springs.begin(), springs.end()});
    writeAll(index, KeyGroups,
             std::vector<GroupRecord>{makeGroup(1, QStringLiteral("Slab bay A")), makeGroup(2, QStringLiteral("Slab bay B")),
                                      makeGroup(3, QStringLiteral("Slab bay C")), makeGroup(4, QStringLiteral("Slab bay D")),
                                      makeGroup(10, QStringLiteral("Edge beams")), makeGroup(11, QStringLiteral("Columns"))});
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
    writeAll(index, KeyLoadCases,
             std::vector<LoadCaseRecord>{makeLoadCase(1, 0, QStringLiteral("Self weight")),
                                         makeLoadCase(2, 0, QStringLiteral("Finishes")),
                                         makeLoadCase(3, 1, QStringLiteral("Imposed load")),
                                         makeLoadCase(4, 1, QStringLiteral("Snow")),
                                         makeLoadCase(5, 2, QStringLiteral("Vehicle impact")),
                                         makeLoadCase(101, 4, QStringLiteral("ULS design combination"))});
}
