// The resonance of a coil and a capacitor: frequency, wavelength and the
// reactance of either part at resonance. Offers the coil window beside it.
#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue l, c;  // microhenry and picofarad, reloaded on every click
};

// The hint waits where the results will stand, until the first result covers it.
void Form_Load(FormContext& f) {
    f.move("lblfantasma", 360, 2000);
    f.show("lblfantasma");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.l = f.read("txtinduttanza");
    m.c = f.read("txtcapacità");
    if (MissingDataSilentNegative(f, m.l * m.c, "txtinduttanza")) return;

    const FormValue root = Sqr(m.l * m.c);
    const FormValue khz = Power(FormValue::Whole(10), 6) / (root * 6.283184);
    const FormValue metres = root * 1.885;
    // The reactance is held in single precision before it is printed.
    const FormValue reactance = ToSingle(0.00628318 * (khz * m.l));

    f.setCaption("lbloutputfrequenza", "Frequenza in Khz  :  " + f.fixed(khz, 3));
    f.setCaption("lbloutputmetri", "Lunghezza d'onda in mt. : " + f.fixed(metres, 3));
    f.setCaption("lbloutputreattanza", "Reattanza XL/XC = " + f.fixed(reactance, -1) + " Ohm ");
    f.hide("lblfantasma");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::PlaceFirst()); }

void cdmesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmrisonanza() {
    CalculatorForm f("frmrisonanza", "RISONANZA", {2400, 1800, 7440, 4290});

    f.label("lblinduttanza", {240, 360, 2880, 255}, "Induttanza in microHenry");
    f.textBox("txtinduttanza", {3240, 300, 1800, 330});
    f.label("lblcapacità", {240, 780, 2880, 255}, "capacità in picoFarad");
    f.textBox("txtcapacità", {3240, 720, 1800, 330});
    f.label("Label4", {5880, 360, 1200, 255}, "Z9QQX");

    f.label("lbloutputfrequenza", {360, 2000, 6840, 255}).font(8, true);
    f.label("lbloutputmetri", {360, 2340, 6840, 255}).font(8, true);
    f.label("lbloutputreattanza", {360, 2680, 6840, 255}).font(8, true);
    // Placed over the results when the window loads.
    f.label("lblfantasma", {360, 1320, 6840, 480},
            "COME RISULTATO DEL CALCOLO AVREMO LA FREQUENZA IN KHz , LA LUNGHEZZA D'ONDA IN METRI E LA "
            "REATTANZA XL = XC IN Ohm")
        .hidden();

    f.button("cmdcalcola", {240, 3120, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 3120, 3000, 480}, "DATI COSTRUZIONE BOBINE");
    f.button("cdmesci", {5520, 3120, 1560, 480}, "ESCI");

    f.onLoad(Form_Load);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cdmesci", cdmesci_Click);
    return f;
}

}  // namespace bm::lcr
