#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "core/number_text.hpp"

using namespace bm;
using Kind = FormValue::Kind;

namespace {

FaultKind FaultOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const NumericFault& e) {
        return e.kind();
    }
    ADD_FAILURE() << "no fault raised";
    return FaultKind::ObjectRequired;
}

const FormValue i16(std::int16_t v) { return FormValue(v); }

}  // namespace

TEST(FormValue, Kinds) {
    EXPECT_EQ(FormValue().kind(), Kind::Empty);
    EXPECT_EQ(FormValue(1.5).kind(), Kind::Double);
    EXPECT_EQ(FormValue(1.5f).kind(), Kind::Single);
    EXPECT_EQ(FormValue(std::int16_t{1}).kind(), Kind::Integer16);
    EXPECT_EQ(FormValue(std::int32_t{1}).kind(), Kind::Integer32);
    EXPECT_EQ(FormValue("x").kind(), Kind::Text);
    EXPECT_EQ(FormValue(std::string("x")).kind(), Kind::Text);
    EXPECT_EQ(FormValue::Whole(100).kind(), Kind::Integer16);
    EXPECT_EQ(FormValue::Whole(40000).kind(), Kind::Integer32);
}

TEST(FormValue, TextOperandsReadBack) {
    EXPECT_EQ((FormValue("5.") * 2).kind(), Kind::Double);
    EXPECT_EQ((FormValue("5.") * 2).dbl(), 10);
    EXPECT_EQ((FormValue("1,234.5") - 0.5).dbl(), 1234);
    EXPECT_EQ((FormValue("3") + 1).dbl(), 4);  // a text and a number add
    EXPECT_EQ((FormValue("3") + FormValue("1")).text(), "31");  // two texts join
    EXPECT_EQ((FormValue("abc") + FormValue()).text(), "abc");
    EXPECT_EQ(FaultOf([] { (void)(FormValue("") * 2); }), FaultKind::TypeMismatch);
    EXPECT_EQ(FaultOf([] { (void)(FormValue("x") / 2); }), FaultKind::TypeMismatch);
    {
        const NumberLocale it = NumberLocale::italian();
        ArithmeticLocaleScope scope(it);
        EXPECT_EQ((FormValue("1.234,5") * 2).dbl(), 2469);
    }
}

TEST(FormValue, EmptyActsAsZero) {
    EXPECT_EQ((FormValue() + 2).int16(), 2);
    EXPECT_EQ((FormValue() * 5.0).dbl(), 0);
    EXPECT_EQ(FaultOf([] { (void)(FormValue(1.0) / FormValue()); }), FaultKind::DivisionByZero);
}

TEST(FormValue, IntegersWidenInsteadOfFailing) {
    const FormValue big = i16(30000) + i16(30000);
    EXPECT_EQ(big.kind(), Kind::Integer32);
    EXPECT_EQ(big.int32(), 60000);
    const FormValue huge = FormValue(std::int32_t{2000000000}) * 2;
    EXPECT_EQ(huge.kind(), Kind::Double);
    EXPECT_EQ(huge.dbl(), 4e9);
    EXPECT_EQ((i16(7) - i16(2)).kind(), Kind::Integer16);
    EXPECT_EQ((-i16(-32768)).int32(), 32768);
    EXPECT_EQ((i16(1) / i16(3)).kind(), Kind::Double);  // division is never integral
    EXPECT_EQ((i16(1) / i16(4)).dbl(), 0.25);
}

TEST(FormValue, SinglePrecisionMixing) {
    const FormValue k4 = 0.637f;
    const FormValue mean = FormValue(141.4) * k4;  // single widened exactly into a double
    EXPECT_EQ(mean.kind(), Kind::Double);
    EXPECT_EQ(mean.dbl(), 141.4 * 0.63700002431869507);
    EXPECT_EQ((k4 * 2).kind(), Kind::Single);       // with a whole constant it stays single
    EXPECT_EQ((k4 / 2).kind(), Kind::Single);
    EXPECT_EQ((k4 + k4).kind(), Kind::Single);
    EXPECT_EQ((k4 * FormValue(std::int32_t{2})).kind(), Kind::Double);
    EXPECT_EQ(FaultOf([] { (void)(FormValue(3e38f) * 10); }), FaultKind::Overflow);
}

