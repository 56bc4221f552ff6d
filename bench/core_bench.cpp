#include <benchmark/benchmark.h>

#include "core/number_text.hpp"

namespace {

const bm::NumberLocale kEn = bm::NumberLocale::english();

void BM_ReadNumber(benchmark::State& s) {
    for (auto _ : s) benchmark::DoNotOptimize(bm::ReadNumber(" -1234.5678e2x"));
}
void BM_NumberTextDouble(benchmark::State& s) {
    double v = 1.0 / 24;
    for (auto _ : s) benchmark::DoNotOptimize(bm::NumberText(v, kEn));
}
void BM_NumberTextSingle(benchmark::State& s) {
    float v = 1.0f / 3;
    for (auto _ : s) benchmark::DoNotOptimize(bm::NumberText(v, kEn));
}
void BM_PictureFormat(benchmark::State& s) {
    double v = 1234.5678;
    for (auto _ : s) benchmark::DoNotOptimize(bm::PictureFormat(v, "#,##0.###", kEn));
}
void BM_FixedDecimals(benchmark::State& s) {
    double v = 1234.5678;
    for (auto _ : s) benchmark::DoNotOptimize(bm::FixedDecimals(v, 2, kEn));
}
void BM_TextValue(benchmark::State& s) {
    for (auto _ : s) benchmark::DoNotOptimize(bm::TextValue("1,234.57", kEn));
}
void BM_ReadBackIdiom(benchmark::State& s) {
    double v = 1234.5;
    for (auto _ : s)
        benchmark::DoNotOptimize(bm::NumberText(bm::ToSingle(bm::FormValue(bm::PictureFormat(v, "#,##0.##", kEn))), kEn));
}
void BM_Arithmetic(benchmark::State& s) {
    bm::FormValue a = 100.0, b = 0.637f;
    for (auto _ : s) benchmark::DoNotOptimize(bm::Sqr(a * b / 2 + 1));
}
void BM_RoundHalfEven16(benchmark::State& s) {
    for (auto _ : s) benchmark::DoNotOptimize(bm::RoundHalfEven16(2.5));
}

}  // namespace

BENCHMARK(BM_ReadNumber);
BENCHMARK(BM_NumberTextDouble);
BENCHMARK(BM_NumberTextSingle);
BENCHMARK(BM_PictureFormat);
BENCHMARK(BM_FixedDecimals);
BENCHMARK(BM_TextValue);
BENCHMARK(BM_ReadBackIdiom);
BENCHMARK(BM_Arithmetic);
BENCHMARK(BM_RoundHalfEven16);
BENCHMARK_MAIN();
