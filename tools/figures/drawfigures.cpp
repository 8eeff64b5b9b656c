// Draws the figures of the library's two resource blocks, and with a second folder the
// numbered icons of the widget layer. Run it by hand after a change of a figure and commit the
// PNGs it writes:  drawfigures <folder> [<icon folder>]
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

enum class Labels { None, German, English };

const QColor kConcrete(0xd9, 0xd9, 0xd4);
const QColor kSteel(0xb0, 0x20, 0x20);
const QColor kInk(0x20, 0x20, 0x20);
const QColor kDimension(0x10, 0x50, 0xa0);

QString tr2(Labels l, const char* de, const char* en)
{
    if (l == Labels::None)
        return QString();
    return QString::fromUtf8(l == Labels::German ? de : en);
}

void arrow(QPainter& p, QPointF from, QPointF to, double head = 6.0)
{
    p.drawLine(from, to);
    const double a = std::atan2(to.y() - from.y(), to.x() - from.x());
    QPolygonF tip;
    tip << to << to - QPointF(head * std::cos(a - 0.4), head * std::sin(a - 0.4))
        << to - QPointF(head * std::cos(a + 0.4), head * std::sin(a + 0.4));
    p.save();
    p.setBrush(p.pen().color());
    p.drawPolygon(tip);
    p.restore();
}

void bars(QPainter& p, double y, double x0, double x1, double step, double r)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(kSteel);
    for (double x = x0; x <= x1; x += step)
        p.drawEllipse(QPointF(x, y), r, r);
    p.restore();
}

void slabSection(QPainter& p, const QRectF& slab)
{
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    p.drawRect(slab);
    p.setPen(QPen(kSteel, 2));
    p.drawLine(QPointF(slab.left() + 6, slab.top() + 12), QPointF(slab.right() - 6, slab.top() + 12));
    p.drawLine(QPointF(slab.left() + 6, slab.bottom() - 12), QPointF(slab.right() - 6, slab.bottom() - 12));
    bars(p, slab.top() + 19, slab.left() + 12, slab.right() - 12, 16, 3);
    bars(p, slab.bottom() - 19, slab.left() + 12, slab.right() - 12, 16, 3);
}

// A chain of vertical dimensions at x through the given heights, each span named at its right.
// Crisp at the figure's pixel grid: lines lie on pixel centres.
void dimensionChain(QPainter& p, double x, const std::vector<double>& ys, const QStringList& names)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(kDimension, 1));
    p.drawLine(QPointF(x, ys.front()), QPointF(x, ys.back()));
    for (double y : ys)
        p.drawLine(QPointF(x - 3, y), QPointF(x + 3, y));
    p.setRenderHint(QPainter::Antialiasing, true);
    for (size_t k = 0; k + 1 < ys.size() && int(k) < names.size(); ++k)
        p.drawText(QPointF(x + 6, (ys[k] + ys[k + 1]) / 2 + 4), names[int(k)]);
    p.restore();
}

// A thin dotted line from a layer to its dimension chain.
void extension(QPainter& p, double x0, double x1, double y)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(kDimension, 1, Qt::DotLine));
    p.drawLine(QPointF(x0, y), QPointF(x1, y));
    p.restore();
}

