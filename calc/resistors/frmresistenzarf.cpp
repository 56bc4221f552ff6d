// The resistance of a straight conductor at radio frequency, where the current
// keeps to the skin of the wire.
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue d, l, f;
};

void Option1_Click(FormContext& f) { f.setCaption("lblohm", ""); }

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtdiametro");
    m.l = f.read("txtlunghezza");
    m.f = f.read("txtfrequenza");
    if (MissingData(f, m.d * m.l * m.f, "txtdiametro")) return;
    FormValue perMetre = (0.0083 / m.d) * Sqr(m.f);
    if (f.chosen("Option1(1)")) perMetre = (0.0083 / m.d) * Sqr(m.f) * 1.56;  // aluminium
    const FormValue r = perMetre * m.l;
    f.setCaption("lblohm", "LA RESISTENZA OHMICA E' " + f.fixed(r, 4) + "  OHM");
}

void cmnesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmresistenzarf() {
    CalculatorForm f("frmresistenzarf", " RESISTENZA OHMICA IN ALTA FREQUENZA", {1800, 1500, 6840, 4710});
    f.frame("Frame1", {240, 240, 2520, 1080}, " Tipo di Conduttore ");
    f.option("Option1(0)", {240, 300, 2040, 300}, "R A M E").in("Frame1");
    f.option("Option1(1)", {240, 660, 2040, 300}, "A L L U M I N I O").in("Frame1");

    f.label("lblinput(0)", {3000, 240, 3480, 255}, "Diametro del conduttore in mm.");
    f.textBox("txtdiametro", {3000, 510, 1440, 330});
    f.label("lblinput(1)", {3000, 960, 3480, 255}, "Frequenza in MHz");
    f.textBox("txtfrequenza", {3000, 1230, 1440, 330});
    f.label("Label1", {3000, 1680, 3480, 255}, "Lunghezza del conduttore in metri");
    f.textBox("txtlunghezza", {3000, 1950, 1440, 330});

    f.label("Label2", {240, 2520, 6240, 255}, "IL CONDUTTORE DEVE ESSERE STESO E NON ARROTOLATO").font(8, true);
    f.label("lblohm", {240, 2880, 6240, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3480, 1800, 480}, "CALCOLA");
    f.button("cmnesci", {2280, 3480, 1800, 480}, "E S C I");
    f.label("Label4", {5040, 3600, 1440, 255}, "Z9QQX").aligned(Align::Right);

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmnesci", cmnesci_Click);
    return f;
}

}  // namespace bm::resistors
