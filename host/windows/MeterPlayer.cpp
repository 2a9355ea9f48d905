#include "MeterPlayer.h"

#include <algorithm>
#include <cmath>

using namespace _qv_extractrl;

namespace {

constexpr UINT_PTR kPlayTimer = 77;
constexpr UINT kStepMs = 40;
constexpr size_t kMsPerSecond = 1000;
constexpr int kWidthPx = 480;
constexpr int kHeightPx = 380;

int Percent(float magnitude) {
    return static_cast<int>(
        std::lround(QVX_DBToPos(magnitude > 0.0f ? 20.0 * std::log10(magnitude) : -INFINITY)));
}

} // namespace

BOOL CMeterPlayer::Show(CWnd* owner, LPCWSTR title) {
    if (!m_hWnd) {
        CRect place;
        owner->GetWindowRect(&place);
        if (!CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW)), title,
                      WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME,
                      CRect(place.TopLeft(), CSize(kWidthPx, kHeightPx)), owner, 0))
            return FALSE;
    }
    SetWindowText(title);
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CMeterPlayer::Play(SoundFile sound) {
    m_sound = std::move(sound);
    m_position = 0;
    Start();
}

void CMeterPlayer::PlayFullFace() {
    m_sound = SoundFile();
    m_tick = 0;
    Start();
}

void CMeterPlayer::Start() {
    SetTimer(kPlayTimer, kStepMs, nullptr);
    Step();
    KeepOnScreen();
}

// The frame has taken the width that its meters need, and may reach beyond the screen.
void CMeterPlayer::KeepOnScreen() {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    if (!::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor))
        return;
    const CRect work(monitor.rcWork);
    CRect place;
    GetWindowRect(&place);
    const int left = std::max<int>(work.left, std::min<int>(place.left, work.right - place.Width()));
    const int top = std::max<int>(work.top, std::min<int>(place.top, work.bottom - place.Height()));
    SetWindowPos(nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CMeterPlayer::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER && wParam == kPlayTimer) {
        Step();
        return 0;
    }
    if (message == WM_SHOWWINDOW && !wParam)
        KillTimer(kPlayTimer);
    return CQVVUFrame::WindowProc(message, wParam, lParam);
}

void CMeterPlayer::Step() {
    if (m_sound.channels)
        StepSound();
    else
        StepFullFace();
}

void CMeterPlayer::StepSound() {
    const size_t frames = static_cast<size_t>(m_sound.samplesPerSecond) * kStepMs / kMsPerSecond;
    const int channels = std::min(m_sound.channels, kMostOutputs);
    int levels[kMostOutputs] = {};
    for (int channel = 0; channel < channels; ++channel)
        levels[channel] = Percent(m_sound.Peak(channel, m_position, frames));
    SetUVValue(0, nullptr, 0, nullptr, channels, levels, 0, 0);
    m_position += frames;
    if (m_position > m_sound.Frames() + frames)
        KillTimer(kPlayTimer);
}

void CMeterPlayer::StepFullFace() {
    int levels[kMostTracks] = {};
    for (int i = 0; i < kMostTracks; ++i)
        levels[i] = static_cast<int>(50.0 + 49.9 * std::sin(0.15 * m_tick + 0.35 * i));
    SetUVValue(kMostInputs, levels, kMostTracks, levels, kMostOutputs, levels, 0, 0);
    ++m_tick;
}
