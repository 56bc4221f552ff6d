#pragma once
// What the windows of line impedance by geometry have in common: a band at the
// top for the cross-section, one row per dimension (a caption and a box), the
// note under them, the result labels, "CALCOLA" and "E S C I", and on most of
// them the signature. Any keystroke in a box empties the results; "E S C I"
// closes the window. Each window attaches its own "CALCOLA".
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "forms/calculation.hpp"
#include "forms/form_context.hpp"
#include "forms/form_definition.hpp"

namespace bm::lines {

// The width of these windows; the drawing band spans the client area, from its
// top to the height the window asks for.
inline constexpr int kImpedanceWidth = 7680;

struct Dimension {
    const char* caption;  // the label beside the box
    const char* box;
    const char* text;
};

struct ImpedanceLayout {
    int sketchHeight = 2400;
    std::vector<Dimension> rows;
    std::string note = "separare i decimali con il punto del tastierino numerico";
    std::vector<std::string> results = {"lblimpedenza"};
    bool signature = true;
};

// Adds the rows, note, results and buttons below the drawing band, and sets the
// window's height to hold them.
void ImpedanceWindow(CalculatorForm& f, const ImpedanceLayout& layout);

// "L'IMPEDENZA E' DI  :  " and the number, in ohm.
void ShowImpedance(FormContext& f, const std::string& number);

}  // namespace bm::lines
