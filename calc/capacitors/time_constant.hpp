#pragma once
// What the R C and R L time-constant windows hold alike: the three options of
// "dati conosciuti" that name the two inputs and the result, and the charging
// circuit (a battery, the resistor, the capacitor or coil) that the practical
// R C example draws too.
#include <array>
#include <string>

#include "calc/schematic.hpp"
#include "forms/form_context.hpp"

namespace bm::capacitors {

// One option: its caption, and the name and unit of the first input, the
// second input and the result (lblinput(0..2), lblumisura(0..2)).
struct KnownPair {
    const char* caption;
    std::array<const char*, 3> names;
    std::array<const char*, 3> units;
};
using KnownPairs = std::array<KnownPair, 3>;

// The second part of the circuit: its kind, the label over it and its letter.
struct CircuitPart {
    Part kind;
    const char* label;   // "lblc" or "lbll"
    const char* letter;  // "C" or "L"
};

// The battery on the left, the resistor along the top, the part down the right
// side, in the box from (left, top) to (right, bottom).
void DrawChargingCircuit(CalculatorForm& f, Part part, int left, int top, int right, int bottom);

// The whole window but its title, the text of Label1 and the handlers of
// cmdcalcola and cmdesci: options, inputs, result row, drawing with lblr and
// the part's label, buttons.
void TimeConstantControls(CalculatorForm& f, const KnownPairs& pairs, const CircuitPart& part, const char* intro);

// An option's click: "?" for the result, the letters back on the drawing, then
// the option's six names and units.
void ShowKnownPair(FormContext& f, const KnownPair& pair, const CircuitPart& part);

// The result of option `option` in lblinput(3), and the drawing as it reads:
// the first option puts the inputs a and b on the resistor and the part, the
// second b on the resistor and the result on the part, the third the result on
// the resistor and b on the part.
void ShowResult(FormContext& f, const CircuitPart& part, int option, std::string result, const FormValue& a,
                const FormValue& b);

}  // namespace bm::capacitors
