// A multiband dipole whose traps are coils wound from coaxial cable: the
// cable's own capacitance tunes the coil. The user tries turns and former
// diameters until the coil resonates on the higher frequency.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

struct Vars {
    FormValue radius;       // of the chosen cable, cm
    FormValue capacitance;  // of the chosen cable, pF per cm
};

void Form_Load(FormContext& f) {
    f.setCaption("Label1",
                 "Si impostano le frequenze di lavoro, il diametro del supporto bobina, e, per approssimazione, il "
                 "numero delle spire.   La frequenza di risonanza della bobina dovrebbe coincidere con la frequenza "
                 "di lavoro più alta, se da questa si discosta sensibilmente, occorre variare o il numero delle spire "
                 "o il diametro del supporto. Inoltre il diametro della bobina dovrebbe essere superiore, anche del "
                 "doppio, della lunghezza della bobina stessa.");
}

void Option1_Click(FormContext& f, int index) {
    Vars& m = f.values<Vars>();
    m.radius = index == 0 ? 0.1275 : 0.25;
    m.capacitance = 0.99;
}

void cmdcalcola_Click(FormContext& f) {
    const Vars& m = f.values<Vars>();
    const FormValue f1 = f.read("txtf1");
    const FormValue f2 = f.read("txtf2");
    const FormValue s = f.read("txtdiametro");
    const FormValue n = f.read("txtn");
    if (MissingData(f, f1 * f2 * s * n, "txtf1")) return;

    const FormValue& c = m.radius;
    const FormValue r = s / 2 + c;  // to the centre of the cable
    const FormValue cable = ToSingle(r * 6.28 * n + 2);
    const FormValue capacitance = cable * m.capacitance;
    // 20 n c: ten times a winding as long as n cables side by side.
    const FormValue inductance = ((r * r * (n * n)) / (9 * r + 20 * n * c)) / 2.54;
    const FormValue resonance = 159.155 / Sqr(capacitance * inductance);

    f.setCaption("lblcap", "la capacità è pF: " + f.picture(capacitance, "#0.##"));
    f.setCaption("lblimpedenza", "L'impedenza è uH : " + f.picture(inductance, "#0.##"));
    f.setCaption("lblfrequenza", " LA BOBINA RISUONA A MHz: " + f.picture(resonance, "#,##0.###"));
    const FormValue ratio = (s + 2 * c) / (2 * c * n);
    f.setCaption("lblrapporto", " IL RAPPORTO DIAMETRO/LUNGHEZZA E' = " + f.picture(ratio, "#0.##"));
    f.setCaption("lbllunghezzaa", " LA LUNGHEZZA DEL BRACCIO 'A' E' MT: " + f.picture(72 / f1, "#0.##"));
    f.setCaption("lbllunghezzab", " LA LUNGHEZZA DEL BRACCIO 'B' E' MT: " + f.picture((72 / f2) * 0.9, "#0.##"));
    f.setCaption("lbllunghezzacavo",
                 " OCCORRONO cm. " + f.numberText(RoundHalfEven16(cable)) + " DI CAVO COASSIALE");
    for (const char* l : {"lblfrequenza", "lblrapporto", "lbllunghezzaa", "lbllunghezzab", "lbllunghezzacavo", "lblcalza"})
        f.show(l);
}

