// A mains transformer from its core: power from the section, turns per volt
// from the lamination quality, wire from the currents. Each figure is printed
// and the next one computed from the printed text.
#include <array>

#include "forms/calculation.hpp"

namespace bm::iron {
namespace {

struct Vars {
    FormValue q;  // power factor of the laminations, single precision
    FormValue t;  // turns constant, 16-bit
    FormValue w, h, vp, vs;  // reloaded on every click
};

struct Quality {
    float q;
    std::int16_t t;
};

const std::array<Quality, 3> kQualities = {{{0.8f, 4100}, {0.83f, 3750}, {0.86f, 3600}}};

// The results keep what they show until the next calculation.
void Option1_Click(FormContext& f, int index) {
    Vars& m = f.values<Vars>();
    const Quality& k = kQualities.at(static_cast<std::size_t>(index));
    m.q = FormValue(k.q);
    m.t = FormValue(k.t);
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.w = f.read("txtlunghezza");
    m.h = f.read("txtaltezza");
    m.vp = f.read("txtvp");
    m.vs = f.read("txtvs");
    if (MissingData(f, m.w * m.h * m.vp * m.vs, "txtlunghezza")) return;

    const FormValue gross = m.w * m.h;  // mm2
    const FormValue net = gross * 0.95;
    if (gross < 160) {
        ErrorMessage(f, "SEZIONE TROPPO PICCOLA", "txtlunghezza");
        return;
    }
    if (gross > 20000) {
        ErrorMessage(f, "SEZIONE TROPPO GROSSA", "txtlunghezza");
        return;
    }

    const FormValue power = RoundHalfEven16(((gross * gross) / 13500) * m.q);
    const FormValue tp = f.picture(m.t / net, "##0.##");
    // Six per cent more turns per volt on the secondary, from the printed primary figure.
    const FormValue ts = f.picture(1.06 * tp, "##0.##");
    const FormValue np = RoundHalfEven16(tp * m.vp);
    const FormValue ns = RoundHalfEven16(ts * m.vs);
    // Each winding is taken to carry the whole power.
    const FormValue ip = f.picture(power / m.vp, "##0.##");
    const FormValue is = f.picture(power / m.vs, "##0.##");
    // 0.72 mm of wire for the root of each ampere.
    const std::string dp = f.picture(Sqr(ip) * 0.72, "##0.##");
    const std::string ds = f.picture(Sqr(is) * 0.72, "##0.##");

    f.setCaption("lblSL", "SEZIONE LORDA mmq: " + f.numberText(gross));
    f.setCaption("lblSN", "SEZIONE NETTA mmq: " + f.numberText(net));
    f.setCaption("lblSP", "SPIRE PER VOLT PRIMARIO N. " + tp.text());
    f.setCaption("lblSS", "SPIRE PER VOLT SECONDARIO N. " + ts.text());
    f.setCaption("lbltotSP", "TOTALE SPIRE PRIMARIO N. " + f.numberText(np));
    f.setCaption("lbltotSS", "TOTALE SPIRE SECONDARIO N. " + f.numberText(ns));
    f.setCaption("lbldiamP", "DIAMETRO FILO PRIM. mm. " + dp);
    f.setCaption("lbldiamS", "DIAMETRO FILO SEC.  mm. " + ds);
    f.setCaption("lblampprim", "AMPER PRIMARIO : " + ip.text());
    f.setCaption("lblampsec", "AMPER SECONDARIO : " + is.text());
    f.setCaption("lblWATT", "POTENZA IN WATT : " + f.numberText(power));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmtrasformatori() {
    CalculatorForm f("frmtrasformatori", "CALCOLO TRASFORMATORI DI ALIMENTAZIONE", {1800, 1200, 9000, 6360});

    f.label("Label1", {240, 120, 8400, 720},
            "Gli elementi principali che individuano un trasformatrore sono la potenza (in Watt) che è proporzionale "
            "alla sezione del nucleo,  la tensione dell'avvolgimento primario e quella dell'avvolgimento secondario o "
            "dei secondari. La potenza è inoltre dipendente dalla qualità dei lamierini.");

    f.frame("Frame1", {5040, 960, 3600, 1560}, "QUALITA'  DEI  LAMIERINI");
    f.option("Option1(0)", {240, 360, 3120, 285}, "Qualità bassa").in("Frame1");
    f.option("Option1(1)", {240, 720, 3120, 285}, "Qualità media").in("Frame1");
    f.option("Option1(2)", {240, 1080, 3120, 285}, "A granuli orientati").in("Frame1");

    // The label of the width carries the name of a text box.
    f.label("txtlarghezza", {240, 1020, 2880, 255}, "larghezza del nucleo in mm");
    f.textBox("txtlunghezza", {3240, 960, 1320, 330});
    f.label("Label3", {240, 1440, 2880, 255}, "altezza del nucleo in mm");
    f.textBox("txtaltezza", {3240, 1380, 1320, 330});
    f.label("Label4", {240, 1860, 2880, 255}, "Tensione primario in Volt");
    f.textBox("txtvp", {3240, 1800, 1320, 330}, "230");
    f.label("Label5", {240, 2280, 2880, 255}, "Tensione secondario in Volt");
    f.textBox("txtvs", {3240, 2220, 1320, 330});

    // Each result names itself until the first calculation.
    const int left = 240, right = 4680, width = 4080, top = 2880, step = 360;
    f.label("lblSL", {left, top, width, 255}, "SEZIONE LORDA  mmq").font(8, true);
    f.label("lblSN", {left, top + step, width, 255}, "SEZIONE NETTA  mmq").font(8, true);
    f.label("lblWATT", {left, top + 2 * step, width, 255}, "POTENZA IN WATT").font(8, true);
    f.label("lblampprim", {left, top + 3 * step, width, 255}, "AMPER PRIMARIO").font(8, true);
    f.label("lblampsec", {left, top + 4 * step, width, 255}, "AMPER SECONDARIO").font(8, true);
    f.label("lblSP", {right, top, width, 255}, "SPIRE PER VOLT PRIMARIO").font(8, true);
    f.label("lblSS", {right, top + step, width, 255}, "SPIRE PER VOLT SECONDARIO").font(8, true);
    f.label("lbltotSP", {right, top + 2 * step, width, 255}, "TOTALE SPIRE PRIMARIO").font(8, true);
    f.label("lbltotSS", {right, top + 3 * step, width, 255}, "TOTALE SPIRE SECONDARIO").font(8, true);
    f.label("lbldiamP", {right, top + 4 * step, width, 255}, "DIAMETRO DEL FILO PRIM.  mm").font(8, true);
    f.label("lbldiamS", {right, top + 5 * step, width, 255}, "DIAMETRO DEL FILO SEC.   mm").font(8, true);

    f.button("cmdcalcola", {240, 5280, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5280, 1800, 480}, "E S C I");
    f.label("Label2", {7320, 5400, 1320, 255}, "Z9QQX").aligned(Align::Right);

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::iron
