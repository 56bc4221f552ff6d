#pragma once
// The R C cell both audio filter windows size: the frequency in hertz, pulled
// into 10 Hz to 100 kHz, picks a standard capacitor by its band, and the
// resistor follows from it.
#include <string>

#include "forms/form_context.hpp"

namespace bm::lcr {

struct AudioCell {
    std::string capacitance;  // "4.7 nF"
    std::string resistance;   // "33.9 Kohm"
};

// Reads txtfrequenza; a value out of range is written back into the box at its
// limit (its Change runs then) and used so. No message: any text gives a cell.
AudioCell AudioCellAtClick(FormContext& f);

}  // namespace bm::lcr
