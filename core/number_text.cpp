#include "core/number_text.hpp"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/decimal_digits.hpp"

namespace bm {
namespace {

using detail::DecimalDigits;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Builds a double from decimal digits and a power of ten; beyond the double range
// is an overflow, below it is 0.
double DecimalToDouble(std::string_view digits, long long exponent, bool negative) {
    std::size_t first = digits.find_first_not_of('0');
    if (first == std::string_view::npos) return negative ? -0.0 : 0.0;
    digits.remove_prefix(first);
    // Long digit strings only matter up to far beyond double precision.
    if (digits.size() > 800) {
        exponent += static_cast<long long>(digits.size()) - 800;
        digits = digits.substr(0, 800);
    }
    const long long lead = exponent + static_cast<long long>(digits.size()) - 1;
    if (lead > 400) throw NumericFault(FaultKind::Overflow);
    if (lead < -400) return negative ? -0.0 : 0.0;
    std::string text(digits);
    text += 'e';
    text += std::to_string(exponent);
    double v = 0;
    auto res = std::from_chars(text.data(), text.data() + text.size(), v);
    if (res.ec == std::errc::result_out_of_range) {
        if (lead > 0) throw NumericFault(FaultKind::Overflow);
        v = 0;
    }
    return negative ? -v : v;
}

long long ClampedExponent(long long e, int digit) {
    return e > 100000 ? e : e * 10 + digit;
}

double WholeInBase(std::string_view text, std::size_t& pos, int base) {
    double v = 0;
    while (pos < text.size()) {
        const char c = text[pos];
        int d = -1;
        if (IsDigit(c)) d = c - '0';
        else if (c >= 'a' && c <= 'f') d = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F') d = c - 'A' + 10;
        if (d < 0 || d >= base) break;
        v = v * base + d;
        ++pos;
    }
    if (std::isinf(v)) throw NumericFault(FaultKind::Overflow);
    return v;
}

std::string Grouped(const std::string& digits, const std::string& sep) {
    std::string out;
    const std::size_t n = digits.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) out += sep;
        out += digits[i];
    }
    return out;
}

}  // namespace

double ReadNumber(std::string_view raw) {
    std::string text;
    text.reserve(raw.size());
    for (char c : raw)
        if (c != ' ' && c != '\t' && c != '\n') text += c;

    std::size_t pos = 0;
    if (text.size() >= 2 && text[0] == '&') {
        const char b = text[1];
        pos = 2;
        if (b == 'H' || b == 'h') return WholeInBase(text, pos, 16);
        if (b == 'O' || b == 'o') return WholeInBase(text, pos, 8);
        return 0;
    }

    bool negative = false;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) negative = text[pos++] == '-';

    std::string digits;
    long long exponent = 0;
    bool point = false;
    while (pos < text.size()) {
        const char c = text[pos];
        if (IsDigit(c)) {
            digits += c;
            if (point) --exponent;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            break;
        }
        ++pos;
    }
    if (digits.empty()) return 0;

    if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E' || text[pos] == 'd' || text[pos] == 'D')) {
        ++pos;
        bool expNegative = false;
        if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) expNegative = text[pos++] == '-';
        long long e = 0;
        while (pos < text.size() && IsDigit(text[pos])) e = ClampedExponent(e, text[pos++] - '0');
        exponent += expNegative ? -e : e;
    }
    return DecimalToDouble(digits, exponent, negative);
}

std::string NumberText(const FormValue& value, const NumberLocale& locale) {
    int p = 15;
    switch (value.kind()) {
        case FormValue::Kind::Empty: return {};
        case FormValue::Kind::Text: return value.text();
        case FormValue::Kind::Integer16: return std::to_string(value.int16());
        case FormValue::Kind::Integer32: return std::to_string(value.int32());
        case FormValue::Kind::Single: p = 7; break;
        case FormValue::Kind::Double: break;
    }
    const DecimalDigits d = detail::DigitsOf(value, locale);
    if (d.digits.empty()) return "0";
    const int s = static_cast<int>(d.digits.size());
    const int e = d.exponent;
    std::string out = d.negative ? "-" : "";
    if (e >= p || (e < 0 && s - 1 - e > p)) {
        out += d.digits[0];
        if (s > 1) out += locale.decimal + d.digits.substr(1);
        out += e < 0 ? "E-" : "E+";
        const std::string mag = std::to_string(e < 0 ? -e : e);
        if (mag.size() < 2) out += '0';
        out += mag;
        return out;
    }
    if (e < 0) return out + "0" + locale.decimal + std::string(static_cast<std::size_t>(-e - 1), '0') + d.digits;
    out += detail::IntegerDigits(d);
    if (s > e + 1) out += locale.decimal + d.digits.substr(static_cast<std::size_t>(e) + 1);
    return out;
}

