// dBW, dBm and watts, with the volts the power gives on 50 and 75 ohm,
// recomputed at every keystroke. The typed value is held in single precision.
#include "forms/calculation.hpp"

namespace bm::volts {
namespace {

struct Vars {
    FormValue w;  // the typed value, single precision
};

void Option1_Click(FormContext& f, int index) {
    f.setText("txtinput", "");
    if (index == 0) {
        f.setCaption("lblinput", "dBW");
        f.setCaption("lbloutput1", "dBm");
        f.setCaption("lbloutput2", "Watt");
        f.show("Label2");
    }
    if (index == 1) {
        f.setCaption("lblinput", "dBm");
        f.setCaption("lbloutput1", "dBW");
        f.setCaption("lbloutput2", "Watt");
        f.show("Label2");
    }
    if (index == 2) {
        f.setCaption("lblinput", "Watt");
        f.setCaption("lbloutput1", "dBW");
        f.setCaption("lbloutput2", "dBm");
        f.hide("Label2");
    }
}

void ShowResults(FormContext& f, const std::string& t1, const std::string& t2, const std::string& v50,
                 const std::string& v75) {
    f.setCaption("lblout1", t1);
    f.setCaption("lblout2", t2);
    f.setCaption("lbl50", v50);
    f.setCaption("lbl75", v75);
}


void FromDBW(FormContext& f, const FormValue& w) {
    if (w < -30 || w > 50) {
        ErrorMessage(f, "VALORI da:  - 30 a + 50", "txtinput", "MESSAGGIO DI AVVISO");
        return;
    }
    const std::string t1 = f.picture(w + 30, "##0.###");
    const FormValue t2 = f.picture(Power(FormValue::Whole(10), w / 10), "#0.###");
    // The volts come from the printed watts.
    ShowResults(f, t1, t2.text(), f.picture(Sqr(50 * t2), "##0.##"), f.picture(Sqr(75 * t2), "##0.##"));
}

void FromDBm(FormContext& f, const FormValue& w) {
    if (w < -90 || w > 80) {
        ErrorMessage(f, "VALORI DA: - 90 a + 80", "txtinput", "MESSAGGIO DI AVVISO");
        return;
    }
    const FormValue t1 = f.picture(w - 30, "##0.##");
    FormValue p = Power(FormValue::Whole(10), t1 / 10);
    // Below a microwatt the power is told in microwatts and the volts in millivolts.
    if (p < 0.000001) {
        p = p * Power(FormValue::Whole(10), 6);
        f.setCaption("lbloutput2", "microWatt");
        f.setCaption("Label5", "milliVolt su 50 ohm");
        f.setCaption("Label6", "milliVolt su 75 ohm");
    } else {
        f.setCaption("lbloutput2", "Watt");
        f.setCaption("Label5", "Volt su   50 ohm");
        f.setCaption("Label6", "Volt su   75 ohm");
    }
    const FormValue t2 = f.picture(p, "##,##0.######");
    ShowResults(f, t1.text(), t2.text(), f.picture(Sqr(50 * t2), "##0.#####"), f.picture(Sqr(75 * t2), "##0.#####"));
}

void FromWatt(FormContext& f, FormValue& w) {
    if (w == 0) {
        w = FormValue(0.0001f);
        ShowResults(f, "", "", "", "");
        return;
    }
    if (w < 0) {
        ErrorMessage(f, "NON ESISTONO WATT NEGATIVI", "txtinput", "MESSAGGIO DI ERRORE");
        return;
    }
    if (w > 100000) {
        ErrorMessage(f, "VALORE ECCESSIVO", "txtinput", "MESSAGGIO DI AVVISO");
        return;
    }
    const FormValue t1 = f.picture(Log10(w) * 10, "##0.##");
    const std::string t2 = f.picture(FormValue(f.textValue(t1.text())) + 30, "##0.##");
    // The volts come from the typed watts, multiplied in single precision.
    ShowResults(f, t1.text(), t2, f.picture(Sqr(w * 50), "##0.##"), f.picture(Sqr(w * 75), "##0.##"));
}

void txtinput_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.w = FormValue(ToSingle(FormValue(f.read("txtinput"))));
    if (f.chosen("Option1(0)")) FromDBW(f, m.w);
    if (f.chosen("Option1(1)")) FromDBm(f, m.w);
    if (f.chosen("Option1(2)")) FromWatt(f, m.w);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmdBW() {
    CalculatorForm f("frmdBW", "Conversioni dBWatt - dBmilliWatt in Watt", {2700, 1800, 6900, 4380});

    f.label("Label1", {240, 90, 6300, 480},
            "Il dBWatt (dBW) e il dBmilliwatt (dBm) sono unità di misura di un guadagno o di una attenuazione");

    f.frame("Frame1", {240, 720, 2520, 1320}, " Opzioni ");
    f.option("Option1(0)", {150, 300, 2250, 285}, "Da dBW a Watt").in("Frame1");
    f.option("Option1(1)", {150, 630, 2250, 285}, "Da dBm a Watt").in("Frame1");
    f.option("Option1(2)", {150, 960, 2250, 285}, "Da Watt a dBW").in("Frame1");
    f.label("Label2", {3000, 840, 3540, 255}, "calcolabili da da 1 picoWatt a 100 KiloWatt");

    f.label("lblinput", {3000, 1440, 1080, 255});
    f.textBox("txtinput", {4140, 1380, 1560, 330}).tip("inserisci il valore selezionato");

    f.label("lbloutput1", {240, 2280, 1320, 255});
    f.label("lblout1", {1680, 2280, 1800, 255}).font(8, true);
    f.label("lbloutput2", {240, 2640, 1320, 255});
    f.label("lblout2", {1680, 2640, 1800, 255}).font(8, true);
    f.label("Label5", {3600, 2280, 1740, 255}, "VOLT SU   50  OHM");
    f.label("lbl50", {5400, 2280, 1140, 255}).font(8, true);
    f.label("Label6", {3600, 2640, 1740, 255}, "VOLT SU    75  OHM");
    f.label("lbl75", {5400, 2640, 1140, 255}).font(8, true);

    f.button("cmdesci", {240, 3300, 1800, 480}, "E S C I");
    f.label("lblqqx", {5340, 3420, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtinput", txtinput_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::volts
