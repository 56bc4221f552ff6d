#pragma once
// Drawing an antenna on a form: the same Line and Shape elements as a circuit
// (it is a Schematic, so wires, coils, capacitors and earth are at hand), plus
// the parts that antennas are made of. Radiators are drawn heavier than wires,
// so an arm reads apart from the coax and the leads of a coil.
//
//     AntennaDrawing a(f);
//     a.radiator(600, 1500, 3000, 1500);      // left arm
//     a.feedPoint(3150, 1500);                // centre insulator
//     a.radiator(3300, 1500, 5700, 1500);     // right arm
//     a.coax(3150, 1600, 3150, 2600);         // the feed line down
//     a.dimension(600, 1200, 3000, 1200);     // "1/4 lambda" above the arm
//
// Labels over the parts (lengths, "L", "C", "coax") are ordinary labels of the form.
#include <initializer_list>
#include <utility>

#include "calc/schematic.hpp"

namespace bm {

class AntennaDrawing : public Schematic {
public:
    using Schematic::Schematic;

    // A conductor that radiates: an arm, a vertical, a radial, a hat spoke.
    void radiator(int x1, int y1, int x2, int y2);
    // A radiator through several points (a bent arm, an inverted V).
    void radiatorPath(std::initializer_list<std::pair<int, int>> points);
    // The centre insulator where two arms meet the feed line, centred at (x, y).
    void feedPoint(int x, int y);
    // An egg insulator at the end of an arm, centred at (x, y).
    void insulator(int x, int y);
    // A coaxial feed line: two close parallel conductors, horizontal or vertical.
    void coax(int x1, int y1, int x2, int y2);
    // A trap: a coil in line with the radiator and a capacitor across it, on one
    // horizontal or vertical line; the capacitor stands 360 above (or right of) the coil.
    void trap(int x1, int y1, int x2, int y2);
    // A loading coil in line with the radiator.
    void loadingCoil(int x1, int y1, int x2, int y2) { inductor(x1, y1, x2, y2); }
    // Radials fanning down from the foot of a vertical at (x, y), each reaching
    // `reach` to the side and `drop` down; `count` of 2 or 4.
    void radials(int x, int y, int reach, int drop, int count = 2);
    // A capacity hat across the top of a vertical at (x, y): spokes `half` to each side.
    void capacityHat(int x, int y, int half);
    // A measure: a thin line with ticks at both ends and arrow heads, for a
    // length written beside it ("1/4 lambda", "A", "B").
    void dimension(int x1, int y1, int x2, int y2);
    // A stretch of ground seen from the side: a line with hatching below it.
    void earthLine(int x1, int x2, int y);
    // A quarter-wave stub as in a J: two parallel rods `gap` apart from y1 down
    // to y2, shorted at the bottom; the left rod is at x.
    void stub(int x, int y1, int y2, int gap);
    // A gamma rod beside a driven element: a rod `offset` below (or right of)
    // the element from (x1, y1) to (x2, y2), strapped to it at the far end.
    void gammaRod(int x1, int y1, int x2, int y2, int offset);
    // A cylinder seen from the side (the EH antennas' tubes, a can feed): a
    // rectangle with an oval rim at the top and at the bottom.
    void cylinder(int left, int top, int width, int height);
    // A parabolic dish opening to the right: its vertex at (x, y), `half` the
    // aperture, `depth` from vertex to rim, drawn as short straight segments.
    void dish(int x, int y, int half, int depth);
    // A helix along a horizontal axis from x1 to x2 at height y: `turns` loops
    // of the given diameter.
    void helix(int x1, int x2, int y, int turns, int diameter);
    // A trap made of a linear element beside a horizontal radiator: a rod `gap`
    // above it from x1 to x2, strapped to the radiator at x1 and joined to it
    // through a capacitor at x2; the radiator is broken by an insulator between.
    void linearTrap(int x1, int x2, int y, int gap);
    // A mast or support, drawn as a narrow open box from top to bottom.
    void mast(int x, int top, int bottom);
};

}  // namespace bm
