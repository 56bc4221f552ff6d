// Characteristic impedance of one wire in the middle of a closed square guide,
// from the wire's diameter and the guide's width. The result is held in single
// precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, s;  // wire diameter, width of the guide
};

// One of the three correction terms: (1 + k r^-n) / (1 - k r^-n).
FormValue Term(const FormValue& r, double k, int n) {
    const FormValue t = k * Power(r, -n);
    return (1 + t) / (1 - t);
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.s = f.read("txts");
    if (MissingData(f, m.d * m.s, "txtd")) return;
    // From r = 2 up the terms stay finite.
    if (m.s < 2 * m.d) {
        ErrorMessage(f, "d è sempre < di S/2", "txtd");
        return;
    }
    const FormValue r = m.s / m.d;
    const FormValue a = Term(r, 0.405, 4);
    const FormValue b = Term(r, 0.163, 8);
    const FormValue c = Term(r, 0.067, 12);
    // The leading factor, 1 to the power -1 halved, halves the textbook figure.
    const FormValue half = Power(FormValue::Whole(1), -1) / 2;
    const FormValue z(ToSingle(half * (138 * Log10(r) + 6.48 - 2.34 * a - 0.48 * b - 0.12 * c)));
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// The square guide with the wire in its centre: S across the top and down the
// right side, d under the wire.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int side = 1560, x = 3780, y = 1380, dia = 360;
    const int left = x - side / 2, top = y - side / 2;
    s.guide(left, top, side);
    s.conductor(x, y, dia);
    s.spanX(left, left + side, top, 300, 360);
    Letter(form, "Label5", x, 150, "S");
    s.spanY(top, top + side, left + side, left + side + 420, left + side + 360);
    Letter(form, "Label6", left + side + 660, y, "S");
    s.spanX(x - dia / 2, x + dia / 2, y, 1860, 1800);
    Letter(form, "Label7", x - 480, 1800, "d");
}

}  // namespace

CalculatorForm frmguidachiusa() {
    CalculatorForm f("frmguidachiusa", " IMPEDENZA DI UNA LINEA SINGOLA IN GUIDA CHIUSA", {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd", "DIAMETRO  DEL CONDUTTORE  in mm. :"},
                                 {"Label3", "txts", "LARGHEZZA \" S \" DELLA GUIDA in mm :"}}});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
