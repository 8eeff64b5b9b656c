#include "previewscene.h"

#include <QPolygonF>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <unordered_map>

using namespace vkd::dbo;

namespace vkd::aniview {

namespace {

constexpr double kDegree = M_PI / 180.0;

double dot(const Vec3& a, const Vec3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vec3 minus(const Vec3& a, const Vec3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vec3 cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Share of the viewport that the model takes at zoom 1.
constexpr double kFill = 0.85;
// Least extent on the screen, as a share of the model's diameter, that the scale assumes.
constexpr double kLeastExtent = 0.05;
// Nodes are drawn only where they stand at least this far apart on the screen (pixels), so that
// a fine mesh does not turn into a field of dots.
constexpr double kNodeSpacing = 8.0;
// Light comes from the eye; a face seen edge-on keeps this much of its colour, and a face turned
// half away still most of it.
constexpr double kAmbient = 0.5;

} // namespace

ViewBasis viewBasis(const Camera& camera)
{
    const double a = camera.azimuth * kDegree;
    const double e = camera.elevation * kDegree;
    ViewBasis b;
    b.towardsEye = {std::cos(e) * std::sin(a), -std::cos(e) * std::cos(a), std::sin(e)};
    b.right = {std::cos(a), std::sin(a), 0.0};
    b.up = {-std::sin(e) * std::sin(a), std::sin(e) * std::cos(a), std::cos(e)};
    return b;
}

QColor PreviewScene::groupColour(int group)
{
    // Hues far apart for neighbouring numbers, in colours that still show shading.
    static const QRgb palette[] = {0x4e79a7, 0xf28e2b, 0x59a14f, 0xe15759, 0x76b7b2, 0xedc948,
                                   0xb07aa1, 0xff9da7, 0x9c755f, 0x8cd17d, 0x499894, 0xd37295};
    constexpr int count = int(sizeof palette / sizeof palette[0]);
    return QColor(palette[((group % count) + count) % count]);
}

void PreviewScene::load(int index)
{
    setModel(readAll<NodeRecord>(index, KeyNodes), readAll<ElementRecord>(index, KeyQuads),
             readAll<ElementRecord>(index, KeyBeams));
}

void PreviewScene::setModel(const std::vector<NodeRecord>& nodes, const std::vector<ElementRecord>& areas,
                            const std::vector<ElementRecord>& beams)
{
    m_points.clear();
    m_elements.clear();
    m_areaCount = m_lineCount = 0;
    m_projectedValid = false;
    std::unordered_map<int32_t, int> slotOf;
    slotOf.reserve(nodes.size());
    for (const NodeRecord& n : nodes) {
        if (!std::isfinite(n.x) || !std::isfinite(n.y) || !std::isfinite(n.z))
            continue;
        slotOf.emplace(n.number, int(m_points.size()));
        m_points.push_back({n.x, n.y, n.z});
    }
    auto slot = [&](int32_t number) {
        const auto it = slotOf.find(number);
        return it == slotOf.end() ? -1 : it->second;
    };
    for (const ElementRecord& q : areas) {
        Element e{DrawItem::Area, 0, {-1, -1, -1, -1}, groupColour(q.group), {}, q.group};
        bool complete = true;
        for (int k = 0; k < 4 && complete; ++k) {
            // A triangle repeats its third node or leaves the fourth empty.
            if (k == 3 && (q.nodes[3] == 0 || q.nodes[3] == q.nodes[2]))
                break;
            e.corners[k] = slot(q.nodes[k]);
            complete = e.corners[k] >= 0;
            e.cornerCount += complete ? 1 : 0;
        }
        if (!complete || e.cornerCount < 3)
            continue;
        const Vec3& p0 = m_points[size_t(e.corners[0])];
        const Vec3& p1 = m_points[size_t(e.corners[1])];
        const Vec3& p2 = m_points[size_t(e.corners[2])];
        const Vec3& p3 = m_points[size_t(e.corners[e.cornerCount - 1])];
        // The diagonals give the mean normal of a warped quad as well.
        const Vec3 n =
            e.cornerCount == 4 ? cross(minus(p2, p0), minus(p3, p1)) : cross(minus(p1, p0), minus(p2, p0));
        const double length = std::sqrt(dot(n, n));
        e.normal = length > 0.0 ? Vec3{n.x / length, n.y / length, n.z / length} : Vec3{0.0, 0.0, 1.0};
        m_elements.push_back(e);
        ++m_areaCount;
    }
    for (const ElementRecord& b : beams) {
        Element e{DrawItem::Line, 2, {slot(b.nodes[0]), slot(b.nodes[1]), -1, -1}, groupColour(b.group), {}, b.group};
        if (e.corners[0] < 0 || e.corners[1] < 0)
            continue;
        m_elements.push_back(e);
        ++m_lineCount;
    }
    finish();
}

void PreviewScene::finish()
{
    if (m_points.empty()) {
        m_centre = m_half = {};
        m_radius = 1.0;
        return;
    }
    Vec3 low = m_points.front(), high = m_points.front();
    for (const Vec3& p : m_points) {
        low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
    }
    m_centre = {(low.x + high.x) / 2.0, (low.y + high.y) / 2.0, (low.z + high.z) / 2.0};
    m_half = minus(high, m_centre);
    m_radius = std::sqrt(dot(m_half, m_half));
    // A single node or a model in one point still gets a scale.
    if (!(m_radius > 0.0))
        m_radius = 1.0;
}

const std::vector<DrawItem>& PreviewScene::project(const Camera& camera, QSize viewport)
{
    // A repaint with nothing changed, as after a tooltip or an expose, only fills again.
    const Camera& c = m_projectedCamera;
    if (m_projectedValid && viewport == m_projectedViewport && camera.azimuth == c.azimuth &&
        camera.elevation == c.elevation && camera.zoom == c.zoom && camera.panX == c.panX &&
        camera.panY == c.panY)
        return m_items;
    m_projectedValid = true;
    m_projectedCamera = camera;
    m_projectedViewport = viewport;
    m_items.clear();
    const ViewBasis b = viewBasis(camera);
    // The model's box as the camera sees it decides the scale and the centre, so that a fixed view
    // fills the viewport and a turn by hand changes the scale smoothly.
    double left = 0.0, right = 0.0, bottom = 0.0, top = 0.0;
    for (int corner = 0; corner < 8; ++corner) {
        const Vec3 p{corner & 1 ? m_half.x : -m_half.x, corner & 2 ? m_half.y : -m_half.y,
                     corner & 4 ? m_half.z : -m_half.z};
        const double x = dot(p, b.right), y = dot(p, b.up);
        left = corner ? std::min(left, x) : x;
        right = corner ? std::max(right, x) : x;
        bottom = corner ? std::min(bottom, y) : y;
        top = corner ? std::max(top, y) : y;
    }
    // A model seen edge-on is not blown up without end.
    const double least = kLeastExtent * 2.0 * m_radius;
    const double scale = camera.zoom * kFill *
                         std::min(viewport.width() / std::max(right - left, least),
                                  viewport.height() / std::max(top - bottom, least));
    const double cx = viewport.width() / 2.0 + camera.panX * viewport.width() - (left + right) / 2.0 * scale;
    const double cy =
        viewport.height() / 2.0 + camera.panY * viewport.height() + (bottom + top) / 2.0 * scale;
    m_screen.resize(m_points.size());
    m_depth.resize(m_points.size());
    for (size_t i = 0; i < m_points.size(); ++i) {
        const Vec3 p = minus(m_points[i], m_centre);
        m_screen[i] = QPointF(cx + dot(p, b.right) * scale, cy - dot(p, b.up) * scale);
        m_depth[i] = dot(p, b.towardsEye);
    }
    const bool drawNodes =
        !m_points.empty() && 2.0 * m_radius * scale / std::sqrt(double(m_points.size())) >= kNodeSpacing;

    m_order.clear();
    m_order.reserve(m_elements.size() + (drawNodes ? m_points.size() : 0));
    for (size_t i = 0; i < m_elements.size(); ++i) {
        const Element& e = m_elements[i];
        double depth = 0.0;
        for (int k = 0; k < e.cornerCount; ++k)
            depth += m_depth[size_t(e.corners[k])];
        m_order.emplace_back(depth / e.cornerCount, int(i));
    }
    // Nodes and lines a little ahead of the faces they lie on, so that they stay visible.
    const double lift = m_radius * 1e-3;
    if (drawNodes)
        for (size_t i = 0; i < m_points.size(); ++i)
            m_order.emplace_back(m_depth[i] + 2.0 * lift, -1 - int(i));
    for (auto& entry : m_order)
        if (entry.second >= 0 && m_elements[size_t(entry.second)].kind == DrawItem::Line)
            entry.first += lift;
    std::sort(
        m_order.begin(), m_order.end(),
        [](const std::pair<double, int>& l, const std::pair<double, int>& r) { return l.first < r.first; });

    m_items.resize(m_order.size());
    for (size_t n = 0; n < m_order.size(); ++n) {
        DrawItem& item = m_items[n];
        const int which = m_order[n].second;
        if (which < 0) {
            item.kind = DrawItem::Point;
            item.cornerCount = 1;
            item.corners[0] = m_screen[size_t(-1 - which)];
            item.fill = item.edge = QColor(0x20, 0x20, 0x20);
            item.group = -1;
            continue;
        }
        const Element& e = m_elements[size_t(which)];
        item.kind = e.kind;
        item.group = e.group;
        item.cornerCount = e.cornerCount;
        for (int k = 0; k < e.cornerCount; ++k)
            item.corners[k] = m_screen[size_t(e.corners[k])];
        if (e.kind == DrawItem::Area) {
            // Two-sided: a face is as bright from behind as from the front.
            const double light =
                kAmbient + (1.0 - kAmbient) * std::sqrt(std::abs(dot(e.normal, b.towardsEye)));
            item.fill = QColor::fromRgbF(e.colour.redF() * light, e.colour.greenF() * light,
                                         e.colour.blueF() * light);
            item.edge = item.fill.darker(140);
        } else {
            item.fill = item.edge = e.colour.darker(130);
        }
    }
    return m_items;
}

int PreviewScene::groupAt(QPointF point) const
{
    // How near a click must come to a beam to hit it, in pixels.
    constexpr double lineReach = 4.0;
    for (auto it = m_items.rbegin(); it != m_items.rend(); ++it) {
        if (it->kind == DrawItem::Area) {
            if (QPolygonF(QVector<QPointF>(it->corners, it->corners + it->cornerCount)).containsPoint(point, Qt::OddEvenFill))
                return it->group;
        } else if (it->kind == DrawItem::Line) {
            const QPointF a = it->corners[0], d = it->corners[1] - a;
            const double length2 = QPointF::dotProduct(d, d);
            const double t = length2 > 0.0 ? std::clamp(QPointF::dotProduct(point - a, d) / length2, 0.0, 1.0) : 0.0;
            const QPointF nearest = a + d * t - point;
            if (QPointF::dotProduct(nearest, nearest) <= lineReach * lineReach)
                return it->group;
        }
    }
    return -1;
}

std::vector<int> PreviewScene::groupsIn(const QRectF& rect) const
{
    std::vector<int> groups;
    for (const DrawItem& item : m_items)
        if (item.kind != DrawItem::Point &&
            std::all_of(item.corners, item.corners + item.cornerCount, [&](QPointF c) { return rect.contains(c); }))
            groups.push_back(item.group);
    std::sort(groups.begin(), groups.end());
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    return groups;
}

void PreviewScene::paint(QPainter& painter, const std::vector<DrawItem>& items)
{
    painter.save();
    QPen line(Qt::black, 2.0);
    line.setCapStyle(Qt::RoundCap);
    for (const DrawItem& item : items) {
        switch (item.kind) {
        case DrawItem::Area:
            painter.setPen(QPen(item.edge, 0.0));
            painter.setBrush(item.fill);
            painter.drawConvexPolygon(item.corners, item.cornerCount);
            break;
        case DrawItem::Line:
            line.setColor(item.edge);
            painter.setPen(line);
            painter.drawLine(item.corners[0], item.corners[1]);
            break;
        case DrawItem::Point:
            painter.setPen(Qt::NoPen);
            painter.setBrush(item.fill);
            painter.drawEllipse(item.corners[0], 2.0, 2.0);
            break;
        }
    }
    painter.restore();
}

} // namespace vkd::aniview
