// Draws the figures of the library's two resource blocks, and with a second folder the
// numbered icons of the widget layer. Run it by hand after a change of a figure and commit the
// PNGs it writes:  drawfigures <folder> [<icon folder>]
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <cstdio>
#include <functional>

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

// A vertical dimension between two heights with its text to the right.
void dimension(QPainter& p, double x, double y1, double y2, const QString& text)
{
    p.save();
    p.setPen(QPen(kDimension, 1));
    arrow(p, QPointF(x, (y1 + y2) / 2), QPointF(x, y1), 4);
    arrow(p, QPointF(x, (y1 + y2) / 2), QPointF(x, y2), 4);
    if (!text.isEmpty())
        p.drawText(QPointF(x + 4, (y1 + y2) / 2 + 4), text);
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

// Concrete cover and layer distances of a plate section.
void drawCover(QPainter& p, QSize size, Labels l)
{
    const QRectF slab(10, 14, size.width() - 90, size.height() - 28);
    slabSection(p, slab);
    const double x = slab.right() + 10;
    dimension(p, x, slab.top(), slab.top() + 12, tr2(l, "H oben", "H upper"));
    dimension(p, x + 30, slab.top() + 12, slab.top() + 19, tr2(l, "DH", "DH"));
    dimension(p, x, slab.bottom() - 12, slab.bottom(), tr2(l, "H unten", "H lower"));
    if (l != Labels::None) {
        p.setPen(kInk);
        p.drawText(QPointF(slab.left() + 4, 11), tr2(l, "Oberseite", "upper side"));
        p.drawText(QPointF(slab.left() + 4, size.height() - 2), tr2(l, "Unterseite", "lower side"));
    }
}

// Directions of the reinforcement in the plane of the element.
void drawDirections(QPainter& p, QSize size, Labels l)
{
    const QPointF o(40, size.height() - 22);
    p.setPen(QPen(kInk, 1));
    arrow(p, o, o + QPointF(size.width() - 60, 0));
    arrow(p, o, o - QPointF(0, size.height() - 34));
    p.drawText(o + QPointF(size.width() - 56, 12), QStringLiteral("x"));
    p.drawText(o - QPointF(12, size.height() - 40), QStringLiteral("y"));
    p.setPen(QPen(kSteel, 2));
    const double a = 0.5;
    arrow(p, o, o + QPointF(110 * std::cos(a), -110 * std::sin(a)));
    arrow(p, o, o + QPointF(-60 * std::sin(a), -60 * std::cos(a)));
    p.setPen(QPen(kDimension, 1));
    p.drawArc(QRectF(o.x() - 45, o.y() - 45, 90, 90), 0, int(a * 180 / M_PI * 16));
    p.drawText(o + QPointF(50, -8), QStringLiteral("\u03b1"));
    if (l != Labels::None) {
        p.setPen(kInk);
        p.drawText(QPointF(o.x() + 70, o.y() - 64), tr2(l, "Hauptbewehrung", "principal"));
        p.drawText(QPointF(4, 12), tr2(l, "Querbewehrung", "cross reinforcement"));
    }
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
            if (!image.save(out.filePath(name))) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(name));
                return false;
            }
        }
    }
    return true;
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
    for (const Figure& f : figures) {
        QImage image(f.size, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        QFont font = p.font();
        font.setPixelSize(10);
        p.setFont(font);
        f.draw(p, f.size);
        p.end();
        if (!image.save(out.filePath(QString::fromLatin1(f.name)))) {
            std::fprintf(stderr, "cannot write %s\n", f.name);
            return 1;
        }
    }
    return argc == 3 && !drawIcons(QDir(QString::fromLocal8Bit(argv[2]))) ? 1 : 0;
}
