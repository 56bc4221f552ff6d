#pragma once
// The read-only tables of the Varie menu: a drop-down that the load logic
// fills row by row, and a box text of its own shown before any choice.
#include <span>
#include <string>
#include <string_view>

#include "forms/form_context.hpp"

namespace bm::reference {

// The drop-down, with the tooltip that all the tables share.
ControlDef& TableList(CalculatorForm& form, std::string_view id, Rect r, std::string boxText);

// Adds the rows, in the order given and as they stand, after whatever the list
// holds: a list comes back empty from its definition at each opening.
void AddRows(FormContext& f, std::string_view list, std::span<const char* const> rows);

}  // namespace bm::reference
