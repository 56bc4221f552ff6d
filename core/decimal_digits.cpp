#include "core/decimal_digits.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "core/number_text.hpp"

namespace bm::detail {
namespace {

void StripTrailingZeros(DecimalDigits& d) {
    while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
    if (d.digits.empty()) d.exponent = 0;
}

DecimalDigits WholeDigits(long long v) {
    DecimalDigits d;
    d.negative = v < 0;
    const unsigned long long mag = d.negative ? 0ULL - static_cast<unsigned long long>(v)
                                              : static_cast<unsigned long long>(v);
    d.digits = std::to_string(mag);
    if (mag == 0) d.digits.clear();
    d.exponent = static_cast<int>(d.digits.size()) - 1;
    StripTrailingZeros(d);
    return d;
}

template <typename F>
DecimalDigits FloatDigits(F v, int p) {
    DecimalDigits d;
    if (v == 0) return d;
    d.negative = std::signbit(v);
    std::array<char, 64> buf{};
    // Exact decimal expansion of the binary value, rounded to p digits.
    auto res = std::to_chars(buf.data(), buf.data() + buf.size(), std::fabs(v),
                             std::chars_format::scientific, p - 1);
    const char* end = res.ptr;
    const char* e = buf.data();
    while (e != end && *e != 'e') ++e;
    for (const char* c = buf.data(); c != e; ++c)
        if (*c >= '0' && *c <= '9') d.digits.push_back(*c);
    int exponent = 0;
    if (e != end) std::from_chars(e + 1 + (e[1] == '+' ? 1 : 0), end, exponent);
    d.exponent = exponent;
    StripTrailingZeros(d);
    return d;
}

}  // namespace

DecimalDigits SignificantDigits(double v, int p) { return FloatDigits(v, p); }

DecimalDigits DigitsOf(const FormValue& value, const NumberLocale& locale) {
    switch (value.kind()) {
        case FormValue::Kind::Empty: return {};
        case FormValue::Kind::Integer16: return WholeDigits(value.int16());
        case FormValue::Kind::Integer32: return WholeDigits(value.int32());
        case FormValue::Kind::Single: return FloatDigits(value.single(), 7);
        case FormValue::Kind::Double: return FloatDigits(value.dbl(), 15);
        case FormValue::Kind::Text: return FloatDigits(TextValue(value.text(), locale), 15);
    }
    return {};
}

void RoundAtDecimals(DecimalDigits& d, int decimals) {
    if (d.digits.empty()) return;
    // digits[i] stands at 10^(exponent - i); keep those at 10^-decimals and above.
    const long long keep = static_cast<long long>(d.exponent) + decimals + 1;
    if (keep >= static_cast<long long>(d.digits.size())) return;
    if (keep < 0) {
        d.digits.clear();
        d.exponent = 0;
        return;
    }
    const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
    d.digits.resize(static_cast<std::size_t>(keep));
    if (up) {
        std::size_t i = d.digits.size();
        while (i > 0 && d.digits[i - 1] == '9') d.digits[--i] = '0';
        if (i == 0) {
            d.digits.insert(d.digits.begin(), '1');
            ++d.exponent;
        } else {
            ++d.digits[i - 1];
        }
    }
    StripTrailingZeros(d);
}

std::string IntegerDigits(const DecimalDigits& d) {
    if (d.digits.empty() || d.exponent < 0) return {};
    const auto len = static_cast<std::size_t>(d.exponent) + 1;
    std::string out = d.digits.substr(0, len);
    out.resize(len, '0');
    return out;
}

std::string FractionDigits(const DecimalDigits& d, int decimals) {
    std::string out;
    for (int k = 1; k <= decimals; ++k) {
        const long long i = static_cast<long long>(d.exponent) + k;  // digit at 10^-k
        out.push_back(i >= 0 && i < static_cast<long long>(d.digits.size())
                          ? d.digits[static_cast<std::size_t>(i)]
                          : '0');
    }
    return out;
}

}  // namespace bm::detail
