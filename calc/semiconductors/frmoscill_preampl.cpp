// Joins an oscillator to an RF preamplifier of at most 2 W: from the
// transistor's average input data, a series C, a shunt C and a series coil.
#include <array>

#include "calc/coil_handoff.hpp"
#include "calc/schematic.hpp"
#include "calc/semiconductors/stage_network.hpp"

namespace bm::semiconductors {
namespace {

// The whole table is kept, though above 2 W the window refuses and only the
// last three rows can be reached.
constexpr std::array<PowerBand, 24> kBands = {{
    {91, 100, 0.8, 1400, 900},   {85.1, 90, 1, 1300, 800},    {75.1, 85, 1.1, 1200, 700},
    {65.1, 75, 1.2, 1100, 650},  {55.1, 65, 1.3, 1000, 600},  {47.6, 55, 1.4, 950, 550},
    {42.6, 47.5, 1.5, 900, 500}, {37.5, 42.5, 1.6, 850, 450}, {32.6, 37.5, 1.7, 800, 400},
    {27.6, 32.5, 1.8, 750, 350}, {22.6, 27.5, 2, 700, 320},   {17.6, 22.5, 2.5, 650, 300},
    {12.6, 17.5, 3, 600, 280},   {9.6, 12.5, 4, 550, 250},    {8.6, 9.5, 5, 500, 220},
    {7.6, 8.5, 7, 450, 200},     {6.6, 7.5, 8, 400, 180},     {5.6, 6.5, 9, 350, 150},
    {4.6, 5.5, 10, 300, 120},    {3.6, 4.5, 15, 250, 100},    {2.6, 3.5, 20, 200, 80},
    {1.6, 2.5, 30, 150, 50},     {0.6, 1.5, 40, 100, 35},     {0.4, 0.5, 50, 60, 20},
}};

void cmdcalcola_Click(FormContext& f) {
    const double watts = f.read("txtwatt");
    double mhz = f.read("txtfrequenza");
    if (mhz < 1.6) mhz = 1.6;  // in the sums only; the box keeps what was typed
    const FormValue fr = mhz;

    // Neither warning stops the click: a power outside 0.4 to 2 W, or between
    // two rows, leaves the input data empty and the first division fails.
    FormValue r, ci;
    if (watts > 2) {
        ErrorMessage(f, "massima potenza 2 W", "txtwatt");
    } else if (const PowerBand* band = FindBand(kBands, watts)) {
        r = band->r;
        ci = band->ci;
    }
    if (watts < 0.4) ErrorMessage(f, "VALORE MINIMO 0.4 WATT", "txtwatt");

    const auto [rp, xp] = ToParallel(r, ci, fr);
    const FormValue coil = ((3 * rp) + xp) / (6.28 * fr);
    const FormValue q = Sqr(((xp * 26) / 35) - 1);
    const FormValue c1 = 1000000 / ((6.28 * fr) * (q * 35));
    // 910 is 26 times 35; 5 is the stage's working Q.
    const FormValue c2 = 1000000 / ((6.28 * fr) * (910 / (5 - q)));
    ShowNetwork(f, coil, 2, c1, c2);
}

void cmdchiamabobine_Click(FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirstInPlace()); }

void cmdesci_Click(FormContext& f) { f.close(); }

void Drawing(CalculatorForm& f) {
    Schematic s(f);
    const int net = 2900;    // the network's line
    const int earth = 5000;  // the return line
    // The oscillator's coil, its hot end feeding the network.
    s.inductor(1200, net, 1200, earth);
    s.capacitor(1200, net, 2700, net);
    s.node(2700, net);
    s.capacitor(2700, net, 2700, earth);
    s.inductor(2700, net, 4800, net);
    s.wire(4800, net, 5400, net);
    s.transistor(5400, net);
    // Collector: the choke up to the supply and the output on the right.
    const int cx = 5700;
    s.inductor(cx, net - 600, cx, 1500);
    s.terminal(cx, 1500);
    s.node(cx, net - 600);
    s.capacitor(cx, net - 600, 7200, net - 600);
    s.terminal(7200, net - 600);
    s.resistor(cx, net + 600, cx, earth);
    s.wire(1200, earth, cx, earth);
    s.node(2700, earth);
    s.ground(3600, earth);

    f.label("Label3", {1380, 3600, 1140, 480}, "bobina oscillatore");
    f.label("Label4", {5880, 1380, 900, 255}, "+ Vcc");
    f.label("Label5", {5880, 1850, 600, 255}, "JAF");
    f.label("Label6", {6240, 2760, 2700, 255}, "Transistor preamplificatore");
    f.label("Label7", {6240, 3060, 1500, 255}, "max 2 Watt");

    f.label("lblc1", {1320, 2430, 1320, 255}).aligned(Align::Center);
    f.label("lblbobina", {3000, 2430, 1620, 255}).aligned(Align::Center);
    f.label("lblc2", {2940, 3840, 1500, 255});
}

}  // namespace

CalculatorForm frmoscill_preampl() {
    CalculatorForm f("frmoscill_preampl",
                     "COLLEGAMENTO DI UNO STADIO OSCILLATORE AD UNO STADIO PREAMPLIFICATORE AF",
                     {1200, 900, 9600, 7020});

    f.label("Label1", {240, 300, 3600, 255}, "POTENZA MAX DEL TRANSISTOR in WATT");
    f.textBox("txtwatt", {3960, 240, 1200, 330});
    f.label("Label2", {240, 720, 3600, 255}, "FREQUENZA IN MHz");
    f.textBox("txtfrequenza", {3960, 660, 1200, 330});
    Drawing(f);

    f.button("cmdcalcola", {240, 5880, 1800, 480}, "CALCOLA");
    f.button("cmdchiamabobine", {2280, 5880, 2160, 480}, "Costruzione bobine");
    f.button("cmdesci", {4680, 5880, 1800, 480}, "E X I T");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdchiamabobine", cmdchiamabobine_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::semiconductors
