// The field that any antenna sets up at a distance, and what another receives
// there, from the gains of the two over the isotropic radiator.
#include "calc/antennas/antenna_signals.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue watt = f.read("txtwatt");
    const FormValue distance = f.read("txtdistanza");
    const FormValue freq = f.read("txtfrequenza");
    const FormValue gt = f.read("txtgt");
    const FormValue gr = f.read("txtgr");
    // The gains are in the product too: a missing gain is missing data.
    if (MissingDataSilentNegative(f, watt * distance * freq * gr * gt, "txtwatt")) return;
    ShowSignals(f, watt, distance, freq, gt, gr, "POTENZA GENERATA NELL'ANTENNA RICEVENTE : ",
                "TENSIONE NELL'ANTENNA RICEVENTE : ");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmsegnaligenerica() {
    CalculatorForm f("frmsegnaligenerica", "INTENSITA'  DEI SEGNALI D' ANTENNA", {1200, 600, 9000, 6780});

    f.label("Label1", {240, 120, 8400, 480},
            "VALORE TEORICO DEL FLUSSO DI POTENZA  DEI SEGNALI IRRADIATI DA UNA ANTENNA  IPOTETICAMENTE "
            "RISCONTRABILI AD UNA DETERMINATA DISTANZA ")
        .font(8, true);
    SignalInputs(f, 780);
    constexpr const char* kGain = "1.64 per il dipolo";
    f.label("Label5", {240, 2100, 4920, 255}, "GUADAGNO DELL'ANT. TX RISPETTO AL DIPOLO ISOTROPICO");
    f.textBox("txtgt", {5280, 2040, 1440, 330}).tip(kGain);
    f.label("Label6", {240, 2520, 4920, 255}, "GUADAGNO DELL'ANT. RX RISPETTO AL DIPOLO ISOTROPICO");
    f.textBox("txtgr", {5280, 2460, 1440, 330}).tip(kGain);
    SignalResults(f, 3060, 8400);
    f.label("Label7", {240, 4860, 8400, 255}, "SENZA TENERE CONTO DELLE VARIAZIONI DI PROPAGAZIONE");

    f.button("cmdcalcola", {240, 5580, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5580, 1800, 480}, "C H I U D I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
