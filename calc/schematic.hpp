#pragma once
// Drawing a circuit on a form with the toolkit's Line and Shape elements, the
// way the form designer drew them by hand. The elements are named Line1,
// Line2, ... and Shape1, Shape2, ... (skipping names the form already uses);
// no logic reads them.
//
// A component is drawn between two points on one horizontal or one vertical
// line: its body stands in the middle and leads fill the rest, so a circuit is
// built by choosing its nodes and joining them with wires and components.
//
//     Schematic s(f);
//     s.wire(600, 3000, 1200, 3000);
//     s.resistor(1200, 3000, 2400, 3000);   // R between two nodes
//     s.inductor(2400, 3000, 3600, 3000);
//     s.capacitor(3600, 3000, 3600, 4200);  // vertical, to the return wire
//     s.node(3600, 3000);
//
// Labels over the parts ("R", "L", "C", results) are ordinary labels of the form.
#include <initializer_list>
#include <string>
#include <utility>

#include "forms/form_definition.hpp"

namespace bm {

enum class Part { Resistor, Inductor, Capacitor };

class Schematic {
public:
    // Parts drawn inside a frame take their coordinates from the frame's corner.
    explicit Schematic(CalculatorForm& form, std::string frame = {});

    // A straight wire, and a wire through several points.
    void wire(int x1, int y1, int x2, int y2);
    void path(std::initializer_list<std::pair<int, int>> points);

    // Components between two points on one horizontal or vertical line.
    void resistor(int x1, int y1, int x2, int y2);  // an open box, 480 by 180
    void inductor(int x1, int y1, int x2, int y2);  // four turns, 600 long
    void capacitor(int x1, int y1, int x2, int y2); // two plates, 300 wide
    // One of the three, by kind.
    void part(Part kind, int x1, int y1, int x2, int y2);
    // A variable capacitor: the plates with an arrow across them.
    void variableCapacitor(int x1, int y1, int x2, int y2);

    // An AC source centred at (x, y): a circle with a sine inside, leads up and down to y1 and y2.
    void generator(int x, int y1, int y2);
    // A joint of wires (a dot) and a terminal (an open circle).
    void node(int x, int y);
    void terminal(int x, int y);
    // An earth symbol hanging from (x, y).
    void ground(int x, int y);
    // A box for a named block (a lamp, a load, "Input"), outline only.
    void box(int left, int top, int width, int height);

    // An NPN transistor in its circle, base lead ending at (x, y) from the left:
    // the collector ends at (x + 300, y - 600), the emitter, with its arrow, at
    // (x + 300, y + 600).
    void transistor(int x, int y);
    // A diode from anode to cathode on one line: a triangle pointing at a bar.
    void diode(int x1, int y1, int x2, int y2);

protected:
    // The raw elements, for drawing vocabularies built on this one.
    ControlDef& line(int x1, int y1, int x2, int y2);
    ControlDef& shape(Rect r, ShapeKind kind);
    // Leads from the ends to a centred body of the given length; returns the body's start along the axis.
    int leads(int x1, int y1, int x2, int y2, int body);

private:
    std::string next(const char* stem, int& counter);

    CalculatorForm& form_;
    std::string frame_;
    int lines_ = 0;
    int shapes_ = 0;
};

}  // namespace bm
