#pragma once
// What the two radiation resistance windows hold alike: the length and the
// frequency with their labels, the four result lines, the buttons, and the
// reading of the two inputs behind their gate.
#include "forms/calculation.hpp"

namespace bm::antennas {

// The two inputs from (left, top), the caption of the length first.
void RadiationInputs(CalculatorForm& f, int left, int top, const char* lengthCaption);
// The result lines, the decimals notice and the buttons, from `top` down; the
// calculate button reads "C A L C O L A" on both windows.
void RadiationResults(CalculatorForm& f, int top, int width);

// Reads L and F; a product of 0 warns with the focus on the length, a negative
// one ends in silence. False when the step must end.
bool ReadLengthAndFrequency(FormContext& f, FormValue& length, FormValue& frequency);

}  // namespace bm::antennas
