#include "calc/lcr/rlc_inputs.hpp"

namespace bm::lcr {

void RlcInputBoxes(CalculatorForm& f) {
    f.label("Label3", {240, 2520, 2040, 255}, "RESISTENZA  in Ohm");
    f.textBox("txtr", {2400, 2460, 1440, 330});
    f.label("Label4", {240, 2940, 2040, 255}, "INDUTTANZA in uH");
    f.textBox("txtl", {2400, 2880, 1440, 330});
    f.label("Label1", {240, 3360, 2040, 255}, "CAPACITA' in pF");
    f.textBox("txtc", {2400, 3300, 1440, 330});
    f.label("Label5", {240, 3780, 2040, 255}, "FREQUENZA  in MHz ");
    f.textBox("txtf", {2400, 3720, 1440, 330});
}

const RlcValues& ReadRlc(FormContext& f) {
    RlcValues& m = f.values<RlcValues>();
    m.r = f.read("txtr");
    m.l = f.read("txtl");
    m.c = f.read("txtc");
    m.f = f.read("txtf");
    return m;
}

}  // namespace bm::lcr
