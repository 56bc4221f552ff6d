// The reactance of one coil or one capacitor at a frequency, in bench units.
#include <array>

#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue f, x;  // frequency and component, reloaded on every click
};

// What each kind of reactance shows: the formula in words and the captions of
// the two inputs and of the result.
struct Kind {
    const char* formula;
    const char* frequency;
    const char* component;
    const char* result;
};

const std::array<Kind, 2> kKinds = {{
    {"XL in Ohm = 6,28 x (Mhz x induttanza in uH)", "Mhz", "microH", "XL Ohm"},
    {"XC in Ohm = 159.000 : (Mhz x pF)", "Mhz", "picoF", "XC Ohm"},
}};

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lblinput(3)", "");
    const Kind& k = kKinds.at(static_cast<std::size_t>(index));
    f.setCaption("lblfantasma", k.formula);
    f.setCaption("lblinput(0)", k.frequency);
    f.setCaption("lblinput(1)", k.component);
    f.setCaption("lblinput(2)", k.result);
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.f = f.read("txtinput(0)");
    m.x = f.read("txtinput(1)");
    if (MissingDataSilentNegative(f, m.f * m.x, "txtinput(0)")) return;
    // MHz with microhenry, and MHz with picofarad: 6.28 and 159000 carry the units.
    const FormValue result = f.chosen("Option1(0)") ? 6.28 * (m.f * m.x) : 159000 / (m.f * m.x);
    f.setCaption("lblinput(3)", f.picture(result, "#,##0.###"));
}

void cmnesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmreattanza() {
    CalculatorForm f("frmreattanza", "Reattanza ", {2400, 1800, 6720, 4710});

    f.frame("Frame1", {240, 120, 3240, 1080}, "Tipo di Reattanza");
    f.option("Option1(0)", {180, 300, 2880, 285}, "REATTANZA  INDUTTIVA").in("Frame1");
    f.option("Option1(1)", {180, 660, 2880, 285}, "REATTANZA CAPACITIVA").in("Frame1");
    f.label("Label1", {3720, 240, 2760, 720}, "L'uso dei Mhz e dei micro Henry ottimizza il calcolo per le HF");

    f.label("lblfantasma", {240, 1440, 6240, 255});
    f.label("lblinput(0)", {240, 1920, 1200, 255});
    f.textBox("txtinput(0)", {1560, 1860, 1800, 330});
    f.label("lblinput(1)", {240, 2340, 1200, 255});
    f.textBox("txtinput(1)", {1560, 2280, 1800, 330});
    f.label("lblinput(2)", {240, 2820, 1200, 255}).font(8, true);
    f.label("lblinput(3)", {1560, 2820, 4920, 480}).font(8, true);

    f.button("cmdcalcola", {240, 3480, 1800, 480}, "CALCOLA");
    f.button("cmnesci", {2280, 3480, 1800, 480}, "ESCI");
    f.label("Label4", {5280, 3600, 1200, 255}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmnesci", cmnesci_Click);
    return f;
}

}  // namespace bm::lcr
