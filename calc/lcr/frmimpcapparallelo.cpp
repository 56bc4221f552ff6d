// A lossy inductor and a capacitor in parallel at one frequency: impedance,
// phase, resonance, and with a power the currents in the two branches.
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

    const FormValue xl = (6.2831852 * freq) * l;
    const FormValue xc = 159154.976203 / (freq * c);
    const FormValue r2 = Power(r, 2);
    const FormValue z = xc * Sqr((r2 + Power(xl, 2)) / (r2 + Power(xl - xc, 2)));

    const FormValue phase =
        Atn(((xl / (r2 + Power(xl, 2))) - (1 / xc)) * ((r2 + Power(xl, 2)) / r)) * 180 / 3.14159265358979;
    const std::string p = f.picture(phase, "##0.##");
    if (xc > xl) f.setCaption("lblanticipo", "LA CORRENTE E' IN ANTICIPO SULLA TENSIONE DI GRADI : " + p);
    else if (xc == xl) f.setCaption("lblanticipo", "LE REATTANZE SONO UGUALI E CONTRAPPOSTE");
    else f.setCaption("lblanticipo", "LA CORRENTE E' IN RITARDO SULLA TENSIONE DI GRADI : " + p);

    const std::string fr = f.picture(159.154976203 / Sqr(c * l), "##,##0.#####");
    f.setCaption("lblrisonanza", "LA RISONANZA E' A MHz : " + fr +
                                     " -  PER VERIFICARE IL COMPORTAMENTO DEL CIRCUITO IN CONDIZIONI DI RISONANZA "
                                     "INTRODURRE QUESTO DATO NEL CAMPO FREQUENZA");

    // A negative power fails here, before it is looked at.
    const FormValue v = Sqr(z * w);
    const FormValue i = v / z;
    // The coil current is read back from its rounded text; the capacitor's stays a text.
    const FormValue il = ReadBack(f, v / xl, "#0.###");
    const std::string ic = f.picture(v / xc, "#0.###");

    f.setCaption("lblimpedenza", "L'IMPEDENZA TOTALE E' DI " + f.picture(z, "##,##0.##") + " Ohm ");
    if (w <= 0) {
        f.setCaption("lbltensione", "NON E '  STATA APPLICATA NESSUNA POTENZA");
        f.setCaption("lblcorrente", "");
    } else {
        f.setCaption("lbltensione", "CORRENTE SULLA BOBINA : " + f.numberText(il) + " Amp, IN OPPOSIZIONE AI " + ic +
                                        " Amp SUL CONDENSATORE");
        f.setCaption("lblcorrente", "LA TENSIONE E' " + f.picture(v, "##,##0.###") +
                                        " Volt,   LA CORRENTE REATTIVA E' DI " + f.picture(i, "##,##0.###") +
                                        " Ampere");
    }
    f.setCaption("lblxc", "REATTANZA CAP.VA : " + f.picture(xc, "##0.##"));
    f.setCaption("lblxl", "REATTANZA IND.VA : " + f.picture(xl, "##0.##"));
    f.setCaption("lblvc", ic + " A.");
    f.setCaption("lblvl", f.numberText(il) + " A.");
}

// Modal, and the coil window stays where it is.
void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::Modal()); }

void cmdesci_Click(FormContext& f) { f.close(); }

// The generator on the left feeding the coil and the capacitor side by side.
void DrawCircuit(CalculatorForm& form) {
    Schematic s(form);
    const int gen = 5400, coil = 6840, cap = 8280, top = 480, bottom = 2160;
    s.generator(gen, top, bottom);
    s.wire(gen, top, cap, top);
    s.wire(gen, bottom, cap, bottom);
    s.inductor(coil, top, coil, bottom);
    s.capacitor(cap, top, cap, bottom);
    s.node(coil, top);
    s.node(coil, bottom);
}

}  // namespace

CalculatorForm frmimpcapparallelo() {
    CalculatorForm f("frmimpcapparallelo", "CONDENSATORE E INDUTTANZA IN PARALLELO", {1200, 900, 9840, 7200});
    DrawCircuit(f);
    f.label("Label1", {5700, 1200, 960, 255}, "generatore");
    f.label("lblvl", {7080, 1200, 1140, 255}, "induttanza");
    f.label("lblvc", {8520, 1200, 1140, 255}, "condensatore");

    f.label("lblf", {240, 300, 3120, 255}, "FREQUENZA in Mhz");
    f.textBox("txtf", {3480, 240, 1440, 330});
    f.label("lbll", {240, 720, 3120, 255}, "INDUTTANZA in microH");
    f.textBox("txtl", {3480, 660, 1440, 330});
    f.label("lblc", {240, 1140, 3120, 255}, "CAPACITA' in pF");
    f.textBox("txtc", {3480, 1080, 1440, 330});
    f.label("Label3", {240, 1560, 3120, 255}, "RESISTENZA di PERDITA in Ohm :");
    f.textBox("txtr", {3480, 1500, 1440, 330}, "0.2").tip("in funzione della qualità dell'induttore");
    f.label("Label2", {240, 1980, 3120, 255}, "POTENZA  APPARENTE in Watt").tip("dato facoltativo");
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
    f.button("cmdchiamabobine", {2280, 6120, 2160, 480}, "Costruzione bobine");
    f.button("cmdesci", {4680, 6120, 1800, 480}, "E S C I");
    f.label("lblqqx", {8160, 6240, 1200, 255}, "Z9QQX");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
