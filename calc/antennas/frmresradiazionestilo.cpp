// The radiation resistance of a whip over its ground plane, with the quarter
// wave it would need and its length in electrical degrees.
#include "calc/antennas/antenna_drawing.hpp"
#include "calc/antennas/radiation_resistance.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    FormValue l, fr;
    if (!ReadLengthAndFrequency(f, l, fr)) return;
    const std::string degrees = f.fixed(1.2 * l * fr, 2);
    const FormValue lambda = 300 / fr;
    // One radiator over its image: the whole length counts, and nothing is doubled.
    const FormValue rr = ReadBackFixed(f, Power((24 * l) / lambda, 2), 1);
    f.setCaption("lblrr", "RESISTENZA DI RADIAZIONE = OHM " + f.numberText(rr));
    f.setCaption("lbllunghezza", f.numberText(l) + " mt");
    f.setCaption("lblrisonanza", "per risuonare dovrebbe essere lungo mt. " + f.fixed(lambda / 4, 2));
    f.setCaption("lblgradi", "corrisponde a gradi elettrici: " + degrees);
}

// The whip standing on its base insulator over the ground plane, the coax
// down from the base, the measure of its length beside it.
void DrawWhip(CalculatorForm& form) {
    AntennaDrawing a(form);
    a.radiator(1560, 300, 1560, 1860);
    a.feedPoint(1560, 1950);
    a.wire(600, 2040, 2520, 2040);
    a.coax(1560, 2040, 1560, 2820);
    a.dimension(1080, 300, 1080, 1860);
}

}  // namespace

CalculatorForm frmresradiazionestilo() {
    CalculatorForm f("frmresradiazionestilo", "RESISTENZA DI RADIAZIONE APPROSSIMATIVA DI UNO STILO",
                     {1200, 1200, 7440, 6480});
    DrawWhip(f);
    f.label("lbllunghezza", {60, 960, 960, 255}).aligned(Align::Center).font(8, true);
    f.label("Label2", {1740, 2340, 1200, 255}, "discesa coax");

    RadiationInputs(f, 2760, 600, "LUNGHEZZA DELLO STILO in mt.  :");
    RadiationResults(f, 3420, 6840);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::antennas
