// From a six-character world wide locator to longitude and latitude, in
// degrees, minutes and hundredths of a minute. Opens the reverse window with it.
#include <array>
#include <cstdint>
#include <string>

#include "calc/reference/locator.hpp"
#include "forms/calculation.hpp"

namespace bm::reference {
namespace {

struct Vars {
    std::u16string wwl;               // the locator, upper-cased
    std::array<std::int16_t, 6> c{};  // the codes of its characters
    double lon = 0;
    float lat = 0;
};

// The text as the window holds it: 16-bit character units. A byte that is no
// part of a well-formed UTF-8 sequence counts as one replacement character.
std::u16string Units(const std::string& text) {
    std::u16string out;
    std::size_t i = 0;
    while (i < text.size()) {
        const auto b = static_cast<unsigned char>(text[i]);
        int extra = 0;
        char32_t cp = 0xFFFD;
        if (b < 0x80) cp = b;
        else if ((b & 0xE0) == 0xC0) { extra = 1; cp = b & 0x1Fu; }
        else if ((b & 0xF0) == 0xE0) { extra = 2; cp = b & 0x0Fu; }
        else if ((b & 0xF8) == 0xF0) { extra = 3; cp = b & 0x07u; }
        bool ok = b < 0x80 || extra > 0;
        for (int k = 1; ok && k <= extra; ++k) {
            const std::size_t at = i + static_cast<std::size_t>(k);
            if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) ok = false;
            else cp = (cp << 6) | (static_cast<unsigned char>(text[at]) & 0x3Fu);
        }
        if (!ok) {
            out.push_back(u'\uFFFD');
            ++i;
            continue;
        }
        i += 1 + static_cast<std::size_t>(extra);
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            out.push_back(static_cast<char16_t>(cp));
        }
    }
    return out;
}

// One character for one: the letters of ASCII and Latin-1 take their capital,
// everything else stays as typed, so the text keeps its length.
char16_t Upper(char16_t u) {
    if (u >= u'a' && u <= u'z') return static_cast<char16_t>(u - 32);
    if (u >= 0xE0 && u <= 0xFE && u != 0xF7) return static_cast<char16_t>(u - 32);
    if (u == 0xFF) return 0x178;
    return u;
}

// Whole arithmetic held to 16 bits: a step beyond their range is an overflow.
std::int16_t I16(long long v) { return RoundHalfEven16(FormValue(static_cast<double>(v))); }

// Degrees, minutes, and the hundredths of a minute that the label calls seconds;
// a single-precision value stays single all the way.
std::string Sexagesimal(const FormContext& f, const FormValue& v) {
    const FormValue dg = FloorValue(v);
    const FormValue m = (v - dg) * 60;
    const FormValue mi = FloorValue(m);
    const FormValue se = FloorValue((m - mi) * 100);
    return f.numberText(dg) + "°  " + f.numberText(mi) + "'  " + f.numberText(se) + "\"";
}

void Form_Load(FormContext& f) {
    CenterAcross(f);
    f.OpenForm("frmwwl", OpenModeless);
}

// Any character passes in any place: only the length is checked, and a code
// too large for the 16-bit sums ends the program.
void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    const std::u16string typed = Units(f.text("txtwwl"));
    if (typed.size() != 6) {
        f.ShowMessage("il WWL deve essere di 6 caratteri", 16, "DATI MANCANTI");
        return;
    }
    m.wwl = typed;
    for (char16_t& u : m.wwl) u = Upper(u);
    for (std::size_t i = 0; i < 6; ++i) m.c[i] = I16(m.wwl[i]);
    const auto& c = m.c;

    const std::int16_t a = I16(I16(I16(I16(c[0] - 65) * 20) - 180) + I16(I16(c[2] - 48) * 2));
    m.lon = (((c[4] - 64.5) / 12) + FormValue(a)).dbl();

    const std::int16_t b = I16(I16(I16(I16(I16(c[1] - 65) * 10) - 90) + c[3]) - 48);
    m.lat = ToSingle(((c[5] - 64.5) / 24) + FormValue(b));

    f.setCaption("lbllong", "LONGITUDINE = " + Sexagesimal(f, FormValue(m.lon)));
    f.setCaption("lbllat", "LATITUDINE    = " + Sexagesimal(f, FormValue(m.lat)));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmcoordinate() {
    CalculatorForm f("frmcoordinate", "  da  W W LOCATOR  a  COORDINATE", {4380, 600, 6600, 3480});

    f.label("Label6", {240, 120, 6000, 255}, "DA  WORLD WIDE LOCATOR A COORDINATE SESSAGESIMALI").font(8, true);
    f.label("lblwwl", {240, 720, 2280, 255}, "WORLD WIDE LOCATOR : ");
    f.textBox("txtwwl", {2640, 660, 1560, 330});
    f.label("lbllong", {240, 1260, 6000, 255}).font(9, true);
    f.label("lbllat", {240, 1680, 6000, 255}).font(9, true);

    f.button("cmdcalcola", {240, 2400, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 2400, 1800, 480}, "E S C I");

    f.onLoad(Form_Load);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::reference