std::string PictureFormat(const FormValue& value, std::string_view picture, const NumberLocale& locale) {
    // Literal characters behind the last digit position ("####,### ") are
    // printed as they stand, after the number.
    const std::size_t lastPlace = picture.find_last_of("#0,.");
    const std::string_view literal =
        lastPlace == std::string_view::npos ? std::string_view{} : picture.substr(lastPlace + 1);
    picture.remove_suffix(literal.size());
    const std::size_t point = picture.find('.');
    const std::string_view intPart = picture.substr(0, point);
    const std::string_view fracPart =
        point == std::string_view::npos ? std::string_view{} : picture.substr(point + 1);

    std::size_t minInt = 0;
    for (char c : intPart) minInt += c == '0';
    const bool grouping = intPart.find(',') != std::string_view::npos;
    int decimals = 0;
    std::size_t minFrac = 0;
    for (char c : fracPart) {
        if (c == '#' || c == '0') ++decimals;
        if (c == '0') minFrac = static_cast<std::size_t>(decimals);
    }

    DecimalDigits d = detail::DigitsOf(value, locale);
    detail::RoundAtDecimals(d, decimals);

    std::string whole = detail::IntegerDigits(d);
    if (whole.size() < minInt) whole.insert(0, minInt - whole.size(), '0');
    if (grouping) whole = Grouped(whole, locale.group);

    std::string body = whole;
    if (point != std::string_view::npos) {
        std::string frac = detail::FractionDigits(d, decimals);
        while (frac.size() > minFrac && frac.back() == '0') frac.pop_back();
        body += locale.decimal + frac;
    }
    if (body.empty()) return std::string(literal);
    return (d.negative ? "-" + body : body) + std::string(literal);
}

std::string FixedDecimals(const FormValue& value, int n, const NumberLocale& locale) {
    if (n < 0) n = locale.defaultDecimals;
    DecimalDigits d = detail::DigitsOf(value, locale);
    detail::RoundAtDecimals(d, n);
    std::string whole = detail::IntegerDigits(d);
    if (whole.empty()) whole = "0";
    std::string out = d.negative ? "-" : "";
    out += Grouped(whole, locale.group);
    if (n > 0) out += locale.decimal + detail::FractionDigits(d, n);
    return out;
}

double TextValue(std::string_view text, const NumberLocale& locale) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    const auto mismatch = [] { return NumericFault(FaultKind::TypeMismatch); };

    std::size_t pos = 0;
    bool negative = false;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) negative = text[pos++] == '-';

    if (text.size() > pos + 2 && text[pos] == '&') {
        const char b = text[pos + 1];
        const int base = (b == 'H' || b == 'h') ? 16 : (b == 'O' || b == 'o') ? 8 : 0;
        if (base == 0) throw mismatch();
        pos += 2;
        const double v = WholeInBase(text, pos, base);
        if (pos != text.size()) throw mismatch();
        return negative ? -v : v;
    }

    const auto startsWith = [&](const std::string& sep) {
        return !sep.empty() && text.substr(pos, sep.size()) == sep;
    };
    std::string digits;
    long long exponent = 0;
    bool point = false;
    while (pos < text.size()) {
        if (IsDigit(text[pos])) {
            digits += text[pos++];
            if (point) --exponent;
        } else if (!point && startsWith(locale.decimal)) {
            point = true;
            pos += locale.decimal.size();
        } else if (!point && startsWith(locale.group)) {
            pos += locale.group.size();
        } else {
            break;
        }
    }
    if (digits.empty()) throw mismatch();
    if (pos < text.size()) {
        const char c = text[pos];
        if (c != 'e' && c != 'E' && c != 'd' && c != 'D') throw mismatch();
        ++pos;
        bool expNegative = false;
        if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) expNegative = text[pos++] == '-';
        if (pos == text.size()) throw mismatch();
        long long e = 0;
        while (pos < text.size() && IsDigit(text[pos])) e = ClampedExponent(e, text[pos++] - '0');
        if (pos != text.size()) throw mismatch();
        exponent += expNegative ? -e : e;
    }
    return DecimalToDouble(digits, exponent, negative);
}

float ToSingle(const FormValue& value) {
    if (value.kind() == FormValue::Kind::Single) return value.single();
    const double v = value.number();
    // Halfway past the largest single rounds to infinity: that and beyond overflow.
    constexpr double kLimit = 0x1.ffffffp127;
    if (std::fabs(v) >= kLimit) throw NumericFault(FaultKind::Overflow);
    return static_cast<float>(v);
}

namespace {

double RoundHalfEven(double v) {
    const double f = std::floor(v);
    const double diff = v - f;
    if (diff > 0.5) return f + 1;
    if (diff < 0.5) return f;
    return std::fmod(f, 2.0) == 0 ? f : f + 1;
}

}  // namespace

std::int16_t RoundHalfEven16(const FormValue& value) {
    const double r = RoundHalfEven(value.number());
    if (r < -32768.0 || r > 32767.0) throw NumericFault(FaultKind::Overflow);
    return static_cast<std::int16_t>(r);
}

std::int32_t RoundHalfEven32(const FormValue& value) {
    const double r = RoundHalfEven(value.number());
    if (r < -2147483648.0 || r > 2147483647.0) throw NumericFault(FaultKind::Overflow);
    return static_cast<std::int32_t>(r);
}

FormValue FloorValue(const FormValue& value) {
    switch (value.kind()) {
        case FormValue::Kind::Empty: return FormValue(std::int16_t{0});
        case FormValue::Kind::Integer16:
        case FormValue::Kind::Integer32: return value;
        case FormValue::Kind::Single: return FormValue(std::floor(value.single()));
        case FormValue::Kind::Double:
        case FormValue::Kind::Text: return FormValue(std::floor(value.number()));
    }
    return value;
}

}  // namespace bm
