// Capacitance and inductance per metre of an aerial pair of equal wires: the
// capacitance between the wires, towards the earth and the two together, each
// from the one-decimal texts.
#include "calc/lines/impedance_window.hpp"
#include "forms/calculation.hpp"

namespace bm::lines {
namespace {

struct Vars {
    FormValue d, s, h;  // wire diameter and spacing in mm, height in mm
    FormValue cr;       // the resulting pF per metre
    FormValue l;        // uH per metre, read back from its two-decimal text
};

void BlankResults(FormContext& f) {
    for (const char* result : {"lblcd", "lblct", "lblc", "lblind"}) f.setCaption(result, "");
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.d = f.read("txtd");
    m.s = f.read("txtdistanza");
    m.h = f.read("txth") * 1000;
    if (MissingDataSilentNegative(f, m.d * m.s * m.h, "txtd")) return;
    const std::string cd = f.picture((0.0121 / Log10(2 * m.s / m.d)) * 1000, "#,##0.#");
    const std::string ct = f.picture((0.0242 / Log10(4 * m.h / m.d)) * 1000, "#,##0.#");
    // The earth's share is the two wires' in series: half of it adds to the pair's.
    m.cr = FormValue(f.textValue(cd)) + FormValue(f.textValue(ct)) / 2;
    m.l = ReadBack(f, (Log10(2 * m.s / m.d) * 9.21 + 1) / 10, "#,##0.##");
    f.setCaption("lblcd", "LA CAPACITA' TRA I DUE FILI E'  " + cd + " pF PER METRO");
    f.setCaption("lblct", "LA CAPACITA' VERSO TERRA E'  " + ct + " pF PER METRO");
    f.setCaption("lblc", "LA CAPACITA' RISULTANTE E'  " + f.numberText(m.cr) + " pF PER METRO");
    f.setCaption("lblind", "L'INDUTTANZA TRA I FILI E'  " + f.numberText(m.l) + " uH PER METRO");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmlineabifilare() {
    CalculatorForm f("frmlineabifilare", "CAPACITA' E INDUTTANZA DI UNA LINEA AEREA BIFILARE",
                     {2160, 1800, 7680, 5190});
    f.label("Label4", {240, 180, 7080, 480},
            "I DUE FILI DEVONO AVERE DIAMETRO UGUALE E LA DISTANZA DAL SUOLO SI SUPPONE TALE  DA NON "
            "INFLUENZARE L'INDUTTANZA DELLA LINEA")
        .aligned(Align::Center);
    f.label("Label1", {240, 945, 5160, 255}, "DIAMETRO DEL FILO IN MILLIMETRI");
    f.textBox("txtd", {5520, 900, 1560, 330});
    f.label("Label2", {240, 1365, 5160, 255}, "DISTANZA TRA I FILI IN MILLIMETRI");
    f.textBox("txtdistanza", {5520, 1320, 1560, 330});
    f.label("Label3", {240, 1785, 5160, 255}, "DISTANZA DAL SUOLO  IN METRI");
    f.textBox("txth", {5520, 1740, 1560, 330});
    f.label("lblcd", {240, 2340, 7080, 285}).font(9, true);
    f.label("lblct", {240, 2700, 7080, 285}).font(9, true);
    f.label("lblc", {240, 3060, 7080, 285}).font(9, true);
    f.label("lblind", {240, 3420, 7080, 285}).font(9, true);
    f.button("cmdcalcola", {240, 4020, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 4020, 1800, 480}, "E S C I");

    for (const char* box : {"txtd", "txtdistanza", "txth"}) f.onChange(box, BlankResults);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::lines
