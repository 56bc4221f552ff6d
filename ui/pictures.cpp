#include "ui/pictures.hpp"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <map>
#include <numbers>

namespace bm::ui {

namespace {

using Painter = void (*)(QPainter&, QSizeF);

struct PictureEntry {
    Painter paint;
    const char* description;
};

// Every picture is drawn in its own reference grid and scaled to the size asked.
void ScaleTo(QPainter& p, QSizeF size, QSizeF reference) {
    p.scale(size.width() / reference.width(), size.height() / reference.height());
}

void SineTrace(QPainter& p, QRectF box, double cycles, double amplitude) {
    QPainterPath path;
    const int steps = 80;
    for (int i = 0; i <= steps; ++i) {
        const double t = i / static_cast<double>(steps);
        const double x = box.left() + t * box.width();
        const double y = box.center().y() - amplitude * box.height() / 2 * std::sin(t * cycles * 2 * std::numbers::pi);
        if (i == 0)
            path.moveTo(x, y);
        else
            path.lineTo(x, y);
    }
    p.drawPath(path);
}

// The workbench: sky over the hills, a mast with a dipole sending out its
// waves, and on the bench an oscilloscope, a meter and the open notebook.
void PaintMain(QPainter& p, QSizeF size) {
    const QSizeF ref(565, 376);
    ScaleTo(p, size, ref);
    p.setRenderHint(QPainter::Antialiasing);

    QLinearGradient sky(0, 0, 0, 250);
    sky.setColorAt(0, QColor(188, 214, 238));
    sky.setColorAt(1, QColor(236, 242, 246));
    p.fillRect(QRectF(0, 0, ref.width(), 260), sky);

    // Hills on the horizon.
    QPainterPath hills;
    hills.moveTo(0, 230);
    hills.cubicTo(90, 190, 170, 215, 250, 205);
    hills.cubicTo(330, 195, 420, 180, 565, 215);
    hills.lineTo(565, 260);
    hills.lineTo(0, 260);
    hills.closeSubpath();
    p.fillPath(hills, QColor(150, 178, 140));

    // The mast, its guys and the dipole on top.
    const QPointF top(470, 120);
    p.setPen(QPen(QColor(90, 90, 96), 3));
    p.drawLine(QPointF(470, 255), top);
    p.setPen(QPen(QColor(120, 120, 126), 1));
    p.drawLine(top + QPointF(0, 40), QPointF(430, 255));
    p.drawLine(top + QPointF(0, 40), QPointF(510, 255));
    p.setPen(QPen(QColor(60, 60, 66), 3));
    p.drawLine(QPointF(418, 120), QPointF(522, 120));
    p.setBrush(QColor(40, 40, 40));
    p.drawRect(QRectF(466, 116, 8, 8));
    p.setBrush(Qt::NoBrush);
    for (int i = 1; i <= 3; ++i) {
        const double r = 16.0 * i;
        p.setPen(QPen(QColor(200, 60, 50, 220 - 50 * i), 2));
        p.drawArc(QRectF(top.x() - 60 - r, top.y() - 40 - r, 2 * r, 2 * r), 100 * 16, 80 * 16);
        p.drawArc(QRectF(top.x() + 60 - r, top.y() - 40 - r, 2 * r, 2 * r), 0 * 16, 80 * 16);
    }

    // The bench top and its edge.
    p.setPen(Qt::NoPen);
    QLinearGradient wood(0, 258, 0, 376);
    wood.setColorAt(0, QColor(176, 128, 82));
    wood.setColorAt(1, QColor(128, 86, 50));
    p.fillRect(QRectF(0, 258, ref.width(), 118), wood);
    p.fillRect(QRectF(0, 256, ref.width(), 6), QColor(100, 66, 38));

    // Oscilloscope.
    const QRectF scope(36, 190, 150, 110);
    p.setBrush(QColor(70, 80, 92));
    p.setPen(QPen(QColor(40, 44, 50), 2));
    p.drawRoundedRect(scope, 6, 6);
    const QRectF screen(48, 202, 92, 70);
    p.setBrush(QColor(18, 40, 26));
    p.drawRoundedRect(screen, 4, 4);
    p.setPen(QPen(QColor(50, 90, 60), 1));
    for (int i = 1; i < 4; ++i) p.drawLine(QPointF(screen.left() + i * 23, screen.top()), QPointF(screen.left() + i * 23, screen.bottom()));
    p.drawLine(QPointF(screen.left(), screen.center().y()), QPointF(screen.right(), screen.center().y()));
    p.setPen(QPen(QColor(120, 255, 140), 2));
    SineTrace(p, screen.adjusted(4, 8, -4, -8), 2, 0.9);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 3; ++i) {
        p.setBrush(QColor(210, 210, 200));
        p.drawEllipse(QPointF(162, 214 + i * 24), 7, 7);
    }

