#pragma once
// The menu tree of the main window: every item in order, with its level, its
// caption (with the "&" of its access key) and the form it opens, and how.
#include <span>
#include <string>
#include <string_view>

#include "forms/form_state.hpp"

namespace bm {

struct MenuItem {
    int level = 1;            // 1 is the menu bar
    std::string name;         // mnuohm
    std::string caption;      // "Volt-Amp-Ohm-Watt"
    std::string form;         // empty for a submenu
    Modality modality = Modality::Modal;

    bool isSubmenu() const { return form.empty(); }
};

class FormRegistry {
public:
    static std::span<const MenuItem> items();
    static const MenuItem* find(std::string_view itemName);
    // The first item that opens `form`, or nullptr for a form with no menu item.
    static const MenuItem* firstFor(std::string_view form);
};

}  // namespace bm
