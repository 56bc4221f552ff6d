// The axial-mode helix for 430 to 1500 MHz: reflector disc, turn diameter and
// spacing from the wavelength, beam width and gain from the count of turns.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {


void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtfrequenza");
    const FormValue turns = f.read("txtspire");
    if (MissingData(f, freq * turns, "txtfrequenza")) return;
    // The turns are checked before the frequency.
    if (turns < 6 || turns > 22) {
        ErrorMessage(f, "NUMERO SPIRE NON VALIDO", "txtspire", "MESSAGGIO DI AVVISO");
        return;
    }
    if (freq < 430 || freq > 1500) {
        ErrorMessage(f, "FREQUENZA NON VALIDA", "txtfrequenza", "MESSAGGIO DI AVVISO");
        return;
    }

    const FormValue lambda = 30000 / freq;  // cm
    const std::string disc = f.fixed(lambda, 0);
    const std::string diameter = f.fixed(lambda * 0.319, 1);
    const std::string spacing = f.fixed(lambda * 0.2, 1);
    const std::string lobe = f.fixed(Sqr(10000 / turns), 1);
    const FormValue gain = turns / 2 + 2;

    f.setCaption("lbllambda", "LAMBDA = " + f.fixed(lambda, 1) + " cm.");
    f.setCaption("lbldd", "DIAMETRO DISCO " + disc + " cm.");
    f.setCaption("lblds", "DIAMETRO INTERNO SPIRA = " + diameter + " cm.");
    f.setCaption("lblsp", "SPAZIATURA SPIRE = " + spacing + " cm.");
    f.setCaption("lbllobo", "LOBO D'IRRADIAZIONE " + lobe + " GRADI");
    f.setCaption("lblguadagno", "IL GUADAGNO E' CIRCA " + f.numberText(gain) + " dB");
    f.setCaption("lbldd1", disc + " cm.");
    f.setCaption("lblds1", diameter + " cm.");
    f.setCaption("lblsp1", spacing + " cm.");
    f.show("lbl1");
}

void cmdesci_Click(FormContext& f) { f.close(); }

// Seen from the side: the reflector disc edge-on, the helix running from it
// along the axis, the coax leaving the back of the disc; measures of the disc,
// of the turn diameter and of one turn's spacing.
void DrawHelix(CalculatorForm& form) {
    AntennaDrawing a(form);
    constexpr int kAxis = 3900;
    a.radiator(1500, 2900, 1500, 4900);
    a.helix(1560, 7800, kAxis, 8, 1200);
    a.coax(1500, kAxis, 1320, kAxis);
    a.coax(1320, kAxis, 1320, 5220);
    a.dimension(1080, 2900, 1080, 4900);
    a.dimension(8100, kAxis - 600, 8100, kAxis + 600);
    a.dimension(1560, 3060, 2340, 3060);
}

}  // namespace

CalculatorForm frmantelicoidale() {
    CalculatorForm f("frmantelicoidale", "ANTENNA ELICOIDALE", {1200, 900, 9720, 5940});

    f.label("Label1", {240, 180, 1800, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {2100, 120, 1200, 330}).tip("da 430 a 1500 MHz");
    f.label("Label2", {240, 600, 1800, 255}, "NUMERO SPIRE");
    f.textBox("txtspire", {2100, 540, 1200, 330}).tip("da 6 a 22 spire");
    f.button("cmdcalcola", {240, 1140, 1800, 420}, "CALCOLA");
    f.button("cmdesci", {240, 1680, 1800, 420}, "E S C I");

    f.label("lbllambda", {3720, 120, 5640, 255}).font(8, true);
    f.label("lbldd", {3720, 420, 5640, 255}).font(8, true);
    f.label("lblds", {3720, 720, 5640, 255}).font(8, true);
    f.label("lblsp", {3720, 1020, 5640, 255}).font(8, true);
    f.label("lbllobo", {3720, 1320, 5640, 255}).font(8, true);
    f.label("lblguadagno", {3720, 1620, 5640, 255}).font(8, true);
    f.label("lbl1", {3720, 1980, 5640, 255}, "DIAMETRO FILO 3 - 4 mm").hidden();

    DrawHelix(f);
    f.label("lbldd1", {60, 3780, 960, 255}, "diametro").aligned(Align::Right);
    f.label("lblds1", {8280, 3660, 1200, 480}, "diam.interno spira");
    f.label("lblsp1", {1560, 2760, 1200, 255}, "spaz.");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
