#pragma once
// Every calculator form, by name. A form unit is added with one line in forms.inc.
#include <span>
#include <string_view>

#include "forms/form_definition.hpp"

namespace bm {

using FormFactory = CalculatorForm (*)();

struct CatalogueEntry {
    std::string_view name;
    FormFactory make;
};

std::span<const CatalogueEntry> CalculatorCatalogue();

}  // namespace bm
