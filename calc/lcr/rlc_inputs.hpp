#pragma once
// The four inputs the R L C windows (R with L and C across, all in parallel,
// all in series) share, and the reactances all three take from them.
#include "forms/form_context.hpp"

namespace bm::lcr {

// R, L, C and the frequency with their labels, below a circuit 2400 twips high.
void RlcInputBoxes(CalculatorForm& f);

struct RlcValues {
    FormValue r, l, c, f;  // ohm, microhenry, picofarad, MHz
    FormValue product() const { return r * l * c * f; }
    FormValue xl() const { return 6.2831852 * (f * l); }
    FormValue xc() const { return 159154.976203 / (f * c); }
};

// The four read into the window's values, on every click.
const RlcValues& ReadRlc(FormContext& f);

}  // namespace bm::lcr
