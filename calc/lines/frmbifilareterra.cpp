// Characteristic impedance of two wires over a ground plane, from their
// diameter, their spacing and their height. The height is held in single
// precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, s;  // diameter and spacing of the wires
    FormValue h;     // height of the centres over the plane, single precision
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.s = f.read("txts");
    m.h = FormValue(ToSingle(FormValue(f.read("txth"))));
    if (MissingData(f, m.d * m.s * m.h, "txtd")) return;
    if (m.d > m.s || m.d > m.h) {
        ErrorMessage(f, "d < s   -   d < h", "txtd");
        return;
    }
    // The plane lowers the open line's figure by the root of 1 + (s / 2h)^2.
    const FormValue r = Sqr(1 + Power(m.s / FormValue(ToSingle(m.h + m.h)), 2));
    const FormValue z = (1 / r) * Log10(2 * m.s / m.d) * 276;
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// Two wires over the plane: S between the centres, h from the left centre down
// to the plane, d across the right wire.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int y = 960, left = 3000, right = 4800, dia = 420, plane = 2100;
    s.conductor(left, y, dia);
    s.conductor(right, y, dia);
    s.groundBelow(1560, 6000, plane);
    s.spanX(left, right, y - dia / 2 - 60, 360, 480);
    Letter(form, "Label5", (left + right) / 2, 270, "S");
    s.witness(left - dia / 2 - 60, y, 2040, y);
    s.measure(2160, y, 2160, plane);
    Letter(form, "Label6", 1860, (y + plane) / 2, "h");
    s.spanX(right - dia / 2, right + dia / 2, y, 1560, 1440);
    Letter(form, "Label7", right, 1680, "d");
}

}  // namespace

CalculatorForm frmbifilareterra() {
    CalculatorForm f("frmbifilareterra", " IMPEDENZA DI UNA LINEA BIFILARE CON PIANO DI TERRA", {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd", "DIAMETRO  DEI CONDUTTORI  in mm. :"},
                                 {"Label3", "txts", "DISTANZA  TRA I CONDUTTORI in mm :"},
                                 {"Label4", "txth", "DISTANZA  DAL PIANO DI TERRA in mm :"}}});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