// Concrete cover and layer distances of a plate section: upper side A with three layers at
// H, DH and DDH, lower side B with two at H and DH. Letters only, so that one form serves every
// language; the form without labels leaves them out.
void drawCover(QPainter& p, QSize size, Labels l)
{
    const QColor cross(0x20, 0x70, 0x30);
    const QColor third(0x70, 0x30, 0xa0);
    const QRectF slab(28.5, 16.5, 122, size.height() - 29);
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(kInk, 1));
    p.setBrush(kConcrete);
    p.drawRect(slab);
    p.restore();
    const double top = slab.top(), bottom = slab.bottom();
    const double upper[3] = {top + 14, top + 26, top + 38};
    const double lower[2] = {bottom - 14, bottom - 26};
    bars(p, upper[0], slab.left() + 10, slab.right() - 8, 14, 3);
    bars(p, lower[0], slab.left() + 10, slab.right() - 8, 14, 3);
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(cross, 2));
    p.drawLine(QPointF(slab.left() + 4, upper[1]), QPointF(slab.right() - 4, upper[1]));
    p.drawLine(QPointF(slab.left() + 4, lower[1]), QPointF(slab.right() - 4, lower[1]));
    p.restore();
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(third);
    for (double x = slab.left() + 17; x <= slab.right() - 8; x += 14)
        p.drawEllipse(QPointF(x, upper[2]), 2.5, 2.5);
    p.restore();
    const double chain = slab.right() + 22;
    for (double y : upper)
        extension(p, slab.right() + 2, chain - 3, y);
    for (double y : lower)
        extension(p, slab.right() + 2, chain - 3, y);
    extension(p, slab.right() + 2, chain - 3, top);
    extension(p, slab.right() + 2, chain - 3, bottom);
    if (l == Labels::None) {
        dimensionChain(p, chain, {top, upper[0], upper[1], upper[2]}, {});
        dimensionChain(p, chain, {lower[1], lower[0], bottom}, {});
        return;
    }
    dimensionChain(p, chain, {top, upper[0], upper[1], upper[2]},
                   {QStringLiteral("H"), QStringLiteral("DH"), QStringLiteral("DDH")});
    dimensionChain(p, chain, {lower[1], lower[0], bottom}, {QStringLiteral("DH"), QStringLiteral("H")});
    QFont bold = p.font();
    bold.setBold(true);
    bold.setPixelSize(12);
    p.save();
    p.setFont(bold);
    p.setPen(kInk);
    p.drawText(QPointF(8, top + 5), QStringLiteral("A"));
    p.drawText(QPointF(8, bottom + 5), QStringLiteral("B"));
    p.restore();
}

// Directions of the reinforcement in the plane of the element: the angle alpha of the principal
// reinforcement from the local x-axis, the cross reinforcement across it, and a section of the
// element with its upper side A and lower side B, for which the angle holds alike.
void drawDirections(QPainter& p, QSize size, Labels l)
{
    const QPointF o(30.5, size.height() - 20.5);
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(kInk, 1));
    p.drawLine(o, o + QPointF(88, 0));
    p.drawLine(o, o - QPointF(0, size.height() - 34));
    p.restore();
    p.setPen(QPen(kInk, 1));
    arrow(p, o + QPointF(80, 0), o + QPointF(92, 0), 5);
    arrow(p, o - QPointF(0, size.height() - 42), o - QPointF(0, size.height() - 30), 5);
    p.drawText(o + QPointF(90, 14), QStringLiteral("x"));
    p.drawText(o - QPointF(-5, size.height() - 40), QStringLiteral("y"));
    const double a = M_PI / 6;
    p.setPen(QPen(kSteel, 2));
    arrow(p, o, o + QPointF(84 * std::cos(a), -84 * std::sin(a)));
    p.setPen(QPen(QColor(0x20, 0x70, 0x30), 2));
    arrow(p, o, o + QPointF(-48 * std::sin(a), -48 * std::cos(a)));
    p.setPen(QPen(kDimension, 1));
    p.drawArc(QRectF(o.x() - 34, o.y() - 34, 68, 68), 0, int(a * 180 / M_PI * 16));
    p.drawText(o + QPointF(38, -6), QStringLiteral("\u03b1"));

    const QRectF section(138.5, size.height() - 46.5, 48, 12);
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(kInk, 1));
    p.setBrush(kConcrete);
    p.drawRect(section);
    p.restore();
    if (l == Labels::None)
        return;
    QFont bold = p.font();
    bold.setBold(true);
    bold.setPixelSize(12);
    p.save();
    p.setFont(bold);
    p.setPen(kInk);
    p.drawText(QPointF(section.center().x() - 4, section.top() - 4), QStringLiteral("A"));
    p.drawText(QPointF(section.center().x() - 4, section.bottom() + 14), QStringLiteral("B"));
    p.restore();
    p.setPen(kSteel);
    p.drawText(QPointF(o.x() + 44, o.y() - 54), tr2(l, "Hauptbewehrung", "principal"));
    p.setPen(QColor(0x20, 0x70, 0x30));
    p.drawText(QPointF(2, 11), tr2(l, "Querbewehrung", "cross"));
}

