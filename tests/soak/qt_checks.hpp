#pragma once
// A shown form's window against its record: what the user sees must be what
// the model holds.
#include <string>
#include <vector>

#include "forms/form_state.hpp"
#include "ui/form_window.hpp"

namespace bm::soak {

// The title, the window's place and size, and for every control its text or
// caption, chosen flag, visibility, enabled flag and place; one line for each
// disagreement.
std::vector<std::string> WindowProblems(const ui::FormWindow& window, const FormState& form);

}  // namespace bm::soak
