// The half-wave dipole: the length of each arm for a centre frequency, and of
// the arm of the same dipole strung as an inverted V. Recomputes as the user types.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

struct Vars {
    FormValue frequency;  // the last frequency typed, in single precision
};

void txtfrequenza_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    if (f.text("txtfrequenza").empty()) {
        m.frequency = 1.0f;
        f.hide("lbllunghezza");
        f.hide("lblbraccio");
        f.hide("lbllunghezzavert");
        return;
    }
    f.show("lbllunghezza");
    f.show("lblbraccio");
    f.show("lbllunghezzavert");
    m.frequency = ToSingle(f.read("txtfrequenza"));
    // The straight arm uses 71.3, the inverted V arm 71.
    const std::string arm = f.picture(71.3 / m.frequency, "#0.##");
    f.setCaption("lbllunghezza", arm);
    f.setCaption("lblbraccio", "LUNGHEZZA DEL BRACCIO in mt.: " + arm);
    f.setCaption("lbllunghezzavert", f.picture(71 / m.frequency, "#0.##"));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmdipoli() {
    CalculatorForm f("frmdipoli", "LUNGHEZZA DEL BRACCIO DEL DIPOLO", {1800, 1500, 8520, 6150});

    f.label("Label1", {360, 300, 3900, 255}, "FREQUENZA DI CENTRO BANDA IN MHz  :").font(8, true);
    f.textBox("txtfrequenza", {4440, 240, 1335, 330}).tip("frequenza di risonanza dipolo");
    f.label("Label4", {360, 720, 4200, 255}, " FREQUENZE AMMISSIBILI : da 1 a 500 MHz");
    f.label("Label6", {360, 1020, 5400, 255}, "separare i decimali con il punto del tastierino numerico");

    // The dipole: two arms from the centre insulator, the coax hanging below.
    AntennaDrawing a(f);
    a.insulator(600, 2160);
    a.radiator(690, 2160, 3960, 2160);
    a.feedPoint(4110, 2160);
    a.radiator(4260, 2160, 7530, 2160);
    a.insulator(7620, 2160);
    a.coax(4110, 2250, 4110, 3120);
    a.dimension(690, 1800, 3960, 1800);
    f.label("Label5", {1800, 1500, 1200, 255}, "1/4 lambda").aligned(Align::Center);
    f.label("lbllunghezza", {1800, 2220, 1200, 255}).font(8, true).aligned(Align::Center);
    f.label("Label2", {4320, 2760, 1500, 255}, "discesa coax");

    f.label("lblbraccio", {360, 3360, 7560, 255}).font(9, true).aligned(Align::Center);
    f.label("Label3", {360, 3840, 6240, 510},
            "QUALORA SI INTENDA COSTRUIRE IL DIPOLO NELLA VERSIONE A \"  V INVERTITA \" LA LUNGHEZZA DEL "
            "BRACCIO A UN QUARTO D' ONDA SARA' DI METRI :");
    f.label("lbllunghezzavert", {6720, 4080, 1200, 255}).font(9, true);

    f.button("cmdesci", {3240, 4800, 1800, 480}, "E S C I");

    f.onChange("txtfrequenza", txtfrequenza_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
