#pragma once
// A host with no toolkit: message boxes answer from a queue, windows are
// records, and every effect is kept in order for the tests to read.
#include <deque>
#include <string>
#include <vector>

#include "forms/host.hpp"

namespace bm {

struct Effect {
    enum class Kind { Message, Focus, Open, BringForward, Close, Move, Print, Fault, End };
    Kind kind = Kind::Message;
    std::string form;
    std::string control;  // Focus
    std::string text;     // Message
    int style = 0;
    std::string title;
    Modality modality = Modality::Modeless;  // Open
    Rect rect;                               // Open, Move
    std::vector<std::string> hidden;         // Print: the controls hidden at that moment
    FaultKind fault = FaultKind::Overflow;   // Fault
};

class HeadlessHost : public Host {
public:
    std::vector<Effect> effects;
    std::deque<int> answers;  // what the next message boxes return
    std::string date = "21/11/2026";
    int width = 15360;
    int height = 11520;
    // A question box (style 36) met with no answer queued: the answer is 7 and this counts it.
    int unansweredQuestions = 0;

    int showMessage(const std::string& text, int style, const std::string& title) override;
    void formShown(FormState& form) override;
    void runModal(FormState&) override {}
    void formBroughtForward(FormState& form) override;
    void formClosed(FormState& form) override;
    void formMoved(FormState& form) override;
    void focusRequested(FormState& form, const ControlKey& control) override;
    void printWindow(FormState& form) override;
    void faulted(FaultKind kind) override;
    void ended() override;
    std::string today() override { return date; }
    int screenWidth() override { return width; }
    int screenHeight() override { return height; }

    // The last effect of a kind, or nullptr.
    const Effect* last(Effect::Kind kind) const;

private:
    Effect& add(Effect::Kind kind, std::string form = {});
};

}  // namespace bm
