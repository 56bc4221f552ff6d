// Celsius to Fahrenheit, Reaumur and Kelvin at every keystroke.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

constexpr const char* kDegrees = "#0.##";

// Kelvin is counted from 273, not 273.15, and is held in single precision on
// both sides of its picture; so it alone loses the trailing point.
void txtcentigradi_Change(FormContext& f) {
    const FormValue c = f.read("txtcentigradi");
    const FormValue fahr = ((c * 9) / 5) + 32;
    const FormValue reau = c * 0.8;
    const FormValue kelv = FormValue(ToSingle(273 + c));
    f.setCaption("lblfahr", f.picture(fahr, kDegrees));
    f.setCaption("lblreau", f.picture(reau, kDegrees));
    f.setNumber("lblkelv", ReadBackSingle(f, kelv, kDegrees));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmtemperatura() {
    CalculatorForm f("frmtemperatura", "COMPARAZIONI TERMOMETRICHE", {3300, 2400, 5640, 4260});

    f.label("Label1", {240, 120, 5040, 480},
            "COMPARAZIONE TRA GRADI CENTIGRADI ED ALTRI SISTEMI DI MISURAZIONE")
        .font(8, true)
        .aligned(Align::Center);

    f.label("lblgradi", {240, 900, 2400, 255}, "GRADI CENTIGRADI");
    f.textBox("txtcentigradi", {2880, 840, 1560, 330});
    f.label("lblfarenheit", {240, 1440, 2400, 255}, "GRADI FAHRENHEIT");
    f.label("lblfahr", {2880, 1440, 2400, 255}).font(8, true);
    f.label("lblreaumur", {240, 1860, 2400, 255}, "GRADI REAUMUR");
    f.label("lblreau", {2880, 1860, 2400, 255}).font(8, true);
    f.label("lblkelvin", {240, 2280, 2400, 255}, "GRADI KELVIN");
    f.label("lblkelv", {2880, 2280, 2400, 255}).font(8, true);

    f.button("cmdesci", {1800, 2940, 1800, 480}, "CHIUDI");

    f.onChange("txtcentigradi", txtcentigradi_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
