#include "calc/resistors/pads.hpp"

#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct LVars {
    FormValue h, l;
};

struct TPiVars {
    FormValue i, o, d;  // the Pi step writes the conductances over i and o
};

constexpr const char* kTip = "inserire i dati";
constexpr const char* kInputCaptionIn = "IMPEDENZA D' INGRESSO in OHM";
constexpr const char* kInputCaptionOut = "IMPEDENZA D' USCITA in OHM";

FormValue Hundredths(const FormValue& r) { return FloorValue(r * 100 + 0.5) / 100; }

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

void LPadControls(CalculatorForm& f) {
    f.label("Label1", {240, 120, 7200, 255}, "La rete a L è la più semplice rete idonea ad adattare due impedenze diverse ");
    f.label("Label2", {240, 1500, 1560, 480}, "lato impedenza maggiore").aligned(Align::Right);
    f.label("Label4", {5760, 1500, 1680, 480}, "lato impedenza minore");

    f.label("lblZI", {240, 3300, 3480, 255}, kInputCaptionIn);
    f.textBox("txtRH", {3840, 3240, 1560, 330}).tip(kTip);
    f.label("lblZo", {240, 3720, 3480, 255}, kInputCaptionOut);
    f.textBox("txtRL", {3840, 3660, 1560, 330}).tip(kTip);
    f.label("Label3", {240, 4140, 7200, 480},
            "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE DELL'IMPEDENZA D' USCITA");
    f.label("lblperdita", {240, 4680, 7200, 255}).font(8, true);

    f.button("cmdcalcola", {240, 5100, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5100, 1800, 480}, "E S C I");
    f.onClick("cmdesci", cmdesci_Click);
}

std::optional<LPad> SizeLPad(FormContext& f) {
    LVars& m = f.values<LVars>();
    m.h = f.read("txtRH");
    m.l = f.read("txtRL");
    if (MissingData(f, m.h * m.l, "txtRH")) return std::nullopt;
    // A wrong order, or no difference to match, is told with the same words.
    if (MissingData(f, m.h - m.l, "txtRH")) return std::nullopt;
    LPad pad{m.h, m.l, {}, {}};
    pad.r1 = Sqr(m.h * (m.h - m.l));
    pad.r2 = Sqr((m.h * Power(m.l, 2)) / (m.h - m.l));
    return pad;
}

void ShowLPadLoss(FormContext& f, const LPad& pad) {
    const FormValue& h = pad.high;
    const FormValue& l = pad.low;
    const FormValue a = Log((Power((l + pad.r2) / pad.r2, 2) * h) / l) / Log(10.0) * 10;
    const FormValue loss = ReadBackFixedSingle(f, a, 2);
    f.setCaption("lblperdita", "L'ATTENUAZIONE E' " + f.numberText(loss) + " dB");
}

void TPiControls(CalculatorForm& f) {
    f.label("Label1", {600, 240, 3600, 255}, "RETE a T").aligned(Align::Center).font(8, true);
    f.label("Label2", {4800, 240, 3600, 255}, "RETE a P GRECO").aligned(Align::Center).font(8, true);

    f.label("lblZI", {240, 3300, 3480, 255}, kInputCaptionIn);
    f.textBox("txtZI", {3840, 3240, 1560, 330}).tip(kTip);
    f.label("lblZo", {240, 3720, 3480, 255}, kInputCaptionOut);
    f.textBox("txtZO", {3840, 3660, 1560, 330}).tip(kTip);
    f.label("lblLD", {240, 4140, 3480, 255}, "ATTENUAZIONE DESIDERATA in DB");
    f.textBox("txtLD", {3840, 4080, 1560, 330}).tip(kTip);
    f.label("lblperdita", {5760, 3720, 3480, 255}).font(8, true);

    f.label("Label3", {240, 4620, 9000, 480},
            "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE O UGUALE ALL'IMPEDENZA D' USCITA  QUANDO E' UGUALE NON "
            "SI HANNO PERDITE D' INSERZIONE");
    f.label("Label4", {240, 5160, 9000, 255},
            "Quando le impedenze sono diverse, determinati valori di attenuazione non consentono il calcolo");

    f.button("cmdcalcola", {240, 5640, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5640, 1800, 480}, "E S C I");
    f.onClick("cmdesci", cmdesci_Click);
}

std::optional<TPiPad> SizeTPiPad(FormContext& f) {
    TPiVars& m = f.values<TPiVars>();
    m.i = f.read("txtZI");
    m.o = f.read("txtZO");
    m.d = f.read("txtLD");
    if (MissingData(f, m.i * m.o * m.d, "txtZI")) return std::nullopt;
    if (m.i < m.o) {
        f.ShowMessage("IMPEDENZA IN < IMPEDENZA OUT", 48, "messaggio di errore");
        f.setFocus("txtZI");
        return std::nullopt;
    }
    const FormValue r = m.i / m.o;
    const FormValue lmin = 10 * Log(Power(r + Power(m.i / m.o - 1, 0.5), 2)) / Log(10.0);
    if (m.d < lmin) {
        f.ShowMessage("DATI NON CONGRUI", 48, "messaggio di errore");
        f.setFocus("txtLD");
        return std::nullopt;
    }

    TPiPad pad;
    pad.minimumLoss = lmin;
    const FormValue k = Power(FormValue::Whole(10), m.d / 10);
    {
        const FormValue r3 = (2 / (k - 1)) * Power(k * m.i * m.o, 0.5);
        const FormValue a = (k + 1) / (k - 1);
        pad.r1T = Hundredths(m.i * a - r3);
        pad.r2T = Hundredths(m.o * a - r3);
        pad.r3T = Hundredths(r3);
    }
    // The pi is the T's dual: conductances in place of the impedances.
    m.o = 1 / m.o;
    m.i = 1 / m.i;
    const FormValue& gO = m.o;
    const FormValue& gI = m.i;
    const FormValue g3 = (2 / (k - 1)) * Power(k * gI * gO, 0.5);
    const FormValue as = ToSingle((k + 1) / (k - 1));
    pad.r2P = Hundredths(1 / (gO * as - g3));
    pad.r1P = Hundredths(1 / (gI * as - g3));
    pad.r3P = ToSingle(Hundredths(1 / g3));
    return pad;
}

void ShowInsertionLoss(FormContext& f, const TPiPad& pad) {
    // The bracket floors the whole figure: whole dB, not hundredths.
    const FormValue loss = FloorValue((pad.minimumLoss * 100 + 0.5) / 100);
    f.setCaption("lblperdita", "PERDITA D'INSERZIONE " + f.numberText(loss) + " dB");
}

}  // namespace bm::resistors
