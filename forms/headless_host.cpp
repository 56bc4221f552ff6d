#include "forms/headless_host.hpp"

namespace bm {

int HeadlessHost::showMessage(const std::string& text, int style, const std::string& title) {
    Effect& e = add(Effect::Kind::Message);
    e.text = text;
    e.style = style;
    e.title = title;
    if (!answers.empty()) {
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    if (style == 36) {
        ++unansweredQuestions;
        return 7;
    }
    return 1;
}

void HeadlessHost::formShown(FormState& form) {
    Effect& e = add(Effect::Kind::Open, form.name());
    e.modality = form.modality;
    e.rect = form.window;
}

Effect& HeadlessHost::add(Effect::Kind kind, std::string form) {
    Effect e;
    e.kind = kind;
    e.form = std::move(form);
    effects.push_back(std::move(e));
    return effects.back();
}

void HeadlessHost::formBroughtForward(FormState& form) { add(Effect::Kind::BringForward, form.name()); }
void HeadlessHost::formClosed(FormState& form) { add(Effect::Kind::Close, form.name()); }
void HeadlessHost::formMoved(FormState& form) { add(Effect::Kind::Move, form.name()).rect = form.window; }

void HeadlessHost::focusRequested(FormState& form, const ControlKey& control) {
    add(Effect::Kind::Focus, form.name()).control = control.str();
}

void HeadlessHost::printWindow(FormState& form) {
    Effect& e = add(Effect::Kind::Print, form.name());
    for (const auto& [key, c] : form.controls)
        if (!c.visible) e.hidden.push_back(key.str());
}

void HeadlessHost::faulted(FaultKind kind) { add(Effect::Kind::Fault).fault = kind; }
void HeadlessHost::ended() { add(Effect::Kind::End); }

const Effect* HeadlessHost::last(Effect::Kind kind) const {
    for (auto it = effects.rbegin(); it != effects.rend(); ++it)
        if (it->kind == kind) return &*it;
    return nullptr;
}

}  // namespace bm
