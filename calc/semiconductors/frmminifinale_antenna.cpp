// Joins a QRP final (below 1.5 W) to a coaxial cable with a pi network fed
// from a tap on the collector coil. No button: every keystroke recomputes.
#include "calc/coil_handoff.hpp"
#include "calc/schematic.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

void txtfrequenza_Change(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    // An empty or unreadable field shows zeros, not blanks.
    FormValue coil = FormValue::Whole(0);
    FormValue c1 = FormValue::Whole(0);
    FormValue c2 = FormValue::Whole(0);
    if (!(fr == FormValue::Whole(0))) {
        c1 = 1000000 / (fr * 1193.2);
        c2 = c1 * 2;
        coil = 80 / (fr * 6.28);
    }
    ShowNetwork(f, coil, 3, c1, c2);
}

// The coil window goes beside the two-coil window's corner, whether or not
// that one is open: a closed one is loaded hidden to be moved.
void cmdchiamabobine_Click(FormContext& f) {
    CoilHandOff how = CoilHandOff::ShowFirst(400, 300);
    how.mover = "frmLL";
    OpenCoilWindow(f, how);
}

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int earth = 4800;
    const int col = 2700;
    // The final, driven on its base from the left.
    s.terminal(1200, 3600);
    s.wire(1200, 3600, 2400, 3600);
    s.transistor(2400, 3600);
    s.wire(col, 4200, col, earth);
    // The collector coil up to the supply, tapped a third of the way from its cold end.
    s.inductor(col, 3000, col, 1800);
    s.terminal(col, 1800);
    const int tap = 2300;
    s.wire(col + 110, tap, 4200, tap);
    // The pi network to the cable.
    s.node(4200, tap);
    s.capacitor(4200, tap, 4200, earth);
    s.inductor(4200, tap, 6000, tap);
    s.node(6000, tap);
    s.capacitor(6000, tap, 6000, earth);
    s.wire(6000, tap, 7500, tap);
    s.terminal(7500, tap);
    s.wire(col, earth, 7500, earth);
    s.terminal(7500, earth);
    s.node(4200, earth);
    s.node(6000, earth);
    s.ground(3450, earth);

    f.label("Label4", {2880, 1680, 900, 255}, "+ Vcc");
    f.label("Label5", {240, 2460, 2340, 255}, "stesso nr.spire bobina oscill.").aligned(Align::Right);
    f.label("Label6", {2880, 1980, 2640, 255}, "presa 1/3 spire lato freddo");
    f.label("Label7", {6900, 1980, 1560, 255}, "coax 50 ohm");

    f.label("lblbobina", {4320, 2520, 1560, 255}, "bobina").aligned(Align::Center);
    f.label("lblc1", {4440, 3420, 1440, 255}, "C 1");
    f.label("lblc2", {6240, 3420, 1440, 255}, "C 2");
}

}  // namespace

CalculatorForm frmminifinale_antenna() {
    CalculatorForm f("frmminifinale_antenna",
                     "COLLEGAMENTO DI UNO STADIO FINALE DI POTENZA INFERIORE A 1,5  WATT AD UN CAVO COASSIALE",
                     {1200, 900, 9600, 7860});

    f.label("Label1", {240, 300, 2040, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {2400, 240, 1200, 330});
    Drawing(f);
    f.label("Label3", {240, 5460, 9000, 255},
            "IN UN TRANSISTOR DI PICCOLA POTENZA L'IMPEDENZA DEL COLLETTORE E' NORMALMENTE SUPERIORE A 50 OHM");
    f.label("Label2", {240, 5820, 9000, 600},
            "I CALCOLI SI BASANO SULLE CARATTERISTICHE MEDIE DI TRANSISTORS DI PICCOLA POTENZA, PERTANTO LE "
            "RISULTANZE SONO NECESSARIAMENTE INDICATIVE. SI ADOTTERANNO COMPENSATORI CON CAPACITA' MAX SUPERIORE "
            "DI ALMENO IL 40 %");

    f.button("cmdchiamabobine", {240, 6600, 2160, 480}, "Costruzione bobine");
    f.button("cmdesci", {2640, 6600, 1800, 480}, "E S C I");

    f.onChange("txtfrequenza", txtfrequenza_Change);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
