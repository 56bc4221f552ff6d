// The antenna's impedance from the standing wave ratio on a 52 ohm line, high
// or low, and the share of the power reflected and radiated.
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue s = f.read("txtros");
    if (s <= 0) {
        f.ShowMessage("INSERISCI DATO", 48, "MESSAGGGIO DI ERRORE");
        f.setFocus("txtros");
        return;
    }
    // The line is taken at 52 ohm, whatever the teaching text says of 50.
    const std::string high = f.picture(52 * s, "#0.#");
    const std::string low = f.picture(52 / s, "#0.#");
    const FormValue rho = (s - 1) / (s + 1);
    const FormValue reflected = ReadBackSingle(f, 100 * rho * rho, "#0.#");
    // 100 less a single stays a single.
    const std::string radiated = f.picture(100 - reflected, "#,##0.##");
    f.setCaption("lblimpedenza", "Impedenza dell'antenna = : " + high + " o " + low + " ohm");
    f.setCaption("lblwattriflessi", "Percentuale dell'energia riflessa = : " + f.numberText(reflected) + " %");
    f.setCaption("lblwattirradiati", "Percentuale dell'energia irradiata = : " + radiated + " %");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmros() {
    CalculatorForm f("frmros", "IMPEDENZA DELL'ANTENNA IN RAPPORTO AL ROS", {1800, 1500, 7800, 4980});

    f.label("Label1", {240, 120, 7200, 960},
            "Noto il rapporto di onde stazionarie e supponendo che le impedenze del TX e del cavo siano = 50 Ohm, "
            "si determina l'impedenza dell'antenna (che può essere più alta o più bassa di 50 ohm) e l'energia "
            "riflessa e irradiata.");
    f.label("Label2", {240, 1320, 3240, 255}, "RAPPORTO DI ONDE STAZIONARIE");
    f.textBox("txtros", {3600, 1260, 1200, 330}).tip("inserisci il ROS");
    f.label("lblimpedenza", {240, 1860, 7200, 255}).font(8, true);
    f.label("lblwattriflessi", {240, 2220, 7200, 255}).font(8, true);
    f.label("lblwattirradiati", {240, 2580, 7200, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3300, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3300, 1800, 480}, "E S C I");
    f.label("Label4", {6240, 3420, 1200, 255}, "Z9QQX");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