void drawDesignLine(QPainter& p, QSize size)
{
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    QPolygonF plate;
    plate << QPointF(20, 80) << QPointF(200, 80) << QPointF(280, 30) << QPointF(100, 30);
    p.drawPolygon(plate);
    p.setPen(QPen(kSteel, 2.5, Qt::DashLine));
    p.drawLine(QPointF(60, 55), QPointF(240, 55));
    p.setPen(QPen(kDimension, 1));
    arrow(p, QPointF(150, 55), QPointF(150, 10));
    arrow(p, QPointF(150, 55), QPointF(150, size.height() - 4));
}

void drawLayerType(QPainter& p, QSize size, int layers, bool orthogonal, bool circular)
{
    p.setPen(QPen(kInk, 1));
    p.setBrush(kConcrete);
    const QRectF plate(8, 8, size.width() - 16, size.height() - 16);
    p.drawRect(plate);
    p.setClipRect(plate);
    const QPointF c = plate.center();
    if (circular) {
        p.setPen(QPen(kSteel, 1.5));
        p.setBrush(Qt::NoBrush);
        for (int r = 12; r < 120; r += 14)
            p.drawEllipse(c, r, r);
        for (int k = 0; k < 12; ++k) {
            const double a = k * M_PI / 6;
            p.drawLine(c, c + QPointF(150 * std::cos(a), 150 * std::sin(a)));
        }
        return;
    }
    const double angles[3] = {0.0, orthogonal ? M_PI / 2 : M_PI / 3, 2 * M_PI / 3};
    const QColor colors[3] = {kSteel, QColor(0x20, 0x70, 0x30), kDimension};
    for (int k = 0; k < layers; ++k) {
        p.setPen(QPen(colors[k], 1.5));
        const QPointF d(std::cos(angles[k]), std::sin(angles[k]));
        const QPointF n(-d.y(), d.x());
        for (int s = -12; s <= 12; ++s) {
            const QPointF m = c + n * (s * 12.0);
            p.drawLine(m - d * 300, m + d * 300);
        }
    }
}

void drawCrack(QPainter& p, QSize size, bool stress)
{
    const QRectF beam(10, 20, size.width() - 20, size.height() - 50);
    slabSection(p, beam);
    p.setPen(QPen(kInk, 1.2));
    for (int k = 1; k < 5; ++k) {
        const double x = beam.left() + k * beam.width() / 5;
        QPainterPath crack(QPointF(x, beam.bottom()));
        crack.lineTo(x + 3, beam.bottom() - 12);
        crack.lineTo(x - 2, beam.bottom() - 24);
        crack.lineTo(x + 1, beam.center().y());
        p.drawPath(crack);
    }
    p.setPen(QPen(kDimension, 1));
    const double y = size.height() - 14;
    if (stress) {
        arrow(p, QPointF(beam.center().x(), y), QPointF(beam.left() + 10, y));
        arrow(p, QPointF(beam.center().x(), y), QPointF(beam.right() - 10, y));
    } else {
        const double x = beam.left() + beam.width() / 5;
        arrow(p, QPointF(x - 20, y), QPointF(x - 2, y), 4);
        arrow(p, QPointF(x + 22, y), QPointF(x + 4, y), 4);
    }
}

void drawReinforcementLimit(QPainter& p, QSize size, bool maximum)
{
    const QRectF slab(10, 10, size.width() - 20, size.height() - 20);
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    p.drawRect(slab);
    const int count = maximum ? 12 : 5;
    bars(p, slab.bottom() - 14, slab.left() + 10, slab.right() - 10, (slab.width() - 20) / (count - 1), maximum ? 5 : 3);
}

