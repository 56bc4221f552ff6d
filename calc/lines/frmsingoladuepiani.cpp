// Characteristic impedance of one wire half way between two ground planes. The
// result is held in single precision.
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
    // Below one square millimetre the two dimensions count as no input.
    if (m.d * m.h < 1) {
        ErrorMessage(f, "DATI NON VALIDI", "txtd");
        return;
    }
    if (m.h <= (FormValue::Whole(4) / 3) * m.d) {
        ErrorMessage(f, "h deve essere > 4/3 d", "txtd");
        return;
    }
    // The diameter multiplies the argument here, and pi is 3.14.
    const FormValue z(ToSingle(138 * Log10(((4 * m.h) / 3.14) * m.d)));
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// The wire between the planes: h from plane to plane on the left, h/2 above and
// below the centre on the right, d under the wire.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int top = 240, bottom = 2160, x = 3780, dia = 420;
    const int y = (top + bottom) / 2;
    s.groundPlanes(1440, 6120, top, bottom);
    s.conductor(x, y, dia);
    s.measure(2040, top, 2040, bottom);
    Letter(form, "Label5", 1740, y, "h");
    s.witness(x + dia / 2 + 60, y, 5520, y);
    s.measure(5400, top, 5400, y);
    s.measure(5400, y, 5400, bottom);
    Letter(form, "Label6", 5760, (top + y) / 2, "h/2");
    Letter(form, "Label7", 5760, (y + bottom) / 2, "h/2");
    s.spanX(x - dia / 2, x + dia / 2, y, 1740, 1680);
    Letter(form, "Label8", x - 480, 1680, "d");
}

}  // namespace

CalculatorForm frmsingoladuepiani() {
    CalculatorForm f("frmsingoladuepiani", " IMPEDENZA DI UNA LINEA SINGOLA TRA DUE PIANI DI TERRA",
                     {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd", "DIAMETRO  DEL CONDUTTORE  in mm. :"},
                                 {"Label3", "txth", "DISTANZA  TRA I DUE PIANI DI TERRA  :"}}});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
