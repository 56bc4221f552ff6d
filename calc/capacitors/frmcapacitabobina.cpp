// The self-capacitance of a single-layer coil from its diameter alone,
// recomputed at every keystroke.
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue d;  // the diameter in mm, as last typed
};

void txtd_Change(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    // Nothing to say about an empty box: the result goes and the caret stays.
    if (m.d <= 0) {
        f.setFocus("txtd");
        f.setCaption("lblout", "");
        return;
    }
    // The formula wants the diameter in centimetres; the result is kept to a tenth of a pF.
    const FormValue c = ReadBackFixed(f, 0.5 + (0.6 * (m.d / 10)), 1);
    f.setCaption("lblout", " LA CAPACITA' APPROSSIMATA DELLA BOBINA E' " + f.numberText(c) + " pF");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcapacitabobina() {
    CalculatorForm f("frmcapacitàbobina", "CAPACITA'  PROPRIA DI UNA BOBINA", {2400, 1800, 7200, 3960});

    f.label("Label1", {240, 180, 6600, 480},
            "LA CAPACITA'  PROPRIA DELLA BOBINA E' COSTITUITA DALLA CAPACITA' TRA SPIRA E SPIRA  E FRA LA BOBINA E I "
            "CORPI ELETTRIZZATI CIRCOSTANTI");
    f.label("Label3", {240, 960, 6600, 255}, "FORMULA APPROSSIMATA DELLA CAPACITA' DI UNA BOBINA AD UNO STRATO")
        .font(8, true);

    f.label("Label2", {240, 1620, 3000, 255}, "DIAMETRO DELLA BOBINA in mm");
    f.textBox("txtd", {3360, 1560, 1560, 330});
    f.label("lblout", {240, 2280, 6600, 255}).font(8, true);

    f.button("cmdesci", {240, 2880, 1800, 480}, "E S C I");
    f.label("Label4", {5520, 3000, 1320, 255}, "Z9 QQX").aligned(Align::Right);

    f.onChange("txtd", txtd_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
