#pragma once
// The in-memory record of one form: its controls as they stand now, and the
// form-level values that outlive the window.
#include <any>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/form_definition.hpp"

namespace bm {

enum class Modality { Modal, Modeless };
inline constexpr Modality OpenModal = Modality::Modal;
inline constexpr Modality OpenModeless = Modality::Modeless;

struct ControlState {
    std::string text;
    std::string tooltip;
    bool visible = true;
    bool enabled = true;
    bool chosen = false;
    std::optional<Color> foreground;
    Rect rect;
    std::vector<std::string> items;
    int interval = 0;  // timers; enabled is the timer's running flag
};

struct FormState {
    const CalculatorForm* def = nullptr;
    bool loaded = false;   // its controls exist (also when hidden)
    bool loadRan = false;  // its load logic ran since it was loaded
    bool shown = false;
    Modality modality = Modality::Modeless;
    std::string title;
    Rect window;
    std::map<ControlKey, ControlState> controls;
    std::any values;  // the form-level values; survive closing

    const std::string& name() const { return def->name; }
    // Checked lookup: a control the definition lacks is a programming error.
    ControlState& control(const ControlKey& key);
    const ControlState& control(const ControlKey& key) const;
    // Controls back to their definition.
    void reset();
};

}  // namespace bm
