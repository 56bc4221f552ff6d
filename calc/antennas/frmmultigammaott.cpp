// The trapped multiband arm with the trap chosen for the user: from the two
// frequencies alone, coil and capacitor for a fixed reactance of 250 ohm.
#include "calc/antennas/trapped_arm.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    f.hide("lblavviso");
    const FormValue f1 = f.read("txtF1");
    const FormValue f2 = f.read("txtF2");
    if (MissingDataSilentNegative(f, f1 * f2, "txtF1")) return;
    if (FrequenciesTooClose(f, f1, f2, "txtF1")) return;

    // Both stretches from 71.15 here, and to two decimals.
    const std::string a = f.fixed(71.15 / f1, 2);
    const std::string b = f.fixed((71.15 / f2) * 0.83, 2);
    f.setCaption("lblA", "La lunghezza del tratto A è di mt. : " + a);
    f.setCaption("lblB", "La lunghezza del tratto B è di mt. : " + b);

    // Both parts of the trap for 250 ohm at the higher frequency; the reactances
    // are worked back from their rounded texts.
    const FormValue c = f.fixed(159000 / (250 * f1), 1);
    const FormValue l = f.fixed(250 / (6.28 * f1), 1);
    const FormValue xl = 6.28 * (f1 * l);
    const FormValue xc = 159000 / (f1 * c);

    f.show("lblreattanze");
    f.setCaption("lblcapacita", "LA CAPACITA'  E'  pF  " + c.text());
    f.setCaption("lblinduttanza", "L' INDUTTANZA  E'  uH " + l.text());
    ShowTrapReactances(f, xl, xc);
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmmultigammaott() {
    CalculatorForm f("frmmultigammaott",
                     "ANTENNA MULTIGAMMA TRAPPOLATA   -   CALCOLO AUTOMATICO DI INDUTTANZA E CAPACITA'",
                     {1200, 600, 9480, 8010});

    f.label("Label6", {240, 120, 8880, 480},
            "CON IL SEMPLICE INSERIMENTO DELLE FREQUENZE IL PROGRAMMA CALCOLA I VALORI OTTIMALI DI CAPACITA'  E "
            "INDUTTANZA")
        .font(8, true);

    f.label("Label8", {240, 1020, 3000, 255}, "FREQUENZA PIU' ALTA in MHz");
    f.textBox("txtF1", {3960, 960, 1335, 330});
    f.label("Label9", {240, 1440, 3000, 255}, "FREQUENZA PIU' BASSA in MHz");
    f.textBox("txtF2", {3960, 1380, 1335, 330});
    f.label("lblavviso", {5640, 720, 3480, 1200},
            "QUESTA SCELTA DI MENU' CONSENTE IL CALCOLO AUTOMATICO OTTIMIZZATO DEI VALORI DI INDUTANZA E "
            "CAPACITA', QUALORA OCCORRESSE INSERIRE DEI VALORI ARBITRARI SELEZIONARE L'ALTRA OPZIONE")
        .color(colors::Blue);

    f.button("cmdcalcola", {240, 6960, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2220, 6960, 1800, 480}, "AVVISO");
    f.button("cmdchiamabobine", {4200, 6960, 2700, 480}, "costruzione della bobina");
    f.button("cmdesci", {7080, 6960, 1800, 480}, "ESCI");

    DrawTrappedArm(f, 3120);

    f.label("lblA", {240, 4560, 4920, 255}).font(8, true);
    f.label("lblB", {240, 4860, 4920, 255}).font(8, true);
    f.label("lblinduttanza", {240, 5160, 2700, 255}).font(8, true);
    f.label("lblcapacita", {3000, 5160, 2640, 255}).font(8, true);
    f.label("lblxl", {5280, 4560, 3960, 255}).font(8, true).hidden();
    f.label("lblxc", {5280, 4860, 3960, 255}).font(8, true).hidden();
    f.label("lblreattanze", {240, 5520, 8880, 450},
            "PER UN RENDIMENTO OTTIMALE DELLA TRAPPOLA LE REATTANZE CAPACITIVE E INDUTTIVE DEVONO AVERE VALORI "
            "COMPRESI TRA 200 e 300 Ohm")
        .color(colors::Red)
        .hidden();

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdchiamabobine", OpenTrapCoilWindow);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