TEST(FormValue, DivisionFaults) {
    EXPECT_EQ(FaultOf([] { (void)(FormValue(5.0) / 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(FaultOf([] { (void)(FormValue(0.0) / 0); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([] { (void)(FormValue(1e300) / 1e-300); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([] { (void)(FormValue(1e300) * 1e300); }), FaultKind::Overflow);
    EXPECT_EQ((FormValue(1e-300) * 1e-300).dbl(), 0);  // too small is 0
}

TEST(FormValue, Power) {
    EXPECT_EQ(Power(FormValue(0.0), 0).dbl(), 1);
    EXPECT_EQ(Power(FormValue(-2.0), 3).dbl(), -8);
    EXPECT_EQ(Power(FormValue(4.0), 0.5).dbl(), 2);
    EXPECT_EQ((FormValue(2.0) ^ FormValue(10.0)).dbl(), 1024);
    EXPECT_EQ(FaultOf([] { (void)Power(FormValue(-8.0), 1.0 / 3); }), FaultKind::InvalidArgument);
    EXPECT_EQ(FaultOf([] { (void)Power(FormValue(0.0), -1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(FaultOf([] { (void)Power(FormValue(10.0), 400); }), FaultKind::Overflow);
}

TEST(FormValue, CheckedFunctions) {
    EXPECT_EQ(Sqr(FormValue(16.0)).dbl(), 4);
    EXPECT_EQ(FaultOf([] { (void)Sqr(FormValue(-1.0)); }), FaultKind::InvalidArgument);
    EXPECT_EQ(FaultOf([] { (void)Log(FormValue(0.0)); }), FaultKind::InvalidArgument);
    EXPECT_EQ(FaultOf([] { (void)Log(FormValue(-3.0)); }), FaultKind::InvalidArgument);
    EXPECT_EQ(Log10(FormValue(1000.0)).dbl(), std::log(1000.0) / std::log(10.0));
    EXPECT_EQ(FaultOf([] { (void)Exp(FormValue(1000.0)); }), FaultKind::Overflow);
    EXPECT_EQ(Exp(FormValue(-1000.0)).dbl(), 0);
    EXPECT_EQ(Abs(i16(-5)).int16(), 5);
    EXPECT_EQ(Abs(-2.5f).kind(), Kind::Single);
    EXPECT_EQ(FaultOf([] { (void)Checked(std::numeric_limits<double>::quiet_NaN()); }),
              FaultKind::InvalidArgument);
}

TEST(FormValue, Comparison) {
    EXPECT_TRUE(FormValue(2.0) > 1);
    EXPECT_TRUE(FormValue(-1.0) <= 0);
    EXPECT_TRUE(FormValue() == 0);
    EXPECT_TRUE(FormValue("0") > 1e300);  // a text is always the greater
    EXPECT_TRUE(FormValue(1e300) < FormValue("-5"));
    EXPECT_TRUE(FormValue("abc") < FormValue("abd"));
    EXPECT_TRUE(FormValue(2.5f) == 2.5);
}

TEST(FormValue, JoinUsesNumberText) {
    EXPECT_EQ(Join("VOLT : ", 0.5).text(), "VOLT : 0.5");
    const NumberLocale it = NumberLocale::italian();
    ArithmeticLocaleScope scope(it);
    EXPECT_EQ(Join(FormValue(1.0f / 3), " V").text(), "0,3333333 V");
}

TEST(Faults, NamesAndBoxText) {
    FaultKind k{};
    EXPECT_TRUE(FaultFromSlug("division-by-zero", k));
    EXPECT_EQ(k, FaultKind::DivisionByZero);
    EXPECT_TRUE(FaultFromSlug("form-already-shown", k));
    EXPECT_EQ(FaultSlug(k), "form-already-shown");
    EXPECT_FALSE(FaultFromSlug("nan", k));
    EXPECT_EQ(FaultBoxText(FaultKind::DivisionByZero), "Errore di run-time '11':\n\nDivisione per zero");
    try {
        RaiseRunTimeFailure(FaultKind::ObjectRequired);
    } catch (const RunTimeFailure& f) {
        EXPECT_EQ(f.kind(), FaultKind::ObjectRequired);
    }
}
