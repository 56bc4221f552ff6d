// Inches to centimetres and back on a click, with the length in feet; a
// button opens the further conversions beside this window.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    float piedi = 0;  // the feet, a single-precision field
};

constexpr const char* kMeasure = "#,##0.###";

// The two options are not one array but share their frame, so choosing one
// clears the other.
void Option1_Click(FormContext& f) {
    f.setChosen("Option2", false);
    f.hide("lbloutput");
    f.setCaption("lblinput", "misura in pollici");
}

void Option2_Click(FormContext& f) {
    f.setChosen("Option1", false);
    f.hide("lbloutput");
    f.setCaption("lblinput", "misura in cm.");
}

// A missing figure warns and the conversion still runs, with 0.
void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    f.show("lbloutput");
    const FormValue x = f.read("txtinput");
    if (x == 0) {
        f.ShowMessage("INSERISCI MISURA", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtinput");
    }
    if (f.chosen("Option1")) {
        // The feet come from the centimetres as printed.
        const std::string t = f.picture(x * 2.54, kMeasure);
        m.piedi = ToSingle(FormValue(f.textValue(t)) * 0.03281);
        f.setCaption("lbloutput", "misura in cm. : " + t);
    } else {
        const std::string t = f.picture(x * 0.3937007, kMeasure);
        m.piedi = ToSingle(x * 0.03281);
        f.setCaption("lbloutput", "misura in pollici : " + t);
    }
    m.piedi = ReadBackSingle(f, FormValue(m.piedi), "#,##0.##").single();
    f.setCaption("lblpiedi", "corrisponde a piedi : " + f.numberText(FormValue(m.piedi)));
}

// This window steps aside to the top left and the other opens to its right.
void cmdaltreconversioni_Click(FormContext& f) {
    f.moveWindow(200, 800);
    f.OpenForm("frmaltreconversioni", OpenModeless);
    f.moveWindow("frmaltreconversioni", 5100, 3500);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmmisureinglesi() {
    CalculatorForm f("frmmisureinglesi", "Conversione misure inglesi", {3000, 2100, 5040, 4920});

    f.frame("fraconversione", {120, 120, 2400, 1020}, "Conversione misure").tip("effettua una scelta");
    f.option("Option1", {120, 300, 2160, 285}, "da pollici a cm. ").in("fraconversione");
    f.option("Option2", {120, 630, 2160, 285}, "da cm. a pollici ").in("fraconversione");
    f.label("lblinput", {2760, 240, 2040, 255});
    f.textBox("txtinput", {2760, 600, 2040, 330}).tip("inserisci misura da convertire");

    f.label("lbloutput", {120, 1320, 4680, 255}).font(8, true).hidden();
    f.label("lblpiedi", {120, 1680, 4680, 255}).font(8, true);

    f.button("cmdcalcola", {120, 2100, 1320, 420}, "CONVERTI");
    f.button("cmdaltreconversioni", {1560, 2100, 1920, 420}, "Altre conversioni");
    f.button("cmdesci", {3600, 2100, 1200, 420}, "CHIUDI");

    f.frame("Frame1", {120, 2700, 4680, 1320}, "Frazioni inglesi ordinarie").tip("frazioni di uso comune");
    f.label("Label1", {120, 240, 1200, 255}, "In pollice").in("Frame1");
    f.label("Label3", {120, 480, 4440, 255}, "1/16  1/8  1/4  3/8  1/2  5/8  3/4").in("Frame1").noWrap();
    f.label("Label2", {120, 780, 1200, 255}, "in mm").in("Frame1");
    f.label("Label4", {120, 1020, 4440, 255}, "1.587  3.175  6.350  9.525 12.70  15.875 19.050").in("Frame1").noWrap();
    f.label("Label6", {120, 4140, 3360, 255}, "1 PIEDE = 12 POLLICI = 30,48 cm");
    f.label("Label5", {3720, 4140, 1080, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("Option2", Option2_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdaltreconversioni", cmdaltreconversioni_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
