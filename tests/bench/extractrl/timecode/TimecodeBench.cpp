// Labels to frames and back: what a timeline does for each tick of its ruler.
#include <QVTimecode.h>

#include <benchmark/benchmark.h>

using namespace _qv_extractrl;
using _qv_commonctrl::TimecodeFrameRate;

namespace {

constexpr double kGoalNs = 50;
constexpr long long kStride = 104729; // a prime, so that no field stays where it is

const TimecodeFrameRate kRates[] = {{25.0}, {29.97, 1}, {119.88, 1, 4}};
const char* const kNames[] = {"25", "29.97 drop-frame", "119.88 drop-frame in fours"};

void FrameToLabel(benchmark::State& state) {
    const TimecodeFrameRate& rate = kRates[state.range(0)];
    long long frame = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QV_FrameToLabel(frame, rate));
        frame = (frame + kStride) % 2'000'000;
    }
    state.counters["goal_ns"] = kGoalNs;
    state.SetLabel(kNames[state.range(0)]);
}
BENCHMARK(FrameToLabel)->Name("timecode/frame to label/ours")->DenseRange(0, 2)->UseRealTime();

void LabelToFrame(benchmark::State& state) {
    const TimecodeFrameRate& rate = kRates[state.range(0)];
    QVTimecodeLabel labels[256];
    for (int i = 0; i < 256; ++i)
        labels[i] = QV_FrameToLabel(i * kStride % 2'000'000, rate);
    unsigned next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(QV_LabelToFrame(labels[next++ & 255], rate));
    state.counters["goal_ns"] = kGoalNs;
    state.SetLabel(kNames[state.range(0)]);
}
BENCHMARK(LabelToFrame)->Name("timecode/label to frame/ours")->DenseRange(0, 2)->UseRealTime();

void Format(benchmark::State& state) {
    const TimecodeFrameRate rate(29.97, 1);
    wchar_t text[QV_TIMECODE_CHARS];
    long long frame = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QV_FormatTimecode(frame, rate, text, QV_TIMECODE_CHARS));
        frame = (frame + kStride) % 2'000'000;
    }
}
BENCHMARK(Format)->Name("timecode/format/ours")->UseRealTime();

} // namespace
