// Capacitance per metre and characteristic impedance of a coaxial line, from
// the two diameters and the dielectric. The capacitance passes through single
// precision and is read back from its one-decimal text.
#include <array>

#include "calc/lines/cross_section.hpp"
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue outer, inner;  // inner diameter of the outer conductor, diameter of the inner one
    FormValue k;             // dielectric constant of the chosen option
    FormValue c;             // pF per metre, single precision
};

// The dielectric constant of each option, in the order the options stand.
constexpr std::array<double, 4> kDielectric = {1.00059, 1.65, 2.3, 1.42};

void BlankResults(FormContext& f) {
    f.setCaption("lblimpedenza", "");
    f.setCaption("lblc", "");
}

void Option1_Click(FormContext& f, int) { BlankResults(f); }

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.outer = f.read("txtd1");
    m.inner = f.read("txtd2");
    if (MissingDataSilentNegative(f, m.outer * m.inner, "txtd1")) return;
    if (m.outer <= m.inner) {
        ErrorMessage(f, "DIAMETRO ESTERNO TROPPO PICCOLO", "txtd1");
        return;
    }
    for (std::size_t i = 0; i < kDielectric.size(); ++i)
        if (f.chosen(Indexed("Option1", static_cast<int>(i)))) m.k = kDielectric[i];
    // The impedance divides by k itself, not by its root.
    const FormValue z = (138 / m.k) * Log10(m.outer / m.inner);
    m.c = FormValue(ToSingle((0.0242 * m.k) / Log10(m.outer / m.inner)));
    m.c = ReadBackSingle(f, FormValue(ToSingle(m.c * 1000)), "##0.#");
    f.setCaption("lblc", "LA CAPACITA' E' DI  " + f.numberText(m.c) + " pF METRO");
    f.setCaption("lblimpedenza", "L'IMPEDENZA E' DI  :  " + f.fixed(z, 2) + "  OHM");
}

// The coaxial line end-on: the dielectric inside the outer conductor, the inner
// conductor in the middle; D up the left side, d under the inner conductor.
void DrawLine(CalculatorForm& form) {
    CrossSection s(form);
    const int x = 1920, y = 1140, outer = 1680, inner = 540;
    const int top = y - outer / 2, bottom = y + outer / 2;
    s.dielectric(x, y, outer);
    s.screen(x, y, outer);
    s.conductor(x, y, inner);
    s.spanY(top, bottom, x, 720, 840);
    Letter(form, "Label5", 540, y, "D");
    s.spanX(x - inner / 2, x + inner / 2, y, 1680, 1620);
    Letter(form, "Label6", x, 1830, "d");
}

}  // namespace

CalculatorForm frmimpedenza() {
    CalculatorForm f("frmimpedenza", "CAPACITA'  E IMPEDENZA DI UNA LINEA COASSIALE", {2160, 1560, 0, 0});
    f.frame("Frame1", {3720, 240, 3480, 1680}, " Dielettrico ");
    f.option("Option1(0)", {240, 300, 3000, 285}, "Aria").in("Frame1");
    f.option("Option1(1)", {240, 630, 3000, 285}, "Politene").in("Frame1");
    f.option("Option1(2)", {240, 960, 3000, 285}, "Polietilene").in("Frame1");
    f.option("Option1(3)", {240, 1290, 3000, 285}, "Polietilene spiralato").in("Frame1");
    DrawLine(f);
    ImpedanceWindow(f, {.rows = {{"Label1", "txtd1", "DIAMETRO INTERNO DEL CONDUTTORE ESTERNO in mm. :"},
                                 {"Label3", "txtd2", "DIAMETRO  DEL CONDUTTORE INTERNO in mm. :"}},
                        .results = {"lblc", "lblimpedenza"},
                        .signature = false});
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::lines
