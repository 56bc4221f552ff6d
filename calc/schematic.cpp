#include "calc/schematic.hpp"

#include <stdexcept>
#include <vector>

namespace bm {

namespace {
constexpr int kResistorLength = 480;
constexpr int kResistorWidth = 180;
constexpr int kInductorLength = 600;
constexpr int kTurn = 180;       // one turn's width along the coil
constexpr int kTurnStep = 140;   // turns overlap, as a wound coil does
constexpr int kTurnHeight = 220;
constexpr int kPlateGap = 120;
constexpr int kPlateWidth = 300;
constexpr int kGeneratorDiameter = 480;
}  // namespace

Schematic::Schematic(CalculatorForm& form, std::string frame) : form_(form), frame_(std::move(frame)) {}

std::string Schematic::next(const char* stem, int& counter) {
    std::string name;
    do {
        name = stem + std::to_string(++counter);
    } while (form_.find(ControlKey{name, -1}) != nullptr);
    return name;
}

ControlDef& Schematic::line(int x1, int y1, int x2, int y2) {
    ControlDef& d = form_.line(next("Line", lines_), x1, y1, x2, y2);
    if (!frame_.empty()) d.in(frame_);
    return d;
}

ControlDef& Schematic::shape(Rect r, ShapeKind kind) {
    ControlDef& d = form_.shape(next("Shape", shapes_), r, kind);
    if (!frame_.empty()) d.in(frame_);
    return d;
}

void Schematic::wire(int x1, int y1, int x2, int y2) { line(x1, y1, x2, y2); }

void Schematic::path(std::initializer_list<std::pair<int, int>> points) {
    const std::vector<std::pair<int, int>> p(points);
    for (std::size_t i = 1; i < p.size(); ++i) line(p[i - 1].first, p[i - 1].second, p[i].first, p[i].second);
}

int Schematic::leads(int x1, int y1, int x2, int y2, int body) {
    if (x1 != x2 && y1 != y2) throw std::logic_error(form_.name + ": a component must lie on one line");
    const bool across = y1 == y2;
    int a = across ? x1 : y1;
    int b = across ? x2 : y2;
    if (a > b) std::swap(a, b);
    if (b - a < body) throw std::logic_error(form_.name + ": no room for a component");
    const int start = a + (b - a - body) / 2;
    const int end = start + body;
    if (across) {
        if (start > a) line(a, y1, start, y1);
        if (b > end) line(end, y1, b, y1);
    } else {
        if (start > a) line(x1, a, x1, start);
        if (b > end) line(x1, end, x1, b);
    }
    return start;
}

void Schematic::resistor(int x1, int y1, int x2, int y2) {
    const int s = leads(x1, y1, x2, y2, kResistorLength);
    if (y1 == y2)
        shape({s, y1 - kResistorWidth / 2, kResistorLength, kResistorWidth}, ShapeKind::Rectangle);
    else
        shape({x1 - kResistorWidth / 2, s, kResistorWidth, kResistorLength}, ShapeKind::Rectangle);
}

void Schematic::inductor(int x1, int y1, int x2, int y2) {
    const int s = leads(x1, y1, x2, y2, kInductorLength);
    for (int i = 0; i < 4; ++i) {
        const int at = s + i * kTurnStep;
        if (y1 == y2)
            shape({at, y1 - kTurnHeight / 2, kTurn, kTurnHeight}, ShapeKind::Oval);
        else
            shape({x1 - kTurnHeight / 2, at, kTurnHeight, kTurn}, ShapeKind::Oval);
    }
}

void Schematic::capacitor(int x1, int y1, int x2, int y2) {
    const int s = leads(x1, y1, x2, y2, kPlateGap);
    const int half = kPlateWidth / 2;
    if (y1 == y2) {
        line(s, y1 - half, s, y1 + half).width(2);
        line(s + kPlateGap, y1 - half, s + kPlateGap, y1 + half).width(2);
    } else {
        line(x1 - half, s, x1 + half, s).width(2);
        line(x1 - half, s + kPlateGap, x1 + half, s + kPlateGap).width(2);
    }
}

void Schematic::part(Part kind, int x1, int y1, int x2, int y2) {
    switch (kind) {
        case Part::Resistor: resistor(x1, y1, x2, y2); break;
        case Part::Inductor: inductor(x1, y1, x2, y2); break;
        case Part::Capacitor: capacitor(x1, y1, x2, y2); break;
    }
}

void Schematic::variableCapacitor(int x1, int y1, int x2, int y2) {
    capacitor(x1, y1, x2, y2);
    // The arrow crosses the plates from lower left to upper right.
    const int cx = y1 == y2 ? (x1 + x2) / 2 : x1;
    const int cy = y1 == y2 ? y1 : (y1 + y2) / 2;
    const int tipX = cx + 240;
    const int tipY = cy - 240;
    line(cx - 240, cy + 240, tipX, tipY);
    line(tipX, tipY, tipX - 120, tipY);
    line(tipX, tipY, tipX, tipY + 120);
}

void Schematic::generator(int x, int y1, int y2) {
    const int s = leads(x, y1, x, y2, kGeneratorDiameter);
    const int r = kGeneratorDiameter / 2;
    shape({x - r, s, kGeneratorDiameter, kGeneratorDiameter}, ShapeKind::Circle);
    const int cy = s + r;
    path({{x - 150, cy}, {x - 75, cy - 70}, {x, cy}, {x + 75, cy + 70}, {x + 150, cy}});
}

void Schematic::node(int x, int y) {
    shape({x - 45, y - 45, 90, 90}, ShapeKind::Circle).filled(colors::Black);
}

void Schematic::terminal(int x, int y) {
    shape({x - 60, y - 60, 120, 120}, ShapeKind::Circle).filled(colors::White);
}

void Schematic::ground(int x, int y) {
    line(x, y, x, y + 150);
    line(x - 180, y + 150, x + 180, y + 150).width(2);
    line(x - 110, y + 220, x + 110, y + 220).width(2);
    line(x - 45, y + 290, x + 45, y + 290).width(2);
}

void Schematic::box(int left, int top, int width, int height) {
    shape({left, top, width, height}, ShapeKind::Rectangle);
}

void Schematic::transistor(int x, int y) {
    shape({x - 330, y - 460, 920, 920}, ShapeKind::Circle);
    line(x, y - 240, x, y + 240).width(2);
    path({{x, y - 100}, {x + 300, y - 300}, {x + 300, y - 600}});
    path({{x, y + 100}, {x + 300, y + 300}, {x + 300, y + 600}});
    // The emitter's arrow points out of the transistor.
    line(x + 300, y + 300, x + 137, y + 275);
    line(x + 300, y + 300, x + 213, y + 159);
}

void Schematic::diode(int x1, int y1, int x2, int y2) {
    constexpr int body = 240;
    constexpr int half = 120;
    const int s = leads(x1, y1, x2, y2, body);
    const bool across = y1 == y2;
    const bool forward = across ? x2 > x1 : y2 > y1;
    const int base = forward ? s : s + body;
    const int apex = forward ? s + body : s;
    if (across) {
        path({{base, y1 - half}, {apex, y1}, {base, y1 + half}, {base, y1 - half}});
        line(apex, y1 - half, apex, y1 + half).width(2);
    } else {
        path({{x1 - half, base}, {x1, apex}, {x1 + half, base}, {x1 - half, base}});
        line(x1 - half, apex, x1 + half, apex).width(2);
    }
}

}  // namespace bm
