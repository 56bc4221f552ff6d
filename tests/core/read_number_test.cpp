#include <gtest/gtest.h>

#include "core/number_text.hpp"

using namespace bm;

TEST(ReadNumber, TakesTheLongestNumericPrefix) {
    EXPECT_EQ(ReadNumber("12,5"), 12);  // the comma is never a decimal point
    EXPECT_EQ(ReadNumber(" -3.5e2x"), -350);
    EXPECT_EQ(ReadNumber("1.2.3"), 1.2);
    EXPECT_EQ(ReadNumber("100"), 100);
    EXPECT_EQ(ReadNumber("+7"), 7);
    EXPECT_EQ(ReadNumber(".5"), 0.5);
    EXPECT_EQ(ReadNumber("-.25"), -0.25);
    EXPECT_EQ(ReadNumber("5."), 5);
    EXPECT_EQ(ReadNumber("12abc"), 12);
}

TEST(ReadNumber, SkipsBlanksTabsAndLineFeedsAnywhere) {
    EXPECT_EQ(ReadNumber(" 1 2 3"), 123);
    EXPECT_EQ(ReadNumber("1 000"), 1000);
    EXPECT_EQ(ReadNumber("\t4\n5"), 45);
    EXPECT_EQ(ReadNumber("- 2 . 5"), -2.5);
    EXPECT_EQ(ReadNumber("1 e 3"), 1000);
}

TEST(ReadNumber, ExponentMarkers) {
    EXPECT_EQ(ReadNumber("1e3"), 1000);
    EXPECT_EQ(ReadNumber("1D3"), 1000);
    EXPECT_EQ(ReadNumber("1d-2"), 0.01);
    EXPECT_EQ(ReadNumber("2E+2"), 200);
    EXPECT_EQ(ReadNumber("5e"), 5);
    EXPECT_EQ(ReadNumber("5e+"), 5);
    EXPECT_EQ(ReadNumber("5ex"), 5);
}

TEST(ReadNumber, NoDigitReadsZero) {
    for (const char* t : {"", "abc", ".", "-", "+", "e5", " ", "-.e3", "&", "&X12"})
        EXPECT_EQ(ReadNumber(t), 0) << '"' << t << '"';
}

TEST(ReadNumber, HexadecimalAndOctal) {
    EXPECT_EQ(ReadNumber("&H10"), 16);
    EXPECT_EQ(ReadNumber("&hff"), 255);
    EXPECT_EQ(ReadNumber("&O17"), 15);
    EXPECT_EQ(ReadNumber("&o19"), 1);  // 9 is no octal digit
    EXPECT_EQ(ReadNumber("&H"), 0);
}

TEST(ReadNumber, NeverLooksAtTheLocale) {
    // Italian settings change nothing: "1.234,57" still reads 1.234.
    EXPECT_EQ(ReadNumber("1.234,57"), 1.234);
}

TEST(ReadNumber, OnlyOverflowFaults) {
    try {
        ReadNumber("1e999");
        FAIL() << "no fault";
    } catch (const NumericFault& f) {
        EXPECT_EQ(f.kind(), FaultKind::Overflow);
    }
    EXPECT_THROW(ReadNumber("-2e308"), NumericFault);
    EXPECT_EQ(ReadNumber("1e-999"), 0);  // too small is 0, no fault
    EXPECT_EQ(ReadNumber("1.7976931348623157e308"), 1.7976931348623157e308);
    EXPECT_EQ(ReadNumber("0e99999999999999999999"), 0);
    EXPECT_EQ(ReadNumber("0.000000000000000000001e21"), 1);
}
