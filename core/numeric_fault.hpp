#pragma once
// The program's run-time failures. Nothing in a calculator traps them: the host
// shows the fault box and the process ends.
#include <stdexcept>
#include <string>
#include <string_view>

namespace bm {

enum class FaultKind {
    DivisionByZero,
    Overflow,
    InvalidArgument,
    TypeMismatch,
    ObjectRequired,    // a property set on a value that was never assigned
    FormAlreadyShown,  // a form shown modal while it is shown modeless
};

// "division-by-zero", "overflow", ... as scenario files spell the kinds.
std::string_view FaultSlug(FaultKind kind);
// Parses a slug back; false when the text names no kind.
bool FaultFromSlug(std::string_view slug, FaultKind& kind);
// The error number and Italian text of the run-time box.
int FaultNumber(FaultKind kind);
std::string_view FaultText(FaultKind kind);
// "Errore di run-time '11':\n\nDivisione per zero"
std::string FaultBoxText(FaultKind kind);

// Any failure that ends the program after the fault box.
class RunTimeFailure : public std::runtime_error {
public:
    explicit RunTimeFailure(FaultKind kind);
    FaultKind kind() const noexcept { return kind_; }

private:
    FaultKind kind_;
};

// The numeric failures: division by zero, overflow, invalid argument, type mismatch.
class NumericFault : public RunTimeFailure {
public:
    explicit NumericFault(FaultKind kind) : RunTimeFailure(kind) {}
};

// Ends the current event with a run-time failure that is not numeric.
[[noreturn]] void RaiseRunTimeFailure(FaultKind kind);

}  // namespace bm
