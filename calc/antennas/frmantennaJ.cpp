// The J vertical with open base: radiator, matching line and feed tap for a
// frequency, as the user types.
#include "calc/antennas/j_antenna.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void txtfrequenza_Change(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    if (fr == 0) {
        f.setCaption("lblaltezza", "0");
        f.setCaption("lbllinea", "0");
        f.setCaption("lbldist", "0");
        return;
    }
    // Whole centimetres: a low frequency overflows them while the user types.
    const FormValue radiator = RoundHalfEven16(21600 / fr);
    const FormValue line = RoundHalfEven16(7200 / fr);
    const FormValue tap = ReadBackFixed(f, 460 / fr, 1);
    ShowJDiameter(f, fr);
    f.setCaption("lblaltezza", f.numberText(radiator) + " cm.");
    f.setCaption("lbllinea", f.numberText(line) + "cm. ");
    f.setCaption("lbldist", f.numberText(tap) + " cm.");
}

}  // namespace

CalculatorForm frmantennaJ() {
    CalculatorForm f = JAntennaForm("frmantennaJ", "ANTENNA VERTICALE J  CON BASE APERTA");
    f.onChange("txtfrequenza", txtfrequenza_Change);
    return f;
}

}  // namespace bm::antennas