    // Analog meter.
    const QRectF meter(214, 226, 96, 76);
    p.setBrush(QColor(30, 30, 34));
    p.setPen(QPen(QColor(15, 15, 15), 2));
    p.drawRoundedRect(meter, 5, 5);
    const QRectF dial(222, 234, 80, 44);
    p.setBrush(QColor(246, 240, 220));
    p.setPen(Qt::NoPen);
    p.drawRect(dial);
    p.setPen(QPen(QColor(40, 40, 40), 1));
    const QPointF pivot(262, 276);
    for (int i = 0; i <= 10; ++i) {
        const double a = (150.0 - i * 12.0) * std::numbers::pi / 180.0;
        p.drawLine(pivot + QPointF(34 * std::cos(a), -34 * std::sin(a)), pivot + QPointF(38 * std::cos(a), -38 * std::sin(a)));
    }
    p.setPen(QPen(QColor(200, 30, 30), 2));
    const double needle = 62.0 * std::numbers::pi / 180.0;
    p.drawLine(pivot, pivot + QPointF(36 * std::cos(needle), -36 * std::sin(needle)));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 30, 30));
    p.drawEllipse(QPointF(240, 292), 4, 4);
    p.setBrush(QColor(20, 20, 20));
    p.drawEllipse(QPointF(284, 292), 4, 4);

    // The open notebook with a pencil: the "quaderno tecnico".
    p.save();
    p.translate(330, 300);
    p.rotate(-6);
    p.setPen(QPen(QColor(120, 120, 120), 1));
    p.setBrush(QColor(252, 252, 246));
    p.drawRect(QRectF(0, 0, 78, 56));
    p.drawRect(QRectF(78, 0, 78, 56));
    p.setPen(QPen(QColor(170, 196, 230), 1));
    for (int i = 1; i < 7; ++i) {
        p.drawLine(QPointF(6, i * 8.0), QPointF(72, i * 8.0));
        p.drawLine(QPointF(84, i * 8.0), QPointF(150, i * 8.0));
    }
    p.setPen(QPen(QColor(30, 60, 150), 1.5));
    SineTrace(p, QRectF(86, 10, 62, 36), 1.5, 0.8);
    p.drawLine(QPointF(8, 14), QPointF(48, 14));
    p.drawLine(QPointF(8, 30), QPointF(60, 30));
    p.restore();
    p.setPen(QPen(QColor(60, 40, 20), 1));
    p.setBrush(QColor(230, 190, 40));
    p.save();
    p.translate(470, 336);
    p.rotate(-28);
    p.drawRect(QRectF(0, 0, 70, 6));
    p.setBrush(QColor(240, 210, 170));
    QPolygonF tip;
    tip << QPointF(70, 0) << QPointF(82, 3) << QPointF(70, 6);
    p.drawPolygon(tip);
    p.restore();
}

// An open door with an arrow going out of it.
void PaintExit(QPainter& p, QSizeF size) {
    const QSizeF ref(48, 48);
    const double side = std::min(size.width(), size.height());
    p.translate((size.width() - side) / 2, (size.height() - side) / 2);
    ScaleTo(p, QSizeF(side, side), ref);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(70, 50, 30), 2));
    p.setBrush(QColor(40, 40, 48));
    p.drawRect(QRectF(8, 5, 22, 38));
    QPolygonF leaf;
    leaf << QPointF(8, 5) << QPointF(20, 9) << QPointF(20, 47) << QPointF(8, 43);
    p.setBrush(QColor(176, 112, 56));
    p.drawPolygon(leaf);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(240, 210, 80));
    p.drawEllipse(QPointF(17.5, 27), 1.6, 1.6);
    p.setBrush(QColor(30, 150, 60));
    QPolygonF arrow;
    arrow << QPointF(24, 21) << QPointF(36, 21) << QPointF(36, 15) << QPointF(46, 25) << QPointF(36, 35)
          << QPointF(36, 29) << QPointF(24, 29);
    p.drawPolygon(arrow);
}

