// The LM317 as a constant-current source: R1 between the output and the
// adjust pin holds 1.25 V across it, so the load current is 1.25 V over R1.
#include "calc/semiconductors/regulator_block.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue ma = f.read("txtcorrente");
    if (ma <= FormValue::Whole(0) || ma > FormValue::Whole(1000)) {
        ErrorMessage(f, "DATO NON CONGRUO", "txtcorrente");
        return;
    }
    const std::string r = f.fixed(1250 / ma, 1);
    f.setCaption("lblr1", r + " Ohm");
    f.setCaption("lblrisultato",
                 "PER OTTENERE " + f.numberText(ma) + " mA LA RESISTENZA DEVE ESSERE  " + r + " OHM");
}

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int line = 2100;
    const int earth = 4500;
    const RegulatorPins pins = RegulatorBlock(f, s, 3300, line, "Label7", "LM 317", "R");
    SupplyInput(s, pins, line, earth, {1500, 2550});
    // R1 from the output back to the adjust pin; the load hangs from the adjust pin.
    const int adj = 3300;
    s.wire(pins.out, line, 6300, line);
    s.resistor(6300, line, 6300, adj);
    s.path({{pins.common, pins.bottom}, {pins.common, adj}, {6300, adj}});
    s.node(6300, adj);
    s.wire(6300, adj, 6300, 3600);
    s.box(5850, 3600, 900, 480);
    s.wire(6300, 4080, 6300, earth);
    s.wire(600, earth, 6300, earth);
    s.terminal(600, earth);
    s.ground(3300, earth);

    f.label("Label8", {1710, 3180, 840, 255}, "2.200 uF");
    f.label("Label9", {2760, 3180, 660, 255}, "100 nF");
    f.label("Label10", {5880, 3720, 840, 255}, "carico").aligned(Align::Center);
    f.label("lblr1", {6480, 2580, 1200, 255}, "R1");
}

}  // namespace

CalculatorForm frmlm317correntecost() {
    CalculatorForm f("frmlm317correntecost", " LM 317  COME GENERATORE DI CORRENTE COSTANTE", {1800, 1200, 8160, 6840});

    f.label("Label1", {240, 240, 5160, 510},
            "CORRENTE STABILIZZATA CHE SI DESIDERA PRELEVARE       in  mA :");
    f.textBox("txtcorrente", {5520, 300, 1200, 330});
    Drawing(f);
    f.label("lblrisultato", {240, 5160, 7560, 255}).font(8, true);

    f.button("cmdcalcola", {240, 5640, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5640, 480, 480}).image("exit");
    f.label("Label6", {6360, 5760, 1440, 255}, "Z9 QQX").aligned(Align::Right);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