void drawBridgeSection(QPainter& p, QSize size, int kind)
{
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    const double w = size.width(), h = size.height();
    QPolygonF s;
    if (kind == 0) { // box girder
        s << QPointF(10, 15) << QPointF(w - 10, 15) << QPointF(w - 10, 25) << QPointF(w - 50, 28)
          << QPointF(w - 70, h - 10) << QPointF(70, h - 10) << QPointF(50, 28) << QPointF(10, 25);
        p.drawPolygon(s);
        p.setBrush(Qt::white);
        p.drawRect(QRectF(80, 35, w - 160, h - 55));
    } else if (kind == 1) { // solid slab
        s << QPointF(10, 20) << QPointF(w - 10, 20) << QPointF(w - 30, h - 20) << QPointF(30, h - 20);
        p.drawPolygon(s);
    } else { // T-beam
        s << QPointF(10, 15) << QPointF(w - 10, 15) << QPointF(w - 10, 30) << QPointF(w / 2 + 20, 35)
          << QPointF(w / 2 + 15, h - 10) << QPointF(w / 2 - 15, h - 10) << QPointF(w / 2 - 20, 35)
          << QPointF(10, 30);
        p.drawPolygon(s);
    }
}

void drawBridgeElevation(QPainter& p, QSize size, bool pier)
{
    const double w = size.width(), h = size.height();
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    p.drawRect(QRectF(5, 20, w - 10, 12));
    if (pier) {
        p.drawRect(QRectF(w / 2 - 8, 32, 16, h - 45));
        p.drawRect(QRectF(w / 2 - 20, h - 13, 40, 8));
    } else {
        p.setPen(QPen(kDimension, 1, Qt::DashDotLine));
        p.drawLine(QPointF(5, 26), QPointF(w - 5, 26));
    }
    p.setPen(QPen(kInk, 1));
    for (double x : {10.0, w - 10.0}) {
        QPolygonF support;
        support << QPointF(x, 32) << QPointF(x - 7, 44) << QPointF(x + 7, 44);
        p.drawPolygon(support);
    }
}

void drawTendon(QPainter& p, QSize size, int kind)
{
    const double w = size.width(), h = size.height();
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    p.drawRect(QRectF(8, 15, w - 16, h - 30));
    p.setPen(QPen(kSteel, 2));
    p.setBrush(Qt::NoBrush);
    QPainterPath path(QPointF(8, h / 2));
    if (kind == 0)
        path.quadTo(QPointF(w / 2, h + 10), QPointF(w - 8, h / 2));
    else
        path.lineTo(QPointF(w - 8, h / 2));
    p.drawPath(path);
    p.setPen(QPen(kInk, 1.2));
    if (kind == 2 || kind == 3) {
        p.setBrush(kInk);
        p.drawRect(QRectF(kind == 2 ? 4 : w / 2 - 4, h / 2 - 8, 8, 16));
    }
    if (kind == 4) {
        p.setPen(QPen(kDimension, 1));
        for (double x = 30; x < w - 30; x += 30)
            arrow(p, QPointF(x, h / 2 - 14), QPointF(x - 14, h / 2 - 14), 4);
    }
}

void drawBearing(QPainter& p, QSize size, int kind)
{
    const double w = size.width(), h = size.height();
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(kConcrete);
    p.drawRect(QRectF(10, 8, w - 20, 14));
    p.drawRect(QRectF(10, h - 22, w - 20, 14));
    p.setBrush(kind == 3 ? QColor(0x40, 0x40, 0x40) : QColor(0x90, 0x90, 0xa0));
    p.drawRect(QRectF(w / 2 - 25, 22, 50, h - 44));
    p.setPen(QPen(kDimension, 1));
    if (kind == 1 || kind == 2)
        arrow(p, QPointF(w / 2, h / 2), QPointF(w / 2 + 45, h / 2));
    if (kind == 2)
        arrow(p, QPointF(w / 2, h / 2), QPointF(w / 2 + 25, h / 2 - 20));
    if (kind == 4)
        p.drawEllipse(QPointF(w / 2, h / 2), 12, 6);
}

// A pocket calculator: display and keys, readable at 16 pixels.
void drawCalculator(QPainter& p, QSize size)
{
    const double w = size.width(), h = size.height();
    p.setPen(QPen(kInk, 1.5));
    p.setBrush(QColor(0x50, 0x58, 0x68));
    p.drawRoundedRect(QRectF(w * 0.16, 1, w * 0.68, h - 2), 3, 3);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xc8, 0xe6, 0xc0));
    p.drawRect(QRectF(w * 0.25, h * 0.1, w * 0.5, h * 0.2));
    const double key = w * 0.14, gap = w * 0.04;
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c) {
            p.setBrush(r == 2 && c == 2 ? QColor(0xe0, 0x80, 0x30) : QColor(0xf0, 0xf0, 0xf0));
            p.drawRect(QRectF(w * 0.25 + c * (key + gap), h * 0.4 + r * (key + gap), key, key));
        }
}

