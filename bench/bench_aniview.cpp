// A frame of the 3D preview (projection, shading, sorting back to front and filling) beside
// drawing the same polygons, already projected and sorted, with a bare QPainter loop.
// Usage: bench_aniview [--quick] [--json] [--runs N]

#include "benchharness.h"

#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>

using namespace vkd::dbo;

namespace {

// A wavy roof of side x side quads in eight groups, so that faces turn to the light differently.
void writeRoof(int index, int side)
{
    std::vector<NodeRecord> nodes;
    auto number = [side](int i, int j) { return 1 + j * (side + 1) + i; };
    for (int j = 0; j <= side; ++j)
        for (int i = 0; i <= side; ++i)
            nodes.push_back({number(i, j), float(i), float(j),
                             float(side / 8.0 * std::sin(i * 6.0 / side) * std::cos(j * 4.0 / side))});
    std::vector<ElementRecord> quads;
    for (int j = 0; j < side; ++j)
        for (int i = 0; i < side; ++i)
            quads.push_back({int(quads.size()) + 1,
                             1 + (i * 4 / side) + 4 * (j * 2 / side),
                             {number(i, j), number(i + 1, j), number(i + 1, j + 1), number(i, j + 1)}});
    writeAll(index, KeyNodes, nodes);
    writeAll(index, KeyQuads, quads);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    bench::Harness harness("aniview", argc, argv);
    const int side = harness.size(100, 20);
    const int frames = harness.size(10, 2);
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("roof.vkd")));
    writeRoof(doc.index(), side);
    AnimatorView view(doc.index());
    const QSize size(640, 480);
    view.resize(size);
    if (view.scene().areaCount() != side * side) {
        std::fprintf(stderr, "the model holds %d quads, not %d\n", view.scene().areaCount(), side * side);
        return 1;
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);

    // The polygons of each frame's camera, projected once, for the baseline.
    auto cameraOf = [](int frame) {
        Camera c;
        c.azimuth += 7.0 * frame;
        return c;
    };
    vkd::aniview::PreviewScene scene;
    scene.load(doc.index());
    std::vector<std::vector<vkd::aniview::DrawItem>> projected;
    for (int f = 0; f < frames; ++f)
        projected.push_back(scene.project(cameraOf(f), size));

    harness.compare({QStringLiteral("AnimatorView frame"),
                     QStringLiteral("%1 quads, %2 frames").arg(side * side).arg(frames),
                     QStringLiteral("QPainter filling the same sorted polygons"),
                     [&] {
                         for (int f = 0; f < frames; ++f) {
                             view.setCamera(cameraOf(f));
                             view.render(&image);
                         }
                     },
                     [&] {
                         for (int f = 0; f < frames; ++f) {
                             QPainter painter(&image);
                             painter.fillRect(image.rect(), Qt::white);
                             // The preview smooths the edges of small models only; so does this.
                             painter.setRenderHint(QPainter::Antialiasing, side * side < 2000);
                             for (const vkd::aniview::DrawItem& item : projected[size_t(f)]) {
                                 painter.setPen(QPen(item.edge, 0.0));
                                 painter.setBrush(item.fill);
                                 painter.drawConvexPolygon(item.corners, item.cornerCount);
                             }
                         }
                     },
                     1.5});
    return harness.finish();
}
