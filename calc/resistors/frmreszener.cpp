// The dropping resistor that feeds a Zener and its load, and what it burns.
// The Zener's own current comes from its power rating.
#include <array>

#include "calc/resistors/droppers.hpp"
#include "forms/calculation.hpp"

namespace bm::resistors {
namespace {

struct Vars {
    FormValue iz;  // mA through the Zener, kept from the last choice
    FormValue vcc, vz, ma;
    std::int16_t r = 0;  // ohm, a 16-bit field
    FormValue w;
};

void Option1_Click(FormContext& f, int index) {
    static const std::array<int, 3> kCurrent = {20, 30, 40};
    f.values<Vars>().iz = FormValue::Whole(kCurrent.at(static_cast<std::size_t>(index)));
}

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    m.vcc = f.read("txtvcc");
    m.vz = f.read("txtvz");
    m.ma = f.read("txtma");
    if (m.vz > m.vcc) {
        ErrorMessage(f, "VALORI DI TENSIONE ERRATI", "txtvcc");
        return;
    }
    if (MissingDataSilentNegative(f, m.vcc * m.vz * m.ma, "txtvcc")) return;
    m.r = RoundHalfEven16(((m.vcc - m.vz) / (m.iz + m.ma)) * 1000);
    m.w = ToSingle(((m.vcc - m.vz) * (m.iz + m.ma)) / 1000);

    f.setCaption("lblvcc", f.numberText(m.vcc) + " V");
    f.setCaption("lblohm", f.numberText(m.r) + " ohm");
    f.setCaption("lblvz", f.numberText(m.vz) + " V");
    f.setCaption("lblohmlunga", "Valore della resistenza = Ohm " + f.numberText(m.r));
    f.setCaption("lblwatt", "Dissipazione in Watt = " + f.numberText(m.w));
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmreszener() {
    CalculatorForm f("frmreszener", "CALCOLO DELLA RESISTENZA DI CADUTA", {1800, 1500, 9360, 4620});
    f.frame("Frame1", {240, 240, 2640, 1560}, "Zener utilizzato").tip("selezionare la potenza del diodo zener");
    f.option("Option1(0)", {240, 300, 2160, 300}, "Zener da 1/2 watt").in("Frame1");
    f.option("Option1(1)", {240, 660, 2160, 300}, "Zener da 1 watt").in("Frame1");
    f.option("Option1(2)", {240, 1020, 2160, 300}, "Zener da 2 watt").in("Frame1");

    const int left = 3600, top = 720, out = left + kDropperOutput;
    DrawDropper(f, left, top, Diode::Zener);
    f.label("Label1", {left - 360, top - 420, 720, 255}, "+ Vcc").aligned(Align::Center);
    f.label("lblvcc", {left + 150, top + kDropperGap / 2 - 127, 1440, 255});
    f.label("lblohm", {left + 480, top - 420, 1440, 255}).aligned(Align::Center);
    f.label("Label2", {out - 360, top - 420, 720, 255}, "Vz").aligned(Align::Center);
    f.label("lblvz", {out + 150, top + kDropperGap / 2 - 127, 1200, 255});

    f.label("Label3", {240, 2580, 2640, 255}, "Tensione di alimentazione");
    f.textBox("txtvcc", {3000, 2520, 1200, 330}).tip("input tensione non stabilizzata");
    f.label("Label4", {240, 3000, 2640, 255}, "Tensione diodo zener");
    f.textBox("txtvz", {3000, 2940, 1200, 330}).tip("Tens. stabilizzata");
    f.label("Label5", {240, 3420, 2640, 255}, "Assorbimento in milliAmpere").tip("corrente assorbita dal circuito");
    f.textBox("txtma", {3000, 3360, 1200, 330}).tip("corrente assorbita dal circuito");

    f.label("lblohmlunga", {4560, 2580, 4560, 255}).font(8, true);
    f.label("lblwatt", {4560, 3000, 4560, 255}).font(8, true);

    f.button("cmdcalcola", {4560, 3420, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {6600, 3420, 1800, 480}, "E S C I");

    f.onClick("Option1", Option1_Click);
    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::resistors
