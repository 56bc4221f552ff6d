// The diameter of a copper wire for a current, at a minimum and a normal
// density, with the cross sections that go with them.
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    FormValue snorm;  // a double field
};

constexpr const char* kMm = "#,##0.###";

// Each cross section is computed from its diameter as printed; the minimum one
// is shown as its picture wrote it, the normal one read back.
void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtinput");
    if (x == 0) {
        f.ShowMessage("INSERISCI DATO", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtinput");
    }
    const FormValue dmin = f.picture(Sqr(x) * 0.7, kMm);
    const FormValue smin = f.picture(Power(dmin / 2, 2) * 3.141592, kMm);
    const FormValue dnorm = f.picture(Sqr(x) * 0.8, kMm);
    m.snorm = ReadBack(f, Power(dnorm / 2, 2) * 3.141592, kMm);

    f.show("lbloutputmin");
    f.show("lbloutputnorm");
    f.show("lblmqmin");
    f.show("lblmqnorm");
    f.setCaption("lbloutputmin", "diametro minimo =  " + dmin.text());
    f.setCaption("lbloutputnorm", "diametro normale =  " + dnorm.text());
    f.setCaption("lblmqmin", "pari a sezione mmq : " + smin.text());
    f.setCaption("lblmqnorm", "pari a sezione mmq : " + f.numberText(m.snorm));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmsezione() {
    CalculatorForm f("frmsezione", "Diametro filo di rame ", {3000, 2400, 6180, 3480});

    f.label("Label1", {240, 120, 5580, 480},
            "calcolo del diametro di un filo di rame in relazione all'intensità di corrente")
        .aligned(Align::Center);
    f.label("lblinput", {240, 840, 3000, 255}, "INTENSITA' DI CORRENTE IN AMPERE");
    f.textBox("txtinput", {3360, 780, 1560, 330});

    f.label("lbloutputmin", {240, 1380, 2760, 255}).font(8, true).hidden();
    f.label("lblmqmin", {3120, 1380, 2700, 255}).hidden();
    f.label("lbloutputnorm", {240, 1800, 2760, 255}).font(8, true).hidden();
    f.label("lblmqnorm", {3120, 1800, 2700, 255}).hidden();

    f.button("cmdcalcola", {240, 2400, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2400, 1800, 480}, "CHIUDI");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
