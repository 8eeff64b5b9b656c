#include "AnimatorView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using vkd::dbo::Camera;

namespace {

// Degrees of turn per pixel of a drag.
constexpr double kTurnPerPixel = 0.5;
// Zoom factor per notch of the wheel (120 units of angle).
constexpr double kZoomPerNotch = 1.15;
constexpr double kMinimumZoom = 0.05;
constexpr double kMaximumZoom = 200.0;
// A left press that moves less than this many pixels is a click, not a rubber band.
constexpr int kClickSlack = 3;

Camera fixedView(double azimuth, double elevation)
{
    Camera c;
    c.azimuth = azimuth;
    c.elevation = elevation;
    return c;
}

} // namespace

AnimatorView::AnimatorView(int index, QWidget* parent) : QWidget(parent), m_index(index)
{
    setObjectName(QStringLiteral("AnimatorView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::WheelFocus);
    setToolTip(
        tr("Left drag turns the model, middle drag moves it, the wheel zooms. Choose \"User defined\" to "
           "turn it by hand."));
    m_scene.load(m_index);
}

void AnimatorView::reload()
{
    m_scene.load(m_index);
    update();
}

void AnimatorView::setCamera(const Camera& camera)
{
    m_camera = camera;
    update();
}

QString AnimatorView::cameraText(int form) const
{
    return vkd::dbo::cameraText(m_camera, form);
}

void AnimatorView::setPickMode(bool on)
{
    m_pickMode = on;
    setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void AnimatorView::setPickedGroups(std::vector<int> groups)
{
    std::sort(groups.begin(), groups.end());
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    m_picked = std::move(groups);
    update();
}

void AnimatorView::finishPick(const QPoint& end, bool adding)
{
    std::vector<int> groups;
    if ((end - m_pickStart).manhattanLength() < kClickSlack) {
        const int group = m_scene.groupAt(end);
        if (adding && group >= 0 && std::binary_search(m_picked.begin(), m_picked.end(), group)) {
            std::vector<int> rest = m_picked;
            rest.erase(std::lower_bound(rest.begin(), rest.end(), group));
            setPickedGroups(rest);
            emit pickChanged();
            return;
        }
        if (group >= 0)
            groups.push_back(group);
    } else {
        groups = m_scene.groupsIn(QRect(m_pickStart, end).normalized());
    }
    if (adding)
        groups.insert(groups.end(), m_picked.begin(), m_picked.end());
    setPickedGroups(groups);
    emit pickChanged();
}

QSize AnimatorView::sizeHint() const
{
    return {320, 240};
}

void AnimatorView::slotViewControl(AnimatorViewControl control, double /*value*/)
{
    switch (control) {
    case AnimatorStandard3D:
        setCamera(Camera());
        break;
    case AnimatorPlaneXY:
        setCamera(fixedView(0.0, 90.0));
        break;
    case AnimatorPlaneXZ:
        setCamera(fixedView(0.0, 0.0));
        break;
    case AnimatorPlaneYZ:
        setCamera(fixedView(90.0, 0.0));
        break;
    case AnimatorStoreCamera:
        vkd::dbo::setAnimatorPerspektive(0, cameraText(vkd::dbo::CameraPersistentForm));
        break;
    case AnimatorTakeCamera: {
        Camera stored;
        if (vkd::dbo::cameraFromText(vkd::dbo::getAnimatorPerspektive(0, vkd::dbo::CameraPersistentForm),
                                     &stored))
            setCamera(stored);
        break;
    }
    }
}

void AnimatorView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), isEnabled() ? QColor(0xf4, 0xf6, 0xf8) : QColor(0xe8, 0xe8, 0xe8));
    if (m_scene.isEmpty()) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("The project holds no model to show."));
    } else {
        painter.setRenderHint(QPainter::Antialiasing, m_scene.areaCount() + m_scene.lineCount() < 2000);
        const auto& items = m_scene.project(m_camera, size());
        vkd::aniview::PreviewScene::paint(painter, items);
        drawPicked(painter, items);
    }
    drawAxes(painter);
    painter.setPen(QColor(0xa0, 0xa0, 0xa0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void AnimatorView::drawPicked(QPainter& painter, const std::vector<vkd::aniview::DrawItem>& items) const
{
    if (m_picked.empty())
        return;
    const QColor mark(0xff, 0xc0, 0x00);
    painter.save();
    painter.setPen(QPen(mark, 2.0));
    painter.setBrush(QColor(mark.red(), mark.green(), mark.blue(), 110));
    for (const vkd::aniview::DrawItem& item : items) {
        if (item.group < 0 || !std::binary_search(m_picked.begin(), m_picked.end(), item.group))
            continue;
        if (item.kind == vkd::aniview::DrawItem::Area)
            painter.drawConvexPolygon(item.corners, item.cornerCount);
        else if (item.kind == vkd::aniview::DrawItem::Line)
            painter.drawLine(item.corners[0], item.corners[1]);
    }
    painter.restore();
}

// The global axes in the lower left corner, turned with the model.
void AnimatorView::drawAxes(QPainter& painter) const
{
    const vkd::aniview::ViewBasis b = vkd::aniview::viewBasis(m_camera);
    const QPointF origin(24.0, height() - 24.0);
    constexpr double length = 16.0;
    const struct
    {
        vkd::aniview::Vec3 axis;
        QColor colour;
        const char* name;
    } axes[] = {{{1, 0, 0}, QColor(0xc0, 0x20, 0x20), "X"},
                {{0, 1, 0}, QColor(0x20, 0x90, 0x20), "Y"},
                {{0, 0, 1}, QColor(0x20, 0x40, 0xc0), "Z"}};
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (const auto& a : axes) {
        const double x = a.axis.x * b.right.x + a.axis.y * b.right.y + a.axis.z * b.right.z;
        const double y = a.axis.x * b.up.x + a.axis.y * b.up.y + a.axis.z * b.up.z;
        const QPointF tip = origin + QPointF(x, -y) * length;
        painter.setPen(QPen(a.colour, 2.0));
        painter.drawLine(origin, tip);
        // An axis that points at the eye has no length: its name stays beside the origin.
        painter.drawText(tip + QPointF(x, -y) * 6.0 + QPointF(-3.0, 4.0), QString::fromLatin1(a.name));
    }
}

void AnimatorView::mousePressEvent(QMouseEvent* event)
{
    if (m_pickMode && event->button() == Qt::LeftButton) {
        m_pickStart = event->pos();
        m_picking = true;
        if (!m_rubberBand)
            m_rubberBand = new QRubberBand(QRubberBand::Rectangle, this);
        m_rubberBand->setGeometry(QRect(m_pickStart, QSize()));
        m_rubberBand->show();
        event->accept();
        return;
    }
    if (m_pickMode && event->button() == Qt::RightButton) {
        m_dragButton = Qt::RightButton;
        m_lastPosition = event->pos();
        event->accept();
        return;
    }
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_dragButton = event->button();
        m_lastPosition = event->pos();
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void AnimatorView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_picking) {
        m_rubberBand->setGeometry(QRect(m_pickStart, event->pos()).normalized());
        return;
    }
    if (m_dragButton == Qt::NoButton || !(event->buttons() & m_dragButton)) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QPoint delta = event->pos() - m_lastPosition;
    m_lastPosition = event->pos();
    Camera c = m_camera;
    if (m_dragButton != Qt::MiddleButton) {
        c.azimuth = std::fmod(c.azimuth - delta.x() * kTurnPerPixel, 360.0);
        c.elevation = std::clamp(c.elevation + delta.y() * kTurnPerPixel, -90.0, 90.0);
    } else {
        c.panX += double(delta.x()) / std::max(1, width());
        c.panY += double(delta.y()) / std::max(1, height());
    }
    setCamera(c);
}

void AnimatorView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_picking && event->button() == Qt::LeftButton) {
        m_picking = false;
        m_rubberBand->hide();
        finishPick(event->pos(), event->modifiers() & Qt::ControlModifier);
        return;
    }
    if (event->button() == m_dragButton)
        m_dragButton = Qt::NoButton;
    QWidget::mouseReleaseEvent(event);
}

void AnimatorView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0.0) {
        event->ignore();
        return;
    }
    Camera c = m_camera;
    c.zoom = std::clamp(c.zoom * std::pow(kZoomPerNotch, notches), kMinimumZoom, kMaximumZoom);
    setCamera(c);
    event->accept();
}
