// A vertical shorter than a quarter wave, brought to resonance by a capacity
// hat on its top: the capacitance the hat must add and its diameter.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    FormValue h = f.read("txtlunghezza");
    const FormValue d = f.read("txtdiametro");
    const FormValue fr = f.read("txtfrequenza");
    if (MissingData(f, h * d * fr, "txtlunghezza")) return;
    if (h >= 72 / fr) {
        f.ShowMessage("L'ANTENNA NON RICHIEDE CARICO", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtlunghezza");
        return;
    }

    // The hat supplies the electrical degrees the radiator lacks to 90.
    const FormValue degrees = 1.2 * h * fr;
    const FormValue missing = (90 - degrees) * 3.14159 / 180;
    h = h * 100;  // now cm, as the diameter
    const FormValue z = (Log(4 * h / d) - 1) * 60;
    const FormValue xc = z / Tan(missing);
    const FormValue c = 1e6 / (6.28 * xc * fr);
    const FormValue hat = (c / 0.9) * 2.54;
    const FormValue rr = ToSingle(degrees * degrees / 312);

    // Whole numbers, each of which must fit 16 bits.
    const auto whole = [&](const FormValue& v) { return f.numberText(RoundHalfEven16(v)); };
    f.setCaption("lblgradi", "CORRISPONDE A GRADI ELETTRICI : " + whole(degrees));
    f.setCaption("lblresradiazione", "RESISTENZA DI RADIAZIONE Ohm : " + whole(rr));
    f.setCaption("lblimpedenza", "IMPEDENZA DEL RADIATORE Ohm : " + whole(z));
    f.setCaption("lblreattanza", "REATTANZA CAPACITIVA Ohm : " + whole(xc));
    f.setCaption("lblcapacita", "CAPACITA' RICHIESTA in pF : " + whole(c));
    f.setCaption("lbldiamcappello", "DIAMETRO DEL CAPPELLO in cm. : " + whole(hat));
    f.setCaption("lblc", whole(c) + " pF");
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcappello() {
    CalculatorForm f("frmcappello", "CALCOLO DEL CAPPELLO CAPACITVO IN UN RADIATORE VERTICALE", {1500, 900, 9000, 6150});

    f.frame("Frame1", {240, 180, 5640, 1800}, "Inserimento dati");
    f.label("Label2", {180, 360, 3720, 255}, "LUNGHEZZA DEL RADIATORE VERT.in mt.").in("Frame1");
    f.textBox("txtlunghezza", {4080, 300, 1335, 330}).in("Frame1");
    f.label("Label3", {180, 780, 3720, 255}, "DIAMETRO MEDIO DEL RADIATORE in cm.").in("Frame1");
    f.textBox("txtdiametro", {4080, 720, 1335, 330}).in("Frame1");
    f.label("Label4", {180, 1200, 3720, 255}, "FREQUENZA DI LAVORO in Mhz").in("Frame1");
    f.textBox("txtfrequenza", {4080, 1140, 1335, 330}).in("Frame1");

    f.label("lblgradi", {240, 2220, 5640, 255}).font(8, true);
    f.label("lblresradiazione", {240, 2520, 5640, 255}).font(8, true);
    f.label("lblimpedenza", {240, 2820, 5640, 255}).font(8, true);
    f.label("lblreattanza", {240, 3120, 5640, 255}).font(8, true);
    f.label("lblcapacita", {240, 3420, 5640, 255}).font(8, true);
    f.label("lbldiamcappello", {240, 3720, 5640, 255}).font(8, true);
    f.label("Label1", {240, 4200, 8400, 510},
            "le antenne dotate di carico capacitivo sono generalmente più efficienti rispetto a quelle con carico "
            "induttivo ed inoltre risentono meno della diminuzione dell'impedenza di alimentazione");

    f.button("cmdcalcola", {240, 4980, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2280, 4980, 1800, 480}, "AVVISO");
    f.button("cmdesci", {6840, 4980, 1800, 480}, "ESCI");

    // The vertical with its hat, fed at the foot above the ground.
    AntennaDrawing s(f);
    constexpr int x = 7380;
    constexpr int ground = 3900;
    s.capacityHat(x, 720, 1080);
    s.radiator(x, 720, x, ground - 390);
    s.feedPoint(x, ground - 300);
    s.coax(x + 150, ground - 300, 8700, ground - 300);
    s.earthLine(6120, 8700, ground);
    f.label("lblc", {x - 600, 240, 1200, 255}).font(8, true).aligned(Align::Center);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
