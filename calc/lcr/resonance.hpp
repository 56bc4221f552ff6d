#pragma once
// What the impedance and the Q windows at resonance have in common: the two
// circuits, the three inputs, the first steps of the calculation and the lines
// both of them print.
#include <optional>
#include <string>

#include "forms/form_context.hpp"

namespace bm::lcr {

// The circuits, series and parallel, titled and lettered; R, L and C with their
// boxes (R opening with `resistance`); CALCOLA and the exit; the five result
// lines from lblfrequenza to lbllbserie. The window adds its note and its
// handlers, and may add results below lbllbserie.
void ResonanceWindow(CalculatorForm& f, std::string resistance = {});

struct Resonance {
    FormValue r, l, c;  // ohm, microhenry, picofarad
    FormValue mhz;      // the resonance
    FormValue xl;
    FormValue q;        // series Q, unrounded
    FormValue khz;      // the series bandwidth, from the unrounded Q
};

// Reads R, L and C into the window's values, gates them (the focus goes to
// the capacitance) and refuses R below 0.05; then the resonance, XL, the
// series Q and its bandwidth. Empty when the step ends there.
std::optional<Resonance> ResonanceAtClick(FormContext& f);

// The frequency, the series and parallel impedances and the series Q.
void ShowResonance(FormContext& f, const Resonance& r);

}  // namespace bm::lcr
