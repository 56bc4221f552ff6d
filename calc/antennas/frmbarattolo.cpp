// The tin-can feed for a dish: the size of the can and the place and height of
// its probe, from the frequency. Microwave only: below 1000 MHz it refuses.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    if (fr < 1000) {
        f.ShowMessage("FREQUENZA TROPPO BASSA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtfrequenza");
        return;
    }
    const FormValue k = 28800 / fr;  // cm
    // The can is as deep as it is wide.
    const std::string diameter = f.fixed(k * 0.7, 1);
    const std::string depth = diameter;
    const std::string s = f.fixed(k * 0.26, 2);
    const FormValue h = ReadBackFixed(f, k * 0.22, 2);
    f.setCaption("lblprofondita", depth + " cm.circa ");
    f.setCaption("lbldiametro", diameter + " cm.circa ");
    f.show("lblprofondita");
    f.show("lbldiametro");
    f.setCaption("lbls", s + " cm.");
    f.setCaption("lblh", f.numberText(h) + " cm.");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmbarattolo() {
    CalculatorForm f("frmbarattolo", "ILLUMINATORE A BARATTOLO PER PARABOLE", {2400, 1800, 7800, 4920});

    // The can standing with its open end up, towards the dish; the probe comes
    // through the wall from the coax, S above the closed bottom and H long.
    AntennaDrawing a(f);
    constexpr int kLeft = 1320;
    constexpr int kWidth = 1560;
    constexpr int kTop = 1200;
    constexpr int kBottom = kTop + kWidth;
    constexpr int kProbe = kBottom - 540;
    constexpr int kProbeEnd = kLeft + 660;
    a.cylinder(kLeft, kTop, kWidth, kWidth);
    a.radiator(kLeft, kProbe, kProbeEnd, kProbe);
    a.coax(360, kProbe, kLeft, kProbe);
    f.label("Label1", {240, kProbe + 120, 1020, 255}, "cavo coax");

    a.dimension(kLeft, 780, kLeft + kWidth, 780);
    f.label("lbldiametro", {kLeft - 240, 420, kWidth + 480, 255}).aligned(Align::Center).font(8, true).hidden();
    a.dimension(kLeft + kWidth + 300, kTop, kLeft + kWidth + 300, kBottom);
    f.label("lblprofondita", {kLeft + kWidth + 420, (kTop + kBottom) / 2 - 128, 1680, 255}).font(8, true).hidden();
    a.dimension(kLeft + 1140, kProbe, kLeft + 1140, kBottom);
    f.label("lbls", {kLeft + 240, kProbe + 150, 840, 255}).font(8, true).aligned(Align::Right);
    a.dimension(kLeft, kProbe - 240, kProbeEnd, kProbe - 240);
    f.label("lblh", {kLeft - 60, kProbe - 600, 1200, 255}).font(8, true);

    f.label("Label5", {4440, 420, 1800, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {6240, 360, 1200, 330}).tip("punto per decimali");

    f.button("cmdcalcola", {4440, 3480, 1440, 480}, "CALCOLA");
    f.button("cmdesci", {6000, 3480, 1440, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
