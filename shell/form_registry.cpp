// The menu tree of the main window, top to bottom as the menus show it.
// Each item only opens its form; the last column is how, and a modeless
// item leaves the main window usable while its form is open.
#include "shell/form_registry.hpp"

#include <array>

namespace bm {
namespace {

constexpr Modality modal = Modality::Modal;
constexpr Modality modeless = Modality::Modeless;

// Submenus have no form. Spacing inside captions ("L L  serie e parallelo",
// "Antenna E H ") is as the menus show it. Built on first use, so that no
// static initialiser elsewhere can find it empty.
const auto& Items() {
    static const std::array kItems = std::to_array<MenuItem>({
        {1, "mnuvolt", "Volt", "", modal},
        {2, "mnuohm", "Volt-Amp-Ohm-Watt", "frmleggediohm", modal},
        {2, "mnudecibel", "Decibel", "", modal},
        {3, "mnudb", "Decibel", "frmdB", modal},
        {3, "mnudbw", "dBWatt - dBmWatt", "frmdBW", modal},
        {3, "mnudbmicrovolt", "dBmicroVolt", "frmdBmicrovolt", modal},
        {2, "mnurms", "Volt R.M.S.", "frmvolt", modal},
        {1, "mnuinduttanza", "C&ircuiti L C R", "", modal},
        {2, "mnufiltri", "Filtri", "", modal},
        {3, "mnufiltriRF", "Filtri per R F", "", modal},
        {4, "mnufiltripassaalto", "Filtri passa alto", "frmpassaalto", modeless},
        {4, "mnufiltripassabasso", "Filtri passa basso", "frmpassabasso", modeless},
        {4, "mnufiltripassabanda", "Filtripassabanda", "frmpassabanda", modeless},
        {3, "mnufiltriBF", "Filtri per B F", "", modal},
        {4, "mnupassaaltobasso", "Filtri passa alto/basso", "frmfiltriBF", modal},
        {4, "mnufiltrinotch", "Filtri notch", "frmfiltronotch", modal},
        {2, "mnuvalinduttanza", "Sintonia", "frmvalinduttanza", modeless},
        {2, "mnureattanza", "Reattanza", "frmreattanza", modal},
        {2, "mnubobine", "Bobine per HF", "frmbobine", modal},
        {2, "MNUBOBINEUHF", "Bobine per UHF", "frmbobineuhf", modal},
        {2, "mnuLC", "Circuiti L C", "", modal},
        {3, "mnulcparallelo", "L C in parallelo", "frmimpcapparallelo", modal},
        {3, "mnuLCserie", "L C in serie", "frmimpcapserie", modal},
        {2, "mnuLCR", "Circuiti RLC", "", modal},
        {3, "mnuLCserieparall", "L C serie e parallelo", "frmLC", modeless},
        {3, "mnuLL", "L L  serie e parallelo", "frmLL", modeless},
        {3, "mnuRC", "R C serie e parallelo", "frmRC", modal},
        {3, "mnuRL", "R L serie e parallelo", "frmRL", modeless},
        {3, "mnuRLC", "R L + Capacità", "frmRLC", modeless},
        {3, "mnuparallLCR", "L C R parallelo", "frmRLCparallelo", modal},
        {3, "mnuserieLCR", "L C R serie", "frmRLCserie", modal},
        {3, "mnuRLR", "R L + Resistenza", "frmRLR", modal},
        {3, "mnuCLR", "C L + Resistenza", "frmCircuitiRLC", modal},
        {2, "mnuadattatorilc", "Adattatori L C", "frmadattatoriLC", modal},
        {2, "mnurisonanza", "Risonanza", "frmrisonanza", modeless},
        {2, "mnutuningrange", "Tuning Range", "frmtuningrange", modal},
        {2, "mnuimprisonanza", "Imped. a risonanza", "frmimprisonanza", modal},
        {2, "mnuq", "Fattore Q", "frmfattoreQ", modal},
        {1, "mnuantenne", "&Antenne", "", modal},
        {2, "mnuantorizz", "Dipoli", "", modal},
        {3, "mnudipoli", "Dipoli 1/2 lambda", "frmdipoli", modal},
        {3, "mnuantmultigamma", "Dipolo multigamma", "frmantmultigamma", modeless},
        {3, "mnumultigammaott", "Multigamma ottimizzato", "frmmultigammaott", modeless},
        {3, "mnuantcoaxmulti", "Multigamma trapp.coax", "frmantcoaxmulti", modal},
        {3, "mnutrappolalineare", "Trapp.elementi lineari", "frmtrappolalineare", modal},
        {3, "mnuanttrappolata", "Dipolo accorciato", "frmtrappolata", modeless},
        {2, "mnuantvert", "Verticali", "", modal},
        {3, "mnuverticale", "Verticale accorciata", "frmvertaccorciata", modeless},
        {3, "mnuAntAcc", "Accorciata alla base", "frmAntAcc", modal},
        {3, "mnucappello", "Cappello capacitivo", "frmcappello", modal},
        {3, "mnuantenna58", "Verticale 5/8 lambda", "frmantenna58", modal},
        {3, "mnuantennaj", "Verticale J", "", modal},
        {4, "mnujaperta", "con base aperta", "frmantennaJ", modal},
        {4, "mnujincorto", "con base in corto", "frmantJincorto", modal},
        {3, "mnugpgamma", "G P con gamma match", "frmgpgamma", modal},
        {3, "mnucaricoauto", "Carico con adattamento", "frmcaricoauto", modal},
        {2, "LoopAnt", "LoopAntenna magnetica", "frmloop", modal},
        {2, "mnuEH", "Antenna E H ", "", modal},
        {3, "mnuEHstar", "E H  tipo STAR", "frmEHstar", modal},
        {3, "mnuEHmultifreq", "E H  vecchio tipo", "frmEH", modal},
        {2, "mnuridimensiona", "Ridimensiona antenna", "frmridimensiona", modal},
        {2, "mnuresradiazione", "Resistenza Radiazione", "", modal},
        {3, "mnuresresdipolo", "Dipolo", "frmresradiazione", modal},
        {3, "mnuresradiazstilo", "Stilo", "frmresradiazionestilo", modal},
        {2, "mnuradiant", "Gradi - Radianti", "frmradianti", modal},
        {2, "mnuondadiretta", "Onda diretta VHF", "frmondadiretta", modal},
        {2, "mnulungharmonica", "Lungh. ant. in armonica", "frmlungharmonica", modeless},
        {2, "mnuerp", "Potenza eff.irradiata", "frmERP", modal},
        {2, "mnusegnali", "Segnali d'antenna", "", modal},
        {3, "mnusegnalidipolo", "da dipolo", "frmsegnalidipolo", modal},
        {3, "mnusegnaligenerica", "da ant.generica", "frmsegnaligenerica", modal},
        {2, "mnuelicoidale", "Elicoidale", "frmantelicoidale", modal},
        {2, "mnuparabole", "Parabole", "", modal},
        {3, "mnufuoco", "Fuoco parabola circ.", "frmfuoco", modal},
        {3, "mnubarattolo", "Illuminatore barattolo", "frmbarattolo", modal},
        {3, "mnuparaboliche", "Guadagno parabola", "frmparaboliche", modal},
        {1, "mnulinee", "&Linee", "", modal},
        {2, "mnuadattatori", "Adattattori Imp.za", "frmadattatori", modeless},
        {2, "mnugammamatch", "Gamma match", "frmgammamatch", modal},
        {2, "mnuros", "R.O.S.", "frmros", modal},
        {2, "mnuerp1", "Perdita nella linea", "frmERP", modal},
        {2, "mnubalunchoke", "Balun Choke", "frmbalunchoke", modal},
        {2, "mnugradi", "Gradi Elettrici", "frmgradi", modal},
        {2, "mnuimpedenzalinee", "Impedenza linee", "", modal},
        {3, "mnubifilareaperta", "Bifilare aperta", "frmbifilareaperta", modal},
        {3, "mnubifilareterra", "Bifilare con piano terra", "frmbifilareterra", modal},
        {3, "mnubilanciataduepiani", "Bifilare tra 2 piani terra", "frmbilanciataduepiani", modal},
        {3, "mnubilanciataschermata", "Bifilare schermata", "frmbilanciataschermata", modal},
        {3, "mnuguidachiusa", "Singola in guida chiusa", "frmguidachiusa", modal},
        {3, "mnusingoladuepiani", "Singola tra 2 piani terra", "frmsingoladuepiani", modal},
        {3, "mnuimpcoassiale", "Linea coassiale", "frmimpedenza", modal},
        {3, "mnustrip", "Linea a strip paralleli", "frmstrip", modal},
        {2, "mnuindlinee", "Induttanza linee", "", modal},
        {3, "mnuindunifilare", "Induttanza linea unifilare", "frmlineaunifilare", modal},
        {3, "mnuindbifilare", "Induttanza linea bifilare", "frmlineabifilare", modal},
        {2, "mnulunghezza", "Lung.Elettrica", "frmlungelettrica", modal},
        {1, "mnucapacità", "&Capacità", "", modal},
        {2, "mnucondensatori", "Cond. serie e parallelo", "frmcondensatori", modal},
        {2, "mnuripple", "Condensatori anti ripple", "frmripple", modal},
        {2, "mnucaplinee", "Capacità di una linea", "", modal},
        {3, "mnucapmonofilare", "Capacità linea monofilare", "frmlineaunifilare", modal},
        {3, "mnucapbifilare", "Capacità linea bifilare", "frmlineabifilare", modal},
        {3, "mnucapverticale", "Capacità linea verticale", "frmfiloverticale", modal},
        {3, "mnucapcoassiale", "Capacità linea coassiale", "frmimpedenza", modal},
        {2, "mnucapacitàbobina", "Capacità di una bobina", "frmcapacitàbobina", modal},
        {2, "mnucostrcondensatori", "Costr.condensatori", "frmcostruzionecondensatori", modal},
        {2, "mnucosttempo", "Costante di tempo", "", modal},
        {3, "mnucostrc", "Circuito R C", "frmcostantetemporc", modal},
        {3, "mnucostrl", "Circuito R L", "frmcostantetemporl", modal},
        {3, "mnuesempiocostante", "Esempio pratico R C", "frmesempiocostempo", modal},
        {1, "mnures", "&Resistenze", "", modal},
        {2, "mnuresistenze", "Res.  serie e parallelo", "frmresistenze", modal},
        {2, "mnupartitori", "Partitori resistivi", "frmpartitori", modal},
        {2, "mnuattenuatorires", "Reti adattam./attenuatori", "", modal},
        {3, "mnureteL", "Rete a L", "frmretiadL", modeless},
        {3, "mnuLbilanciata", "Rete a L bilanciata", "frmretiadLbilanciata", modeless},
        {3, "mnureteaT", "Rete a T e P greco", "frmretiaTePgreco", modeless},
        {3, "mnureteTbilanc", "Rete a T e Pgreco bilanc.", "frmretiaTePgrecobilanciate", modeless},
        {3, "mnureteTponte", "Rete a T ponte", "frmretiaTponte", modeless},
        {2, "mnuled", "Resistenza per Led", "frmled", modal},
        {2, "mnureszener", "Resistenza per Zener", "frmreszener", modal},
        {2, "mnuresistenzakm", "Resistenza di un filo in BF", "frmresistenzakm", modal},
        {2, "mnuresistenzarf", "Resistenza di un filo in RF", "frmresistenzarf", modal},
        {1, "mnutransistor", "Semiconduttori", "", modal},
        {2, "mnustadi", "Stadi a transistor", "", modal},
        {3, "mnuoscillampl", "Da stadio oscill a amplif", "frmoscill_preampl", modeless},
        {3, "mnufinqrp", "Stadio finale QRP", "frmminifinale_antenna", modeless},
        {3, "mnufinalepot", "Stadio finale di potenza", "frmfinale_antenna", modeless},
        {3, "mnutraslineare", "Trasmettitore + lineare", "frmtrasm_lineare", modeless},
        {2, "mnucommonemitter", "Common Emitter", "frmpolarizztransistor", modal},
        {2, "mnu78xx", "Integrati 78xx", "frm78xx", modal},
        {2, "mnu317", "Integrati 317/337", "frmlm317", modal},
        {2, "mnu317cc", "LM317 corrente cost", "frmlm317correntecost", modal},
        {1, "mnuantiqueradio", "Antique Radio", "", modal},
        {2, "mnutrasformatori", "Trasformatori", "frmtrasformatori", modal},
        {2, "mnuimpfiltro", "Impedenze di filtro", "frmimpedenzefiltro", modal},
        {1, "mnuvarie", "Varie", "", modal},
        {2, "mnudizionario", "Dizionario", "frmdizionario", modal},
        {2, "mnufrequenzametri", "Frequenza/Metri", "frmfrequenzametri", modal},
        {2, "mnuradianti", "Gradi - Radianti", "frmradianti", modal},
        {2, "mnupeso", "Peso specifico", "frmpeso", modal},
        {2, "mnumisureInglesi", "Misure inglesi", "frmmisureinglesi", modeless},
        {2, "mnupenetrazione", "Effetto pelle", "frmpenetrazione", modal},
        {2, "mnuprefissi", "Prefissi moltiplicativi", "frmprefissi", modal},
        {2, "mnuresistività", "Resistività", "frmresistività", modal},
        {2, "mnusezione", "Sezione filo", "frmsezione", modal},
        {2, "mnustrumenti", "Strumenti", "", modal},
        {3, "mnuamperometro", "shunt per amp.", "frmshunt", modal},
        {3, "mnuvoltmetro", "estens.voltm.", "frmvoltmetro", modal},
        {2, "mnutemperatura", "Temperatura", "frmtemperatura", modal},
        {2, "mnucontatto", "d.d.p. di Contatto", "frmddpcontatto", modal},
        {2, "mnucoordinate", "WW Locator", "frmcoordinate", modeless},
        {1, "mnuinfo", "Leggimi", "frmabaut", modal},
    });
    return kItems;
}

}  // namespace

std::span<const MenuItem> FormRegistry::items() { return Items(); }

const MenuItem* FormRegistry::find(std::string_view itemName) {
    for (const MenuItem& m : Items())
        if (m.name == itemName) return &m;
    return nullptr;
}

const MenuItem* FormRegistry::firstFor(std::string_view form) {
    if (form.empty()) return nullptr;
    for (const MenuItem& m : Items())
        if (m.form == form) return &m;
    return nullptr;
}

}  // namespace bm
