// Rescaling a finished antenna: from the length of the radiator and the
// resonance measured on it, the length that resonates where it should. The
// plain half-wave dipole ignores the typed length and works from 142 / F.
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

struct Vars {
    FormValue lnew;  // the new length as printed; a refused length leaves the previous one standing
};

void Option1_Click(FormContext& f, int index) {
    // Only the loaded antennas need the length they have now.
    const bool loaded = index != 0;
    f.setVisible("Label2", loaded);
    f.setVisible("txtoldlunghezza", loaded);
    f.setCaption("lblnewlunghezza", "");
    f.setCaption("lblridimensiona", "");
}

void TooLong(FormContext& f, const char* text) {
    f.ShowMessage(text, 48, "MESSAGGIO DI ERRORE");
    f.setFocus("txtoldlunghezza");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    FormValue lold = f.read("txtoldlunghezza");
    const FormValue fold = f.read("txtoldf");
    const FormValue fnew = f.read("txtnewf");
    if (MissingDataSilentNegative(f, fold * fnew, "txtoldf")) return;

    if (f.chosen("Option1(0)")) {
        m.lnew = f.picture(142 / fnew, "#0.##");
        lold = f.picture(142 / fold, "#0.##");
    }
    // A loaded radiator longer than the wave it stands for is refused, and the
    // window goes on with the length it printed last time.
    if (f.chosen("Option1(1)")) {
        if (lold > 144 / fnew) {
            TooLong(f, "PIU' LUNGA 1/2 LAMBDA");
        } else {
            m.lnew = f.picture((fold / fnew) * lold, "#0.##");
        }
    }
    if (f.chosen("Option1(2)")) {
        if (lold > 72 / fnew) {
            TooLong(f, "PIU' LUNGA 1/4 LAMBDA");
        } else {
            m.lnew = f.picture((fold * lold) / fnew, "#0.##");
        }
    }

    f.setCaption("lblnewlunghezza", " LA DIMENSIONE DEL RADIATORE DOVREBBE ESSERE DI mt. : " + f.numberText(m.lnew));
    // Centimetres, held in single precision and rounded to a millimetre through their text.
    const FormValue delta = ReadBackSingle(f, FormValue(ToSingle((m.lnew - lold) * 100)), "##0.#");
    if (delta > 0) f.setCaption("lblridimensiona", " OCCORRE ALLUNGARE di cm. : " + f.numberText(Abs(delta)));
    if (delta == 0) f.setCaption("lblridimensiona", " LA DIMENSIONE E' GIA' CORRETTA ");
    if (delta < 0) f.setCaption("lblridimensiona", " OCCORRE ACCORCIARE di cm. : " + f.numberText(Abs(delta)));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmridimensiona() {
    CalculatorForm f("frmridimensiona", "RIDIMENSIONAMENTO ANTENNA", {1800, 1200, 8400, 6480});

    f.frame("Frame1", {240, 1320, 3240, 1380}, " Tipo di antenna ");
    f.option("Option1(0)", {180, 300, 2880, 285}, "DIPOLO 1/2  LAMBDA").in("Frame1");
    f.option("Option1(1)", {180, 630, 2880, 285}, "DIPOLO CARICATO").in("Frame1");
    f.option("Option1(2)", {180, 960, 2880, 285}, "VERTICALE CARICATA").in("Frame1");

    f.label("Label1", {240, 120, 7800, 1080},
            "A REALIZZAZIONE AVVENUTA DI UN' ANTENNA, DIPOLO O VERTICALE, PUO' ACCADERE, IN FASE DI TARATURA, DI "
            "RILEVARE UNA FREQUENZA DI RISONANZA DIVERSA DA QUELLA DESIDERATA. NOTE LA LUNGHEZZA ATTUALE DEL "
            "RADIATORE, LA FREQUENZA RILEVATA E QUELLA DA OTTENERE, SI CALCOLA DI QUANTO VA ALLUNGATO O "
            "ACCORCIATO IL RADIATORE.");

    f.label("Label2", {3720, 1500, 3000, 480}, "LUNGHEZZA ATTUALE DEL RADIATORE in mt. :");
    f.textBox("txtoldlunghezza", {6840, 1500, 1200, 330});
    f.label("Label3", {240, 2940, 3900, 255}, "FREQUENZA DI RISONANZA RILEVATA in MHz :");
    f.textBox("txtoldf", {4260, 2880, 1200, 330});
    f.label("Label4", {240, 3360, 3900, 255}, "FREQ.  DI RISONANZA DA OTTENERE in MHz :");
    f.textBox("txtnewf", {4260, 3300, 1200, 330});

    f.label("lblnewlunghezza", {240, 3900, 7800, 255}).font(8, true);
    f.label("lblridimensiona", {240, 4260, 7800, 255}).font(8, true);
    f.label("Label5", {240, 4680, 5400, 255}, "separare i decimali con il punto del tastierino numerico");

    f.button("cmdcalcola", {240, 5280, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5280, 1800, 480}, "E S C I");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
