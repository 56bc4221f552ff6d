#pragma once
// The window operations of the model on Qt: every shown form is a FormWindow
// that mirrors its FormState; what the user does goes to the Program, and
// after each event every shown window is brought back to its state.
#include <QImage>
#include <QMessageBox>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/host.hpp"
#include "forms/program.hpp"
#include "ui/form_window.hpp"
#include "ui/printing.hpp"

class QEventLoop;

namespace bm::ui {

class QtHost final : public Host, public EventSink {
public:
    // Answers a built box instead of showing it: returns the button "pressed".
    using MessageAnswerer = std::function<QMessageBox::StandardButton(QMessageBox& box)>;
    // Ends the process with a status (the default flushes and leaves at once).
    using ProcessExit = std::function<void(int status)>;

    QtHost();
    ~QtHost() override;
    QtHost(const QtHost&) = delete;
    QtHost& operator=(const QtHost&) = delete;

    void attach(Program& program) { program_ = &program; }
    Program* program() const { return program_; }

    void setMessageAnswerer(MessageAnswerer answerer) { answerer_ = std::move(answerer); }
    void setProcessExit(ProcessExit exit) { exit_ = std::move(exit); }
    // Off: a modal form returns at once instead of running its own loop (for
    // drawing windows without a user).
    void setModalLoops(bool on) { modalLoops_ = on; }
    void setPrintSettings(PrintSettings settings) { printSettings_ = std::move(settings); }

    FormWindow* window(std::string_view form) const;
    const QImage& lastPrintedImage() const { return lastPrinted_; }
    const PrintOutcome& lastPrintOutcome() const { return lastOutcome_; }

    // Menu items, as the menu bar chooses them.
    void chooseMenuItem(const std::string& item);

    // Host.
    int showMessage(const std::string& text, int style, const std::string& title) override;
    void formShown(FormState& form) override;
    void runModal(FormState& form) override;
    void formBroughtForward(FormState& form) override;
    void formClosed(FormState& form) override;
    void formMoved(FormState& form) override;
    void focusRequested(FormState& form, const ControlKey& control) override;
    void printWindow(FormState& form) override;
    void formChanged(FormState& form) override;
    void faulted(FaultKind kind) override;
    void ended() override;
    std::string today() override;
    int screenWidth() override;
    int screenHeight() override;

    // EventSink.
    void controlClicked(const std::string& form, const ControlKey& control) override;
    void controlEdited(const std::string& form, const ControlKey& control, const std::string& text) override;
    void timerElapsed(const std::string& form, const ControlKey& timer) override;
    void closeBoxPressed(const std::string& form) override;

private:
    // Runs one user event at the program's boundary, then brings every shown
    // window up to date. Nothing reaches a program that has ended.
    void dispatch(const std::function<void()>& event);
    bool acceptsEvents(const std::string& form) const;
    void syncAll();
    QWidget* messageParent() const;
    void leave(int status);

    Program* program_ = nullptr;
    std::map<std::string, QPointer<FormWindow>, std::less<>> windows_;
    std::map<std::string, QEventLoop*, std::less<>> loops_;
    MessageAnswerer answerer_;
    ProcessExit exit_;
    bool modalLoops_ = true;
    PrintSettings printSettings_;
    QImage lastPrinted_;
    PrintOutcome lastOutcome_;
};

}  // namespace bm::ui
