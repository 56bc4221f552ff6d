#include "calc/coil_handoff.hpp"

namespace bm {

CoilHandOff CoilHandOff::PlaceFirst(int callerLeft, int callerTop, int coilTop) {
    CoilHandOff h;
    h.callerLeft = callerLeft;
    h.callerTop = callerTop;
    h.coilTop = coilTop;
    return h;
}

CoilHandOff CoilHandOff::ShowFirst(int callerLeft, int callerTop) {
    CoilHandOff h = PlaceFirst(callerLeft, callerTop);
    h.order = Order::ShowFirst;
    return h;
}

CoilHandOff CoilHandOff::ShowFirstInPlace() {
    CoilHandOff h = ShowFirst();
    h.moveCaller = false;
    return h;
}

CoilHandOff CoilHandOff::Modal() {
    CoilHandOff h;
    h.order = Order::ShowOnly;
    h.modality = OpenModal;
    h.moveCaller = false;
    return h;
}

void OpenCoilWindow(FormContext& f, const CoilHandOff& how) {
    const auto moveCaller = [&] {
        if (!how.moveCaller) return;
        if (how.mover.empty()) f.moveWindow(how.callerLeft, how.callerTop);
        else f.moveWindow(how.mover, how.callerLeft, how.callerTop);
    };
    if (!how.callerAfter) moveCaller();
    switch (how.order) {
        case CoilHandOff::Order::PlaceFirst:
            f.moveWindow(kCoilForm, how.coilLeft, how.coilTop);
            f.OpenForm(kCoilForm, how.modality);
            break;
        case CoilHandOff::Order::ShowFirst:
            f.OpenForm(kCoilForm, how.modality);
            f.moveWindow(kCoilForm, how.coilLeft, how.coilTop);
            break;
        case CoilHandOff::Order::ShowOnly:
            f.OpenForm(kCoilForm, how.modality);
            break;
    }
    if (how.callerAfter) moveCaller();
}

}  // namespace bm
