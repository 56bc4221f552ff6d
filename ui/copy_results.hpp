#pragma once
// What "Copia i risultati" puts on the clipboard: the window's title, then, in
// reading order, each input's caption and text and each result's text, as plain
// text for a log book or a forum post.
#include <string>

#include "forms/form_state.hpp"

namespace bm::ui {

std::string ResultsText(const CalculatorForm& form, const FormState& state);

}  // namespace bm::ui
