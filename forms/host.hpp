#pragma once
// What the window model asks of a toolkit. The Qt front end implements it with
// real windows; the headless host records every call.
#include <string>

#include "core/numeric_fault.hpp"
#include "forms/form_state.hpp"

namespace bm {

class Host {
public:
    virtual ~Host() = default;

    // A modal box; returns the button pressed (1 OK, 6 Yes, 7 No).
    virtual int showMessage(const std::string& text, int style, const std::string& title) = 0;
    // The window appears (it returns at once, also for a modal form).
    virtual void formShown(FormState& form) = 0;
    // A modal form: blocks until the form closes. The headless host returns at once.
    virtual void runModal(FormState& form) = 0;
    virtual void formBroughtForward(FormState& form) = 0;
    virtual void formClosed(FormState& form) = 0;
    virtual void formMoved(FormState& form) = 0;
    virtual void focusRequested(FormState& form, const ControlKey& control) = 0;
    virtual void printWindow(FormState& form) = 0;
    // The state of a shown form changed; bring its window up to date.
    virtual void formChanged(FormState& /*form*/) {}
    // The process ends: after the fault box, or at the exit of the main window.
    virtual void faulted(FaultKind kind) = 0;
    virtual void ended() = 0;

    virtual std::string today() = 0;
    virtual int screenWidth() = 0;
    virtual int screenHeight() = 0;
};

}  // namespace bm
