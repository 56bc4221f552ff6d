// A dipole shorter than half a wave, brought to resonance by a coil in each
// arm: the inductance of the coils from the length at hand and where they sit.
#include "calc/antennas/antenna_drawing.hpp"
#include "calc/antennas/loaded_dipole.hpp"
#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue a = f.read("txtdistanza");
    const FormValue b = f.read("txtlunghezza");
    const FormValue d = f.read("txtdiametro");
    const FormValue fr = f.read("txtfrequenza");
    if (MissingData(f, a * b * d * fr, "txtlunghezza")) return;
    if (LoadedDipoleOutOfRange(f, a, b, fr)) return;

    // Single precision, rounded to hundredths, and single again: no trailing point.
    const FormValue l = ReadBackSingle(f, ToSingle(LoadingInductance(a, b, d, fr)), "#,##0.##");
    f.setCaption("lblinduttanza", "L'INDUTTANZA DELLA BOBINA E' micro HENRY : " + f.numberText(l));
    f.show("lblinduttanza");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirstInPlace()); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmtrappolata() {
    CalculatorForm f("frmtrappolata", "ANTENNE ACCORCIATE - VALORE DELL' INDUTTANZA IN RAPPORTO ALLE DIMENSIONI",
                     {1200, 900, 9480, 7110});

    f.label("Label7", {240, 300, 4920, 255}, "LUNGHEZZA TOTALE A DISPOSIZIONE in mt. (B)");
    f.textBox("txtlunghezza", {5280, 240, 1335, 330}).tip("tratto B, lunghezza totale dipolo");
    f.label("Label8", {240, 720, 4920, 255}, "DISTANZA DELLA BOBINA DAL CENTRO in mt. (A)");
    f.textBox("txtdistanza", {5280, 660, 1335, 330}).tip("distanza centro antenna/centrobobina");
    f.label("Label9", {240, 1140, 4920, 255}, "DIAMETRO DEL CONDUTTORE in mm. (d)");
    f.textBox("txtdiametro", {5280, 1080, 1335, 330}).tip("diametro del filo del dipolo");
    f.label("Label10", {240, 1560, 4920, 255}, "FREQUENZA in MHz");
    f.textBox("txtfrequenza", {5280, 1500, 1335, 330}).tip("frequenza centro banda");
    f.label("lblpuntodecimale", {6840, 720, 2400, 720}, "separare i decimali con il punto del tastierino numerico");

    f.button("cmdcalcola", {240, 6060, 1800, 480}, "CALCOLA").tip("ricava il valore dell'induttanza");
    f.button("cmdchiamabobine", {2280, 6060, 2880, 480}, "COSTRUZIONE BOBINE");
    f.button("cmdesci", {7320, 6060, 1800, 480}, "ESCI");

    // The whole dipole with a coil in each arm; A runs from the centre to a coil.
    AntennaDrawing s(f);
    constexpr int y = 3000;
    constexpr int centre = 4680;
    s.insulator(600, y);
    s.radiator(690, y, 1920, y);
    s.loadingCoil(1920, y, 2760, y);
    s.radiator(2760, y, centre - 150, y);
    s.feedPoint(centre, y);
    s.radiator(centre + 150, y, 6600, y);
    s.loadingCoil(6600, y, 7440, y);
    s.radiator(7440, y, 8670, y);
    s.insulator(8760, y);
    s.coax(centre, y + 90, centre, y + 960);
    s.dimension(690, y - 600, 8670, y - 600);
    s.dimension(centre, y + 420, 7020, y + 420);
    // The conductor's diameter, marked on the left arm.
    s.dimension(1260, y - 240, 1260, y + 240);
    f.label("Label1", {2220, y - 330, 300, 255}, "L").font(9, true);
    f.label("Label5", {6900, y - 330, 300, 255}, "L").font(9, true);
    f.label("Label2", {4380, y - 900, 600, 255}, "  B").font(9, true);
    f.label("Label3", {5640, y + 480, 600, 255}, "  A").font(9, true);
    f.label("Label6", {1380, y + 60, 600, 255}, "= d").font(9, true);
    f.label("Label4", {centre + 120, y + 660, 1500, 255}, "discesa coax");

    f.label("lblinduttanza", {240, 4560, 8880, 300}).font(10, true).aligned(Align::Center).hidden();

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
