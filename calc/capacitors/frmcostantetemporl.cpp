// The time constant of a resistor feeding a coil, or the part that gives a
// wanted time: microhenry over ohm is microseconds. The coil comes out to six
// decimals, everything else to four.
#include "calc/capacitors/time_constant.hpp"
#include "forms/calculation.hpp"

namespace bm::capacitors {
namespace {

struct Vars {
    FormValue a, b;  // the two known quantities, reloaded on every click
};

const KnownPairs kPairs = {{
    {"RESISTENZA e INDUTTANZA", {"RESISTENZA :", "INDUTTANZA :", "TEMPO :"}, {" Ohm", " microHenry", " microsec"}},
    {"TEMPO e RESISTENZA", {"TEMPO :", "RESISTENZA :", "INDUTTANZA :"}, {" microsec", " Ohm", " microHenry"}},
    {"TEMPO e INDUTTANZA", {"TEMPO :", "INDUTTANZA :", "RESISTENZA :"}, {" microsec", " microHenry", " Ohm"}},
}};

const CircuitPart kCoil{Part::Inductor, "lbll", "L"};

void Option1_Click(FormContext& f, int index) { ShowKnownPair(f, kPairs.at(static_cast<std::size_t>(index)), kCoil); }

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.a = f.read("txtinput1");
    m.b = f.read("txtinput2");
    if (MissingDataSilentNegative(f, m.a * m.b, "txtinput1")) return;

    // t = L / R: the time and the resistance divide the second input by the first.
    const int option = f.chosenIndex("Option1");
    if (option < 0) return;
    ShowResult(f, kCoil, option, option == 1 ? f.fixed(m.a * m.b, 6) : f.fixed(m.b / m.a, 4), m.a, m.b);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcostantetemporl() {
    CalculatorForm f("frmcostantetemporl", "Calcolo costante di tempo in un circuito con  Resistenza e Induttanza",
                     {2100, 1500, 8640, 5040});
    TimeConstantControls(f, kPairs, kCoil,
                         "LA COSTANTE DI TEMPO RAPPRESENTA IL TEMPO IMPIEGATO DALLA CORRENTE A RAGGIUNGERE IL 63 %  "
                         "DEL VALORE MASSIMO");
    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::capacitors
