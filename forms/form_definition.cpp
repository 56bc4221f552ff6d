#include "forms/form_definition.hpp"

#include <stdexcept>

namespace bm {

ControlKey ControlKey::Parse(std::string_view id) {
    ControlKey key;
    const std::size_t open = id.find('(');
    if (open == std::string_view::npos || id.back() != ')') {
        key.name = std::string(id);
        return key;
    }
    key.name = std::string(id.substr(0, open));
    const std::string_view digits = id.substr(open + 1, id.size() - open - 2);
    if (digits.empty()) throw std::invalid_argument("bad control name: " + std::string(id));
    int index = 0;
    for (char c : digits) {
        if (c < '0' || c > '9') throw std::invalid_argument("bad control name: " + std::string(id));
        index = index * 10 + (c - '0');
    }
    key.index = index;
    return key;
}

std::string ControlKey::str() const {
    return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

bool ControlDef::takesFocus() const { return tabIndex >= 0; }

CalculatorForm::CalculatorForm(std::string formName, std::string formTitle, Rect rect)
    : name(std::move(formName)), title(std::move(formTitle)), window(rect) {}

ControlDef& CalculatorForm::add(std::string_view id, ControlKind kind, Rect r, std::string text) {
    ControlDef def;
    def.key = ControlKey::Parse(id);
    if (find(def.key) != nullptr) throw std::logic_error(name + ": control defined twice: " + def.key.str());
    def.kind = kind;
    def.rect = r;
    def.text = std::move(text);
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::Button:
        case ControlKind::Option:
        case ControlKind::CheckBox:
        case ControlKind::List: def.tabIndex = nextTab_++; break;
        default: break;
    }
    controls.push_back(std::move(def));
    return controls.back();
}

ControlDef& CalculatorForm::textBox(std::string_view id, Rect r, std::string text) {
    return add(id, ControlKind::TextBox, r, std::move(text));
}
ControlDef& CalculatorForm::label(std::string_view id, Rect r, std::string caption) {
    return add(id, ControlKind::Label, r, std::move(caption));
}
ControlDef& CalculatorForm::button(std::string_view id, Rect r, std::string caption) {
    return add(id, ControlKind::Button, r, std::move(caption));
}
ControlDef& CalculatorForm::option(std::string_view id, Rect r, std::string caption) {
    return add(id, ControlKind::Option, r, std::move(caption));
}
ControlDef& CalculatorForm::checkBox(std::string_view id, Rect r, std::string caption) {
    return add(id, ControlKind::CheckBox, r, std::move(caption));
}
ControlDef& CalculatorForm::frame(std::string_view id, Rect r, std::string caption) {
    return add(id, ControlKind::Frame, r, std::move(caption));
}
ControlDef& CalculatorForm::list(std::string_view id, Rect r, std::string text) {
    return add(id, ControlKind::List, r, std::move(text));
}
ControlDef& CalculatorForm::picture(std::string_view id, Rect r, std::string resource) {
    return add(id, ControlKind::Image, r, {}).image(std::move(resource));
}
ControlDef& CalculatorForm::line(std::string_view id, int x1, int y1, int x2, int y2) {
    return add(id, ControlKind::Line, Rect{x1, y1, x2, y2}, {});
}
ControlDef& CalculatorForm::shape(std::string_view id, Rect r, ShapeKind kind) {
    ControlDef& d = add(id, ControlKind::Shape, r, {});
    d.shape = kind;
    d.border = true;
    return d;
}
ControlDef& CalculatorForm::timer(std::string_view id, int intervalMs) {
    ControlDef& d = add(id, ControlKind::Timer, {}, {});
    d.interval = intervalMs;
    return d;
}

void CalculatorForm::on(EventKind kind, std::string_view control, Handler h) {
    if (!control.empty()) {
        bool known = false;
        for (const auto& c : controls) known = known || c.key.name == control;
        if (!known) throw std::logic_error(name + ": handler for a control it lacks: " + std::string(control));
    }
    handlers[{kind, std::string(control)}] = std::move(h);
}

void CalculatorForm::onLoad(PlainHandler h) {
    on(EventKind::Load, "", [h](FormContext& c, int) { h(c); });
}
void CalculatorForm::onUnload(PlainHandler h) {
    on(EventKind::Unload, "", [h](FormContext& c, int) { h(c); });
}
void CalculatorForm::onClick(std::string_view control, PlainHandler h) {
    on(EventKind::Click, control, [h](FormContext& c, int) { h(c); });
}
void CalculatorForm::onClick(std::string_view control, IndexedHandler h) { on(EventKind::Click, control, h); }
void CalculatorForm::onChange(std::string_view control, PlainHandler h) {
    on(EventKind::Change, control, [h](FormContext& c, int) { h(c); });
}
void CalculatorForm::onChange(std::string_view control, IndexedHandler h) { on(EventKind::Change, control, h); }
void CalculatorForm::onTimer(std::string_view control, PlainHandler h) {
    on(EventKind::Timer, control, [h](FormContext& c, int) { h(c); });
}

const ControlDef* CalculatorForm::find(const ControlKey& key) const {
    for (const auto& c : controls)
        if (c.key == key) return &c;
    return nullptr;
}

const ControlDef& CalculatorForm::at(const ControlKey& key) const {
    if (const ControlDef* d = find(key)) return *d;
    throw std::logic_error(name + " has no control " + key.str());
}

const Handler* CalculatorForm::handler(EventKind kind, std::string_view control) const {
    auto it = handlers.find({kind, std::string(control)});
    return it == handlers.end() ? nullptr : &it->second;
}

}  // namespace bm
