#include "calc/lcr/audio_cell.hpp"

namespace bm::lcr {

AudioCell AudioCellAtClick(FormContext& f) {
    FormValue freq = f.read("txtfrequenza");
    // Writing the box fires its Change, which blanks the results first.
    if (freq > 100000) {
        f.setText("txtfrequenza", "100000");
        freq = FormValue::Whole(100000);
    }
    if (freq < 10) {
        f.setText("txtfrequenza", "10");
        freq = FormValue::Whole(10);
    }

    // The capacitor in pF, by band; the first row that holds decides.
    FormValue pf;
    if (freq >= 50000) pf = FormValue::Whole(660);
    else if (freq >= 10000) pf = FormValue::Whole(800);
    else if (freq >= 5000) pf = FormValue::Whole(1500);
    else if (freq >= 1000) pf = FormValue::Whole(4700);
    else if (freq >= 500) pf = FormValue::Whole(15000);
    else if (freq >= 100) pf = FormValue::Whole(56000);
    else pf = FormValue::Whole(220000);
    const FormValue c = pf / 1000;  // nF

    // Kilohm.
    const std::string r = f.picture(1000000 / ((6.28 * freq) * c), "#,##0.#");
    return {f.numberText(c) + " nF", r + " Kohm"};
}

}  // namespace bm::lcr
