// What a worker pays for a report, and what the progress window pays for itself at each tick.
#include <QVCommonWnd.h>

#include "res/ResourceIds.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <thread>

using namespace _qv_commonwnd;

namespace {

constexpr double kGoalNs = 20;
constexpr UINT_PTR kTickTimer = 12;
constexpr int kTicks = 2000;

// A window that runs on a thread of its own for as long as this lives.
class RunningWindow {
  public:
    RunningWindow() {
        CZ5ProgressDlg::EndProgressWnd(0);
        m_thread = std::thread([] {
            wchar_t title[] = L"Bench";
            CZ5ProgressDlg::ProgressWndDoModle(title, 1000, 0.5f);
        });
        while (!::FindWindowW(nullptr, L"Bench"))
            ::Sleep(1);
    }
    ~RunningWindow() {
        CZ5ProgressDlg::EndProgressWnd(1);
        m_thread.join();
    }
    RunningWindow(const RunningWindow&) = delete;
    RunningWindow& operator=(const RunningWindow&) = delete;

  private:
    std::thread m_thread;
};

void SetCurPos(benchmark::State& state) {
    const RunningWindow window;
    int now = 0;
    for (auto _ : state) {
        CZ5ProgressDlg::SetCurPos(now, now + 1);
        now = (now + 1) % 1000;
    }
    state.counters["goal_ns"] = kGoalNs;
}
BENCHMARK(SetCurPos)->Name("progress/SetCurPos, window running/ours")->UseRealTime();

void SetCurPosAlone(benchmark::State& state) {
    int now = 0;
    for (auto _ : state) {
        CZ5ProgressDlg::SetCurPos(now, now + 1);
        now = (now + 1) % 1000;
    }
    state.counters["goal_ns"] = kGoalNs;
}
BENCHMARK(SetCurPosAlone)->Name("progress/SetCurPos, no window/ours")->UseRealTime();

void Exist(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(CZ5ProgressDlg::Exist());
    state.counters["goal_ns"] = kGoalNs;
}
BENCHMARK(Exist)->Name("progress/Exist/ours")->UseRealTime();

void EndProgressWnd(benchmark::State& state) {
    for (auto _ : state)
        CZ5ProgressDlg::EndProgressWnd(0);
    state.counters["goal_ns"] = kGoalNs;
}
BENCHMARK(EndProgressWnd)->Name("progress/EndProgressWnd/ours")->UseRealTime();

void SetTextShow(benchmark::State& state) {
    const RunningWindow window;
    wchar_t text[] = L"interview_day2_camB.mxf";
    for (auto _ : state)
        CZ5ProgressDlg::SetTextShow(text);
    state.counters["goal_ns"] = kGoalNs;
}
BENCHMARK(SetTextShow)->Name("progress/SetTextShow, window running/ours")->UseRealTime();

class Ticking : public CZ5ProgressDlg {
  public:
    Ticking() {
        m_fStep = 0.01f;
        Create(IDD_PROGRESS);
        KillTimer(kTickTimer);
        ShowWindow(SW_SHOWNA);
    }
    ~Ticking() override { DestroyWindow(); }
    void Tick() {
        OnTimer(kTickTimer);
        RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
};

void Tick(benchmark::State& state) {
    CZ5ProgressDlg::EndProgressWnd(0);
    wchar_t text[] = L"interview_day2_camB.mxf";
    CZ5ProgressDlg::SetTextShow(text);
    Ticking window;
    for (auto _ : state)
        window.Tick();
}
BENCHMARK(Tick)->Name("progress/a tick with its painting/ours")->UseRealTime()->Iterations(kTicks);

} // namespace
