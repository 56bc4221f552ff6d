// Properties over many random values: the read-back path returns the rounded
// value, and no number ever prints as nan, inf or nothing.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

#include "core/number_text.hpp"

using namespace bm;

namespace {

// Values of every magnitude, including awkward halves.
double RandomValue(std::mt19937_64& rng) {
    std::uniform_int_distribution<int> shape(0, 3);
    std::uniform_real_distribution<double> unit(-1, 1);
    switch (shape(rng)) {
        case 0: return unit(rng) * std::pow(10.0, std::uniform_int_distribution<int>(-12, 15)(rng));
        case 1: return std::round(unit(rng) * 1e6) / 1000 + 0.0005;  // ties at 3 decimals
        case 2: return std::uniform_int_distribution<int>(-100000, 100000)(rng) / 8.0;
        default: {
            double d;
            do d = std::bit_cast<double>(rng()); while (!std::isfinite(d));
            return d;
        }
    }
}

}  // namespace

TEST(Properties, FixedDecimalsReadsBackAsTheRoundedValue) {
    std::mt19937_64 rng(20021);
    for (const NumberLocale& loc : {NumberLocale::english(), NumberLocale::italian()}) {
        for (int i = 0; i < 20000; ++i) {
            const double x = RandomValue(rng);
            if (std::fabs(x) > 1e20) continue;
            const int n = static_cast<int>(rng() % 7);
            const std::string t = FixedDecimals(x, n, loc);
            const double back = TextValue(t, loc);
            // The rounded value of the fifteen-digit text, within one unit of the last place.
            const double want = ReadNumber(NumberText(x, NumberLocale::english()));
            const double step = std::pow(10.0, -n);
            EXPECT_LE(std::fabs(back - want), step / 2 + std::fabs(want) * 1e-15) << x << " " << n << " " << t;
            // And the text itself is stable: printing the read-back value gives it again.
            if (back != 0) {
                EXPECT_EQ(FixedDecimals(back, n, loc), t) << x;
            }
        }
    }
}

TEST(Properties, NumberTextIsNeverEmptyNanOrInf) {
    std::mt19937_64 rng(7);
    const NumberLocale en = NumberLocale::english();
    for (int i = 0; i < 50000; ++i) {
        const double x = RandomValue(rng);
        for (const FormValue& v : {FormValue(x), FormValue(static_cast<float>(std::fmod(x, 1e30)))}) {
            const std::string t = NumberText(v, en);
            ASSERT_FALSE(t.empty()) << x;
            ASSERT_EQ(t.find("nan"), std::string::npos) << x;
            ASSERT_EQ(t.find("inf"), std::string::npos) << x;
            // It reads back through ReadNumber to the same printed text.
            if (v.kind() == FormValue::Kind::Double) {
                ASSERT_EQ(NumberText(ReadNumber(t), en), t) << x;
            }
        }
    }
}

TEST(Properties, ReadNumberFaultsOnlyOnOverflow) {
    std::mt19937_64 rng(99);
    const std::string alphabet = "0123456789.eEdD+-&HhOo ,x\t";
    for (int i = 0; i < 50000; ++i) {
        std::string s;
        const int len = static_cast<int>(rng() % 12);
        for (int k = 0; k < len; ++k) s += alphabet[rng() % alphabet.size()];
        try {
            const double v = ReadNumber(s);
            ASSERT_TRUE(std::isfinite(v)) << s;
        } catch (const NumericFault& f) {
            ASSERT_EQ(f.kind(), FaultKind::Overflow) << s;
        }
    }
}
