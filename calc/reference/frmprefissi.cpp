// The multiplying prefixes: name, symbol and value, one label to a row, the
// columns lined up by blanks.
#include <array>
#include <string_view>
#include <utility>

#include "forms/form_context.hpp"

namespace bm::reference {
namespace {

constexpr std::array<std::pair<const char*, const char*>, 11> kRows = {{
    {"Label1", "NOME              SIMBOLO     VALORE MOLTIPLICATIVO"},
    {"Label2", "tera                                    T                                1.000.000.000.000"},
    {"Label3", "giga                                   G                                       1.000.000.000"},
    {"Label4", "mega                                 M                                              1.000.000"},
    {"Label5", "chilo                                   K                                                     1.000"},
    {"Label6", "deci                                   d                                0,1"},
    {"Label7", "centi                                  c                                0,01"},
    {"Label8", "milli                                    m                                0,001"},
    {"Label9", "micro                                  u                                0,000 001"},
    {"Label10", "nano                                  n                                0,000 000 001"},
    {"Label11", "pico                                   p                                0,000 000 000 001"},
}};

void cmdchiudi_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmprefissi() {
    CalculatorForm f("frmprefissi", "VALORI E SIMBOLI DEI PREFISSI MOLTIPLICATIVI", {2400, 1500, 7800, 5700});

    // The heading is set larger, and its fewer blanks then reach the same columns.
    int top = 240;
    for (const auto& [name, text] : kRows) {
        const bool heading = std::string_view(name) == "Label1";
        f.label(name, {360, top, 7080, heading ? 345 : 255}, text).noWrap().font(heading ? 12 : 8, heading);
        top += heading ? 540 : 330;
    }
    f.button("cmdchiudi", {2940, top + 180, 1800, 480}, "C H I U D I");

    f.onClick("cmdchiudi", cmdchiudi_Click);
    return f;
}

}  // namespace bm::reference
