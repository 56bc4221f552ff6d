#include "calc/reference/table_list.hpp"

namespace bm::reference {

ControlDef& TableList(CalculatorForm& form, std::string_view id, Rect r, std::string boxText) {
    return form.list(id, r, std::move(boxText)).tip("clicca sulla freccia");
}

void AddRows(FormContext& f, std::string_view list, std::span<const char* const> rows) {
    std::vector<std::string> held = f.items(list);
    held.insert(held.end(), rows.begin(), rows.end());
    f.setItems(list, std::move(held));
}

}  // namespace bm::reference
