// Effective, peak, peak-to-peak and mean volts of a sine, triangle or square wave.
#include <string>

#include "forms/calculation.hpp"

namespace bm::volts {
namespace {

struct Vars {
    FormValue k1;    // peak from effective
    FormValue k2;    // effective from peak
    FormValue k3;    // peak-to-peak from effective
    FormValue k4;    // mean from peak
    FormValue v;     // the typed voltage
    FormValue peak;  // the peak the mean is taken from
};

void HideResults(FormContext& f) {
    f.hide("lblout1");
    f.hide("lblout2");
    f.hide("lblout3");
}

void Option1_Click(FormContext& f, int index) {
    HideResults(f);
    f.setText("txtinput", "");
    f.setCaption("lblinput", f.text("Option1(" + std::to_string(index) + ")"));
}

void Option2_Click(FormContext& f, int) {
    HideResults(f);
    f.setText("txtinput", "");
}

void txtinput_Change(FormContext& f) { HideResults(f); }

void WaveConstants(FormContext& f, Vars& m) {
    if (f.chosen("Option2(0)")) {  // sine: the mean factor is held in single precision
        m.k1 = 1.414;
        m.k2 = 0.707;
        m.k3 = 2.828;
        m.k4 = FormValue(0.637f);
    }
    if (f.chosen("Option2(1)")) {  // triangle
        m.k1 = 1.732;
        m.k2 = 0.577;
        m.k3 = 3.464;
        m.k4 = 0.5;
    }
    if (f.chosen("Option2(2)")) {  // square
        m.k1 = FormValue::Whole(1);
        m.k2 = FormValue::Whole(1);
        m.k3 = FormValue::Whole(2);
        m.k4 = FormValue::Whole(1);
    }
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    WaveConstants(f, m);
    m.v = f.read("txtinput");
    if (m.v.number() <= 0) {
        f.ShowMessage("INSERISCI UN DATO", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtinput");
    } else {
        const std::string known = f.text("lblinput");
        if (known == "VOLT EFFICACI") {
            // Peak-to-peak comes from the rounded peak, read back.
            m.peak = f.fixed(m.v * m.k1, 2);
            const std::string pp = f.fixed(m.peak * 2, 2);
            f.setCaption("lblout1", "VOLT di picco : " + m.peak.text());
            f.setCaption("lblout2", "VOLT picco picco : " + pp);
        } else if (known == "VOLT DI PICCO") {
            const std::string eff = f.fixed(m.v * m.k2, 2);
            const std::string pp = f.fixed(2 * m.v, 2);
            f.setCaption("lblout1", "VOLT efficaci : " + eff);
            f.setCaption("lblout2", "VOLT picco picco : " + pp);
            m.peak = m.v;
        } else if (known == "VOLT PICCO PICCO") {
            const std::string eff = f.fixed(m.v / m.k3, 2);
            m.peak = f.fixed(m.v / 2, 2);
            f.setCaption("lblout1", "VOLT efficaci : " + eff);
            f.setCaption("lblout2", "VOLT di picco : " + m.peak.text());
        }
        // A rounded peak is read back here, so the mean inherits its rounding.
        f.setCaption("lblout3", "VOLT VALORE MEDIO : " + f.fixed(m.peak * m.k4, 2));
    }
    // Shown also after the message: then they hold whatever they held before.
    f.show("lblout1");
    f.show("lblout2");
    f.show("lblout3");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmvolt() {
    CalculatorForm f("frmvolt", "VOLT EFFETTIVI - VOLT DI PICCO - VOLT PICCO PICCO", {2400, 1800, 6720, 4920});

    f.frame("Frame1", {240, 240, 2880, 1560}, "Dato conosciuto");
    f.option("Option1(0)", {240, 360, 2520, 300}, "VOLT EFFICACI").in("Frame1");
    f.option("Option1(1)", {240, 720, 2520, 300}, "VOLT DI PICCO").in("Frame1");
    f.option("Option1(2)", {240, 1080, 2520, 300}, "VOLT PICCO PICCO").in("Frame1");

    f.frame("Frame2", {3480, 240, 2880, 1560}, " ONDE ");
    f.option("Option2(0)", {240, 360, 2520, 300}, "SINUSOIDALI").in("Frame2").choose();
    f.option("Option2(1)", {240, 720, 2520, 300}, "TRIANGOLARI").in("Frame2");
    f.option("Option2(2)", {240, 1080, 2520, 300}, "QUADRE").in("Frame2");

    f.label("lblinput", {240, 2100, 2880, 300});
    f.textBox("txtinput", {3480, 2040, 2880, 360}).tip("inserisci il voltaggio");

    f.label("lblout1", {240, 2640, 6120, 300});
    f.label("lblout2", {240, 3000, 6120, 300});
    f.label("lblout3", {240, 3360, 6120, 300});

    f.button("cmdcalcola", {240, 3840, 1920, 480}, "CALCOLA");
    f.button("cmdesci", {2400, 3840, 1920, 480}, "E S C I");
    f.label("Label4", {5160, 3960, 1200, 300}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("Option2", Option2_Click);
    f.onChange("txtinput", txtinput_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::volts
