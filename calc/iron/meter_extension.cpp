#include "calc/iron/meter_extension.hpp"

namespace bm::iron {

void MeterControls(CalculatorForm& f, const MeterNames& names, const char* intro) {
    f.label("Label1", {240, 120, 7200, 480}, intro);

    f.label("lblinput", {240, 900, 4560, 255}, "Resistenza interna dello strumento :");
    f.textBox(names.resistance, {4920, 840, 1320, 330});
    f.label("lblnr", {240, 1320, 4560, 480}, "Nr. di volte per cui si vuole estendere la portata della scala");
    f.textBox("txtnr", {4920, 1320, 1320, 330});

    f.label(names.result, {240, 2040, 7200, 255}).font(8, true);

    f.button(names.calculate, {240, 2520, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2520, 1800, 480}, "E S C I");
}

}  // namespace bm::iron
