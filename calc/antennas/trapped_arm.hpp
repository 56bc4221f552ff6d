#pragma once
// What the two trapped multiband windows share: the drawing of one arm with
// its trap, the check of the two frequencies, the reactance lines and the
// coil button.
#include <string_view>

#include "forms/form_context.hpp"

namespace bm::antennas {

// The note under the drawing: only one arm is drawn.
extern const char* const kOneArmNote;

// One arm from the feed point: stretch A up to the trap (L with C across it),
// then on to the end of B. The drawing's labels come with it; `top` is the
// height of the radiator in twips.
void DrawTrappedArm(CalculatorForm& f, int top);

// The higher frequency must stand at least a fifth above the lower one; when it
// does not, the warning is given and true returned.
bool FrequenciesTooClose(FormContext& f, const FormValue& f1, const FormValue& f2, std::string_view focus);

// The two reactance lines: the inductive one read back from a one-decimal text
// (no trailing zero), the capacitive one as that text (always one decimal).
void ShowTrapReactances(FormContext& f, const FormValue& xl, const FormValue& xc);

// The coil button of both windows: it is always the known-value window that
// moves to the corner, whichever of the two was pressed.
void OpenTrapCoilWindow(FormContext& f);

}  // namespace bm::antennas
