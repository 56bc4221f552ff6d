#pragma once
// The dropper circuits of the LED and the Zener windows, drawn alike: the
// supply terminals on the left, the series resistor along the top, the diode
// from the top line down to the return wire. The Zener's circuit carries the
// stabilised voltage on to a pair of output terminals.
#include "forms/form_definition.hpp"

namespace bm::resistors {

enum class Diode { Led, Zener };

inline constexpr int kDropperGap = 1440;     // from the top line to the return wire
inline constexpr int kDropperResistor = 1200; // the resistor's centre, from the supply terminal
inline constexpr int kDropperDiode = 3000;   // the diode, from the supply terminal
inline constexpr int kDropperOutput = 4200;  // the Zener's output terminals, from the supply terminal

// (left, top) is the upper supply terminal.
void DrawDropper(CalculatorForm& f, int left, int top, Diode diode);

}  // namespace bm::resistors
