// Small transmitting loops: from the shape, the size and the tube of the loop,
// the frequency and the power, its radiation resistance, losses, efficiency,
// inductance, tuning and coupling capacitors, Q, bandwidth and the voltage on
// the capacitor. The formulas mix units on purpose: area in square metres,
// perimeter in feet, tube in inches.
#include <cctype>

#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

// The shape line takes the place of the shape frame once a calculation has
// run; the area is written just past its right edge.
constexpr int kPhantomLeft = 500;
constexpr int kPhantomTop = 1000;
constexpr int kAreaGap = 200;

std::string Upper(std::string s) {
    for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

void cmdcalcola_Click(FormContext& f) {
    // The shape is taken before anything is read: even a click that ends in
    // "MANCANO DATI" puts the shape line in place of the choice, for good.
    f.hide("fraforma");
    f.show("lblfantasma");
    f.move("lblfantasma", kPhantomLeft, kPhantomTop);
    std::string shape;
    for (int i = 0; i <= 2; ++i) {
        if (f.chosen(Indexed("Option1", i))) {
            shape = f.text(Indexed("Option1", i));
            break;
        }
    }
    shape = Upper(shape);
    f.setCaption("lblfantasma", "ANTENNA LOOP DI FORMA " + shape + " di area mq.: ");
    f.show("lblpiedi");
    f.show("lblpollici");

    const FormValue d = f.read("txtdiametro");
    FormValue t = f.read("txtsezione");
    const FormValue fr = f.read("txtmhz");
    const FormValue w = f.read("txtwatt");
    if (MissingDataSilentNegative(f, ((d * t) * fr) * w, "txtdiametro")) return;

    FormValue perimeter;  // cm
    FormValue area;       // square metres
    if (shape == "CIRCOLARE") {
        f.setCaption("lbldiametro", "diametro in cm.");
        // Only the circle's perimeter is a whole 16-bit number.
        perimeter = RoundHalfEven16(d * 3.14);
        area = Power(d / 200, 2) * 3.1415;
    } else if (shape == "OTTAGONALE") {
        f.setCaption("lbldiametro", "lato in cm.");
        perimeter = d * 8;
        // Linear in the side: the octagon's area has no square.
        area = ((d * 8) / 100) / 2.4153023;
    } else if (shape == "QUADRATA") {
        f.setCaption("lbldiametro", "lato in cm.");
        perimeter = d * 4;
        area = Power(d / 100, 2);
    }

    const Rect phantom = f.rect("lblfantasma");
    f.move("lblarea", phantom.width + phantom.left + kAreaGap, phantom.top);
    f.setCaption("lblarea", f.picture(area, "#,##0.###"));
    f.setNumber("lbllunghezza", perimeter);

    const FormValue feet = perimeter * 0.0328083;
    t = t * 0.03937;  // the tube, from here on in inches
    f.setNumber("Label3", feet);
    f.setNumber("Label5", t);

    const FormValue lambda = ToSingle(300 / fr);
    const FormValue rr = (Power(area, 2) * 31200) / Power(lambda, 4);
    f.setCaption("lblRR", f.picture(rr, "#0.###"));
    const FormValue rl = ((Power(10, -4) * 9.96) * Sqr(fr)) * (feet / t);
    f.setCaption("lblRL", f.picture(rl, "#0.###"));
    const FormValue e = (rr / (rr + rl)) * 100;
    f.setCaption("lblE", f.picture(e, "#,##0.##") + "  %");

    const FormValue l =
        ((Power(10, -2) * 1.9) * feet) * (((Log((96 * feet) / (3.1415 * t)) * 7.353) / Log(FormValue::Whole(10))) - 6.386);
    f.setCaption("lblL", f.picture(l, "##0.###"));
    const FormValue xl = (6.28 * fr) * l;
    f.setCaption("lblXL", f.picture(xl, "#,##0.##"));
    const FormValue ct = (1 / ((6.28 * fr) * xl)) * Power(10, 6);
    f.setCaption("lblCT", f.picture(ct, "#,##0.##"));
    const FormValue cc = (Sqr(rr + rl) / ((6.28 * fr) * xl)) * Power(10, 6);
    f.setCaption("lblCC", f.picture(cc, "#,##0.##"));
    const FormValue q = (xl / (rr + rl)) / 2;
    f.setCaption("lblQ", f.picture(q, "##,##0.##"));
    const FormValue df = (((2 * (rr + rl)) / xl) * fr) * 1000;
    f.setCaption("lblDF", f.picture(df, "##,##0.###"));
    const FormValue vc = Sqr((w * xl) * q);
    f.setCaption("lblVC", f.picture(vc, "##,##0.##"));
    const FormValue db = (Log(e / 100) / Log(FormValue::Whole(10))) * 10;
    f.setCaption("lblDB", f.picture(db, "#,##0.##") + "  dB");
    // The distributed capacitance is shown apart: the user takes it off the tuning capacitor.
    f.setCaption("lblCD", f.picture(0.82 * feet, "#,##0.##"));
}

// Printing never gets past hiding the buttons: the next statement works on a
// reference that was never set, and the program ends there, every time.
void cmdstampa_Click(FormContext& f) {
    f.hide("cmdcalcola");
    f.hide("cmdinfo");
    f.hide("cmdExit");
    f.hide("cmdstampa");
    f.fail(FaultKind::ObjectRequired);
}

void cmdinfo_Click(FormContext& f) { f.OpenForm("frminfoloop", OpenModal); }

void cdmcondensatore_Click(FormContext& f) { f.OpenForm("frmhelpcondensatore", OpenModal); }

void cmdExit_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmloop() {
    CalculatorForm f("frmloop", "Antenne a loop di piccola dimensione", {900, 600, 10800, 8250});

    f.label("Label1", {250, 180, 10140, 360}, " ANTENNE A LOOP   calcolo dei parametri   principali ")
        .font(12, true)
        .aligned(Align::Center);

    // Each opening starts with the shape to choose and the inputs below it; the
    // shape line, the unit lines and the print date wait for a calculation.
    f.frame("fraforma", {250, 840, 4320, 600}, "Forma del loop").tip("scegli la forma");
    f.option("Option1(0)", {120, 240, 1320, 285}, "Circolare").in("fraforma");
    f.option("Option1(1)", {1500, 240, 1380, 285}, "Ottagonale").in("fraforma");
    f.option("Option1(2)", {2940, 240, 1260, 285}, "Quadrata").in("fraforma");

    // Right-aligned, so that the area placed past its right edge reads on from the text.
    f.label("lblfantasma", {kPhantomLeft, kPhantomTop, 5400, 255})
        .font(8, true)
        .aligned(Align::Right)
        .noWrap()
        .hidden();
    f.label("lblarea", {6100, 1000, 1500, 255}).font(8, true);

    f.frame("fraInserimento", {250, 1560, 4320, 2040}, "Inserimento dati");
    f.label("lbldiametro", {120, 360, 2640, 255}, "diametro o lato in cm.").in("fraInserimento");
    f.textBox("txtdiametro", {2880, 300, 1260, 330}).tip("diametro del cerchio o lato del poligono").in("fraInserimento");
    f.label("lblsezione", {120, 780, 2640, 255}, "sezione in mm").in("fraInserimento");
    f.textBox("txtsezione", {2880, 720, 1260, 330}).tip("sezione del tubo del loop").in("fraInserimento");
    f.label("lblmhz", {120, 1200, 2640, 255}, "MHz").in("fraInserimento");
    f.textBox("txtmhz", {2880, 1140, 1260, 330}).tip("frequenza di lavoro prevista").in("fraInserimento");
    f.label("lblwatt", {120, 1620, 2640, 255}, "potenza in Watt").in("fraInserimento");
    f.textBox("txtwatt", {2880, 1560, 1260, 330}).tip("massima potenza prevista").in("fraInserimento");

    f.label("lblpiedi", {370, 3840, 1680, 255}, "lung. in piedi : ").hidden();
    f.label("Label3", {2100, 3840, 2400, 255}).font(8, true);
    f.label("lblpollici", {370, 4200, 1680, 255}, "Sez.in pollici :").hidden();
    f.label("Label5", {2100, 4200, 2400, 255}).font(8, true);

    // The results, one row each, the fixed text on the left and the value on the right.
    struct Row {
        const char* fixed;
        const char* caption;
        const char* result;
        const char* tip;
    };
    const Row rows[] = {
        {"Label2", "Lunghezza del loop in cm.", "lbllunghezza", ""},
        {"Label4", "Resistenza di radiazione in Ohm", "lblRR", ""},
        {"Label6", "Perdita del conduttore ( rame ) in Ohm", "lblRL", ""},
        {"Label8", "Percentuale di efficienza", "lblE", ""},
        {"Label7", "Efficienza in dB", "lblDB", ""},
        {"Label10", "Induttanza del loop in microHenry", "lblL", ""},
        {"Label12", "Reattanza induttiva in ohm", "lblXL", ""},
        {"Label14", "Condensatore di sintonia in pF", "lblCT", "decurtare la capacità distrubuita"},
        {"Label11", "Capacità distribuita del Loop in pF", "lblCD", "da decurtare dal valore precedente"},
        {"Label16", "Condensatore d'accoppiamento pF", "lblCC", "clicca su info condensatore"},
        {"Label18", "fattore di merito Q", "lblQ", ""},
        {"Label20", "Banda passante in Khz", "lblDF", ""},
        {"Label22", "d.d.p.  al condensatore in Volt.", "lblVC", ""},
    };
    int top = 1560;
    for (const Row& r : rows) {
        f.label(r.fixed, {4920, top + 30, 3540, 255}, r.caption).tip(r.tip);
        f.label(r.result, {8520, top, 1860, 300}).font(8, true).framed();
        top += 390;
    }

    f.label("lbldata", {370, 4680, 4200, 255}).font(8, true).hidden();
    f.label("Label9", {370, 6780, 2400, 255}, "Z9 QQX  Vers. 2. 1");

    f.button("cmdcalcola", {370, 5280, 1980, 480}, "&CALCOLA");
    f.button("cmdstampa", {2520, 5280, 1980, 480}, "Stampa").tip("stampa dei dati ottenuti");
    f.button("cmdinfo", {370, 5940, 1980, 480}, "I N F O");
    f.button("cdmcondensatore", {2520, 5940, 1980, 480}, "Info condensatore").tip("accoppiamento capacitivo");
    f.button("cmdExit", {8400, 6780, 1980, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdstampa", cmdstampa_Click);
    f.onClick("cmdinfo", cmdinfo_Click);
    f.onClick("cdmcondensatore", cdmcondensatore_Click);
    f.onClick("cmdExit", cmdExit_Click);
    return f;
}

}  // namespace bm::antennas
