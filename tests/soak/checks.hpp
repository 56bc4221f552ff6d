#pragma once
// What a step of random use may never leave behind on the model's records.
#include <map>
#include <string>
#include <vector>

#include "forms/form_state.hpp"

namespace bm::soak {

// "nan", "inf", "-nan", "1.#INF" ... as a word of its own.
bool ShowsNotANumber(const std::string& text);
// A text that starts with a printed number: "12", "-0.5", "1.234,5", "5.", "1E+20", ",5 pF".
bool HoldsNumber(const std::string& text);

// The record against its definition: every control of the definition and no
// other, none while unloaded, shown only when loaded, at most one element of
// an option group chosen.
std::vector<std::string> RecordProblems(const FormState& form);

// The texts of a form's labels and text boxes before a step.
using Texts = std::map<ControlKey, std::string>;
Texts TextsOf(const FormState& form);

// What a step printed badly on one form, from its texts before the step:
// - "nan" or "inf" on a control whose text the step changed, unless the user
//   typed that very word into one of the form's boxes;
// - for a calculation (a button clicked in the form, no message shown): a
//   result that held a number and is left empty while the step printed
//   numbers on other results of the form (a value never computed, printed as
//   an empty text). Typing and choosing options clear results, by design.
std::vector<std::string> PrintProblems(const Texts& before, const FormState& after, bool calculation);

}  // namespace bm::soak
