// The radiation resistance of a dipole shorter than a half wave, with the
// half-wave length it would need and its length in electrical degrees.
#include "calc/antennas/antenna_drawing.hpp"
#include "calc/antennas/radiation_resistance.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    FormValue l, fr;
    if (!ReadLengthAndFrequency(f, l, fr)) return;
    const FormValue degrees = 1.2 * l * fr;
    const FormValue lambda = 300 / fr;
    // Each arm counts: twice the resistance of one arm, kept to one decimal.
    const FormValue rr = ReadBackFixed(f, Power((24 * (l / 2)) / lambda, 2) * 2, 1);
    f.setCaption("lblrr", "RESISTENZA DI RADIAZIONE = OHM " + f.numberText(rr));
    f.setNumber("lbllunghezza", l / 2);
    f.setCaption("lblrisonanza", "per risuonare dovrebbe essere lungo mt. " + f.fixed(lambda / 2, 1));
    f.setCaption("lblgradi", "corrisponde a gradi elettrici: " + f.numberText(degrees));
}

// Two arms on their insulators, the centre insulator and the coax down from
// it; the measure over the right arm carries the arm's length.
void DrawDipole(CalculatorForm& form) {
    AntennaDrawing a(form);
    a.radiator(1200, 780, 4080, 780);
    a.radiator(4380, 780, 7260, 780);
    a.feedPoint(4230, 780);
    a.insulator(1110, 780);
    a.insulator(7350, 780);
    a.coax(4230, 870, 4230, 1800);
    a.dimension(4380, 480, 7260, 480);
}

}  // namespace

CalculatorForm frmresradiazione() {
    CalculatorForm f("frmresradiazione",
                     "RESISTENZA DI RADIAZIONE APPROSSIMATIVA DI UN DIPOLO PIU' CORTO DI 1/2 LAMBDA",
                     {1200, 1200, 8640, 6180});
    DrawDipole(f);
    f.label("lbllunghezza", {5220, 180, 1200, 255}).aligned(Align::Center).font(8, true);
    f.label("Label5", {5040, 960, 1560, 255}, "max 1/4 lambda").aligned(Align::Center);
    f.label("Label2", {4440, 1320, 1200, 255}, "discesa coax");

    RadiationInputs(f, 240, 2100, "LUNGHEZZA DEL DIPOLO in mt.  :");
    f.label("Label6", {5040, 2580, 3240, 255}, " FREQUENZE AMMISSIBILI : da 1 a 50 MHz");
    RadiationResults(f, 3120, 8040);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::antennas
