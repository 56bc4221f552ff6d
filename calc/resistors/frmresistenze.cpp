// Two resistors in series and in parallel; totals from 1001 ohm up are given
// in kiloohm.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue a, b;
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.a = f.read("txtR1");
    m.b = f.read("txtR2");
    if (MissingData(f, m.a * m.b, "txtR1")) return;
    FormValue s = m.a + m.b;
    FormValue p = (m.a * m.b) / (m.a + m.b);

    // 1001, not 1000: a total of exactly 1000 stays in ohm, on both lines.
    std::string unit = "Ohm";
    if (s >= 1001) {
        s = s / 1000;
        unit = "KiloOhm";
    }
    f.setCaption("lblserie", "TOTALE SERIE =  " + f.picture(s, "#,##0.##") + "  " + unit);

    unit = "Ohm";
    if (p >= 1001) {
        p = p / 1000;
        unit = "KiloOhm";
    }
    f.setCaption("lblparallelo", "TOTALE PARALLELO =  " + f.picture(p, "#,##0.#") + "  " + unit);
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The pair in a row on the left, side by side on the right, each resistor named.
void DrawCircuits(CalculatorForm& f) {
    Schematic s(f);
    const int mid = 1080;
    s.wire(600, mid, 840, mid);
    s.resistor(840, mid, 2040, mid);
    s.resistor(2040, mid, 3240, mid);
    s.wire(3240, mid, 3480, mid);
    s.terminal(600, mid);
    s.terminal(3480, mid);

    const int a = 5280, b = 7680, upper = 660, lower = 1500;
    s.wire(4680, mid, a, mid);
    s.path({{a, upper}, {a, lower}});
    s.resistor(a, upper, b, upper);
    s.resistor(a, lower, b, lower);
    s.path({{b, upper}, {b, lower}});
    s.wire(b, mid, 8280, mid);
    s.node(a, mid);
    s.node(b, mid);
    s.terminal(4680, mid);
    s.terminal(8280, mid);

    f.label("Label1", {1140, mid - 420, 600, 255}, "R1").aligned(Align::Center);
    f.label("Label2", {2340, mid - 420, 600, 255}, "R2").aligned(Align::Center);
    f.label("Label3", {6180, upper - 420, 600, 255}, "R1").aligned(Align::Center);
    f.label("Label4", {6180, lower - 420, 600, 255}, "R2").aligned(Align::Center);
}

}  // namespace

CalculatorForm frmresistenze() {
    CalculatorForm f("frmresistenze", "RESISTENZE IN SERIE E IN PARALLELO", {1800, 1500, 8760, 5070});
    DrawCircuits(f);

    f.label("lblR1", {240, 2160, 2400, 255}, "Ohm prima resistenza :");
    f.textBox("txtR1", {2760, 2100, 1800, 330}).tip("il punto per separare i decimali");
    f.label("lblR2", {240, 2580, 2400, 255}, "Ohm seconda resistenza :");
    f.textBox("txtR2", {2760, 2520, 1800, 330}).tip("il punto per separare i decimali");

    f.label("lblserie", {240, 3060, 8160, 255}).font(8, true);
    f.label("lblparallelo", {240, 3420, 8160, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3900, 1800, 480}, "CALCOLA").tip("abilita il calcolo");
    f.button("cmdesci", {2280, 3900, 480, 480}).image("exit").tip("chiude l'applicazione");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
