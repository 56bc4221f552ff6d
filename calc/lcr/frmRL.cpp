// A resistor and a coil at one frequency: impedance and phase with the two in
// series and in parallel.
#include "calc/coil_handoff.hpp"
#include "calc/lcr/pair_circuits.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r, l, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    for (const char* result : {"lblimpserie", "lblimpparallelo", "lblfases", "lblfasep"}) f.setCaption(result, "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtr");
    m.l = f.read("txtl");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.r * m.l * m.f, "txtr")) return;

    const FormValue xl = 6.283 * (m.f * m.l);
    const std::string zs = f.picture(Sqr(Power(m.r, 2) + Power(xl, 2)), "#,##0.#");
    // The parallel figure is shown as read back from its tenth.
    const FormValue zp = ReadBack(f, (m.r * xl) / Sqr(Power(m.r, 2) + Power(xl, 2)), "#,##0.#");
    // 3.1415 stands for pi in both angles.
    const std::string as = f.picture(Atn(xl / m.r) * 180 / 3.1415, "#,##0.#");
    const std::string ap = f.picture(Atn(m.r / xl) * 180 / 3.1415, "#,##0.#");

    f.setCaption("lblimpserie", "IMPEDENZA SERIE " + zs + " Ohm");
    f.setCaption("lblimpparallelo", "IMPEDENZA PARALLELO " + f.numberText(zp) + " Ohm");
    f.setCaption("lblfases", "ANGOLO DI FASE SERIE  " + as + "  GRADI");
    f.setCaption("lblfasep", "ANGOLO DI FASE PARALLELO " + ap + "  GRADI");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirst(400, 300)); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmRL() {
    CalculatorForm f("frmRL", "IMPEDENZA :  RESISTENZA  +  INDUTTANZA", {2400, 1800, 8760, 5850});
    PairCircuits(f, Part::Resistor, Part::Inductor);

    f.label("Label3", {240, 1980, 3000, 255}, "RESISTENZA  in Ohm");
    f.textBox("txtr", {3360, 1920, 1800, 330});
    f.label("Label4", {240, 2400, 3000, 255}, "INDUTTANZA in uH");
    f.textBox("txtl", {3360, 2340, 1800, 330});
    f.label("Label5", {240, 2820, 3000, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {3360, 2760, 1800, 330});

    f.label("lblimpserie", {240, 3300, 8160, 255});
    f.label("lblimpparallelo", {240, 3600, 8160, 255});
    f.label("lblfases", {240, 3900, 8160, 255});
    f.label("lblfasep", {240, 4200, 8160, 255});

    f.button("cmdcalcola", {240, 4740, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 4740, 2160, 480}, "Costruzione bobine");
    f.button("cmdchiudi", {4680, 4740, 1800, 480}, "C H I U D I");
    f.label("Label6", {7080, 4860, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    for (const char* box : {"txtr", "txtl", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