// The about window's picture: a small lattice tower sending its signal.
void PaintAbout(QPainter& p, QSizeF size) {
    const QSizeF ref(80, 80);
    ScaleTo(p, size, ref);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient glow(QPointF(40, 40), 48);
    glow.setColorAt(0, QColor(255, 252, 230));
    glow.setColorAt(1, QColor(196, 216, 236));
    p.fillRect(QRectF(0, 0, 80, 80), glow);
    p.setPen(QPen(QColor(60, 60, 70), 2));
    p.drawLine(QPointF(26, 76), QPointF(40, 22));
    p.drawLine(QPointF(54, 76), QPointF(40, 22));
    p.setPen(QPen(QColor(60, 60, 70), 1));
    for (int i = 0; i < 5; ++i) {
        const double y = 30 + i * 10.0;
        const double half = (y - 22) * 14.0 / 54.0;
        p.drawLine(QPointF(40 - half, y), QPointF(40 + half, y + 8));
        p.drawLine(QPointF(40 + half, y), QPointF(40 - half, y + 8));
    }
    p.setPen(QPen(QColor(60, 60, 70), 2));
    p.drawLine(QPointF(40, 22), QPointF(40, 10));
    p.setBrush(QColor(210, 40, 40));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(40, 9), 3, 3);
    p.setBrush(Qt::NoBrush);
    for (int i = 1; i <= 3; ++i) {
        const double r = 8.0 * i;
        p.setPen(QPen(QColor(210, 40, 40, 230 - 55 * i), 2));
        p.drawArc(QRectF(40 - r, 9 - r, 2 * r, 2 * r), -40 * 16, 80 * 16);
        p.drawArc(QRectF(40 - r, 9 - r, 2 * r, 2 * r), 140 * 16, 80 * 16);
    }
}

// The filter sections: a black schematic on a white card, with the parts
// marked "L" and "C" as the result texts name them. Each picture's grid is the
// size its window shows it at, and the card leaves free the corners where the
// window writes over the picture (a title above, the results to the right).
enum class Component { Coil, Capacitor };

// A part between a and b, which lie on one horizontal or vertical line with a
// before b; the body stands in the middle and leads fill the rest.
void DrawComponent(QPainter& p, QPointF a, QPointF b, Component part) {
    const bool horizontal = std::abs(a.y() - b.y()) < 0.5;
    const QPointF axis = horizontal ? QPointF(1, 0) : QPointF(0, 1);
    const QPointF across = horizontal ? QPointF(0, 1) : QPointF(1, 0);
    const QPointF mid = (a + b) / 2;
    const double half = part == Component::Coil ? 18 : 3;
    p.drawLine(a, mid - axis * half);
    p.drawLine(mid + axis * half, b);
    if (part == Component::Coil) {
        // Four turns bulging up from a horizontal lead, to the right of a vertical one.
        const double d = 2 * half / 4;
        for (int i = 0; i < 4; ++i) {
            const QPointF start = mid - axis * half + axis * (i * d);
            if (horizontal)
                p.drawArc(QRectF(start.x(), start.y() - d / 2, d, d), 0, 180 * 16);
            else
                p.drawArc(QRectF(start.x() - d / 2, start.y(), d, d), 90 * 16, -180 * 16);
        }
    } else {
        const QPen lead = p.pen();
        QPen plate = lead;
        plate.setWidthF(lead.widthF() * 1.5);
        plate.setCapStyle(Qt::FlatCap);
        p.setPen(plate);
        for (const double side : {-half, half}) {
            const QPointF c = mid + axis * side;
            p.drawLine(c - across * 10, c + across * 10);
        }
        p.setPen(lead);
    }
}

// "L" or "C" centred on a point.
void ComponentName(QPainter& p, QPointF centre, Component part) {
    const QRectF box(centre.x() - 8, centre.y() - 8, 16, 16);
    p.drawText(box, Qt::AlignCenter, part == Component::Coil ? QStringLiteral("L") : QStringLiteral("C"));
}

void Earth(QPainter& p, QPointF from) {
    p.drawLine(from, from + QPointF(0, 8));
    for (int i = 0; i < 3; ++i) {
        const double half = 9.0 - 3.0 * i;
        const double y = from.y() + 8 + 4 * i;
        p.drawLine(QPointF(from.x() - half, y), QPointF(from.x() + half, y));
    }
}

