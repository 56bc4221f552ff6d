// A two-band arm whose trap is a linear element: a rod beside the radiator
// tuned by a coaxial capacitor. Rough guidance from the wavelength of the
// higher band, not from a formula of the trap.
#include "calc/antennas/antenna_drawing.hpp"
#include "calc/antennas/trapped_arm.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void HideResults(FormContext& f) {
    for (const char* c : {"lbllambda1", "lbllambda2", "lblc", "lbla", "lbll", "lblll", "lblb"}) f.hide(c);
}

void cmdcalcola_Click(FormContext& f) {
    const FormValue f1 = f.read("txtf1");
    const FormValue f2 = f.read("txtf2");
    if (MissingData(f, f1 * f2, "txtf1")) return;
    if (FrequenciesTooClose(f, f1, f2, "txtf1")) return;

    // The wavelength of the higher band, in metres, as a rounded text.
    const FormValue w1 = f.fixed(300 / f1, 2);
    const FormValue t1 = f.fixed(72 / f1, 2);
    const std::string t2 = f.fixed((72 / f2) * 0.83 - t1, 2);
    const std::string length = f.fixed(w1 / 0.28, 1);       // cm
    const FormValue capacitance = ReadBackFixed(f, w1 / 0.2, 0);  // pF

    f.setCaption("lbllambda1", "IL PRIMO TRATTO E' LUNGO CIRCA mt.  " + t1.text());
    f.setCaption("lbllambda2", "IL SECONDO TRATTO E' LUNGO CIRCA mt.  " + t2);
    f.setCaption("lbll", "LA TRAPPOLA E'  LUNGA CIRCA cm.  " + length);
    f.setCaption("lblll", length + " cm.");
    f.setCaption("lblc", "LA CAPACITA'  COASSIALE E' CIRCA pF " + f.numberText(capacitance));
    f.setCaption("lbla", t1.text() + " mt.");
    f.setCaption("lblb", t2 + " mt.");
    for (const char* c : {"lbla", "lblb", "lbllambda1", "lbllambda2", "lbll", "lblll", "lblc", "lbls", "lbldistanza"})
        f.show(c);
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmtrappolalineare() {
    CalculatorForm f("frmtrappolalineare", "ANTENNA CON TRAPPOLA AD ELEMENTI LINEARI", {1200, 600, 9480, 7170});

    f.label("Label2", {240, 300, 3600, 255}, "FREQUENZA  PIU'  ALTA in MHz");
    f.textBox("txtf1", {3960, 240, 1335, 330});
    f.label("Label3", {240, 720, 3600, 255}, "FREQUENZA PIU'  BASSA IN MHz");
    f.textBox("txtf2", {3960, 660, 1335, 330});
    f.label("lblavviso", {5640, 180, 3480, 720},
            "NON ESSENDO STATE REPERITE FORMULE MATEMATICHE LE RISULTANZE SONO DA INTENDERSI INDICATIVE")
        .color(colors::Red);

    f.button("cmdcalcola", {240, 6120, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2280, 6120, 1800, 480}, "AVVISO");
    f.button("cmdesci", {7320, 6120, 1800, 480}, "ESCI");

    // One arm: A from the feed point to the trap, the linear element over the
    // break, B on to the end.
    AntennaDrawing a(f);
    constexpr int y = 2700;
    a.feedPoint(720, y);
    a.coax(720, y + 90, 720, y + 900);
    a.radiator(870, y, 4710, y);
    a.linearTrap(3600, 6000, y, 540);
    a.radiator(4890, y, 8400, y);
    a.insulator(8490, y);
    a.dimension(870, y + 420, 4800, y + 420);
    a.dimension(4800, y + 420, 8400, y + 420);
    a.dimension(3600, y - 840, 6000, y - 840);
    a.dimension(6360, y - 540, 6360, y);
    f.label("lbla", {2040, y + 480, 1800, 255}).font(8, true).aligned(Align::Center).hidden();
    f.label("lblb", {5700, y + 480, 1800, 255}).font(8, true).aligned(Align::Center).hidden();
    f.label("lblll", {3900, y - 1140, 1800, 255}).font(8, true).aligned(Align::Center).hidden();
    f.label("lbls", {6480, y - 390, 900, 255}, "5 cm.").font(8, true).hidden();

    f.label("lbllambda1", {240, 3720, 4560, 255}).font(8, true).hidden();
    f.label("lbllambda2", {240, 4020, 4560, 255}).font(8, true).hidden();
    f.label("lbll", {4920, 3720, 4200, 255}).font(8, true).hidden();
    f.label("lblc", {4920, 4020, 4200, 255}).font(8, true).hidden();
    f.label("lbldistanza", {240, 4440, 8880, 510},
            "LA DISTANZA DAL RADIATORE E'  50 mm.   -  LA SEZIONE DELL' ELEMENTO LINEARE E' 2-3 mm-  IL "
            "CONDENSATORE  DI TIPO COASSIALE DOVE DEVE POTER SCORRERE PER LA TARATURA")
        .hidden();
    f.label("Label1", {240, 5160, 8880, 720}, kOneArmNote);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onChange("txtf1", HideResults);
    f.onChange("txtf2", HideResults);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
