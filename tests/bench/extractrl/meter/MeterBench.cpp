// 107 meters, as many as the largest face has: processor time of a frame in which all of them change, over
// the program, the window server and the display, against as many progress bars of the system and against
// what cannot be undercut: copying the changed pixels from memory to the window.
#include "ProcessorTime.h"

#include <QVCommonWnd.h>

#include <benchmark/benchmark.h>

#include <commctrl.h>
#include <timeapi.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

using namespace _qv_commonwnd;
using namespace _qv_extractrl;

namespace {

constexpr int kInputs = 4;
constexpr int kTracks = 95;
constexpr int kOutputs = 8;
constexpr int kMeters = kInputs + kTracks + kOutputs;
constexpr int kPitchPx = 22;
constexpr int kWidthPx = 15;
constexpr int kHeightPx = 206;
constexpr int kFrames = 500;
constexpr int kRounds = 6;
constexpr int kPeerFrames = 40; // a frame of progress bars takes a hundred times as long
constexpr double kGoalAgainstBars = 1.0 / 50.0;
constexpr double kGoalAgainstCopy = 2.0;

int LevelOf(int frame, int meter) {
    return 15 + (frame * 17 + meter * 29) % 61;
}

CRect PlaceOf(int meter) {
    return CRect(CPoint(10 + kPitchPx * meter, 10), CSize(kWidthPx, kHeightPx));
}

void HandleMessages() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

class Face : public CWnd {
  public:
    Face() {
        CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"Face", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                 0, 0, 2400, 560, nullptr, nullptr);
    }
    ~Face() override { DestroyWindow(); }
};

// The frame window of the product with its largest face: 4 inputs, 95 tracks and 8 outputs.
class MeterFace {
  public:
    MeterFace() {
        m_frame.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"Meters", WS_POPUP, 0, 0, 2400,
                         kHeightPx + kAroundMeterPx, nullptr, nullptr);
        Frame(0);
        m_frame.ShowWindow(SW_SHOWNOACTIVATE);
        HandleMessages();
    }
    ~MeterFace() { m_frame.DestroyWindow(); }
    void Frame(int frame) {
        for (int i = 0; i < kMeters; ++i)
            m_levels[i] = LevelOf(frame, i);
        m_frame.SetUVValue(kInputs, m_levels, kTracks, m_levels + kInputs, kOutputs,
                           m_levels + kInputs + kTracks, 0, 0);
    }

  private:
    static constexpr int kAroundMeterPx = 86 + 20;
    CQVVUFrame m_frame;
    int m_levels[kMeters] = {};
};

class BarFace {
  public:
    BarFace() {
        for (int i = 0; i < kMeters; ++i) {
            const CRect place = PlaceOf(i);
            m_bars.push_back(::CreateWindowExW(
                0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE | PBS_VERTICAL | PBS_SMOOTH, place.left,
                place.top, place.Width(), place.Height(), m_face, nullptr, nullptr, nullptr));
        }
        HandleMessages();
    }
    void Frame(int frame) {
        for (int i = 0; i < kMeters; ++i) {
            const HWND bar = m_bars[static_cast<size_t>(i)];
            ::SendMessageW(bar, PBM_SETPOS, static_cast<WPARAM>(LevelOf(frame, i)), 0);
            ::UpdateWindow(bar);
        }
    }

  private:
    Face m_face;
    std::vector<HWND> m_bars;
};

// Copies the rows between the former and the new level of each meter from a memory bitmap to the window.
class CopyFace {
  public:
    CopyFace() {
        CClientDC window(&m_face);
        m_memory.CreateCompatibleDC(&window);
        m_bitmap.CreateCompatibleBitmap(&window, 2400, 2 * kHeightPx);
        m_before = m_memory.SelectObject(&m_bitmap);
        m_memory.FillSolidRect(0, 0, 2400, kHeightPx, RGB(67, 192, 122));
        m_memory.FillSolidRect(0, kHeightPx, 2400, kHeightPx, RGB(20, 30, 24));
        HandleMessages();
    }
    ~CopyFace() { m_memory.SelectObject(m_before); }
    void Frame(int frame) {
        CClientDC window(&m_face);
        for (int i = 0; i < kMeters; ++i) {
            const int before = kHeightPx - LevelOf(frame - 1, i) * kHeightPx / 100;
            const int now = kHeightPx - LevelOf(frame, i) * kHeightPx / 100;
            const CRect place = PlaceOf(i);
            const int top = std::min(before, now);
            window.BitBlt(place.left, place.top + top, kWidthPx, std::max(before, now) - top, &m_memory,
                          place.left, top + (now < before ? 0 : kHeightPx), SRCCOPY);
        }
    }

