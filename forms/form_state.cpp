#include "forms/form_state.hpp"

#include <stdexcept>

namespace bm {

ControlState& FormState::control(const ControlKey& key) {
    auto it = controls.find(key);
    if (it == controls.end()) {
        def->at(key);  // names the missing control
        throw std::logic_error(name() + ": control " + key.str() + " is not loaded");
    }
    return it->second;
}

const ControlState& FormState::control(const ControlKey& key) const {
    return const_cast<FormState*>(this)->control(key);
}

void FormState::reset() {
    controls.clear();
    for (const ControlDef& d : def->controls) {
        ControlState s;
        s.text = d.text;
        s.tooltip = d.tooltip;
        s.visible = d.visible;
        s.enabled = d.enabled;
        s.chosen = d.chosen;
        s.foreground = d.foreground;
        s.rect = d.rect;
        s.items = d.items;
        s.interval = d.interval;
        controls.emplace(d.key, std::move(s));
    }
    title = def->title;
    window = def->window;
}

}  // namespace bm
