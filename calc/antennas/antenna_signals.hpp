#pragma once
// What the two signal windows hold alike: the power, distance and frequency
// inputs, the five result lines, and the field at the receiver from the
// power, the distance, the frequency and the two gains.
#include "forms/calculation.hpp"

namespace bm::antennas {

// The three inputs with their labels, from `top` down.
void SignalInputs(CalculatorForm& f, int top);
// The five result lines from `top` down.
void SignalResults(CalculatorForm& f, int top, int width);

// Density, received power, E and H fields and the voltage at the receiver.
// The two captions name the receiving antenna: a dipole or any antenna.
void ShowSignals(FormContext& f, FormValue watt, FormValue distance, const FormValue& freq, const FormValue& gt,
                 const FormValue& gr, const char* powerCaption, const char* voltageCaption);

}  // namespace bm::antennas
