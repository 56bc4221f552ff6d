#include "ui/accessibility.hpp"

#include <limits>

namespace bm::ui {

namespace {

// Beyond this gap a label belongs to something else (about a third of an inch).
constexpr int kNearTwips = 1200;
// Labels drawn a little over the box's edge still count as beside it.
constexpr int kOverlapSlackTwips = 60;

int Overlap(int a0, int a1, int b0, int b1) { return std::min(a1, b1) - std::max(a0, b0); }

}  // namespace

Rect AbsoluteRect(const CalculatorForm& form, const ControlDef& control) {
    Rect r = control.rect;
    std::string container = control.container;
    for (int depth = 0; !container.empty() && depth < 16; ++depth) {
        const ControlDef* frame = form.find(ControlKey::Parse(container));
        if (frame == nullptr) break;
        r.left += frame->rect.left;
        r.top += frame->rect.top;
        container = frame->container;
    }
    return r;
}

std::optional<ControlKey> CaptionLabelFor(const CalculatorForm& form, const ControlKey& textBox) {
    const ControlDef* box = form.find(textBox);
    if (box == nullptr) return std::nullopt;
    const Rect b = AbsoluteRect(form, *box);
    std::optional<ControlKey> best;
    int bestGap = std::numeric_limits<int>::max();
    for (const ControlDef& d : form.controls) {
        if (d.kind != ControlKind::Label || d.container != box->container) continue;
        const Rect l = AbsoluteRect(form, d);
        int gap = -1;
        const int rows = Overlap(l.top, l.top + l.height, b.top, b.top + b.height);
        const int columns = Overlap(l.left, l.left + l.width, b.left, b.left + b.width);
        if (rows > 0 && l.left + l.width <= b.left + kOverlapSlackTwips && l.left < b.left) {
            gap = std::max(0, b.left - (l.left + l.width));
        } else if (columns > 0 && l.top + l.height <= b.top + kOverlapSlackTwips && l.top < b.top) {
            // A label over the box is a little less likely to be its caption than one beside it.
            gap = std::max(0, b.top - (l.top + l.height)) + 1;
        }
        if (gap < 0 || gap > kNearTwips || gap >= bestGap) continue;
        bestGap = gap;
        best = d.key;
    }
    return best;
}

QString SpokenCaption(const std::string& caption) {
    QString s = QString::fromStdString(caption).simplified();
    s.remove(QLatin1Char('&'));
    while (s.endsWith(QLatin1Char(':')) || s.endsWith(QLatin1Char(' '))) s.chop(1);
    return s;
}

}  // namespace bm::ui
