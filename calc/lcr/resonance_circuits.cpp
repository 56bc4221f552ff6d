#include "calc/lcr/resonance_circuits.hpp"

#include "calc/schematic.hpp"

namespace bm::lcr {

// Left: R, L and C in series between two terminals. Right: R, L and C side by
// side between the two rails.
void ResonanceCircuits(CalculatorForm& f) {
    Schematic s(f);
    const int top = 1680, bottom = 2880;

    const int in = 600, corner = 3600;
    s.resistor(in, top, 1800, top);
    s.inductor(1800, top, 3000, top);
    s.wire(3000, top, corner, top);
    s.capacitor(corner, top, corner, bottom);
    s.wire(corner, bottom, in, bottom);
    s.terminal(in, top);
    s.terminal(in, bottom);

    const int rails = 5160, rBranch = 6240, lBranch = 7440, cBranch = 8640;
    s.wire(rails, top, cBranch, top);
    s.wire(rails, bottom, cBranch, bottom);
    s.resistor(rBranch, top, rBranch, bottom);
    s.inductor(lBranch, top, lBranch, bottom);
    s.capacitor(cBranch, top, cBranch, bottom);
    for (const int x : {rBranch, lBranch}) {
        s.node(x, top);
        s.node(x, bottom);
    }
    s.terminal(rails, top);
    s.terminal(rails, bottom);

    f.label("Label1", {480, 1020, 3600, 255}, "risonanza serie").font(8, true);
    f.label("Label3", {1080, 1320, 255, 255}, "R");
    f.label("Label4", {2280, 1320, 255, 255}, "L");
    f.label("Label5", {3840, 2160, 255, 255}, "C");
    f.label("Label2", {5040, 1020, 3600, 255}, "risonanza parallelo").font(8, true);
    f.label("Label6", {6420, 2160, 255, 255}, "R");
    f.label("Label7", {7620, 2160, 255, 255}, "L");
    f.label("Label8", {8880, 2160, 255, 255}, "C");
}

}  // namespace bm::lcr
