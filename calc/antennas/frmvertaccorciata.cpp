// A vertical shorter than a quarter wave with a coil along it: the coil's
// inductance, the radiator's length in electrical degrees and its radiation
// resistance. The vertical is worked as half of a loaded dipole.
#include "calc/antennas/antenna_drawing.hpp"
#include "calc/antennas/loaded_dipole.hpp"
#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue h = f.read("txtlunghezza");
    const FormValue a = ToSingle(f.read("txtdistanza"));
    const FormValue d = f.read("txtdiametro");
    const FormValue fr = f.read("txtfrequenza");
    const FormValue b = h * 2;  // the dipole this vertical is half of
    if (MissingData(f, a * b * d * fr, "txtlunghezza")) return;
    // A single-precision distance typed equal to the height may fall a hair
    // short of B / 2 and pass the check.
    if (LoadedDipoleOutOfRange(f, a, b, fr)) return;

    // Printed as it rounds, with its grouping and a trailing point.
    const std::string l = f.picture(LoadingInductance(a, b, d, fr), "#,##0.##");
    f.setCaption("lblinduttanza", "INDUTTANZA in micro HENRY : " + l);
    const std::string degrees = f.picture(1.2 * h * fr, "##0.#");
    const FormValue w = ToSingle(300 / fr);
    const FormValue ratio = (24 * h) / w;
    const std::string rr = f.fixed(ratio * ratio, 2);
    f.setCaption("lblgradi", "LUNGHEZZA ANTENNA IN GRADI  :  " + degrees);
    f.setCaption("lblRR", "RESISTENZA DI RADIAZIONE = " + rr);
    f.setCaption("lblind", l);
    f.setNumber("lbldist", a);
    f.setNumber("lbllung", h);
}

void cmdchiamabobine_Click(FormContext& f) {
    CoilHandOff how = CoilHandOff::ShowFirst();
    how.callerAfter = true;
    OpenCoilWindow(f, how);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmvertaccorciata() {
    CalculatorForm f("frmvertaccorciata", "ANTENNA VERTICALE ACCORCIATA", {1200, 900, 9480, 6900});

    f.label("Label7", {240, 180, 5400, 255}, "CALCOLO INDUTTANZA DELLA BOBINA IN ARIA").font(9, true);
    const char* tip = "separare i decimali con il punto";
    f.label("Label1", {240, 720, 3720, 255}, "LUNGHEZZA TOTALE RADIATORE in mt.");
    f.textBox("txtlunghezza", {4080, 660, 1335, 330}).tip(tip);
    f.label("Label2", {240, 1140, 3720, 255}, "DISTANZA BOBINA DALLA BASE in mt.");
    f.textBox("txtdistanza", {4080, 1080, 1335, 330}).tip(tip);
    f.label("Label3", {240, 1560, 3720, 255}, "DIAMETRO DEL RADIATORE in mm");
    f.textBox("txtdiametro", {4080, 1500, 1335, 330}).tip(tip);
    f.label("Label4", {240, 1980, 3720, 255}, "FREQUENZA  in MHz");
    f.textBox("txtfrequenza", {4080, 1920, 1335, 330}).tip(tip);

    f.label("lblinduttanza", {240, 2760, 5280, 255}).font(8, true);
    f.label("lblgradi", {240, 3120, 5280, 255}).font(8, true);
    f.label("lblRR", {240, 3480, 5280, 255}).font(8, true);

    f.button("cmdcalcola", {240, 5760, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 5760, 2520, 480}, "Costruzione bobine");
    f.button("cmdesci", {7320, 5760, 1800, 480}, "ESCI");

    // The vertical on the ground, fed at its foot; the coil partway up.
    AntennaDrawing s(f);
    constexpr int x = 7320;
    constexpr int ground = 5100;
    constexpr int top = 480;
    constexpr int coilLow = 3000;
    constexpr int coilHigh = 2160;
    s.earthLine(5640, 9120, ground);
    s.feedPoint(x, ground - 150);
    s.coax(x + 150, ground - 150, 9120, ground - 150);
    s.radiator(x, ground - 240, x, coilLow);
    s.loadingCoil(x, coilLow, x, coilHigh);
    s.radiator(x, coilHigh, x, top);
    s.dimension(5880, top, 5880, ground - 240);
    s.dimension(6990, (coilLow + coilHigh) / 2, 6990, ground - 240);
    f.label("lbllung", {5160, 1500, 660, 255}, "lung.").font(8, true).aligned(Align::Right);
    f.label("lbldist", {5940, 3960, 990, 255}, "dist.").font(8, true).aligned(Align::Right);
    f.label("lblind", {x + 300, 2460, 1740, 255}).font(8, true);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
