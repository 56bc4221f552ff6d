// The resistance of a kilometre of round wire at direct current or low
// frequency, from its diameter and metal.
#include <array>

#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue rho;  // ohm mm² per metre
    FormValue d, s;
    double r = 0;   // ohm per km, a double-precision field
};

const std::array<double, 6> kResistivity = {0.018, 0.028, 0.016, 0.49, 0.85, 0.9};

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lblresistenza", "");
    f.values<Vars>().rho = kResistivity.at(static_cast<std::size_t>(index));
}

void txtdiametro_Change(FormContext& f) {
    f.setCaption("lblresistenza", "");
    f.setCaption("lblsezione", "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtdiametro");
    if (m.d <= 0) {
        ErrorMessage(f, "INSERISCI IL DIAMETRO", "txtdiametro");
        return;
    }
    m.s = Power(m.d / 2, 2) * 3.14159;
    m.r = ((m.rho * 1000) / m.s).number();
    // Read back from its text: the group separators go with it.
    m.r = ReadBack(f, m.r, "##,##0.##").number();
    f.setCaption("lblsezione", "LA SEZIONE E' mmq " + f.picture(m.s, "#0.###"));
    f.setCaption("lblresistenza", "LA RESISTENZA ELETTRICA E'  " + f.numberText(m.r) + " Ohm PER Km");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmresistenzakm() {
    CalculatorForm f("frmresistenzakm", "RESISTENZA DI CONDUTTORI IN RELAZIONE ALLA SEZIONE", {1800, 1500, 8160, 4590});
    f.label("Label2", {240, 120, 7560, 255}, "SOLO PER CORRENTI CONTINUE O ALTERNATE A BASSA FREQUENZA").font(8, true);

    f.frame("Frame1", {240, 540, 2520, 2460}, " Conduttori ");
    const char* metals[] = {"RAME", "ALLUMINIO", "ARGENTO", "COSTANTANA", "FERRO-NICHEL", "NICHEL-CROMO"};
    for (int i = 0; i < 6; ++i)
        f.option(Indexed("Option1", i), {240, 300 + i * 360, 2040, 300}, metals[i]).in("Frame1");

    f.label("Label1", {3000, 720, 2640, 255}, "DIAMETRO DEL FILO in mm : ");
    f.textBox("txtdiametro", {5760, 660, 1200, 330}).tip("usare il punto per i decimali");
    f.label("Label3", {3000, 1080, 3960, 255}, "(usare il punto per i decimali)");

    f.label("lblsezione", {3000, 1680, 4800, 255}).font(8, true);
    f.label("lblresistenza", {3000, 2040, 4800, 480}).font(8, true);

    f.button("cmdcalcola", {3000, 3240, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {5040, 3240, 480, 480}).image("exit");

    f.onClick("Option1", Option1_Click);
    f.onChange("txtdiametro", txtdiametro_Change);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
