// The electrical length of coaxial cable: the wavelength at the measuring
// frequency, shortened by the cable's velocity factor, and the lengths of
// half, one and one and a half electrical waves along the line.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtinput");
    // Only 0 is refused: a negative frequency gives negative lengths.
    if (freq == 0) {
        f.ShowMessage("INSERISCI DATO", 48, "MESSAGGGIO DI ERRORE");
        f.setFocus("txtinput");
        return;
    }
    const FormValue wave = f.picture(300 / freq, "#,##0.###");
    f.setCaption("lbllungmetri", "corrispondenti a mt. : " + wave.text());
    // Velocity factor 0.66 for the 50 ohm cable, 0.8 for the 75 ohm one.
    const FormValue k = f.chosen("Option1(0)") ? 0.66 : 0.8;
    const FormValue electric = ReadBackSingle(f, wave * k, "#,##0.###");
    f.setCaption("lbllungelettrici", "pari a onda elettrica  : " + f.numberText(electric));
    // Half, one and one and a half electrical waves, each a single.
    f.setNumber("lbltrattidilinea", electric / 2);
    f.setNumber("lbltrattidilinea1", electric);
    f.setNumber("lbltrattidilinea2", (electric / 2) * 3);
}

void cmdesci_Click(FormContext& f) { f.close(); }

// The coax from the meter's end on the left, with a tick where half, one and
// one and a half electrical waves end; the three numbers stand over their ticks.
void DrawLine(CalculatorForm& form) {
    AntennaDrawing a(form);
    constexpr int kY = 3600;
    a.coax(600, kY, 7200, kY);
    for (int x : {2700, 4800, 6900}) a.wire(x, kY - 180, x, kY + 180);
}

}  // namespace

CalculatorForm frmlungelettrica() {
    CalculatorForm f("frmlungelettrica", "Lunghezza elettrica cavi coassiali", {1800, 1200, 7680, 5520});

    f.frame("Frame1", {240, 1320, 2400, 1080}, "Tipo di cavo coax");
    f.option("Option1(0)", {180, 300, 2040, 285}, "50 Ohm").in("Frame1");
    f.option("Option1(1)", {180, 660, 2040, 285}, "75 Ohm").in("Frame1");

    f.label("Label1", {240, 120, 7080, 1080},
            "Per effettuare misurazioni attendibili di onde stazionarie occorre che lo strumento sia collegato "
            "all'estremità di un cavo che sia pari a mezz'onda  elettrica (o multipli) .Si indicano alcune "
            "lunghezze in corrispondenza delle quali si presentano condizioni simili a quelle esistenti nel punto "
            "di alimentazione dell'antenna.")
        .tip("alcuni multipli di mezze onde");
    f.label("lblinputfrequenza", {2880, 1500, 2400, 255}, "Misura effettuata a MHz :");
    f.textBox("txtinput", {5340, 1440, 1440, 330});

    f.label("lbllungmetri", {2880, 2040, 4440, 255}).font(8, true);
    f.label("lbllungelettrici", {2880, 2400, 4440, 255}).font(8, true);

    DrawLine(f);
    f.label("lbltrattidilinea", {2160, 3120, 1080, 255}).aligned(Align::Center).font(8, true);
    f.label("lbltrattidilinea1", {4260, 3120, 1080, 255}).aligned(Align::Center).font(8, true);
    f.label("lbltrattidilinea2", {6360, 3120, 1080, 255}).aligned(Align::Center).font(8, true);

    f.button("cmdcalcola", {240, 4140, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 4140, 1800, 480}, "E S C I");
    f.label("Label4", {6120, 4260, 1200, 255}, "Z9QQX");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
