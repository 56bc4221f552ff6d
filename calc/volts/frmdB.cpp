// Decibels and signal ratios: from decibels the voltage and power ratios, or
// from two voltages or two powers the decibels. A worked example lies below the
// fold and comes into view when the window grows after a decibel calculation.
#include "forms/calculation.hpp"

namespace bm::volts {
namespace {

struct Vars {
    FormValue rv;  // voltage ratio, as printed: the example works from this text
    FormValue rp;  // power ratio, as printed
};

constexpr Rect kSmall{2100, 2000, 7890, 4900};
constexpr Rect kWithExample{2100, 1000, 7890, 6700};
constexpr const char* kRatio = "#,##0.###";

void Form_Load(FormContext& f) { f.moveWindow(kSmall); }

void Option1_Click(FormContext& f, int index) {
    f.moveWindow(kSmall);
    // Option 0 gives two ratios from one figure; options 1 and 2 give decibels from two.
    const bool fromDecibels = index == 0;
    f.setVisible("lblinput2", !fromDecibels);
    f.setVisible("txtinput2", !fromDecibels);
    f.setVisible("lbloutput2", fromDecibels);
    f.setVisible("lblout2", fromDecibels);
    if (index == 0) {
        f.setCaption("lblinput1", "DECIBEL");
        f.setCaption("lbloutput1", "RAPPORTO  in TENSIONE");
        f.setCaption("lbloutput2", "RAPPORTO in POTENZA");
    }
    if (index == 1) {
        f.setCaption("lblinput1", "TENSIONE ENTRATA");
        f.setCaption("lblinput2", "TENSIONE USCITA");
        f.setCaption("lbloutput1", "DECIBEL");
    }
    if (index == 2) {
        f.setCaption("lblinput1", "POTENZA ENTRATA");
        f.setCaption("lblinput2", "POTENZA USCITA");
        f.setCaption("lbloutput1", "DECIBEL");
    }
    f.hide("lblvariazione");
}

void NotPositive(FormContext& f) {
    f.ShowMessage("SOLO VALORI POSITIVI", 48, "MESSAGGIO DI ERRORE");
    f.setFocus("txtinput1");
}

// Two voltages (factor 20) or two powers (factor 10): the larger over the
// smaller, so the decibels never print negative; the label says which way.
void DecibelsOfRatio(FormContext& f, const FormValue& x, int factor) {
    const FormValue y = f.read("txtinput2");
    if (x * y <= 0) {
        NotPositive(f);
        return;
    }
    FormValue ratio;
    if (x <= y) {
        ratio = y / x;
        f.setCaption("lblvariazione", "DB di GUADAGNO");
    } else {
        ratio = x / y;
        f.setCaption("lblvariazione", "DB di ATTENUAZIONE");
    }
    const FormValue d = Log10(ratio) * factor;
    f.setCaption("lblout1", f.picture(d, "#0.##"));
    f.show("lblvariazione");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue x = f.read("txtinput1");
    if (x < 0) {
        NotPositive(f);
        return;
    }
    if (f.chosen("Option1(0)")) {
        if (x > 70) {
            // Past 70 dB the old ratios stay, and the example still opens with the new figure.
            f.ShowMessage("MASSIMO DB CALCOLABILE = 70", 48, "MESSAGGIO DI ERRORE");
            f.setFocus("txtinput1");
        } else {
            const FormValue rv = Power(FormValue::Whole(10), x / 20);
            const FormValue rp = Power(rv, 2);
            m.rv = f.picture(rv, kRatio);
            m.rp = f.picture(rp, kRatio);
            f.setCaption("lblout1", m.rv.text());
            f.setCaption("lblout2", m.rp.text());
        }
        f.moveWindow(kWithExample);
        f.setNumber("lbldbesempio", x);
    }
    if (f.chosen("Option1(1)")) DecibelsOfRatio(f, x, 20);
    if (f.chosen("Option1(2)")) DecibelsOfRatio(f, x, 10);
}

void txtinput1_Change(FormContext& f) {
    f.setText("txtvoltesempio", "");
    f.setCaption("lbldbesempio", "");
}

// The example multiplies and divides by the printed three-decimal ratio, read
// back from its text; with no ratio printed yet the division has nothing to divide by.
void txtvoltesempio_Change(FormContext& f) {
    const Vars& m = f.values<Vars>();
    const FormValue v = f.read("txtvoltesempio");
    f.setCaption("Label9", f.picture(v * m.rv, kRatio));
    f.setCaption("Label10", f.picture(v / m.rv, kRatio));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmdB() {
    CalculatorForm f("frmdB", "CONVERSIONI TRA DECIBEL E VARIAZIONI DI SEGNALE", kSmall);

    f.frame("Frame1", {240, 840, 7290, 1260}, " Opzioni di calcolo ");
    f.option("Option1(0)", {150, 270, 6990, 285}, "NOTI I DECIBEL TROVARE LA VARIAZIONE IN TENSIONE E IN POTENZA")
        .in("Frame1");
    f.option("Option1(1)", {150, 600, 6990, 285}, "NOTE LE TENSIONI DI ENTRATA E USCITA TROVARE I DECIBEL").in("Frame1");
    f.option("Option1(2)", {150, 930, 6990, 285}, "NOTE LE POTENZE DI ENTRATA E USCITA TROVARE I DECIBEL").in("Frame1");

    f.label("Label1", {240, 90, 7290, 690},
            "Il decibel (dB) è un'unità di misura logaritmica che indica il rapporto esistente tra il segnale "
            "applicato all'ingresso e il segnale prelevato all'uscita di un dispositivo. Il Decibel può esprimere "
            "un guadagno o una attenuazione.");

    const std::string calcola = "inserire i dati e cliccare \"Calcola\"";
    f.label("lblinput1", {240, 2340, 2040, 255});
    f.textBox("txtinput1", {2340, 2280, 1440, 330}).tip(calcola);
    f.label("lblinput2", {240, 2760, 2040, 255});
    f.textBox("txtinput2", {2340, 2700, 1440, 330}).tip(calcola);

    f.label("lbloutput1", {4020, 2340, 2040, 255});
    f.label("lblout1", {6120, 2340, 1410, 255}).font(8, true);
    f.label("lbloutput2", {4020, 2760, 2040, 255});
    f.label("lblout2", {6120, 2760, 1410, 255}).font(8, true);
    f.label("lblvariazione", {4020, 3180, 3510, 255}).font(8, true);

    f.label("Label2", {240, 3180, 3540, 255}, "per separare i decimali usare il punto");
    f.button("cmdcalcola", {240, 3660, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3660, 1800, 480}, "E S C I");
    f.label("Label12", {6330, 3780, 1200, 255}, "Z9QQX");

    // The example, below the fold of the small window.
    f.line("Line1", 120, 4500, 7650, 4500);
    f.label("Label3", {240, 4590, 2400, 255}, "  Facciamo un esempio ").font(8, true);
    f.line("Line2", 240, 4860, 2640, 4860);
    f.label("Label4", {240, 4950, 5460, 255},
            "In un dispositivo che presenta un guadagno o una attenuazione di DB :");
    f.label("lbldbesempio", {5760, 4950, 1770, 255}).font(8, true);
    f.label("Label5", {240, 5340, 3240, 255}, "se si applica in ingresso una tensione di  :");
    f.textBox("txtvoltesempio", {3540, 5280, 1080, 330}).tip("IL CALCOLO E'  INDIPENDENTE DALL'UNITA' DI MISURA");
    f.label("Label11", {4740, 5250, 2790, 420}, " dopo l'inserimento cliccare su CALCOLA  --->");
    f.label("Label6", {240, 5730, 2400, 255}, "si ottengono in uscita :");
    f.label("Label7", {240, 5970, 1200, 255}, "in guadagno  : ");
    f.label("Label9", {1440, 5970, 2040, 255}).font(8, true);
    f.label("Label8", {3600, 5970, 1440, 255}, " in attenuazione  : ");
    f.label("Label10", {5040, 5970, 2490, 255}).font(8, true);
    f.line("Line3", 120, 6240, 7650, 6240);

    f.onLoad(Form_Load);
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onChange("txtinput1", txtinput1_Change);
    f.onChange("txtvoltesempio", txtvoltesempio_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::volts
