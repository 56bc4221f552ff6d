// Placeholder main window.
#include "forms/calculation.hpp"

namespace bm::shell {

CalculatorForm FRMBANCOMISURATORE() {
    CalculatorForm f("FRMBANCOMISURATORE", "BANCOMISURATORE    -   IL QUADERNO TECNICO", {0, 0, 8595, 6560});
    f.label("lbltitolo", {1000, 200, 6000, 600}, "BANCOMISURATORE").tip("clicca per fermare");
    f.timer("Timer1", 1000);
    f.onLoad([](FormContext& c) { CenterOnScreen(c); });
    return f;
}

}  // namespace bm::shell
