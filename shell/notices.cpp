// The small text windows: the notice that the antenna calculators show, the
// help on the loop's coupling capacitor, and the about window of "Leggimi".
#include "forms/form_context.hpp"

namespace bm::shell {

namespace {

void Close(FormContext& f) { f.close(); }

constexpr int kAboutWidth = 7320;

// The about window takes its width and centres itself across the screen; it
// keeps the top of its definition.
void frmabautLoad(FormContext& f) {
    const Rect w = f.window();
    f.moveWindow(Rect{(f.screenWidth() - kAboutWidth) / 2, w.top, kAboutWidth, w.height});
}

}  // namespace

CalculatorForm frmavvertenza() {
    CalculatorForm f("frmavvertenza", "AVVERTENZA", {2880, 2520, 6600, 4560});
    f.label("Label1", {240, 240, 6120, 2880},
            "Le formule utilizzate sono quelle riportate sui vari testi e/o articoli sull'argomento. I risultati "
            "ottenuti, sono in ogni caso da considerare come indicativi, in quanto, a prescindere dall'esattezza "
            "delle formule stesse, troppi fattori, anche imprevedibili, fanno si che l'attuazione pratica si "
            "discosti dal calcolo teorico.  Esso rimane, tuttavia, indispensabile quale dato di partenza ai fini "
            "della realizzazione.")
        .font(10);
    f.button("cmdchiudi", {2573, 3360, 1335, 420}, "CHIUDI");
    f.onClick("cmdchiudi", Close);
    return f;
}

CalculatorForm frmhelpcondensatore() {
    CalculatorForm f("frmhelpcondensatore", "Condensatore d'accoppiamento", {3600, 3240, 4800, 3000});
    f.label("Label1", {180, 240, 4320, 1320},
            "Il condensatore di accoppiamento è quello previsto nell'ipotesi di accoppiamento della linea "
            "coassiale al loop  con il metodo capacitivo")
        .font(10);
    f.button("cmdok", {1673, 1800, 1335, 420}, "O K");
    f.onClick("cmdok", Close);
    return f;
}

CalculatorForm frmabaut() {
    CalculatorForm f("frmabaut", "Informazioni", {2040, 1440, kAboutWidth, 6180});
    f.picture("Picture1", {240, 240, 1215, 1215}, "about");
    f.label("Label1", {1680, 240, 5280, 1020},
            "Gli eventuali decimali devono essere separati dalle unità tramite il punto del tastierino numerico; "
            "l'operatività è risultata molto più pratica e veloce che con l'uso della virgola.");
    f.label("Label3", {1680, 1380, 2640, 255}, "Z9QQX  4/2002").font(8, true);
    f.label("Label2", {1680, 1680, 2640, 255}, "VERSIONE 2.6 xp").font(8, true);
    f.label("Label4", {240, 2160, 6720, 480},
            "L'uso del programma è gratuito, pertanto, l'autore non si assume alcuna responsabilità, esplicita o "
            "implicita.");
    f.label("Label5", {240, 2760, 6720, 840},
            "Non potrà quindi, in nessun caso, essere ritenuto responsabile per incidenti o danni che derivino, "
            "direttamente o indirettamente, o siano causati dall'uso del programma o dal suo funzionamento.");
    f.label("Label6", {240, 3720, 6720, 480},
            "Il semplice uso del programma comporta l'accettazione di quanto sopra precisato.");
    f.label("Label7", {240, 4320, 6720, 480},
            "GLI AGGIORNAMENTI SONO SCARICABILI DAL SITO DELLA SEZIONE AMV DI VALDORIA")
        .font(8, true)
        .aligned(Align::Center);
    f.button("cmdchiudi", {2933, 4980, 1335, 420}, "CHIUDI");
    f.onLoad(frmabautLoad);
    f.onClick("cmdchiudi", Close);
    return f;
}

}  // namespace bm::shell
