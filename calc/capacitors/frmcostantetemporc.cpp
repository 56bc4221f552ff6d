// The time constant of a resistor charging a capacitor, or the part that gives
// a wanted time: megaohm times microfarad is seconds.
#include "calc/capacitors/time_constant.hpp"
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue a, b;  // the two known quantities, reloaded on every click
};

const KnownPairs kPairs = {{
    {"RESISTENZA e CAPACITA'", {"RESISTENZA :", "CAPACITA' :", "TEMPO :"}, {" megaOhm", " microFarad", " secondi"}},
    {"TEMPO e RESISTENZA", {"TEMPO :", "RESISTENZA :", "CAPACITA' :"}, {" secondi", " megaOhm", " microFarad"}},
    {"TEMPO e CAPACITA'", {"TEMPO :", "CAPACITA' :", "RESISTENZA :"}, {" secondi", " microFarad", " megaOhm"}},
}};

const CircuitPart kCapacitor{Part::Capacitor, "lblc", "C"};

void Option1_Click(FormContext& f, int index) { ShowKnownPair(f, kPairs.at(static_cast<std::size_t>(index)), kCapacitor); }

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.a = f.read("txtinput1");
    m.b = f.read("txtinput2");
    if (MissingDataSilentNegative(f, m.a * m.b, "txtinput1")) return;

    // Time is R times C; either part is the time over the other.
    const int option = f.chosenIndex("Option1");
    if (option < 0) return;
    ShowResult(f, kCapacitor, option, f.fixed(option == 0 ? m.a * m.b : m.a / m.b, 4), m.a, m.b);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcostantetemporc() {
    CalculatorForm f("frmcostantetemporc", "Calcolo costante di tempo in un circuito con  Resistenza e Capacità",
                     {2100, 1500, 8640, 5040});
    TimeConstantControls(f, kPairs, kCapacitor,
                         "LA COSTANTE DI TEMPO RAPPRESENTA IL TEMPO IMPIEGATO DA UN CONDENSATORE A CARICARSI AL 63 %  "
                         "ATTRAVERSO UNA RESISTENZA");
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
