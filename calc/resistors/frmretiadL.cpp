// The L pad: the simplest resistive match between a higher and a lower
// impedance, with the loss it costs.
#include "calc/resistors/networks.hpp"
#include "calc/resistors/pads.hpp"

namespace bm::resistors {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const std::optional<LPad> pad = SizeLPad(f);
    if (!pad) return;
    f.setCaption("lblR1", f.fixed(pad->r1, 1));
    f.setCaption("lblR2", f.fixed(pad->r2, 1));
    ShowLPadLoss(f, *pad);
}

}  // namespace

CalculatorForm frmretiadL() {
    CalculatorForm f("frmretiadL", "RETI AD ELLE", {1800, 1200, 7800, 6210});
    DrawLNetwork(f, 1920, 1200, {"lblR1", "R1"}, {"lblR2", "R2"});
    LPadControls(f);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    return f;
}

}  // namespace bm::resistors
