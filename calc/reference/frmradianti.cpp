// Degrees to radians and back, recomputed at every keystroke, so a value out
// of range warns on the keystroke that takes it out.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    FormValue y;
};

// The result is hidden first; emptying the box then runs its Change under the
// new option, which computes 0 and shows the result line again.
void Option1_Click(FormContext& f, int index) {
    f.hide("lblout");
    f.setText("txtinput", "");
    if (index == 0) f.setCaption("lblinput", "GRADI : ");
    if (index == 1) f.setCaption("lblinput", "RADIANTI : ");
}

void OutOfRange(FormContext& f, const char* text) {
    f.ShowMessage(text, 48, "MESSAGGIO DI AVVISO");
    f.setFocus("txtinput");
}

// After a message the line comes back with the text it had.
void txtinput_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtinput");
    if (f.chosen("Option1(0)")) {
        if (x < 0 || x > 180) {
            OutOfRange(f, "GRADI DA :  0 a  180");
        } else {
            m.y = (x * 3.14159) / 180;
            m.y = ReadBackFixed(f, m.y, 4);
            f.setCaption("lblout", " CORRISPONDENTI A RADIANTI : " + f.numberText(m.y));
        }
    }
    if (f.chosen("Option1(1)")) {
        // The limit is 3.14159; the message rounds it otherwise.
        if (x < 0 || x > 3.14159) {
            OutOfRange(f, "RADIANTI DA :  0 a  3,1415");
        } else {
            m.y = (x * 180) / 3.14159;
            m.y = ReadBack(f, m.y, "#0.###");
            f.setCaption("lblout", " CORRISPONDENTI A GRADI : " + f.numberText(m.y));
        }
    }
    f.show("lblout");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmradianti() {
    CalculatorForm f("frmradianti", "TRASFORMAZIONE DA GRADI IN RADIANTI E DA RADIANTI A GRADI", {2700, 2100, 6900, 4980});
    const std::string tip = "USA IL PUNTO PER SEPARARE I DECIMALI";

    f.label("Label1", {240, 120, 6300, 480},
            "NEL CALCOLO DELLE ANTENNE E'  SPESSO NECESSARIO EFFETTUARE LA TRASFORMAZIONE DA GRADI IN RADIANTI E "
            "VICEVERSA");
    f.label("Label2", {240, 720, 6300, 255}, "DA 0 A 180 GRADI   E  DA 0 A 3,14159 RADIANTI").font(8, true);

    f.frame("Frame1", {240, 1140, 3360, 1080}, " Opzioni ");
    f.option("Option1(0)", {180, 300, 3000, 285}, "DA GRADI A RADIANTI").in("Frame1");
    f.option("Option1(1)", {180, 660, 3000, 285}, "DA RADIANTI A GRADI").in("Frame1");
    f.label("Label3", {3840, 1380, 2700, 480}, "PER SEPARARE I DECIMALI USARE IL PUNTO");
    f.label("Label4", {3840, 1920, 1200, 255}, "Z9QQX");

    f.label("lblinput", {240, 2580, 1920, 255}).tip(tip);
    f.textBox("txtinput", {2280, 2520, 1560, 330}).tip(tip);
    f.label("lblout", {240, 3060, 6300, 255}).font(8, true).hidden();

    f.button("cmdesci", {240, 3660, 1800, 480}, "E S C I");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtinput", txtinput_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
