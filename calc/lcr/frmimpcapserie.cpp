// A lossy inductor and a capacitor in series at one frequency: impedance,
// phase, resonance, and with a power the voltages across the two parts.
#include <string>

#include "calc/coil_handoff.hpp"
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtf");
    const FormValue l = f.read("txtl");
    const FormValue c = f.read("txtc");
    const FormValue r = f.read("txtr");
    const FormValue w = f.read("txtw");
    // The power is optional and stays out of the gate.
    if (MissingDataSilentNegative(f, ((freq * l) * c) * r, "txtf")) return;

    // This window's own constants: 6.2832852 for 2 pi and 3.1415 for pi.
    const FormValue xl = (6.2832852 * freq) * l;
    const FormValue xc = 159154.976203 / (freq * c);
    // The impedance is rounded at once; everything below works from the rounded text.
    const FormValue z = f.picture(Sqr(Power(r, 2) + Power(xl - xc, 2)), "##,##0.##");
    const std::string p = f.picture(Atn((xl - xc) / r) * 180 / 3.1415, "#0.##");

    f.setCaption("lblimpedenza", "L'IMPEDENZA TOTALE E' DI " + z.text() + " Ohm ");
    if (xc > xl) f.setCaption("lblanticipo", "LA CORRENTE E' IN ANTICIPO SULLA TENSIONE DI GRADI : " + p);
    else if (xc == xl) f.setCaption("lblanticipo", "LE REATTANZE SONO UGUALI E CONTRAPPOSTE");
    else f.setCaption("lblanticipo", "LA CORRENTE E' IN RITARDO SULLA TENSIONE DI GRADI : " + p);

    const std::string fr = f.picture(159.154976203 / Sqr(c * l), "##,##0.#####");
    f.setCaption("lblrisonanza", "LA RISONANZA E' A Mhz " + fr +
                                     "  - INTRODURRE QUESTO DATO NEL CAMPO FREQUENZA PER VERIFICARE IL COMPORTAMENTO "
                                     "DEL CIRCUITO  IN CONDIZIONE DI RISONANZA");

    // A negative power fails in the root; a rounded Z of 0 fails in the division.
    const FormValue v = Sqr(z * w);
    const FormValue i = v / z;
    // The coil voltage stays a text; the capacitor's is read back from its rounded text.
    const std::string vl = f.fixed(i * xl, 1);
    const FormValue vc = ReadBackFixed(f, i * xc, 1);
    f.setCaption("lbltensione", "TENSIONE SULLA BOBINA : " + vl + " Volt, IN OPPOSIZIONE AI " + f.numberText(vc) +
                                    " Volt SUL CONDENSATORE");
    // No test on the power here: without one the zeros are printed.
    f.setCaption("lblcorrente", "A " + f.numberText(freq) + " Mhz LA TENSIONE TOT. E' " + f.fixed(v, 3) +
                                    " Volt,    LA CORRENTE E'  " + f.fixed(i, 3) + " Ampere");
    f.setCaption("lblxc", "REATTANZA CAP.VA.: " + f.fixed(xc, 2));
    f.setCaption("lblxl", "REATTANZA IND.VA.: " + f.fixed(xl, 2));
    f.setCaption("lblvc", f.numberText(vc) + " V.");
    f.setCaption("lblvl", vl + " V.");
}

// Modal, and the coil window stays where it is.
void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::Modal()); }

void cmdesci_Click(FormContext& f) { f.close(); }

// The generator on the left, the coil and the capacitor along the top, back along the bottom.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int gen = 5400, joint = 7020, right = 8640, top = 600, bottom = 2160;
    s.generator(gen, top, bottom);
    s.inductor(gen, top, joint, top);
    s.capacitor(joint, top, right, top);
    s.wire(right, top, right, bottom);
    s.wire(gen, bottom, right, bottom);
}

}  // namespace

CalculatorForm frmimpcapserie() {
    CalculatorForm f("frmimpcapserie", "CONDENSATORE E INDUTTANZA IN SERIE", {1200, 900, 9840, 7200});
    DrawCircuit(f);
    f.label("Label1", {5700, 1260, 960, 255}, "generatore");
    f.label("lblvl", {5610, 180, 1200, 255}, "induttanza").aligned(Align::Center);
    f.label("lblvc", {7230, 180, 1200, 255}, "condensatore").aligned(Align::Center);

    f.label("lblf", {240, 300, 3120, 255}, "FREQUENZA in Mhz :");
    f.textBox("txtf", {3480, 240, 1440, 330});
    f.label("lbll", {240, 720, 3120, 255}, "INDUTTANZA in microH :");
    f.textBox("txtl", {3480, 660, 1440, 330});
    f.label("lblc", {240, 1140, 3120, 255}, "CAPACITA' in pF :");
    f.textBox("txtc", {3480, 1080, 1440, 330});
    f.label("Label3", {240, 1560, 3120, 255}, "RESISTENZA di PERDITA in Ohm");
    f.textBox("txtr", {3480, 1500, 1440, 330}, "0.2").tip("in funzione della qualità dell'induttore");
    f.label("Label2", {240, 1980, 3120, 255}, "POTENZA  APPLICATA in WATT :").tip("dato facoltativo");
    f.textBox("txtw", {3480, 1920, 1440, 330});
    f.label("Label4", {240, 2460, 4680, 255}, "USARE IL PUNTO PER SEPARARE I DECIMALI");

    f.label("lblimpedenza", {240, 2940, 9240, 255});
    f.label("lblanticipo", {240, 3300, 9240, 255});
    f.label("lblrisonanza", {240, 3660, 9240, 510});
    f.label("lbltensione", {240, 4260, 9240, 510});
    f.label("lblcorrente", {240, 4860, 9240, 510});
    f.label("lblxc", {240, 5460, 4440, 255});
    f.label("lblxl", {4800, 5460, 4440, 255});

    f.button("cmdcalcola", {240, 6120, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 6120, 2160, 480}, "Costruzione Bobine");
    f.button("cmdesci", {4680, 6120, 1800, 480}, "E S C I");
    f.label("lblqqx", {8160, 6240, 1200, 255}, "Z9QQX");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
