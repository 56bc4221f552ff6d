#pragma once
// The coil that brings a dipole shorter than half a wave back to resonance,
// with the coil at a distance from the centre. The vertical with a coil along
// it is worked as half of such a dipole.
#include "forms/form_context.hpp"

namespace bm::antennas {

// The two checks of the dimensions, in metres: the whole length B below half a
// wave (142 / F), and the coil's distance A inside the half length. A warning
// is given and true returned when one fails.
bool LoadedDipoleOutOfRange(FormContext& f, const FormValue& a, const FormValue& b, const FormValue& frequency);

// The coil in microhenry: a and b in metres, the conductor's diameter d in mm,
// frequency in MHz. The sum is done in feet and inches.
FormValue LoadingInductance(const FormValue& a, const FormValue& b, const FormValue& d, const FormValue& frequency);

}  // namespace bm::antennas
