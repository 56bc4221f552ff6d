// A passive twin-T notch for audio: three equal resistors and three equal
// capacitors for the frequency to be taken out.
#include "calc/lcr/audio_cell.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

const char* const kResults[] = {"lblc1", "lblc2", "lblc3", "lblr1", "lblr2", "lblr3"};

// Blanked on every change; they never show "R" and "C" again until reopened.
void txtfrequenza_Change(FormContext& f) {
    for (const char* label : kResults) f.setCaption(label, "");
}

void cmdcalcola_Click(FormContext& f) {
    // All three arms take the same R and the same C.
    const AudioCell cell = AudioCellAtClick(f);
    for (const char* label : {"lblc1", "lblc2", "lblc3"}) f.setCaption(label, cell.capacitance);
    for (const char* label : {"lblr1", "lblr2", "lblr3"}) f.setCaption(label, cell.resistance);
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The twin T between the input and the output: above, two resistors in
// series with a capacitor from their joint to earth; below, two capacitors in
// series with a resistor from their joint to earth.
void DrawTwinT(CalculatorForm& form) {
    Schematic s(form);
    const int in = 840, mid = 3120, out = 5400;
    const int upper = 840, lower = 2160, port = 1500;

    s.resistor(in, upper, mid, upper);
    s.resistor(mid, upper, out, upper);
    s.capacitor(mid, upper, mid, upper + 600);
    s.ground(mid, upper + 600);
    s.node(mid, upper);

    s.capacitor(in, lower, mid, lower);
    s.capacitor(mid, lower, out, lower);
    s.resistor(mid, lower, mid, lower + 720);
    s.ground(mid, lower + 720);
    s.node(mid, lower);

    // Both T's meet at the input and at the output.
    s.wire(in, upper, in, lower);
    s.wire(out, upper, out, lower);
    s.wire(360, port, in, port);
    s.wire(out, port, 5880, port);
    s.node(in, port);
    s.node(out, port);
    s.terminal(360, port);
    s.terminal(5880, port);
}

}  // namespace

CalculatorForm frmfiltronotch() {
    CalculatorForm f("frmfiltronotch", "FILTRO NOTCH PASSIVO", {2400, 1500, 6480, 5610});
    DrawTwinT(f);

    f.label("Label3", {0, 1680, 720, 255}, "INPUT").aligned(Align::Center);
    f.label("Label1", {5460, 1680, 840, 255}, "OUTPUT").aligned(Align::Center);
    f.label("lblr1", {1380, 390, 1200, 255}, "R").aligned(Align::Center);
    f.label("lblr2", {3660, 390, 1200, 255}, "R").aligned(Align::Center);
    f.label("lblc3", {3360, 1020, 1200, 255}, "C");
    f.label("lblc1", {1380, 1710, 1200, 255}, "C").aligned(Align::Center);
    f.label("lblc2", {3660, 1710, 1200, 255}, "C").aligned(Align::Center);
    f.label("lblr3", {3360, 2400, 1200, 255}, "R");

    f.label("lblf", {240, 3480, 3000, 255}, "FREQUENZA DA ELIMINARE in Hz");
    f.textBox("txtfrequenza", {3360, 3420, 1560, 330});
    f.label("Label2", {240, 3900, 5400, 255}, " FREQUENZE  AMMISSIBILI : da 10 Hz a 100 kHz");

    f.button("cmdcalcola", {240, 4440, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 4440, 1800, 480}, "E S C I");
    f.label("Label4", {4800, 4560, 1200, 255}, "Z9QQX");

    f.onChange("txtfrequenza", txtfrequenza_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
