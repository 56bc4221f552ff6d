// Microvolts and dB microvolt on a 75 ohm load, both ways, recomputed at every
// keystroke.
#include "forms/calculation.hpp"

namespace bm::volts {
namespace {

// Two decimals, read back and held in single precision before printing.
void ShowResult(FormContext& f, const FormValue& value) {
    f.setNumber("lblout", ReadBackSingle(f, value, "#,##0.##"));
}

void Option1_Click(FormContext& f, int index) {
    f.setText("txtin", "");
    if (index == 0) {
        f.setCaption("lblinput", "DIGITARE I microvolt");
        f.setCaption("lbloutput", "CORRISPONDE A dBmicrovolt : ");
    }
    if (index == 1) {
        f.setCaption("lblinput", "DIGITARE I dBmicrovolt");
        f.setCaption("lbloutput", "CORRISPONDE A microvolt");
    }
}

void txtin_Change(FormContext& f) {
    FormValue m = f.read("txtin");
    if (f.chosen("Option1(0)")) {
        // No logarithm of nothing or of a negative: both count as 1 microvolt.
        if (m == 0) m = FormValue::Whole(1);
        if (m < 0) {
            f.ShowMessage("NON ESISTONO VALORI NEGATIVI", 48, "MESSAGGIO DI ERRORE");
            f.setFocus("txtin");
            m = FormValue::Whole(1);
        }
        ShowResult(f, Log10(m) * 20);
    }
    if (f.chosen("Option1(1)")) {
        if (m > 120 || m < 0) {
            f.ShowMessage("dBmicroV max = 120", 48, "MESSAGGIO DI ERRORE");
            f.setFocus("txtin");
        } else {
            ShowResult(f, Power(FormValue::Whole(10), m / 20));
        }
    }
    f.show("lbloutput");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmdBmicrovolt() {
    CalculatorForm f("frmdBmicrovolt", "dBmicrovolt RIFERITO AD IMPEDENZE DI 75 Ohm", {2700, 2100, 6600, 4260});

    f.label("Label1", {240, 90, 6000, 690},
            "Il dB microvolt E' UNA UNITA' DI MISURA, USATA IN CAMPO TELEVISIVO, CHE ESPRIME IL GUADAGNO O L' "
            "ATTENUAZIONE IN TENSIONE SU DI UN CARICO DA 75 OHM.");

    f.frame("Frame1", {240, 900, 3120, 1020}, " Opzioni di calcolo  ");
    f.option("Option1(0)", {150, 300, 2850, 285}, "da microvolt a dBmicrovolt").in("Frame1");
    f.option("Option1(1)", {150, 630, 2850, 285}, "da dBmicroV a microvolt").in("Frame1");
    f.label("Label2", {3600, 1140, 2640, 480}, "usare il punto del tastierino numerico per i decimali");

    f.label("lblinput", {240, 2220, 2520, 255});
    f.textBox("txtin", {2880, 2160, 1560, 330});
    f.label("lbloutput", {240, 2640, 2520, 255}).hidden();
    f.label("lblout", {2880, 2640, 1560, 255}).font(8, true);

    f.button("cmdesci", {240, 3180, 1800, 480}, "E S C I");
    f.label("lblqqx", {5040, 3300, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtin", txtin_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::volts
