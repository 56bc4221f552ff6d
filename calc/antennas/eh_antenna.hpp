#pragma once
// What the two EH antenna windows share: the pair of cylinders on the drawing
// with their measures, the missing-data warning under its own title, and the
// print of the window without its buttons.
#include "calc/antennas/antenna_drawing.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {

// Where the cylinders stand, for the network drawn beside them.
struct EhCylinders {
    static constexpr int kRight = 1800;        // right side of both tubes
    static constexpr int kUpperTop = 600;
    static constexpr int kUpperBottom = 1920;
    static constexpr int kLowerTop = 2460;
    static constexpr int kLowerBottom = 3780;
};

// The upper and lower cylinder, one above the other, with the measures of
// their length (lbll, lbll2), of the gap between them (lbldd) and of their
// diameter (lbld), and the caption "cilindro superiore" (Label7).
void DrawEhCylinders(CalculatorForm& f, AntennaDrawing& a);

// The title of both windows' missing-data warning, two blanks in front.
inline constexpr const char* kEhWarningTitle = "  ATTENZIONE";

// Hides the three buttons, prints the window as it then stands, shows them again.
void PrintWithoutButtons(FormContext& f);

}  // namespace bm::antennas
