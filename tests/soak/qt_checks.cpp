#include "qt_checks.hpp"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "ui/controls.hpp"
#include "ui/geometry.hpp"

namespace bm::soak {

namespace {

void ControlProblems(const ui::FormWindow& w, const FormState& st, const ControlDef& d, std::vector<std::string>& out) {
    auto c = st.controls.find(d.key);
    if (c == st.controls.end()) return;  // the model net's record check covers this
    const ControlState& s = c->second;
    QWidget* widget = w.control(d.key);
    const std::string name = st.name() + "." + d.key.str();
    if (widget == nullptr) {
        if (ui::RendererFor(d.kind) != nullptr) out.push_back(name + ": no widget");
        return;
    }
    QString shown;
    bool hasText = true;
    if (auto* e = qobject_cast<QLineEdit*>(widget)) shown = e->text();
    else if (auto* p = qobject_cast<QPlainTextEdit*>(widget)) shown = p->toPlainText();
    else if (auto* cb = qobject_cast<QComboBox*>(widget)) shown = cb->lineEdit()->text();
    else if (auto* l = qobject_cast<QLabel*>(widget)) shown = l->text();
    else if (auto* g = qobject_cast<QGroupBox*>(widget)) shown = g->title();
    else if (auto* b = qobject_cast<QAbstractButton*>(widget)) {
        shown = b->text();
        if ((d.kind == ControlKind::Option || d.kind == ControlKind::CheckBox) && b->isChecked() != s.chosen)
            out.push_back(name + (s.chosen ? ": chosen in the model, not on the screen" : ": chosen on the screen only"));
    } else {
        hasText = false;
    }
    if (hasText && shown != QString::fromStdString(s.text))
        out.push_back(name + ": shows \"" + shown.left(60).toStdString() + "\", the model has \"" + s.text.substr(0, 60) +
                      "\"");
    if (widget->isHidden() == s.visible)
        out.push_back(name + (s.visible ? ": hidden, the model has it visible" : ": visible, the model has it hidden"));
    if (widget->testAttribute(Qt::WA_ForceDisabled) == s.enabled)
        out.push_back(name + (s.enabled ? ": disabled, the model has it enabled" : ": enabled, the model has it disabled"));
    if (widget->geometry() != ui::ToPixels(s.rect))
        out.push_back(name + ": at " + std::to_string(widget->x()) + "," + std::to_string(widget->y()) +
                      " px, the model places it elsewhere");
}

}  // namespace

std::vector<std::string> WindowProblems(const ui::FormWindow& w, const FormState& st) {
    std::vector<std::string> out;
    const std::string& name = st.name();
    if (!w.isVisible()) out.push_back(name + ": shown in the model, its window hidden");
    if (w.windowTitle() != QString::fromStdString(st.title))
        out.push_back(name + ": title \"" + w.windowTitle().toStdString() + "\", the model has \"" + st.title + "\"");
    const QPoint at(ui::Px(st.window.left), ui::Px(st.window.top));
    if (w.pos() != at)
        out.push_back(name + ": window at " + std::to_string(w.x()) + "," + std::to_string(w.y()) +
                      " px, the model has " + std::to_string(at.x()) + "," + std::to_string(at.y()));
    if (w.size() != ui::ClientSize(st.window))
        out.push_back(name + ": window of " + std::to_string(w.width()) + "x" + std::to_string(w.height()) +
                      " px, the model's size differs");
    for (const ControlDef& d : st.def->controls) ControlProblems(w, st, d, out);
    return out;
}

}  // namespace bm::soak
