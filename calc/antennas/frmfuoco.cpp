// The focus of a circular dish from its diameter and its depth.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void cmdcalcola_Click(FormContext& f) {
    const FormValue d = f.read("txtdiametro");
    const FormValue h = f.read("txtprofondita");
    if (MissingData(f, d * h, "txtdiametro")) return;
    // The focal distance is kept to a tenth of a centimetre.
    const FormValue focus = ReadBackFixed(f, (d * d) / (16 * h), 1);
    f.setCaption("lblf", f.numberText(focus) + " cm.");
    f.setCaption("lblfuoco", "IL PUNTO FOCALE E' A CIRCA " + f.numberText(focus) + " cm.");
    f.show("lblf");
    f.show("lblfuoco");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmfuoco() {
    CalculatorForm f("frmfuoco", "FUOCO DI UNA PARABOLA CIRCOLARE", {2400, 1800, 7800, 4800});

    // The dish seen from the side, opening to the right, with its focus on the
    // axis where a dish of this depth has it, and the focal distance measured
    // from the vertex.
    AntennaDrawing a(f);
    constexpr int kVertex = 840;
    constexpr int kAxis = 2040;
    constexpr int kHalf = 1560;
    constexpr int kDepth = 600;
    constexpr int kFocus = kVertex + kHalf * kHalf / (4 * kDepth);
    a.dish(kVertex, kAxis, kHalf, kDepth);
    a.wire(kVertex, kAxis, 3000, kAxis);
    a.node(kFocus, kAxis);
    a.dimension(kVertex, 2460, kFocus, 2460);
    f.label("Label1", {kFocus - 420, 1680, 840, 255}, "FUOCO").font(8, true).aligned(Align::Center);
    f.label("lblf", {kVertex - 120, 2580, kFocus - kVertex + 600, 255}).font(8, true).aligned(Align::Center).hidden();

    f.label("Label2", {3720, 420, 2160, 255}, "DIAMETRO in cm.");
    f.textBox("txtdiametro", {5940, 360, 1320, 330});
    f.label("Label3", {3720, 900, 2160, 255}, "PROFONDITA' in cm.");
    f.textBox("txtprofondita", {5940, 840, 1320, 330});
    f.label("lblfuoco", {3720, 1680, 3540, 480}).font(8, true).hidden();

    f.button("cmdcalcola", {3720, 3360, 1680, 480}, "CALCOLA");
    f.button("cmdesci", {5580, 3360, 1680, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
