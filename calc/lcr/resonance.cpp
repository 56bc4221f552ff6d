#include "calc/lcr/resonance.hpp"

#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

// Left: R, L and C in series between two terminals. Right: R, L and C side by
// side between the two rails.
void Circuits(CalculatorForm& f) {
    Schematic s(f);
    const int top = 1680, bottom = 2880;

    const int in = 600, corner = 3600;
    s.resistor(in, top, 1800, top);
    s.inductor(1800, top, 3000, top);
    s.wire(3000, top, corner, top);
    s.capacitor(corner, top, corner, bottom);
    s.wire(corner, bottom, in, bottom);
    s.terminal(in, top);
    s.terminal(in, bottom);

    const int rails = 5160, rBranch = 6240, lBranch = 7440, cBranch = 8640;
    s.wire(rails, top, cBranch, top);
    s.wire(rails, bottom, cBranch, bottom);
    s.resistor(rBranch, top, rBranch, bottom);
    s.inductor(lBranch, top, lBranch, bottom);
    s.capacitor(cBranch, top, cBranch, bottom);
    for (const int x : {rBranch, lBranch}) {
        s.node(x, top);
        s.node(x, bottom);
    }
    s.terminal(rails, top);
    s.terminal(rails, bottom);

    f.label("Label1", {480, 1020, 3600, 255}, "risonanza serie").font(8, true);
    f.label("Label3", {1080, 1320, 255, 255}, "R");
    f.label("Label4", {2280, 1320, 255, 255}, "L");
    f.label("Label5", {3840, 2160, 255, 255}, "C");
    f.label("Label2", {5040, 1020, 3600, 255}, "risonanza parallelo").font(8, true);
    f.label("Label6", {6420, 2160, 255, 255}, "R");
    f.label("Label7", {7620, 2160, 255, 255}, "L");
    f.label("Label8", {8880, 2160, 255, 255}, "C");
}

void cdmesci_Click(FormContext& f) { f.close(); }

}  // namespace

void ResonanceWindow(CalculatorForm& f, std::string resistance) {
    Circuits(f);

    f.label("lblR", {240, 3300, 3000, 255}, "RESISTENZA IN OHM");
    f.textBox("txtR", {3360, 3240, 1800, 330}, std::move(resistance));
    f.label("lblL", {240, 3720, 3000, 255}, "INDUTTANZA IN microHENRY");
    f.textBox("txtL", {3360, 3660, 1800, 330});
    f.label("lblC", {240, 4140, 3000, 255}, "CAPACITA'  IN picoFARAD");
    f.textBox("txtC", {3360, 4080, 1800, 330});

    f.label("lblfrequenza", {240, 4620, 9000, 255}).font(8, true);
    f.label("lblzserie", {240, 4920, 9000, 255}).font(8, true);
    f.label("lblzparallelo", {240, 5220, 9000, 255}).font(8, true);
    f.label("lblqserie", {240, 5520, 9000, 255}).font(8, true);
    f.label("lbllbserie", {240, 5820, 9000, 255}).font(8, true);

    f.button("cmdcalcola", {6240, 3240, 1800, 480}, "CALCOLA");
    f.button("cdmesci", {6240, 3840, 1800, 480}, "E S C I");
    f.onClick("cdmesci", cdmesci_Click);
}

std::optional<Resonance> ResonanceAtClick(FormContext& f) {
    Resonance& m = f.values<Resonance>();
    m.r = f.read("txtR");
    m.l = f.read("txtL");
    m.c = f.read("txtC");
    if (MissingDataSilentNegative(f, m.r * m.l * m.c, "txtC")) return std::nullopt;
    if (m.r < 0.05) {
        f.ShowMessage("RESISTENZA TROPPO PICCOLA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtR");
        return std::nullopt;
    }
    m.mhz = 159.155 / Sqr(m.c * m.l);
    m.xl = 6.28 * (m.mhz * m.l);
    m.q = m.xl / m.r;
    m.khz = (m.mhz / m.q) * 1000;
    return m;
}

void ShowResonance(FormContext& f, const Resonance& m) {
    // In series the circuit at resonance is its resistance alone.
    const FormValue zParallel = ReadBack(f, (m.l * Power(FormValue::Whole(10), 6)) / (m.c * m.r), "###,##0.#");
    f.setCaption("lblfrequenza", "FREQUENZA DI RISONANZA : " + f.picture(m.mhz, "###,##0.###") + " MHz");
    f.setCaption("lblzserie", "IMPEDENZA SERIE : " + f.numberText(m.r) + " Ohm");
    f.setCaption("lblzparallelo", "IMPEDENZA PARALLELO : " + f.numberText(zParallel) + " Ohm");
    f.setCaption("lblqserie", "IL Q DEL CIRCUITO SERIE E' =  " + f.picture(m.q, "##0.#"));
}

}  // namespace bm::lcr
