// The start window: a menu bar over a picture, a blinking title and the exit
// button. It calculates nothing; the menu lives in the form registry.
#include "forms/calculation.hpp"

namespace bm::shell {

namespace {

constexpr int kWidth = 8595;
constexpr int kHeight = 6560;

void Load(FormContext& f) {
    const Rect w = f.window();
    f.moveWindow(Rect{w.left, w.top, kWidth, kHeight});
    CenterOnScreen(f);
    f.setTimerInterval("Timer1", 1000);
}

// Red turns blue and any other colour turns red: one blink every two seconds.
void Timer1Tick(FormContext& f) {
    f.setColor("lbltitolo", f.color("lbltitolo") == colors::Red ? colors::Blue : colors::Red);
}

// The title stops where it is, whichever colour it has; nothing restarts it.
void lbltitoloClick(FormContext& f) { f.setTimerEnabled("Timer1", false); }

void cdmexitClick(FormContext& f) {
    if (f.ShowMessage("SEI SICURO ?", 36, "AVVISO") == 6) f.endProgram();
}

}  // namespace

CalculatorForm FRMBANCOMISURATORE() {
    // The client area under the title and menu bars is about 8475 x 5640.
    CalculatorForm f("FRMBANCOMISURATORE", "BANCOMISURATORE    -   IL QUADERNO TECNICO", {0, 0, kWidth, kHeight});
    // The picture comes first so that every other control stands over it.
    f.picture("Image1", {0, 0, 8475, 5640}, "main");
    f.label("lbltitolo", {1320, 360, 5835, 720}, "BANCOMISURATORE")
        .tip("clicca per fermare")
        .font(24, true)
        .aligned(Align::Center)
        .color(colors::Red);
    f.label("LBLVERSIONE", {2918, 1200, 2640, 360}, " vers. 2.6 XP")
        .tip("maggio 2002")
        .font(12, true)
        .aligned(Align::Center);
    f.label("lblz9qqxa", {240, 240, 960, 255}, "Z9 QQX");
    f.label("lblz9qqxb", {7275, 240, 960, 255}, "Z9 QQX").aligned(Align::Right);
    f.label("Label1", {240, 5160, 2160, 255}, "risoluz. 800 x 600");
    f.button("cdmexit", {7395, 4800, 840, 600}).image("exit");
    f.timer("Timer1", 1000);

    f.onLoad(Load);
    f.onTimer("Timer1", Timer1Tick);
    f.onClick("lbltitolo", lbltitoloClick);
    f.onClick("cdmexit", cdmexitClick);
    return f;
}

}  // namespace bm::shell
