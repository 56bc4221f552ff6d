// Joins a final stage of more than 3 W to a coaxial cable: the collector load
// from the transistor's ratings, its output capacitance from the power, then
// the coil and the two capacitors towards 52 ohm.
#include <array>

#include "calc/coil_handoff.hpp"
#include "calc/schematic.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

// Only the output capacitance is used; the last row starts at 3 W.
constexpr std::array<PowerBand, 21> kBands = {{
    {91, 100, 0.8, 1400, 900},   {85.1, 90, 1, 1300, 800},    {75.1, 85, 1.1, 1200, 700},
    {65.1, 75, 1.2, 1100, 650},  {55.1, 65, 1.3, 1000, 600},  {47.6, 55, 1.4, 950, 550},
    {42.6, 47.5, 1.5, 900, 500}, {37.5, 42.5, 1.6, 850, 450}, {32.6, 37.5, 1.7, 800, 400},
    {27.6, 32.5, 1.8, 750, 350}, {22.6, 27.5, 2, 700, 320},   {17.6, 22.5, 2.5, 650, 300},
    {12.6, 17.5, 3, 600, 280},   {9.6, 12.5, 4, 550, 250},    {8.6, 9.5, 5, 500, 220},
    {7.6, 8.5, 7, 450, 200},     {6.6, 7.5, 8, 400, 180},     {5.6, 6.5, 9, 350, 150},
    {4.6, 5.5, 10, 300, 120},    {3.6, 4.5, 15, 250, 100},    {3, 3.5, 20, 200, 80},
}};

void cmdcalcola_Click(FormContext& f) {
    const double watts = f.read("txtwatt");
    double mhz = f.read("txtfrequenza");
    if (mhz < 1.6) mhz = 1.6;  // in the sums only
    const FormValue fr = mhz;
    const FormValue vceo = f.read("txtvceo");
    const FormValue amps = f.read("txtcorrente");

    // Out of range the power is corrected, in the box too, and the click goes
    // on; between two rows the capacitance stays empty and the sums fail.
    FormValue co;
    if (watts > 100) {
        Correct(f, "massima potenza 100 W", "txtwatt", "100");
        co = FormValue::Whole(900);
    } else {
        if (const PowerBand* band = FindBand(kBands, watts)) co = band->co;
        if (watts < 3) {
            Correct(f, "minima potenza 3 WATT", "txtwatt", "3");
            co = FormValue::Whole(80);
        }
    }

    // The current is not checked: 0 ends the program here.
    const FormValue rc = vceo / amps;
    const auto [rp, xp] = ToParallel(rc, co, fr);
    const FormValue t = rp * 60;
    if (t < FormValue::Whole(53)) {
        ErrorMessage(f, "VALORE NON VALIDO", "txtwatt");
        return;
    }
    const FormValue q = Sqr((t / 52) - 1);
    const FormValue c1 = 1000000 / ((6.28 * fr) * (52 * q));
    const FormValue c2 = 1000000 / ((6.28 * fr) * (t / (5 - q)));
    const FormValue coil = ((10 * rp) + xp) / (6.28 * fr);
    ShowNetwork(f, coil, 3, c1, c2);
    f.setCaption("lbljaf", "VK 200");
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirstInPlace()); }

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int net = 3300;
    const int earth = 5100;
    // The final: base from the driver on the left, emitter to earth.
    s.wire(600, net + 300, 1500, net + 300);
    s.terminal(600, net + 300);
    s.transistor(1500, net + 300);
    s.wire(1800, net + 900, 1800, earth);
    // Collector: the choke up to the supply, the coil in series, C1 to the
    // cable, C2 across the line.
    const int col = 1800;
    s.wire(col, net - 300, col, net);
    s.node(col, net);
    s.inductor(col, net, col, 1950);
    s.terminal(col, 1950);
    s.inductor(col, net, 4200, net);
    s.node(4200, net);
    s.capacitor(4200, net, 4200, earth);
    s.capacitor(4200, net, 6300, net);
    s.wire(6300, net, 7200, net);
    s.terminal(7200, net);
    s.wire(col, earth, 7200, earth);
    s.terminal(7200, earth);
    s.node(4200, earth);
    s.ground(3000, earth);

    f.label("Label4", {1980, 1830, 900, 255}, "+ Vcc");
    f.label("lbljaf", {1980, 2430, 900, 255}, "JAF");
    f.label("Label5", {6600, 3870, 1560, 255}, "coax 50 ohm");

    f.label("lblbobina", {2100, 2820, 1920, 255}, "bobina").aligned(Align::Center);
    f.label("lblc1", {4560, 2820, 1560, 255}, "C 1").aligned(Align::Center);
    f.label("lblc2", {4440, 4080, 1560, 255}, "C 2");
}

}  // namespace

CalculatorForm frmfinale_antenna() {
    CalculatorForm f("frmfinale_antenna", "COLLEGAMENTO DI UNO STADIO FINALE DA OLTRE 3 WATT AD UN CAVO COASSIALE",
                     {1200, 900, 9600, 7500});

    f.label("Label1", {240, 300, 3840, 255}, "POTENZA MAX DEL TRANSISTOR in WATT");
    f.textBox("txtwatt", {4200, 240, 1200, 330});
    f.label("Label2", {240, 720, 3840, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {4200, 660, 1200, 330});
    f.label("Label6", {240, 1140, 3840, 255}, "VCEO TENS.MAX COLLETTORE-EMETTITORE");
    f.textBox("txtvceo", {4200, 1080, 1200, 330});
    f.label("Label7", {240, 1560, 3840, 255}, "MAX CORRENTE CONTINUA DI COLLETTORE");
    f.textBox("txtcorrente", {4200, 1500, 1200, 330});
    f.label("Label3", {5760, 240, 3480, 765},
            "L'IMPEDENZA DEL COLLETTORE DEL TRANSISTOR FINALE DEVE ESSERE INFERIORE A 50 OHM");
    Drawing(f);

    f.button("cmdcalcola", {240, 6360, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 6360, 2160, 480}, "Costruzione bobine");
    f.button("cmdesci", {4680, 6360, 1800, 480}, "E X I T");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
