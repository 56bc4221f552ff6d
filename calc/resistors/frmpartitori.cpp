// A two-resistor divider across a supply: the current and the voltage across
// each resistor.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue v, r1, r2, i;
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.v = f.read("txtV");
    m.r1 = f.read("txtR1");
    m.r2 = f.read("txtR2");
    if (MissingDataSilentNegative(f, m.v * m.r1 * m.r2, "txtV")) return;
    m.i = ToSingle(m.v / (m.r1 + m.r2));
    f.setCaption("lblV1", "Volt " + f.picture(m.r1 * m.i, "#,##0.##"));
    f.setCaption("lblV2", "Volt " + f.picture(m.i * m.r2, "#,##0.##"));
    m.i = ReadBackSingle(f, m.i, "##0.####");
    f.setCaption("lblcorrente", "LA CORRENTE E' :  " + f.numberText(m.i) + "  Amp.");
    f.setCaption("lblV", "V. " + f.numberText(m.v));
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The battery on the left, R1 over R2 on the right; each resistor's voltage
// stands beside it.
void DrawDivider(CalculatorForm& f) {
    const int battery = 1200, right = 3000, top = 480, tap = 1680, bottom = 2880;
    // The long and the short plate of the cell, drawn first so that the
    // schematic's own elements number on from them.
    f.line("Line1", battery - 300, 1560, battery + 300, 1560).width(2);
    f.line("Line2", battery - 150, 1680, battery + 150, 1680).width(3);
    Schematic s(f);
    s.path({{battery, 1560}, {battery, top}, {right, top}});
    s.resistor(right, top, right, tap);
    s.resistor(right, tap, right, bottom);
    s.path({{right, bottom}, {battery, bottom}, {battery, 1680}});
    s.node(right, tap);

    f.label("lblV", {battery + 420, 1493, 1200, 255}, "Volt");
    f.label("lblR1", {right - 720, 953, 480, 255}, "R1").aligned(Align::Right);
    f.label("lblV1", {right + 270, 953, 1800, 255});
    f.label("lblR2", {right - 720, 2153, 480, 255}, "R2").aligned(Align::Right);
    f.label("lblV2", {right + 270, 2153, 1800, 255});
}

}  // namespace

CalculatorForm frmpartitori() {
    CalculatorForm f("frmpartitori", "PARTITORI RESISTIVI", {1800, 1500, 9120, 4530});
    DrawDivider(f);

    f.label("Label1", {5160, 240, 3600, 960},
            "FISSATI I VALORI DELLA TENSIONE DI ALIMENTAZIONE E DELLE RESISTENZE, SI OTTENGONO LE RISPETTIVE "
            "TENSIONI PARZIALI");
    f.label("Label5", {5160, 1380, 2400, 255}, "TENSIONE DI ALIMENTAZIONE");
    f.textBox("txtV", {7560, 1320, 1200, 330}).tip("usa il punto per i decimali");
    f.label("Label6", {5160, 1800, 2400, 255}, "VALORE di R 1 in OHM");
    f.textBox("txtR1", {7560, 1740, 1200, 330});
    f.label("Label7", {5160, 2220, 2400, 255}, "VALORE di R 2 in OHM");
    f.textBox("txtR2", {7560, 2160, 1200, 330});
    f.label("lblcorrente", {5160, 2760, 3600, 255}).font(8, true);

    f.button("cmdcalcola", {5160, 3360, 1680, 480}, "CALCOLA");
    f.button("cmdesci", {7080, 3360, 1680, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
