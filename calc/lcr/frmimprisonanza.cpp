// The impedance of an R L C circuit at resonance, series and parallel, with the
// series Q and bandwidth.
#include "calc/lcr/resonance_circuits.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r, l, c;  // ohm, microhenry, picofarad, reloaded on every click
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtR");
    m.l = f.read("txtL");
    m.c = f.read("txtC");
    if (MissingDataSilentNegative(f, m.r * m.l * m.c, "txtC")) return;
    if (m.r < 0.05) {
        f.ShowMessage("RESISTENZA TROPPO PICCOLA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtR");
        return;
    }

    const FormValue mhz = 159.155 / Sqr(m.c * m.l);
    const FormValue xl = 6.28 * (mhz * m.l);
    const FormValue q = xl / m.r;
    // The bandwidth in kHz comes from the unrounded Q.
    const FormValue khz = (mhz / q) * 1000;

    const std::string qText = f.picture(q, "##0.#");
    const FormValue bandwidth = ReadBack(f, khz, "##,##0.###");
    const std::string mhzText = f.picture(mhz, "###,##0.###");
    // In series the circuit at resonance is its resistance alone.
    const FormValue& zSeries = m.r;
    const FormValue zParallel = ReadBack(f, (m.l * Power(FormValue::Whole(10), 6)) / (m.c * m.r), "###,##0.#");

    f.setCaption("lblfrequenza", "FREQUENZA DI RISONANZA : " + mhzText + " MHz");
    f.setCaption("lblzserie", "IMPEDENZA SERIE : " + f.numberText(zSeries) + " Ohm");
    f.setCaption("lblzparallelo", "IMPEDENZA PARALLELO : " + f.numberText(zParallel) + " Ohm");
    f.setCaption("lblqserie", "IL Q DEL CIRCUITO SERIE E' =  " + qText);
    f.setCaption("lbllbserie", "LARGHEZZA DI BANDA SERIE = " + f.numberText(bandwidth) + " KHz");
}

void cdmesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmimprisonanza() {
    CalculatorForm f("frmimprisonanza", "CALCOLO DELL'IMPEDENZA IN UN CIRCUITO IN RISONANZA", {1800, 1200, 9600, 6810});
    ResonanceCircuits(f);

    f.label("Label9", {240, 120, 9000, 720},
            "NOTA LA CAPACITA',  L' INDUTTANZA E LA RESISTENZA,  SI DETERMINA IL VALORE DELL'IMPEDENZA IN UN "
            "CIRCUITO  R-L-C  IN RISONANZA, SUPPONENDO CHE I COMPONENTI SIANO PRIVI DI PERDITE");

    f.label("lblR", {240, 3300, 3000, 255}, "RESISTENZA IN OHM");
    f.textBox("txtR", {3360, 3240, 1800, 330});
    f.label("lblL", {240, 3720, 3000, 255}, "INDUTTANZA IN microHENRY");
    f.textBox("txtL", {3360, 3660, 1800, 330});
    f.label("lblC", {240, 4140, 3000, 255}, "CAPACITA'  IN picoFARAD");
    f.textBox("txtC", {3360, 4080, 1800, 330});

    f.label("lblfrequenza", {240, 4620, 9000, 255}).font(8, true);
    f.label("lblzserie", {240, 4920, 9000, 255}).font(8, true);
    f.label("lblzparallelo", {240, 5220, 9000, 255}).font(8, true);
    f.label("lblqserie", {240, 5520, 9000, 255}).font(8, true);
    f.label("lbllbserie", {240, 5820, 9000, 255}).font(8, true);

    f.button("cmdcalcola", {6240, 3240, 1800, 480}, "CALCOLA");
    f.button("cdmesci", {6240, 3840, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cdmesci", cdmesci_Click);
    return f;
}

}  // namespace bm::lcr
