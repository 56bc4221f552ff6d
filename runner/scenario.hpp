#pragma once
// Scenario files: text in, texts and messages out, through the real handlers
// and the window rules, with a headless host.
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "forms/program.hpp"

namespace bm::scenario {

struct FileResult {
    std::string file;
    std::vector<std::string> failures;  // "FILE:LINE: expected ..., found ..."
    bool passed() const { return failures.empty(); }
};

// Called after every click, set and type with the form it acted on, when that
// form is still shown: the gallery draws the window as the scenario left it.
using ActionObserver = std::function<void(int line, const FormState& form)>;

// Runs one scenario text against the forms of `library` (the program's own
// forms when null).
FileResult RunText(std::string_view text, const std::string& fileName, const FormLibrary* library = nullptr,
                   const ActionObserver& observer = {});

// Runs every .scenario file found in the given files and folders, prints the
// failures and the closing line "N passed, N failed"; returns the exit status.
int RunPaths(const std::vector<std::string>& paths, std::ostream& out);

}  // namespace bm::scenario
