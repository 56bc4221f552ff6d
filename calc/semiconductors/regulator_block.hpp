#pragma once
// The regulator as the three regulator windows draw it: a box on the supply
// line with its name inside, the input pin "E" where the line enters on the
// left, the output "U" where it leaves on the right, and the common pin at the
// bottom in the middle; and the supply line with its capacitors on either side.
#include <initializer_list>
#include <string>
#include <string_view>

#include "calc/schematic.hpp"

namespace bm::semiconductors {

struct RegulatorPins {
    int in;      // x where the line enters
    int out;     // x where it leaves
    int common;  // x of the bottom pin
    int bottom;  // y of the bottom pin
};

// The box from `left` on the line at `y`, 1500 wide; its name shows on the
// label `nameLabel`.
RegulatorPins RegulatorBlock(CalculatorForm& f, Schematic& s, int left, int y, std::string_view nameLabel,
                             std::string name, std::string common);

// The supply from the left edge to the regulator's input, with a capacitor down
// to the earth line at each x of `caps`.
void SupplyInput(Schematic& s, const RegulatorPins& pins, int y, int earth, std::initializer_list<int> caps);

// The capacitors on the output at each x of `caps`, then the earth line across
// the window with a terminal at each end, its nodes at `joins` and at the
// capacitors, and the ground symbol.
void SupplyOutput(Schematic& s, int y, int earth, std::initializer_list<int> caps, std::initializer_list<int> joins);

}  // namespace bm::semiconductors