void Terminal(QPainter& p, QPointF at) {
    p.save();
    p.setBrush(Qt::white);
    p.drawEllipse(at, 3.2, 3.2);
    p.restore();
}

// One section on its card: input terminals on the left, output on the right,
// the upper line through the series parts, the lower line to ground.
// A pi section is shunt, series, shunt; a T section series, shunt, series.
void PaintSection(QPainter& p, QSizeF size, QSizeF grid, QRectF card, bool pi, Component series, Component shunt) {
    ScaleTo(p, size, grid);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(150, 150, 150), 1));
    p.setBrush(Qt::white);
    p.drawRect(card.adjusted(0.5, 0.5, -0.5, -0.5));
    p.setBrush(Qt::NoBrush);

    QPen ink(Qt::black, 1.6);
    ink.setCapStyle(Qt::RoundCap);
    p.setPen(ink);
    QFont font = p.font();
    font.setPixelSize(13);
    font.setBold(true);
    p.setFont(font);

    const double in = card.left() + 14;
    const double out = card.right() - 14;
    const double top = card.top() + card.height() * 0.30;
    const double bottom = card.top() + card.height() * 0.70;
    const double middle = (top + bottom) / 2;
    const auto node = [&p](QPointF at) {
        p.save();
        p.setBrush(Qt::black);
        p.drawEllipse(at, 2.2, 2.2);
        p.restore();
    };

    p.drawLine(QPointF(in, bottom), QPointF(out, bottom));
    double earthX = (in + out) / 2;
    if (pi) {
        const double x1 = in + (out - in) * 0.25;
        const double x2 = out - (out - in) * 0.25;
        p.drawLine(QPointF(in, top), QPointF(x1, top));
        DrawComponent(p, QPointF(x1, top), QPointF(x2, top), series);
        p.drawLine(QPointF(x2, top), QPointF(out, top));
        for (const double x : {x1, x2}) {
            DrawComponent(p, QPointF(x, top), QPointF(x, bottom), shunt);
            node(QPointF(x, top));
            node(QPointF(x, bottom));
            ComponentName(p, QPointF(x + 19, middle), shunt);
        }
        ComponentName(p, QPointF((x1 + x2) / 2, top - 19), series);
    } else {
        const double x = (in + out) / 2;
        DrawComponent(p, QPointF(in, top), QPointF(x, top), series);
        DrawComponent(p, QPointF(x, top), QPointF(out, top), series);
        DrawComponent(p, QPointF(x, top), QPointF(x, bottom), shunt);
        node(QPointF(x, top));
        node(QPointF(x, bottom));
        ComponentName(p, QPointF((in + x) / 2, top - 19), series);
        ComponentName(p, QPointF((x + out) / 2, top - 19), series);
        ComponentName(p, QPointF(x + 19, middle), shunt);
        earthX = x;
    }
    Earth(p, QPointF(earthX, bottom));
    for (const double x : {in, out})
        for (const double y : {top, bottom}) Terminal(p, QPointF(x, y));
}

// High pass: the coils go to ground, the capacitors pass the signal.
void PaintHighPassPi(QPainter& p, QSizeF size) {
    PaintSection(p, size, {260, 162}, {1, 1, 218, 160}, true, Component::Capacitor, Component::Coil);
}
void PaintHighPassT(QPainter& p, QSizeF size) {
    PaintSection(p, size, {151, 153}, {1, 4, 149, 148}, false, Component::Capacitor, Component::Coil);
}
// Low pass: the capacitors go to ground, the coils pass the signal.
void PaintLowPassPi(QPainter& p, QSizeF size) {
    PaintSection(p, size, {244, 163}, {1, 9, 224, 153}, true, Component::Coil, Component::Capacitor);
}
void PaintLowPassT(QPainter& p, QSizeF size) {
    PaintSection(p, size, {179, 152}, {1, 9, 177, 142}, false, Component::Coil, Component::Capacitor);
}

