#pragma once
// All the program's forms: the shell's own windows and every calculator in the
// catalogue, built on first use.
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/program.hpp"

namespace bm {

inline constexpr std::string_view kMainForm = "FRMBANCOMISURATORE";

class Workbook : public FormLibrary {
public:
    Workbook();
    const CalculatorForm* find(std::string_view name) const override;
    // Knowing which forms exist takes their names only.
    bool has(std::string_view name) const override { return factories_.contains(name); }
    // Definitions built so far: a form's is built the first time it is opened
    // or placed, and then kept.
    std::size_t definitionsBuilt() const { return built_.size(); }
    bool isDefinitionBuilt(std::string_view name) const { return built_.contains(name); }

private:
    std::map<std::string, CalculatorForm (*)(), std::less<>> factories_;
    mutable std::map<std::string, std::unique_ptr<CalculatorForm>, std::less<>> built_;
};

// The main window loads, centres itself and its timer starts.
Program::Status StartProgram(Program& program);
// A menu item, as the user chooses it: opens its form modal or modeless as the
// registry says; starts the program first when the main window is not up.
Program::Status ChooseMenuItem(Program& program, std::string_view item);

}  // namespace bm
