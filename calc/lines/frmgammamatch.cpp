// The gamma match: rod length and spacing from the wavelength, the series
// capacitor, and the length of RG 8/213 that would make that capacitor.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue c;  // the series capacitor in pF, whole, held in single precision
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue freq = f.read("txtfrequenza");
    if (freq <= 0) {
        f.ShowMessage("MANCA INPUT", 48, "MESSAGGIO DI ERRORE");
        f.setFocus("txtfrequenza");
        return;
    }
    const FormValue lambda = 299.793 / freq;  // metres
    const FormValue stub = lambda * 6.25;     // cm
    const FormValue spacing = lambda * 0.7;   // cm
    // 2100 / f is rounded as a single, to the even whole picofarad on a tie;
    // the cable length is rounded the same way. Both are 16-bit.
    m.c = FormValue(static_cast<float>(RoundHalfEven16(ToSingle(2100 / freq))));
    const FormValue cable = RoundHalfEven16((m.c / 0.97) + 1);

    f.setCaption("lbllunghezza", "cm. " + f.picture(stub, "##0.#"));
    f.setCaption("lbldistanza", "spaziatura cm " + f.picture(spacing, "##0.#"));
    f.setCaption("lbllambda", "VALORE DI LAMBDA = mt. " + f.picture(lambda, "##0.#"));
    f.setCaption("lblpf", "CONDENSATORE = pF  " + f.numberText(m.c));
    f.setCaption("lblcavo", "USANDO L'RG 8/213 COME CONDENSATORE LA LUNGHEZZA E' cm. " + f.numberText(cable));
    f.setCaption("lbldiametri", "IL DIAMETRO DEL RADIATORE E' 2 - 4 VOLTE IL DIAMETRO DELLO STUB");
    f.setCaption("lblc", f.numberText(m.c) + " pF");
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The driven element across the top; the coax comes up to the insulator under
// its centre, the braid goes to the centre and the inner conductor through the
// series capacitor to the rod, which runs beside the element to the sliding
// strap. The measure over the element spans the rod.
void DrawGamma(CalculatorForm& form) {
    AntennaDrawing a(form);
    constexpr int kElement = 900, kRodStart = 4800, kStrap = 6600, kOffset = 480, kFeed = 1860;
    a.radiator(360, kElement, 7920, kElement);
    a.gammaRod(kRodStart, kElement, kStrap, kElement, kOffset);
    a.wire(4200, kFeed - 90, 4200, kElement);
    a.wire(4200, kFeed, kRodStart, kFeed);
    a.capacitor(kRodStart, kFeed, kRodStart, kElement + kOffset);
    a.insulator(4200, kFeed);
    a.coax(4200, kFeed + 60, 4200, 2640);
    a.dimension(kRodStart, 540, kStrap, 540);
}

}  // namespace

CalculatorForm frmgammamatch() {
    CalculatorForm f("frmgammamatch", "ADATTATORE A GAMMA MATCH", {1200, 600, 8760, 6480});

    DrawGamma(f);
    f.label("Label4", {2640, 600, 1440, 255}, "centro radiatore").aligned(Align::Right);
    f.label("Label5", {4380, 2220, 1440, 255}, "discesa coax");
    f.label("Label6", {2880, 1740, 1200, 255}, "isolatore").aligned(Align::Right);
    f.label("Label7", {6720, 1020, 1800, 255}, "ponticello regolabile");
    f.label("lbllunghezza", {4800, 240, 1800, 255}, "STUB").aligned(Align::Center).font(8, true);
    f.label("lbldistanza", {4920, 1020, 1680, 255}).font(8, true);
    f.label("lblc", {4980, 1500, 1200, 255}).font(8, true);

    f.label("Label1", {240, 2940, 2400, 255}, "FREQUENZA in MHz");
    f.textBox("txtfrequenza", {2760, 2880, 1440, 330});
    f.label("lbllambda", {240, 3480, 8160, 255}).font(8, true);
    f.label("lblpf", {240, 3810, 8160, 255}).font(8, true);
    f.label("lblcavo", {240, 4140, 8160, 255}).font(8, true);
    f.label("lbldiametri", {240, 4470, 8160, 255});

    f.button("cmdcalcola", {240, 5160, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5160, 1800, 480}, "E S C I");
    f.label("Label3", {7200, 5280, 1200, 255}, "Z9QQX");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
