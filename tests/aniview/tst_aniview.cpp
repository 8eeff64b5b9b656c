#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>
#include <previewscene.h>
#include <vkd_q.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace vkd::dbo;
using vkd::aniview::DrawItem;
using vkd::aniview::PreviewScene;

namespace {

// A unit square in the X/Y plane at height z, one group.
std::vector<ElementRecord> square(int first, int group)
{
    return {{first, group, {first, first + 1, first + 2, first + 3}}};
}
std::vector<NodeRecord> squareNodes(int first, float z)
{
    return {{first, 0, 0, z}, {first + 1, 1, 0, z}, {first + 2, 1, 1, z}, {first + 3, 0, 1, z}};
}

} // namespace

class TestAniview : public QObject
{
    Q_OBJECT
private slots:
    void commands_data();
    void commands();
    void storedCamera();
    void mouse_data();
    void mouse();
    void projection_data();
    void projection();
    void badModel();
};

// Each fixed view as GRAV reads its standpoint, whatever the camera was before.
void TestAniview::commands_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("standpoint");
    QTest::newRow("0, 3D standard") << 0 << "X 0.4532 Y -0.7849 Z 0.4226";
    QTest::newRow("3, X/Y") << 3 << "X 0 Y 0 Z 1";
    QTest::newRow("4, X/Z") << 4 << "X 0 Y -1 Z 0";
    QTest::newRow("5, Y/Z") << 5 << "X 1 Y 0 Z 0";
}

void TestAniview::commands()
{
    QFETCH(int, command);
    QFETCH(QString, standpoint);
    AnimatorView view(0);
    view.setCamera({200, -40, 3, 0.5, 0.5});
    view.slotViewControl(AnimatorViewControl(command), 0.0);
    QCOMPARE(view.cameraText(CameraScriptForm), standpoint);
    QCOMPARE(view.camera().zoom, 1.0);
    QCOMPARE(view.camera().panX, 0.0);
}

// 6 keeps the camera in the current project, 7 takes it back; a stored text that does not parse
// leaves the view alone.
void TestAniview::storedCamera()
{
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("camera.vkd")));
    AnimatorView view(doc.index());
    view.setCamera({12.5, 60, 2, -0.25, 0.1});
    view.slotViewControl(AnimatorStoreCamera, 0.0);
    QCOMPARE(getAnimatorPerspektive(0, CameraPersistentForm), QStringLiteral("12.5 60 2 -0.25 0.1"));
    view.slotViewControl(AnimatorStandard3D, 0.0);
    view.slotViewControl(AnimatorTakeCamera, 0.0);
    QCOMPARE(view.cameraText(CameraPersistentForm), QStringLiteral("12.5 60 2 -0.25 0.1"));

    const QByteArray junk("12.5 sixty 2 0 0");
    const int length = junk.size();
    vkd_zob_put(doc.index(), KeyCamera, 1, junk.constData(), &length, 0);
    view.slotViewControl(AnimatorStandard3D, 0.0);
    view.slotViewControl(AnimatorTakeCamera, 0.0);
    QCOMPARE(view.cameraText(CameraPersistentForm), QStringLiteral("30 25 1 0 0"));
}

// Left drag turns, middle drag pans, the wheel zooms; a disabled preview keeps its camera.
void TestAniview::mouse_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("camera");
    QTest::newRow("left drag") << true << int(Qt::LeftButton) << "10 35 1 0 0";
    QTest::newRow("middle drag") << true << int(Qt::MiddleButton) << "30 25 1 0.1 0.1";
    QTest::newRow("wheel") << true << 0 << "30 25 1.3225 0 0";
    QTest::newRow("right drag does nothing") << true << int(Qt::RightButton) << "30 25 1 0 0";
    QTest::newRow("left drag, disabled") << false << int(Qt::LeftButton) << "30 25 1 0 0";
    QTest::newRow("middle drag, disabled") << false << int(Qt::MiddleButton) << "30 25 1 0 0";
    QTest::newRow("wheel, disabled") << false << 0 << "30 25 1 0 0";
}

