// Bias resistors of a common-emitter preamplifier without an emitter
// capacitor: the collector resistor is a fifth of the load, the emitter
// resistor sets the gain, the divider carries ten times the base current.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::semiconductors {
namespace {

// Whole ohms, grouped; no digit at all for a value that rounds to 0.
constexpr const char* kOhm = "####,###";

void cmdcalcola_Click(FormContext& f) {
    const FormValue vcc = f.read("txtVcc");
    const FormValue zc = f.read("txtZC");
    const FormValue gain = f.read("txtguadagno");
    const FormValue beta = f.read("txtbeta");
    if (MissingData(f, vcc * zc * gain * beta, "txtVcc")) return;
    // A warning only: the resistors are given all the same.
    f.setCaption("lblstabilita", gain > FormValue::Whole(20) ? "GUADAGNO ECCESSIVO" : "");

    // R3 and R2 are kept as their texts and read back wherever they are used:
    // an empty text (a value that rounds to 0) ends the program there.
    const FormValue r3 = f.picture(zc / 5, kOhm);
    const FormValue r4 = RoundHalfEven16(r3 / gain);
    const FormValue ic = ToSingle((vcc / 2) / (r3 + r4));  // amperes
    // The "collector voltage" is the drop on R3.
    const FormValue vc = ic * r3;
    const FormValue ve = r4 * ic;
    const FormValue vb = 0.7 + ve;
    const FormValue ib = FormValue(ToSingle(ic * 1000)) / beta;  // mA
    const FormValue ip = ToSingle(10 * ib);
    const FormValue r2 = f.picture((r4 * beta) / 10, kOhm);
    // The base-emitter drop is 0.65 here, against 0.7 for the base voltage;
    // R1's picture ends in a blank, which its text keeps.
    const std::string r1 = f.picture((vcc * r2) / (ve + 0.65), "####,### ");
    const FormValue signal = (vcc * 0.8) / gain;
    const std::string zi = f.picture(0.7 * r2, "###,###");

    f.setCaption("lblR1", "IL VALORE DI R1 E' " + r1 + " OHM");
    f.setCaption("lblR2", "IL VALORE DI R2 E' " + r2.text() + " OHM");
    f.setCaption("lblR3", "IL VALORE DI R3 E' " + r3.text() + " OHM");
    f.setCaption("lblR4", "IL VALORE DI R4 E' " + f.numberText(r4) + " OHM");
    f.setCaption("Label8", f.numberText(vcc) + " V");
    f.setCaption("lblIc", "Corrente di collettore " + f.picture(ToSingle(ic * 1000), "#0.###") + " mA");
    f.setCaption("lblVc", "Tensione collettore " + f.picture(vc, "#0.##") + " Volt");
    f.setCaption("lblVe", "Tensione emettitore " + f.picture(ve, "#0.##") + " Volt");
    f.setCaption("lblVb", "Tensione di base " + f.picture(vb, "#0.##") + " Volt");
    f.setCaption("lblIb", "Corrente di base " + f.picture(ib, "#0.####") + " mA");
    f.setCaption("lblIp", "Corrente di polarizzazione " + f.picture(ip, "#0.##") + " mA");
    f.setCaption("lblVbase", "max segnale applicabile " + f.picture(signal, "#0.##") + " Volt");
    f.setCaption("lblZi", "Impedenza di ingresso " + zi + " Ohm");
    f.setCaption("Label6", "1 uF");
    f.setCaption("Label7", "1 uF");
}

void CMDESCI_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int supply = 1800;
    const int base = 3840;
    const int earth = 5880;
    const int divider = 6600;
    const int col = 8400;
    s.terminal(5700, supply);
    s.wire(5700, supply, col, supply);
    s.node(divider, supply);
    s.resistor(divider, supply, divider, base);
    s.node(divider, base);
    s.resistor(divider, base, divider, earth);
    s.resistor(col, supply, col, base - 600);
    s.node(col, base - 600);
    s.wire(divider, base, col - 300, base);
    s.transistor(col - 300, base);
    s.resistor(col, base + 600, col, earth);
    // The coupling capacitors, in and out.
    s.terminal(5700, base);
    s.capacitor(5700, base, divider, base);
    s.capacitor(col, base - 600, 9600, base - 600);
    s.terminal(9600, base - 600);
    s.wire(5700, earth, col, earth);
    s.terminal(5700, earth);
    s.node(divider, earth);
    s.ground(7500, earth);

    f.label("Label8", {5460, 1380, 1200, 255}, "Vcc");
    f.label("Label2", {6780, 2700, 480, 255}, "R1");
    f.label("Label3", {6780, 4740, 480, 255}, "R2");
    f.label("Label4", {8580, 2400, 480, 255}, "R3");
    f.label("Label5", {8580, 4980, 480, 255}, "R4");
    f.label("Label6", {5760, 3360, 720, 255}, "C1").aligned(Align::Center);
    f.label("Label7", {8700, 2820, 720, 255}, "C2").aligned(Align::Center);
}

}  // namespace

CalculatorForm frmpolarizztransistor() {
    CalculatorForm f("frmpolarizztransistor", "CALCOLO DELLE RESISTENZE DI POLARIZZAZIONE", {900, 600, 10320, 8520});

    f.label("Label1", {240, 120, 9720, 765},
            "CALCOLO DELLE RESISTENZE DI POLARIZZAZIONE DI UNO STADIO PREAMPLIFICATORE CON EMETTITORE COMUNE E "
            "SENZA CONDENSATORE IN PARALLELO A R4.  Appllicando in parallelo alla resistenza di emettitore un "
            "condensatore elettrolitico, il guadagno cresce di circa 10 volte.");
    // The beta has no default and takes the focus first; the others follow it.
    f.textBox("txtbeta", {3960, 2220, 1080, 330});
    f.textBox("txtVcc", {3960, 960, 1080, 330}, "12");
    f.textBox("txtZC", {3960, 1380, 1080, 330}, "47000");
    f.textBox("txtguadagno", {3960, 1800, 1080, 330}, "10");
    f.label("Label9", {240, 1020, 3600, 255}, "TENSIONE DI ALIMENTAZIONE Volt");
    f.label("Label10", {240, 1440, 3600, 255}, "RESISTENZA DI CARICO in Ohm");
    f.label("Label11", {240, 1860, 3600, 255}, "GUADAGNO PREVISTO");
    f.label("Label12", {240, 2280, 3600, 255}, "BETA MEDIO DEL TRANSISTOR");

    int y = 2760;
    for (const char* result : {"lblR1", "lblR2", "lblR3", "lblR4", "lblIc", "lblVc", "lblVe", "lblVb", "lblIb",
                               "lblIp", "lblVbase", "lblZi"}) {
        f.label(result, {240, y, 4920, 255});
        y += 300;
    }
    f.label("lblstabilita", {240, y + 60, 4920, 255}).font(8, true).color(colors::Red);
    Drawing(f);

    f.button("cmdcalcola", {5640, 6840, 1800, 480}, "CALCOLA");
    f.button("CMDESCI", {7680, 6840, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("CMDESCI", CMDESCI_Click);
    return f;
}

}  // namespace bm::semiconductors
