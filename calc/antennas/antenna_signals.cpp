#include "calc/antennas/antenna_signals.hpp"

namespace bm::antennas {

void SignalInputs(CalculatorForm& f, int top) {
    f.label("Label2", {240, top + 60, 4920, 255}, "POTENZA DEL TRASMETTITORE IN WATT");
    f.textBox("txtwatt", {5280, top, 1440, 330});
    f.label("Label3", {240, top + 480, 4920, 255}, "DISTANZA DAL TRASMETTITORE IN KM");
    f.textBox("txtdistanza", {5280, top + 420, 1440, 330});
    f.label("Label4", {240, top + 900, 4920, 255}, "FREQUENZA DI TRASMISSIONE IN Mhz");
    f.textBox("txtfrequenza", {5280, top + 840, 1440, 330});
}

void SignalResults(CalculatorForm& f, int top, int width) {
    int y = top;
    for (const char* name : {"lblpr", "lblpa", "lblcampoe", "lblcampoh", "lbltensione"}) {
        f.label(name, {240, y, width, 255}).font(8, true);
        y += 330;
    }
}

void ShowSignals(FormContext& f, FormValue watt, FormValue distance, const FormValue& freq, const FormValue& gt,
                 const FormValue& gr, const char* powerCaption, const char* voltageCaption) {
    distance = distance * 1000;
    const FormValue lambda = 300 / freq;
    // Power density in microwatt per square metre, over the sphere's 4 pi as 12.56.
    const FormValue s = (watt * gt * Power(FormValue::Whole(10), 6)) / (12.56 * Power(distance, 2));
    // Power taken by the receiving antenna's effective area, in microwatt.
    const FormValue pa = (s * gr * Power(lambda, 2)) / 12.56;
    // E in millivolt per metre over the 120 pi of free space.
    const FormValue e = Sqr(s * 120 * 3.14);
    // H in microampere per metre: 3.14 multiplies after the division by 120, and the result is a single.
    const FormValue h = ToSingle(((e * Power(FormValue::Whole(10), 2)) / 120) * 3.14);
    // The voltage across 75 ohm, in millivolt.
    const FormValue v = Sqr(pa * 75);

    f.setCaption("lblpr", "DENSITA' DI POTENZA DELL' ONDA  :  " + f.picture(s, "#,##0.#####") + "  microWATT/mq ");
    f.setCaption("lblpa", powerCaption + f.picture(pa, "#,##0.####") + " microWATT ");
    f.setCaption("lblcampoe",
                 "INTENSITA' CAMPO ELETTRICO IN RICEZIONE : " + f.picture(e, "#,##0.###") + " milliVOLT/mt ");
    f.setCaption("lblcampoh",
                 "INTENSITA' CAMPO MAGNETICO IN RICEZIONE : " + f.picture(h, "#,##0.###") + " microAMP/mt ");
    f.setCaption("lbltensione", voltageCaption + f.picture(v, "#,##0.###") + " milliVOLT ");
}

}  // namespace bm::antennas
