// L C matching networks from a lower to a higher impedance: the high-pass and
// the low-pass form of the L network for one frequency.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtfrequenza");
    const FormValue zi = f.read("txtinput");
    const FormValue zo = f.read("txtoutput");
    const FormValue product = (freq * zi) * zo;
    // This window's own words for the gate.
    if (product == 0) {
        f.ShowMessage("IMMETTERE DATI", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtfrequenza");
        return;
    }
    if (product < 0) return;
    if (zi >= zo) {
        f.ShowMessage("l'impedenza d'entrata deve essere minore di quella d'uscita", 48, "AVVISO");
        f.setFocus("txtinput");
        return;
    }

    // X1 is the series reactance on the low side, X2 the shunt one on the high side.
    const FormValue m = zo / zi;
    const FormValue x1 = zi * Sqr(m - 1);
    const FormValue x2 = (m * zi) / Sqr(m - 1);
    const FormValue c1 = 159000 / (freq * x1);
    const FormValue c2 = 159000 / (freq * x2);
    // The second network's coil is held in single precision, the first's in double.
    const FormValue l2 = ToSingle(x1 / (freq * 6.28318));
    const FormValue l1 = x2 / (freq * 6.28318);

    f.setCaption("lblC1", f.fixed(c1, 1) + " pF");
    f.setCaption("lblC2", f.fixed(c2, 1) + " pF");
    f.setCaption("lblL1", f.fixed(l1, 1) + " uH");
    f.setCaption("lblL2", f.fixed(l2, 1) + " uH");
}

void cmdesci_Click(FormContext& f) { f.close(); }

// Both networks run from the input on the left (the lower impedance) to the
// output on the right, over a common return. The series part sits on the low
// side, the shunt part across the high side: in the first the series C and
// the coil across (high-pass), in the second the series coil and the C across
// (low-pass).
void DrawNetworks(CalculatorForm& form) {
    Schematic s(form);
    const int top = 900, bottom = 2280;

    s.capacitor(600, top, 2400, top);
    s.wire(2400, top, 3480, top);
    s.inductor(2400, top, 2400, bottom);
    s.wire(600, bottom, 3480, bottom);
    s.node(2400, top);
    s.node(2400, bottom);
    for (int x : {600, 3480}) {
        s.terminal(x, top);
        s.terminal(x, bottom);
    }

    s.inductor(4440, top, 6240, top);
    s.wire(6240, top, 7320, top);
    s.capacitor(6240, top, 6240, bottom);
    s.wire(4440, bottom, 7320, bottom);
    s.node(6240, top);
    s.node(6240, bottom);
    for (int x : {4440, 7320}) {
        s.terminal(x, top);
        s.terminal(x, bottom);
    }
}

}  // namespace

CalculatorForm frmadattatoriLC() {
    CalculatorForm f("frmadattatoriLC", "ADATTATORI AD INDUTTANZA - CAPACITA'", {2100, 1500, 8160, 6210});
    DrawNetworks(f);
    f.label("Label1", {240, 1470, 720, 255}, "Input").aligned(Align::Center);
    f.label("Label4", {4080, 1470, 720, 255}, "Input").aligned(Align::Center);
    f.label("lblC1", {900, 420, 1200, 255}, "C").aligned(Align::Center);
    f.label("lblL1", {2640, 1470, 1200, 255}, "L");
    f.label("lblL2", {4740, 420, 1200, 255}, "L").aligned(Align::Center);
    f.label("lblC2", {6480, 1470, 1200, 255}, "C");

    f.label("lblf", {240, 2820, 3000, 255}, "FREQUENZA in MHz");
    f.textBox("txtfrequenza", {3360, 2760, 1560, 330});
    f.label("Label2", {240, 3240, 3000, 255}, "IMPEDENZA INPUT in Ohm");
    f.textBox("txtinput", {3360, 3180, 1560, 330}).tip("minore dell'impedenza output");
    f.label("Label3", {240, 3660, 3000, 255}, "IMPEDENZA OUTPUT in Ohm");
    f.textBox("txtoutput", {3360, 3600, 1560, 330}).tip("maggiore dell'impedenza input");
    f.label("Label5", {240, 4140, 7560, 765},
            "LE PERDITE SONO DOVUTE ALLA RESISTENZA OHMICA DEL FILO DELLA BOBINA E ALLA PERDITA DI ISOLAMENTO "
            "NEL DIELETTRICO DEL CONDENSATORE");

    f.button("cmdcalcola", {240, 5040, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5040, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
