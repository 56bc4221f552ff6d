#include "core/numeric_fault.hpp"

#include <array>

namespace bm {
namespace {

struct FaultInfo {
    FaultKind kind;
    std::string_view slug;
    int number;
    std::string_view text;
};

constexpr std::array<FaultInfo, 6> kFaults{{
    {FaultKind::DivisionByZero, "division-by-zero", 11, "Divisione per zero"},
    {FaultKind::Overflow, "overflow", 6, "Overflow"},
    {FaultKind::InvalidArgument, "invalid-argument", 5, "Chiamata di routine o argomento non validi"},
    {FaultKind::TypeMismatch, "type-mismatch", 13, "Tipo non corrispondente"},
    {FaultKind::ObjectRequired, "object-required", 424, "Necessario oggetto"},
    {FaultKind::FormAlreadyShown, "form-already-shown", 400,
     "Form già visualizzato. Impossibile visualizzarlo come finestra modale"},
}};

const FaultInfo& Info(FaultKind kind) {
    for (const auto& f : kFaults)
        if (f.kind == kind) return f;
    return kFaults[0];
}

}  // namespace

std::string_view FaultSlug(FaultKind kind) { return Info(kind).slug; }

bool FaultFromSlug(std::string_view slug, FaultKind& kind) {
    for (const auto& f : kFaults) {
        if (f.slug == slug) {
            kind = f.kind;
            return true;
        }
    }
    return false;
}

int FaultNumber(FaultKind kind) { return Info(kind).number; }
std::string_view FaultText(FaultKind kind) { return Info(kind).text; }

std::string FaultBoxText(FaultKind kind) {
    return "Errore di run-time '" + std::to_string(FaultNumber(kind)) + "':\n\n" +
           std::string(FaultText(kind));
}

RunTimeFailure::RunTimeFailure(FaultKind kind)
    : std::runtime_error(std::string(FaultText(kind))), kind_(kind) {}

void RaiseRunTimeFailure(FaultKind kind) { throw RunTimeFailure(kind); }

}  // namespace bm
