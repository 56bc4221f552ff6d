#include "calc/lines/impedance_window.hpp"

namespace bm::lines {

namespace {
constexpr int kMargin = 240;
constexpr int kRow = 420;
constexpr int kCaptionWidth = 5160;
constexpr int kBoxLeft = 5520;
constexpr int kBoxWidth = 1560;
// The client area is narrower and shorter than the window by its frame and title.
constexpr int kFrameWidth = 120;
constexpr int kFrameHeight = 450;

void cmdesci_Click(FormContext& f) { f.close(); }
}  // namespace

void ImpedanceWindow(CalculatorForm& f, const ImpedanceLayout& layout) {
    const int inner = kImpedanceWidth - kFrameWidth - 2 * kMargin;
    int top = layout.sketchHeight + 120;
    for (const Dimension& row : layout.rows) {
        f.label(row.caption, {kMargin, top + 45, kCaptionWidth, 255}, row.text);
        f.textBox(row.box, {kBoxLeft, top, kBoxWidth, 330});
        top += kRow;
    }
    f.label("Label2", {kMargin, top + 60, inner, 255}, layout.note).aligned(Align::Center);
    top += 420;
    for (const std::string& result : layout.results) {
        f.label(result, {kMargin, top, inner, 285}).font(9, true);
        top += 330;
    }
    top += 120;
    f.button("cmdcalcola", {kMargin, top, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {kMargin + 2040, top, 1800, 480}, "E S C I");
    if (layout.signature)
        f.label("lblqqx", {kMargin + inner - 1200, top + 120, 1200, 255}, "Z9QQX").aligned(Align::Right);
    f.window.width = kImpedanceWidth;
    f.window.height = top + 480 + kMargin + kFrameHeight;

    const std::vector<std::string> results = layout.results;
    const auto blank = [results](FormContext& ctx, int) {
        for (const std::string& result : results) ctx.setCaption(result, "");
    };
    for (const Dimension& row : layout.rows) f.on(EventKind::Change, row.box, blank);
    f.onClick("cmdesci", cmdesci_Click);
}


void ShowImpedance(FormContext& f, const std::string& number) {
    f.setCaption("lblimpedenza", "L'IMPEDENZA E' DI  :  " + number + "  OHM");
}

}  // namespace bm::lines
