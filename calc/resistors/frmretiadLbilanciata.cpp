// The balanced L pad: the series resistor of the L split in two halves, one in
// each line; the shunt and the loss as in the plain pad.
#include "calc/resistors/networks.hpp"
#include "calc/resistors/pads.hpp"

namespace bm::resistors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<LPad> pad = SizeLPad(f);
    if (!pad) return;
    f.setCaption("lblR1", f.fixed(pad->r1 / 2, 1));
    f.setCaption("lblR1a", f.text("lblR1"));
    f.setCaption("lblR2", f.fixed(pad->r2, 1));
    ShowLPadLoss(f, *pad);
}

}  // namespace

CalculatorForm frmretiadLbilanciata() {
    CalculatorForm f("frmretiadLbilanciata", "RETI AD ELLE   BILANCIATE", {1800, 1200, 7800, 6210});
    DrawBalancedLNetwork(f, 1920, 1200, {"lblR1", "R1"}, {"lblR1a", "R1"}, {"lblR2", "R2"});
    LPadControls(f);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::resistors
