// The gain and the beam angle of a dish from the frequency and the diameter.
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue fr = f.read("txtfrequenza");
    const FormValue d = f.read("txtdiametro");
    if (MissingData(f, fr * d, "txtfrequenza")) return;
    // The same refusal as the can feed's, under another title.
    if (fr < 1000) {
        f.ShowMessage("FREQUENZA TROPPO BASSA", 48, "AVVERTIMENTO");
        f.setFocus("txtfrequenza");
        return;
    }
    const FormValue lambda = 300 / fr;
    const FormValue ratio = 5.428 * Power(d / lambda, 2);
    const std::string gain = f.fixed((Log(ratio) / Log(FormValue::Whole(10))) * 10, 2);
    f.setCaption("lblguadagno", "IL GUADAGNO DELLA PARABOLA E'  " + gain + " dB");
    const std::string angle = f.fixed(70.7 / ((fr * d) / 300), 1);
    f.setCaption("lblgradi", "L'ANGOLO D'IRRADIAZIONE E'  " + angle + " GRADI");
}

// A new figure empties the results.
void Input_Change(FormContext& f) {
    f.setCaption("lblguadagno", "");
    f.setCaption("lblgradi", "");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmparaboliche() {
    CalculatorForm f("frmparaboliche", "GUADAGNO E ANGOLO DI ANTENNE PARABOLICHE", {2400, 1800, 7800, 4320});

    f.label("Label1", {240, 240, 7200, 480},
            "IL GUADAGNO DI UNA ANTENNA PARABOLICA E'  DIRETTAMENTE PROPORZIONALE ALLE DIMENSIONI E ALLA "
            "FREQUENZA DI LAVORO")
        .font(8, true)
        .aligned(Align::Center);
    f.label("lblfrequenza", {240, 1020, 2520, 255}, "FREQUENZA in MHz :");
    f.textBox("txtfrequenza", {2820, 960, 1320, 330});
    f.label("lbldiametro", {240, 1440, 2520, 255}, "DIAMETRO in metri :");
    f.textBox("txtdiametro", {2820, 1380, 1320, 330});

    f.label("lblguadagno", {240, 2040, 7200, 255}).font(8, true);
    f.label("lblgradi", {240, 2400, 7200, 255}).font(8, true);

    f.button("cmdcalcola", {240, 3000, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {5640, 3000, 1800, 480}, "C H I U D I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onChange("txtfrequenza", Input_Change);
    f.onChange("txtdiametro", Input_Change);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
