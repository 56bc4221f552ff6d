#pragma once
// What the four transmitter-stage windows share: the average transistor data
// by maximum power (each window keeps its own rows of it), the refusal box,
// and the way the coil and the two capacitors of the network are printed.
#include <span>
#include <string>
#include <string_view>

#include "forms/calculation.hpp"
#include "forms/form_context.hpp"

namespace bm::semiconductors {

// Average data of a transistor whose maximum power lies between lower and
// upper watts: input resistance (ohm), input and output capacitance (pF).
struct PowerBand {
    double lower;
    double upper;
    double r;
    double ci;
    double co;
};

// The first row from the top that holds the power, bounds included; none for
// a power that falls between two rows.
const PowerBand* FindBand(std::span<const PowerBand> rows, double watts);

// A warning that does not stop the click: the box, then the field shows the
// value the sums go on with, and takes the focus.
void Correct(FormContext& f, const char* text, std::string_view box, std::string shown);

// A resistance r in series with the reactance of c pF at fr MHz, seen as a
// resistance rp across a reactance xp.
struct Parallel {
    FormValue rp;
    FormValue xp;
};
Parallel ToParallel(const FormValue& r, const FormValue& c, const FormValue& fr);

// lblbobina with the coil's decimals, lblc1 and lblc2 with the locale's default.
void ShowNetwork(FormContext& f, const FormValue& microhenry, int coilDecimals, const FormValue& c1,
                 const FormValue& c2);

}  // namespace bm::semiconductors
