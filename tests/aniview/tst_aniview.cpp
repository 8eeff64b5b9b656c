#include <AnimatorView.h>
#include <previewscene.h>

#include <QtTest>

using namespace vkd::dbo;
using vkd::aniview::DrawItem;

class TestAniview : public QObject
{
    Q_OBJECT
private slots:
    // Each fixed view (0, 3, 4, 5) as GRAV reads its standpoint, at zoom 1 and no pan whatever came before.
    void commands()
    {
        const std::pair<int, const char*> views[] = {
            {0, "X 0.4532 Y -0.7849 Z 0.4226"}, {3, "X 0 Y 0 Z 1"}, {4, "X 0 Y -1 Z 0"}, {5, "X 1 Y 0 Z 0"}};
        for (const auto& [command, standpoint] : views) {
            AnimatorView view(0);
            view.setCamera({200, -40, 3, 0.5, 0.5});
            view.slotViewControl(AnimatorViewControl(command), 0.0);
            QCOMPARE(view.cameraText(CameraScriptForm), standpoint);
            QCOMPARE(view.cameraText(CameraPersistentForm).section(' ', 2), QStringLiteral("1 0 0"));
        }
    }

    // Seen from above, two squares one above the other with a beam between them: X to the right,
    // Y up, the box filling 85 % of the viewport, and drawn back to front. A quad that names a
    // missing node is left out.
    void projection()
    {
        std::vector<NodeRecord> nodes;
        for (float z : {0.0f, 1.0f})
            for (int k = 0; k < 4; ++k)
                nodes.push_back({int(nodes.size()) + 1, float(k == 1 || k == 2), float(k >= 2), z});
        nodes.push_back({9, -1, 0.5f, 0.5f});
        nodes.push_back({10, 2, 0.5f, 0.5f});
        vkd::aniview::PreviewScene scene;
        scene.setModel(nodes, {{1, 5, {1, 2, 3, 4}}, {2, 7, {5, 6, 7, 8}}, {3, 7, {5, 6, 7, 99}}},
                       {{4, 1, {9, 10, 0, 0}}});
        AnimatorView view(0);
        view.slotViewControl(AnimatorPlaneXY, 0.0);
        QStringList out, points;
        for (const DrawItem& item : scene.project(view.camera(), QSize(200, 200))) {
            QString text = item.kind == DrawItem::Point  ? QStringLiteral("P")
                           : item.kind == DrawItem::Line ? QStringLiteral("L")
                                                         : item.fill.name();
            for (int k = 0; k < item.cornerCount; ++k)
                text += QStringLiteral(" %1,%2")
                            .arg(qRound(item.corners[k].x()))
                            .arg(qRound(item.corners[k].y()));
            (item.kind == DrawItem::Point ? points : out) << text;
        }
        points.sort();
        // Each node once, where it lies: the eight corners of the squares and the ends of the beam.
        QCOMPARE(points.join(QLatin1Char('|')),
                 QStringLiteral("P 128,128|P 128,128|P 128,72|P 128,72|P 15,100|"
                                "P 185,100|P 72,128|P 72,128|P 72,72|P 72,72"));
        QCOMPARE(out, (QStringList{"#edc948 72,128 128,128 128,72 72,72", "L 15,100 185,100",
                                   "#ff9da7 72,128 128,128 128,72 72,72"}));
        // Picking takes the front-most element, a beam within reach, and whole elements only.
        QCOMPARE(scene.groupAt({100, 100}), 7);
        QCOMPARE(scene.groupAt({20, 103}), 1);
        QCOMPARE(scene.groupAt({20, 110}), -1);
        QCOMPARE(scene.groupsIn(QRectF(0, 0, 200, 200)), (std::vector<int>{1, 5, 7}));
        QCOMPARE(scene.groupsIn(QRectF(60, 60, 80, 80)), (std::vector<int>{5, 7}));
        // A model loaded again under the same camera is projected anew: a saddle whose diagonals lie
        // level is shaded as the flat square beside it.
        scene.setModel({{1, 0, 0, 0},
                        {2, 1, 0, 1},
                        {3, 1, 1, 0},
                        {4, 0, 1, 1},
                        {5, 2, 0, 0},
                        {6, 3, 0, 0},
                        {7, 3, 1, 0},
                        {8, 2, 1, 0}},
                       {{1, 5, {1, 2, 3, 4}}, {2, 5, {5, 6, 7, 8}}}, {});
        QStringList fills;
        for (const DrawItem& item : scene.project(view.camera(), QSize(200, 200)))
            if (item.kind == DrawItem::Area)
                fills << item.fill.name();
        QCOMPARE(fills.size(), 2);
        QCOMPARE(fills.at(0), fills.at(1));
    }

    // Two squares side by side, groups 1 and 2, seen from above in the scratch project: clicks,
    // Ctrl-clicks and a rectangle pick as a person would.
    void pick_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("picked");
        const char* rows[][3] = {{"click replaces", "click 115, click 285", "2"},
                                 {"ctrl adds", "click 115, ctrl 285", "1 2"},
                                 {"ctrl removes", "click 115, ctrl 285, ctrl 115", "2"},
                                 {"click beside clears", "click 115, click 5", ""},
                                 {"rectangle over one", "drag 20 200", "1"},
                                 {"ctrl rectangle adds", "click 285, ctrldrag 20 200", "1 2"}};
        for (const auto& r : rows)
            QTest::newRow(r[0]) << QString(r[1]) << QString(r[2]);
    }
    void pick()
    {
        QFETCH(QString, steps);
        QFETCH(QString, picked);
        std::vector<NodeRecord> nodes;
        for (int j = 0; j < 2; ++j)
            for (int i = 0; i < 3; ++i)
                nodes.push_back({1 + j * 3 + i, float(i), float(j), 0.0f});
        writeAll(0, KeyNodes, nodes);
        writeAll(0, KeyQuads, std::vector<ElementRecord>{{1, 1, {1, 2, 5, 4}}, {2, 2, {2, 3, 6, 5}}});
        AnimatorView view(0);
        view.resize(400, 200);
        view.slotViewControl(AnimatorPlaneXY, 0.0);
        view.setPickMode(true);
        view.grab();
        for (const QString& step : steps.split(QStringLiteral(", "))) {
            const QStringList w = step.split(QLatin1Char(' '));
            const auto modifiers =
                w[0].startsWith(QLatin1String("ctrl")) ? Qt::ControlModifier : Qt::NoModifier;
            const QPoint from(w[1].toInt(), w[0].endsWith(QLatin1String("drag")) ? 5 : 100);
            const QPoint to = w.size() > 2 ? QPoint(w[2].toInt(), 195) : from;
            QTest::mousePress(&view, Qt::LeftButton, modifiers, from);
            QMouseEvent move(QEvent::MouseMove, to, Qt::LeftButton, Qt::LeftButton, modifiers);
            QApplication::sendEvent(&view, &move);
            QTest::mouseRelease(&view, Qt::LeftButton, modifiers, to);
        }
        QStringList out;
        for (int g : view.pickedGroups())
            out << QString::number(g);
        QCOMPARE(out.join(QLatin1Char(' ')), picked);
    }
};

QTEST_MAIN(TestAniview)
#include "tst_aniview.moc"
