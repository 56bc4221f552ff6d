// The EH antenna, STAR version: two cylinders tuned by a tuning coil, set in
// phase by a phasing coil and fed through a source coil. The sizes are in
// centimetres on the window and in inches inside the formulas.
#include "calc/antennas/eh_antenna.hpp"

namespace bm::antennas {
namespace {

constexpr const char* kFrames[] = {"Frame1", "Frame2", "Frame3", "Frame4", "Frame5"};

void cmdcalcola_Click(FormContext& f) {
    // The frames take the place of the notice before anything is checked, so
    // they stand empty over a "MANCANO DATI".
    f.hide("lblfantasma");
    for (const char* frame : kFrames) f.show(frame);

    const FormValue fr = f.read("txtfrequenza");
    const FormValue dc = f.read("txtdiametro");
    const FormValue r = f.read("txtratio");
    const FormValue wc = f.read("txtsezfilo");
    const FormValue sc = f.read("txtspaziatura");
    const FormValue cc = f.read("txtdiametrobobina");
    const FormValue din = dc / 2.54;
    const FormValue win = wc / 2.54;
    const FormValue spin = sc / 2.54;
    const FormValue cin = cc / 2.54;
    if (MissingData(f, ((((fr * din) * r) * wc) * sc) * cc, "txtfrequenza", kEhWarningTitle)) return;

    // The cylinders: capacitance in pF from the diameter and the length ratio.
    const FormValue c = ((0.546 * r) * din) + (2.06 * din);
    const FormValue x = 1 / (((6.28 * fr) * c) * 1e-6);
    const FormValue bw = ((((120 * c) * 1e-12) * 6.28) * Power(fr * 1000000, 2)) / 1000;  // kHz
    const FormValue q = (fr * 1000) / bw;
    const FormValue rr = (x * bw) / (fr * 1000);
    const FormValue lin = din * r;
    const FormValue lcm = lin * 2.54;

    // The tuning coil resonates the cylinders with the stray capacitance and half their own.
    const FormValue cs = (0.614 / (Log(din / win) / Log(FormValue::Whole(10)))) * lin;
    const FormValue ch = c / 2;
    const FormValue lt = (1 / (Power((6.28 * fr) * 1000000, 2) * (((c + cs) + ch) * 1e-12))) * 1000000;  // uH
    const FormValue a = (10 * lt) * spin;
    const FormValue nt = (a + Power(Power(a, 2) + ((4.5 * Power(cin, 3)) * lt), 0.5)) / (Power(cin, 2) / 2);
    const FormValue coil = nt * (sc + wc);                    // cm
    const FormValue wire = ((cc * 3.14159) * nt) / 100;       // m
    const FormValue rl = ((((9.96 * 1e-5) * Power(fr * 1000000, 0.5)) / win) * wire) / 30.48;

    // The efficiency in decibels comes from its printed two-decimal figure.
    const FormValue e = (100 * rr) / (rr + rl);
    const FormValue et = f.fixed(e, 2);
    const std::string db = f.fixed((Log(et / 100) * 10) / Log(FormValue::Whole(10)), 3);

    const FormValue ph = 500.38 / fr;  // cm of wire for the phasing coil
    const FormValue turns = ReadBackFixed(f, ph / (3.14 * dc), 1);

    f.setCaption("lbll", f.fixed(lcm, 1));
    f.setCaption("lbll2", f.fixed(lcm, 1));
    f.setCaption("lbld", f.fixed(dc, 1));
    f.setCaption("lbldd", f.fixed(dc, 1));

    f.setCaption("lbllunghezza", "LA LUNGHEZZA DI OGNI CILINDRO E' " + f.fixed(lcm, 1) + " cm.");
    f.setCaption("lbldistanza", "LA DISTANZA DEI DUE CILINDRI E' UGUALE AL DIAMETRO");
    f.setCaption("lblxc", "LA REATTANZA CAPACITIVA DEI CILINDRI E'  " + f.fixed(x, 1) + " Ohms");
    f.setCaption("lblc", "LA CAPACITA' TRA I CILINDRI E'  " + f.fixed(c, 1) + " pF");
    f.setCaption("lbllarghbanda",
                 "BANDWIDTH  +/- 3 dB " + f.fixed(bw, 1) + " KHz" + " con un Q = " + f.fixed(q, 1));
    f.setCaption("lbluHtuning", "L'INDUTTANZA DELLA TUNING COIL E'  " + f.fixed(lt, 1) + " uH");
    f.setCaption("lblspiretuning", "LA TUNING COIL E' FORMATA DA  " + f.fixed(nt, 1) + " SPIRE");
    f.setCaption("lbllungbobina", "LA TUNING COIL E' LUNGA " + f.fixed(coil, 1) + " cm");
    // The wire takes the default count of decimals of the user's settings.
    f.setCaption("lbllungfilo", "OCCORRONO " + f.fixed(wire, -1) + " mt DI FILO");
    f.setCaption("lblresperdita", "LA RESISTENZA DI PERDITA E' " + f.fixed(rl, 2) + "  Ohms");
    f.setCaption("lblphasingcoil",
                 "OCCORRONO " + f.fixed(ph, 1) + " cm DI FILO PER " + f.numberText(turns) + " SPIRE SERRATE");
    f.setCaption("lblefficienza", "IL RENDIMENTO E' CIRCA DEL " + et.text() + "  % PARI A " + db + " dB");

    f.show("Label5");
    f.show("Label11");
}

void cmdstampa_Click(FormContext& f) { PrintWithoutButtons(f); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmEHstar() {
    CalculatorForm f("frmEHstar", " ANTENNA    E H     versione STAR     PROGRAMMA DI CALCOLO TEORICO",
                     {600, 300, 12300, 8160});

    // The cylinders, the phasing coil from the upper one to the tuning coil,
    // and the source coil beside the tuning coil, feeding the coax.
    AntennaDrawing a(f);
    DrawEhCylinders(f, a);
    using C = EhCylinders;
    constexpr int kTuning = 3000;
    constexpr int kTop = 1260;
    constexpr int kBottom = 3120;
    constexpr int kSource = 3480;
    a.inductor(C::kRight, kTop, kTuning, kTop);
    a.inductor(kTuning, kTop, kTuning, kBottom);
    a.wire(C::kRight, kBottom, kTuning, kBottom);
    a.inductor(kSource, 1890, kSource, 2490);
    a.coax(kSource, 2490, kSource, 3660);
    f.label("lblphasing", {1920, 900, 1200, 255}, "phasing coil");
    f.label("lbltuning", {1920, 2070, 1020, 255}, "tuning coil");
    f.label("lblsurce", {3660, 2070, 1140, 255}, "source coil");
    f.label("Label1", {3660, 3300, 600, 255}, "coax");

    struct Input {
        const char* label;
        const char* caption;
        const char* box;
        const char* tip;
        const char* text;
    };
    const Input inputs[] = {
        {"Label12", "frequenza in MHz", "txtfrequenza", "inserisci frequenza", ""},
        {"Label13", "diametro dei cilindri in cm", "txtdiametro", "determina la larghezza di banda", ""},
        {"Label14", "rapporto lunghezza diametro", "txtratio", "normalmente da 5 a 12", "5"},
        {"Label2", "diametro filo tuning in cm", "txtsezfilo", "", ""},
        {"Label3", "spaziatura della tuning c.  in cm", "txtspaziatura", "", ""},
        {"Label4", "diametro della tuning c. in cm", "txtdiametrobobina", "", ""},
    };
    int top = 240;
    for (const Input& in : inputs) {
        f.label(in.label, {5040, top + 60, 3000, 255}, in.caption);
        f.textBox(in.box, {8160, top, 1200, 330}, in.text).tip(in.tip);
        top += 420;
    }

    f.button("cmdcalcola", {9720, 240, 2160, 420}, "CALCOLA");
    f.button("cmdstampa", {9720, 720, 2160, 420}, "S T A M P A");
    f.button("cmdesci", {9720, 1200, 2160, 420}, "E S C I");

    f.label("Label11", {5040, 2940, 6840, 480},
            "LE RISULTANZE SONO  DA CONSIDERARSI TEORICHE E SOGGETTE A VARIAZIONI IN FASE DI REALIZZAZIONE PRATICA")
        .color(colors::Red)
        .hidden();
    f.label("lblfantasma", {360, 4080, 11520, 255}, "TUTTE LE DIMENSIONI DEVONO ESSERE INSERITE IN CENTIMETRI")
        .font(10, true)
        .aligned(Align::Center);

    // The five result frames, hidden until the first calculation.
    const auto results = [&](const char* frame, std::initializer_list<const char*> names) {
        int y = 300;
        for (const char* name : names) {
            f.label(name, {120, y, f.at(ControlKey::Parse(frame)).rect.width - 240, 255}).in(frame);
            y += 270;
        }
    };
    f.frame("Frame1", {360, 4080, 5640, 1440}, "PARAMETRI CILINDRI").hidden();
    results("Frame1", {"lbllunghezza", "lbldistanza", "lblxc", "lblc"});
    f.frame("Frame2", {6120, 4080, 5760, 1710}, "PARAMETRI TUNING COIL  -  SINTONIA ").hidden();
    results("Frame2", {"lbluHtuning", "lblspiretuning", "lbllungbobina", "lbllungfilo", "lblresperdita"});
    f.frame("Frame3", {360, 5640, 5640, 660}, "PARAMETRI PHASING COIL  -  DISACCOPPIAMENTO ").hidden();
    results("Frame3", {"lblphasingcoil"});
    f.frame("Frame4", {360, 6420, 5640, 930}, "PARAMETRI GENERALI").hidden();
    results("Frame4", {"lblefficienza", "lbllarghbanda"});
    f.frame("Frame5", {6120, 5910, 5760, 1440}, "PARAMETRI SOURCE COIL  -  ALIMENTAZIONE ").hidden();
    f.label("Label5", {120, 270, 5520, 1080},
            "L'induttanza della bobina dipende in gran parte  dalle  capacità parassite della rete, partendo da ca. "
            "5 spire poste a 1/2 diametro di distanza dalla t.coil individuare sperimentalmente l'esatto numero")
        .in("Frame5")
        .hidden();

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdstampa", cmdstampa_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
