// The bridged T attenuator between equal impedances: the two arms equal the
// impedance, so only the bridge and the shunt change with the attenuation.
#include "calc/resistors/networks.hpp"
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue z, a;
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.z = f.read("txtR0");
    m.a = f.read("txtattenuazione");
    if (MissingData(f, m.z * m.a, "txtR0")) return;
    // The voltage ratio is held in single precision, and so is k - 1.
    const FormValue k = ToSingle(Power(FormValue::Whole(10), m.a / 20));
    const FormValue& r1 = m.z;
    const FormValue r2 = m.z / (k - 1);
    const FormValue r3 = m.z * (k - 1);
    f.setCaption("lblR1", f.fixed(r1, 1));
    f.setCaption("lblR1a", f.fixed(r1, 1));
    f.setCaption("lblR2", f.fixed(r2, 1));
    f.setCaption("lblR3", f.fixed(r3, 1));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmretiaTponte() {
    CalculatorForm f("frmretiaTponte",
                     "RETI a T a ponte       l'impedenza d'ingresso deve essere uguale a quella d'uscita",
                     {1500, 1200, 9000, 6210});
    f.label("Label1", {240, 120, 8400, 255},
            "La rete a T  a ponte ha il vantaggio di poter modificare l'attenuazione variando due sole resistenze");
    DrawBridgedTNetwork(f, 2520, 1680, {"lblR1", "R1"}, {"lblR1a", "R1"}, {"lblR2", "R2"}, {"lblR3", "R3"});

    f.label("lblZI", {240, 3600, 3480, 255}, "IMPEDENZA D' INGRESSO E USCITA");
    f.textBox("txtR0", {3840, 3540, 1560, 330}).tip("inserire i dati");
    f.label("lblattenuazione", {240, 4020, 3480, 255}, "ATTENUAZIONE IN dB");
    f.textBox("txtattenuazione", {3840, 3960, 1560, 330}).tip("inserire i dati");

    f.button("cmdcalcola", {240, 5100, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5100, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
