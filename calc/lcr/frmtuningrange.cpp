// The smallest and largest capacitance that tune a coil across a band, and the
// tuning range of the variable capacitor that gives them.
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue fmin, fmax, l;  // MHz, MHz, microhenry, reloaded on every click
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.fmin = f.read("txtfmin");
    m.fmax = f.read("txtfmax");
    m.l = f.read("txtl");
    if (MissingDataSilentNegative(f, m.fmin * m.fmax * m.l, "txtfmin")) return;

    // Both capacitances are kept as their texts to a tenth of a picofarad, and
    // the range is the ratio of those texts: a Cmin that rounds to 0.0 divides by zero.
    const FormValue cmax = f.fixed(25300 / (Power(m.fmin, 2) * m.l), 1);
    const FormValue cmin = f.fixed(25300 / (Power(m.fmax, 2) * m.l), 1);
    const FormValue range = ReadBackFixed(f, cmax / cmin, 1);

    f.setCaption("lblout", "LA CAPACITA' MINIMA E' pF " + cmin.text() + "      LA CAPACITA' MASSIMA E' pF " +
                               cmax.text());
    f.setCaption("lbltr", " il TUNING RANGE è " + f.numberText(range));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmtuningrange() {
    CalculatorForm f("frmtuningrange", "RAPPORTO DI SINTONIZZAZIONE", {2100, 1800, 8400, 4650});

    f.label("Label2", {240, 120, 7800, 720},
            "NOTA L'INDUTTANZA,  SI CALCOLA IL VALORE MASSIMO E MINIMO CHE DEVE ASSUMERE UN CONDENSATORE "
            "VARIABILE PER OTTENERE LA RISONANZA DI UN CIRCUITO L - C  IN UN INTERVALLO DI FREQUENZE.");

    f.label("Label3", {240, 1020, 3000, 255}, "FREQUENZA MINIMA in MHz");
    f.textBox("txtfmin", {3360, 960, 1800, 330});
    f.label("Label4", {240, 1440, 3000, 255}, "FREQUENZA MASSIMA in MHz");
    f.textBox("txtfmax", {3360, 1380, 1800, 330});
    f.label("Label5", {240, 1860, 3000, 255}, "INDUTTANZA in microHenry");
    f.textBox("txtl", {3360, 1800, 1800, 330});

    f.button("cmdcalcola", {5760, 960, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {5760, 1560, 1800, 480}, "E S C I");

    f.label("lblout", {240, 2340, 7800, 480}).font(8, true);
    f.label("lbltr", {240, 2880, 7800, 255}).font(8, true);

    f.label("Label1", {240, 3300, 7800, 600},
            "IN UN CONDENSATORE VARIABILE, IL RAPPORTO DI SINTONIZZAZIONE - TUNING RANGE - E' IL RAPPORTO TRA "
            "LA SUA CAPACITA' MASSIMA E LA SUA CAPACITA' MINIMA.");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
