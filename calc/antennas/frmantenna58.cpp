// The 5/8 wave vertical for three VHF-UHF bands: tried dimensions from a table,
// written on the drawing and below it when a band is chosen.
#include <array>

#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

struct Band {
    const char* height;    // on the drawing
    const char* radial;    // on the drawing
    const char* radiator;
    const char* radials;
    const char* coil;
    const char* turns;     // on the drawing
};

const std::array<Band, 3> kBands = {{
    {"340 cm.", "143 cm.", "RADIATORE cm. 340     DIAMETRO 20 mm.", "N. 4 RADIALI cm. 143     DIAMETRO 5 mm.",
     "BOBINA n.9 spire 2 mm. su diametro 3 cm. lunga 3 cm.", "9 sp."},
    {"120 cm.", "50 cm.", "RADIATORE cm. 120     DIAMETRO 10 mm.", "N. 4 RADIALI cm. 50     DIAMETRO 5 mm.",
     "BOBINA n.5 spire 2 mm. su diametro 2 cm. lunga 2 cm.", "5 sp."},
    {"42 cm.", "17 cm.", "RADIATORE cm. 42     DIAMETRO 6 mm.", "N. 4 RADIALI cm. 17     DIAMETRO 5 mm.",
     "BOBINA n.2 spire 2 mm. su diametro 1.5 cm. lunga 2 cm.", "2 sp."},
}};

void Option1_Click(FormContext& f, int index) {
    const Band& b = kBands.at(static_cast<std::size_t>(index));
    f.setCaption("lblaltezza", b.height);
    f.setCaption("lblradiale", b.radial);
    f.setCaption("lblradiatore", b.radiator);
    f.setCaption("lblradiali", b.radials);
    f.setCaption("lblbobina", b.coil);
    f.setCaption("lblcarico", b.turns);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmantenna58() {
    CalculatorForm f("frmantenna58", "  ANTENNA VERTICALE 5/8 LAMBDA", {1800, 1200, 8400, 6330});

    f.frame("Frame1", {240, 240, 2400, 1500}, "Banda").tip("selezionare una frequenza");
    f.option("Option1(0)", {240, 300, 1920, 285}, "50 Mcs").in("Frame1");
    f.option("Option1(1)", {240, 660, 1920, 285}, "145 Mcs").in("Frame1");
    f.option("Option1(2)", {240, 1020, 1920, 285}, "433 Mcs").in("Frame1");

    f.label("lblradiatore", {240, 3360, 5040, 255}).font(8, true);
    f.label("lblradiali", {240, 3720, 5040, 255}).font(8, true);
    f.label("lblbobina", {240, 4080, 5040, 450}).font(8, true);
    f.label("Label1", {240, 1980, 4320, 960},
            "IN  FASE  DI  REALIZZAZIONE  AGIRE SULLA LUNGHEZZA DEL RADIATORE PER  IL  MIGLIOR  ADATTAMENTO")
        .color(colors::Blue);
    f.button("cmdesci", {240, 5160, 1800, 480}, "ESCI");

    // The vertical on its coil, four radials at the foot, the coax below.
    AntennaDrawing s(f);
    constexpr int x = 6600;
    constexpr int foot = 3960;
    s.radiator(x, 300, x, 2880);
    s.loadingCoil(x, 2880, x, 3720);
    s.wire(x, 3720, x, foot);
    s.node(x, foot);
    s.radials(x, foot, 1200, 720, 4);
    s.coax(x, foot + 60, x, 5400);
    s.dimension(7080, 300, 7080, 2880);
    f.label("lblaltezza", {7200, 1440, 900, 255}, "radiatore").font(8, true);
    f.label("lblcarico", {5460, 3180, 900, 255}, "bobina").font(8, true).aligned(Align::Right);
    f.label("lblradiale", {7140, 4800, 900, 255}, "radiali").font(8, true);

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
