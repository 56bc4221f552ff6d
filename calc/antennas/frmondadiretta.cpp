// The range of a VHF-UHF link by direct wave, from the height of the antenna
// above the sea, recomputed at every keystroke.
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

struct Vars {
    FormValue h;  // the height as last read
};

void txtaltezza_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.h = f.read("txtaltezza");
    // An empty box, or a first "0", leaves the last distance where it is.
    if (m.h == 0) {
        m.h = FormValue::Whole(1);
        return;
    }
    // Past 5000 m is as wrong as below the sea, and each keystroke says so.
    if (m.h < 0 || m.h > 5000) {
        f.ShowMessage("MANCA DATO", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtaltezza");
        return;
    }
    f.setCaption("lbldistanza",
                 "LA POSSIBILE DISTANZA E' DI KM: " + f.numberText(RoundHalfEven16(Sqr(m.h) * 4.124)));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmondadiretta() {
    CalculatorForm f("frmondadiretta", "DISTANZA DI COLLEGAMENTO PER ONDA DIRETTA", {2400, 2100, 7200, 4500});

    f.label("Label1", {240, 120, 6600, 720},
            "CONOSCENDO L'ALTEZZA DELL'ANTENNA SUL LIVELLO DEL MARE , SI PUO' CALCOLARE IN VIA TEORICA LA "
            "DISTANZA COPERTA PER ONDA DIRETTA OPERANDO IN IN VHF - UHF");
    f.label("Label2", {240, 1140, 3600, 255}, "ALTEZZA IN MT. SUL LIVELLO DEL MARE");
    f.textBox("txtaltezza", {3960, 1080, 1440, 330});
    f.label("lbldistanza", {240, 1740, 6600, 255}).font(8, true);

    f.button("cmdesci", {240, 2880, 1800, 480}, "C H I U D I");

    f.onChange("txtaltezza", txtaltezza_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
