#include "shell/workbook.hpp"

#include "calc/catalogue.hpp"
#include "shell/form_registry.hpp"

namespace bm::shell {
CalculatorForm FRMBANCOMISURATORE();
CalculatorForm frmavvertenza();
CalculatorForm frmabaut();
CalculatorForm frmhelpcondensatore();
}  // namespace bm::shell

namespace bm {

Workbook::Workbook() {
    factories_.emplace(std::string(kMainForm), &shell::FRMBANCOMISURATORE);
    factories_.emplace("frmavvertenza", &shell::frmavvertenza);
    factories_.emplace("frmabaut", &shell::frmabaut);
    factories_.emplace("frmhelpcondensatore", &shell::frmhelpcondensatore);
    for (const CatalogueEntry& e : CalculatorCatalogue()) factories_.emplace(std::string(e.name), e.make);
}

const CalculatorForm* Workbook::find(std::string_view name) const {
    if (auto it = built_.find(name); it != built_.end()) return it->second.get();
    auto f = factories_.find(name);
    if (f == factories_.end()) return nullptr;
    auto form = std::make_unique<CalculatorForm>(f->second());
    return built_.emplace(std::string(name), std::move(form)).first->second.get();
}

Program::Status StartProgram(Program& program) {
    return program.open(kMainForm, OpenModeless);
}

Program::Status ChooseMenuItem(Program& program, std::string_view item) {
    const MenuItem* m = FormRegistry::find(item);
    if (m == nullptr || m->isSubmenu()) return program.status();
    const FormState* main = program.state(kMainForm);
    if (main == nullptr || !main->shown) {
        if (StartProgram(program) != Program::Status::Running) return program.status();
    }
    return program.open(m->form, m->modality);
}

}  // namespace bm