struct Figure
{
    const char* name;
    QSize size;
    std::function<void(QPainter&, QSize)> draw;
};

// Icons of the widget layer: <number>.png at 32 pixels and <number>@2x.png at 64, each drawn
// at its own size so that both are sharp.
const QColor kGroupFill(0x3a, 0x7b, 0xc8);
const QColor kSecondaryFill(0xe0, 0x8a, 0x1e);

// A mesh of 3 x 3 quads on a 32-unit square with the L of five picked ones filled: a group.
void drawGroupIcon(QPainter& p)
{
    const double x0 = 3, y0 = 3, step = 26.0 / 3;
    p.setPen(Qt::NoPen);
    p.setBrush(kGroupFill);
    const int picked[][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 2}, {2, 2}};
    for (const auto& q : picked)
        p.drawRect(QRectF(x0 + q[0] * step, y0 + q[1] * step, step, step));
    p.setPen(QPen(kInk, 1.6));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i <= 3; ++i) {
        p.drawLine(QPointF(x0 + i * step, y0), QPointF(x0 + i * step, y0 + 26));
        p.drawLine(QPointF(x0, y0 + i * step), QPointF(x0 + 26, y0 + i * step));
    }
}

// A label tag with a hole and two lines of writing: a group known by its name.
void drawSecondaryGroupIcon(QPainter& p)
{
    QPainterPath tag;
    tag.moveTo(3, 16);
    tag.lineTo(11, 6);
    tag.lineTo(29, 6);
    tag.lineTo(29, 26);
    tag.lineTo(11, 26);
    tag.closeSubpath();
    p.setPen(QPen(kInk, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(kSecondaryFill);
    p.drawPath(tag);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(10, 16), 2.2, 2.2);
    p.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(16, 13), QPointF(26, 13));
    p.drawLine(QPointF(16, 19), QPointF(23, 19));
}

bool saveIcon(const QImage& image, const QDir& out, const QString& name)
{
    if (image.save(out.filePath(name)))
        return true;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(name));
    return false;
}

