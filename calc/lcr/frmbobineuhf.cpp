// The inductance of a straight conductor above a ground plane, for UHF.
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void ccmdcalcola_Click(FormContext& f) {
    const FormValue d = f.read("txtdiametro");
    const FormValue l = f.read("txtlunghezza");
    const FormValue h = f.read("txtdistanza");
    const FormValue a = d / 2;
    // The distance is not in the gate: a zero h ends in the logarithm.
    if (MissingDataSilentNegative(f, d * l, "txtdiametro")) return;
    const FormValue s1 = Sqr(Power(l, 2) + Power(a, 2));
    const FormValue s2 = Sqr(Power(l, 2) + Power(h, 2) * 4);
    // The ratio of the sums multiplies the logarithm; it is not inside it.
    const FormValue result = (((0.0004605 * l) * (Log((2 * h) / a) * ((l + s1) / (l + s2)))) / Log(FormValue::Whole(10))) +
                             0.0002 * ((((s2 - s1) + (l / 4)) - 2 * h) + a);
    f.setCaption("lblinduttanza", "Induttanza in microH : = " + f.picture(result, "#,##0.###"));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmbobineuhf() {
    CalculatorForm f("frmbobineuhf", "Bobine adatte per  uso in UHF", {2400, 1800, 6600, 4170});

    f.label("Label1", {240, 120, 6000, 600},
            "Nel campo delle UHF possono essere realizzati induttori costituiti da un conduttore parallelo al "
            "piano di terra cui sono collegati ad un estremo");
    f.frame("Frame1", {240, 840, 6000, 1620}, "Inserimento dati");
    f.label("Label2(0)", {180, 360, 3600, 255}, "Diametro del conduttore in mm.").in("Frame1");
    f.textBox("txtdiametro", {3960, 300, 1800, 330}).in("Frame1");
    f.label("Label2(1)", {180, 780, 3600, 255}, "Lunghezza del conduttore in mm.").in("Frame1");
    f.textBox("txtlunghezza", {3960, 720, 1800, 330}).in("Frame1");
    f.label("Label2(2)", {180, 1200, 3600, 255}, "Distanza dal piano di terra in mm.").in("Frame1");
    f.textBox("txtdistanza", {3960, 1140, 1800, 330}).in("Frame1");

    f.label("lblinduttanza", {240, 2640, 6000, 255}).font(8, true);

    f.button("ccmdcalcola", {240, 3120, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3120, 1800, 480}, "E S C I");

    f.onClick("ccmdcalcola", ccmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
