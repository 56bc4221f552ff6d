// The EH antenna, standard version: two cylinders fed through the networks
// L1/C1 and L2/C2, designed from the frequency on the fixed quotient 2368 / 50.
// The results are theoretical, and the window says so.
#include "calc/antennas/eh_antenna.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    const FormValue d = f.read("txtdiametro");
    const FormValue lb = FormValue(f.read("txtlbobina")) * 10;  // the coil length, now in mm
    if (MissingData(f, (fr * d) * lb, "txtfrequenza", kEhWarningTitle)) return;

    const FormValue lc = d * 3.14;  // each cylinder; the gap between them is the diameter

    // XL is the reactance of L1 and of C2, XC that of C1 and of L2. The two
    // networks are not resonant, so the reactances do not cancel.
    const FormValue q = 2368 / FormValue::Whole(50);
    const FormValue xl = Sqr(q - 1) * 50;
    const FormValue xc = (50 * q) / Sqr(q - 1);
    const FormValue l1 = xl / (fr * 6.283184);
    const FormValue c1 = 159154.97 / (fr * xc);
    const FormValue l2 = xc / (fr * 6.283184);
    const FormValue c2 = 159154.97 / (fr * xl);

    // Over a loss resistance of 0.2 ohm.
    const FormValue angle = ((Atn((xl - xc) / 0.2) * 180) / 3.1415);
    f.setCaption("lblanticipo", "LA CORRENTE E' IN RITARDO SULLA TENSIONE DI GRADI : " + f.fixed(angle, 2));
    const FormValue z = Sqr(Power(0.2, 2) + Power(xl - xc, 2));
    const FormValue i = Sqr(z * 100) / z;  // at 100 W
    const FormValue vl = i * xl;
    const FormValue vc = i * xc;
    f.setCaption("lbltensione1", "APPLICANDO 100 WATT LA TENSIONE SULLE BOBINE E'  " + f.fixed(vl, 1) +
                                     " Volt, IN OPPOSIZIONE AI " + f.fixed(vc, 1) + " Volt SUI COND.");
    f.setCaption("lblimpedenza1", "IMPEDENZA TOTALE DELLA RETE  L1/C1:  " + f.fixed(z, 2) + " Ohm ");
    f.setCaption("lblc1", "IL CONDENSATORE  C 1 HA UNA CAPACITA' DI " + f.fixed(c1, 1) + " pF");
    f.setCaption("lblc2", "IL CONDENSATORE  C 2 HA UNA CAPACITA' DI " + f.fixed(c2, 1) + " pF");
    f.setCaption("lblhl1", "LA BOBINA  L 1  HA UN' INDUTTANZA DI " + f.fixed(l1, 1) + " uH");
    f.setCaption("lblhl2", "LA BOBINA  L 2  HA UN' INDUTTANZA DI " + f.fixed(l2, 1) + " uH");

    f.setCaption("lbldiametro", "IL DIAMETRO DEL TUBO E' " + f.numberText(d) + " cm.");
    f.setCaption("lbllunghezza", "LA LUNGHEZZA DI OGNI CILINDRO E' " + f.numberText(lc) + " cm.");
    f.setCaption("lbldistanza", "LA DISTANZA DEI DUE CILINDRI E' " + f.numberText(d) + " cm.");
    f.setNumber("lbll", lc);
    f.setNumber("lbll2", lc);
    f.setNumber("lbld", d);
    f.setNumber("lbldd", d);

    f.setCaption("lblxc1", "REATTANZA CAPACITIVA. di C1: " + f.fixed(xc, 2));
    f.setCaption("lblxl1", "REATTANZA INDUTTIVA. di L1: " + f.fixed(xl, 2));
    f.setCaption("lblcorrente", "APPLICANDO 100 WATT LA CORRENTE E' = " + f.fixed(i, 2) + " Amp.");

    // Only the turns depend on the coil length: 1010 and 0.45 work on millimetres.
    const FormValue dmm = d * 10;
    const std::string n1 = f.picture(Sqr(((l1 * 1010) * ((lb / dmm) + 0.45)) / dmm), "#0.#");
    const FormValue n2 = ReadBackSingle(f, Sqr(((l2 * 1010) * ((lb / dmm) + 0.45)) / dmm), "#0.#");
    const std::string tail =
        " SPIRE SU UNA LUNGHEZZA DI mm. " + f.numberText(lb) + " E UN DIAMETRO DI mm " + f.numberText(dmm);
    f.setCaption("lblspireL1", "LA BOBINA L 1 E' COMPOSTA DA " + n1 + tail);
    f.setCaption("lblspireL2", "LA BOBINA L 2 E' COMPOSTA DA " + f.numberText(n2) + tail);

    f.show("Label8");
    f.show("Label10");
}

