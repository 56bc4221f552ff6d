#include "calc/antennas/loaded_dipole.hpp"

namespace bm::antennas {

bool LoadedDipoleOutOfRange(FormContext& f, const FormValue& a, const FormValue& b, const FormValue& frequency) {
    if (b >= 142 / frequency) {
        f.ShowMessage("RADIATORE PIU' LUNGO DI 1/2 LAMBDA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtlunghezza");
        return true;
    }
    if (a >= b / 2) {
        f.ShowMessage("DISTANZA ECCESSIVA", 48, "MESSAGGIO DI AVVISO");
        f.setFocus("txtdistanza");
        return true;
    }
    return false;
}

FormValue LoadingInductance(const FormValue& a0, const FormValue& b0, const FormValue& d0, const FormValue& fr) {
    const FormValue a = a0 / 0.3048;
    const FormValue b = b0 / 0.3048;
    const FormValue d = d0 / 25.4;
    const FormValue k = 3.14 * 3.14 * 68;
    // The guards keep both logarithms' arguments above 0.
    const FormValue g1 = Log(24 * (234 / fr - a) / d) - 1;
    const FormValue g2 = Log(24 * (b / 2 - a) / d) - 1;
    const FormValue near = 1 - fr * a / 234;
    const FormValue far = (fr * b / 2 - fr * a) / 234;
    const FormValue sum = g1 * (near * near - 1) / (234 / fr - a) - g2 * (far * far - 1) / (b / 2 - a);
    return (1e6 / (k * (fr * fr))) * sum;
}

}  // namespace bm::antennas
