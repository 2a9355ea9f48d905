// What one look-up of a template's default text costs.
#include "module/DictText.h"

#include <benchmark/benchmark.h>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalNs = 1000;

void LookUp(benchmark::State& state, const wchar_t* text) {
    QV_GetCommonDictText(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(QV_GetCommonDictText(text));
    state.counters["goal_ns"] = kGoalNs;
}

BENCHMARK_CAPTURE(LookUp, firstRow, L"选择路径")->Name("dict text, first row/ours")->UseRealTime();
BENCHMARK_CAPTURE(LookUp, lastRow, L"不再询问")->Name("dict text, last row/ours")->UseRealTime();
BENCHMARK_CAPTURE(LookUp, noRow, L"Some text of a host's own")->Name("dict text, no row/ours")->UseRealTime();

} // namespace

BENCHMARK_MAIN();
