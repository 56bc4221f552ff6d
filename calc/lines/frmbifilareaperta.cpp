// Characteristic impedance of an open two-wire line from the wire diameter and
// the distance between the wires. The distance is held in single precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d;  // wire diameter
    FormValue h;  // distance between the centres, single precision
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.h = FormValue(ToSingle(FormValue(f.read("txtdistanza"))));
    if (MissingData(f, m.d * m.h, "txtd")) return;
    const FormValue z = 276 * Log10(FormValue(ToSingle(m.h + m.h)) / m.d);
    ShowImpedance(f, f.picture(z, "#,##0.#"));
}

// Two wires side by side: d across the left one, h from centre to centre.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int y = 1140, left = 2880, right = 4680, dia = 480;
    s.conductor(left, y, dia);
    s.conductor(right, y, dia);
    s.spanX(left - dia / 2, left + dia / 2, y, 420, 540);
    Letter(form, "Label5", left, 300, "d");
    s.spanX(left, right, y, 1920, 1800);
    Letter(form, "Label6", (left + right) / 2, 2040, "h");
}

}  // namespace

CalculatorForm frmbifilareaperta() {
    CalculatorForm f("frmbifilareaperta", " IMPEDENZA DI UNA LINEA BIFILARE APERTA", {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd", "DIAMETRO  CONDUTTORI  in mm. :"},
                                 {"Label3", "txtdistanza", "DISTANZA  in mm :"}}});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
