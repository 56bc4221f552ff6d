#include <gtest/gtest.h>

#include "core/number_text.hpp"

using namespace bm;

namespace {
const NumberLocale en = NumberLocale::english();
const NumberLocale it = NumberLocale::italian();
}  // namespace

TEST(NumberText, DoubleKeepsFifteenDigits) {
    EXPECT_EQ(NumberText(1.0 / 3, en), "0.333333333333333");
    EXPECT_EQ(NumberText(1.0 / 24, en), "4.16666666666667E-02");
    EXPECT_EQ(NumberText(0.05, en), "0.05");
    EXPECT_EQ(NumberText(0.000001, en), "0.000001");
    EXPECT_EQ(NumberText(1E-16, en), "1E-16");
    EXPECT_EQ(NumberText(123456789012345.0, en), "123456789012345");
    EXPECT_EQ(NumberText(1E15, en), "1E+15");
    EXPECT_EQ(NumberText(-2.5, en), "-2.5");
    EXPECT_EQ(NumberText(1234567890123456.0, en), "1.23456789012346E+15");
    EXPECT_EQ(NumberText(1e-100, en), "1E-100");
    EXPECT_EQ(NumberText(1.5e300, en), "1.5E+300");
    EXPECT_EQ(NumberText(0.1 + 0.2, en), "0.3");
}

TEST(NumberText, SingleKeepsSevenDigits) {
    EXPECT_EQ(NumberText(1.0f / 3, en), "0.3333333");
    EXPECT_EQ(NumberText(1E7f, en), "1E+07");
    EXPECT_EQ(NumberText(0.637f, en), "0.637");
    EXPECT_EQ(NumberText(1234.5f, en), "1234.5");
}

// The table printed 3.333333E-02 for single 1/30. The nearest single is
// 0.0333333350718..., and seven significant digits of that are 3.333334: the
// written rule wins over the table row.
TEST(NumberText, SingleOneThirtiethFollowsTheRoundingRule) {
    EXPECT_EQ(NumberText(1.0f / 30, en), "3.333334E-02");
}

TEST(NumberText, OtherKinds) {
    EXPECT_EQ(NumberText(FormValue(), en), "");
    EXPECT_EQ(NumberText(FormValue("abc"), en), "abc");
    EXPECT_EQ(NumberText(FormValue(std::int16_t{-32768}), en), "-32768");
    EXPECT_EQ(NumberText(FormValue(std::int32_t{100000}), en), "100000");
    EXPECT_EQ(NumberText(0.0, en), "0");
    EXPECT_EQ(NumberText(-0.0, en), "0");
    EXPECT_EQ(NumberText(0.0f, en), "0");
}

TEST(NumberText, ItalianSeparators) {
    EXPECT_EQ(NumberText(0.5, it), "0,5");
    EXPECT_EQ(NumberText(1234.57, it), "1234,57");  // never grouped
    EXPECT_EQ(NumberText(1.0 / 24, it), "4,16666666666667E-02");
}

TEST(FixedDecimals, ExactlyNDecimals) {
    EXPECT_EQ(FixedDecimals(1234.5678, 2, en), "1,234.57");
    EXPECT_EQ(FixedDecimals(5.0, 2, en), "5.00");
    EXPECT_EQ(FixedDecimals(0.125, 2, en), "0.13");
    EXPECT_EQ(FixedDecimals(1234.5, 1, en), "1,234.5");
    EXPECT_EQ(FixedDecimals(0.5, 0, en), "1");
    EXPECT_EQ(FixedDecimals(2.5, 0, en), "3");  // half away from zero, unlike RoundHalfEven16
    EXPECT_EQ(FixedDecimals(-1234.5678, 2, en), "-1,234.57");
    EXPECT_EQ(FixedDecimals(1234567.0, -1, en), "1,234,567.00");
    EXPECT_EQ(FixedDecimals(0.004, 2, en), "0.00");
    EXPECT_EQ(FixedDecimals(9.999, 2, en), "10.00");
    EXPECT_EQ(FixedDecimals(FormValue(), 2, en), "0.00");
    EXPECT_EQ(FixedDecimals(FormValue("1,234.5"), 2, en), "1,234.50");
    EXPECT_EQ(FixedDecimals(1234.5678, 2, it), "1.234,57");
}

