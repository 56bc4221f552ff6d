// Contact potential of some materials against copper, with its sign.
#include "calc/reference/table_list.hpp"

namespace bm::reference {
namespace {

// The blanks belong to the rows: they set the signs and figures apart.
constexpr const char* kRows[] = {
    "MAGNESIO        + 1,20",
    "ALLUMINIO        + 0,95",
    "ZINCO                + 0,78",
    "PIOMBO             + 0,54",
    "STAGNO            + 0,48",
    "FERRO               + 0,13",
    "MERCURIO        + 0,07",
    "RAME                    0,00",
    "ARGENTO          - 0,05",
    "ORO                    - 0,16",
    "PLATINO             - 0,24",
};

void Form_Load(FormContext& f) { AddRows(f, "cbocontatto", kRows); }

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmddpcontatto() {
    CalculatorForm f("frmddpcontatto", "d.d.p. di CONTATTO", {3000, 2400, 6000, 3180});

    f.label("Label1", {240, 240, 5400, 720},
            "VALORI DELLA d.d.p. DI CONTATTO ED IL RELATIVO SEGNO DI ALCUNI MATERIALI RISPETTO AL RAME, PRESO "
            "COME MATERIALE DI RIFERIMENTO")
        .aligned(Align::Center);
    // The box text stands between quotation marks, unlike its row.
    TableList(f, "cbocontatto", {1080, 1200, 3720, 315}, "\"MAGNESIO        + 1,20\"");
    f.button("cmdchiudi", {2040, 1980, 1800, 480}, "CHIUDI");

    f.onLoad(Form_Load);
    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::reference
