#include "calc/antennas/radiation_resistance.hpp"

namespace bm::antennas {

namespace {
void cmdesci_Click(FormContext& f) { f.close(); }
}  // namespace

void RadiationInputs(CalculatorForm& f, int left, int top, const char* lengthCaption) {
    constexpr const char* kTip = "frequenza di risonanza dipolo";
    f.label("Label1", {left, top + 60, 3000, 255}, lengthCaption);
    f.textBox("txtlunghezza", {left + 3060, top, 1200, 330}).tip(kTip);
    f.label("Label3", {left, top + 480, 3000, 255}, "USATO ALLA FREQUENZA DI  MHz  :");
    f.textBox("txtfrequenza", {left + 3060, top + 420, 1200, 330}).tip(kTip);
}

void RadiationResults(CalculatorForm& f, int top, int width) {
    f.label("lblrr", {240, top, width, 255}).font(8, true);
    f.label("lblrisonanza", {240, top + 360, width, 255});
    f.label("lblgradi", {240, top + 720, width, 255});
    f.label("Label4", {240, top + 1140, width, 255}, "separare i decimali con il punto del tastierino numerico");
    f.button("cmdcalcola", {240, top + 1560, 1800, 480}, "C A L C O L A");
    f.button("cmdesci", {2280, top + 1560, 1800, 480}, "E S C I");
    f.onClick("cmdesci", cmdesci_Click);
}

bool ReadLengthAndFrequency(FormContext& f, FormValue& length, FormValue& frequency) {
    frequency = f.read("txtfrequenza");
    length = f.read("txtlunghezza");
    return !MissingDataSilentNegative(f, frequency * length, "txtlunghezza");
}

}  // namespace bm::antennas
