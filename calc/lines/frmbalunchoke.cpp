// The choke balun: a reference card with no input, the turns of coax that
// stop the current on the outside of the braid, band by band.
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmbalunchoke() {
    CalculatorForm f("frmbalunchoke", "BALUN  CHOKE", {1800, 900, 8160, 6240});

    f.label("Label1", {240, 120, 7560, 960},
            "Normalmente in un cavo coassiale le correnti dovrebbero scorrere in opposizione di fase lungo il "
            "conduttore interno e la superficie esterna della calza. In condizioni di sbilanciamento (frequenti in "
            "pratica) si viene a creare una corrente che interessa la superficie esterna della calza con "
            "irradiazione di segnale e produzione di TVI.");
    f.label("Label2", {240, 1200, 7560, 960},
            "Il rimedio più semplice per tentare di bloccare questa corrente indesiderata, consiste nel realizzare "
            "- nel punto di alimentazione dell'antenna - una bobina avvolgendo strettamente alcune spire "
            "costituite dallo stesso cavo coassiale. Premesso che l'efficienza diminuisce nelle bande basse, "
            "seguono i dati consigliati dalla ARRL.");

    // The table is six lines of text lined up with blanks, decimal commas as written.
    const char* const rows[] = {
        "BANDA              RG 58   mt.      spire                  RG 213   mt.        spire",
        "  80                                6          6-8                                  6,7         8",
        "  40                                4,5        6                                     6,7        10",
        "  20                                2,7        8                                     3           4",
        "  15                                1,8        8                                     2,7        6-8",
        "  10                                1,2        6-8                                  1,8        6-8",
    };
    int y = 2340;
    for (int i = 0; i < 6; ++i) {
        f.label("Label" + std::to_string(3 + i), {240, y, 7560, 255}, rows[i])
            .noWrap()
            ;
        y += 300;
    }
    f.label("Label9", {240, 4320, 7560, 255}, "PER UN LARGA BANDA DA 80 A 10 MT CIRCA  7 SPIRE CON 3 MT").font(8, true);

    f.button("cmdesci", {240, 4860, 1800, 480}, "C H I U D I");

    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
