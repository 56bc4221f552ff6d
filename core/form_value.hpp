#pragma once
// FormValue: a quantity of dynamic kind, as every calculator keeps and computes it.
#include <concepts>
#include <cstdint>
#include <string>
#include <variant>

#include "core/number_locale.hpp"
#include "core/numeric_fault.hpp"

namespace bm {

class FormValue {
public:
    enum class Kind { Empty, Integer16, Integer32, Single, Double, Text };

    FormValue() = default;
    FormValue(double v) : v_(v) {}
    FormValue(float v) : v_(v) {}
    FormValue(std::int16_t v) : v_(v) {}
    FormValue(std::int32_t v) : v_(v) {}
    FormValue(std::string v) : v_(std::move(v)) {}
    FormValue(const char* v) : v_(std::string(v)) {}
    FormValue(bool) = delete;

    // A whole constant as a formula writes it: 16-bit when it fits, else 32-bit.
    static FormValue Whole(long long v);

    Kind kind() const { return static_cast<Kind>(v_.index()); }
    bool isEmpty() const { return kind() == Kind::Empty; }
    bool isText() const { return kind() == Kind::Text; }
    bool isNumber() const { return !isEmpty() && !isText(); }

    // The stored value of each kind; asking for another kind is a programming error.
    std::int16_t int16() const { return std::get<std::int16_t>(v_); }
    std::int32_t int32() const { return std::get<std::int32_t>(v_); }
    float single() const { return std::get<float>(v_); }
    double dbl() const { return std::get<double>(v_); }
    const std::string& text() const { return std::get<std::string>(v_); }

    // The value as a double: empty is 0, text goes through TextValue under the
    // arithmetic locale (a text that is no number is a type mismatch).
    double number() const;

private:
    std::variant<std::monostate, std::int16_t, std::int32_t, float, double, std::string> v_;
};

// Arithmetic with the rules of the number text rules: text operands read back,
// empty as 0, integers widen instead of overflowing, single stays single only
// with single or 16-bit partners, everything else is double. Every failing
// result raises NumericFault; no NaN or infinity is ever produced.
FormValue operator+(const FormValue& a, const FormValue& b);
FormValue operator-(const FormValue& a, const FormValue& b);
FormValue operator*(const FormValue& a, const FormValue& b);
FormValue operator/(const FormValue& a, const FormValue& b);
FormValue operator-(const FormValue& a);
// a ^ b. Prefer Power(): in C++ the ^ operator binds more loosely than * and /.
FormValue Power(const FormValue& a, const FormValue& b);
FormValue operator^(const FormValue& a, const FormValue& b);

// Whole literals in a formula are 16-bit constants (32-bit when larger).
template <std::same_as<int> I> FormValue operator+(const FormValue& a, I b) { return a + FormValue::Whole(b); }
template <std::same_as<int> I> FormValue operator+(I a, const FormValue& b) { return FormValue::Whole(a) + b; }
template <std::same_as<int> I> FormValue operator-(const FormValue& a, I b) { return a - FormValue::Whole(b); }
template <std::same_as<int> I> FormValue operator-(I a, const FormValue& b) { return FormValue::Whole(a) - b; }
template <std::same_as<int> I> FormValue operator*(const FormValue& a, I b) { return a * FormValue::Whole(b); }
template <std::same_as<int> I> FormValue operator*(I a, const FormValue& b) { return FormValue::Whole(a) * b; }
template <std::same_as<int> I> FormValue operator/(const FormValue& a, I b) { return a / FormValue::Whole(b); }
template <std::same_as<int> I> FormValue operator/(I a, const FormValue& b) { return FormValue::Whole(a) / b; }
template <std::same_as<int> I> FormValue Power(const FormValue& a, I b) { return Power(a, FormValue::Whole(b)); }

// Numeric comparison; a text compared with a number is always the greater,
// two texts compare as strings, empty acts as 0.
int Compare(const FormValue& a, const FormValue& b);
inline bool operator==(const FormValue& a, const FormValue& b) { return Compare(a, b) == 0; }
inline bool operator<(const FormValue& a, const FormValue& b) { return Compare(a, b) < 0; }
inline bool operator<=(const FormValue& a, const FormValue& b) { return Compare(a, b) <= 0; }
inline bool operator>(const FormValue& a, const FormValue& b) { return Compare(a, b) > 0; }
inline bool operator>=(const FormValue& a, const FormValue& b) { return Compare(a, b) >= 0; }

// The text join: both sides through NumberText under the arithmetic locale.
FormValue Join(const FormValue& a, const FormValue& b);

// Checked functions; all give double precision.
FormValue Sqr(const FormValue& x);   // square root; negative: invalid argument
FormValue Log(const FormValue& x);   // natural logarithm; x <= 0: invalid argument
FormValue Log10(const FormValue& x); // always ln(x) / ln(10), in that form
FormValue Exp(const FormValue& x);   // overflow past the double range
FormValue Atn(const FormValue& x);
FormValue Tan(const FormValue& x);
FormValue Sin(const FormValue& x);
FormValue Cos(const FormValue& x);
FormValue Abs(const FormValue& x);   // keeps the kind
FormValue ToDouble(const FormValue& x);

// Checks a double computed outside FormValue: infinity is an overflow, NaN an
// invalid argument. Returns the value.
double Checked(double v);

}  // namespace bm
