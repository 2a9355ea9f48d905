// CString against std::wstring: what the windows do most with texts.
#include "afxcoll.h"

#include <benchmark/benchmark.h>

#include <cwchar>
#include <string>
#include <vector>

namespace {

constexpr wchar_t kPath[] = L"D:\\Media\\2024\\Documentary\\Interviews\\camera B\\take 0017.mxf"; // 60 units
constexpr wchar_t kShort[] = L"take 17";
constexpr int kAppends = 256;
constexpr int kListTexts = 1000;

void SetGoal(benchmark::State& state, double ratio) {
    state.counters["goal_ratio"] = ratio;
}

template <class Text> void CopyOf(benchmark::State& state, const wchar_t* text) {
    const Text source(text);
    for (auto _ : state) {
        Text copy(source);
        benchmark::DoNotOptimize(copy);
    }
}

template <class Text> void ConcatOf(benchmark::State& state) {
    const Text folder(L"D:\\Media\\2024"), name(L"take 0017");
    for (auto _ : state) {
        Text path = folder + L"\\" + name + L".mxf";
        benchmark::DoNotOptimize(path);
    }
}

template <class Text> void AppendsOf(benchmark::State& state) {
    for (auto _ : state) {
        Text text;
        for (int i = 0; i < kAppends; ++i)
            text += static_cast<wchar_t>(L'a' + i % 26);
        benchmark::DoNotOptimize(text);
    }
}

void CopyPathOurs(benchmark::State& state) {
    CopyOf<CString>(state, kPath);
    SetGoal(state, 1.0);
}

void CopyPathPeer(benchmark::State& state) {
    CopyOf<std::wstring>(state, kPath);
}

void CopyShortOurs(benchmark::State& state) {
    CopyOf<CString>(state, kShort);
}

void CopyShortPeer(benchmark::State& state) {
    CopyOf<std::wstring>(state, kShort);
}

void ConcatOurs(benchmark::State& state) {
    ConcatOf<CString>(state);
    SetGoal(state, 1.5);
}

void ConcatPeer(benchmark::State& state) {
    ConcatOf<std::wstring>(state);
}

void AppendOurs(benchmark::State& state) {
    AppendsOf<CString>(state);
    SetGoal(state, 3.0);
}

void AppendPeer(benchmark::State& state) {
    AppendsOf<std::wstring>(state);
}

void FormatOurs(benchmark::State& state) {
    for (auto _ : state) {
        CString text;
        text.Format(L"%s (%d) %02d:%02d", kShort, 42, 7, 9);
        benchmark::DoNotOptimize(text);
    }
}

void FormatPeer(benchmark::State& state) {
    for (auto _ : state) {
        wchar_t buffer[128];
        _snwprintf(buffer, 128, L"%ls (%d) %02d:%02d", kShort, 42, 7, 9);
        std::wstring text(buffer);
        benchmark::DoNotOptimize(text);
    }
}

void CopyListOurs(benchmark::State& state) {
    CStringArray source;
    for (int i = 0; i < kListTexts; ++i)
        source.Add(kPath);
    for (auto _ : state) {
        CStringArray copy;
        copy.Append(source);
        benchmark::DoNotOptimize(copy.GetData());
    }
    SetGoal(state, 1.0);
}

void CopyListPeer(benchmark::State& state) {
    const std::vector<std::wstring> source(kListTexts, kPath);
    for (auto _ : state) {
        std::vector<std::wstring> copy(source);
        benchmark::DoNotOptimize(copy.data());
    }
}

BENCHMARK(CopyPathOurs)->Name("text copy, 60 units/ours")->UseRealTime();
BENCHMARK(CopyPathPeer)->Name("text copy, 60 units/peer:std::wstring")->UseRealTime();
BENCHMARK(CopyShortOurs)->Name("text copy, 7 units/ours")->UseRealTime();
BENCHMARK(CopyShortPeer)->Name("text copy, 7 units/peer:std::wstring")->UseRealTime();
BENCHMARK(ConcatOurs)->Name("text of four pieces/ours")->UseRealTime();
BENCHMARK(ConcatPeer)->Name("text of four pieces/peer:std::wstring")->UseRealTime();
BENCHMARK(AppendOurs)->Name("text of 256 appended units/ours")->UseRealTime();
BENCHMARK(AppendPeer)->Name("text of 256 appended units/peer:std::wstring")->UseRealTime();
BENCHMARK(FormatOurs)->Name("text formatted/ours")->UseRealTime();
BENCHMARK(FormatPeer)->Name("text formatted/peer:_snwprintf")->UseRealTime();
BENCHMARK(CopyListOurs)->Name("1,000 texts copied/ours")->UseRealTime();
BENCHMARK(CopyListPeer)->Name("1,000 texts copied/peer:vector of std::wstring")->UseRealTime();

} // namespace
