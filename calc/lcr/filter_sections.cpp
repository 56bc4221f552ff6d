#include "calc/lcr/filter_sections.hpp"

#include "forms/calculation.hpp"

namespace bm::lcr {
namespace {

// What a calculation needs, hidden until a section is chosen.
constexpr const char* kInputs[] = {"lblfrequenza", "lblimpedenza", "txtfrequenza", "txtimpedenza", "cmdcalcola",
                                   "cmdbobine"};

// The input block takes the place on the right that the other picture leaves.
void ShowInputs(FormContext& f) {
    f.hide("lblistruzione");
    f.move("lblfrequenza", 4180, 1020);
    f.move("lblimpedenza", 4180, 1700);
    f.move("txtfrequenza", 6800, 850);
    f.move("txtimpedenza", 6800, 1550);
    for (const char* c : kInputs) f.show(c);
    // Whichever picture was chosen, it is the pi picture's tooltip that goes.
    f.setTooltip("Image1", "");
    f.setFocus("txtfrequenza");
}

}  // namespace

void ShowSectionChooser(FormContext& f) {
    f.show("lblistruzione");
    for (const char* c : kInputs) f.hide(c);
    f.hide("lblinduttanza");
    f.hide("lblcapacità");
    f.hide("lblnota");
}

void ChoosePiSection(FormContext& f) {
    f.show("Image1");
    f.hide("Image2");
    f.show("lblpigreco");
    f.hide("lblT");
    ShowInputs(f);
}

void ChooseTSection(FormContext& f, int titleLeft, int titleTop) {
    f.hide("Image1");
    f.show("Image2");
    f.move("Image2", 240, 840);
    f.hide("lblpigreco");
    f.show("lblT");
    f.move("lblT", titleLeft, titleTop);
    ShowInputs(f);
}

std::optional<FilterInputs> FilterAtClick(FormContext& f) {
    FilterInputs in;
    in.frequency = f.read("txtfrequenza");
    in.impedance = f.read("txtimpedenza");
    if (MissingDataSilentNegative(f, in.frequency * in.impedance, "txtfrequenza")) return std::nullopt;
    f.move("lblinduttanza", 3700, 2300);
    f.move("lblcapacità", 3700, 2900);
    f.show("lblinduttanza");
    f.show("lblcapacità");
    in.pi = f.visible("Image1");
    return in;
}

void ShowFilter(FormContext& f, const std::string& inductance, const FormValue& capacitance) {
    f.setCaption("lblinduttanza", "INDUTTANZA in microHENRY di L : " + inductance);
    f.setCaption("lblcapacità", "CAPACITA' in picoFARAD di C : " + f.numberText(capacitance));
    f.show("lblnota");
}

}  // namespace bm::lcr
