// Further English measures: areas, turns, weights and resistances per length,
// each a factor on the typed figure, recomputed at every keystroke.
#include <array>

#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    FormValue y;  // a double field
};

struct Conversion {
    const char* caption;
    double k;
    const char* output;
};

const std::array<Conversion, 5> kConversions = {{
    {"Pollici quadrati ", 6.45, "CORRISPONDE A cm quadri "},
    {"Spire per pollice ", 0.396, "CORRISPONDE A SPIRE PER cm "},
    {"Spire per pollice quadrato ", 0.155, "CORRISPONDE A SPIRE PER cm quadro "},
    {"Piedi per libbra ", 0.671, "CORRISPONDE A METRI PER Kg "},
    {"Ohm per 100 piedi ", 3.28, "CORRISPONDE A OHM PER Km "},
}};

// Emptying the box runs its Change with 0, which writes both result labels;
// they are blanked after it.
void Option1_Click(FormContext& f, int) {
    f.setText("txtinput", "");
    f.setCaption("lbloutput", "");
    f.setCaption("lblrisultato", "");
    for (int i = 0; i <= 4; ++i)
        if (f.chosen(Indexed("Option1", i))) f.setCaption("lblinput", f.text(Indexed("Option1", i)));
}

void txtinput_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtinput");
    const int k = f.chosenIndex("Option1");
    if (k < 0) return;
    const Conversion& c = kConversions.at(static_cast<std::size_t>(k));
    f.setCaption("lbloutput", c.output);
    m.y = x * c.k;
    m.y = ReadBackFixed(f, m.y, 3);
    f.setNumber("lblrisultato", m.y);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmaltreconversioni() {
    CalculatorForm f("frmaltreconversioni", "ULTERIORI CONVERSIONI MISURE INGLESI", {5100, 3500, 6840, 3480});

    f.frame("Frame1", {120, 120, 3120, 2100}, "Da trasformare");
    for (int i = 0; i < 5; ++i) {
        const auto at = static_cast<std::size_t>(i);
        f.option(Indexed("Option1", i), {120, 300 + i * 345, 2880, 285}, kConversions[at].caption).in("Frame1");
    }

    f.label("lblinput", {3480, 240, 3120, 255});
    f.textBox("txtinput", {3480, 600, 1800, 330}).tip("inserire il dato da trasformare");
    f.label("lbloutput", {3480, 1140, 3120, 255});
    f.label("lblrisultato", {3480, 1500, 1800, 255}).font(8, true);

    f.button("cmdesci", {120, 2460, 1800, 480}, "E S C I");
    f.label("Label4", {5400, 2580, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtinput", txtinput_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
