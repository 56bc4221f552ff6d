// The quarter-wave impedance adapter: a length of line whose impedance is the
// geometric mean of the feed line's and the antenna's, cut to a quarter wave
// times the cable's velocity factor.
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue freq = f.read("txtF");
    const FormValue za = f.read("txtimpantenna");
    // The 50 ohm cable with its 0.66 velocity factor, or the 75 ohm one with 0.8.
    const bool fifty = f.chosen("Option1(0)");
    const FormValue z0 = FormValue::Whole(fifty ? 50 : 75);
    const FormValue k = fifty ? 0.66 : 0.8;
    if (za == z0) {
        f.ShowMessage("NON OCCORRE ADATTATORE", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtimpantenna");
        return;
    }
    if (MissingDataSilentNegative(f, freq * za * z0, "txtF")) return;

    const std::string adapter = f.fixed(Sqr(z0 * za), 3);
    // 75 is a quarter of 300, the speed of light in round figures.
    const FormValue length = ReadBackFixed(f, (75 / freq) * k, 3);
    f.setCaption("lblimpadattatore", "IMPEDENZA DELL'ADATTATORE : OHM  " + adapter);
    f.setCaption("lbllunghezza", "LUNGHEZZA DELLO SPEZZONE mt. : " + f.numberText(length));
}

void ClearResults(FormContext& f) {
    f.setCaption("lblimpadattatore", "");
    f.setCaption("lbllunghezza", "");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmadattatori() {
    CalculatorForm f("frmadattatori", "ADATTAMENTO D' IMPEDENZA", {1800, 900, 8400, 7200});

    f.frame("Frame1", {240, 2760, 4200, 1080}, "Cavo coassiale");
    f.option("Option1(0)", {180, 300, 3840, 285}, "50 Ohm di impedenza caratteristica").in("Frame1");
    f.option("Option1(1)", {180, 660, 3840, 285}, "75 Ohm di impedenza caratteristica").in("Frame1");

    f.label("lbltesto", {240, 120, 7800, 720},
            "UN ADATTATORE D' IMPEDENZA CONSENTE DI UTILIZZARE UNA LINEA DI ALIMENTAZIONE CON IMPEDENZA "
            "CARATTERISTICA DIVERSA DA QUELLA DELL'ANTENNA NEL PUNTO DI COLLEGAMENTO.");
    f.label("Label2", {240, 900, 7800, 720},
            "UN POSSIBILE ADATTATORE E' QUELLO CON LINEA AD UN QUARTO D' ONDA,  COSTITUITO DA UN TRATTO DI LINEA "
            "DI LUNGHEZZA PARI ALLA QUARTA PARTE DELLA LUNGHEZZA D'ONDA DI TRASMISSIONE.");
    f.label("Label3", {240, 1680, 7800, 960},
            "IL TRATTO AGGIUNTIVO PUO' CONSISTERE IN UNA LINEA BIFILARE O PIU' COMODAMENTE IN UNO SPEZZONE DI "
            "CAVO COASSIALE, DI IMPEDENZA CARATTERISTICA NOTA E SEMPRE DI LUNGHEZZA PARI AD UN QUARTO D' ONDA.");

    f.label("Label4", {240, 4080, 3360, 255}, "FREQUENZA DI UTILIZZO IN  MHz  : ");
    f.textBox("txtF", {3720, 4020, 1440, 330});
    f.label("Label5", {240, 4500, 3360, 255}, "IMPEDENZA ANTENNA IN OHM : ");
    f.textBox("txtimpantenna", {3720, 4440, 1440, 330});

    f.label("lblimpadattatore", {240, 5040, 7800, 255}).font(8, true);
    f.label("lbllunghezza", {240, 5400, 7800, 255}).font(8, true);

    f.button("cmdcalcola", {240, 5940, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5940, 1800, 480}, "E S C I");

    f.onChange("txtF", ClearResults);
    f.onChange("txtimpantenna", ClearResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
