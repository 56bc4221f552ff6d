// The shunt that extends an ammeter n times: R / (n - 1), to the hundredth of
// an ohm, held in single precision.
#include "calc/iron/meter_extension.hpp"
#include "forms/calculation.hpp"

namespace bm::iron {
namespace {

struct Vars {
    FormValue r, n;  // reloaded on every click
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtrm");
    m.n = f.read("txtnr");
    if (MissingDataSilentNegative(f, m.r * m.n, "txtrm")) return;
    // A factor of 1 or less would need no shunt, or an impossible one: 1.1 stands in.
    if (m.n <= 1) m.n = 1.1;

    const FormValue shunt = ReadBackSingle(f, m.r / (m.n - 1), "#,##0.##");
    f.setCaption("lblrs", "resistenza SHUNT in Ohm  =  " + f.numberText(shunt));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmshunt() {
    CalculatorForm f("frmshunt", "Resistenza di shunt per amperometro", {2400, 2400, 7800, 3600});
    MeterControls(f, {"txtrm", "lblrs", "cmdcalcola"},
                  "Viene calcolato il valore della resistenza che, posta in parallelo ad un amperometro, consente di "
                  "estenderne la portata di \" n \" volte.");
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::iron
