#pragma once
// The model of a project as the 3D preview draws it: nodes, beams and area elements, projected
// for a camera and sorted back to front, so that a painter that fills them in order hides what
// lies behind.

#include <vkd_dbo.h>

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

class QPainter;

namespace vkd::aniview {

struct Vec3
{
    double x = 0.0, y = 0.0, z = 0.0;
};

// The screen's axes for a camera: right and up on the screen, and the direction from the model
// towards the eye.
struct ViewBasis
{
    Vec3 right, up, towardsEye;
};
ViewBasis viewBasis(const vkd::dbo::Camera& camera);

// One thing to draw, in screen coordinates.
struct DrawItem
{
    enum Kind : int
    {
        Area,
        Line,
        Point
    };
    Kind kind = Area;
    int cornerCount = 0;
    QPointF corners[4];
    QColor fill;
    QColor edge;
    // The element's group; -1 for a node.
    int group = -1;
};

class PreviewScene
{
public:
    // Reads nodes, area elements and beams of a project; elements naming a missing node are left
    // out.
    void load(int index);
    // The same from records, for a model that is not stored.
    void setModel(const std::vector<vkd::dbo::NodeRecord>& nodes,
                  const std::vector<vkd::dbo::ElementRecord>& areas,
                  const std::vector<vkd::dbo::ElementRecord>& beams);

    bool isEmpty() const { return m_elements.empty() && m_points.empty(); }
    int areaCount() const { return m_areaCount; }
    int lineCount() const { return m_lineCount; }

    // The model projected into a viewport of this size, back to front. At zoom 1 and no pan the
    // model's box, as the camera sees it, fills the viewport and stands in its middle.
    const std::vector<DrawItem>& project(const vkd::dbo::Camera& camera, QSize viewport);

    // Fills the items in order; the painter's state is left as it was.
    static void paint(QPainter& painter, const std::vector<DrawItem>& items);

    // The colour of a group's elements.
    static QColor groupColour(int group);

    // Picking in the last projection: the group of the front-most element at a point (within a
    // few pixels of a beam), -1 if there is none; the groups of the elements that lie wholly in
    // a rectangle, in rising order.
    int groupAt(QPointF point) const;
    std::vector<int> groupsIn(const QRectF& rect) const;

private:
    struct Element
    {
        DrawItem::Kind kind;
        int cornerCount;
        int corners[4];
        QColor colour;
        Vec3 normal; // of an area, unit length
        int group;
    };
    void finish();

    std::vector<Vec3> m_points;
    std::vector<Element> m_elements;
    int m_areaCount = 0;
    int m_lineCount = 0;
    Vec3 m_centre;
    Vec3 m_half; // half the sides of the model's box
    double m_radius = 1.0;
    // The last projection, kept for a repaint with the same camera and size.
    bool m_projectedValid = false;
    vkd::dbo::Camera m_projectedCamera;
    QSize m_projectedViewport;
    // Per frame, kept to spare the allocations.
    std::vector<QPointF> m_screen;
    std::vector<double> m_depth;
    std::vector<std::pair<double, int>> m_order;
    std::vector<DrawItem> m_items;
};

} // namespace vkd::aniview