void cmdstampa_Click(FormContext& f) { PrintWithoutButtons(f); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmEH() {
    CalculatorForm f("frmEH", " ANTENNA    E H     versione standard   PROGRAMMA DI CALCOLO TEORICO",
                     {600, 300, 12300, 8010});

    // The cylinders and the two networks between them and the coax.
    AntennaDrawing a(f);
    DrawEhCylinders(f, a);
    using C = EhCylinders;
    constexpr int kNode = 3000;
    constexpr int kUpperFeed = 1560;
    constexpr int kLowerFeed = 2820;
    constexpr int kCoax = 2190;
    a.inductor(C::kRight, kUpperFeed, kNode, kUpperFeed);
    a.capacitor(kNode, kUpperFeed, kNode, kCoax);
    a.inductor(kNode, kCoax, kNode, kLowerFeed);
    a.capacitor(C::kRight, kLowerFeed, kNode, kLowerFeed);
    a.node(kNode, kCoax);
    a.coax(kNode, kCoax, 4320, kCoax);
    f.label("Label2", {2160, 1140, 480, 255}, "L 1").font(8, true);
    f.label("Label4", {3180, 1740, 480, 255}, "C 1").font(8, true);
    f.label("Label3", {3180, 2400, 480, 255}, "L 2").font(8, true);
    f.label("Label5", {2160, 2970, 480, 255}, "C 2").font(8, true);
    f.label("Label1", {3720, 1830, 600, 255}, "coax");

    f.label("Label12", {5040, 300, 2880, 255}, "FREQUENZA in MHz");
    f.textBox("txtfrequenza", {8040, 240, 1200, 330}).tip("inserisci frequenza");
    f.label("Label13", {5040, 720, 2880, 255}, "DIAMETRO TUBO in cm");
    f.textBox("txtdiametro", {8040, 660, 1200, 330}).tip("diametro del tubo in cm.");
    f.label("Label14", {5040, 1140, 2880, 255}, "LUNGHEZZA BOBINA in cm").tip("lunghezza presumibile singola bobina");
    f.textBox("txtlbobina", {8040, 1080, 1200, 330}).tip("assegna lunghezza alla bobina");

    f.button("cmdcalcola", {9720, 240, 2160, 420}, "CALCOLA");
    f.button("cmdstampa", {9720, 720, 2160, 420}, "S T A M P A");
    f.button("cmdesci", {9720, 1200, 2160, 420}, "E S C I");

    // The results, from the tube to the coils.
    const char* singles[] = {"lbldiametro", "lbllunghezza", "lbldistanza", "lblhl1",        "lblc1",
                             "lblhl2",      "lblc2",        "lblxl1",      "lblxc1",        "lblimpedenza1",
                             "lblanticipo", "lblcorrente"};
    int top = 1800;
    for (const char* name : singles) {
        f.label(name, {5040, top, 6840, 255}).font(8, true);
        top += 300;
    }
    f.label("lbltensione1", {5040, top + 60, 6840, 450}).font(8, true);
    const char* coilTip = "a parità d'induttanza le bobine possono essere diversamente realizzate";
    f.label("lblspireL1", {5040, top + 600, 6840, 450}).font(8, true).tip(coilTip);
    f.label("lblspireL2", {5040, top + 1140, 6840, 450}).font(8, true).tip(coilTip);

    f.label("Label11", {240, 4380, 4560, 720},
            "LE RISULTANZE SONO  DA CONSIDERARSI TEORICHE E SOGGETTE A VARIAZIONI IN FASE DI REALIZZAZIONE PRATICA")
        .color(colors::Red);
    f.label("Label10", {240, 5220, 4560, 255}, "SI SUPPONE UNA RESISTENZA DI PERDITA DI 0.2 OHM").hidden();
    f.label("Label8", {240, 5640, 4560, 1200},
            "LE RETI  L 1/C 1 e L2/C2  NON POSSONO ESSERE RISONANTI ALTRIMENTI LE REATTANZE UGUALI SI "
            "ANNULLEREBBERO  E  IMPEDENZA E  SFASAMENTO SAREBBERO =   ZERO ")
        .hidden();

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdstampa", cmdstampa_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
