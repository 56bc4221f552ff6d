#pragma once
// The idioms that many calculators share, each in one place.
#include <string_view>

#include "forms/form_context.hpp"

namespace bm {

// An error box (style 48, "MESSAGGIO DI ERRORE" unless a window titles it
// otherwise) with `text`, and the focus sent to `focus`: how a refused input is told.
void ErrorMessage(FormContext& f, std::string_view text, std::string_view focus,
                  std::string_view title = "MESSAGGIO DI ERRORE");

// The product gate: a product of the inputs not above 0 answers "MANCANO DATI"
// (style 48, under `title`) and sends the focus to `focus`. True when the step
// must end.
bool MissingData(FormContext& f, const FormValue& product, std::string_view focus,
                 std::string_view title = "MESSAGGIO DI ERRORE");

// The other gate: a product of 0 warns as above; a negative product ends the
// step in silence. True when the step must end.
bool MissingDataSilentNegative(FormContext& f, const FormValue& product, std::string_view focus);

// A value written through a picture and read back: the rounded number, in
// double precision.
FormValue ReadBack(const FormContext& f, const FormValue& value, std::string_view picture);
// The same, held in single precision.
FormValue ReadBackSingle(const FormContext& f, const FormValue& value, std::string_view picture);
// A value written with n fixed decimals and read back, in double or in single precision.
FormValue ReadBackFixed(const FormContext& f, const FormValue& value, int n);
FormValue ReadBackFixedSingle(const FormContext& f, const FormValue& value, int n);

// Left = (screen width - form width) / 2 and Top likewise.
void CenterOnScreen(FormContext& f);

}  // namespace bm
