// Impedance, phase and reactances of R, L and C all in parallel at one frequency.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r, l, c, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
    f.setCaption("lblreattanza", "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtr");
    m.l = f.read("txtl");
    m.c = f.read("txtc");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.r * m.l * m.c * m.f, "txtr")) return;

    const FormValue xl = 6.2831852 * (m.f * m.l);
    const FormValue xc = 159154.976203 / (m.f * m.c);
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

    f.label("Label3", {240, 2520, 2040, 255}, "RESISTENZA  in Ohm");
    f.textBox("txtr", {2400, 2460, 1440, 330});
    f.label("Label4", {240, 2940, 2040, 255}, "INDUTTANZA in uH");
    f.textBox("txtl", {2400, 2880, 1440, 330});
    f.label("Label1", {240, 3360, 2040, 255}, "CAPACITA' in pF");
    f.textBox("txtc", {2400, 3300, 1440, 330});
    f.label("Label5", {240, 3780, 2040, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {2400, 3720, 1440, 330});

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
