// Skin effect: how deep radio frequency goes into copper, brass or aluminium,
// in tenths of a millimetre, at every keystroke of the frequency.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    FormValue y;
};

// No frequency empties the result without a word.
void txtfr_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtfr");
    if (x <= 0) {
        f.setFocus("txtfr");
        f.setCaption("lblout", "");
        return;
    }
    m.y = 68 / x;
    m.y = ReadBackFixed(f, m.y, 3);
    f.setCaption("lblout", " LO SPESSORE ATTRAVERSATO DALLA RF è  " + f.numberText(m.y) + " decimi");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmpenetrazione() {
    CalculatorForm f("frmpenetrazione", "EFFETTO PELLE", {3000, 2400, 6420, 3900});

    f.label("Label1", {240, 120, 5820, 720},
            "IN FUNZIONE DELLA FREQUENZA SI CALCOLA LA PENETRAZIONE APPROSSIMATIVA IN CONDUTTORI COME RAME, "
            "OTTONE, ALLUMINIO")
        .aligned(Align::Center);
    f.label("Label2", {240, 1080, 2880, 255}, "FREQUENZA DI LAVORO in MHz");
    f.textBox("txtfr", {3240, 1020, 1560, 330});
    f.label("lblout", {240, 1680, 5820, 255}).font(8, true);

    f.button("cmdesci", {2160, 2520, 1800, 480}, "E S C I");

    f.onChange("txtfr", txtfr_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
