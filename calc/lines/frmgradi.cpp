// Metres to electrical degrees and back, at a frequency, with the radians.
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

void Option1_Click(FormContext& f, int index) {
    if (index == 0) f.setCaption("lblinput", "LUNGHEZZA IN METRI");
    if (index == 1) f.setCaption("lblinput", "GRADI");
}

void cmdcalcola_Click(FormContext& f) {
    FormValue x = f.read("txtinput");
    const FormValue freq = f.read("txtfrequenza");
    if (MissingDataSilentNegative(f, x * freq, "txtinput")) return;

    FormValue radians;
    if (f.chosen("Option1(0)")) {
        if (x > 300 / freq) {
            f.ShowMessage("I METRI ECCEDONO LA LUNGHEZZA D'ONDA", 48, "MESSAGGIO DI ERRORE");
            f.setFocus("txtinput");
            return;
        }
        const FormValue degrees = f.fixed(1.2 * x * freq, 1);
        f.setCaption("lbloutput", "CORRISPONDE A GRADI  :  " + degrees.text());
        // The radians come from the degrees as printed.
        radians = ToSingle((degrees * 3.14159) / 180);
    } else {
        // More than a full turn is cut to 360 without a word; the box shows it.
        if (x > 360) {
            x = FormValue::Whole(360);
            f.setText("txtinput", "360");
        }
        f.setCaption("lbloutput", "CORRISPONDE A METRI  :  " + f.fixed(x / (1.2 * freq), 2));
        radians = ToSingle((x * 3.14159) / 180);
    }
    radians = ReadBackFixedSingle(f, radians, 2);
    f.setCaption("lblradianti", "CORRISPONDE A RADIANTI : " + f.numberText(radians));
}

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmgradi() {
    CalculatorForm f("frmgradi", "Conversione metri e gradi elettrici", {2100, 1500, 7500, 5160});

    f.frame("Frame1", {240, 960, 3000, 1080}, "Conversione");
    f.option("Option1(0)", {180, 300, 2640, 285}, "da metri a gradi").in("Frame1");
    f.option("Option1(1)", {180, 660, 2640, 285}, "da gradi a metri").in("Frame1");

    f.label("Label1", {240, 120, 6900, 720},
            "In fase di dimensionamento di una antenna accorciata, per mantenere una resa soddisfacente,  non è "
            "consigliabile scendere al di sotto di 60 gradi elettrici.");
    f.label("lblinput", {3480, 1140, 2040, 255});
    f.textBox("txtinput", {5580, 1080, 1200, 330});
    f.label("lblfrequenza", {3480, 1620, 2040, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {5580, 1560, 1200, 330});

    f.label("lbloutput", {240, 2400, 6900, 255}).font(8, true);
    f.label("lblradianti", {240, 2760, 6900, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3540, 1800, 480}, "CALCOLA");
    f.button("cmdchiudi", {2280, 3540, 1800, 480}, "C H I U D I");
    f.label("Label4", {5940, 3660, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::lines