// A magnetic loop on its mast against the sky: a ring of copper tube, the
// tuning capacitor in its box at the top, and the small coupling loop at the
// bottom with the coax running down the mast.
void PaintLoop(QPainter& p, QSizeF size) {
    const QSizeF ref(120, 120);
    ScaleTo(p, size, ref);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 120);
    sky.setColorAt(0, QColor(176, 206, 236));
    sky.setColorAt(1, QColor(238, 244, 248));
    p.fillRect(QRectF(0, 0, 120, 120), sky);
    p.fillRect(QRectF(0, 108, 120, 12), QColor(150, 176, 120));

    // The mast, from the ground to the foot of the ring.
    p.setPen(QPen(QColor(90, 90, 96), 3));
    p.drawLine(QPointF(60, 108), QPointF(60, 96));
    p.setPen(QPen(QColor(120, 120, 128), 4));
    p.drawLine(QPointF(60, 118), QPointF(60, 98));

    // The ring: a copper tube with a light streak along it.
    const QRectF ring(22, 14, 76, 80);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(168, 92, 40), 6));
    p.drawArc(ring, 100 * 16, 340 * 16);
    p.setPen(QPen(QColor(236, 170, 110), 1.5));
    p.drawArc(ring.adjusted(-1.5, -1.5, 1.5, 1.5), 110 * 16, 140 * 16);

    // The tuning capacitor across the gap at the top.
    p.setPen(QPen(QColor(50, 50, 60), 1));
    p.setBrush(QColor(226, 226, 218));
    p.drawRect(QRectF(49, 6, 22, 15));
    p.setPen(QPen(QColor(50, 50, 60), 1.5));
    for (int i = 0; i < 4; ++i) p.drawLine(QPointF(53 + i * 4.5, 9), QPointF(53 + i * 4.5, 18));

    // The coupling loop, a fifth of the ring, and the coax down the mast.
    p.setPen(QPen(QColor(60, 60, 150), 2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(52, 78, 16, 16));
    p.setPen(QPen(QColor(30, 30, 30), 2));
    p.drawLine(QPointF(62, 94), QPointF(62, 118));
}

// Neither a picture nor a fault: a quiet panel that keeps the place.
void PaintPlaceholder(QPainter& p, QSizeF size) {
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF box(0.5, 0.5, size.width() - 1, size.height() - 1);
    p.setPen(QPen(QColor(160, 160, 160), 1));
    p.setBrush(QColor(228, 228, 228));
    p.drawRect(box);
    const double s = std::min(size.width(), size.height()) * 0.5;
    if (s < 8) return;
    const QPointF c = box.center();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(190, 190, 190));
    QPolygonF mountain;
    mountain << c + QPointF(-s / 2, s / 3) << c + QPointF(-s / 8, -s / 4) << c + QPointF(s / 8, s / 12)
             << c + QPointF(s / 4, -s / 12) << c + QPointF(s / 2, s / 3);
    p.drawPolygon(mountain);
    p.drawEllipse(c + QPointF(s / 4, -s / 3), s / 10, s / 10);
}

const std::map<std::string_view, PictureEntry>& Pictures() {
    static const std::map<std::string_view, PictureEntry> pictures = {
        {"main", {&PaintMain, "banco di misura con oscilloscopio, strumento e antenna"}},
        {"exit", {&PaintExit, "uscita"}},
        {"about", {&PaintAbout, "traliccio d'antenna"}},
        {"passaalto-pigreco", {&PaintHighPassPi, "filtro passa alto a pi greco: L verso massa, C in serie, L verso massa"}},
        {"passaalto-T", {&PaintHighPassT, "filtro passa alto a T: C in serie, L verso massa, C in serie"}},
        {"passabasso-pigreco", {&PaintLowPassPi, "filtro passa basso a pi greco: C verso massa, L in serie, C verso massa"}},
        {"passabasso-T", {&PaintLowPassT, "filtro passa basso a T: L in serie, C verso massa, L in serie"}},
        {"loop", {&PaintLoop, "antenna a loop magnetico con condensatore di sintonia e spira d'accoppiamento"}},
    };
    return pictures;
}

}  // namespace

bool IsKnownPicture(std::string_view name) { return Pictures().count(name) != 0; }

QPixmap RenderPicture(std::string_view name, QSize size) {
    if (size.width() <= 0 || size.height() <= 0) return QPixmap();
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    auto it = Pictures().find(name);
    if (it != Pictures().end())
        it->second.paint(p, QSizeF(size));
    else
        PaintPlaceholder(p, QSizeF(size));
    return pixmap;
}

QString PictureDescription(std::string_view name) {
    auto it = Pictures().find(name);
    return it == Pictures().end() ? QString() : QString::fromUtf8(it->second.description);
}

}  // namespace bm::ui
