// From longitude and latitude in degrees, minutes and seconds to the six
// characters of the world wide locator. Opened beside the reverse window.
#include <cstdint>
#include <string>

#include "calc/reference/locator.hpp"
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

// A character code of 0 to 255, as the character of that code in Latin-1;
// any other code has no character and ends the program.
std::string Chr(FormContext& f, const FormValue& code) {
    const std::int32_t k = RoundHalfEven32(code);
    if (k < 0 || k > 255) f.fail(FaultKind::InvalidArgument);
    std::string out;
    if (k < 0x80) {
        out.push_back(static_cast<char>(k));
    } else {
        out.push_back(static_cast<char>(0xC0 | (k >> 6)));
        out.push_back(static_cast<char>(0x80 | (k & 0x3F)));
    }
    return out;
}

void Form_Load(FormContext& f) { CenterAcross(f); }

// Nothing is checked. The minutes add to the degrees whatever their sign, and
// the latitude is held in single precision at every step; coordinates out of
// range give characters that are not letters, and far out of range no character.
void cmdcalcola_Click(FormContext& f) {
    const FormValue mlon = (f.read("txtlonpr") * 60 + f.read("txtlonse")) / 3600;
    const FormValue mlat = (f.read("txtlatpr") * 60 + f.read("txtlatse")) / 3600;
    FormValue x = f.read("txtlongr") + mlon;
    FormValue y = ToSingle(f.read("txtlatgr") + mlat);
    x = (x + 180) / 20;
    y = ToSingle((y + 90) / 10);
    const FormValue a = FloorValue(x);
    const FormValue b = FloorValue(y);
    x = (x - a) * 10;
    y = ToSingle((y - b) * 10);
    const FormValue c = FloorValue(x);
    const FormValue d = FloorValue(y);
    const std::string locator = Chr(f, a + 65) + Chr(f, b + 65) + Chr(f, c + 48) + Chr(f, d + 48) +
                                Chr(f, FloorValue((x - c) * 24) + 65) + Chr(f, FloorValue((y - d) * 24) + 65);
    f.setCaption("lblwwl", "il WORLD WIDE LOCATOR è :  " + locator);
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmwwl() {
    CalculatorForm f("frmwwl", "  da  COORDINATE   a    W W LOCATOR", {4380, 4320, 6600, 3720});

    f.label("Label6", {240, 120, 6000, 255}, "DA COORDINATE SESSAGESIMALI A WORLD WIDE LOCATOR").font(8, true);
    f.label("Label1", {2040, 600, 1080, 255}, "GRADI").aligned(Align::Center);
    f.label("Label2", {3240, 600, 1080, 255}, "PRIMI").aligned(Align::Center);
    f.label("Label3", {4440, 600, 1080, 255}, "SECONDI").aligned(Align::Center);

    f.label("Label4", {240, 960, 1680, 255}, "LONGITUDINE");
    f.textBox("txtlongr", {2040, 900, 1080, 330});
    f.textBox("txtlonpr", {3240, 900, 1080, 330});
    f.textBox("txtlonse", {4440, 900, 1080, 330});
    f.label("Label5", {240, 1440, 1680, 255}, "LATITUDINE");
    f.textBox("txtlatgr", {2040, 1380, 1080, 330});
    f.textBox("txtlatpr", {3240, 1380, 1080, 330});
    f.textBox("txtlatse", {4440, 1380, 1080, 330});

    f.label("lblwwl", {240, 2040, 6000, 255}).font(9, true);

    f.button("cmdcalcola", {240, 2640, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2640, 1800, 480}, "E S C I");

    f.onLoad(Form_Load);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
