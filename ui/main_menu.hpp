#pragma once
// The main window's menu bar, built from the menu tree: each item under the
// nearest item before it one level up, captions with their access keys, and
// every item whose form is not in the program disabled.
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "shell/form_registry.hpp"

class QMenuBar;

namespace bm::ui {

void BuildMainMenu(QMenuBar& bar, std::span<const MenuItem> items,
                   const std::function<bool(std::string_view form)>& isBuilt,
                   const std::function<void(const std::string& item)>& choose);

}  // namespace bm::ui
