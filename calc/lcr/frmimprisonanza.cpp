// The impedance of an R L C circuit at resonance, series and parallel, with the
// series Q and bandwidth.
#include "calc/lcr/resonance.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<Resonance> m = ResonanceAtClick(f);
    if (!m) return;
    ShowResonance(f, *m);
    // The bandwidth is read back, so it prints without separators or trailing zeros.
    const FormValue bandwidth = ReadBack(f, m->khz, "##,##0.###");
    f.setCaption("lbllbserie", "LARGHEZZA DI BANDA SERIE = " + f.numberText(bandwidth) + " KHz");
}

}  // namespace

CalculatorForm frmimprisonanza() {
    CalculatorForm f("frmimprisonanza", "CALCOLO DELL'IMPEDENZA IN UN CIRCUITO IN RISONANZA", {1800, 1200, 9600, 6810});
    ResonanceWindow(f);
    f.label("Label9", {240, 120, 9000, 720},
            "NOTA LA CAPACITA',  L' INDUTTANZA E LA RESISTENZA,  SI DETERMINA IL VALORE DELL'IMPEDENZA IN UN "
            "CIRCUITO  R-L-C  IN RISONANZA, SUPPONENDO CHE I COMPONENTI SIANO PRIVI DI PERDITE");
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lcr
