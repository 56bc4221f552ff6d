#include "calc/antennas/trapped_arm.hpp"

#include "calc/antennas/antenna_drawing.hpp"
#include "calc/coil_handoff.hpp"
#include "forms/calculation.hpp"

namespace bm::antennas {

const char* const kOneArmNote =
    "IL PROCEDIMENTO PUO' ESSERE APPLICATO TANTO AD UN RADIATORE VERTICALE CHE AD UN DIPOLO DI CUI,  PER "
    "PRATICITA',   VIENE RAPPRESENTATO SOLO UN BRACCIO;  L' ALTRO SI INTENDE IDENTICO";

void DrawTrappedArm(CalculatorForm& f, int top) {
    AntennaDrawing a(f);
    const int y = top;
    // Feed point at the left, the coax going down from it.
    a.feedPoint(900, y);
    a.coax(900, y + 90, 900, y + 900);
    a.radiator(1050, y, 3600, y);
    a.trap(3600, y, 4800, y);
    a.radiator(4800, y, 8100, y);
    a.insulator(8190, y);
    // A reaches the trap, B the end of the arm.
    a.dimension(900, y + 420, 4200, y + 420);
    a.dimension(900, y + 1020, 8100, y + 1020);

    f.label("Label4", {180, y - 720, 2400, 450}, "punto di alimentazione radiatore");
    f.label("Label10", {1080, y + 480, 600, 255}, "coax");
    f.label("Label3", {2280, y + 480, 600, 255}, "  A").font(9, true).tip("lungh.del tratto corispondente alla fr. più alta");
    f.label("Label5", {4080, y + 150, 300, 255}, "L").font(9, true).tip("trappola di blocco");
    f.label("Label7", {4380, y - 660, 300, 255}, "C").font(9, true).tip("condensatore in parallelo alla bobina");
    f.label("Label2", {4260, y + 1080, 600, 255}, "  B").font(9, true).tip("lungh.del radiatore vert. o del semidipolo");
}

bool FrequenciesTooClose(FormContext& f, const FormValue& f1, const FormValue& f2, std::string_view focus) {
    if (f1 < f2 + f2 / 5) {
        f.ShowMessage("FREQUENZE TROPPO VICINE O ERRATE", 48, "MESSAGGIO DI ERRORE");
        f.setFocus(focus);
        return true;
    }
    return false;
}

void ShowTrapReactances(FormContext& f, const FormValue& xl, const FormValue& xc) {
    const FormValue inductive = ReadBackFixed(f, xl, 1);
    const std::string capacitive = f.fixed(xc, 1);
    f.setCaption("lblxl", "LA REATTANZA INDUTTIVA E'  " + f.numberText(inductive) + " Ohm");
    f.setCaption("lblxc", "LA REATTANZA CAPACITIVA E'  " + capacitive + " Ohm");
    f.show("lblxl");
    f.show("lblxc");
}

void OpenTrapCoilWindow(FormContext& f) {
    CoilHandOff how = CoilHandOff::PlaceFirst();
    how.mover = "frmantmultigamma";
    OpenCoilWindow(f, how);
}

}  // namespace bm::antennas
