#include "QVMeterFace.h"

#include <QVSkin.h>

namespace _qv_extractrl {

namespace {

// A meter that the host keeps setting lets time pass by that; the clock would only paint it twice as often.
constexpr ULONGLONG kFedLatelyMs = 100;

} // namespace

void CQVMeterFace::Resize(CSize size) {
    m_size = size;
    m_strip.reset();
}

const CQVMeterStrip& CQVMeterFace::Strip(HWND wnd) {
    if (!m_strip) {
        m_strip = CQVMeterStrip::Get({m_size.cx, m_size.cy, _qv_commonctrl::QV_GetWindowDpi(wnd),
                                      _qv_commonctrl::QV_GetSkinGeneration()});
    }
    return *m_strip;
}

void CQVMeterFace::SetLevel(HWND wnd, int level, ULONGLONG nowMs, CQVMeterPainter& painter) {
    m_lastSetMs = nowMs;
    m_state.SetLevel(level, nowMs);
    Show(wnd, painter);
}

void CQVMeterFace::Reset(HWND wnd, CQVMeterPainter& painter) {
    m_state.Reset();
    Show(wnd, painter);
}

bool CQVMeterFace::Tick(HWND wnd, ULONGLONG nowMs, CQVMeterPainter& painter) {
    if (nowMs - m_lastSetMs >= kFedLatelyMs) {
        m_state.Advance(nowMs);
        Show(wnd, painter);
    }
    return !m_state.IsAtRest();
}

void CQVMeterFace::Show(HWND wnd, CQVMeterPainter& painter) {
    if (!wnd || m_size.cx <= 0 || m_size.cy <= 0)
        return;
    const CQVMeterStrip& strip = Strip(wnd);
    const QVMeterPicture picture = QV_GetMeterPicture(m_state, m_size.cy, strip.Marks());
    const QVMeterRuns changed = QV_ChangedRuns(m_shown, picture);
    m_shown = picture;
    if (!changed.IsEmpty())
        painter.Paint(wnd, strip, changed);
}

void CQVMeterFace::Paint(HWND wnd, HDC dc, const RECT& area) {
    if (m_size.cx <= 0 || m_size.cy <= 0)
        return;
    const CQVMeterStrip& strip = Strip(wnd);
    m_shown = QV_GetMeterPicture(m_state, m_size.cy, strip.Marks());
    strip.Draw(dc, {0, 0}, QV_MeterRuns(m_shown, area.top, area.bottom));
}

} // namespace _qv_extractrl
