// Characteristic impedance of two parallel strips, from their distance and
// their width. The result is held in single precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, s;  // distance between the strips, their width
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.s = f.read("txts");
    if (MissingData(f, m.d * m.s, "txtd")) return;
    // Ten times the distance exactly is still accepted.
    if (m.s < 10 * m.d) {
        ErrorMessage(f, "S > =  10 d ", "txtd");
        return;
    }
    const FormValue z(ToSingle((377 * m.d) / m.s));
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// The two strips one over the other: S across the top, d between them on the right.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int left = 2280, width = 3000, thick = 90, upper = 840, lower = 1560;
    s.strip(left, upper, width, thick);
    s.strip(left, lower, width, thick);
    s.spanX(left, left + width, upper, 420, 480);
    Letter(form, "Label5", left + width / 2, 270, "S");
    s.spanY(upper + thick, lower, left + width, left + width + 480, left + width + 360);
    Letter(form, "Label6", left + width + 660, (upper + thick + lower) / 2, "d");
}

}  // namespace

CalculatorForm frmstrip() {
    CalculatorForm f("frmstrip", " IMPEDENZA DI UNA LINEA  A STRIP PARALLELI", {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.sketchHeight = 2040,
                        .rows = {{"Label1", "txtd", "DISTANZA DEGLI STRIP  in mm. :"},
                                 {"Label3", "txts", "LUNGHEZZA DEGLI STRIP  in mm :"}},
                        .note = " \" S \"  >  10 volte  \" d \""});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
