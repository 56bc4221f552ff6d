#include "calc/antennas/j_antenna.hpp"

#include "calc/antennas/antenna_drawing.hpp"

namespace bm::antennas {
namespace {
void cmdesci_Click(FormContext& f) { f.close(); }
}  // namespace

CalculatorForm JAntennaForm(std::string name, std::string title) {
    CalculatorForm f(std::move(name), std::move(title), {1800, 900, 8400, 7050});

    f.label("Label3", {240, 300, 3480, 255}, "INSERISCI LA FREQUENZA IN MHz.").font(8, true);
    f.textBox("txtfrequenza", {3840, 240, 1335, 330}).tip("separare i decimali con il punto");
    f.label("Label1", {240, 900, 4200, 960},
            "PER IL MINIMO ROS SPOSTARE IL PUNTO DI ALIMENTAZIONE E AGIRE SULLA LUNGHEZZA DEGLI ELEMENTI")
        .color(colors::Blue);
    f.label("lbldiametro", {240, 5280, 7800, 255}).font(8, true);
    f.button("cmdesci", {240, 5880, 1800, 480}, "ESCI");

    // The J: the radiator on the left rod, the quarter-wave line beside it,
    // shorted at the foot, the coax tapped across the two rods above the short.
    AntennaDrawing s(f);
    constexpr int left = 6000;
    constexpr int gap = 420;
    constexpr int top = 300;
    constexpr int lineTop = 3000;
    constexpr int foot = 4500;
    constexpr int tap = 4020;
    s.radiator(left, top, left, lineTop);
    s.stub(left, lineTop, foot, gap);
    s.node(left, tap);
    s.node(left + gap, tap);
    s.wire(left, tap, left + gap, tap);
    s.coax(left + gap, tap, 7800, tap);
    s.dimension(5520, top, 5520, foot);
    s.dimension(7020, lineTop, 7020, foot);
    s.dimension(7560, tap, 7560, foot);
    f.label("lblaltezza", {4440, 1800, 1020, 255}, "radiatore").font(8, true).aligned(Align::Right);
    f.label("lbllinea", {7140, 3240, 1020, 255}, "linea").font(8, true);
    f.label("lbldist", {7140, 4500, 1020, 255}).font(8, true);
    f.label("Label2", {7110, 3720, 1140, 255}, "coax 50 ohm");

    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

void ShowJDiameter(FormContext& f, const FormValue& fr) {
    std::string note;
    if (fr > 435) note = "FREQUENZA TROPPO ALTA PER QUESTO TIPO D'ANTENNA";
    else if (fr > 300) note = "IL DIAMETRO MEDIO DEGLI ELEMENTI PUO' ESSERE 10 mm.";
    else if (fr > 90) note = "IL DIAMETRO MEDIO DEGLI ELEMENTI PUO' ESSERE 10/15 mm.";
    else if (fr >= 30) note = "IL DIAMETRO MEDIO DEGLI ELEMENTI PUO' ESSERE 25 mm.";
    else note = "FREQUENZA TROPPO BASSA PER QUESTO TIPO D'ANTENNA";
    f.setCaption("lbldiametro", note);
}

}  // namespace bm::antennas
