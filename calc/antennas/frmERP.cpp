// Effective radiated power and the loss of the line: the cable's attenuation
// at the frequency, the connectors, and the antenna's gain. One window behind
// two menu items, the radiated power under the antennas and the line loss
// under the lines; it does not know which opened it.
#include <array>

#include "forms/calculation.hpp"

namespace bm::antennas {
namespace {

// Attenuation in dB per 100 m of each cable, and the loss of one connector,
// for frequencies up to each row's limit.
struct Row {
    double upTo;  // MHz
    std::array<double, 5> cable;  // RG 58, RG 8 - 213, TV 6.8 mm, RG 217, RG 62
    float connector;  // dB each
};

constexpr std::array<Row, 7> kRows = {{
    {10, {4.59, 1.8, 2.2, 1.35, 2.8}, 0.1f},
    {50, {10.8, 4.27, 6.2, 3.28, 6.23}, 0.1f},
    {100, {16.1, 6.23, 6.9, 4.59, 9.68}, 0.2f},
    {200, {24.3, 8.86, 10.2, 6.56, 12}, 0.2f},
    {400, {39.4, 13.5, 15, 10.17, 17.4}, 0.3f},
    {1000, {78.7, 26.3, 23.3, 18, 28.5}, 0.3f},
    {3000, {177, 52.5, 52.5, 40.7, 60.7}, 0.4f},
}};

struct Vars {
    double attenuation = 0;  // dB per 100 m
    float connector = 0;     // dB each, single precision
};

void cmdcalcola_Click(FormContext& f) {
    Vars& m = f.values<Vars>();
    const FormValue freq = f.read("txtfrequenza");
    const FormValue watt = f.read("txtW");
    const FormValue length = f.read("txtlunghezza");
    const FormValue connectors = f.read("txtnr");
    const FormValue gain = f.read("txtguadagno");
    // The gain is in the product: 0 dB is missing data, a negative gain alone ends in silence.
    if (MissingDataSilentNegative(f, freq * watt * length * connectors * gain, "txtfrequenza")) return;

    int cable = 0;
    while (cable < 4 && !f.chosen(Indexed("Option1", cable))) ++cable;
    // Past the last row the coefficients stay as the last calculation left them:
    // up to 3200 MHz in silence, beyond with a warning that does not stop.
    for (const Row& row : kRows) {
        if (freq <= row.upTo) {
            m.attenuation = row.cable.at(static_cast<std::size_t>(cable));
            m.connector = row.connector;
            break;
        }
    }
    if (freq > 3200) {
        f.ShowMessage("FREQUENZA ECCESSIVA", 48, "AVVVERTIMENTO");
        f.setFocus("txtfrequenza");
    }

    const FormValue loss = (m.attenuation * length) / 100 + connectors * FormValue(m.connector);
    const FormValue atAntenna = watt / Power(FormValue::Whole(10), loss / 10);
    const FormValue radiated = atAntenna * Power(FormValue::Whole(10), gain / 10);
    const FormValue shown = ReadBackSingle(f, radiated, "##0.##");
    f.setCaption("lblerp", "POTENZA IRRADIATA  " + f.numberText(shown) + " Watt");
    f.setCaption("lblpt", "PERDITA TOT. DELLA LINEA  " + f.picture(loss, "#0.##") + " dB");
}

void cmdesci_Click(FormContext& f) { f.close(); }

}  // namespace

CalculatorForm frmERP() {
    CalculatorForm f("frmERP", "POTENZA EFFETTIVA IRRADIATA - E R P", {1200, 600, 9360, 6600});

    f.frame("Frame1", {6240, 1200, 2640, 2160}, " Tipi di cavo ")
        .tip("NATURALMENTE IMPEDENZE DIVERSE DEVONO ESSERE ADATTATE");
    constexpr const char* kAdapt = "IMPEDENZE DIVERSE DEVONO ESSERE ADATTATE";
    f.option("Option1(0)", {180, 300, 2280, 285}, "RG 58").in("Frame1");
    f.option("Option1(1)", {180, 660, 2280, 285}, "RG 8 - 213").in("Frame1");
    f.option("Option1(2)", {180, 1020, 2280, 285}, "TV 6.8 mm").in("Frame1").tip(kAdapt);
    f.option("Option1(3)", {180, 1380, 2280, 285}, "RG 217").in("Frame1");
    f.option("Option1(4)", {180, 1740, 2280, 285}, "RG 62").in("Frame1").tip(kAdapt);

    f.label("Label1", {240, 120, 8640, 720},
            "LA POTENZA EFFETTIVA IRRADIATA E' FUNZIONE DELLA POTENZA DEL TX, DELLA FREQUENZA,  DELLA LUNGHEZZA  "
            "E  QUALITA' DELLA LINEA,   DELLE PERDITE COMPLESSIVE E DEL GUADAGNO DELL'ANTENNA. LA POTENZA CHE "
            "GIUNGE ALL'ANTENNA, MOLTIPLICATA PER IL SUO GUADAGNO, E' LA POTENZA EFFETTIVA IRRADIATA: E R P");

    f.label("Label2", {240, 1260, 3960, 255}, "FREQUENZA in MHz");
    f.textBox("txtfrequenza", {4320, 1200, 1440, 330});
    f.label("Label3", {240, 1680, 3960, 255}, "POTENZA D' USCITA TX in Watt");
    f.textBox("txtW", {4320, 1620, 1440, 330}).tip("POTENZA MEDIA AL WATTMETRO");
    f.label("Label4", {240, 2100, 3960, 255}, "LUNGHEZZA DEL COAX in mt");
    f.textBox("txtlunghezza", {4320, 2040, 1440, 330});
    f.label("Label5", {240, 2520, 3960, 255}, "NR. DEI CONNETTORI USATI");
    f.textBox("txtnr", {4320, 2460, 1440, 330});
    f.label("Label6", {240, 2940, 3960, 480},
            "GUADAGNO ISO DELL'ANTENNA in dB (dipolo 1/2 onda =  + 2.14 dB dipolo ISO)");
    f.textBox("txtguadagno", {4320, 2940, 1440, 330}).tip("guadagno dell'ant. rispetto al dipolo isotropico");

    f.label("lblerp", {240, 3720, 8640, 255}).font(9, true);
    f.label("lblpt", {240, 4140, 8640, 255}).font(9, true);
    f.label("Label7", {240, 4680, 8640, 255}, "I RISULTATI SONO OVVIAMENTE TEORICI ED INDICATIVI");

    f.button("cmdcalcola", {240, 5280, 1800, 480}, "CALCOLA");
    f.button("cmdesci", {2280, 5280, 1800, 480}, "E S C I");

    f.onClick("cmdcalcola", cmdcalcola_Click);
    f.onClick("cmdesci", cmdesci_Click);
    return f;
}

}  // namespace bm::antennas
