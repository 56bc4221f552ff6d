#include "calc/capacitors/time_constant.hpp"

#include <utility>

namespace bm::capacitors {

void DrawChargingCircuit(CalculatorForm& f, Part part, int left, int top, int right, int bottom) {
    Schematic s(f);
    // The battery: the long plate is the positive pole, towards the resistor.
    const int mid = (top + bottom) / 2;
    s.wire(left, top, left, mid - 60);
    s.wire(left - 180, mid - 60, left + 180, mid - 60);
    s.wire(left - 90, mid + 60, left + 90, mid + 60);
    s.wire(left, mid + 60, left, bottom);

    s.resistor(left, top, right, top);
    s.part(part, right, top, right, bottom);
    s.wire(left, bottom, right, bottom);
}

void TimeConstantControls(CalculatorForm& f, const KnownPairs& pairs, const CircuitPart& part, const char* intro) {
    f.label("Label1", {240, 120, 8040, 480}, intro);

    f.frame("Frame1", {240, 780, 3360, 1440}, "dati conosciuti");
    for (int i = 0; i < 3; ++i)
        f.option(Indexed("Option1", i), {180, 300 + i * 360, 3000, 285}, pairs.at(static_cast<std::size_t>(i)).caption)
            .in("Frame1");

    // Battery at 4560, resistor along 1080, the part down 7080.
    DrawChargingCircuit(f, part.kind, 4560, 1080, 7080, 2040);
    f.label("lblr", {5040, 720, 1560, 255}, "R").aligned(Align::Center);
    f.label(part.label, {7260, 1440, 1140, 255}, part.letter);

    f.label("lblinput(0)", {240, 2520, 1800, 255});
    f.textBox("txtinput1", {2160, 2460, 1800, 330});
    f.label("lblumisura(0)", {4080, 2520, 1440, 255});
    f.label("lblinput(1)", {240, 2940, 1800, 255});
    f.textBox("txtinput2", {2160, 2880, 1800, 330});
    f.label("lblumisura(1)", {4080, 2940, 1440, 255});
    f.label("lblinput(2)", {240, 3420, 1800, 255}).font(8, true);
    f.label("lblinput(3)", {2160, 3420, 1800, 255}).font(8, true).aligned(Align::Right);
    f.label("lblumisura(2)", {4080, 3420, 1440, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3960, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 3960, 1800, 480}, "ESCI");
    f.label("Label4", {7080, 4080, 1200, 255}, "Z9QQX").aligned(Align::Right);
}

void ShowKnownPair(FormContext& f, const KnownPair& pair, const CircuitPart& part) {
    f.setCaption("lblinput(3)", "?");
    f.setCaption("lblr", "R");
    f.setCaption(part.label, part.letter);
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        f.setCaption(Indexed("lblinput", i), pair.names[at]);
        f.setCaption(Indexed("lblumisura", i), pair.units[at]);
    }
}

void ShowResult(FormContext& f, const CircuitPart& part, int option, std::string result, const FormValue& a,
                const FormValue& b) {
    f.setCaption("lblinput(3)", std::move(result));
    if (option == 0) {
        f.setNumber("lblr", a);
        f.setNumber(part.label, b);
    }
    if (option == 1) {
        f.setNumber("lblr", b);
        f.setCaption(part.label, f.text("lblinput(3)"));
    }
    if (option == 2) {
        f.setCaption("lblr", f.text("lblinput(3)"));
        f.setNumber(part.label, b);
    }
}

}  // namespace bm::capacitors
