#include "calc/antennas/antenna_drawing.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace bm {

namespace {
constexpr int kRadiatorWidth = 3;   // pixels: an element is heavier than a wire
constexpr int kCoaxGap = 60;
constexpr int kArrow = 90;
constexpr int kTick = 90;
}  // namespace

void AntennaDrawing::radiator(int x1, int y1, int x2, int y2) { line(x1, y1, x2, y2).width(kRadiatorWidth); }

void AntennaDrawing::radiatorPath(std::initializer_list<std::pair<int, int>> points) {
    const std::vector<std::pair<int, int>> p(points);
    for (std::size_t i = 1; i < p.size(); ++i) radiator(p[i - 1].first, p[i - 1].second, p[i].first, p[i].second);
}

void AntennaDrawing::feedPoint(int x, int y) {
    shape({x - 150, y - 90, 300, 180}, ShapeKind::Rectangle).filled(colors::White);
}

void AntennaDrawing::insulator(int x, int y) {
    shape({x - 90, y - 60, 180, 120}, ShapeKind::Oval).filled(colors::White);
}

void AntennaDrawing::coax(int x1, int y1, int x2, int y2) {
    const int h = kCoaxGap / 2;
    if (y1 == y2) {
        line(x1, y1 - h, x2, y2 - h);
        line(x1, y1 + h, x2, y2 + h);
    } else {
        line(x1 - h, y1, x2 - h, y2);
        line(x1 + h, y1, x2 + h, y2);
    }
}

void AntennaDrawing::trap(int x1, int y1, int x2, int y2) {
    inductor(x1, y1, x2, y2);
    // The capacitor bridges the coil: leads out from both ends of the coil body.
    constexpr int kCoil = 600;
    constexpr int kAcross = 360;
    if (y1 == y2) {
        const int a = std::min(x1, x2) + (std::abs(x2 - x1) - kCoil) / 2;
        const int b = a + kCoil;
        path({{a, y1}, {a, y1 - kAcross}});
        path({{b, y1}, {b, y1 - kAcross}});
        capacitor(a, y1 - kAcross, b, y1 - kAcross);
    } else {
        const int a = std::min(y1, y2) + (std::abs(y2 - y1) - kCoil) / 2;
        const int b = a + kCoil;
        path({{x1, a}, {x1 + kAcross, a}});
        path({{x1, b}, {x1 + kAcross, b}});
        capacitor(x1 + kAcross, a, x1 + kAcross, b);
    }
}

void AntennaDrawing::radials(int x, int y, int reach, int drop, int count) {
    radiator(x, y, x - reach, y + drop);
    radiator(x, y, x + reach, y + drop);
    if (count >= 4) {
        // The two behind, foreshortened and flatter, so they part from the front pair.
        radiator(x, y, x - reach * 3 / 5, y + drop / 5);
        radiator(x, y, x + reach * 3 / 5, y + drop / 5);
    }
}

void AntennaDrawing::capacityHat(int x, int y, int half) {
    radiator(x - half, y, x + half, y);
    // Two more spokes seen at a slant.
    radiator(x - half / 2, y - half / 4, x + half / 2, y + half / 4);
    radiator(x - half / 2, y + half / 4, x + half / 2, y - half / 4);
}

void AntennaDrawing::dimension(int x1, int y1, int x2, int y2) {
    line(x1, y1, x2, y2);
    if (y1 == y2) {
        const int a = std::min(x1, x2);
        const int b = std::max(x1, x2);
        line(a, y1 - kTick, a, y1 + kTick);
        line(b, y1 - kTick, b, y1 + kTick);
        line(a, y1, a + kArrow, y1 - kArrow / 2);
        line(a, y1, a + kArrow, y1 + kArrow / 2);
        line(b, y1, b - kArrow, y1 - kArrow / 2);
        line(b, y1, b - kArrow, y1 + kArrow / 2);
    } else {
        const int a = std::min(y1, y2);
        const int b = std::max(y1, y2);
        line(x1 - kTick, a, x1 + kTick, a);
        line(x1 - kTick, b, x1 + kTick, b);
        line(x1, a, x1 - kArrow / 2, a + kArrow);
        line(x1, a, x1 + kArrow / 2, a + kArrow);
        line(x1, b, x1 - kArrow / 2, b - kArrow);
        line(x1, b, x1 + kArrow / 2, b - kArrow);
    }
}

void AntennaDrawing::earthLine(int x1, int x2, int y) {
    line(x1, y, x2, y).width(2);
    for (int x = std::min(x1, x2) + 60; x + 120 <= std::max(x1, x2); x += 180) line(x + 120, y, x, y + 120);
}

void AntennaDrawing::stub(int x, int y1, int y2, int gap) {
    radiator(x, y1, x, y2);
    radiator(x + gap, y1, x + gap, y2);
    radiator(x, y2, x + gap, y2);
}

void AntennaDrawing::gammaRod(int x1, int y1, int x2, int y2, int offset) {
    if (y1 == y2) {
        line(x1, y1 + offset, x2, y2 + offset).width(2);
        line(x2, y2, x2, y2 + offset).width(2);  // the strap
    } else {
        line(x1 + offset, y1, x2 + offset, y2).width(2);
        line(x2, y2, x2 + offset, y2).width(2);
    }
}

void AntennaDrawing::cylinder(int left, int top, int width, int height) {
    constexpr int kRim = 180;
    shape({left, top - kRim / 2, width, kRim}, ShapeKind::Oval);
    shape({left, top + height - kRim / 2, width, kRim}, ShapeKind::Oval);
    line(left, top, left, top + height);
    line(left + width, top, left + width, top + height);
}

void AntennaDrawing::dish(int x, int y, int half, int depth) {
    // x - vertex = depth * (t / half)^2 for t across the aperture, in eight steps a side.
    constexpr int kSteps = 8;
    int px = x + depth;
    int py = y - half;
    for (int i = -kSteps + 1; i <= kSteps; ++i) {
        const double t = static_cast<double>(i) / kSteps;
        const int nx = x + static_cast<int>(std::lround(depth * t * t));
        const int ny = y + static_cast<int>(std::lround(half * t));
        line(px, py, nx, ny).width(2);
        px = nx;
        py = ny;
    }
}

void AntennaDrawing::helix(int x1, int x2, int y, int turns, int diameter) {
    if (turns < 1) return;
    const int pitch = (x2 - x1) / turns;
    const int half = diameter / 2;
    // Each turn: down the front at a slant, back up behind.
    for (int i = 0; i < turns; ++i) {
        const int a = x1 + i * pitch;
        line(a, y - half, a + pitch / 2, y + half).width(2);
        line(a + pitch / 2, y + half, a + pitch, y - half);
    }
}

void AntennaDrawing::linearTrap(int x1, int x2, int y, int gap) {
    radiator(x1, y - gap, x2, y - gap);
    radiator(x1, y, x1, y - gap);
    capacitor(x2, y - gap, x2, y);
    insulator((x1 + x2) / 2, y);
}

void AntennaDrawing::mast(int x, int top, int bottom) { box(x - 45, top, 90, bottom - top); }

}  // namespace bm
