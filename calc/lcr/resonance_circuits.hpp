#pragma once
// The two circuits at resonance, series and parallel, that the impedance and
// the Q windows both show above their inputs, titled and lettered.
#include "forms/form_definition.hpp"

namespace bm::lcr {

// Draws them in the band from 1020 to 2880 twips, 9360 wide.
void ResonanceCircuits(CalculatorForm& f);

}  // namespace bm::lcr
