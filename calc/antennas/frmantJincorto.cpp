// The J vertical with its base shorted: as the open-base J, with a radiator
// of 21500 / F, the tap left as its one-decimal text, and the spacing D1.
#include "calc/antennas/antenna_drawing.hpp"
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
        f.setCaption("lbld1", "0");
        return;
    }
    const FormValue radiator = RoundHalfEven16(21500 / fr);
    const FormValue line = RoundHalfEven16(7200 / fr);
    const std::string tap = f.fixed(460 / fr, 1);
    const FormValue d1 = ReadBackFixed(f, 740 / fr, 1);
    ShowJDiameter(f, fr);
    f.setCaption("lblaltezza", f.numberText(radiator) + " cm.");
    f.setCaption("lbllinea", f.numberText(line) + "cm. ");
    f.setCaption("lbldist", tap + " cm.");
    f.setNumber("lbld1", d1);
}

}  // namespace

CalculatorForm frmantJincorto() {
    CalculatorForm f = JAntennaForm("frmantJincorto", "ANTENNA VERTICALE J  CON BASE IN CORTO CIRCUITO");
    // The shorted foot to earth, and D1 across the two rods below it.
    AntennaDrawing s(f);
    s.ground(6210, 4500);
    s.dimension(6000, 4920, 6420, 4920);
    f.label("lbld1", {6540, 4800, 900, 255}, "").font(8, true);
    f.onChange("txtfrequenza", txtfrequenza_Change);
    return f;
}

}  // namespace bm::antennas
