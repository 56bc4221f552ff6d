// Specific weights of the common metals, in Kg per dm3.
#include "calc/reference/table_list.hpp"

namespace bm::reference {
namespace {

constexpr const char* kRows[] = {
    "ALLUMINIO = 2.70",
    "ARGENTO = 10.50",
    "CROMO = 6.70",
    "FERRO = 7.86",
    "MERCURIO = 13.60",
    "NICHEL = 8.80",
    "ORO = 19.30",
    "PIOMBO = 11.34",
    "PLATINO = 21.40",
    "RAME = 8.90",
    "STAGNO = 7.28",
    "ZINCO = 7.10",
};

void Form_Load(FormContext& f) { AddRows(f, "cbopeso", kRows); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmpeso() {
    CalculatorForm f("frmpeso", "Peso specifico in Kg./dm3", {3600, 2400, 4800, 2340});

    TableList(f, "cbopeso", {360, 360, 3960, 315}, "ALLUMINIO = 2.70");
    f.button("cmdchiudi", {1440, 1140, 1800, 480}, "CHIUDI");

    f.onLoad(Form_Load);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::reference
