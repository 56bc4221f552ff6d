#pragma once
// What the plain and the balanced pads do alike. The two L windows hold the
// same inputs and texts and size R2 and the loss alike; the two T and pi
// windows hold the same inputs and texts and size both networks alike. How a
// balanced window splits its series resistors stays in its own file.
#include <optional>

#include "forms/form_context.hpp"

namespace bm::resistors {

// The L windows: the note, the two sides' names beside the drawing, the inputs,
// the warning, the loss, the buttons.
void LPadControls(CalculatorForm& f);

struct LPad {
    FormValue high, low;  // the two impedances, high > low
    FormValue r1;         // the series resistor of the unbalanced pad, not rounded
    FormValue r2;         // the shunt resistor, not rounded
};

// Reads the inputs and answers a missing or misordered pair; computes R1 and R2.
std::optional<LPad> SizeLPad(FormContext& f);
// The loss of the pad, in dB to a hundredth, read back in single precision.
void ShowLPadLoss(FormContext& f, const LPad& pad);

// The T and pi windows: the two titles, inputs, texts and buttons.
void TPiControls(CalculatorForm& f);

struct TPiPad {
    // Both networks rounded to hundredths; the pi's R3 is held in single precision.
    FormValue r1T, r2T, r3T;
    FormValue r1P, r2P, r3P;
    FormValue minimumLoss;
};

// Reads and checks the inputs, then sizes both networks. Empty when the step ends.
std::optional<TPiPad> SizeTPiPad(FormContext& f);
// The insertion loss, floored to whole dB.
void ShowInsertionLoss(FormContext& f, const TPiPad& pad);

}  // namespace bm::resistors
