#include "core/number_locale.hpp"

#include <clocale>
#include <cstdlib>
#include <langinfo.h>
#include <locale.h>
#include <string_view>

namespace bm {

NumberLocale NumberLocale::english() { return {".", ",", 2}; }
NumberLocale NumberLocale::italian() { return {",", ".", 2}; }

namespace {

std::string FirstSetting() {
    for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') return value;
    }
    return {};
}

}  // namespace

NumberLocale NumberLocale::system() {
    const std::string name = FirstSetting();
    if (name.empty() || name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0) return english();

    // Ask the C library for the separators of that locale, when it is installed.
    if (locale_t loc = newlocale(LC_NUMERIC_MASK, name.c_str(), static_cast<locale_t>(nullptr))) {
        std::string decimal = nl_langinfo_l(RADIXCHAR, loc);
        std::string group = nl_langinfo_l(THOUSEP, loc);
        freelocale(loc);
        if (decimal == "," && (group.empty() || group == ",")) group = ".";
        if (decimal == "." && (group.empty() || group == ".")) group = ",";
        if (decimal == "." || decimal == ",") return {decimal, group, 2};
    }
    // Not installed: Italian settings are recognised by name.
    if (std::string_view(name).substr(0, 3) == "it_" || name == "it") return italian();
    return english();
}

namespace {
thread_local const NumberLocale* current = nullptr;
}

const NumberLocale& ArithmeticLocale() {
    static const NumberLocale kEnglish = NumberLocale::english();
    return current != nullptr ? *current : kEnglish;
}

ArithmeticLocaleScope::ArithmeticLocaleScope(const NumberLocale& locale) : previous_(current) {
    current = &locale;
}

ArithmeticLocaleScope::~ArithmeticLocaleScope() { current = previous_; }

}  // namespace bm
