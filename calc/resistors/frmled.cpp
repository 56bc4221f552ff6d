// The series resistor of a LED at 10 mA, recomputed as the supply voltage is
// typed. The colour of the LED sets its working voltage.
#include <array>

#include "calc/resistors/droppers.hpp"
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue vd;  // the LED's voltage
    FormValue v;   // the supply
};

struct Led {
    FormValue vd;
    const char* told;
};

const std::array<Led, 6> kLeds = {{
    {1.8, "LA TENSIONE DA APPLICARE AI DIODI ROSSI E' 1,8 VOLT."},
    {FormValue::Whole(2), "LA TENSIONE DA APPLICARE AI DIODI VERDI E' 2 VOLT."},
    {1.9, "LA TENSIONE DA APPLICARE AI DIODI GIALLI E' 1,9 VOLT."},
    {FormValue::Whole(2), "LA TENSIONE DA APPLICARE AI DIODI ARANCIO E' 2 VOLT."},
    {FormValue::Whole(3), "LA TENSIONE DA APPLICARE AI DIODI BLU E' 3 VOLT."},
    {FormValue::Whole(3), "LA TENSIONE DA APPLICARE AI DIODI BIANCHI E' 3 VOLT."},
}};

// A new colour empties the supply, through its Change.
void Option1_Click(FormContext& f, int index) {
    f.setText("txttensione", "");
    const Led& led = kLeds.at(static_cast<std::size_t>(index));
    f.values<Vars>().vd = led.vd;
    f.setCaption("lblled", led.told);
}

void txttensione_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    if (f.text("txttensione").empty()) {
        m.v = FormValue::Whole(1);
        f.hide("lblohm");
        f.hide("lbltensione");
        return;
    }
    m.v = f.read("txttensione");
    if (m.v > 100000) m.v = FormValue::Whole(100000);
    f.setCaption("lbltensione", f.numberText(m.v) + " V.");
    // No check: a supply below the LED's voltage gives a negative resistor.
    const FormValue r = ReadBackSingle(f, (m.v - m.vd) / 0.01, "#0.##");
    f.setCaption("lblohm", "ohm " + f.numberText(r));
    f.show("lbltensione");
    f.show("lblohm");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmled() {
    CalculatorForm f("frmled", "ALIMENTAZIONE DIODI LED", {1800, 1200, 8520, 6330});
    f.label("Label1", {240, 120, 7920, 480},
            "CALCOLO  DEL VALORE DELLA RESISTENZA LIMITATRICE DA PORRE  IN  SERIE ALLA TENSIONE DI "
            "ALIMENTAZIONE   -   UTILIZZARE IL VALORE STANDARD PIU' PROSSIMO")
        .font(8, true);

    f.frame("Frame1", {240, 780, 2520, 2460}, " Seleziona il tipo di led ");
    const char* colours[] = {"LED ROSSO", "LED VERDE", "LED GIALLO", "LED ARANCIO", "LED BLU", "LED BIANCO"};
    for (int i = 0; i < 6; ++i)
        f.option(Indexed("Option1", i), {240, 300 + i * 360, 2040, 300}, colours[i]).in("Frame1");

    const int left = 3480, top = 1440;
    DrawDropper(f, left, top, Diode::Led);
    f.label("lbltensione", {left + 150, top + kDropperGap / 2 - 127, 1440, 255});
    f.label("lblohm", {left + kDropperResistor - 900, top - 420, 1800, 255}, "?").aligned(Align::Center);

    f.label("Label2", {240, 3540, 3600, 255}, "TENSIONE DI ALIMENTAZIONE IN VOLT ? :");
    f.textBox("txttensione", {3960, 3480, 1440, 330}).tip("Inserire il valore della tensione");
    f.label("lblled", {240, 4020, 7920, 255}).font(8, true);
    f.label("Label3", {240, 4440, 7920, 480},
            "Naturalmente la tensione di alimentazione deve essere uguale o superore alla tensione di "
            "funzionamento del diodo Led");

    f.button("cmdesci", {240, 5160, 1800, 480}, "E S C I");
    f.label("Label4", {6720, 5280, 1440, 255}, "Z9QQX").aligned(Align::Right);

    f.onClick("Option1", Option1_Click);
    f.onChange("txttensione", txttensione_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
