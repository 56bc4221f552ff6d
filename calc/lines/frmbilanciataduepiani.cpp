// Characteristic impedance of a balanced pair between two ground planes, the
// wires one over the other a quarter of the gap from each plane. The result is
// held in single precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, h;  // wire diameter, gap between the planes
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.h = f.read("txth");
    if (MissingData(f, m.d * m.h, "txtd")) return;
    // A gap of exactly four diameters is still accepted.
    if (m.h < 4 * m.d) {
        ErrorMessage(f, "deve essere : h > 4 d", "txtd");
        return;
    }
    const FormValue z(ToSingle(276 * Log10((m.h * 2) / (m.d * 3.1415))));
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// h from plane to plane on the left; on the right h/4, h/2 and h/4 down the
// wires' centres; d across the upper wire, from below.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int top = 240, bottom = 2160, x = 3780, dia = 360;
    const int upper = top + (bottom - top) / 4, lower = bottom - (bottom - top) / 4;
    s.groundPlanes(1440, 6120, top, bottom);
    s.conductor(x, upper, dia);
    s.conductor(x, lower, dia);
    s.measure(2040, top, 2040, bottom);
    Letter(form, "Label5", 1740, (top + bottom) / 2, "h");
    s.witness(x + dia / 2 + 60, upper, 5520, upper);
    s.witness(x + dia / 2 + 60, lower, 5520, lower);
    s.measure(5400, top, 5400, upper);
    s.measure(5400, upper, 5400, lower);
    s.measure(5400, lower, 5400, bottom);
    Letter(form, "Label6", 5760, (top + upper) / 2, "h/4");
    Letter(form, "Label7", 5760, (upper + lower) / 2, "h/2");
    Letter(form, "Label8", 5760, (lower + bottom) / 2, "h/4");
    s.spanX(x - dia / 2, x + dia / 2, upper, 1260, 1200);
    Letter(form, "Label9", x - 420, 1200, "d");
}

}  // namespace

CalculatorForm frmbilanciataduepiani() {
    CalculatorForm f("frmbilanciataduepiani", " IMPEDENZA DI UNA LINEA BILANCIATA TRA DUE PIANI DI TERRA",
                     {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd", "DIAMETRO  DEI CONDUTTORI  in mm. :"},
                                 {"Label3", "txth", "DISTANZA  TRA I DUE PIANI DI TERRA  :"}}});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
