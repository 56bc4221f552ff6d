#include "calc/lines/cross_section.hpp"

#include <algorithm>
#include <stdexcept>

namespace bm::lines {

namespace {
constexpr int kPlane = 60;      // thickness of a ground plane
constexpr int kHatchStep = 180;  // spacing of the hatching strokes
constexpr int kHatch = 120;      // their reach away from the plane
constexpr int kArrow = 90;       // length and half width of an arrow head
}  // namespace

void CrossSection::conductor(int x, int y, int diameter) {
    shape({x - diameter / 2, y - diameter / 2, diameter, diameter}, ShapeKind::Circle).filled(colors::Black);
}

void CrossSection::strip(int left, int top, int width, int height) {
    shape({left, top, width, height}, ShapeKind::Rectangle).filled(colors::Black);
}

void CrossSection::hatch(int x1, int x2, int y, int rise) {
    for (int x = x1 + kHatchStep / 2; x + kHatch <= x2; x += kHatchStep) wire(x, y, x + kHatch, y + rise);
}

void CrossSection::groundAbove(int x1, int x2, int y) {
    strip(x1, y - kPlane, x2 - x1, kPlane);
    hatch(x1, x2, y - kPlane, -kHatch);
}

void CrossSection::groundBelow(int x1, int x2, int y) {
    strip(x1, y, x2 - x1, kPlane);
    hatch(x1, x2, y + kPlane, kHatch);
}

void CrossSection::groundPlanes(int x1, int x2, int top, int bottom) {
    groundAbove(x1, x2, top);
    groundBelow(x1, x2, bottom);
}

void CrossSection::screen(int x, int y, int diameter) {
    shape({x - diameter / 2, y - diameter / 2, diameter, diameter}, ShapeKind::Circle).width(3);
}

void CrossSection::dielectric(int x, int y, int diameter) {
    shape({x - diameter / 2, y - diameter / 2, diameter, diameter}, ShapeKind::Circle).filled(Color{192, 192, 192});
}

void CrossSection::guide(int left, int top, int side) {
    shape({left, top, side, side}, ShapeKind::Square).width(3);
}

void CrossSection::measure(int x1, int y1, int x2, int y2) {
    if (x1 != x2 && y1 != y2) throw std::logic_error("a measure must lie on one line");
    wire(x1, y1, x2, y2);
    if (y1 == y2) {
        const int a = std::min(x1, x2), b = std::max(x1, x2);
        path({{a + kArrow, y1 - kArrow / 2}, {a, y1}, {a + kArrow, y1 + kArrow / 2}});
        path({{b - kArrow, y1 - kArrow / 2}, {b, y1}, {b - kArrow, y1 + kArrow / 2}});
    } else {
        const int a = std::min(y1, y2), b = std::max(y1, y2);
        path({{x1 - kArrow / 2, a + kArrow}, {x1, a}, {x1 + kArrow / 2, a + kArrow}});
        path({{x1 - kArrow / 2, b - kArrow}, {x1, b}, {x1 + kArrow / 2, b - kArrow}});
    }
}

void CrossSection::spanX(int x1, int x2, int from, int to, int at) {
    witness(x1, from, x1, to);
    witness(x2, from, x2, to);
    measure(x1, at, x2, at);
}

void CrossSection::spanY(int y1, int y2, int from, int to, int at) {
    witness(from, y1, to, y1);
    witness(from, y2, to, y2);
    measure(at, y1, at, y2);
}

void Letter(CalculatorForm& form, std::string_view id, int x, int y, std::string text) {
    constexpr int width = 540, height = 255;
    form.label(id, {x - width / 2, y - height / 2, width, height}, std::move(text)).aligned(Align::Center);
}

}  // namespace bm::lines
