#pragma once
// How typed text becomes a number and how a number becomes the text on a label.
#include <cstdint>
#include <string>
#include <string_view>

#include "core/form_value.hpp"
#include "core/number_locale.hpp"
#include "core/numeric_fault.hpp"

namespace bm {

// The longest numeric prefix of a typed text; blanks anywhere are skipped, the
// comma is never a decimal point, no digit reads 0. Only a prefix beyond the
// double range fails (overflow).
double ReadNumber(std::string_view text);

// The default conversion of a value to text: 15 significant digits for double,
// 7 for single, scientific form only when the plain form would need too many places.
std::string NumberText(const FormValue& value, const NumberLocale& locale);

// Formats with a picture of "#", "0", "," and "."; the point always stays.
std::string PictureFormat(const FormValue& value, std::string_view picture, const NumberLocale& locale);

// Exactly n decimals, grouped; n = -1 takes the locale's default count.
std::string FixedDecimals(const FormValue& value, int n, const NumberLocale& locale);

// Reads back a text written by PictureFormat or FixedDecimals; the whole text must
// be a number, else a type mismatch.
double TextValue(std::string_view text, const NumberLocale& locale);

float ToSingle(const FormValue& value);
std::int16_t RoundHalfEven16(const FormValue& value);
std::int32_t RoundHalfEven32(const FormValue& value);
FormValue FloorValue(const FormValue& value);

}  // namespace bm
