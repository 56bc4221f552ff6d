// Placeholder notice, about and help windows.
#include "forms/form_context.hpp"

namespace bm::shell {

CalculatorForm frmavvertenza() { return CalculatorForm("frmavvertenza", "AVVERTENZA", {0, 0, 6000, 4000}); }
CalculatorForm frmabaut() { return CalculatorForm("frmabaut", "Informazioni", {0, 0, 7320, 6000}); }
CalculatorForm frmhelpcondensatore() {
    return CalculatorForm("frmhelpcondensatore", "Condensatore d'accoppiamento", {0, 0, 5000, 3000});
}

}  // namespace bm::shell
