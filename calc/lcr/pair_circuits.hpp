#pragma once
// The drawing of the series-parallel windows: a pair of parts in a row between
// two terminals under "CONFIGURAZIONE SERIE", and the same pair side by side
// under "CONFIGURAZIONE PARALLELO".
#include "calc/schematic.hpp"

namespace bm::lcr {

// In the band from the top of the window to 1800 twips, 8400 wide; the first
// part leads the row and takes the upper branch.
void PairCircuits(CalculatorForm& f, Part first, Part second);

}  // namespace bm::lcr
