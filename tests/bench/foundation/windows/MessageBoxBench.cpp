// From the call to a painted box: ours against the system's message box with the same texts and buttons.
#include "PaintWatch.h"

#include <QVCommonWnd.h>

#include <benchmark/benchmark.h>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalRatio = 2;
constexpr int kYesButtonId = 31095;
constexpr int kShowings = 60;
constexpr wchar_t kTitle[] = L"Project";
constexpr wchar_t kQuestion[] = L"Replace the clip in every sequence?";

template <class Show> void Measure(benchmark::State& state, int closeCommand, Show show) {
    for (auto _ : state) {
        const PaintWatch watch(closeCommand);
        show();
        if (watch.Seconds() <= 0)
            return state.SkipWithError("the box was not painted");
        state.SetIterationTime(watch.Seconds());
    }
}

void Ours(benchmark::State& state) {
    Measure(state, kYesButtonId, [] { QV_MessageBox(kTitle, kQuestion, 0, nullptr); });
    state.counters["goal_ratio"] = kGoalRatio;
}

void System(benchmark::State& state) {
    Measure(state, IDYES, [] { ::MessageBoxW(nullptr, kQuestion, kTitle, MB_YESNO); });
}

BENCHMARK(System)
    ->Name("message box, call to painted/peer:system box")
    ->UseManualTime()
    ->Iterations(kShowings);
BENCHMARK(Ours)->Name("message box, call to painted/ours")->UseManualTime()->Iterations(kShowings);

} // namespace
