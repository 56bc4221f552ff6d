// The voltage a charging capacitor has reached after a given time. The base of
// the exponential is 2.71, as this workbook has always had it.
#include "calc/capacitors/time_constant.hpp"
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue c, r, t, e;  // reloaded on every click
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.c = f.read("txtcapacita");
    m.r = f.read("txtohm");
    m.t = f.read("txtsecondi");
    m.e = f.read("txttensalim");
    if (MissingDataSilentNegative(f, ((m.c * m.r) * m.t) * m.e, "txtcapacita")) return;

    // Ohm times microfarad is microseconds, the unit of the time typed.
    const FormValue x = -m.t / (m.r * m.c);
    const FormValue v = m.e * (1 - Power(2.71, x));
    f.setCaption("lbloutput", "TENSIONE AI CAPI DEL CONDENSATORE = VOLT. :  " + f.fixed(v, 4));
    f.setNumber("lblr", m.r);
    f.setNumber("lblc", m.c);
    f.setNumber("lblalim", m.e);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmesempiocostempo() {
    CalculatorForm f("frmesempiocostempo", "TENSIONE AI CAPI DI UN CONDENSATORE ISTANTE PER ISTANTE",
                     {2100, 1500, 8640, 4560});

    f.label("Label1", {240, 120, 8040, 480},
            "SI DETERMINA LA DIFFERENZA DI POTENZIALE RAGGIUNTA DA UN CONDENSATORE IN FUNZIONE DELLA CAPACITA, DELLA  "
            "RESISTENZA E DEL TEMPO");

    DrawChargingCircuit(f, Part::Capacitor, 5040, 1080, 7200, 2280);
    f.label("lblr", {5400, 720, 1440, 255}, "R").aligned(Align::Center);
    f.label("lblc", {7380, 1560, 1020, 255}, "C");
    f.label("lblalim", {3720, 1560, 1080, 255}, "tens. alim.").aligned(Align::Right);

    f.label("lblcap(0)", {240, 900, 2280, 255}, "CAPACITA' IN microF");
    f.textBox("txtcapacita", {2520, 840, 1200, 330});
    f.label("lblohm(1)", {240, 1320, 2280, 255}, "RESISTENZA IN OHM");
    f.textBox("txtohm", {2520, 1260, 1200, 330});
    f.label("lbltempo", {240, 1740, 2280, 255}, "TEMPO in microsecondi");
    f.textBox("txtsecondi", {2520, 1680, 1200, 330});
    f.label("lblE", {240, 2160, 2280, 255}, "TENS. ALIM. in Volt");
    f.textBox("txttensalim", {2520, 2100, 1200, 330});

    f.label("lbloutput", {240, 2880, 8040, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3480, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3480, 1800, 480}, "ESCI");
    f.label("Label4", {7080, 3600, 1200, 255}, "Z9QQX").aligned(Align::Right);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
