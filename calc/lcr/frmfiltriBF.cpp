// R C filters for audio, 6 dB per octave: a high-pass and a low-pass cell for
// one cut-off frequency. The capacitor is a standard value picked by the band.
#include "calc/lcr/audio_cell.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

// Blanked on every change; they never show "R" and "C" again until reopened.
void txtfrequenza_Change(FormContext& f) {
    f.setCaption("lblC1", "");
    f.setCaption("lblC2", "");
    f.setCaption("lblR1", "");
    f.setCaption("lblR2", "");
}

void cmdcalcola_Click(FormContext& f) {
    // Both cells take the same R and the same C.
    const AudioCell cell = AudioCellAtClick(f);
    f.setCaption("lblC1", cell.capacitance);
    f.setCaption("lblC2", cell.capacitance);
    f.setCaption("lblR1", cell.resistance);
    f.setCaption("lblR2", cell.resistance);
}

void cmdesci_Click(FormContext& f) { f.close(); }

// Two cells side by side, each from its input pair to its output pair over a
// common return: the high-pass with the series C and the R across, the
// low-pass with the series R and the C across.
void DrawCells(CalculatorForm& form) {
    Schematic s(form);
    const int top = 1080, bottom = 2280;

    // High-pass.
    s.capacitor(480, top, 2040, top);
    s.wire(2040, top, 3000, top);
    s.resistor(2040, top, 2040, bottom);
    s.wire(480, bottom, 3000, bottom);
    s.node(2040, top);
    s.node(2040, bottom);
    for (int x : {480, 3000}) {
        s.terminal(x, top);
        s.terminal(x, bottom);
    }

    // Low-pass.
    s.resistor(4080, top, 5640, top);
    s.wire(5640, top, 6600, top);
    s.capacitor(5640, top, 5640, bottom);
    s.wire(4080, bottom, 6600, bottom);
    s.node(5640, top);
    s.node(5640, bottom);
    for (int x : {4080, 6600}) {
        s.terminal(x, top);
        s.terminal(x, bottom);
    }
}

}  // namespace

CalculatorForm frmfiltriBF() {
    CalculatorForm f("frmfiltriBF", "FILTRI PER BF CON ATTENUAZIONE DI 6 dB PER OTTAVA", {2400, 1800, 7200, 4920});
    DrawCells(f);

    f.label("Label5", {480, 240, 2520, 255}, "PASSA - ALTO").aligned(Align::Center);
    f.label("Label6", {4080, 240, 2520, 255}, "PASSA - BASSO").aligned(Align::Center);
    f.label("Label1", {120, 1560, 720, 255}, "Input").aligned(Align::Center);
    f.label("Label4", {3720, 1560, 720, 255}, "Input").aligned(Align::Center);
    f.label("lblC1", {720, 600, 1080, 255}, "C").aligned(Align::Center);
    f.label("lblR1", {2220, 1560, 960, 255}, "R");
    f.label("lblR2", {4320, 600, 1080, 255}, "R").aligned(Align::Center);
    f.label("lblC2", {5820, 1560, 960, 255}, "C");

    f.label("lblf", {240, 2820, 2880, 255}, "FREQUENZA DI TAGLIO in Hz");
    f.textBox("txtfrequenza", {3240, 2760, 1560, 330});
    f.label("Label2", {240, 3240, 4560, 255}, " VALORI AMMISSIBILI : da 10 Hz A 100 kHz");

    f.button("cmdcalcola", {240, 3720, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3720, 1800, 480}, "E S C I");
    f.label("Label3", {5640, 3840, 1200, 255}, "Z9QQX");

    f.onChange("txtfrequenza", txtfrequenza_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
