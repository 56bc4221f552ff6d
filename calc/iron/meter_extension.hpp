#pragma once
// The two meter windows hold the same controls: the meter's own resistance,
// the factor n, the result and the buttons, under an introductory text. Their
// names differ a little (txtrm and txtRM, cmdcalcola and cdmcalcola), and so
// does their treatment of n, which stays in each window.
#include "forms/form_definition.hpp"

namespace bm::iron {

struct MeterNames {
    const char* resistance;  // the text box of the meter's resistance
    const char* result;      // the result label
    const char* calculate;   // the calculate button
};

// Controls in tab order: resistance, factor, calculate, exit ("cmdesci").
void MeterControls(CalculatorForm& f, const MeterNames& names, const char* intro);

}  // namespace bm::iron
