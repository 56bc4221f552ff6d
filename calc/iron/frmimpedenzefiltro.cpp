// The filter choke of a valve supply: wire, core section, turns and the room
// the winding takes, from the inductance, the current and the air gap.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::iron {
namespace {

struct Vars {
    FormValue l, i, g;  // reloaded on every click
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.l = f.read("txthenry");
    m.i = f.read("txtcorrente");
    m.g = f.read("txttraferro");
    if (MissingData(f, m.l * m.i * m.g, "txthenry")) return;
    // The tooltip offers up to 0.7 mm; the calculation takes no more than 0.6.
    if (m.g > 0.6) {
        ErrorMessage(f, "VALORE MAX 0.6 mm", "txttraferro");
        return;
    }

    const FormValue d = Sqr(m.i / 1000) * 0.7;                // mm
    const FormValue section = (m.l * (m.i * m.i)) / (40000 * m.g);  // cm2
    const FormValue turns = (800000 * m.g) / m.i;
    const FormValue area = (0.015 * turns) * (d * d);  // cm2, from the unrounded figures

    f.setCaption("lbld", "DIAMETRO DEL FILO " + f.fixed(d, 2) + " mm");
    f.setCaption("lblsezione", "SEZIONE DEL NUCLEO " + f.fixed(section, 2) + " cmq");
    f.setCaption("lbln", "IL NUMERO DELLE SPIRE E'   " + f.fixed(turns, 0));
    f.setCaption("lblsa", "AREA OCCUPATA DALL'AVVOLGIMENTO " + f.numberText(ReadBackFixed(f, area, 2)) + " cmq");
}

void cdmesci_Click(FormContext& f) { f.close(); }

// The choke between two reservoir capacitors, its iron core drawn along it.
void DrawFilter(CalculatorForm& form) {
    Schematic s(form);
    const int top = 840, bottom = 2040;
    const int in = 5160, c1 = 5760, c2 = 7680, out = 8280;
    const int coilLeft = 6240, coilRight = 7200;

    s.wire(in, top, coilLeft, top);
    s.inductor(coilLeft, top, coilRight, top);
    s.wire(coilRight, top, out, top);
    // The core: two bars over the turns, with the air gap between their halves.
    for (int y : {top - 240, top - 300}) {
        s.wire(coilLeft + 120, y, 6690, y);
        s.wire(6750, y, coilRight - 120, y);
    }
    s.capacitor(c1, top, c1, bottom);
    s.capacitor(c2, top, c2, bottom);
    s.wire(in, bottom, out, bottom);
    s.node(c1, top);
    s.node(c2, top);
    s.node(c1, bottom);
    s.node(c2, bottom);
    s.terminal(in, top);
    s.terminal(in, bottom);
    s.terminal(out, top);
    s.terminal(out, bottom);
}

}  // namespace

CalculatorForm frmimpedenzefiltro() {
    CalculatorForm f("frmimpedenzefiltro", "IMPEDENZE DI FILTRO       PER ALIMENTAZIONE APPARATI VALVOLARI",
                     {1800, 1500, 8880, 4800});
    DrawFilter(f);
    f.label("Label4", {6300, 240, 840, 255}, "L").aligned(Align::Center);

    f.label("Label1", {240, 540, 3240, 255}, "VALORE DELL'INDUTTANZA IN Henry");
    f.textBox("txthenry", {3600, 480, 1080, 330});
    f.label("Label2", {240, 1020, 3240, 255}, "VALORE DELLA CORRENTE IN mA");
    f.textBox("txtcorrente", {3600, 960, 1080, 330});
    f.label("lbltraferro", {240, 1500, 3240, 255}, "VALORE DEL TRAFERRO IN mm");
    f.textBox("txttraferro", {3600, 1440, 1080, 330}, "0.3").tip("da mm 0.1 a mm 0.7");

    f.label("lbld", {240, 2400, 8280, 255}).font(8, true);
    f.label("lblsezione", {240, 2700, 8280, 255}).font(8, true);
    f.label("lbln", {240, 3000, 8280, 255}).font(8, true);
    f.label("lblsa", {240, 3300, 8280, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3780, 1800, 480}, "CALCOLA");
    f.button("cdmesci", {2280, 3780, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cdmesci", cdmesci_Click);
    return f;
}

}  // namespace bm::iron
