#include "calc/resistors/droppers.hpp"

#include "calc/schematic.hpp"

namespace bm::resistors {
namespace {

// A diode between the top line and the return wire, centred at (x, y). The
// LED conducts downwards; the Zener works reversed, its cathode to the supply.
void DrawDiode(Schematic& s, int x, int top, int y, int bottom, Diode diode) {
    const int half = 180, rise = 150;
    const int cathode = diode == Diode::Led ? y + rise : y - rise;
    const int base = diode == Diode::Led ? y - rise : y + rise;
    s.wire(x, top, x, y - rise);
    s.path({{x - half, base}, {x + half, base}, {x, cathode}, {x - half, base}});
    s.wire(x - half, cathode, x + half, cathode);
    s.wire(x, y + rise, x, bottom);
    if (diode == Diode::Zener) {
        // The bar's bent ends.
        s.wire(x - half, cathode, x - half - 60, cathode + 60);
        s.wire(x + half, cathode, x + half + 60, cathode - 60);
        return;
    }
    // The light leaving the LED: two arrows up and to the right.
    for (int dy : {-60, 90}) {
        const int x1 = x + 240, y1 = y + dy, x2 = x + 480, y2 = y + dy - 240;
        s.wire(x1, y1, x2, y2);
        s.wire(x2, y2, x2 - 120, y2);
        s.wire(x2, y2, x2, y2 + 120);
    }
}

}  // namespace

void DrawDropper(CalculatorForm& f, int left, int top, Diode diode) {
    Schematic s(f);
    const int bottom = top + kDropperGap;
    const int diodeX = left + kDropperDiode;
    s.resistor(left, top, left + 2 * kDropperResistor, top);
    s.wire(left + 2 * kDropperResistor, top, diodeX, top);
    DrawDiode(s, diodeX, top, top + kDropperGap / 2, bottom, diode);
    s.wire(left, bottom, diodeX, bottom);
    s.terminal(left, top);
    s.terminal(left, bottom);
    if (diode == Diode::Zener) {
        const int out = left + kDropperOutput;
        s.wire(diodeX, top, out, top);
        s.wire(diodeX, bottom, out, bottom);
        s.node(diodeX, top);
        s.node(diodeX, bottom);
        s.terminal(out, top);
        s.terminal(out, bottom);
    }
}

}  // namespace bm::resistors
