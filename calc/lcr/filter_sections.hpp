#pragma once
// What the high-pass and the low-pass windows do alike. Both open on their two
// section pictures, pi (Image1) and T (Image2), with the instruction; a click on
// a picture chooses the section, and the inputs move into the place the other
// picture leaves. The section is then told by which picture is still visible.
#include <optional>
#include <string>

#include "forms/form_context.hpp"

namespace bm::lcr {

// Load: only the pictures, their titles and the instruction show.
void ShowSectionChooser(FormContext& f);
// A click on the pi picture.
void ChoosePiSection(FormContext& f);
// A click on the T picture: it takes the pi picture's place and its title moves to (titleLeft, titleTop).
void ChooseTSection(FormContext& f, int titleLeft, int titleTop);

struct FilterInputs {
    FormValue frequency;  // MHz
    FormValue impedance;  // ohm
    bool pi = true;
};

// Reads the two inputs and gates them (the focus to the frequency); then the
// result labels take their places and show. Empty when the step ends.
std::optional<FilterInputs> FilterAtClick(FormContext& f);
// The two results, L as its text and C by NumberText, then the note.
void ShowFilter(FormContext& f, const std::string& inductance, const FormValue& capacitance);

}  // namespace bm::lcr
