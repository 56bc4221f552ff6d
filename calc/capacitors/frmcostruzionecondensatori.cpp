// A capacitor built from two plates: area, spacing and the dielectric chosen
// among ten. The result is held in single precision, to a tenth of a pF.
#include <array>

#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue k;     // dielectric constant of the chosen option
    FormValue s, d;  // reloaded on every click
};

struct Dielectric {
    const char* name;
    double constant;
};

const std::array<Dielectric, 10> kDielectrics = {{
    {"ARIA", 1},
    {"MICA", 5.4},
    {"CELLULOIDE", 3},
    {"CERAMICA", 5.6},
    {"VETRONITE", 4.6},
    {"BACHELITE", 4.9},
    {"FORMICA", 6},
    {"VETRO", 7},
    {"PIREX", 4.8},
    {"PLEXIGLAS", 2.8},
}};

// Whole constants stay whole numbers, as written in the table.
FormValue Constant(double k) {
    const auto whole = static_cast<long long>(k);
    return static_cast<double>(whole) == k ? FormValue::Whole(whole) : FormValue(k);
}

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lblcapacità", "");
    f.values<Vars>().k = Constant(kDielectrics.at(static_cast<std::size_t>(index)).constant);
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.s = f.read("txtsuperficie");
    m.d = f.read("txtdistanza");
    if (MissingData(f, m.s * m.d, "txtsuperficie")) return;

    m.d = m.d / 10;  // to centimetres
    const FormValue c = ToSingle(((0.0885 * m.k) * m.s) / m.d);
    const FormValue shown = ReadBackSingle(f, c, "#,##0.#");
    f.setCaption("lblcapacità", "LA CAPACITA' DEL CONDENSATORE E' CIRCA : " + f.numberText(shown) + "  pF");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcostruzionecondensatori() {
    CalculatorForm f("frmcostruzionecondensatori", "COSTRUZIONE CONDENSATORI", {2100, 1200, 8640, 6720});

    f.label("Label1", {240, 120, 8040, 840},
            "E' ormai raro che ci si debba cimentare nella costruzione di condensatori, sia fissi che variabili.  "
            "Tuttavia può essere a volte necessario, per esempio nell'ipotesi di realizzazione di antenne EH o "
            "trappolate. Conoscendo la superficie e la distanza delle armature si può calcolare la capacità .");

    // The dielectrics in two columns of five.
    f.frame("frame1", {240, 1080, 3480, 2160}, "DIELETTRICO").tip("valore della costante dielettrica");
    for (int i = 0; i < 10; ++i) {
        const int left = i < 5 ? 180 : 1800;
        const int top = 300 + (i % 5) * 360;
        f.option(Indexed("Option1", i), {left, top, 1560, 285}, kDielectrics.at(static_cast<std::size_t>(i)).name)
            .in("frame1");
    }

    f.label("Label2", {3960, 1140, 4440, 480}, "SUPERFICIE DELL'ARMATURA, OSSIA SEZIONE DEL DIELETTRICO   in cmq");
    f.textBox("txtsuperficie", {3960, 1680, 1560, 330}).tip("in centimetri quadri");
    f.label("Label3", {3960, 2220, 4440, 480}, "DISTANZA DELLE ARMATURE, OSSIA SPESSORE DEL DIELETTRICO   in mm");
    f.textBox("txtdistanza", {3960, 2760, 1560, 330}).tip("in millimetri");

    f.label("lblcapacità", {240, 3480, 8040, 255}).font(8, true);

    f.frame("Frame2", {240, 3960, 8040, 1200}, "Tensione di scarica teorica in aria (secca)");
    f.label("Label4", {180, 360, 2160, 255}, "Tensione di scarica").in("Frame2");
    f.label("Label6", {2400, 360, 5400, 255}, "1800 V  3000 V  3500 V  4000 V  5000 V").in("Frame2");
    f.label("Label5", {180, 780, 2160, 255}, "Spaziatura in mm").in("Frame2");
    f.label("Label7", {2400, 780, 5400, 255}, "1,3    1,8      2     2,5    3,5  ").in("Frame2");

    f.button("cmdcalcola", {240, 5520, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5520, 1800, 480}, "E S C I");
    f.label("Label8", {6960, 5640, 1320, 255}, "Z9QQX").aligned(Align::Right);

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
