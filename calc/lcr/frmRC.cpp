// A resistor and a capacitor at one frequency: impedance and phase with the two
// in series and in parallel. The capacitor leads, so both angles print negative.
#include "calc/lcr/pair_circuits.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r, c, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    for (const char* result : {"lblimpserie", "lblimpparallelo", "lblfases", "lblfasep"}) f.setCaption(result, "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtr");
    m.c = f.read("txtc");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.r * m.c * m.f, "txtr")) return;

    const FormValue xc = 159000 / (m.f * m.c);
    const std::string zs = f.picture(Sqr(Power(m.r, 2) + Power(xc, 2)), "#,##0.#");
    const std::string zp = f.picture((m.r * xc) / Sqr(Power(m.r, 2) + Power(xc, 2)), "#,##0.#");
    // 3.1415 stands for pi in both angles.
    const FormValue as = f.picture(Atn(xc / m.r) * 180 / 3.1415, "#,##0.#");
    const FormValue ap = ReadBack(f, Atn(m.r / xc) * 180 / 3.1415, "#,##0.#");

    f.setCaption("lblimpserie", "IMPEDENZA SERIE " + zs + " Ohm");
    f.setCaption("lblimpparallelo", "IMPEDENZA PARALLELO " + zp + " Ohm");
    // Negating the series text reads it back: its point goes with it.
    f.setCaption("lblfases", "ANGOLO DI FASE SERIE  " + f.numberText(-as) + "  GRADI");
    f.setCaption("lblfasep", "ANGOLO DI FASE PARALLELO " + f.numberText(-ap) + "  GRADI");
}

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmRC() {
    CalculatorForm f("frmRC", "IMPEDENZA :  RESISTENZA  +  CAPACITA'", {2400, 1800, 8760, 5850});
    PairCircuits(f, Part::Resistor, Part::Capacitor);

    f.label("Label3", {240, 1980, 3000, 255}, "RESISTENZA  in Ohm");
    f.textBox("txtr", {3360, 1920, 1800, 330});
    f.label("Label4", {240, 2400, 3000, 255}, "CAPACITA '   in pF");
    f.textBox("txtc", {3360, 2340, 1800, 330});
    f.label("Label5", {240, 2820, 3000, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {3360, 2760, 1800, 330});

    f.label("lblimpserie", {240, 3300, 8160, 255});
    f.label("lblimpparallelo", {240, 3600, 8160, 255});
    f.label("lblfases", {240, 3900, 8160, 255});
    f.label("lblfasep", {240, 4200, 8160, 255});

    f.button("cmdcalcola", {240, 4740, 1800, 480}, "CALCOLA");
    f.button("cmdchiudi", {2280, 4740, 1800, 480}, "C H I U D I");
    f.label("Label6", {7080, 4860, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    for (const char* box : {"txtr", "txtc", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
