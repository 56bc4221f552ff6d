// Balanced T and pi attenuators: the series arms of each network appear in
// both lines. In the T the two series resistors are halved; in the pi only the
// series R3 is, the shunts across the lines stay whole.
#include "calc/resistors/networks.hpp"
#include "calc/resistors/pads.hpp"

namespace bm::resistors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<TPiPad> pad = SizeTPiPad(f);
    if (!pad) return;
    f.setNumber("lblR1T", pad->r1T / 2);
    f.setNumber("lblR1Ta", pad->r1T / 2);
    f.setNumber("lblR2T", pad->r2T / 2);
    f.setNumber("lblR2Ta", pad->r2T / 2);
    f.setNumber("lblR3T", pad->r3T);
    f.setNumber("lblR1P", pad->r1P);
    f.setNumber("lblR2P", pad->r2P);
    // Still single precision after the halving.
    f.setNumber("lblR3P", pad->r3P / 2);
    f.setNumber("lblR3Pa", pad->r3P / 2);
    ShowInsertionLoss(f, *pad);
}

}  // namespace

CalculatorForm frmretiaTePgrecobilanciate() {
    CalculatorForm f("frmretiaTePgrecobilanciate", "ATTENUATORI  E  ADATTATORI  RESISTIVI  BILANCIATI",
                     {1800, 1200, 9720, 6750});
    DrawBalancedTNetwork(f, 600, 1200, {"lblR1T", "R1"}, {"lblR1Ta", "R1"}, {"lblR2T", "R2"}, {"lblR2Ta", "R2"},
                         {"lblR3T", "R3"});
    DrawBalancedPiNetwork(f, 4800, 1200, {"lblR1P", "R1  "}, {"lblR2P", "R2  "}, {"lblR3P", "R3"},
                          {"lblR3Pa", "R3"});
    TPiControls(f);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::resistors
