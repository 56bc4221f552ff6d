// A capacitor and a coil at one frequency: impedance and phase with the two in
// series and in parallel, the resonance and both reactances.
#include "calc/coil_handoff.hpp"
#include "calc/lcr/pair_circuits.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue c, l, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    for (const char* result :
         {"lblimpserie", "lblimpparallelo", "lblfases", "lblfasep", "lblrisonanza", "lblreattanza"})
        f.setCaption(result, "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.c = f.read("txtc");
    m.l = f.read("txtl");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.c * m.l * m.f, "txtc")) return;

    // 6.2832852 is not quite 2 pi, nor 159154.976 quite its inverse: at the
    // printed resonance the coil stays a hair above the capacitor.
    const FormValue xl = 6.2832852 * (m.f * m.l);
    const FormValue xc = 159154.976 / (m.f * m.c);
    const FormValue zs = Abs(xc - xl);
    FormValue phaseSeries = FormValue::Whole(0);
    if (xl > xc) phaseSeries = FormValue::Whole(90);
    if (xl < xc) phaseSeries = FormValue::Whole(-90);
    const std::string resonance = f.picture(159.154976 / Sqr(m.c * m.l), "#,##0.####");
    // At an exact balance the difference is 0 and this divides by it.
    const FormValue zp = xc * Sqr(Power(xl, 2) / Power(xl - xc, 2));
    // The argument is the window's own, not the textbook one.
    const FormValue phaseParallel = Atn((xl * (xc - xl)) / xc) * 180 / 3.14159265358979;

    f.setCaption("lblimpserie", "IMPEDENZA SERIE " + f.picture(zs, "#,##0.#") + " Ohm");
    f.setCaption("lblimpparallelo", "IMPEDENZA PARALLELO " + f.picture(zp, "#,##0.#") + " Ohm");
    f.setCaption("lblfases", "ANGOLO DI FASE SERIE  " + f.numberText(phaseSeries) + "  GRADI");
    f.setCaption("lblfasep", "ANGOLO DI FASE PARALLELO " + f.picture(phaseParallel, "#,##0.#") + "  GRADI");
    f.setCaption("lblrisonanza", "LA RISONANZA E' A MHz: " + resonance);
    f.setCaption("lblreattanza",
                 "Xc = " + f.picture(xc, "#,##0.#") + "   Xl = " + f.picture(xl, "#,##0.#") + " Ohm");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirst()); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmLC() {
    CalculatorForm f("frmLC", "IMPEDENZA :  CAPACITA'  +  INDUTTANZA", {2400, 1800, 8760, 6450});
    PairCircuits(f, Part::Capacitor, Part::Inductor);

    f.label("Label3", {240, 1980, 3000, 255}, "CAPACITA' in pF");
    f.textBox("txtc", {3360, 1920, 1800, 330});
    f.label("Label4", {240, 2400, 3000, 255}, "INDUTTANZA in uH");
    f.textBox("txtl", {3360, 2340, 1800, 330});
    f.label("Label5", {240, 2820, 3000, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {3360, 2760, 1800, 330});

    f.label("lblimpserie", {240, 3300, 8160, 255});
    f.label("lblimpparallelo", {240, 3600, 8160, 255});
    f.label("lblfases", {240, 3900, 8160, 255});
    f.label("lblfasep", {240, 4200, 8160, 255});
    f.label("lblrisonanza", {240, 4500, 8160, 255});
    f.label("lblreattanza", {240, 4800, 8160, 255});

    f.button("cmdcalcola", {240, 5340, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 5340, 2160, 480}, "Costruzione bobine");
    f.button("cmdchiudi", {4680, 5340, 1800, 480}, "C H I U D I");
    f.label("Label6", {7080, 5460, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    for (const char* box : {"txtc", "txtl", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
