#include "calc/catalogue.hpp"

#define BM_FORM(area, form) \
    namespace bm::area {    \
    CalculatorForm form();  \
    }
#define BM_FORM_NAMED(area, form, name) BM_FORM(area, form)
#include "calc/forms.inc"
#undef BM_FORM_NAMED
#undef BM_FORM

namespace bm {
namespace {

#define BM_FORM(area, form) {#form, &area::form},
#define BM_FORM_NAMED(area, form, name) {name, &area::form},
const CatalogueEntry kEntries[] = {
#include "calc/forms.inc"
};
#undef BM_FORM_NAMED
#undef BM_FORM

}  // namespace

std::span<const CatalogueEntry> CalculatorCatalogue() { return kEntries; }

}  // namespace bm
