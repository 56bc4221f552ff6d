// An LM317 (or, with the diodes and electrolytics turned round, an LM337) set
// to an output voltage: R1 is fixed at 220 ohm, R2 sets the voltage above the
// 1.25 V reference.
#include "calc/semiconductors/regulator_block.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue v = f.read("txtvu");
    // The limit checked is 100 V, whatever the notes on the window say.
    if (v > FormValue::Whole(100) || v <= FormValue(1.25)) {
        ErrorMessage(f, "DATO NON CONGRUO", "txtvu");
        return;
    }
    const FormValue r2 = FloorValue(((v / 1.25) - 1) * 220);
    f.setCaption("lblr1", "220 Ohm");
    f.setCaption("lblr2", f.numberText(r2) + " Ohm");
    f.setCaption("lblvout", f.numberText(v) + " Volt Out");
    f.setCaption("lblvin", f.numberText(v * 1.3) + " Volt Input");
    f.setCaption("lblvmax", "LA TENSIONE OTTIMALE IN ENTRATA E' " + f.numberText(v * 1.3) +
                                " VOLT   -  LA MASSIMA APPLICABILE E' " + f.numberText(v + 30) + " VOLT");
    f.show("lblvmax");
}

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int line = 3000;
    const int earth = 5400;
    const RegulatorPins pins = RegulatorBlock(f, s, 3600, line, "Label13", "LM 317", "R");
    SupplyInput(s, pins, line, earth, {1500, 2700});
    // The diode across the regulator discharges the output into the input
    // when the input falls; the one from the adjust pin discharges its capacitor.
    s.path({{5700, line}, {5700, 2100}});
    s.diode(5700, 2100, 3300, 2100);
    s.path({{3300, 2100}, {3300, line}});
    s.node(3300, line);
    s.node(5700, line);
    s.wire(pins.out, line, 9500, line);
    s.terminal(9500, line);

    const int adj = 4500;
    s.path({{pins.common, pins.bottom}, {pins.common, adj}, {7200, adj}});
    s.node(6300, line);
    s.resistor(6300, line, 6300, adj);
    s.node(6300, adj);
    s.resistor(6300, adj, 6300, earth);
    s.diode(7200, adj, 7200, line);
    s.node(7200, line);
    s.node(5400, adj);
    s.capacitor(5400, adj, 5400, earth);
    SupplyOutput(s, line, earth, {7950, 8900}, {5400, 6300});

    f.label("Label8", {1710, 4080, 900, 255}, "2.200 uF");
    f.label("Label9", {2910, 4080, 660, 255}, "100 nF");
    f.label("Label10", {4140, 4800, 960, 255}, "220 microF").aligned(Align::Right);
    f.label("Label14", {8160, 4080, 660, 255}, "100 nF");
    f.label("Label11", {9110, 3960, 700, 480}, "220 microF");

    f.label("lblr1", {5160, 3480, 1020, 255}, "R1").aligned(Align::Right);
    f.label("lblr2", {6480, 4680, 960, 255}, "R2");
    f.label("lblvin", {240, 2520, 2400, 255}, "V. In");
    f.label("lblvout", {7200, 2520, 2400, 255}, "V. Out").aligned(Align::Right);
}

}  // namespace

CalculatorForm frmlm317() {
    CalculatorForm f("frmlm317", "INTEGRATI PER TENSIONI VARIABILI DELLA SERIE LM 317   LM 337", {1200, 600, 9960, 8640});

    f.label("Label1", {240, 300, 3000, 255}, "TENSIONE DESIDERATA IN USCITA :");
    f.textBox("txtvu", {3360, 240, 1200, 330});
    f.label("Label2", {240, 720, 9360, 765},
            "MASSIMA DIFFERENZA DI TENSIONE TRA ENTRATA/USCITA : 40 Volt MINIMA TENSIONE STABILIZZABILE IN USCITA "
            ": 1,25 Volt          MASSIMA CORRENTE PRELEVABILE IN USCITA  : 1,3 Amp             MASSIMA POTENZA "
            "DISSIPABILE CON RADIATORE : 15 Watt ");
    Drawing(f);
    f.label("lblvmax", {240, 5940, 9360, 255}).font(8, true).hidden();
    f.label("Label12", {240, 6300, 9360, 510},
            "UTILIZZANDO L' INTEGRATO LM 337,    -  PER  TENSIONI NEGATIVE -  SI DOVRA'  INVERTIRE LA POLARITA'  "
            "DEI DIODI E DEGLI ELETTROLITICI");

    f.button("cmdcalcola", {240, 7020, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 7020, 1800, 480}, "E S C I");
    f.label("Label6", {8160, 7140, 1440, 255}, "Z9 QQX").aligned(Align::Right);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
