// A ground plane with its base to earth, fed through a gamma match: stilo,
// radials, gamma rod and its spacing, as the user types the frequency.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

constexpr const char* kResults[] = {"lblstilo", "lblradiali", "lblgamma", "lbldistanza", "lblvariabile"};

void txtf_Change(FormContext& f) {
    const FormValue fr = f.read("txtf");
    // Outside 1 to 1000 MHz the results go; the label's 1.5 to 500 is advice.
    if (fr <= 1 || fr > 1000) {
        f.setFocus("txtf");
        for (const char* l : kResults) f.setCaption(l, "");
        return;
    }
    const FormValue stilo = 7210 / fr;
    const FormValue gamma = 3450 / fr;
    const FormValue radial = 7300 / fr;
    int spacing = 15;
    if (fr > 140) spacing = 5;
    else if (fr > 50) spacing = 8;
    else if (fr > 20) spacing = 10;

    f.setCaption("lblstilo", "LO STILO VERTICALE E' LUNGO cm. : " + f.numberText(FloorValue(stilo)));
    f.setCaption("lblradiali", "OGNI RADIALE E' LUNGO cm. : " + f.numberText(FloorValue(radial)));
    f.setCaption("lblgamma", "IL GAMMA-MATCH E' LUNGO cm. : " + f.numberText(FloorValue(gamma)));
    f.setCaption("lbldistanza", "IL GAMMA - MATCH E'  DISTANTE cm. : " + std::to_string(spacing));
    // The variable capacitor is 100 pF whatever the band.
    f.setCaption("lblvariabile", "IL CONDENSATORE VARIABILE E ' pF : 100");
    f.show("lbletichetta");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmgpgamma() {
    CalculatorForm f("frmgpgamma", "GROUD PLANE CON GAMMA MATCH E BASE A TERRA", {1500, 900, 9000, 7050});

    f.label("Label7", {240, 300, 2280, 255}, "FREQUENZA in MHz :").font(8, true).tip("da 1.5 a 500 MHz");
    f.textBox("txtf", {2520, 240, 1335, 330}).tip("separare i decimali con il punto del tastierino");

    f.label("lblstilo", {240, 1080, 4800, 255}).font(8, true);
    f.label("lblradiali", {240, 1440, 4800, 255}).font(8, true);
    f.label("lblgamma", {240, 1800, 4800, 255}).font(8, true);
    f.label("lbldistanza", {240, 2160, 4800, 255}).font(8, true);
    f.label("lblvariabile", {240, 2520, 4800, 255}).font(8, true);
    f.label("lbletichetta", {240, 3120, 4800, 960},
            "IL GAMMA E' COSTITUITO DA UN TUBO DI 12 mm   IL VARIABILE PUO' ESSERE REALIZZATO CON CAVO COASSIALE "
            "SENZA CALZA INSERITO NEL TUBO PER UNA LUNGHEZZA OPPORTUNA")
        .color(colors::Blue)
        .hidden();
    f.button("cmdesci", {240, 5880, 1800, 480}, "ESCI");

    // The radiator stands on the earthed radials; the gamma rod runs up beside
    // it to the strap, the variable capacitor joins its foot to the coax.
    AntennaDrawing s(f);
    constexpr int x = 6600;
    constexpr int foot = 4560;
    constexpr int gammaFoot = 3720;
    constexpr int strap = 2280;
    constexpr int rod = 420;
    s.radiator(x, 240, x, foot);
    s.gammaRod(x, gammaFoot, x, strap, rod);
    s.variableCapacitor(x + rod, gammaFoot, x + rod, gammaFoot + 540);
    s.coax(x + rod, gammaFoot + 540, x + rod, 5400);
    s.wire(x + rod - 30, 5100, x, 5100);  // the braid to the foot of the radiator
    s.wire(x, foot, x, 5100);
    s.node(x, foot);
    s.radials(x, foot, 1560, 600, 4);
    s.ground(x, 5100);
    f.label("Label6", {5160, 900, 1320, 255}, "radiatore").aligned(Align::Right).tip("aggiustare la lunghezza in fase di taratura");
    f.label("Label9", {x + 540, 2160, 1200, 255}, "ponticello").tip("individuare spirimentalmente la posizione");
    f.label("Label5", {x + 540, 2880, 1200, 255}, "gamma").tip("aggiustare la lunghezza in fase di taratura");
    f.label("Label4", {x + 840, 3780, 1080, 450}, "cond.  variabile").tip("può essere realizzata in cavo coassiale");
    f.label("Label3", {4920, 4320, 900, 255}, "radiali").tip("occorrono non meno di 4 radiali");
    f.label("Label1", {x + 600, 5160, 720, 255}, "coax ").tip("cavo coass. 50 Ohm");
    f.label("Label2", {5640, 5400, 840, 255}, "massa").aligned(Align::Right).tip("radiatore e radiali sono a massa con la calza");

    f.onChange("txtf", txtf_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
