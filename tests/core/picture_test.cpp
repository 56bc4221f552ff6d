#include <gtest/gtest.h>

#include "core/number_text.hpp"

using namespace bm;

namespace {

const NumberLocale en = NumberLocale::english();
const NumberLocale it = NumberLocale::italian();

struct Row {
    const char* picture;
    const char* big;    // 1234.5678
    const char* five;   // 5
    const char* small;  // 0.04
};

// Every picture the program uses, with three values each.
const Row kPictures[] = {
    {"#,##0.#", "1,234.6", "5.", "0."},
    {"##,##0.#", "1,234.6", "5.", "0."},
    {"###,##0.#", "1,234.6", "5.", "0."},
    {"#,##0.##", "1,234.57", "5.", "0.04"},
    {"##,##0.##", "1,234.57", "5.", "0.04"},
    {"#,##0.###", "1,234.568", "5.", "0.04"},
    {"##,##0.###", "1,234.568", "5.", "0.04"},
    {"###,##0.###", "1,234.568", "5.", "0.04"},
    {"#,##0.####", "1,234.5678", "5.", "0.04"},
    {"#,##0.#####", "1,234.5678", "5.", "0.04"},
    {"##,##0.#####", "1,234.5678", "5.", "0.04"},
    {"##,##0.######", "1,234.5678", "5.", "0.04"},
    {"#0.#", "1234.6", "5.", "0."},
    {"##0.#", "1234.6", "5.", "0."},
    {"#0.##", "1234.57", "5.", "0.04"},
    {"##0.##", "1234.57", "5.", "0.04"},
    {"#0.###", "1234.568", "5.", "0.04"},
    {"##0.###", "1234.568", "5.", "0.04"},
    {"#0.####", "1234.5678", "5.", "0.04"},
    {"##0.####", "1234.5678", "5.", "0.04"},
    {"##0.#####", "1234.5678", "5.", "0.04"},
    {"####,###", "1,235", "5", ""},
    {"###,###", "1,235", "5", ""},
};

std::string Italian(std::string s) {
    for (char& c : s) c = c == ',' ? '.' : (c == '.' ? ',' : c);
    return s;
}

}  // namespace

TEST(PictureFormat, EveryPictureInUse) {
    for (const Row& r : kPictures) {
        EXPECT_EQ(PictureFormat(1234.5678, r.picture, en), r.big) << r.picture;
        EXPECT_EQ(PictureFormat(FormValue(std::int16_t{5}), r.picture, en), r.five) << r.picture;
        EXPECT_EQ(PictureFormat(0.04, r.picture, en), r.small) << r.picture;
        EXPECT_EQ(PictureFormat(1234.5678, r.picture, it), Italian(r.big)) << r.picture;
        EXPECT_EQ(PictureFormat(5.0, r.picture, it), Italian(r.five)) << r.picture;
    }
}

TEST(PictureFormat, RoundsTheFifteenDigitTextHalfAwayFromZero) {
    EXPECT_EQ(PictureFormat(0.125, "#0.##", en), "0.13");
    EXPECT_EQ(PictureFormat(1.005, "#0.##", en), "1.01");
    EXPECT_EQ(PictureFormat(-0.125, "#0.##", en), "-0.13");
    EXPECT_EQ(PictureFormat(9.996, "#0.##", en), "10.");
    EXPECT_EQ(PictureFormat(999999.5, "###,###", en), "1,000,000");
    EXPECT_EQ(PictureFormat(0.637f * 100.0f, "#0.##", en), "63.7");  // single: seven digits
}

TEST(PictureFormat, KeepsThePointAndTheSign) {
    EXPECT_EQ(PictureFormat(5.0, "#,##0.##", en), "5.");
    EXPECT_EQ(PictureFormat(0.0, "#0.##", en), "0.");
    EXPECT_EQ(PictureFormat(12.5, "#0.##", en), "12.5");
    EXPECT_EQ(PictureFormat(-0.001, "#0.##", en), "-0.");
    EXPECT_EQ(PictureFormat(-1234.5678, "#,##0.##", en), "-1,234.57");
    EXPECT_EQ(PictureFormat(0.4, "####,###", en), "");
    EXPECT_EQ(PictureFormat(-0.4, "####,###", en), "");
    EXPECT_EQ(PictureFormat(0.5, "####,###", en), "1");
}

TEST(PictureFormat, KeepsATrailingLiteralBlank) {
    EXPECT_EQ(PictureFormat(94357.7, "####,### ", en), "94,358 ");
    EXPECT_EQ(PictureFormat(94357.7, "####,### ", it), "94.358 ");
    EXPECT_EQ(PictureFormat(-12.0, "####,### ", en), "-12 ");
    // a zero prints no digit, the blank stays
    EXPECT_EQ(PictureFormat(0.2, "####,### ", en), " ");
}

TEST(PictureFormat, NeverCutsTheIntegerPart) {
    EXPECT_EQ(PictureFormat(123456789.0, "#0.#", en), "123456789.");
    EXPECT_EQ(PictureFormat(1e20, "#,##0.##", en), "100,000,000,000,000,000,000.");
    EXPECT_EQ(PictureFormat(1.23456789012345e-5, "#0.######", en), "0.000012");
}

TEST(PictureFormat, OtherKinds) {
    EXPECT_EQ(PictureFormat(FormValue("1,234.5678"), "#0.##", en), "1234.57");
    EXPECT_EQ(PictureFormat(FormValue(), "#0.##", en), "0.");
    EXPECT_EQ(PictureFormat(FormValue(std::int32_t{-70000}), "#,##0.#", en), "-70,000.");
    EXPECT_THROW(PictureFormat(FormValue("abc"), "#0.##", en), NumericFault);
}

TEST(PictureFormat, ItalianReadNumberSeesOnlyThePrefix) {
    const std::string t = PictureFormat(1234.5678, "#,##0.##", it);
    EXPECT_EQ(t, "1.234,57");
    EXPECT_EQ(ReadNumber(t), 1.234);
    EXPECT_EQ(TextValue(t, it), 1234.57);
}

TEST(PictureFormat, TheRoundingIdiom) {
    // A value written through a picture, read back to single, printed plain.
    const std::string t = PictureFormat(1234.5, "#,##0.##", en);
    EXPECT_EQ(t, "1,234.5");
    EXPECT_EQ(NumberText(ToSingle(FormValue(t)), en), "1234.5");
    EXPECT_EQ(TextValue(FixedDecimals(1234.5, 1, it), it), 1234.5);
    EXPECT_EQ(TextValue(FixedDecimals(1234.5, 1, en), en), 1234.5);
}
