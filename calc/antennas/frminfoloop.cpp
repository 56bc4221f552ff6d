// The credits of the loop calculator: a picture of a loop and two lines. The
// window takes two fifths of the screen and centres itself.
#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

void Form_Load(FormContext& f) {
    const int sw = f.screenWidth();
    const int sh = f.screenHeight();
    const int width = (sw + sw) / 5 + 250;
    const int height = (sh + sh) / 5;
    f.moveWindow(Rect{(sw - width) / 2, (sh - height) / 2, width, height});
}

void cdmchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frminfoloop() {
    // The size here is that of an 800 by 600 screen, the smallest the controls are laid out for.
    CalculatorForm f("frminfoloop", "Informazioni", {3200, 2400, 5050, 3600});
    f.picture("Image1", {240, 240, 1800, 1800}, "loop");
    f.label("Label1", {2280, 300, 2520, 1440},
            "L'elaborazione dei dati prende spunto dagli articoli sull'argomento comparsi su VT nel corso degli anni.")
        .font(9);
    f.label("Label2", {240, 2220, 4560, 255}, "  febbraio 2002      Z9 QQX    ORLANZIO").font(8, true);
    f.button("cdmchiudi", {2280, 2580, 1335, 420}, "Chiudi");
    f.onLoad(Form_Load);
    f.onClick("cdmchiudi", cdmchiudi_Click);
    return f;
}

}  // namespace bm::antennas
