// Impedance and phase of R1 in series with L, that branch in parallel with R2,
// at one frequency; the coil's reactance is written beside the coil.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r1, l, r2, f;  // reloaded on every click
};

void BlankResults(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
    f.setCaption("lbll", "");
}

// A new inductance leaves the old XL beside the coil.
void txtl_Change(FormContext& f) {
    f.setCaption("lblimp", "");
    f.setCaption("lblfi", "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r1 = f.read("txtr1");
    m.l = f.read("txtl");
    m.r2 = f.read("txtR2");
    m.f = f.read("txtf");
    if (MissingDataSilentNegative(f, m.r1 * m.l * m.r2 * m.f, "txtr1")) return;

    const FormValue xl = 6.2831852 * (m.f * m.l);
    const FormValue coil = Power(m.r1, 2) + Power(xl, 2);
    // R2 stands squared in front of the root.
    const std::string z =
        f.picture(Power(m.r2, 2) * Sqr(coil / (Power(m.r1 + m.r2, 2) + Power(xl, 2))), "#,##0.#");
    const FormValue phase =
        ReadBack(f, Atn((xl * m.r2) / (coil + (m.r1 * m.r2))) * 180 / 3.14159265358979, "#,##0.##");

    f.setCaption("lblimp", "L' IMPEDENZA E'  " + z + " Ohm");
    f.setCaption("lblfi", "ANGOLO DI FASE   " + f.numberText(phase) + "  GRADI");
    f.setCaption("lbll", "XL = " + f.picture(xl, "#,##0.#") + " Ohm");
}

void cmdchiudi_Click(FormContext& f) { f.close(); }

// Generator on the left; R2 straight across it, and beside R2 the other branch:
// R1 along the top, then L down to the return wire.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int left = 480, branch = 2400, right = 5400, top = 600, bottom = 2100;
    s.generator(left, top, bottom);
    s.wire(left, top, branch, top);
    s.resistor(branch, top, branch, bottom);
    s.resistor(branch, top, 4200, top);
    s.wire(4200, top, right, top);
    s.inductor(right, top, right, bottom);
    s.wire(left, bottom, right, bottom);
    s.node(branch, top);
    s.node(branch, bottom);
}

}  // namespace

CalculatorForm frmRLR() {
    CalculatorForm f("frmRLR", "IMPEDENZA :  R  L + R ", {1800, 1500, 6120, 6330});
    DrawCircuit(f);
    // The names of the parts, beside them.
    f.label("Label2", {3060, 240, 480, 255}, "R1").aligned(Align::Center);
    f.label("Label7", {2640, 1230, 480, 255}, "R2");
    f.label("lbll", {3180, 1230, 1980, 255}, "L").aligned(Align::Right);

    f.label("Label3", {240, 2520, 2040, 255}, "RESISTENZA R1 in Ohm");
    f.textBox("txtr1", {2400, 2460, 1440, 330});
    f.label("Label4", {240, 2940, 2040, 255}, "INDUTTANZA in uH");
    f.textBox("txtl", {2400, 2880, 1440, 330});
    f.label("Label1", {240, 3360, 2040, 255}, "RESISTENZA R2 in Ohm");
    f.textBox("txtR2", {2400, 3300, 1440, 330});
    f.label("Label5", {240, 3780, 2040, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {2400, 3720, 1440, 330});

    f.label("lblimp", {240, 4260, 5520, 255});
    f.label("lblfi", {240, 4620, 5520, 255});

    f.button("cmdcalcola", {240, 5100, 1800, 480}, "CALCOLA");
    f.button("cmdchiudi", {2280, 5100, 1800, 480}, "C H I U D I");
    f.label("Label6", {4560, 5220, 1200, 255}, "Z9 QQX");

    for (const char* box : {"txtr1", "txtf", "txtR2"}) f.onChange(box, BlankResults);
    f.onChange("txtl", txtl_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lcr
