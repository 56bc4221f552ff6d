#pragma once
// What the two J verticals share: the window around the drawing of the J and
// the note on the diameter of its elements.
#include <string>

#include "forms/form_context.hpp"

namespace bm::antennas {

// The window: frequency box, the J with the radiator, the quarter-wave line
// and the feed tap marked on it, the notes and the exit button. No handlers.
CalculatorForm JAntennaForm(std::string name, std::string title);

// The diameter of the elements by the band, or that the band does not suit a J.
void ShowJDiameter(FormContext& f, const FormValue& frequency);

}  // namespace bm::antennas
