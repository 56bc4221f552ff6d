#include "forms/program.hpp"

#include <algorithm>
#include <stdexcept>

#include "forms/form_context.hpp"

namespace bm {

Program::Program(const FormLibrary& library, Host& host, NumberLocale locale)
    : library_(library), host_(host), locale_(std::move(locale)) {}

Program::Status Program::run(const std::function<void()>& step) {
    if (status_ != Status::Running) throw std::logic_error("the program has ended");
    try {
        ArithmeticLocaleScope scope(locale_);
        step();
    } catch (const RunTimeFailure& f) {
        status_ = Status::Faulted;
        fault_ = f.kind();
        host_.faulted(f.kind());
    } catch (const ProgramEnd&) {
        status_ = Status::Ended;
        host_.ended();
    }
    return status_;
}

Program::Status Program::open(std::string_view form, Modality modality) {
    return run([&] { openForm(form, modality); });
}

Program::Status Program::close(std::string_view form) {
    return run([&] { closeForm(form); });
}

Program::Status Program::click(std::string_view form, const ControlKey& control) {
    return run([&] {
        FormState& st = loadedState(form);
        activate(form);
        const ControlDef& def = st.def->at(control);
        if (def.kind == ControlKind::Option) {
            // A click always runs the group's Click; choosing first clears the others.
            setChosen(st, control, true, true);
        } else if (def.kind == ControlKind::CheckBox) {
            ControlState& c = st.control(control);
            c.chosen = !c.chosen;
            fire(st, EventKind::Click, control);
        } else {
            fire(st, EventKind::Click, control);
        }
        if (st.shown) host_.formChanged(st);
    });
}

Program::Status Program::edit(std::string_view form, const ControlKey& control, std::string text) {
    return run([&] {
        FormState& st = loadedState(form);
        activate(form);
        setText(st, control, std::move(text));
        if (st.shown) host_.formChanged(st);
    });
}

Program::Status Program::tick() {
    return run([&] {
        for (auto& [name, st] : forms_) {
            if (!st->loaded) continue;
            for (const ControlDef& d : st->def->controls) {
                if (d.kind != ControlKind::Timer || !st->control(d.key).enabled) continue;
                fire(*st, EventKind::Timer, d.key);
                if (st->shown) host_.formChanged(*st);
            }
        }
    });
}

FormState* Program::state(std::string_view form) {
    auto it = forms_.find(form);
    return it == forms_.end() ? nullptr : it->second.get();
}

const FormState* Program::state(std::string_view form) const {
    auto it = forms_.find(form);
    return it == forms_.end() ? nullptr : it->second.get();
}

FormState& Program::record(std::string_view form) {
    if (FormState* st = state(form)) return *st;
    const CalculatorForm* def = library_.find(form);
    if (def == nullptr) throw std::logic_error("no form named " + std::string(form));
    auto st = std::make_unique<FormState>();
    st->def = def;
    st->title = def->title;
    st->window = def->window;
    return *forms_.emplace(std::string(form), std::move(st)).first->second;
}

FormState& Program::loadedState(std::string_view form) {
    FormState& st = record(form);
    if (!st.loaded) {
        st.reset();
        st.loaded = true;
        st.loadRan = false;
    }
    return st;
}

void Program::activate(std::string_view form) {
    std::erase(activation_, std::string(form));
    activation_.emplace_back(form);
}

FormState* Program::current() {
    for (auto it = activation_.rbegin(); it != activation_.rend(); ++it) {
        FormState* st = state(*it);
        if (st != nullptr && st->loaded) return st;
    }
    return nullptr;
}

void Program::openForm(std::string_view form, Modality modality) {
    FormState& st = loadedState(form);
    if (st.shown) {
        // Shown already: modeless only brings it forward; modal is a run-time failure.
        if (modality == Modality::Modal) RaiseRunTimeFailure(FaultKind::FormAlreadyShown);
        activate(form);
        host_.formBroughtForward(st);
        return;
    }
    if (!st.loadRan) {
        st.loadRan = true;
        fire(st, EventKind::Load, ControlKey{});
        if (!st.loaded) return;  // the load logic closed it
    }
    st.shown = true;
    st.modality = modality;
    activate(form);
    host_.formShown(st);
    initialFocusClick(st);
    if (st.loaded) host_.formChanged(st);
    if (modality == Modality::Modal && st.shown) host_.runModal(st);
}

void Program::initialFocusClick(FormState& st) {
    const ControlDef* first = nullptr;
    for (const ControlDef& d : st.def->controls) {
        if (!d.takesFocus()) continue;
        const ControlState& c = st.control(d.key);
        if (!c.visible || !c.enabled) continue;
        if (!d.container.empty()) {
            const ControlState& frame = st.control(ControlKey::Parse(d.container));
            if (!frame.visible || !frame.enabled) continue;
        }
        if (first == nullptr || d.tabIndex < first->tabIndex) first = &d;
    }
    if (first == nullptr) return;
    host_.focusRequested(st, first->key);
    if (first->kind == ControlKind::Option) setChosen(st, first->key, true, false);
}

void Program::closeForm(std::string_view form) {
    FormState* st = state(form);
    if (st == nullptr || !st->loaded) return;
    fire(*st, EventKind::Unload, ControlKey{});
    const bool wasShown = st->shown;
    st->loaded = false;
    st->loadRan = false;
    st->shown = false;
    st->controls.clear();
    st->title = st->def->title;
    st->window = st->def->window;
    if (wasShown) host_.formClosed(*st);
}

void Program::moveForm(std::string_view form, Rect rect) {
    FormState& st = loadedState(form);
    st.window = rect;
    host_.formMoved(st);
}

void Program::fire(FormState& st, EventKind kind, const ControlKey& control) {
    const Handler* h = st.def->handler(kind, control.name);
    if (h == nullptr) return;
    FormContext ctx(*this, st);
    (*h)(ctx, control.index);
}

void Program::setText(FormState& st, const ControlKey& control, std::string text) {
    ControlState& c = st.control(control);
    if (c.text == text) return;
    c.text = std::move(text);
    if (st.def->at(control).kind == ControlKind::TextBox) fire(st, EventKind::Change, control);
}

void Program::setChosen(FormState& st, const ControlKey& control, bool chosen, bool userClick) {
    const ControlDef& def = st.def->at(control);
    ControlState& c = st.control(control);
    const bool changed = c.chosen != chosen;
    if (chosen && def.kind == ControlKind::Option) {
        for (const ControlDef& other : st.def->controls) {
            if (other.kind == ControlKind::Option && other.key.name == def.key.name &&
                other.container == def.container && !(other.key == control))
                st.control(other.key).chosen = false;
        }
    }
    c.chosen = chosen;
    if ((changed && chosen) || userClick) fire(st, EventKind::Click, control);
}

}  // namespace bm