void cmdavviso_Click(FormContext& f) { f.OpenForm("frmavvertenza", OpenModal); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmantcoaxmulti() {
    CalculatorForm f("frmantcoaxmulti", "ANTENNA MULTIGAMMA CON TRAPPOLE IN CAVO COASSIALE", {900, 600, 10260, 8160});

    f.frame("Frame1", {6600, 240, 3240, 1320}, "SELEZIONA UN TIPO DI CAVO");
    f.option("Option1(0)", {240, 360, 2760, 285}, "RG 174U").in("Frame1");
    f.option("Option1(1)", {240, 780, 2760, 285}, "RG 58").in("Frame1");

    const char* tab = "usa TAB per spostarti";
    f.label("Label7", {240, 300, 4560, 255}, "FREQUENZA PIU' ALTA IN MHz");
    f.textBox("txtf1", {4920, 240, 1335, 330}).tip(tab);
    f.label("Label8", {240, 720, 4560, 255}, "FREQUENZA PIU' BASSA IN MHz");
    f.textBox("txtf2", {4920, 660, 1335, 330}).tip(tab);
    f.label("Label9", {240, 1140, 4560, 255}, "DIAMETRO DEL SUPPORTO BOBINA in cm.");
    f.textBox("txtdiametro", {4920, 1080, 1335, 330}).tip(tab);
    f.label("Label10", {240, 1560, 4560, 255}, "NUMERO SPIRE DELLA BOBINA IN CAVO COAX");
    f.textBox("txtn", {4920, 1500, 1335, 330}).tip(tab);

    f.button("cmdcalcola", {240, 7080, 1800, 480}, "CALCOLA");
    f.button("cmdavviso", {2280, 7080, 1800, 480}, "AVVISO");
    f.button("cmdesci", {8040, 7080, 1800, 480}, "ESCI");

    // The whole dipole: a coax coil in each arm, A inside it and B beyond.
    AntennaDrawing a(f);
    constexpr int y = 2700;
    a.insulator(420, y);
    a.radiator(510, y, 1800, y);
    a.loadingCoil(1800, y, 2760, y);
    a.radiator(2760, y, 4830, y);
    a.feedPoint(4980, y);
    a.radiator(5130, y, 7200, y);
    a.loadingCoil(7200, y, 8160, y);
    a.radiator(8160, y, 9450, y);
    a.insulator(9540, y);
    a.coax(4980, y + 90, 4980, y + 840);
    a.dimension(2760, y + 360, 4830, y + 360);
    a.dimension(5130, y + 360, 7200, y + 360);
    a.dimension(510, y - 360, 1800, y - 360);
    a.dimension(8160, y - 360, 9450, y - 360);
    f.label("Label3", {3480, y + 420, 600, 255}, "  A").font(9, true);
    f.label("Label11", {5880, y + 420, 600, 255}, "  A").font(9, true);
    f.label("Label2", {900, y - 660, 600, 255}, " B").font(9, true);
    f.label("Label12", {8580, y - 660, 600, 255}, " B").font(9, true);
    f.label("Label5", {1980, y + 150, 720, 255}, "bobina");
    f.label("Label13", {7380, y + 150, 720, 255}, "bobina");
    f.label("Label4", {3480, y - 720, 3000, 255}, "punto di alimentazione antenna").aligned(Align::Center);
    f.label("Label6", {5100, y + 600, 900, 255}, "discesa");

    f.label("lblcap", {240, 3840, 4800, 255}).font(8, true);
    f.label("lblimpedenza", {240, 4140, 4800, 255}).font(8, true);
    f.label("lblfrequenza", {240, 4440, 4800, 255}).font(8, true).hidden();
    f.label("lblrapporto", {240, 4740, 4800, 255}).font(8, true).hidden();
    f.label("lbllunghezzaa", {5160, 3840, 4680, 255}).font(8, true).hidden();
    f.label("lbllunghezzab", {5160, 4140, 4680, 255}).font(8, true).hidden();
    f.label("lbllunghezzacavo", {5160, 4440, 4680, 255}).font(8, true).hidden();
    f.label("lblcalza", {5160, 4740, 4680, 450},
            "LA CALZA DEL CAVO COAX DEVE ESSERE COLLEGATA AL BRACCIO \"A\" DEL DIPOLO")
        .color(colors::Red)
        .hidden();
    f.label("Label1", {240, 5400, 9600, 1440});

    f.onLoad(Form_Load);
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdavviso", cmdavviso_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