// Icons have no background, so that they sit on any button.
bool drawIcons(const QDir& out)
{
    const struct
    {
        int number;
        void (*draw)(QPainter&);
    } icons[] = {{2125, drawGroupIcon}, {2126, drawSecondaryGroupIcon}};
    for (const auto& icon : icons) {
        for (int scale = 1; scale <= 2; ++scale) {
            QImage image(32 * scale, 32 * scale, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter p(&image);
            p.setRenderHint(QPainter::Antialiasing);
            p.scale(scale, scale);
            icon.draw(p);
            p.end();
            const QString name = QString::number(icon.number) +
                                 (scale == 2 ? QStringLiteral("@2x.png") : QStringLiteral(".png"));
            if (!saveIcon(image, out, name))
                return false;
        }
    }
    QImage calculator(32, 32, QImage::Format_ARGB32);
    calculator.fill(Qt::transparent);
    QPainter p(&calculator);
    p.setRenderHint(QPainter::Antialiasing);
    drawCalculator(p, calculator.size());
    p.end();
    return saveIcon(calculator, out, QStringLiteral("calculator.png"));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: drawfigures <folder> [<icon folder>]\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    const Figure figures[] = {
        {"neq_merpara_rich.png", {193, 111}, [](QPainter& p, QSize s) { drawDirections(p, s, Labels::None); }},
        {"neq_merpara_rich_0.png", {193, 112}, [](QPainter& p, QSize s) { drawDirections(p, s, Labels::German); }},
        {"neq_merpara_rich_1.png", {193, 112}, [](QPainter& p, QSize s) { drawDirections(p, s, Labels::English); }},
        {"betondeckung.png", {240, 111}, [](QPainter& p, QSize s) { drawCover(p, s, Labels::None); }},
        {"betondeckung_0.png", {240, 112}, [](QPainter& p, QSize s) { drawCover(p, s, Labels::German); }},
        {"betondeckung_1.png", {240, 112}, [](QPainter& p, QSize s) { drawCover(p, s, Labels::English); }},
        {"neq_designline_zrt_bew_mod_allg.png", {299, 104}, drawDesignLine},
        {"merpara_type_orthogonal.png", {120, 90}, [](QPainter& p, QSize s) { drawLayerType(p, s, 2, true, false); }},
        {"merpara_type_twolayers.png", {120, 90}, [](QPainter& p, QSize s) { drawLayerType(p, s, 2, false, false); }},
        {"merpara_type_threelayers.png", {120, 90}, [](QPainter& p, QSize s) { drawLayerType(p, s, 3, false, false); }},
        {"merpara_type_circular.png", {120, 90}, [](QPainter& p, QSize s) { drawLayerType(p, s, 0, false, true); }},
        {"merpara_crackwidth.png", {193, 111}, [](QPainter& p, QSize s) { drawCrack(p, s, false); }},
        {"merpara_steelstress.png", {193, 111}, [](QPainter& p, QSize s) { drawCrack(p, s, true); }},
        {"merpara_minmaxreinforcement.png", {193, 111}, [](QPainter& p, QSize s) { drawReinforcementLimit(p, s, true); }},
        // second block: bridge, tendon and bearing input
        {"bridge_section_box.png", {240, 112}, [](QPainter& p, QSize s) { drawBridgeSection(p, s, 0); }},
        {"bridge_section_slab.png", {240, 112}, [](QPainter& p, QSize s) { drawBridgeSection(p, s, 1); }},
        {"bridge_section_tbeam.png", {240, 112}, [](QPainter& p, QSize s) { drawBridgeSection(p, s, 2); }},
        {"bridge_axis.png", {240, 80}, [](QPainter& p, QSize s) { drawBridgeElevation(p, s, false); }},
        {"bridge_pier.png", {240, 112}, [](QPainter& p, QSize s) { drawBridgeElevation(p, s, true); }},
        {"tendon_profile_parabola.png", {240, 90}, [](QPainter& p, QSize s) { drawTendon(p, s, 0); }},
        {"tendon_profile_straight.png", {240, 90}, [](QPainter& p, QSize s) { drawTendon(p, s, 1); }},
        {"tendon_anchor.png", {240, 90}, [](QPainter& p, QSize s) { drawTendon(p, s, 2); }},
        {"tendon_coupler.png", {240, 90}, [](QPainter& p, QSize s) { drawTendon(p, s, 3); }},
        {"tendon_friction.png", {240, 90}, [](QPainter& p, QSize s) { drawTendon(p, s, 4); }},
        {"bearing_fixed.png", {160, 90}, [](QPainter& p, QSize s) { drawBearing(p, s, 0); }},
        {"bearing_guided.png", {160, 90}, [](QPainter& p, QSize s) { drawBearing(p, s, 1); }},
        {"bearing_free.png", {160, 90}, [](QPainter& p, QSize s) { drawBearing(p, s, 2); }},
        {"bearing_elastomer.png", {160, 90}, [](QPainter& p, QSize s) { drawBearing(p, s, 3); }},
        {"bearing_pot.png", {160, 90}, [](QPainter& p, QSize s) { drawBearing(p, s, 4); }},
    };
    // Each figure also at twice the pixels (name@2x.png), for screens that scale by two.
    for (const Figure& f : figures) {
        for (int scale = 1; scale <= 2; ++scale) {
            QImage image(f.size * scale, QImage::Format_ARGB32);
            image.fill(Qt::white);
            QPainter p(&image);
            p.setRenderHint(QPainter::Antialiasing);
            p.scale(scale, scale);
            QFont font = p.font();
            font.setPixelSize(10);
            p.setFont(font);
            f.draw(p, f.size);
            p.end();
            QString name = QString::fromLatin1(f.name);
            if (scale == 2)
                name.replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
            if (!image.save(out.filePath(name))) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(name));
                return 1;
            }
        }
    }
    return argc == 3 && !drawIcons(QDir(QString::fromLocal8Bit(argv[2]))) ? 1 : 0;
}
