// Capacitance of a vertical wire whose lower end stands close to the earth,
// read back from its two-decimal text.
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, l;  // wire diameter in mm, length in m (then mm)
    FormValue c;     // pF
};

void txt_Change(FormContext& f) { f.setCaption("lblc", ""); }

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.l = f.read("txtl") * 1000;
    if (MissingData(f, m.d * m.l, "txtd")) return;
    m.c = (12.1 / Log10((2 * m.l) / (m.d * 1.732051))) * m.l / 1000;
    m.c = ReadBack(f, m.c, "##0.##");
    f.setCaption("lblc", "LA CAPACITA' DEL CONDUTTORE E'  " + f.numberText(m.c) + " pF");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmfiloverticale() {
    CalculatorForm f("frmfiloverticale", "CAPACITA' DI UN CONDUTTORE VERTICALE", {2160, 1800, 7680, 3720});
    f.label("Label3", {240, 180, 7080, 480},
            "QUANDO LA DISTANZA DALLA TERRA DELL'ESTREMO INFERIORE E'  PICCOLA IN PROPORZIONE ALLA LUNGHEZZA "
            "DEL CONDUTTORE  ")
        .aligned(Align::Center);
    f.label("Label1", {240, 945, 5160, 255}, "DIAMETRO DEL FILO IN MILLIMETRI");
    f.textBox("txtd", {5520, 900, 1560, 330});
    f.label("Label2", {240, 1365, 5160, 255}, "LUNGHEZZA DEL CONDUTTORE IN METRI");
    f.textBox("txtl", {5520, 1320, 1560, 330});
    f.label("lblc", {240, 1920, 7080, 285}).font(9, true);
    f.button("cmdcalcola", {240, 2520, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2520, 1800, 480}, "E S C I");
    f.label("lblqqx", {5880, 2640, 1200, 255}, "Z9QQX").aligned(Align::Right);

    f.onChange("txtd", txt_Change);
    f.onChange("txtl", txt_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
