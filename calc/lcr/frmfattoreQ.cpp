// The Q and the 3 dB bandwidth of an R L C circuit at resonance, series and
// parallel, with its impedance.
#include "calc/lcr/resonance.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<Resonance> m = ResonanceAtClick(f);
    if (!m) return;
    // Across the tank the resistance gives the inverse ratio, R / XL, from the
    // unrounded values.
    const FormValue qParallel = m->r / m->xl;
    const FormValue khzParallel = (m->mhz / qParallel) * 1000;
    const FormValue bandwidthParallel = ReadBack(f, khzParallel, "##,##0.###");

    ShowResonance(f, *m);
    // The series bandwidth is shown as pictured, point and separators included.
    f.setCaption("lbllbserie", "LARGHEZZA DI BANDA SERIE = " + f.picture(m->khz, "##,##0.###") + " KHz");
    f.setCaption("lblqparallelo", "IL Q DEL CIRCUITO PARALLELO E' =  " + f.picture(qParallel, "##0.#"));
    f.setCaption("lbllbparallelo", "LARGHEZZA DI BANDA PARALLELO = " + f.numberText(bandwidthParallel) + " KHz");
}

}  // namespace

CalculatorForm frmfattoreQ() {
    CalculatorForm f("frmfattoreQ", "CALCOLO DEL  FATTORE DI MERITO E DELLA LARGHEZZA DI BANDA", {1800, 1200, 9600, 7410});
    ResonanceWindow(f, "2");
    f.label("Label9", {240, 120, 9000, 720},
            "SI DETERMINA IL FATTORE DI MERITO E LA LARGHEZZA DI BANDA  A 3 dB  IN UN CIRCUITO  R-L-C  IN "
            "RISONANZA, SUPPONENDO CHE I COMPONENTI SIANO PRIVI DI PERDITE");
    f.label("lblqparallelo", {240, 6120, 9000, 255}).font(8, true);
    f.label("lbllbparallelo", {240, 6420, 9000, 255}).font(8, true);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lcr
