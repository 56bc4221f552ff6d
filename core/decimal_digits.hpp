#pragma once
// A number as a decimal digit string, which is what every picture rounds.
#include <string>

#include "core/form_value.hpp"

namespace bm::detail {

struct DecimalDigits {
    bool negative = false;
    std::string digits;  // significant digits, no leading or trailing zeros; empty for 0
    int exponent = 0;    // power of ten of the first digit
};

// v rounded to p significant digits (v finite).
DecimalDigits SignificantDigits(double v, int p);
// The digit string NumberText would show: 15 digits for double, 7 for single,
// exact for integers. Text goes through TextValue first; empty is 0.
DecimalDigits DigitsOf(const FormValue& value, const NumberLocale& locale);
// Rounds half away from zero, keeping digits down to 10^-decimals.
void RoundAtDecimals(DecimalDigits& d, int decimals);
// The integer part's digits ("0" never; "" when below 1) and the first `decimals` fraction digits.
std::string IntegerDigits(const DecimalDigits& d);
std::string FractionDigits(const DecimalDigits& d, int decimals);

}  // namespace bm::detail
