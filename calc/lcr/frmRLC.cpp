// Impedance, phase, reactances and Q of a lossy coil (R and L in series) with a
// capacitor across it, at one frequency. Offers the coil window beside it.
#include "calc/coil_handoff.hpp"
#include "calc/lcr/rlc_inputs.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void BlankResults(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
    f.setCaption("lblreattanza", "");
    f.setCaption("lblq", "");
}

void cmdcalcola_Click(FormContext& f) {
    const RlcValues& m = ReadRlc(f);
    // Here a negative product warns too.
    if (MissingData(f, m.product(), "txtr")) return;

    const FormValue xl = m.xl();
    const FormValue xc = m.xc();
    const FormValue r2 = Power(m.r, 2);
    const FormValue coil = r2 + Power(xl, 2);  // R² + XL² of the lossy coil
    const std::string z = f.picture(xc * Sqr(coil / (r2 + Power(xl - xc, 2))), "#,##0.#");
    // The phase of the admittance: coil susceptance less the capacitor's, over the coil conductance.
    const FormValue phase =
        ReadBack(f, Atn(((xl / coil) - (1 / xc)) / (m.r / coil)) * 180 / 3.14159265358979, "#,##0.##");
    const std::string q = f.fixed(xl / m.r, 1);

    f.setCaption("lblimp", "L' IMPEDENZA E'  " + z + " Ohm");
    f.setCaption("lblfi", "ANGOLO DI FASE   " + f.numberText(phase) + "  GRADI");
    f.setCaption("lblreattanza", "XC = " + f.fixed(xc, 1) + " Ohm   -   XL = " + f.fixed(xl, 1) + " Ohm");
    f.setCaption("lblq", "IL Q DEL CIRCUITO E'  " + q);
}

// This window to 400, 300; the coil window is shown, then moved beside it.
void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirst(400, 300)); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

// Generator on the left; C straight across it, and beside C the coil's branch:
// R along the top, then L down to the return wire.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int left = 480, branch = 2400, right = 5400, top = 600, bottom = 2100;
    s.generator(left, top, bottom);
    s.wire(left, top, branch, top);
    s.capacitor(branch, top, branch, bottom);
    s.resistor(branch, top, 4200, top);
    s.wire(4200, top, right, top);
    s.inductor(right, top, right, bottom);
    s.wire(left, bottom, right, bottom);
    s.node(branch, top);
    s.node(branch, bottom);
}

}  // namespace

CalculatorForm frmRLC() {
    CalculatorForm f("frmRLC", "IMPEDENZA :  R + L + C  ", {1800, 1500, 6120, 7050});
    DrawCircuit(f);

    RlcInputBoxes(f);

    f.label("lblimp", {240, 4260, 5520, 255});
    f.label("lblfi", {240, 4620, 5520, 255});
    f.label("lblreattanza", {240, 4980, 5520, 255});
    f.label("lblq", {240, 5340, 5520, 255});

    f.button("cmdcalcola", {240, 5820, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {4080, 3000, 1680, 480}, "Costruzione bobine");
    f.button("cmdchiudi", {2280, 5820, 1800, 480}, "C H I U D I");
    f.label("Label2", {4560, 5940, 1200, 255}, "Z9 QQX");

    for (const char* box : {"txtr", "txtl", "txtc", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
