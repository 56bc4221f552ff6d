// The trapped multiband arm when the trap's capacitor or its coil is already
// known: the two stretches A and B, the other part of the trap and both
// reactances at the higher frequency.
#include "calc/antennas/trapped_arm.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void HideResults(FormContext& f) {
    for (const char* c : {"lblA", "lblB", "lblreattanze", "lbloutput", "lblxc", "lblxl"}) f.hide(c);
}

void Form_Load(FormContext& f) {
    f.hide("lblA");
    f.hide("lblB");
    f.hide("lbloutput");
}

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lbldato", index == 0 ? "CAPACITA' in pFARAD " : "INDUTTANZA in microH ");
    f.setText("txtdato", "");
    HideResults(f);
}

void cmdcalcola_Click(FormContext& f) {
    const FormValue f1 = f.read("txtF1");
    const FormValue f2 = f.read("txtF2");
    const FormValue d = f.read("txtdato");
    if (MissingDataSilentNegative(f, f1 * f2 * d, "txtF1")) return;
    if (FrequenciesTooClose(f, f1, f2, "txtF1")) return;

    // A and B on purpose from different constants: 71.15 and 72.
    const std::string a = f.fixed(71.15 / f1, 3);
    const std::string b = f.fixed((72 / f2) * 0.83, 3);
    // One formula gives the missing part of the trap either way; later sums use its rounded text.
    const FormValue x = f.fixed(25300 / (f1 * f1 * d), 2);

    f.show("lblA");
    f.show("lblB");
    f.show("lbloutput");
    f.show("lblreattanze");
    f.setCaption("lblA", "La lunghezza del tratto A è di mt. : " + a);
    f.setCaption("lblB", "La lunghezza del tratto B è di mt. : " + b);

    FormValue xl;
    FormValue xc;
    if (f.chosen("Option1(0)")) {
        f.setCaption("lbloutput", "L'induttanza della bobina è microH : " + x.text());
        xl = 6.28 * (f1 * x);
        xc = 159000 / (f1 * d);
    } else {
        f.setCaption("lbloutput", "La capacità del condensatore è pF : " + x.text());
        xl = 6.28 * (f1 * d);
        xc = 159000 / (f1 * x);
    }
    ShowTrapReactances(f, xl, xc);
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmantmultigamma() {
    CalculatorForm f("frmantmultigamma", "ANTENNA MULTIGAMMA TRAPPOLATA", {1200, 600, 9480, 8010});

    f.frame("Frame1", {5760, 960, 3360, 960}, "Dati conosciuti");
    f.option("Option1(0)", {180, 270, 3060, 285}, "E' NOTA LA CAPACITA'").in("Frame1");
    f.option("Option1(1)", {180, 570, 3060, 285}, "E' NOTA L' INDUTTANZA").in("Frame1");

    f.label("Label6", {240, 120, 8880, 720},
            "oltre alle frequenze per cui si intende costruire l'antenna, occorre siano note o l'induttanza della "
            "bobina o la capacità del condensatore da porre in parallelo, dipendenti dalla frequenza più alta")
        .font(8, true);

    f.label("Label8", {240, 1020, 3000, 255}, "FREQUENZA PIU' ALTA in MHz");
    f.textBox("txtF1", {3960, 960, 1335, 330});
    f.label("Label9", {240, 1440, 3000, 255}, "FREQUENZA PIU' BASSA in MHz");
    f.textBox("txtF2", {3960, 1380, 1335, 330});
    f.label("lbldato", {240, 1860, 3000, 255});
    f.textBox("txtdato", {3960, 1800, 1335, 330});

    f.button("cmdcalcola", {240, 6960, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2220, 6960, 1800, 480}, "AVVISO");
    f.button("cmdchiamabobine", {4200, 6960, 2700, 480}, "costruzione della bobina");
    f.button("cmdesci", {7080, 6960, 1800, 480}, "ESCI");

    DrawTrappedArm(f, 3120);

    f.label("lblA", {240, 4560, 4920, 255}).font(8, true);
    f.label("lblB", {240, 4860, 4920, 255}).font(8, true);
    f.label("lbloutput", {240, 5160, 4920, 255}).font(8, true);
    f.label("lblxl", {5280, 4560, 3960, 255}).font(8, true).hidden();
    f.label("lblxc", {5280, 4860, 3960, 255}).font(8, true).hidden();
    f.label("lblreattanze", {240, 5520, 8880, 450},
            "PER UN RENDIMENTO OTTIMALE DELLA BOBINA LE REATTANZE DEVONO AVERE VALORI COMPRESI TRA 200 e 300 Ohm")
        .color(colors::Red)
        .hidden();
    f.label("Label1", {240, 6060, 8880, 720}, kOneArmNote);

    f.onLoad(Form_Load);
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdchiamabobine", OpenTrapCoilWindow);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
