#include "forms/form_context.hpp"

namespace bm {

FormContext::FormContext(Program& program, FormState& form) : program_(program), form_(form) {}

ControlState& FormContext::at(std::string_view control) {
    // Touching a control of an unloaded form loads it again, hidden.
    if (!form_.loaded) program_.loadedState(form_.name());
    return form_.control(ControlKey::Parse(control));
}

const ControlState& FormContext::at(std::string_view control) const {
    return const_cast<FormContext*>(this)->at(control);
}

void FormContext::changed() {
    if (form_.shown) program_.host().formChanged(form_);
}

std::string FormContext::text(std::string_view control) const { return at(control).text; }

void FormContext::setText(std::string_view control, std::string text) {
    at(control);
    program_.setText(form_, ControlKey::Parse(control), std::move(text));
}

void FormContext::setNumber(std::string_view control, const FormValue& value) {
    setText(control, numberText(value));
}

double FormContext::read(std::string_view control) const { return ReadNumber(text(control)); }

std::string FormContext::tooltip(std::string_view control) const { return at(control).tooltip; }
void FormContext::setTooltip(std::string_view control, std::string tip) { at(control).tooltip = std::move(tip); }

bool FormContext::visible(std::string_view control) const { return at(control).visible; }
void FormContext::setVisible(std::string_view control, bool visible) { at(control).visible = visible; }
bool FormContext::enabled(std::string_view control) const { return at(control).enabled; }
void FormContext::setEnabled(std::string_view control, bool enabled) { at(control).enabled = enabled; }

bool FormContext::chosen(std::string_view control) const { return at(control).chosen; }
void FormContext::choose(std::string_view control) { setChosen(control, true); }
void FormContext::setChosen(std::string_view control, bool chosen) {
    at(control);
    program_.setChosen(form_, ControlKey::Parse(control), chosen, false);
}

int FormContext::chosenIndex(std::string_view group) const {
    for (const ControlDef& d : form_.def->controls)
        if (d.key.name == group && at(d.key.str()).chosen) return d.key.index;
    return -1;
}

Color FormContext::color(std::string_view control) const {
    return at(control).foreground.value_or(colors::Black);
}
void FormContext::setColor(std::string_view control, Color color) { at(control).foreground = color; }

Rect FormContext::rect(std::string_view control) const { return at(control).rect; }
void FormContext::move(std::string_view control, int left, int top) {
    ControlState& c = at(control);
    c.rect.left = left;
    c.rect.top = top;
}
void FormContext::move(std::string_view control, Rect rect) { at(control).rect = rect; }

std::vector<std::string> FormContext::items(std::string_view control) const { return at(control).items; }
void FormContext::setItems(std::string_view control, std::vector<std::string> rows) {
    at(control).items = std::move(rows);
}

bool FormContext::timerEnabled(std::string_view control) const { return at(control).enabled; }
void FormContext::setTimerEnabled(std::string_view control, bool enabled) { at(control).enabled = enabled; }
void FormContext::setTimerInterval(std::string_view control, int ms) { at(control).interval = ms; }

void FormContext::setFocus(std::string_view control) {
    at(control);
    program_.host().focusRequested(form_, ControlKey::Parse(control));
}

int FormContext::ShowMessage(const std::string& text, int style, const std::string& title) {
    changed();
    return program_.host().showMessage(text, style, title);
}

void FormContext::OpenForm(std::string_view form, Modality modality) {
    changed();
    program_.openForm(form, modality);
}

Rect FormContext::window(std::string_view form) { return program_.loadedState(form).window; }

void FormContext::moveWindow(int left, int top) { moveWindow(form_.name(), left, top); }

void FormContext::moveWindow(std::string_view form, int left, int top) {
    Rect r = window(form);
    r.left = left;
    r.top = top;
    program_.moveForm(form, r);
}

void FormContext::setTitle(std::string title) { form_.title = std::move(title); }

void FormContext::PrintWindow() {
    changed();
    program_.host().printWindow(form_);
}

std::string FormContext::today() const { return program_.host().today(); }
int FormContext::screenWidth() const { return program_.host().screenWidth(); }
int FormContext::screenHeight() const { return program_.host().screenHeight(); }

void FormContext::endProgram() { throw ProgramEnd{}; }
void FormContext::fail(FaultKind kind) { RaiseRunTimeFailure(kind); }

}  // namespace bm
