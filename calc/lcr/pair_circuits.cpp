#include "calc/lcr/pair_circuits.hpp"

namespace bm::lcr {

void PairCircuits(CalculatorForm& f, Part first, Part second) {
    Schematic s(f);
    const int mid = 1080;
    s.wire(600, mid, 960, mid);
    s.part(first, 960, mid, 2220, mid);
    s.part(second, 2220, mid, 3480, mid);
    s.wire(3480, mid, 3840, mid);
    s.terminal(600, mid);
    s.terminal(3840, mid);

    const int a = 5280, b = 7680, upper = 660, lower = 1500;
    s.wire(4680, mid, a, mid);
    s.path({{a, upper}, {a, lower}});
    s.part(first, a, upper, b, upper);
    s.part(second, a, lower, b, lower);
    s.path({{b, upper}, {b, lower}});
    s.wire(b, mid, 8280, mid);
    s.node(a, mid);
    s.node(b, mid);
    s.terminal(4680, mid);
    s.terminal(8280, mid);

    f.label("Label1", {240, 120, 3960, 255}, "CONFIGURAZIONE SERIE").aligned(Align::Center);
    f.label("Label2", {4440, 120, 3960, 255}, "CONFIGURAZIONE PARALLELO").aligned(Align::Center);
}

}  // namespace bm::lcr
