// Ohm's law: from any two of volts, amperes, ohms and watts, the other two.
#include <array>
#include <string>

#include "forms/calculation.hpp"

namespace bm::volts {
namespace {

struct Vars {
    FormValue a;  // the first known quantity, as typed
    FormValue b;  // the second
};

// What each choice of known quantities shows: the formula line and the unit
// labels of the two inputs and of the two results.
struct Known {
    const char* formula;
    std::array<const char*, 4> units;
};

const std::array<Known, 6> kKnown = {{
    {"R = V : I     W= V x I", {"VOLT :", "AMPER :", "OHM :", "WATT :"}},
    {"I = V : R     W = (V x V) : R", {"VOLT :", "OHM :", "AMPER :", "WATT :"}},
    {"I = W : V     R = (V x V) : W", {"VOLT :", "WATT :", "AMPER :", "OHM :"}},
    {"V = I x R     W = (I x I) x R", {"AMPER :", "OHM :", "VOLT :", "WATT :"}},
    {"V = W : I     R = W : (I x I)", {"AMPER :", "WATT :", "VOLT :", "OHM :"}},
    {"V = radice(R x W)   I = radice( W : R)", {"OHM :", "WATT :", "VOLT :", "AMPER :"}},
}};

constexpr const char* kResult = "#,##0.###";

std::string Unit(int i) { return "lblinput(" + std::to_string(i) + ")"; }

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lblinput(4)", "");
    f.setCaption("lblinput(5)", "");
    const Known& k = kKnown.at(static_cast<std::size_t>(index));
    f.setCaption("lblformule", k.formula);
    for (int i = 0; i < 4; ++i) f.setCaption(Unit(i), k.units[static_cast<std::size_t>(i)]);
}

void Result(FormContext& f, const char* label, const FormValue& value) {
    f.setCaption(label, f.picture(value, kResult));
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.a = f.read("txtinput1");
    m.b = f.read("txtinput2");
    if (MissingData(f, m.a * m.b, "txtinput1")) return;
    const FormValue& a = m.a;
    const FormValue& b = m.b;
    if (f.chosen("Option1(0)")) {  // volts and amperes
        Result(f, "lblinput(4)", a / b);
        Result(f, "lblinput(5)", a * b);
    }
    if (f.chosen("Option1(1)")) {  // volts and ohms
        Result(f, "lblinput(4)", a / b);
        Result(f, "lblinput(5)", Power(a, 2) / b);
    }
    if (f.chosen("Option1(2)")) {  // volts and watts
        Result(f, "lblinput(4)", b / a);
        Result(f, "lblinput(5)", Power(a, 2) / b);
    }
    if (f.chosen("Option1(3)")) {  // amperes and ohms
        Result(f, "lblinput(4)", a * b);
        Result(f, "lblinput(5)", Power(a, 2) * b);
    }
    if (f.chosen("Option1(4)")) {  // amperes and watts
        Result(f, "lblinput(4)", b / a);
        Result(f, "lblinput(5)", b / Power(a, 2));
    }
    if (f.chosen("Option1(5)")) {  // ohms and watts
        Result(f, "lblinput(4)", Sqr(a * b));
        Result(f, "lblinput(5)", Sqr(b / a));
    }
    f.show("lblinput(2)");
    f.show("lblinput(3)");
}

void cdmesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmleggediohm() {
    CalculatorForm f("frmleggediohm", "POTENZA - TENSIONE - CORRENTE - RESISTENZA", {2400, 1800, 8040, 4440});

    f.frame("Frame1", {240, 240, 3000, 2640}, "dati conosciuti").tip("effettuare una scelta");
    f.option("Option1(0)", {240, 360, 2640, 300}, "VOLT  e  AMPERE").in("Frame1");
    f.option("Option1(1)", {240, 720, 2640, 300}, "VOLT e  OHM").in("Frame1");
    f.option("Option1(2)", {240, 1080, 2640, 300}, "VOLT e  WATT").in("Frame1");
    f.option("Option1(3)", {240, 1440, 2640, 300}, "AMPERE e OHM").in("Frame1");
    f.option("Option1(4)", {240, 1800, 2640, 300}, "AMPERE e  WATT").in("Frame1");
    f.option("Option1(5)", {240, 2160, 2640, 300}, "OHM e  WATT").in("Frame1");

    f.label("lblformule", {3480, 360, 4320, 300});
    f.label("lblinput(0)", {3480, 960, 1200, 300});
    f.textBox("txtinput1", {4800, 900, 1920, 360}).tip("immissione dato");
    f.label("lblinput(1)", {3480, 1440, 1200, 300});
    f.textBox("txtinput2", {4800, 1380, 1920, 360}).tip("immissione dato");
    f.label("lblinput(2)", {3480, 2040, 1200, 300}).hidden();
    f.label("lblinput(4)", {4800, 2040, 3000, 300});
    f.label("lblinput(3)", {3480, 2520, 1200, 300}).hidden();
    f.label("lblinput(5)", {4800, 2520, 3000, 300});

    f.button("cmdcalcola", {480, 3120, 1920, 480}, "CALCOLA").tip("abilita il calcolo");
    f.button("cdmesci", {2640, 3120, 1920, 480}, "CHIUDI").tip("esce dall'applicazione");
    f.label("Label4", {6600, 3240, 1200, 300}, "Z9QQX");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cdmesci", cdmesci_Click);
    return f;
}

}  // namespace bm::volts
