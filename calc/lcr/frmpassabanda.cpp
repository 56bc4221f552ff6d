// Band pass: no calculation of its own. A band pass is a high pass followed by
// a low pass, so the window explains that and sends the user to those two.
#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

// Nothing passes to the window opened: it comes up as from the menu.
void Command1_Click(FormContext& f) {
    f.close();
    f.OpenForm("frmpassabasso", OpenModeless);
}

void Command2_Click(FormContext& f) {
    f.close();
    f.OpenForm("frmpassaalto", OpenModeless);
}

void Command3_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmpassabanda() {
    CalculatorForm f("frmpassabanda", "FILTRI PASSA BANDA", {2400, 2100, 6840, 3150});

    f.label("Label1", {240, 240, 6240, 1500},
            "Il filtro passa banda è costituito da un filtro passa alto collegato ad un filtro passa basso e, "
            "pertanto, si rimanda ai rispettivi procedimenti di calcolo. NOTA: la frequenza di taglio del filtro "
            "passa alto corrisponderà alla  più bassa frequenza che si intende non attenuare, mentre la frequenza "
            "di taglio del filtro passa basso corrisponderà alla più alta frequenza che si intende non attenuare.");

    f.button("Command1", {240, 1980, 2400, 480}, "vai ai filtri passa basso");
    f.button("Command2", {2760, 1980, 2400, 480}, "vai ai filtri passa alto");
    f.button("Command3", {5280, 1980, 1200, 480}, "CHIUDI");

    f.onClick("Command1", Command1_Click);
    f.onClick("Command2", Command2_Click);
    f.onClick("Command3", Command3_Click);
    return f;
}

}  // namespace bm::lcr
