// The series resistor that extends a voltmeter n times: R (n - 1), in single
// precision. The window centres itself on the screen.
#include "calc/iron/meter_extension.hpp"
#include "forms/calculation.hpp"

namespace bm::iron {
namespace {

struct Vars {
    FormValue r, n;  // reloaded on every click
};

void Form_Load(FormContext& f) { CenterOnScreen(f); }

void cdmcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtRM");
    m.n = f.read("txtnr");
    if (MissingDataSilentNegative(f, m.r * m.n, "txtRM")) return;
    // Below 1 the factor becomes 1, and the resistor 0: unlike the shunt, no 1.1 here.
    if (m.n < 1) m.n = FormValue::Whole(1);

    const FormValue series = ToSingle(m.r * (m.n - 1));
    f.setCaption("lbloutput", "resistenza in Ohm da inserire in serie allo strumento =  " + f.numberText(series));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmvoltmetro() {
    CalculatorForm f("frmvoltmetro", "Resistenza in serie per voltmetro", {2400, 2400, 7800, 3600});
    MeterControls(f, {"txtRM", "lbloutput", "cdmcalcola"},
                  "Viene calcolato il valore della resistenza che, posta in serie ad un voltmetro, consente di "
                  "estenderne la portata di \" n \" volte .");
    f.onLoad(Form_Load);
    f.onClick("cdmcalcola", cdmcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::iron
