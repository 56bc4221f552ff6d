// Capacitance and inductance per metre of one aerial wire, the earth being the
// other conductor.
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, h;  // wire diameter in mm, height in m (then mm)
    FormValue l;     // uH per metre, read back from its one-decimal text
};

void BlankResults(FormContext& f) {
    f.setCaption("lblcap", "");
    f.setCaption("lblind", "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.h = f.read("txth");
    if (m.d * m.h <= 0) {
        ErrorMessage(f, "DATI MANCANTI O NEGATIVI", "txtd");
        return;
    }
    m.h = m.h * 1000;
    const std::string c = f.picture((0.0242 / Log10(4 * m.h / m.d)) * 1000, "#,##0.#");
    m.l = ReadBack(f, (Log10(4 * m.h / m.d) * 9.21 + 1) / 10, "#,##0.#");
    f.setCaption("lblcap", "LA CAPACITA' DELLA LINEA E'  " + c + " pF PER METRO");
    f.setCaption("lblind", "L'INDUTTANZA DELLA LINEA E'  " + f.numberText(m.l) + " uH PER METRO");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmlineaunifilare() {
    CalculatorForm f("frmlineaunifilare", "CAPACITA' E INDUTTANZA DI UNA LINEA AEREA UNIFILARE",
                     {2160, 1800, 7680, 3900});
    f.label("Label3", {240, 180, 7080, 255}, "NELL'IPOTESI CHE L'ALTRO CONDUTTORE SIA COSTITUITO DALLA TERRA")
        .aligned(Align::Center);
    f.label("Label1", {240, 765, 5160, 255}, "DIAMETRO DEL FILO IN MILLIMETRI");
    f.textBox("txtd", {5520, 720, 1560, 330});
    f.label("Label2", {240, 1185, 5160, 255}, "ALTEZZA DAL SUOLO IN METRI");
    f.textBox("txth", {5520, 1140, 1560, 330});
    f.label("lblcap", {240, 1740, 7080, 285}).font(9, true);
    f.label("lblind", {240, 2100, 7080, 285}).font(9, true);
    f.button("cmdcalcola", {240, 2700, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2700, 1800, 480}, "E S C I");

    f.onChange("txtd", BlankResults);
    f.onChange("txth", BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
