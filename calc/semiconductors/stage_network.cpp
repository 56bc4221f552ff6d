#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {

const PowerBand* FindBand(std::span<const PowerBand> rows, double watts) {
    for (const PowerBand& row : rows)
        if (watts >= row.lower && watts <= row.upper) return &row;
    return nullptr;
}


void Correct(FormContext& f, const char* text, std::string_view box, std::string shown) {
    f.ShowMessage(text, 48, "MESSAGGIO DI ERRORE");
    f.setText(box, std::move(shown));
    f.setFocus(box);
}

Parallel ToParallel(const FormValue& r, const FormValue& c, const FormValue& fr) {
    const FormValue x = 1000000 / ((6.28 * fr) * c);
    const FormValue rp = r / (Power(r / x, 2) + 1);
    return {rp, (r * rp) / x};
}

void ShowNetwork(FormContext& f, const FormValue& microhenry, int coilDecimals, const FormValue& c1,
                 const FormValue& c2) {
    f.setCaption("lblbobina", f.fixed(microhenry, coilDecimals) + " uH");
    f.setCaption("lblc1", f.fixed(c1, -1) + " pF");
    f.setCaption("lblc2", f.fixed(c2, -1) + " pF");
}

}  // namespace bm::semiconductors
