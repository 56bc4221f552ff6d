// Resistivity of some metals, in microhm-cm.
#include "calc/reference/table_list.hpp"

namespace bm::reference {
namespace {

constexpr const char* kRows[] = {
    "ACCIAIO = da 10 a 16",
    "ALLUMINIO = 2.65",
    "ARGENTO = 1.59",
    "BRONZO = 1.79",
    "FERRO = 14",
    "MERCURIO = 94",
    "NICHEL = 11.8",
    "ORO = 2.08",
    "OTTONE = 8.26",
    "PIOMBO = 19.8",
    "PLATINO = 19.3",
    "RAME = 1.60",
    "STAGNO = 11.3",
    "ZINCO = 5.8",
};

void Form_Load(FormContext& f) { AddRows(f, "cboresistività", kRows); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmresistivita() {
    CalculatorForm f("frmresistività", "Resistività di alcuni metalli in microhm-cm", {3600, 2400, 5400, 2340});

    TableList(f, "cboresistività", {360, 360, 4560, 315}, "ACCIAIO = da 10 a 16");
    f.button("cmdchiudi", {1740, 1140, 1800, 480}, "CHIUDI");

    f.onLoad(Form_Load);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::reference
