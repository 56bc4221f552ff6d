// A vertical shorter than a quarter wave with its loading coil at the feed
// point: the coil's reactance, inductance and turns, and the radiator's own
// figures. The window prints itself as it stands.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    const FormValue r = (f.read("txtdiametrorad") / 2) / 100;  // radius in metres, from a diameter in cm
    const FormValue db = f.read("txtdiametrobob");
    const FormValue lb = f.read("txtlunghezzabob");
    const FormValue h = f.read("txtlunghezzarad");
    if (MissingDataSilentNegative(f, fr * r * h * db * lb, "txtlunghezzarad")) return;
    if (h >= 72 / fr) {
        f.ShowMessage("L'ANTENNA NON RICHIEDE BOBINA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtlunghezzarad");
        return;
    }

    // Below a quarter wave the radiator is short of 90 electrical degrees; the
    // coil supplies the reactance it lacks.
    const FormValue degrees = 1.2 * h * fr;
    const FormValue z = (Log(2 * h / r) - 1) * 60;
    const FormValue xl = z / Tan(degrees * 3.14159 / 180);
    const FormValue l = xl / (6.283184 * fr);
    const FormValue turns = Sqr(l * (45 * db + 101 * lb)) / db;
    const FormValue w = ToSingle(300 / fr);
    const FormValue ratio = (24 * h) / w;

    f.setCaption("lblgradi", "Gradi elettrici : " + f.fixed(degrees, 1));
    f.setCaption("lblRR", "Resistenza di radiazione Ohm : " + f.fixed(ratio * ratio, 2));
    f.setCaption("lblimpedenza", "Impedenza del radiatore Ohm : " + f.fixed(z, 1));
    f.setCaption("lblreattanza", "Reattanza induttiva bobina Ohm : " + f.fixed(xl, 1));
    f.setCaption("lblinduttanza", "Induttanza bobina microH : " + f.fixed(l, 1));
    f.setCaption("lblspire", "numero spire occorrenti : " + f.fixed(turns, 1));
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

// The whole window goes to the printer, buttons and all.
void cmdstampa_Click(FormContext& f) { f.PrintWindow(); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmAntAcc() {
    CalculatorForm f("frmAntAcc", "Radiatore accorciato con carico induttivo nel punto di alimentazione",
                     {1500, 900, 9000, 6690});

    f.frame("frainserimento", {240, 180, 5520, 2520}, "Inserimento dati per calcolo numero spire");
    f.label("Label1", {180, 360, 3600, 255}, "Lunghezza del radiatore in mt.")
        .in("frainserimento")
        .tip("lunghezza dell'antenna che si prevede di adottare");
    f.textBox("txtlunghezzarad", {3900, 300, 1335, 330})
        .in("frainserimento")
        .tip("lunghezza dell'antenna che si prevede di adottare");
    f.label("Label2", {180, 780, 3600, 255}, "Diametro medio radiatore in cm.").in("frainserimento");
    f.textBox("txtdiametrorad", {3900, 720, 1335, 330}).in("frainserimento");
    f.label("Label3", {180, 1200, 3600, 255}, "Frequenza in MHz.").in("frainserimento").tip("frequenza di utilizzo dell'antenna");
    f.textBox("txtfrequenza", {3900, 1140, 1335, 330}).in("frainserimento").tip("frequenza di utilizzo dell'antenna");
    f.label("Label4", {180, 1620, 3600, 255}, "Lunghezza bobina in cm.")
        .in("frainserimento")
        .tip("è preferibile sia più lunga del diametro");
    f.textBox("txtlunghezzabob", {3900, 1560, 1335, 330})
        .in("frainserimento")
        .tip("inserire dato compatibile con il diametro della bobina e la sez. del filo");
    f.label("Label5", {180, 2040, 3600, 255}, "Diametro bobina in cm.").in("frainserimento");
    f.textBox("txtdiametrobob", {3900, 1980, 1335, 330})
        .in("frainserimento")
        .tip("inserire dato compatibile con la lunghezza della bobina e la sezione del filo");

    f.label("lblgradi", {240, 2940, 5520, 255}).font(8, true);
    f.label("lblRR", {240, 3240, 5520, 255}).font(8, true);
    f.label("lblimpedenza", {240, 3540, 5520, 255}).font(8, true);
    f.label("lblreattanza", {240, 3840, 5520, 255}).font(8, true);
    f.label("lblinduttanza", {240, 4140, 5520, 255}).font(8, true);
    f.label("lblspire", {240, 4440, 5520, 255}).font(8, true);

    f.button("cmdcalcola", {240, 5520, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2220, 5520, 1800, 480}, "AVVISO");
    f.button("cmdstampa", {4200, 5520, 1800, 480}, "STAMPA");
    f.button("cmdchiudi", {6960, 5520, 1800, 480}, "E S C I");

    // The short vertical with its coil at the foot, fed from the side.
    AntennaDrawing s(f);
    constexpr int x = 7320;
    constexpr int ground = 4560;
    s.earthLine(6240, 8760, ground);
    s.radiator(x, 360, x, 3000);
    s.loadingCoil(x, 3000, x, 4140);
    s.feedPoint(x, 4320);
    s.coax(x + 150, 4320, 8760, 4320);

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdstampa", cmdstampa_Click);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::antennas
