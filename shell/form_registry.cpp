// Placeholder table: the whole menu tree replaces it.
#include "shell/form_registry.hpp"

#include <vector>

namespace bm {
namespace {
const std::vector<MenuItem>& Items() {
    static const std::vector<MenuItem> kItems = {
        {1, "mnuvolt", "Volt", "", Modality::Modal},
        {2, "mnuohm", "Volt-Amp-Ohm-Watt", "frmleggediohm", Modality::Modal},
        {2, "mnurms", "Volt R.M.S.", "frmvolt", Modality::Modal},
        {1, "mnuinfo", "Leggimi", "frmabaut", Modality::Modal},
    };
    return kItems;
}
}  // namespace

std::span<const MenuItem> FormRegistry::items() { return Items(); }

const MenuItem* FormRegistry::find(std::string_view itemName) {
    for (const MenuItem& m : Items())
        if (m.name == itemName) return &m;
    return nullptr;
}

const MenuItem* FormRegistry::firstFor(std::string_view form) {
    for (const MenuItem& m : Items())
        if (m.form == form) return &m;
    return nullptr;
}

}  // namespace bm
