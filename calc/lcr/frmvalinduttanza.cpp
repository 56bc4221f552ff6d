// A coil and a capacitor: from two of frequency, inductance and capacitance,
// the third. Offers the coil window beside it.
#include <array>

#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

struct Vars {
    FormValue a, b;  // the two known quantities, reloaded on every click
};

constexpr const char* kInductance = "INDUTTANZA :";
constexpr const char* kCapacitance = "CAPACITA' :";
constexpr const char* kFrequency = "FREQUENZA :";

// The name and unit of the first input, the second input and the result.
struct Known {
    std::array<const char*, 3> names;
    std::array<const char*, 3> units;
};

const std::array<Known, 3> kKnown = {{
    {{kInductance, kCapacitance, kFrequency}, {" microH", " pF", " MHz"}},
    {{kFrequency, kInductance, kCapacitance}, {" MHz", " microH", " pF"}},
    {{kFrequency, kCapacitance, kInductance}, {" MHz", " pF", " microH"}},
}};

void Option1_Click(FormContext& f, int index) {
    f.setCaption("lblinput(3)", "");
    const Known& k = kKnown.at(static_cast<std::size_t>(index));
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        f.setCaption(Indexed("lblinput", i), k.names[at]);
        f.setCaption(Indexed("lblumisura", i), k.units[at]);
    }
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.a = f.read("txtinput1");
    m.b = f.read("txtinput2");
    if (MissingDataSilentNegative(f, m.a * m.b, "txtinput1")) return;

    // The captions of the inputs, not the options, say which sum to do.
    const std::string first = f.text("lblinput(0)");
    const std::string second = f.text("lblinput(1)");
    constexpr const char* kResult = "#,##0.###";
    if (first == kInductance && second == kCapacitance)
        f.setCaption("lblinput(3)", f.picture(159 / Sqr(m.a * m.b), kResult));
    // From the frequency, inductance and capacitance come out of one and the same sum.
    if (first == kFrequency && second == kInductance)
        f.setCaption("lblinput(3)", f.picture(25300 / ((m.a * m.a) * m.b), kResult));
    if (first == kFrequency && second == kCapacitance)
        f.setCaption("lblinput(3)", f.picture(25300 / ((m.a * m.a) * m.b), kResult));
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::PlaceFirst(180, 180, 3000)); }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmvalinduttanza() {
    CalculatorForm f("frmvalinduttanza", "Calcolo dei parametri di un circuito con  Induttanza e Capacità",
                     {2100, 1800, 8040, 4410});

    f.frame("Frame1", {240, 120, 3360, 1440}, "dati conosciuti");
    f.option("Option1(0)", {180, 300, 3000, 285}, "INDUTTANZA e CAPACITA'").in("Frame1");
    f.option("Option1(1)", {180, 660, 3000, 285}, "FREQUENZA e INDUTTANZA").in("Frame1");
    f.option("Option1(2)", {180, 1020, 3000, 285}, "FREQUENZA e CAPACITA'").in("Frame1");
    f.label("Label1", {3960, 360, 3720, 255}, "Per bobine senza schermo e senza nucleo");
    f.label("Label4", {3960, 840, 1200, 255}, "Z9QQX");

    f.label("lblinput(0)", {240, 1860, 1800, 255});
    f.textBox("txtinput1", {2160, 1800, 1800, 330});
    f.label("lblumisura(0)", {4080, 1860, 1200, 255});
    f.label("lblinput(1)", {240, 2280, 1800, 255});
    f.textBox("txtinput2", {2160, 2220, 1800, 330});
    f.label("lblumisura(1)", {4080, 2280, 1200, 255});
    f.label("lblinput(2)", {240, 2760, 1800, 255}).font(8, true);
    f.label("lblinput(3)", {2160, 2760, 1800, 255}).font(8, true).aligned(Align::Right);
    f.label("lblumisura(2)", {4080, 2760, 1200, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3240, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 3240, 3600, 480}, "DATI PRATICI COSTRUZIONE BOBINE");
    f.button("cmdesci", {6120, 3240, 1560, 480}, "ESCI");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lcr
