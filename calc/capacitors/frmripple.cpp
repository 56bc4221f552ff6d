// The smoothing electrolytic after a bridge rectifier, for a chosen ripple.
// Each figure is rounded to millivolts and the next one computed from it.
#include <cmath>

#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue p, v, i;  // reloaded on every click
};

void Form_Load(FormContext& f) {
    const Rect w = f.window();
    f.moveWindow({w.left, w.top, 8595, 5200});
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.p = f.read("txtpercentuale");
    m.v = f.read("txtvolt");
    m.i = f.read("txtcorrente");
    // The percentage is not in the gate: 0 % reaches the division below.
    if (MissingDataSilentNegative(f, m.v * m.i, "txtpercentuale")) return;

    const FormValue veff = f.fixed((m.v * m.p) / 100, 3);
    const FormValue vp = f.fixed(veff * 1.4, 3);
    const FormValue vpp = f.fixed(veff * 2.8, 3);
    const FormValue c = ReadBackFixed(f, (m.i / (vpp * 100)) * Power(FormValue::Whole(10), 6), 0);

    f.setNumber("lblV", m.v);
    f.setNumber("lblC", c);
    f.setCaption("lblVeff", "VOLT EFFICACI DEL RIPPLE = " + veff.text());
    f.setCaption("lblVp", "VOLT DI PICCO DEL RIPPLE = " + vp.text());
    f.setCaption("lblVpp", "VOLT PICCO-PICCO DEL RIPPLE = " + vpp.text());
    f.setCaption("lblelettrolitico", "CAPACITA' IN microFarad : " + f.numberText(c));
    for (const char* result : {"lblVeff", "lblVp", "lblVpp", "lblelettrolitico"}) f.show(result);
}

void cmdesci_Click(FormContext& f) { f.close(); }

// A diode from (x1, y1) to (x2, y2), conducting that way: a triangle pointing
// at the bar of the cathode, on any slant.
void Diode(Schematic& s, int x1, int y1, int x2, int y2) {
    const double dx = x2 - x1, dy = y2 - y1;
    const double length = std::hypot(dx, dy);
    const double ux = dx / length, uy = dy / length;
    const double half = 110;
    const auto at = [&](double along, double across) {
        const double mx = (x1 + x2) / 2.0, my = (y1 + y2) / 2.0;
        return std::pair<int, int>{static_cast<int>(std::lround(mx + ux * along - uy * across)),
                                   static_cast<int>(std::lround(my + uy * along + ux * across))};
    };
    const auto base = at(-half, 0), tip = at(half, 0);
    const auto left = at(-half, half), right = at(-half, -half);
    s.wire(x1, y1, base.first, base.second);
    s.path({left, right, tip, left});
    const auto bar1 = at(half, half), bar2 = at(half, -half);
    s.wire(bar1.first, bar1.second, bar2.first, bar2.second);
    s.wire(tip.first, tip.second, x2, y2);
}

// The mains in from the left to the bridge, the bridge's positive corner to
// the electrolytic and on to the output; the negative side is earth.
void DrawSupply(CalculatorForm& form) {
    Schematic s(form);
    const int top = 1800, bottom = 3240, mid = 2520;
    const int bx = 5760, left = 5040, right = 6480;
    const int cap = 7080, out = 8040, outLow = 3240;

    s.terminal(4440, top);
    s.terminal(4440, bottom);
    s.wire(4440, top, bx, top);
    s.wire(4440, bottom, bx, bottom);

    // Both AC corners feed the positive corner and are fed from the negative one.
    Diode(s, bx, top, right, mid);
    Diode(s, bx, bottom, right, mid);
    Diode(s, left, mid, bx, top);
    Diode(s, left, mid, bx, bottom);
    s.node(bx, top);
    s.node(bx, bottom);
    s.wire(left, mid, 4860, mid);
    s.ground(4860, mid);

    s.wire(right, mid, out, mid);
    s.node(cap, mid);
    s.capacitor(cap, mid, cap, 3480);
    s.ground(cap, 3480);
    s.terminal(out, mid);
    s.terminal(out, outLow);
    s.ground(out, outLow);
}

}  // namespace

CalculatorForm frmripple() {
    CalculatorForm f("frmripple", "Dimensionamento del condensatore anti ripple", {2100, 1500, 8715, 5520});
    DrawSupply(f);

    f.label("Label1", {120, 60, 8220, 780},
            "L'ondulazione residua (RIPPLE) presente all'uscita di un ponte raddrizzatore, aumenta con il crescere "
            "della corrente e può essere ridotta aumentando la capacità del condensatore elettrolitico di "
            "livellamento. Una capacità troppo elevata è tuttavia causa di una elevata corrente in fase di accensione "
            "dell'alimentatore, con possibile danno per i diodi se non sono di potenza adeguata.");
    f.label("Label2", {120, 840, 8220, 600},
            "La situazione ottimale è pertanto quella che prevede un dimensionamento dell'elettrolitico tale da "
            "ridurre il ripple a valori accettabili, senza danneggiare i diodi. Fissata la percentuale di ripple, si "
            "ricava il valore del condensatore.");

    f.label("Label3", {4200, 2400, 420, 255}, "AC").aligned(Align::Center);
    f.label("Label4", {6600, 2880, 240, 255}, "C");
    f.label("lblC", {7320, 2880, 720, 255});
    f.label("lblV", {7200, 2220, 1080, 255}).aligned(Align::Center);
    f.label("Label5", {7860, 2760, 420, 255}, "CC").aligned(Align::Center);

    f.label("Label6", {120, 1620, 2880, 255}, "PERCENTUALE DI RIPPLE PREVISTA :");
    f.textBox("txtpercentuale", {3060, 1560, 900, 330}, "2").tip("inserisci percentuale ");
    f.label("Label7", {120, 2040, 2880, 255}, "TENSIONE CC ALL'USCITA DEL PONTE");
    f.textBox("txtvolt", {3060, 1980, 900, 330}, "18").tip("inserisci Volt");
    f.label("lblcorrente", {120, 2460, 2880, 255}, "CORRENTE IN AMPERE :");
    f.textBox("txtcorrente", {3060, 2400, 900, 330}).tip("massima corrente prevista");

    f.label("lblVeff", {120, 2880, 3900, 255}).hidden();
    f.label("lblVp", {120, 3150, 3900, 255}).hidden();
    f.label("lblVpp", {120, 3420, 3900, 255}).hidden();
    f.label("lblelettrolitico", {120, 3690, 3900, 255}).font(8, true).hidden();

    f.button("cmdcalcola", {120, 4080, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2160, 4080, 1800, 480}, "E S C I");
    f.label("Label8", {4200, 3960, 4140, 660},
            "il RIPPLE è definito come il rapporto tra il valore efficace della componente alternata e la "
            "componente continua");

    f.onLoad(Form_Load);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
