#include "QVMeterImpl.h"

#include <QVSkin.h>

namespace _qv_extractrl {

namespace {

// A meter that the host keeps setting lets time pass by that; the clock would only paint it twice as often.
constexpr ULONGLONG kFedLatelyMs = 100;

class WindowDC {
  public:
    explicit WindowDC(HWND wnd) : m_wnd(wnd), m_dc(::GetDC(wnd)) {}
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    ~WindowDC() {
        if (m_dc)
            ::ReleaseDC(m_wnd, m_dc);
    }
    HDC Handle() const { return m_dc; }

  private:
    HWND m_wnd;
    HDC m_dc;
};

} // namespace

void CQVMeterImpl::Resize(CSize size) {
    m_size = size;
    m_strip.reset();
}

const CQVMeterStrip& CQVMeterImpl::Strip(HWND wnd) {
    if (!m_strip) {
        m_strip = CQVMeterStrip::Get({m_size.cx, m_size.cy, _qv_commonctrl::QV_GetWindowDpi(wnd),
                                      _qv_commonctrl::QV_GetSkinGeneration()});
    }
    return *m_strip;
}

void CQVMeterImpl::SetLevel(HWND wnd, int level, ULONGLONG nowMs) {
    m_lastSetMs = nowMs;
    m_state.SetLevel(level, nowMs);
    Show(wnd);
}

void CQVMeterImpl::Reset(HWND wnd) {
    m_state.Reset();
    Show(wnd);
}

bool CQVMeterImpl::Tick(HWND wnd, ULONGLONG nowMs) {
    if (nowMs - m_lastSetMs >= kFedLatelyMs) {
        m_state.Advance(nowMs);
        Show(wnd);
    }
    return !m_state.IsAtRest();
}

void CQVMeterImpl::Show(HWND wnd) {
    if (!wnd || m_size.cx <= 0 || m_size.cy <= 0)
        return;
    const CQVMeterStrip& strip = Strip(wnd);
    const QVMeterPicture picture = QV_GetMeterPicture(m_state, m_size.cy, strip.Marks());
    const QVRowRange changed = QV_ChangedRows(m_shown, picture);
    m_shown = picture;
    if (changed.IsEmpty())
        return;
    const WindowDC dc(wnd);
    strip.Draw(dc.Handle(), picture, changed);
}

void CQVMeterImpl::Paint(HWND wnd, HDC dc, const RECT& area) {
    if (m_size.cx <= 0 || m_size.cy <= 0)
        return;
    const CQVMeterStrip& strip = Strip(wnd);
    m_shown = QV_GetMeterPicture(m_state, m_size.cy, strip.Marks());
    strip.Draw(dc, m_shown, {area.top, area.bottom});
}

} // namespace _qv_extractrl
