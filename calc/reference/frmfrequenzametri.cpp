// Frequency to wavelength and back, recomputed at every keystroke: the same
// 300 / x serves both ways.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    FormValue y;  // the result, a double field, read back from three decimals
};

// Emptying the box runs its Change, which hides the result again and sends
// the focus back to the box; the new caption comes last.
void Option1_Click(FormContext& f, int index) {
    f.hide("lblout");
    f.setText("txtinput", "");
    if (index == 0) f.setCaption("lblinput", "FREQUENZA in MHz:");
    if (index == 1) f.setCaption("lblinput", "METRI : ");
}

void txtinput_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtinput");
    if (x <= 0) {
        f.setFocus("txtinput");
        f.hide("lblout");
        return;
    }
    m.y = 300 / x;
    m.y = ReadBackFixed(f, m.y, 3);
    const char* lead = f.chosen("Option1(0)") ? " CORRISPONDENTE A METRI : " : " CORRISPONDENTI A MHz : ";
    f.setCaption("lblout", lead + f.numberText(m.y));
    f.show("lblout");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmfrequenzametri() {
    CalculatorForm f("frmfrequenzametri", "RELAZIONI TRA  FREQUENZA E LUNGHEZZA D'ONDA", {3000, 2400, 6420, 3900});
    const std::string tip = "USA IL PUNTO PER SEPARARE I DECIMALI";

    f.frame("Frame1", {240, 120, 3360, 1080}, " Opzioni ");
    f.option("Option1(0)", {180, 300, 3000, 285}, "DA FREQUENZA A METRI").in("Frame1");
    f.option("Option1(1)", {180, 660, 3000, 285}, "DA METRI A FREQUENZA").in("Frame1");
    f.label("Label3", {3840, 360, 2280, 480}, "PER SEPARARE I DECIMALI USARE IL PUNTO");
    f.label("Label4", {3840, 900, 1200, 255}, "Z9QQX");

    f.label("lblinput", {240, 1500, 1920, 255}).tip(tip);
    f.textBox("txtinput", {2280, 1440, 1560, 330}).tip(tip);
    f.label("lblout", {240, 2040, 5880, 255}).font(8, true).hidden();

    f.button("cmdesci", {240, 2700, 1800, 480}, "E S C I");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtinput", txtinput_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
