// The length of a wire working on a harmonic: a little more than its half
// waves, by 150 (n - 0.05) / F.
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtf");
    const FormValue n = f.read("txtn");
    if (MissingData(f, freq * n, "txtf")) return;
    const FormValue length = (150 * (n - 0.05)) / freq;
    f.setCaption("lbllunghezza", "L'ANTENNA E' LUNGA  " + f.fixed(length, 2) + " METRI");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmlungharmonica() {
    CalculatorForm f("frmlungharmonica", "LUNGHEZZA DI UNA ANTENNA IN ARMONICA", {2400, 1800, 6600, 4680});

    f.label("Label2", {240, 120, 6000, 960},
            "UN' ANTENNA IN ARMONICA E'  SEMPRE UN PO'  PIU' LUNGA DEL CORRISPONDENTE NUMERO DI MEZZE ONDE CHE "
            "LA COMPONGONO. L' ALIMENTAZIONE DEVE AVVENIRE AD 1/4 LAMBDA");
    f.label("Label1", {240, 1320, 2400, 255}, "FREQUENZA IN MHz");
    f.textBox("txtf", {2760, 1260, 1200, 330});
    f.label("Label3", {240, 1740, 2400, 255}, "NUMERO DI MEZZE ONDE");
    f.textBox("txtn", {2760, 1680, 1200, 330});
    f.label("lbllunghezza", {240, 2280, 6000, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3000, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3000, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
