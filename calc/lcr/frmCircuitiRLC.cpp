// Reactances, series and parallel impedance and phase of R, L and C: the three in
// series, and L with C in series across R. The window sizes and centres itself.
#include "calc/schematic.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue r, l, c;  // double precision
    FormValue f;        // the frequency, single precision from the moment it is read
};

void Form_Load(FormContext& f) {
    const Rect w = f.window();
    f.moveWindow(Rect{w.left, w.top, 8595, 6840});
    CenterOnScreen(f);
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.r = f.read("txtR");
    m.l = f.read("txtL");
    m.c = f.read("txtC");
    m.f = ToSingle(f.read("txtF"));
    if (MissingDataSilentNegative(f, m.r * m.l * m.c * m.f, "txtR")) return;

    // Both reactances become texts at once; the total comes from those texts.
    const FormValue xl = f.picture((m.f * 6.283184) * m.l, "#,##0.##");
    const FormValue xc = f.picture(159190 / (m.c * m.f), "#,##0.##");
    const FormValue x = xl - xc;
    const FormValue root = Sqr(Power(m.r, 2) + Power(x, 2));
    const std::string zs = f.picture(root, "#,##0.##");
    const std::string zp = f.picture((m.r * x) / root, "#,##0.##");
    const FormValue parallel = Abs(FormValue(f.textValue(zp)));
    const FormValue angle = ToSingle(Atn(x / m.r));
    const FormValue phase = ReadBackSingle(f, angle * 180 / 3.141592, "##0.##");

    if (x > 0) {
        f.setCaption("lblanticipo", "TENSIONE IN ANTICIPO SULLA CORRENTE");
    } else if (x == 0) {
        f.setCaption("lblanticipo", "CONDIZIONE DI RISONANZA");
    } else {
        f.setCaption("lblanticipo", "TENSIONE IN RITARDO SULLA CORRENTE");
    }
    f.setCaption("lblreattanzaInduttiva", "REATTANZA INDUTTIVA = " + xl.text() + " OHM");
    f.setCaption("lblreattanzaCapacitiva", "REATTANZA CAPACITIVA = " + xc.text() + " OHM");
    f.setCaption("lblreattanzatotale", "REATTANZA TOTALE = " + f.picture(x, "#,##0.#") + " OHM");
    f.setCaption("lblImpedenzaserie", "IMPEDENZA TOT. SERIE = " + zs + " OHM");
    f.setCaption("lblimpedenzaparallelo", "IMPEDENZA TOT. PARALLELO = " + f.numberText(parallel) + " OHM");
    f.setCaption("lblsfasamento", "LO SFASAMENTO E' DI : " + f.numberText(phase) + " gradi");
}

void cmdesci_Click(FormContext& f) { f.close(); }

// Left: generator, R, L and C in series. Right: generator with R across it, and
// beside R the branch of L along the top and C down to the return wire.
void DrawCircuits(CalculatorForm& form) {
    Schematic s(form);
    const int top = 1320, bottom = 2520;

    const int left = 600, right = 3960;
    s.generator(left, top, bottom);
    s.resistor(left, top, 1680, top);
    s.inductor(1680, top, 2880, top);
    s.capacitor(2880, top, right, top);
    s.wire(right, top, right, bottom);
    s.wire(left, bottom, right, bottom);

    const int gen = 4800, branch = 6000, end = 7920;
    s.generator(gen, top, bottom);
    s.wire(gen, top, branch, top);
    s.resistor(branch, top, branch, bottom);
    s.inductor(branch, top, end, top);
    s.capacitor(end, top, end, bottom);
    s.wire(gen, bottom, end, bottom);
    s.node(branch, top);
    s.node(branch, bottom);
}

}  // namespace

CalculatorForm frmCircuitiRLC() {
    CalculatorForm f("frmCircuitiRLC", "CALCOLO IMPEDENZA DI CIRCUITI CON R L C", {1800, 1500, 8595, 6840});

    f.label("Label1", {240, 120, 7995, 600},
            "CONOSCENDO IL VALORE DELLA RESISTENZA, DELL' INDUTTANZA, DELLA CAPACITA' E DELLA FREQUENZA, SI "
            "PUO' RICAVARE IL VALORE DELL' IMPEDENZA TOTALE DEL CIRCUITO")
        .aligned(Align::Center);
    DrawCircuits(f);
    f.label("Label2", {600, 840, 3360, 255}, "R L C in serie").aligned(Align::Center);
    f.label("Label3", {4800, 840, 3120, 255}, "L C in parallelo a R").aligned(Align::Center);

    f.label("lblresistenza", {240, 3060, 2160, 255}, "RESISTENZA in Ohm :");
    f.textBox("txtR", {2460, 3000, 1200, 330});
    f.label("lblinduttanza", {240, 3480, 2160, 255}, "INDUTTANZA in microH :");
    f.textBox("txtL", {2460, 3420, 1200, 330});
    f.label("lblcapacità", {240, 3900, 2160, 255}, "CAPACITA' in pF :");
    f.textBox("txtC", {2460, 3840, 1200, 330}).tip("campo obbligato");
    f.label("lblfrequenza", {240, 4320, 2160, 255}, "FREQUENZA in MHz :");
    f.textBox("txtF", {2460, 4260, 1200, 330}).tip("campo obbligato");

    f.label("lblreattanzaInduttiva", {3960, 2880, 4275, 255});
    f.label("lblreattanzaCapacitiva", {3960, 3180, 4275, 255});
    f.label("lblreattanzatotale", {3960, 3480, 4275, 255});
    f.label("lblImpedenzaserie", {3960, 3780, 4275, 255});
    f.label("lblimpedenzaparallelo", {3960, 4080, 4275, 255});
    f.label("lblsfasamento", {3960, 4380, 4275, 255});
    f.label("lblanticipo", {3960, 4680, 4275, 255});

    f.button("cmdcalcola", {240, 5400, 1800, 480}, "CALCOLA").tip("CALCOLA IL VALORE DELL'IMPEDENZA");
    f.button("cmdesci", {2280, 5400, 1800, 480}, "E S C I").tip("ESCE DALL'APPLICAZIONE");
    f.label("Label10", {7080, 5520, 1155, 255}, "Z9QQX").aligned(Align::Right);

    f.onLoad(Form_Load);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
