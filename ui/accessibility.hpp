#pragma once
// Names for screen readers. A text box has no caption of its own: the label
// beside it (to its left on the same row) or over it says what it asks for.
#include <QString>
#include <optional>

#include "forms/form_definition.hpp"

namespace bm::ui {

// A control's rectangle in client coordinates, frames and all.
Rect AbsoluteRect(const CalculatorForm& form, const ControlDef& control);

// The label that captions a text box: the nearest label to its left whose rows
// overlap the box, or the nearest above whose columns overlap it, in the same
// frame or outside any; nullopt when no label stands near.
std::optional<ControlKey> CaptionLabelFor(const CalculatorForm& form, const ControlKey& textBox);

// A caption as a screen reader should speak it: blanks folded, the trailing
// colon and the "&" of an access key dropped.
QString SpokenCaption(const std::string& caption);

}  // namespace bm::ui