TEST(FixedDecimals, DigitsComeFromTheFifteenDigitText) {
    EXPECT_EQ(FixedDecimals(1.005, 2, en), "1.01");  // binary 1.00499999...
    EXPECT_EQ(FixedDecimals(100 * 1.414, 2, en), "141.40");
    EXPECT_EQ(FixedDecimals(0.637f, 3, en), "0.637");
}

TEST(TextValue, ReadsWhatThePicturesWrote) {
    EXPECT_EQ(TextValue("1,234.5", en), 1234.5);
    EXPECT_EQ(TextValue("1.234,5", it), 1234.5);
    EXPECT_EQ(TextValue("5.", en), 5);
    EXPECT_EQ(TextValue("5,", it), 5);
    EXPECT_EQ(TextValue("  -0.25 ", en), -0.25);
    EXPECT_EQ(TextValue("1E+15", en), 1e15);
    EXPECT_EQ(TextValue("4,16666666666667E-02", it), 4.16666666666667E-02);
    EXPECT_EQ(TextValue("5.5", it), 55);  // the point is a group separator there
}

TEST(TextValue, AnythingElseIsATypeMismatch) {
    for (const char* t : {"", " ", "abc", "12abc", "1 2", ".", "-", "1e", "1e+", "1.2.3", "5.,"}) {
        try {
            TextValue(t, en);
            ADD_FAILURE() << '"' << t << "\" read without a fault";
        } catch (const NumericFault& f) {
            EXPECT_EQ(f.kind(), FaultKind::TypeMismatch) << t;
        }
    }
    try {
        TextValue("1e999", en);
        ADD_FAILURE() << "no overflow";
    } catch (const NumericFault& f) {
        EXPECT_EQ(f.kind(), FaultKind::Overflow);
    }
}

TEST(Rounding, HalfEvenAndFloor) {
    EXPECT_EQ(RoundHalfEven16(2.5), 2);
    EXPECT_EQ(RoundHalfEven16(3.5), 4);
    EXPECT_EQ(RoundHalfEven16(-2.5), -2);
    EXPECT_EQ(RoundHalfEven16(-3.5), -4);
    EXPECT_EQ(RoundHalfEven16(2.5000001), 3);
    EXPECT_EQ(RoundHalfEven16(32767.4), 32767);
    EXPECT_THROW(RoundHalfEven16(32767.5), NumericFault);  // goes to 32768
    EXPECT_EQ(RoundHalfEven16(-32768.5), -32768);
    EXPECT_THROW(RoundHalfEven16(-32769.0), NumericFault);
    EXPECT_EQ(RoundHalfEven32(2147483647.0), 2147483647);
    EXPECT_THROW(RoundHalfEven32(2147483647.5), NumericFault);
    EXPECT_EQ(RoundHalfEven16(FormValue("2.5")), 2);
    EXPECT_THROW(RoundHalfEven16(FormValue("x")), NumericFault);

    EXPECT_EQ(FloorValue(2.7).dbl(), 2);
    EXPECT_EQ(FloorValue(-2.5).dbl(), -3);
    EXPECT_EQ(FloorValue(-2.5f).kind(), FormValue::Kind::Single);
    EXPECT_EQ(FloorValue(FormValue(std::int16_t{7})).int16(), 7);
}

TEST(Rounding, ToSingle) {
    EXPECT_EQ(static_cast<double>(ToSingle(0.637)), 0.63700002431869507);
    EXPECT_EQ(ToSingle(FormValue("2.5")), 2.5f);
    EXPECT_EQ(ToSingle(3.4028234e38), 3.4028234e38f);
    EXPECT_THROW(ToSingle(3.5e38), NumericFault);
    EXPECT_THROW(ToSingle(-1e300), NumericFault);
    EXPECT_EQ(ToSingle(1e-50), 0.0f);
}

TEST(NumberLocale, SettingsAndSystem) {
    EXPECT_EQ(en.decimal, ".");
    EXPECT_EQ(en.group, ",");
    EXPECT_EQ(it.decimal, ",");
    EXPECT_EQ(it.group, ".");
    EXPECT_EQ(en.defaultDecimals, 2);
    EXPECT_EQ(it.defaultDecimals, 2);

    const char* saved = std::getenv("LC_ALL");
    const std::string keep = saved ? saved : "";
    setenv("LC_ALL", "it_IT.UTF-8", 1);
    EXPECT_EQ(NumberLocale::system(), it);
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(NumberLocale::system(), en);
    if (saved) setenv("LC_ALL", keep.c_str(), 1); else unsetenv("LC_ALL");
}
