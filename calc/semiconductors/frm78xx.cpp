// A 78xx regulator raised above its nominal voltage by a divider on its common
// pin: R1 carries 25 mA from the output to the pin, R2 takes it to earth.
#include <array>

#include "calc/semiconductors/regulator_block.hpp"
#include "calc/semiconductors/stage_network.hpp"
#include "forms/calculation.hpp"

namespace bm::semiconductors {
namespace {

struct Vars {
    float nominal = 0;  // the chosen type's output, in volts
};

constexpr std::array<const char*, 6> kTypes = {"7805", "7808", "7812", "7815", "7818", "7824"};
constexpr std::array<float, 6> kNominal = {5, 8, 12, 15, 18, 24};

void Option1_Click(FormContext& f, int index) {
    const auto at = static_cast<std::size_t>(index);
    f.setCaption("lblr1", "R1");
    f.setCaption("lblr2", "R2");
    f.setText("txtvu", "");
    f.setCaption("lbl78xx", kTypes.at(at));
    f.values<Vars>().nominal = kNominal.at(at);
}

void cmdcalcola_Click(FormContext& f) {
    const FormValue vn = f.values<Vars>().nominal;
    const FormValue v = f.read("txtvu");
    if (v <= vn || v > FormValue::Whole(35)) {
        ErrorMessage(f, "DATO NON CONGRUO", "txtvu");
        return;
    }
    // 0.025 is the divider's 25 mA.
    const std::string r1 = f.fixed(vn / 0.025, 0);
    const FormValue r2 = ReadBackFixed(f, (v - vn) / 0.025, 0);
    f.setCaption("lblr1", r1 + " Ohm");
    f.setCaption("lblr2", f.numberText(r2) + " Ohm");
    f.setCaption("lblvout", f.numberText(v) + " Volt Out");
    f.setCaption("lblvin", f.numberText(v * 1.4) + " Volt Input");
    f.show("Label7");
}

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int line = 2900;
    const int earth = 5400;
    const RegulatorPins pins = RegulatorBlock(f, s, 3600, line, "lbl78xx", "78xx", "M");
    // Input: the reservoir and the decoupling capacitor.
    SupplyInput(s, pins, line, earth, {1500, 2700});
    // Output: the divider on the common pin with its capacitor, then the
    // decoupling and the output capacitors.
    s.wire(pins.out, line, 9500, line);
    s.terminal(9500, line);
    const int mid = 4200;
    const int divider = 5850;
    s.node(divider, line);
    s.resistor(divider, line, divider, mid);
    s.path({{pins.common, pins.bottom}, {pins.common, mid}, {7050, mid}});
    s.node(divider, mid);
    s.resistor(divider, mid, divider, earth);
    s.capacitor(7050, mid, 7050, earth);
    SupplyOutput(s, line, earth, {7950, 8850}, {divider, 7050});

    f.label("Label8", {1710, 3960, 900, 255}, "2.000 uF");
    f.label("Label9", {2910, 3960, 660, 255}, "100 nF");
    f.label("Label10", {8160, 3960, 660, 255}, "100 nF");
    f.label("Label11", {9060, 3960, 720, 255}, "200 uF");
    f.label("Label7", {7260, 4500, 660, 480}, "10 microF").hidden();

    f.label("lblr1", {6030, 3300, 960, 255}, "R1");
    f.label("lblr2", {6030, 4800, 960, 255}, "R2");
    f.label("lblvin", {240, 2400, 2400, 255}, "V. In");
    f.label("lblvout", {7200, 2400, 2400, 255}, "V. Out").aligned(Align::Right);
}

}  // namespace

CalculatorForm frm78xx() {
    CalculatorForm f("frm78xx", "INTEGRATI STABILIZZATORI DELLA SERIE 78xx", {1200, 600, 9960, 8280});

    f.frame("Frame1", {240, 120, 4200, 1020}, "SIGLA ");
    for (int i = 0; i < 6; ++i)
        f.option(Indexed("Option1", i), {180 + (i % 3) * 1320, 300 + (i / 3) * 360, 1200, 285},
                 kTypes.at(static_cast<std::size_t>(i)))
            .in("Frame1");
    f.label("Label1", {4680, 300, 3000, 255}, "TENSIONE DESIDERATA IN USCITA :");
    f.textBox("txtvu", {7800, 240, 1200, 330});
    f.label("Label2", {240, 1320, 9360, 720},
            "ANCHE SE GLI INTEGRATI STABILIZZATORI DELLA SERIE 78xx SONO PREDISPOSTI PER FORNIRE IN USCITA VALORI "
            "STANDARD DI TENSIONE E' POSSIBILE OTTENERE VALORI  MAGGIORI DI QUELLI PREFISSATI");
    Drawing(f);
    f.label("Label12", {240, 5940, 9360, 510},
            "IN PRATICA CONVIENE EVITARE VARIAZIONI ECCESSIVAMENTE AMPIE RIMANENDO NELL'AMBITO DI UNA TENSIONE "
            "STANDARD E L'ALTRA. INOLTRE IL VALORE DI R2 NON DOVREBBE SUPERARE QUELLO DI R1");

    f.button("cmdcalcola", {240, 6660, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 6660, 1800, 480}, "E S C I");
    f.label("Label6", {8160, 6780, 1440, 255}, "Z9 QQX").aligned(Align::Right);

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
