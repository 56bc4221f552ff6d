#pragma once
// The coil hand-off: a button on a calculator opens the one coil window,
// frmbobine, beside it. Windows are placed, no value passes; the user retypes.
#include <string_view>

#include "forms/form_context.hpp"

namespace bm {

struct CoilHandOff {
    enum class Order {
        PlaceFirst,  // the coil window is moved, then shown
        ShowFirst,   // the coil window is shown, then moved
        ShowOnly,    // shown, not moved
    };

    Order order = Order::PlaceFirst;
    Modality modality = OpenModeless;
    // The window moved beside it: "" is the window holding the button; another
    // name moves that window (loading it hidden when it is not loaded).
    std::string_view mover;
    bool moveCaller = true;
    bool callerAfter = false;  // the caller moves after the coil window, not before
    int callerLeft = 180;
    int callerTop = 180;
    int coilLeft = 4100;
    int coilTop = 2800;

    // The usual rows.
    static CoilHandOff PlaceFirst(int callerLeft = 180, int callerTop = 180, int coilTop = 2800);
    static CoilHandOff ShowFirst(int callerLeft = 180, int callerTop = 180);
    static CoilHandOff ShowFirstInPlace();  // nothing else moves
    static CoilHandOff Modal();             // shown modal where the system puts it
};

inline constexpr std::string_view kCoilForm = "frmbobine";

// What a press of the hand-off button does.
void OpenCoilWindow(FormContext& f, const CoilHandOff& how);

}  // namespace bm
