// Placeholder.
#include "forms/form_context.hpp"
namespace bm::volts {
CalculatorForm frmvolt() { return CalculatorForm("frmvolt", "VOLT EFFETTIVI - VOLT DI PICCO - VOLT PICCO PICCO", {0, 0, 6000, 5000}); }
}  // namespace bm::volts