void TestAniview::mouse()
{
    QFETCH(bool, enabled);
    QFETCH(int, button);
    QFETCH(QString, camera);
    AnimatorView view(0);
    view.resize(400, 200);
    view.show();
    view.setEnabled(enabled);
    if (button) {
        const auto b = Qt::MouseButton(button);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(100, 100), b, b, {});
        QMouseEvent move(QEvent::MouseMove, QPointF(140, 120), b, b, {});
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(140, 120), b, {}, {});
        for (QMouseEvent* event : {&press, &move, &release})
            QApplication::sendEvent(&view, event);
    } else {
        QWheelEvent wheel(QPointF(100, 100), QPointF(100, 100), {}, {0, 240}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &wheel);
    }
    QCOMPARE(view.cameraText(CameraPersistentForm), camera);
}

// Where things land on the screen: two squares, one above the other, and a beam along X between
// them. Seen from above, the lower square is drawn first and the upper one last.
void TestAniview::projection_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("inOrder");
    QTest::addColumn<QString>("expected");
    QTest::newRow("X/Y, back to front")
        << 3 << true << "A5[72-128,72-128] L(15,100)-(185,100) A7[72-128,72-128]";
    QTest::newRow("X/Z, squares edge-on")
        << 4 << false << "A5[72-128,128-128] A7[72-128,72-72] L(15,100)-(185,100)";
    QTest::newRow("Y/Z, beam end-on")
        << 5 << false << "A5[15-185,185-185] A7[15-185,15-15] L(100,100)-(100,100)";
}

void TestAniview::projection()
{
    QFETCH(int, command);
    QFETCH(bool, inOrder);
    QFETCH(QString, expected);
    std::vector<NodeRecord> nodes = squareNodes(1, 0.0f);
    for (const NodeRecord& n : squareNodes(5, 1.0f))
        nodes.push_back(n);
    nodes.push_back({9, -1, 0.5f, 0.5f});
    nodes.push_back({10, 2, 0.5f, 0.5f});
    std::vector<ElementRecord> areas = square(1, 5);
    areas.push_back({2, 7, {5, 6, 7, 8}});
    PreviewScene scene;
    scene.setModel(nodes, areas, {{3, 1, {9, 10, 0, 0}}});
    QCOMPARE(scene.areaCount(), 2);
    QCOMPARE(scene.lineCount(), 1);
    AnimatorView view(0);
    view.slotViewControl(AnimatorViewControl(command), 0.0);
    QStringList out;
    for (const DrawItem& item : scene.project(view.camera(), QSize(200, 200))) {
        if (item.kind == DrawItem::Line) {
            out << QStringLiteral("L(%1,%2)-(%3,%4)")
                       .arg(qRound(item.corners[0].x()))
                       .arg(qRound(item.corners[0].y()))
                       .arg(qRound(item.corners[1].x()))
                       .arg(qRound(item.corners[1].y()));
        } else if (item.kind == DrawItem::Area) {
            const QRect r =
                QPolygonF(QVector<QPointF>(item.corners, item.corners + 4)).boundingRect().toRect();
            out << QStringLiteral("A%1[%2-%3,%4-%5]")
                       .arg(item.fill.hue() == PreviewScene::groupColour(5).hue() ? 5 : 7)
                       .arg(r.left())
                       .arg(r.left() + r.width())
                       .arg(r.top())
                       .arg(r.top() + r.height());
        }
    }
    if (!inOrder)
        out.sort();
    QCOMPARE(out.join(QLatin1Char(' ')), expected);
}

// Elements that name missing nodes are left out; a model of nothing draws nothing.
void TestAniview::badModel()
{
    PreviewScene scene;
    scene.setModel(squareNodes(1, 0.0f), {{1, 1, {1, 2, 3, 99}}, {2, 1, {1, 2, 3, 0}}},
                   {{3, 1, {1, 42, 0, 0}}});
    QCOMPARE(scene.areaCount(), 1);
    QCOMPARE(scene.lineCount(), 0);
    scene.setModel({}, square(1, 1), {});
    QVERIFY(scene.isEmpty());
    QVERIFY(scene.project(Camera(), QSize(100, 100)).empty());
}

QTEST_MAIN(TestAniview)
#include "tst_aniview.moc"
