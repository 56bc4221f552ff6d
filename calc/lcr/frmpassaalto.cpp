// High-pass L C filter of one section, pi or T: the user picks the section by
// clicking its picture, the window rearranges itself around it and gives L and C
// for a cut-off frequency and an impedance.
#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

// What a calculation needs, hidden until a section is chosen.
constexpr const char* kInputs[] = {"lblfrequenza", "lblimpedenza", "txtfrequenza", "txtimpedenza", "cmdcalcola",
                                   "cmdbobine"};

void Form_Load(FormContext& f) {
    f.show("lblistruzione");
    for (const char* c : kInputs) f.hide(c);
    f.hide("lblinduttanza");
    f.hide("lblcapacità");
    f.hide("lblnota");
}

// The input block takes the place on the right that the other picture leaves.
void ShowInputs(FormContext& f) {
    f.move("lblfrequenza", 4180, 1020);
    f.move("lblimpedenza", 4180, 1700);
    f.move("txtfrequenza", 6800, 850);
    f.move("txtimpedenza", 6800, 1550);
    for (const char* c : kInputs) f.show(c);
}

void Image1_Click(FormContext& f) {
    f.show("Image1");
    f.hide("Image2");
    f.show("lblpigreco");
    f.hide("lblT");
    f.hide("lblistruzione");
    ShowInputs(f);
    f.setTooltip("Image1", "");
    f.setFocus("txtfrequenza");
}

void Image2_Click(FormContext& f) {
    f.hide("Image1");
    f.show("Image2");
    f.move("Image2", 240, 840);
    f.hide("lblpigreco");
    f.show("lblT");
    f.move("lblT", 940, 640);
    f.hide("lblistruzione");
    ShowInputs(f);
    // The pi picture's tooltip goes here too; the T picture keeps its own.
    f.setTooltip("Image1", "");
    f.setFocus("txtfrequenza");
}

void cmdcalcola_Click(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    const FormValue z = f.read("txtimpedenza");
    if (MissingDataSilentNegative(f, fr * z, "txtfrequenza")) return;

    f.move("lblinduttanza", 3700, 2300);
    f.move("lblcapacità", 3700, 2900);
    f.show("lblinduttanza");
    f.show("lblcapacità");

    // The section is the picture still showing. L in microhenry, C in picofarad;
    // the high-pass C is the same for both sections.
    const bool pi = f.visible("Image1");
    const FormValue l = pi ? (0.159 * z) / fr : (0.0796 * z) / fr;
    const FormValue c = 159000 / (fr * z);
    // L at the default count of decimals; C to a tenth, read back in single precision.
    const std::string lText = f.fixed(l, -1);
    const FormValue cRounded = ToSingle(FormValue(f.textValue(f.fixed(c, 1))));

    f.setCaption("lblinduttanza", "INDUTTANZA in microHENRY di L : " + lText);
    f.setCaption("lblcapacità", "CAPACITA' in picoFARAD di C : " + f.numberText(cRounded));
    f.show("lblnota");
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

    f.onLoad(Form_Load);
    f.onClick("Image1", Image1_Click);
    f.onClick("Image2", Image2_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdbobine", cmdbobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
