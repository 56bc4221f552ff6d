// Any text through every number rule: only NumericFault may come out.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/number_text.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const bm::NumberLocale loc = (data[0] & 1) ? bm::NumberLocale::italian() : bm::NumberLocale::english();
    const int n = (data[0] >> 1) % 9 - 1;
    static const char* kPictures[] = {"#,##0.#", "#,##0.##", "##,##0.######", "#0.###", "####,###", "0.00"};
    const char* picture = kPictures[(data[0] >> 4) % 6];
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);

    const auto check = [](const std::string& t) {
        if (t.find("nan") != std::string::npos || t.find("inf") != std::string::npos) std::abort();
    };
    try {
        const double v = bm::ReadNumber(text);
        if (!std::isfinite(v)) std::abort();
        check(bm::NumberText(v, loc));
        check(bm::PictureFormat(v, picture, loc));
        check(bm::FixedDecimals(v, n, loc));
        check(bm::NumberText(static_cast<float>(std::fmod(v, 1e38)), loc));
    } catch (const bm::NumericFault&) {
    }
    try {
        const double v = bm::TextValue(text, loc);
        if (!std::isfinite(v)) std::abort();
    } catch (const bm::NumericFault&) {
    }
    try {
        check(bm::PictureFormat(bm::FormValue(text), picture, loc));
        check(bm::FixedDecimals(bm::FormValue(text), n, loc));
        check(bm::NumberText(bm::FormValue(text) * 2, loc));
    } catch (const bm::NumericFault&) {
    }
    return 0;
}
