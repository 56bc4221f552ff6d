#include "core/form_value.hpp"

#include <cmath>
#include <limits>

#include "core/number_text.hpp"

namespace bm {

FormValue FormValue::Whole(long long v) {
    if (v >= -32768 && v <= 32767) return FormValue(static_cast<std::int16_t>(v));
    if (v >= std::numeric_limits<std::int32_t>::min() && v <= std::numeric_limits<std::int32_t>::max())
        return FormValue(static_cast<std::int32_t>(v));
    return FormValue(static_cast<double>(v));
}

double FormValue::number() const {
    switch (kind()) {
        case Kind::Empty: return 0;
        case Kind::Integer16: return int16();
        case Kind::Integer32: return int32();
        case Kind::Single: return single();
        case Kind::Double: return dbl();
        case Kind::Text: return TextValue(text(), ArithmeticLocale());
    }
    return 0;
}

double Checked(double v) {
    if (std::isinf(v)) throw NumericFault(FaultKind::Overflow);
    if (std::isnan(v)) throw NumericFault(FaultKind::InvalidArgument);
    return v;
}

namespace {

using Kind = FormValue::Kind;

// Text has been read back and empty is a 16-bit 0 by the time kinds are mixed.
Kind Operand(const FormValue& v) {
    switch (v.kind()) {
        case Kind::Empty: return Kind::Integer16;
        case Kind::Text: return Kind::Double;
        default: return v.kind();
    }
}

Kind ResultKind(Kind a, Kind b) {
    if (a == Kind::Double || b == Kind::Double) return Kind::Double;
    if (a == Kind::Single || b == Kind::Single)
        return (a == Kind::Integer32 || b == Kind::Integer32) ? Kind::Double : Kind::Single;
    if (a == Kind::Integer32 || b == Kind::Integer32) return Kind::Integer32;
    return Kind::Integer16;
}

FormValue Single(double v) {
    constexpr double kLimit = 0x1.ffffffp127;
    if (std::isnan(v)) throw NumericFault(FaultKind::InvalidArgument);
    if (std::fabs(v) >= kLimit) throw NumericFault(FaultKind::Overflow);
    return FormValue(static_cast<float>(v));
}

// An integer result keeps its kind while it fits, then widens.
FormValue Integer(long long v, Kind kind) {
    if (kind == Kind::Integer16 && v >= -32768 && v <= 32767) return FormValue(static_cast<std::int16_t>(v));
    if (v >= std::numeric_limits<std::int32_t>::min() && v <= std::numeric_limits<std::int32_t>::max())
        return FormValue(static_cast<std::int32_t>(v));
    return FormValue(static_cast<double>(v));
}

long long WholeValue(const FormValue& v) {
    switch (v.kind()) {
        case Kind::Integer16: return v.int16();
        case Kind::Integer32: return v.int32();
        default: return 0;
    }
}

enum class Op { Add, Sub, Mul, Div };

FormValue Arithmetic(const FormValue& a, const FormValue& b, Op op) {
    const Kind kind = ResultKind(Operand(a), Operand(b));
    if (op == Op::Div) {
        const double x = a.number();
        const double y = b.number();
        if (y == 0) throw NumericFault(x == 0 ? FaultKind::Overflow : FaultKind::DivisionByZero);
        return kind == Kind::Single ? Single(x / y) : FormValue(Checked(x / y));
    }
    if (kind == Kind::Integer16 || kind == Kind::Integer32) {
        const long long x = WholeValue(a);
        const long long y = WholeValue(b);
        switch (op) {
            case Op::Add: return Integer(x + y, kind);
            case Op::Sub: return Integer(x - y, kind);
            default: return Integer(x * y, kind);
        }
    }
    const double x = a.number();
    const double y = b.number();
    double r = 0;
    switch (op) {
        case Op::Add: r = x + y; break;
        case Op::Sub: r = x - y; break;
        default: r = x * y; break;
    }
    return kind == Kind::Single ? Single(r) : FormValue(Checked(r));
}

}  // namespace

FormValue operator+(const FormValue& a, const FormValue& b) {
    // Two texts join; a text beside an empty value stays as it is.
    if (a.isText() && (b.isText() || b.isEmpty())) return FormValue(a.text() + (b.isText() ? b.text() : ""));
    if (b.isText() && a.isEmpty()) return b;
    return Arithmetic(a, b, Op::Add);
}

FormValue operator-(const FormValue& a, const FormValue& b) { return Arithmetic(a, b, Op::Sub); }
FormValue operator*(const FormValue& a, const FormValue& b) { return Arithmetic(a, b, Op::Mul); }
FormValue operator/(const FormValue& a, const FormValue& b) { return Arithmetic(a, b, Op::Div); }

FormValue operator-(const FormValue& a) {
    switch (a.kind()) {
        case Kind::Empty: return FormValue(std::int16_t{0});
        case Kind::Integer16: return Integer(-static_cast<long long>(a.int16()), Kind::Integer16);
        case Kind::Integer32: return Integer(-static_cast<long long>(a.int32()), Kind::Integer32);
        case Kind::Single: return FormValue(-a.single());
        default: return FormValue(-a.number());
    }
}

FormValue Power(const FormValue& a, const FormValue& b) {
    const double x = a.number();
    const double y = b.number();
    if (y == 0) return FormValue(1.0);
    if (x == 0 && y < 0) throw NumericFault(FaultKind::InvalidArgument);
    if (x < 0 && std::floor(y) != y) throw NumericFault(FaultKind::InvalidArgument);
    return FormValue(Checked(std::pow(x, y)));
}

FormValue operator^(const FormValue& a, const FormValue& b) { return Power(a, b); }

int Compare(const FormValue& a, const FormValue& b) {
    const bool at = a.isText() || (a.isEmpty() && b.isText());
    const bool bt = b.isText() || (b.isEmpty() && a.isText());
    if (at && bt) {
        const std::string& x = a.isText() ? a.text() : std::string();
        const std::string& y = b.isText() ? b.text() : std::string();
        return x < y ? -1 : (x == y ? 0 : 1);
    }
    if (at) return 1;
    if (bt) return -1;
    const double x = a.number();
    const double y = b.number();
    return x < y ? -1 : (x == y ? 0 : 1);
}

FormValue Join(const FormValue& a, const FormValue& b) {
    const NumberLocale& loc = ArithmeticLocale();
    return FormValue(NumberText(a, loc) + NumberText(b, loc));
}

FormValue Sqr(const FormValue& x) {
    const double v = x.number();
    if (v < 0) throw NumericFault(FaultKind::InvalidArgument);
    return FormValue(std::sqrt(v));
}

FormValue Log(const FormValue& x) {
    const double v = x.number();
    if (v <= 0) throw NumericFault(FaultKind::InvalidArgument);
    return FormValue(std::log(v));
}

FormValue Log10(const FormValue& x) { return Log(x) / Log(FormValue(10.0)); }

FormValue Exp(const FormValue& x) { return FormValue(Checked(std::exp(x.number()))); }
FormValue Atn(const FormValue& x) { return FormValue(std::atan(x.number())); }
FormValue Tan(const FormValue& x) { return FormValue(Checked(std::tan(x.number()))); }
FormValue Sin(const FormValue& x) { return FormValue(std::sin(x.number())); }
FormValue Cos(const FormValue& x) { return FormValue(std::cos(x.number())); }

FormValue Abs(const FormValue& x) {
    switch (x.kind()) {
        case Kind::Empty: return FormValue(std::int16_t{0});
        case Kind::Integer16:
        case Kind::Integer32: return WholeValue(x) < 0 ? -x : x;
        case Kind::Single: return FormValue(std::fabs(x.single()));
        default: return FormValue(std::fabs(x.number()));
    }
}

FormValue ToDouble(const FormValue& x) { return FormValue(x.number()); }

}  // namespace bm
