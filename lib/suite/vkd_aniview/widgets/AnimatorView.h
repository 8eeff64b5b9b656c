#pragma once

#include "previewscene.h"

#include <QPoint>
#include <QWidget>

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

    int m_index;
    vkd::aniview::PreviewScene m_scene;
    vkd::dbo::Camera m_camera;
    Qt::MouseButton m_dragButton = Qt::NoButton;
    QPoint m_lastPosition;
};
