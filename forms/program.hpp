#pragma once
// The running program: every form's record, the window rules (single instance,
// load, show, InitialFocusClick, unload) and the event boundary at which run-time
// failures end the process.
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_locale.hpp"
#include "forms/form_state.hpp"
#include "forms/host.hpp"

namespace bm {

class FormLibrary {
public:
    virtual ~FormLibrary() = default;
    virtual const CalculatorForm* find(std::string_view name) const = 0;
    // Whether the form exists, without building its definition.
    virtual bool has(std::string_view name) const { return find(name) != nullptr; }
};

// Raised by FormContext::endProgram: the program ends normally.
struct ProgramEnd {};

class Program {
public:
    enum class Status { Running, Faulted, Ended };

    Program(const FormLibrary& library, Host& host, NumberLocale locale);

    // The user's actions. Each is an event boundary: a run-time failure inside
    // ends the program through the host, and the status says so.
    Status open(std::string_view form, Modality modality);
    Status close(std::string_view form);
    Status click(std::string_view form, const ControlKey& control);
    Status edit(std::string_view form, const ControlKey& control, std::string text);  // one Change at most
    Status tick();
    // Runs any step at the boundary (used by the shell for menu items).
    Status run(const std::function<void()>& step);

    Status status() const { return status_; }
    std::optional<FaultKind> fault() const { return fault_; }

    FormState* state(std::string_view form);  // nullptr before its first use
    const FormState* state(std::string_view form) const;
    bool isBuilt(std::string_view form) const { return library_.has(form); }
    const FormLibrary& library() const { return library_; }
    // The form most recently opened, brought forward or acted in, still loaded.
    FormState* current();
    void activate(std::string_view form);

    const NumberLocale& locale() const { return locale_; }
    void setLocale(NumberLocale locale) { locale_ = std::move(locale); }
    Host& host() { return host_; }

    // The window operations, as the event context uses them.
    void openForm(std::string_view form, Modality modality);
    void closeForm(std::string_view form);
    void moveForm(std::string_view form, Rect rect);
    FormState& loadedState(std::string_view form);  // loads hidden when needed
    void fire(FormState& form, EventKind kind, const ControlKey& control);
    void setText(FormState& form, const ControlKey& control, std::string text);
    void setChosen(FormState& form, const ControlKey& control, bool chosen, bool userClick);

private:
    FormState& record(std::string_view form);
    void initialFocusClick(FormState& form);

    const FormLibrary& library_;
    Host& host_;
    NumberLocale locale_;
    std::map<std::string, std::unique_ptr<FormState>, std::less<>> forms_;
    std::vector<std::string> activation_;
    Status status_ = Status::Running;
    std::optional<FaultKind> fault_;
};

}  // namespace bm
