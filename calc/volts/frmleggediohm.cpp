// Placeholder.
#include "forms/form_context.hpp"
namespace bm::volts {
CalculatorForm frmleggediohm() { return CalculatorForm("frmleggediohm", "POTENZA - TENSIONE - CORRENTE - RESISTENZA", {0, 0, 6000, 5000}); }
}  // namespace bm::volts
