// Two coils at one frequency: the reactance with the two in series and in
// parallel. Two coils give a phase of 90 degrees whatever their values.
#include "calc/coil_handoff.hpp"
#include "calc/lcr/pair_circuits.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue l1, l2, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    for (const char* result : {"lblimpserie", "lblimpparallelo", "lblfase"}) f.setCaption(result, "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.l1 = f.read("txtl1");
    m.l2 = f.read("txtl2");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.l1 * m.l2 * m.f, "txtl1")) return;

    const FormValue series = m.l1 + m.l2;
    // Two coils of opposite sign pass the gate only with a negative frequency,
    // and then divide by 0 here.
    const FormValue parallel = (m.l1 * m.l2) / (m.l1 + m.l2);
    const std::string zs = f.picture(6.28 * (m.f * series), "#,##0.#");
    // The parallel figure is shown as read back from its tenth.
    const FormValue zp = ReadBack(f, 6.28 * (m.f * parallel), "#,##0.#");

    f.setCaption("lblimpserie", "IMPEDENZA SERIE " + zs + " Ohm");
    f.setCaption("lblimpparallelo", "IMPEDENZA PARALLELO " + f.numberText(zp) + " Ohm");
    f.setCaption("lblfase", "ANGOLO DI FASE 90° ");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirst(400, 300)); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmLL() {
    CalculatorForm f("frmLL", "IMPEDENZA :  INDUTTANZA  +  INDUTTANZA", {2400, 1800, 8760, 5550});
    PairCircuits(f, Part::Inductor, Part::Inductor);

    f.label("Label3", {240, 1980, 3000, 255}, "uH prima induttanza ");
    f.textBox("txtl1", {3360, 1920, 1800, 330});
    f.label("Label4", {240, 2400, 3000, 255}, "uH seconda induttanza ");
    f.textBox("txtl2", {3360, 2340, 1800, 330});
    f.label("Label5", {240, 2820, 3000, 255}, "frequenza in MHz ");
    f.textBox("txtf", {3360, 2760, 1800, 330});

    f.label("lblimpserie", {240, 3300, 8160, 255});
    f.label("lblimpparallelo", {240, 3600, 8160, 255});
    f.label("lblfase", {240, 3900, 8160, 255});

    f.button("cmdcalcola", {240, 4440, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 4440, 2160, 480}, "Costruzione bobine");
    f.button("cmdchiudi", {4680, 4440, 480, 480}).image("exit");
    f.label("Label6", {7080, 4560, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    for (const char* box : {"txtl1", "txtl2", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
