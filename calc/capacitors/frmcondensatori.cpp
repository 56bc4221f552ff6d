// Two capacitors in series and in parallel. A total above 1000 pF is told in
// nanofarad; the series figure keeps two decimals, the parallel one.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue c1, c2;  // reloaded on every click
};

// "TOTALE SERIE =  500.  picoF": picofarad up to 1001, nanofarad beyond.
std::string Total(const FormContext& f, const char* head, const FormValue& c, const char* picture) {
    if (c < 1001) return head + f.picture(c, picture) + "  " + "picoF";
    return head + f.picture(c / 1000, picture) + "  " + "nanoF";
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.c1 = f.read("txtc1");
    m.c2 = f.read("txtc2");
    // A negative product warns too, which also keeps C1 = -C2 from the division.
    if (MissingData(f, m.c1 * m.c2, "txtc1")) return;

    const FormValue parallel = m.c1 + m.c2;
    const FormValue series = (m.c1 * m.c2) / (m.c1 + m.c2);
    f.setCaption("lblserie", Total(f, "TOTALE SERIE =  ", series, "#,##0.##"));
    f.setCaption("lblparallelo", Total(f, "TOTALE PARALLELO =  ", parallel, "#,##0.#"));
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The pair in a row on the left, side by side on the right, each between two
// terminals and over the label of its total.
void DrawNetworks(CalculatorForm& form) {
    Schematic s(form);
    const int row = 960;
    s.capacitor(480, row, 1920, row);
    s.capacitor(1920, row, 3360, row);
    s.terminal(480, row);
    s.terminal(3360, row);

    const int a = 4920, b = 6360, upper = 600, lower = 1320;
    s.wire(4200, row, a, row);
    s.path({{a, upper}, {a, lower}});
    s.capacitor(a, upper, b, upper);
    s.capacitor(a, lower, b, lower);
    s.path({{b, upper}, {b, lower}});
    s.wire(b, row, 7080, row);
    s.node(a, row);
    s.node(b, row);
    s.terminal(4200, row);
    s.terminal(7080, row);
}

}  // namespace

CalculatorForm frmcondensatori() {
    CalculatorForm f("frmcondensatori", "CONDENSATORI IN SERIE E IN PARALLELO", {2400, 1800, 7680, 4620});
    DrawNetworks(f);

    f.label("Label2", {840, 480, 600, 255}, "C1").aligned(Align::Center);
    f.label("Label3", {2280, 480, 600, 255}, "C2").aligned(Align::Center);
    f.label("Label4", {5340, 180, 600, 255}, "C1").aligned(Align::Center);
    f.label("Label5", {5340, 1560, 600, 255}, "C2").aligned(Align::Center);
    f.label("lblserie", {240, 1920, 3480, 480}).aligned(Align::Center);
    f.label("lblparallelo", {3960, 1920, 3480, 480}).aligned(Align::Center);

    f.label("lblc1", {240, 2640, 2880, 255}, "PRIMO CONDENSATORE in pF :");
    f.textBox("txtc1", {3240, 2580, 1560, 330});
    f.label("lblR2", {240, 3060, 2880, 255}, "SECONDO CONDENSATORE in pF :");
    f.textBox("txtc2", {3240, 3000, 1560, 330});

    f.button("cmdcalcola", {240, 3540, 1800, 480}, "CALCOLA").tip("abilita il calcolo");
    f.button("cmdesci", {2280, 3540, 480, 480}).image("exit").tip("chiude l'applicazione");
    f.label("Label1", {6000, 3660, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
