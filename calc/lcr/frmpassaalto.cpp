// High-pass L C filter of one section, pi or T: the user picks the section by
// clicking its picture, the window rearranges itself around it and gives L and C
// for a cut-off frequency and an impedance.
#include "calc/coil_handoff.hpp"
#include "calc/lcr/filter_sections.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

void Image2_Click(FormContext& f) { ChooseTSection(f, 940, 640); }

void cmdcalcola_Click(FormContext& f) {
    const std::optional<FilterInputs> in = FilterAtClick(f);
    if (!in) return;
    const FormValue& fr = in->frequency;
    const FormValue& z = in->impedance;
    // L in microhenry at the default count of decimals; C in picofarad to a tenth,
    // read back in single precision. The high-pass C is the same for both sections.
    const FormValue l = in->pi ? (0.159 * z) / fr : (0.0796 * z) / fr;
    const FormValue c = 159000 / (fr * z);
    ShowFilter(f, f.fixed(l, -1), ReadBackFixedSingle(f, c, 1));
}

void cmdbobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::PlaceFirst()); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmpassaalto() {
    CalculatorForm f("frmpassaalto", "FILTRI PASSA ALTO", {1800, 1200, 8400, 5490});

    // The two sections, each drawn with its title above it.
    f.picture("Image1", {240, 840, 3900, 2430}, "passaalto-pigreco").canClick().canMove().tip("clicca su di me");
    f.picture("Image2", {4560, 840, 2265, 2295}, "passaalto-T").canClick().canMove().tip("clicca su di me");
    f.label("lblpigreco", {1320, 600, 1800, 240}, "FILTRO a P-GRECO").tip("clicca sul circuito");
    f.label("lblT", {5160, 600, 1200, 240}, "FILTRO a T").tip("clicca sul circuito");

    f.label("lblfrequenza", {4180, 1020, 2520, 255}, "FREQUENZA DI TAGLIO IN MHz");
    f.textBox("txtfrequenza", {6800, 850, 1215, 330});
    f.label("lblimpedenza", {4180, 1700, 2520, 255}, "IMPEDENZA (di solito = 50 Ohm)");
    f.textBox("txtimpedenza", {6800, 1550, 1215, 330}, "50");

    f.label("lblinduttanza", {3700, 2300, 4440, 510}).font(8, true);
    f.label("lblcapacità", {3700, 2900, 4440, 510}).font(8, true);

    f.label("lblistruzione", {240, 3420, 7920, 255}, "PER I CALCOLI CLICCA SUL TIPO DI FILTRO PRESCELTO")
        .font(8, true)
        .aligned(Align::Center);
    f.label("lblnota", {240, 3420, 7920, 765},
            "L'attenuazione teorica è di 18 db x ottava. Qualora l'attenuazione di una singola cella non fosse "
            "sufficiente, occorrerà collegare in serie due o più celle.");

    f.button("cmdcalcola", {240, 4320, 1800, 480}, "CALCOLA");
    f.button("cmdbobine", {2280, 4320, 3000, 480}, "DATI COSTRUZIONE BOBINE");
    f.label("Label4", {5640, 4440, 900, 255}, "Z9QQX");
    f.button("cmdesci", {7680, 4320, 480, 480}).image("exit");

    f.onLoad(ShowSectionChooser);
    f.onClick("Image1", ChoosePiSection);
    f.onClick("Image2", Image2_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdbobine", cmdbobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
