#include "calc/semiconductors/regulator_block.hpp"

namespace bm::semiconductors {

RegulatorPins RegulatorBlock(CalculatorForm& f, Schematic& s, int left, int y, std::string_view nameLabel,
                             std::string name, std::string common) {
    constexpr int width = 1500;
    s.box(left, y - 480, width, 1080);
    f.label(nameLabel, {left + 60, y - 420, width - 120, 255}, std::move(name)).aligned(Align::Center).font(8, true);
    f.label("lblpinE", {left + 60, y - 120, 240, 255}, "E");
    f.label("lblpinU", {left + width - 300, y - 120, 240, 255}, "U").aligned(Align::Right);
    f.label("lblpin" + common, {left + width / 2 - 120, y + 300, 240, 255}, common).aligned(Align::Center);
    return {left, left + width, left + width / 2, y + 600};
}

void SupplyInput(Schematic& s, const RegulatorPins& pins, int y, int earth, std::initializer_list<int> caps) {
    s.terminal(600, y);
    s.wire(600, y, pins.in, y);
    for (int x : caps) {
        s.node(x, y);
        s.capacitor(x, y, x, earth);
        s.node(x, earth);
    }
}

void SupplyOutput(Schematic& s, int y, int earth, std::initializer_list<int> caps, std::initializer_list<int> joins) {
    for (int x : caps) {
        s.node(x, y);
        s.capacitor(x, y, x, earth);
    }
    s.wire(600, earth, 9500, earth);
    s.terminal(600, earth);
    s.terminal(9500, earth);
    for (int x : joins) s.node(x, earth);
    for (int x : caps) s.node(x, earth);
    s.ground(4350, earth);
}

}  // namespace bm::semiconductors
