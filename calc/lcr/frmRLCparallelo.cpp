// Impedance, phase and reactances of R, L and C all in parallel at one frequency.
#include "calc/lcr/rlc_inputs.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void BlankResults(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
    f.setCaption("lblreattanza", "");
}

void cmdcalcola_Click(FormContext& f) {
    const RlcValues& m = ReadRlc(f);
    if (MissingDataSilentNegative(f, m.product(), "txtr")) return;

    const FormValue xl = m.xl();
    const FormValue xc = m.xc();
    const std::string z = f.picture(
        ((m.r * xl) * xc) / Sqr((Power(xl, 2) * Power(xc, 2)) + (Power(m.r, 2) * Power(xl - xc, 2))), "#,##0.#");
    const FormValue phase = ReadBack(f, Atn((m.r * (xl - xc)) / (xl * xc)) * 180 / 3.14159265358979, "#,##0.##");

    // The reactances are cut down to whole ohms.
    f.setCaption("lblreattanza", "XL = " + f.numberText(FloorValue(xl)) + " Ohm   -   XC = " +
                                     f.numberText(FloorValue(xc)) + " Ohm");
    f.setCaption("lblimp", "L' IMPEDENZA E'  " + z + " Ohm");
    f.setCaption("lblfi", "L' ANGOLO DI FASE E'   " + f.numberText(phase) + "  GRADI");
}

void cmdchiudi_Click(FormContext& f) { f.close(); }

// Generator on the left; R, L and C side by side between the two rails.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int left = 480, top = 600, bottom = 2100;
    const int r = 2160, l = 3780, c = 5400;
    s.generator(left, top, bottom);
    s.wire(left, top, c, top);
    s.wire(left, bottom, c, bottom);
    s.resistor(r, top, r, bottom);
    s.inductor(l, top, l, bottom);
    s.capacitor(c, top, c, bottom);
    s.node(r, top);
    s.node(r, bottom);
    s.node(l, top);
    s.node(l, bottom);
}

}  // namespace

CalculatorForm frmRLCparallelo() {
    CalculatorForm f("frmRLCparallelo", "IMPEDENZA :  R + L + C  parallelo", {1800, 1500, 6120, 6690});
    DrawCircuit(f);

    RlcInputBoxes(f);

    f.label("lblimp", {240, 4260, 5520, 255});
    f.label("lblfi", {240, 4620, 5520, 255});
    f.label("lblreattanza", {240, 4980, 5520, 255});

    f.button("cmdcalcola", {240, 5460, 1800, 480}, "CALCOLA");
    f.button("cmdchiudi", {2280, 5460, 1800, 480}, "C H I U D I");
    f.label("Label2", {4560, 5580, 1200, 255}, "Z9 QQX");

    for (const char* box : {"txtr", "txtl", "txtc", "txtf"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
