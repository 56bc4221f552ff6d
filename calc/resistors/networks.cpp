#include "calc/resistors/networks.hpp"

#include "calc/schematic.hpp"

namespace bm::resistors {
namespace {

constexpr int kLabelHeight = 255;
constexpr int kBodyHalf = 90;  // half the width of a resistor's box

// Above a horizontal resistor whose body is centred at x.
void LabelAbove(CalculatorForm& f, PartLabel l, int x, int y) {
    f.label(l.name, {x - kLabelWidth / 2, y - 420, kLabelWidth, kLabelHeight}, l.caption).aligned(Align::Center);
}

void LabelBelow(CalculatorForm& f, PartLabel l, int x, int y) {
    f.label(l.name, {x - kLabelWidth / 2, y + 165, kLabelWidth, kLabelHeight}, l.caption).aligned(Align::Center);
}

// On the right of a vertical resistor at x, halfway down.
void LabelBeside(CalculatorForm& f, PartLabel l, int x, int top) {
    f.label(l.name, {x + kBodyHalf + 60, top + kLineGap / 2 - kLabelHeight / 2, kLabelWidth, kLabelHeight},
            l.caption);
}

void Terminals(Schematic& s, int left, int top) {
    const int right = left + kNetworkWidth;
    const int bottom = top + kLineGap;
    s.terminal(left, top);
    s.terminal(left, bottom);
    s.terminal(right, top);
    s.terminal(right, bottom);
}

// A shunt resistor at x between the two lines, with its joints.
void Shunt(Schematic& s, int x, int top) {
    s.resistor(x, top, x, top + kLineGap);
    s.node(x, top);
    s.node(x, top + kLineGap);
}

}  // namespace

void DrawLNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2) {
    Schematic s(f);
    const int joint = left + 2400, right = left + kNetworkWidth, bottom = top + kLineGap;
    s.resistor(left, top, left + 1800, top);
    s.wire(left + 1800, top, right, top);
    Shunt(s, joint, top);
    s.wire(left, bottom, right, bottom);
    Terminals(s, left, top);
    LabelAbove(f, r1, left + 900, top);
    LabelBeside(f, r2, joint, top);
}

void DrawBalancedLNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2) {
    Schematic s(f);
    const int joint = left + 2400, right = left + kNetworkWidth, bottom = top + kLineGap;
    s.resistor(left, top, left + 1800, top);
    s.wire(left + 1800, top, right, top);
    s.resistor(left, bottom, left + 1800, bottom);
    s.wire(left + 1800, bottom, right, bottom);
    Shunt(s, joint, top);
    Terminals(s, left, top);
    LabelAbove(f, r1, left + 900, top);
    LabelBelow(f, r1a, left + 900, bottom);
    LabelBeside(f, r2, joint, top);
}

void DrawTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3) {
    Schematic s(f);
    const int joint = left + 1800, right = left + kNetworkWidth, bottom = top + kLineGap;
    s.resistor(left, top, joint, top);
    s.resistor(joint, top, right, top);
    Shunt(s, joint, top);
    s.wire(left, bottom, right, bottom);
    Terminals(s, left, top);
    LabelAbove(f, r1, left + 900, top);
    LabelAbove(f, r2, left + 2700, top);
    LabelBeside(f, r3, joint, top);
}

void DrawPiNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3) {
    Schematic s(f);
    const int in = left + 600, out = left + 3000, right = left + kNetworkWidth, bottom = top + kLineGap;
    s.wire(left, top, in, top);
    s.resistor(in, top, out, top);
    s.wire(out, top, right, top);
    Shunt(s, in, top);
    Shunt(s, out, top);
    s.wire(left, bottom, right, bottom);
    Terminals(s, left, top);
    LabelBeside(f, r1, in, top);
    LabelBeside(f, r2, out, top);
    LabelAbove(f, r3, left + 1800, top);
}

void DrawBalancedTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2,
                          PartLabel r2a, PartLabel r3) {
    Schematic s(f);
    const int joint = left + 1800, right = left + kNetworkWidth, bottom = top + kLineGap;
    for (int y : {top, bottom}) {
        s.resistor(left, y, joint, y);
        s.resistor(joint, y, right, y);
    }
    Shunt(s, joint, top);
    Terminals(s, left, top);
    LabelAbove(f, r1, left + 900, top);
    LabelAbove(f, r2, left + 2700, top);
    LabelBelow(f, r1a, left + 900, bottom);
    LabelBelow(f, r2a, left + 2700, bottom);
    LabelBeside(f, r3, joint, top);
}

void DrawBalancedPiNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3,
                           PartLabel r3a) {
    Schematic s(f);
    const int in = left + 600, out = left + 3000, right = left + kNetworkWidth, bottom = top + kLineGap;
    for (int y : {top, bottom}) {
        s.wire(left, y, in, y);
        s.resistor(in, y, out, y);
        s.wire(out, y, right, y);
    }
    Shunt(s, in, top);
    Shunt(s, out, top);
    Terminals(s, left, top);
    LabelBeside(f, r1, in, top);
    LabelBeside(f, r2, out, top);
    LabelAbove(f, r3, left + 1800, top);
    LabelBelow(f, r3a, left + 1800, bottom);
}

void DrawBridgedTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2,
                         PartLabel r3) {
    Schematic s(f);
    const int in = left + 300, joint = left + 1800, out = left + 3300, right = left + kNetworkWidth;
    const int bridge = top - kLineGap / 2, bottom = top + kLineGap;
    s.wire(left, top, in, top);
    s.resistor(in, top, joint, top);
    s.resistor(joint, top, out, top);
    s.wire(out, top, right, top);
    s.wire(in, top, in, bridge);
    s.resistor(in, bridge, out, bridge);
    s.wire(out, bridge, out, top);
    s.node(in, top);
    s.node(out, top);
    Shunt(s, joint, top);
    s.wire(left, bottom, right, bottom);
    Terminals(s, left, top);
    LabelAbove(f, r3, joint, bridge);
    // The arms' labels sit between the arms and the bridge.
    f.label(r1.name, {(in + joint) / 2 - 600, top - 330, 1200, kLabelHeight}, r1.caption).aligned(Align::Center);
    f.label(r1a.name, {(joint + out) / 2 - 600, top - 330, 1200, kLabelHeight}, r1a.caption).aligned(Align::Center);
    LabelBeside(f, r2, joint, top);
}

}  // namespace bm::resistors
