#include "ui/copy_results.hpp"

#include <algorithm>
#include <set>
#include <vector>

#include "ui/accessibility.hpp"

namespace bm::ui {

namespace {

// Controls whose tops are this close stand on one row of the window.
constexpr int kRowTwips = 150;

struct Line {
    Rect at;
    std::string text;
    bool input = false;
};

bool Shown(const CalculatorForm& form, const FormState& state, const ControlDef& d) {
    // A control is seen when it and every frame around it are visible.
    const ControlDef* c = &d;
    for (int depth = 0; c != nullptr && depth < 16; ++depth) {
        auto st = state.controls.find(c->key);
        if (st != state.controls.end() && !st->second.visible) return false;
        if (c->container.empty()) return true;
        c = form.find(ControlKey::Parse(c->container));
    }
    return true;
}

std::string Current(const FormState& state, const ControlDef& d) {
    auto st = state.controls.find(d.key);
    return st == state.controls.end() ? d.text : st->second.text;
}

}  // namespace

std::string ResultsText(const CalculatorForm& form, const FormState& state) {
    std::vector<Line> lines;
    std::set<ControlKey> captions;
    for (const ControlDef& d : form.controls) {
        if (d.kind != ControlKind::TextBox || !Shown(form, state, d)) continue;
        std::string caption;
        if (std::optional<ControlKey> label = CaptionLabelFor(form, d.key)) {
            captions.insert(*label);
            if (const ControlDef* l = form.find(*label)) caption = SpokenCaption(Current(state, *l)).toStdString();
        }
        if (caption.empty()) caption = d.tooltip.empty() ? d.key.str() : d.tooltip;
        lines.push_back({AbsoluteRect(form, d), caption + ": " + Current(state, d), true});
    }
    // A result is a label the logic wrote: empty in the definition, or changed since.
    for (const ControlDef& d : form.controls) {
        if (d.kind != ControlKind::Label || captions.contains(d.key) || !Shown(form, state, d)) continue;
        const std::string text = Current(state, d);
        if (text.find_first_not_of(' ') == std::string::npos || text == d.text) continue;
        lines.push_back({AbsoluteRect(form, d), text, false});
    }
    // Reading order: rows from the top, each row from the left; results side by
    // side on one row ("AMPER :" and its value) make one line.
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.at.top < b.at.top; });
    std::string out = state.title + "\n";
    for (std::size_t start = 0; start < lines.size();) {
        std::size_t end = start + 1;
        while (end < lines.size() && lines[end].at.top - lines[start].at.top < kRowTwips) ++end;
        std::stable_sort(lines.begin() + static_cast<std::ptrdiff_t>(start), lines.begin() + static_cast<std::ptrdiff_t>(end),
                         [](const Line& a, const Line& b) { return a.at.left < b.at.left; });
        for (std::size_t i = start; i < end; ++i) {
            const bool joined = i > start && !lines[i].input && !lines[i - 1].input;
            if (i > start) out += joined ? " " : "\n";
            out += lines[i].text;
        }
        out += "\n";
        start = end;
    }
    return out;
}

}  // namespace bm::ui
