// Characteristic impedance of a screened balanced pair, from the screen's inner
// diameter, the wires' diameter and their spacing. The ratio of spacing to
// diameter, and its double, are held in single precision.
#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue screen, d, h;  // inner diameter of the screen, wire diameter, spacing
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.screen = f.read("txtd1");
    m.d = f.read("txtd2");
    m.h = f.read("txtdistanza");
    if (MissingData(f, m.screen * m.d * m.h, "txtd1")) return;
    if (m.h >= m.screen - 2 * m.d) {
        ErrorMessage(f, "distanza eccessiva", "txtd1");
        return;
    }
    if (m.screen <= m.d || m.d > m.h) {
        ErrorMessage(f, "deve essere h > di d  e  D > di  h ", "txtd1");
        return;
    }
    const FormValue a(ToSingle(m.h / m.d));
    const FormValue b = m.h / m.screen;
    const FormValue z = 276 * Log10(((a + a) * (1 - b)) / (1 + b));
    ShowImpedance(f, f.picture(z, "#,##0.##"));
}

// The screen with the pair inside: D up the left side, h between the centres,
// d across the right wire.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int x = 3780, y = 1200, outer = 1800, dia = 300, half = 450;
    const int top = y - outer / 2, bottom = y + outer / 2;
    s.screen(x, y, outer);
    s.conductor(x - half, y, dia);
    s.conductor(x + half, y, dia);
    s.spanY(top, bottom, x, 2400, 2520);
    Letter(form, "Label5", 2220, y, "D");
    s.spanX(x - half, x + half, y - dia / 2 - 60, 720, 780);
    Letter(form, "Label6", x, 570, "h");
    s.spanX(x + half - dia / 2, x + half + dia / 2, y, 1620, 1560);
    Letter(form, "Label7", x + half, 1800, "d");
}

}  // namespace

CalculatorForm frmbilanciataschermata() {
    CalculatorForm f("frmbilanciataschermata", " IMPEDENZA DI UNA LINEA BILANCIATA SCHERMATA", {2160, 1560, 0, 0});
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd1", "DIAMETRO INTERNO DELLO SCHERMO  ESTERNO in mm. :"},
                                 {"Label3", "txtd2", "DIAMETRO  DEI CONDUTTORI INTERNI in mm. :"},
                                 {"Label4", "txtdistanza", "DISTANZA  TRA I CONDUTTORI INTERNI in mm"}},
                        .signature = false});
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
