// T and pi attenuators between two impedances, the input's not below the
// output's, for a chosen attenuation.
#include "calc/resistors/networks.hpp"
#include "calc/resistors/pads.hpp"

namespace bm::resistors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<TPiPad> pad = SizeTPiPad(f);
    if (!pad) return;
    f.setNumber("lblR1T", pad->r1T);
    f.setNumber("lblR2T", pad->r2T);
    f.setNumber("lblR3T", pad->r3T);
    f.setNumber("lblR1P", pad->r1P);
    f.setNumber("lblR2P", pad->r2P);
    f.setNumber("lblR3P", pad->r3P);
    ShowInsertionLoss(f, *pad);
}

}  // namespace

CalculatorForm frmretiaTePgreco() {
    CalculatorForm f("frmretiaTePgreco", "ATTENUATORI  E  ADATTATORI RESISTIVI", {1800, 1200, 9720, 6750});
    DrawTNetwork(f, 600, 1200, {"lblR1T", "R1"}, {"lblR2T", "R2"}, {"lblR3T", "R3"});
    DrawPiNetwork(f, 4800, 1200, {"lblR1P", "R1  "}, {"lblR2P", "R2  "}, {"lblR3P", "R3"});
    TPiControls(f);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::resistors