  private:
    Face m_face;
    CDC m_memory;
    CBitmap m_bitmap;
    CBitmap* m_before = nullptr;
};

// Processor time in seconds of one frame, as fast as frames can be made.
template <class AnyFace> double FrameCost(const ProcessorTime& clock, int frames) {
    AnyFace face;
    for (int frame = 1; frame < 20; ++frame) {
        face.Frame(frame);
        HandleMessages();
    }
    const double before = clock.Seconds();
    for (int frame = 20; frame < frames + 20; ++frame) {
        face.Frame(frame);
        HandleMessages();
    }
    return (clock.Seconds() - before) / frames;
}

// Of several rounds that take turns the one least disturbed by the machine's other work counts, for both sides.
struct Costs {
    double ours = std::numeric_limits<double>::infinity();
    double copy = std::numeric_limits<double>::infinity();
};

Costs CompareWithCopy(const ProcessorTime& clock) {
    Costs least;
    for (int round = 0; round < kRounds; ++round) {
        least.ours = std::min(least.ours, FrameCost<MeterFace>(clock, kFrames));
        least.copy = std::min(least.copy, FrameCost<CopyFace>(clock, kFrames));
    }
    return least;
}

struct Pace {
    double processorSeconds; // of a second of frames
    int lateFrames;
};

// A face at a rate of frames for some seconds, as a host feeds it.
Pace RunAtRate(const ProcessorTime& clock, int framesPerSecond, int seconds) {
    MeterFace face;
    Pace pace = {};
    LARGE_INTEGER perSecond, now;
    ::QueryPerformanceFrequency(&perSecond);
    ::QueryPerformanceCounter(&now);
    const double start = static_cast<double>(now.QuadPart);
    const double cpuBefore = clock.Seconds();
    const int frames = framesPerSecond * seconds;
    for (int frame = 0; frame < frames; ++frame) {
        const double due = start + static_cast<double>(perSecond.QuadPart) * frame / framesPerSecond;
        for (::QueryPerformanceCounter(&now); static_cast<double>(now.QuadPart) < due;
             ::QueryPerformanceCounter(&now)) {
            HandleMessages();
            ::Sleep(1);
        }
        face.Frame(frame);
        HandleMessages();
        ::QueryPerformanceCounter(&now);
        const double next = due + static_cast<double>(perSecond.QuadPart) / framesPerSecond;
        pace.lateFrames += static_cast<double>(now.QuadPart) > next ? 1 : 0;
    }
    pace.processorSeconds = (clock.Seconds() - cpuBefore) / seconds;
    return pace;
}

void ReportMeters() {
    const ProcessorTime clock;
    std::printf("processor time over: %s\n", clock.Names().c_str());
    const auto [ours, copy] = CompareWithCopy(clock);
    const double bars = FrameCost<BarFace>(clock, kPeerFrames);
    std::printf("bench|107 meters, a frame, against progress bars|%.4f|ms|system progress bars|%.4f|%.3f\n",
                ours * 1e3, bars * 1e3, kGoalAgainstBars);
    std::printf("bench|107 meters, a frame, against one copy|%.4f|ms|copy of the changed area|%.4f|%.1f\n",
                ours * 1e3, copy * 1e3, kGoalAgainstCopy);
    ::timeBeginPeriod(1);
    for (const int rate : {25, 60}) {
        constexpr int kSeconds = 8;
        const Pace pace = RunAtRate(clock, rate, kSeconds);
        std::printf("bench|107 meters at %d frames/s, processor time of a second|%.2f|ms|||\n", rate,
                    pace.processorSeconds * 1e3);
        std::printf("bench|107 meters at %d frames/s, late frames of %d|%d|frames|||0\n", rate,
                    rate * kSeconds, pace.lateFrames);
    }
    ::timeEndPeriod(1);
    std::fflush(stdout);
}

void UnchangedPosition(benchmark::State& state) {
    Face face;
    CQVVUTableCtrl meter;
    meter.Create(WS_CHILD | WS_VISIBLE, PlaceOf(0), &face, 1001);
    meter.SetPos(50);
    HandleMessages();
    for (auto _ : state)
        meter.SetPos(50);
}
BENCHMARK(UnchangedPosition)->Name("meter/SetPos unchanged/ours")->UseRealTime();

void UnchangedFace(benchmark::State& state) {
    MeterFace face;
    for (auto _ : state)
        face.Frame(0);
}
BENCHMARK(UnchangedFace)->Name("meter/SetUVValue of 107 unchanged/ours")->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    ReportMeters();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
