#pragma once
// The resistive pads drawn as their circuits, all alike: the input terminals on
// the left, the output terminals on the right, the return wire (or the second
// line of a balanced pad) below. Every resistor carries the label named for it,
// made here with its starting caption; the results take its place.
//
// (left, top) is the upper input terminal; the lower line runs kLineGap below.
// Labels of series resistors stand above the top line (below the bottom line of
// a balanced pad); labels of shunt resistors stand on their right, up to
// kLabelWidth past the resistor.
#include "forms/form_definition.hpp"

namespace bm::resistors {

inline constexpr int kNetworkWidth = 3600;
inline constexpr int kLineGap = 1440;
inline constexpr int kLabelWidth = 1200;

struct PartLabel {
    const char* name;
    const char* caption;
};

// Series R1 on the high side, R2 across the low side.
void DrawLNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2);
// The same with R1 split between the two lines.
void DrawBalancedLNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2);
// R1 and R2 in series, R3 across from their joint.
void DrawTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3);
// R1 across the input, R3 in series, R2 across the output.
void DrawPiNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3);
// The T with R1 and R2 on both lines, R3 between the joints.
void DrawBalancedTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2,
                          PartLabel r2a, PartLabel r3);
// The pi with R3 on both lines.
void DrawBalancedPiNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r2, PartLabel r3,
                           PartLabel r3a);
// Two equal series arms R1, R1a; R2 from their joint to the return; R3 bridging
// both arms above them, kLineGap / 2 over the top line.
void DrawBridgedTNetwork(CalculatorForm& f, int left, int top, PartLabel r1, PartLabel r1a, PartLabel r2,
                         PartLabel r3);

}  // namespace bm::resistors
