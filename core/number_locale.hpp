#pragma once
#include <string>

namespace bm {

// The separators of the user's regional settings. ReadNumber never looks at them.
struct NumberLocale {
    std::string decimal;
    std::string group;
    int defaultDecimals = 2;

    static NumberLocale english();
    static NumberLocale italian();
    // Reads LC_ALL / LC_NUMERIC / LANG; English when nothing usable is set.
    static NumberLocale system();

    friend bool operator==(const NumberLocale&, const NumberLocale&) = default;
};

// A text operand met by an arithmetic operator is read back with TextValue under
// these settings. The host sets them around every event; English otherwise.
const NumberLocale& ArithmeticLocale();

class ArithmeticLocaleScope {
public:
    explicit ArithmeticLocaleScope(const NumberLocale& locale);
    ~ArithmeticLocaleScope();
    ArithmeticLocaleScope(const ArithmeticLocaleScope&) = delete;
    ArithmeticLocaleScope& operator=(const ArithmeticLocaleScope&) = delete;

private:
    const NumberLocale* previous_;
};

}  // namespace bm
