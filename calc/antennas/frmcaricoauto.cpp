// A short whip loaded at its base, with a second coil there that matches it to
// 50 ohm: the turns of both coils on a given former.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

// Turns of an air coil of `l` microhenry, `length` long on a former of `diameter`, both in mm.
FormValue Turns(const FormValue& l, const FormValue& length, const FormValue& diameter) {
    return Sqr(l * 1010 * (length / diameter + 0.45) / diameter);
}

void cmdcalcola_Click(FormContext& f) {
    // No check of missing data here: an empty window divides by zero.
    const FormValue fr = f.read("txtf");
    const FormValue db = f.read("txtdiambobina");
    const FormValue h = f.read("txtlungantenna");
    const FormValue r = f.read("txtdiamant") / 2000;  // radius in metres, from a diameter in mm
    const FormValue l1 = f.read("txtlungL1");
    const FormValue l2 = f.read("txtlungL2");

    const FormValue matching = 50 / (6.28 * fr);  // 50 ohm of reactance at F
    if (h >= 72 / fr) {
        f.ShowMessage("RADIATORE TROPPO LUNGO", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtlungantenna");
        return;
    }
    const FormValue n1 = ReadBack(f, Turns(matching, l1, db), "#,##0.#");
    f.setCaption("lblspireL1", "LA BOBINA L 1 E' FORMATA DA :   " + f.numberText(n1) + " SPIRE IN ARIA");

    const FormValue degrees = 1.2 * h * fr;
    const FormValue z = (Log(2 * h / r) - 1) * 60;
    const FormValue xl = z / Tan(degrees * 3.14159 / 180);
    const FormValue loading = xl / (6.283184 * fr);
    const std::string n2 = f.picture(Turns(loading, l2, db), "#,##0.#");
    f.setCaption("lblspire2", "LA BOBINA L2  E' FORMATA DA : " + n2 + " SPIRE IN ARIA");
    f.show("lblnotaspire");
}

void cmdavvertenza_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcaricoauto() {
    CalculatorForm f("frmcaricoauto", "BOBINA DI CARICO CON ADATTAMENTO DI IMPEDENZA ALLA BASE", {1200, 900, 9600, 6150});

    f.label("Label1", {240, 300, 3720, 255}, "FREQUENZA IN MHz :");
    f.textBox("txtf", {4080, 240, 1335, 330}).tip("per frequenze H F");
    f.label("Label2", {240, 720, 3720, 255}, "LUNGHEZZA ANTENNA in mt. :");
    f.textBox("txtlungantenna", {4080, 660, 1335, 330}).tip("deve essere inferiore ad 1/4 lambda");
    f.label("Label3", {240, 1140, 3720, 255}, "DIAMETRO MEDIO ANTENNA in mm. :");
    f.textBox("txtdiamant", {4080, 1080, 1335, 330});
    f.label("Label4", {240, 1560, 3720, 255}, "DIAMETRO INTERNO BOBINA in mm.");
    f.textBox("txtdiambobina", {4080, 1500, 1335, 330}).tip("diametro del supporto bobina");
    f.label("Label5", {240, 1980, 3720, 255}, "LUNGHEZZA TRATTO L1 in mm.");
    f.textBox("txtlungL1", {4080, 1920, 1335, 330}).tip("lunghezza della bobina di adattamento impedenza");
    f.label("Label6", {240, 2400, 3720, 255}, "LUNGHEZZA TRATTO L2 in mm.");
    f.textBox("txtlungL2", {4080, 2340, 1335, 330}).tip("lunghezza della bobina di carico induttivo");

    f.label("lblspireL1", {240, 3060, 5880, 255}).font(8, true);
    f.label("lblspire2", {240, 3420, 5880, 255}).font(8, true);
    f.label("lblnotaspire", {240, 3900, 5160, 720},
            "IL NUMERO DELLE SPIRE E' SOGGETTO A VARIAZIONI IN RELAZIONE ALLA NATURA DEL SUPPORTO DELLA BOBINA ED "
            "ALLA COSTRUZIONE DELLA STESSA")
        .color(colors::Red)
        .hidden();

    f.button("cmdcalcola", {240, 4980, 1800, 480}, "CALCOLA");
    f.button("cmdavvertenza", {2280, 4980, 1800, 480}, "Avvertenza");
    f.button("cmdesci", {7440, 4980, 1800, 480}, "ESCI");

    // The whip on its loading coil L2; below it the matching coil L1 to earth,
    // with the line tapped on where they meet.
    AntennaDrawing s(f);
    constexpr int x = 7680;
    s.radiator(x, 240, x, 2160);
    s.loadingCoil(x, 2160, x, 3240);
    s.node(x, 3480);
    s.wire(x, 3240, x, 3480);
    s.inductor(x, 3480, x, 4560);
    s.ground(x, 4560);
    s.coax(x, 3480, 9240, 3480);
    f.label("Label7", {x + 180, 720, 1020, 255}, "Antenna");
    f.label("Label8", {5640, 2580, 1860, 255}, "bobina di carico").aligned(Align::Right);
    f.label("Label9", {5640, 3900, 1860, 255}, "bobina di adattam .").aligned(Align::Right);
    f.label("Label10", {x + 240, 3120, 1200, 255}, "linea 50 ohm");
    f.label("Label11", {x + 240, 2580, 600, 255}, "L 2").font(8, true);
    f.label("Label12", {x + 240, 3900, 600, 255}, "L 1").font(8, true);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavvertenza", cmdavvertenza_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
