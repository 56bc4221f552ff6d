#pragma once
// The end-on view of a line, drawn with the toolkit's Line and Shape elements
// as the form designer drew it (it is a Schematic, named the same way): round
// conductors, flat strips, ground planes, screens and guides, and the measures
// between them, each a line with an arrow head at both ends. The letter over a measure ("d", "h", "S") is an ordinary
// label of the form, placed with `Letter`.
#include <string>
#include <string_view>

#include "calc/schematic.hpp"

namespace bm::lines {

class CrossSection : public Schematic {
public:
    using Schematic::Schematic;

    // A round conductor seen end-on: a filled disc centred at (x, y).
    void conductor(int x, int y, int diameter);
    // A flat conductor seen end-on: a filled bar.
    void strip(int left, int top, int width, int height);
    // A ground plane from x1 to x2 along y, hatched on its far side from the line.
    void groundAbove(int x1, int x2, int y);  // the line is under it: hatching above
    void groundBelow(int x1, int x2, int y);  // the line is over it: hatching below
    // Both planes of a line between two grounds, at `top` and `bottom`.
    void groundPlanes(int x1, int x2, int top, int bottom);
    // A round screen: a thick circle centred at (x, y).
    void screen(int x, int y, int diameter);
    // The dielectric of a coaxial line: a grey disc centred at (x, y).
    void dielectric(int x, int y, int diameter);
    // A closed guide: a thick square outline.
    void guide(int left, int top, int side);

    // A measure between two points on one horizontal or vertical line, with an
    // arrow head at each end.
    void measure(int x1, int y1, int x2, int y2);
    // A thin line: the witness lines that carry a measure off the drawing.
    void witness(int x1, int y1, int x2, int y2) { wire(x1, y1, x2, y2); }
    // The distance between two edges, carried off the drawing: a witness line on
    // each edge from `from` to `to`, and the measure across them at `at`.
    void spanX(int x1, int x2, int from, int to, int at);  // edges at x1, x2: a horizontal measure
    void spanY(int y1, int y2, int from, int to, int at);  // edges at y1, y2: a vertical measure

private:
    void hatch(int x1, int x2, int y, int rise);
};

// A letter of the drawing, centred at (x, y).
void Letter(CalculatorForm& form, std::string_view id, int x, int y, std::string text);

}  // namespace bm::lines
