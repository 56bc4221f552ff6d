// Impedance and phase of R, L and C in series at one frequency.
#include "calc/lcr/rlc_inputs.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void BlankResults(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
}

void cmdcalcola_Click(FormContext& f) {
    const RlcValues& m = ReadRlc(f);
    if (MissingDataSilentNegative(f, m.product(), "txtr")) return;

    const FormValue xl = m.xl();
    const FormValue xc = m.xc();
    const std::string z = f.picture(Sqr(Power(m.r, 2) + Power(xl - xc, 2)), "#,##0.#");
    const FormValue phase = ReadBack(f, Atn((xl - xc) / m.r) * 180 / 3.14159265358979, "#,##0.##");

    f.setCaption("lblimp", "L' IMPEDENZA E'  " + z + " Ohm");
    f.setCaption("lblfi", "ANGOLO DI FASE   " + f.numberText(phase) + "  GRADI");
}

void cmdchiudi_Click(FormContext& f) { f.close(); }

// Generator on the left, then R, L and C along the top, back along the bottom.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int left = 480, right = 5400, top = 600, bottom = 2100;
    s.generator(left, top, bottom);
    s.resistor(left, top, 2040, top);
    s.inductor(2040, top, 3720, top);
    s.capacitor(3720, top, right, top);
    s.wire(right, top, right, bottom);
    s.wire(left, bottom, right, bottom);
}

}  // namespace

CalculatorForm frmRLCserie() {
    CalculatorForm f("frmRLCserie", "IMPEDENZA :  R + L + C  serie", {1800, 1500, 6120, 6330});
    DrawCircuit(f);

    RlcInputBoxes(f);

    f.label("lblimp", {240, 4260, 5520, 255});
    f.label("lblfi", {240, 4620, 5520, 255});

    f.button("cmdcalcola", {240, 5100, 1800, 480}, "CALCOLA");
    f.button("cmdchiudi", {2280, 5100, 1800, 480}, "C H I U D I");
    f.label("Label2", {4560, 5220, 1200, 255}, "Z9 QQX");

    for (const char* box : {"txtr", "txtl", "txtc", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
