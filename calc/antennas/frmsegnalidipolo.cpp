// The field that a half-wave dipole sets up at a distance, and what a second
// half-wave dipole receives there, in free space.
#include "calc/antennas/antenna_signals.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue watt = f.read("txtwatt");
    const FormValue distance = f.read("txtdistanza");
    const FormValue freq = f.read("txtfrequenza");
    if (MissingDataSilentNegative(f, watt * distance * freq, "txtwatt")) return;
    // Both ends are dipoles: 1.64 over the isotropic radiator.
    ShowSignals(f, watt, distance, freq, 1.64, 1.64, "POTENZA GENERATA NEL DIPOLO RICEVENTE : ",
                "TENSIONE NEL DIPOLO RICEVENTE : ");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmsegnalidipolo() {
    CalculatorForm f("frmsegnalidipolo", "INTESITA' DEI SEGNALI D'ANTENNA", {1200, 900, 9000, 5940});

    f.label("Label1", {240, 120, 8400, 480},
            "VALORE TEORICO DEL FLUSSO DI POTENZA  DEI SEGNALI IRRADIATI DA UN DIPOLO A MEZZ ' ONDA "
            "IPOTETICAMENTE RISCONTRABILI AD UNA DETERMINATA DISTANZA ")
        .font(8, true);
    SignalInputs(f, 780);
    SignalResults(f, 2160, 8400);
    f.label("Label5", {240, 3960, 8400, 480},
            "NELL'IPOTESI CHE IL SEGNALE VENGA TRASMESSO E RICEVUTO DA DUE DIPOLI  A MEZZ' ONDA E SENZA TENERE "
            "CONTO DELLE VARIAZIONI DI PROPAGAZIONE");

    f.button("cmdcalcola", {240, 4740, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 4740, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
