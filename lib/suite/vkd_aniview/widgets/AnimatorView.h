#pragma once

#include "previewscene.h"

#include <QPoint>
#include <QWidget>

#include <vector>

class QRubberBand;

// Commands of the preview. The numbers are what pages send and keep.
enum AnimatorViewControl : int
{
    AnimatorStandard3D = 0,
    AnimatorPlaneXY = 3,
    AnimatorPlaneXZ = 4,
    AnimatorPlaneYZ = 5,
    // Keep the present camera in the project's camera store.
    AnimatorStoreCamera = 6,
    // Take the camera of the project's camera store.
    AnimatorTakeCamera = 7,
};

// The 3D preview of a project's model: area elements filled and shaded, beams as lines, nodes as
// dots where there is room, each group in its colour. While enabled, a left drag turns the model,
// a middle drag pans it and the wheel zooms; a disabled preview ignores the mouse.
class AnimatorView : public QWidget
{
    Q_OBJECT
public:
    // index: the project whose model is shown (VKD_H_ZOBDoc::index()).
    explicit AnimatorView(int index, QWidget* parent = nullptr);

    const vkd::dbo::Camera& camera() const { return m_camera; }
    void setCamera(const vkd::dbo::Camera& camera);
    // The camera as text in a form of vkd::dbo::CameraForm.
    QString cameraText(int form) const;
    const vkd::aniview::PreviewScene& scene() const { return m_scene; }

    QSize sizeHint() const override;

    // In pick mode a left click picks the group under the mouse, or with Ctrl adds or removes it,
    // and a left drag picks the groups that lie wholly in its rectangle, or with Ctrl adds them;
    // a right drag turns the model. Picked groups are drawn marked.
    void setPickMode(bool on);
    const std::vector<int>& pickedGroups() const { return m_picked; }
    void setPickedGroups(std::vector<int> groups);

signals:
    // The user changed the picked groups.
    void pickChanged();

public slots:
    // Carries out a command before it returns; value is unused by the commands of today. A
    // camera from the store that does not parse leaves the view as it is.
    void slotViewControl(AnimatorViewControl control, double value);
    // Reads the model again, after it changed in the project.
    void reload();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void drawAxes(QPainter& painter) const;
    void drawPicked(QPainter& painter, const std::vector<vkd::aniview::DrawItem>& items) const;
    void finishPick(const QPoint& end, bool adding);

    int m_index;
    vkd::aniview::PreviewScene m_scene;
    vkd::dbo::Camera m_camera;
    Qt::MouseButton m_dragButton = Qt::NoButton;
    QPoint m_lastPosition;
    bool m_pickMode = false;
    std::vector<int> m_picked;
    QPoint m_pickStart;
    bool m_picking = false;
    QRubberBand* m_rubberBand = nullptr;
};
