// The meter frame fed with the levels that it shows already: nothing must be painted.
#include <QVCommonWnd.h>

#include <benchmark/benchmark.h>

using namespace _qv_commonwnd;

namespace {

class CountingFrame : public CQVVUFrame {
  public:
    CountingFrame() {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"Face", WS_POPUP | WS_CAPTION, 0, 0, 400, 380,
                 nullptr, nullptr);
        ShowWindow(SW_SHOWNA);
    }
    // Whether a paint of the frame or of a meter is due.
    bool IsDue() const {
        bool due = ::GetUpdateRect(m_hWnd, nullptr, FALSE) != FALSE;
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            due = due || ::GetUpdateRect(child, nullptr, FALSE);
        return due;
    }
    void Settle() { RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }
};

void Unchanged(benchmark::State& state) {
    CountingFrame frame;
    int levels[CQVVUFrame::kMostTracks];
    for (int i = 0; i < CQVVUFrame::kMostTracks; ++i)
        levels[i] = i;
    const auto feed = [&] {
        frame.SetUVValue(CQVVUFrame::kMostInputs, levels, CQVVUFrame::kMostTracks, levels,
                         CQVVUFrame::kMostOutputs, levels, 0, 0);
    };
    feed();
    frame.Settle();
    for (auto _ : state)
        feed();
    if (frame.IsDue())
        state.SkipWithError("unchanged levels were painted");
}
BENCHMARK(Unchanged)->Name("meter frame/SetUVValue of 107 unchanged levels/ours")->UseRealTime();

} // namespace
