#include "calc/antennas/eh_antenna.hpp"

namespace bm::antennas {

void DrawEhCylinders(CalculatorForm& f, AntennaDrawing& a) {
    using C = EhCylinders;
    constexpr int kLeft = 1080;
    constexpr int kWidth = C::kRight - kLeft;
    a.cylinder(kLeft, C::kUpperTop, kWidth, C::kUpperBottom - C::kUpperTop);
    a.cylinder(kLeft, C::kLowerTop, kWidth, C::kLowerBottom - C::kLowerTop);

    // The diameter across the top, and the three measures down the left side:
    // upper tube, gap, lower tube.
    a.dimension(kLeft, 390, C::kRight, 390);
    f.label("lbld", {kLeft - 240, 60, kWidth + 480, 255}).aligned(Align::Center).font(8, true);
    constexpr int kMeasureX = 780;
    a.dimension(kMeasureX, C::kUpperTop, kMeasureX, C::kUpperBottom);
    a.dimension(kMeasureX, C::kUpperBottom, kMeasureX, C::kLowerTop);
    a.dimension(kMeasureX, C::kLowerTop, kMeasureX, C::kLowerBottom);
    const auto measure = [&](const char* name, int top, int bottom) {
        f.label(name, {60, (top + bottom) / 2 - 128, 660, 255}).aligned(Align::Right).font(8, true);
    };
    measure("lbll", C::kUpperTop, C::kUpperBottom);
    measure("lbldd", C::kUpperBottom, C::kLowerTop);
    measure("lbll2", C::kLowerTop, C::kLowerBottom);
    f.label("Label7", {C::kRight + 120, 420, 1800, 255}, "cilindro superiore");
}

void PrintWithoutButtons(FormContext& f) {
    f.hide("cmdcalcola");
    f.hide("cmdesci");
    f.hide("cmdstampa");
    f.PrintWindow();
    f.show("cmdcalcola");
    f.show("cmdesci");
    f.show("cmdstampa");
}

}  // namespace bm::antennas
