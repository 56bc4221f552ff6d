// Joins a transmitter's 52 ohm output to the base of a power final, knowing
// nothing of the final's transistor but its maximum power.
#include <array>

#include "calc/coil_handoff.hpp"
#include "calc/schematic.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

// Input resistance and capacitance, from 65 W down to the row that starts at 2.5 W.
constexpr std::array<PowerBand, 17> kBands = {{
    {55.1, 65, 1.3, 1000, 600},  {47.6, 55, 1.4, 950, 550},   {42.6, 47.5, 1.5, 900, 500},
    {37.5, 42.5, 1.6, 850, 450}, {32.6, 37.5, 1.7, 800, 400}, {27.6, 32.5, 1.8, 750, 350},
    {22.6, 27.5, 2, 700, 320},   {17.6, 22.5, 2.5, 650, 300}, {12.6, 17.5, 3, 600, 280},
    {9.6, 12.5, 4, 550, 250},    {8.6, 9.5, 5, 500, 220},     {7.6, 8.5, 7, 450, 200},
    {6.6, 7.5, 8, 400, 180},     {5.6, 6.5, 9, 350, 150},     {4.6, 5.5, 10, 300, 120},
    {3.6, 4.5, 15, 250, 100},    {2.5, 3.5, 20, 200, 80},
}};

void cmdcalcola_Click(FormContext& f) {
    const double watts = f.read("txtwatt");
    double mhz = f.read("txtfrequenza");
    // A low frequency is corrected in the box as well. The box is read with
    // the point, so where the decimal sign is a comma "1,6" reads back as 1 at
    // the next click and is corrected again.
    if (mhz < 1.6) {
        mhz = 1.6;
        f.setText("txtfrequenza", f.numberText(1.6));
    }
    // Above 80 MHz the box shows the limit but the sums go on with the frequency typed.
    if (mhz > 80) Correct(f, "massima frequenza 80 MHz", "txtfrequenza", "80");
    const FormValue fr = mhz;

    FormValue r, ci;
    if (watts > 65) {
        Correct(f, "massima potenza 65 W", "txtwatt", "65");
        r = 1.3;
        ci = FormValue::Whole(1000);
    } else {
        if (const PowerBand* band = FindBand(kBands, watts)) {
            r = band->r;
            ci = band->ci;
        }
        if (watts < 2.5) {
            Correct(f, "VALORE MINIMO 2.5 WATT", "txtwatt", f.numberText(2.5));
            r = FormValue::Whole(20);
            ci = FormValue::Whole(200);
        }
    }

    // Between two rows the capacitance is empty and the first division fails.
    const auto [rp, xp] = ToParallel(r, ci, fr);
    const FormValue coil = ((5 * rp) + xp) / (6.28 * fr);
    const FormValue q = Sqr(((rp * 60) / 52) - 1);
    const FormValue c1 = 1000000 / ((6.28 * fr) * (q * 52));
    // 1352 is 26 times 52.
    const FormValue c2 = 1000000 / ((6.28 * fr) * (1352 / (5 - q)));
    ShowNetwork(f, coil, 3, c1, c2);
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirstInPlace()); }

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int net = 2900;
    const int earth = 4500;
    // From the cable: C1 in series, C2 across, the coil to the base.
    s.terminal(600, net);
    s.capacitor(600, net, 2100, net);
    s.node(2100, net);
    s.capacitor(2100, net, 2100, earth);
    s.inductor(2100, net, 3900, net);
    s.wire(3900, net, 4500, net);
    s.transistor(4500, net);
    const int col = 4800;
    s.inductor(col, net - 600, col, 1500);
    s.terminal(col, 1500);
    s.node(col, net - 600);
    s.capacitor(col, net - 600, 6300, net - 600);
    s.terminal(6300, net - 600);
    s.wire(col, net + 600, col, earth);
    s.wire(600, earth, col, earth);
    s.terminal(600, earth);
    s.node(2100, earth);
    s.ground(3300, earth);

    f.label("Label3", {240, 3540, 1680, 255}, "cavo coax 50 ohm");
    f.label("Label4", {4980, 1380, 900, 255}, "+ Vcc");
    f.label("Label5", {4980, 1850, 600, 255}, "JAF");
    f.label("Label6", {5340, 2760, 3000, 255}, "Transistor dell'ampl. lineare");

    f.label("lblc1", {720, 2430, 1320, 255}, "C1").aligned(Align::Center);
    f.label("lblbobina", {2280, 2430, 1620, 255}, "bobina").aligned(Align::Center);
    f.label("lblc2", {2340, 3660, 1560, 255}, "C2");
}

}  // namespace

CalculatorForm frmtrasm_lineare() {
    CalculatorForm f("frmtrasm_lineare", "COLLEGAMENTO DI UNA USCITA A 52 OHM CON UN FINALE DI POTENZA",
                     {1200, 900, 9600, 7560});

    f.label("Label1", {240, 300, 3600, 255}, "POTENZA MAX DEL TRANSISTOR in WATT");
    f.textBox("txtwatt", {3960, 240, 1200, 330});
    f.label("Label9", {5280, 300, 1200, 255}, "max 65 Watt");
    f.label("Label2", {240, 720, 3600, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {3960, 660, 1200, 330});
    f.label("Label10", {5280, 720, 1200, 255}, "max 80MHz");
    Drawing(f);
    f.label("Label8", {240, 4980, 9000, 1080},
            "SI SUPPONE DI NON CONOSCERE ALCUNA CARATTERISTICA DEL TRANSISTOR ADOTTATO CON ESCLUSIONE DELLA "
            "POTENZA MASSIMA. DI CONSEGUENZA I RISULTATI DEI CALCOLI SONO NECESSARIAMENTE INDICATIVI. INOLTRE "
            "ALTRI FATTORI COME LE CAPACITA' PARASSITE INFLUENZANO I RISULTATI PRATICI. E' BUONA NORMA "
            "UTILIZZARE COMPENSATORI CON CAPACITA' DEL 30 % SUPERIORE ALLE RISULTANZE, ANCHE LA BOBINA POTRA' "
            "ESSERE INIZIALMENTE LEGGERMENTE MAGGIORATA QUINDI RIDOTTA IN FASE DI TARATURA");

    f.button("cmdcalcola", {240, 6240, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 6240, 2160, 480}, "Costruzione bobine");
    f.button("cmdesci", {4680, 6240, 480, 480}).image("exit");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
