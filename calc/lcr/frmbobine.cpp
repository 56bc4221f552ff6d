// Single-layer air coils: turns from inductance, or inductance from turns, and
// the length of wire. The window every coil hand-off opens.
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void Option1_Click(FormContext& f, int index) {
    f.hide("lbloutput");
    f.hide("lbllunghezzafilo");
    if (index == 0) f.setCaption("lblinput", "induttanza in uH :");
    if (index == 1) f.setCaption("lblinput", "numero di spire :");
}

void cmdcalcola_Click(FormContext& f) {
    // Every value is local to the click.
    const FormValue d = f.read("txtdiametro");
    const FormValue s = f.read("txtlunghezza");
    const FormValue x = f.read("txtinput");
    const FormValue product = (x * d) * s;
    if (product == 0) {
        f.ShowMessage("MANCANO DATI", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtinput");
    } else if (product > 0) {
        // 1010 and 0.45 work on millimetres; 3.14 stands for pi.
        if (f.chosen("Option1(0)")) {
            // The turns are rounded to a tenth, and the wire comes from the rounded figure.
            const FormValue turns = f.picture(Sqr(((x * 1010) * ((s / d) + 0.45)) / d), "#,##0.#");
            f.setCaption("lbloutput", "numero di spire  :   " + turns.text() + " in aria");
            f.setCaption("lbllunghezzafilo",
                         "lunghezza del filo: " + f.numberText(FloorValue(((d / 10) * 3.14) * turns)) + " cm.");
        } else {
            const FormValue l = ToSingle((Power(x, 2) * d) / (1010 * ((s / d) + 0.45)));
            const FormValue rounded = ReadBackFixedSingle(f, l, 2);
            f.setCaption("lbloutput", "microHenry :   " + f.numberText(rounded));
            f.setCaption("lbllunghezzafilo",
                         "lunghezza del filo : " + f.numberText(FloorValue(((d / 10) * 3.14) * x)) + " cm.");
        }
    }
    // Shown also after a stopped gate: then they show what they held.
    f.show("lbloutput");
    f.show("lbllunghezzafilo");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmbobine() {
    CalculatorForm f("frmbobine", "CALCOLO BOBINE MONOSTRATO IN ARIA PER STADI NON DI POTENZA", {2400, 1500, 7200, 6150});

    f.frame("Frame1", {240, 120, 3360, 1080}, "Opzioni");
    f.option("Option1(0)", {150, 300, 3090, 285}, "Trovare il numero delle spire").in("Frame1");
    f.option("Option1(1)", {150, 660, 3090, 285}, "Trovare il valore dell'Induttanza").in("Frame1");
    f.label("Label3", {3840, 240, 3000, 720},
            "La lunghezza della bobina deve essere compatibile con la sezione del conduttore");

    f.label("lblinput", {240, 1440, 3480, 255});
    f.textBox("txtinput", {3840, 1380, 1560, 330});
    f.label("lbldiametro", {240, 1860, 3480, 255}, "diametro interno in millimetri").tip("calcolato al centro spira");
    f.textBox("txtdiametro", {3840, 1800, 1560, 330}).tip("diametro del supporto");
    f.label("lbllunghezza", {240, 2280, 3480, 255}, "lunghezza bobina  in millimetri");
    f.textBox("txtlunghezza", {3840, 2220, 1560, 330}).tip("digitare un dato compatibile con la sezione del filo");

    f.label("lbloutput", {240, 2760, 6600, 255}).font(8, true);
    f.label("lbllunghezzafilo", {240, 3060, 6600, 255}).font(8, true);

    f.label("Label1", {240, 3480, 6600, 840},
            "Le bobine si intendono monostrato senza schermo e senza nucleo. Il massimo Q si ottiene con un "
            "rapporto L/D circa = 2. I valori ottenuti sono teorici e si discosteranno sempre di più da quelli "
            "reali con l'aumentare della frequenza, in particolare oltre i 30/40 MHz.");
    f.label("Label2", {240, 4380, 6600, 480},
            "La formula adottata è quella proposta dal \"The Bench Operator's Hand Book TFL\" ed è indipendente "
            "dal diametro del conduttore");

    f.button("cmdcalcola", {240, 5040, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5040, 1800, 480}, "ESCI");
    f.label("Label4", {5640, 5160, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
