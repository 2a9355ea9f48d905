#include "QVMeterPainter.h"

namespace _qv_extractrl {

namespace {

// Windows that count their pixels from the right, or are mixed with what is below them, are left to
// themselves.
bool IsPlain(HWND wnd) {
    return (::GetWindowLongPtrW(wnd, GWL_EXSTYLE) & (WS_EX_LAYOUTRTL | WS_EX_LAYERED)) == 0;
}

} // namespace

void CQVMeterPainter::Paint(HWND meter, const CQVMeterStrip& strip, const QVMeterRuns& runs) {
    const LONG_PTR style = ::GetWindowLongPtrW(meter, GWL_STYLE);
    if ((style & WS_VISIBLE) == 0)
        return;
    // Through its parent a window looks as through a context of its own when it does not give way to what
    // covers it.
    POINT origin = {0, 0};
    if (m_round == QVMeterRound::ManyMeters && (style & (WS_CHILD | WS_CLIPSIBLINGS)) == WS_CHILD &&
        UseParent(meter, origin)) {
        strip.Draw(m_dc, origin, runs);
        return;
    }
    const HDC own = ::GetDC(meter);
    strip.Draw(own, origin, runs);
    ::ReleaseDC(meter, own);
}

// `origin`: where the meter's client area begins in the parent's.
bool CQVMeterPainter::UseParent(HWND meter, POINT& origin) {
    const HWND parent = ::GetAncestor(meter, GA_PARENT);
    if (parent != m_parent) {
        Release();
        m_parent = parent;
        if (IsPlain(parent))
            m_dc = ::GetDCEx(parent, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS);
    }
    if (!m_dc || !IsPlain(meter))
        return false;
    ::MapWindowPoints(meter, parent, &origin, 1);
    return true;
}

void CQVMeterPainter::Release() {
    if (m_dc)
        ::ReleaseDC(m_parent, m_dc);
    m_dc = nullptr;
    m_parent = nullptr;
}

} // namespace _qv_extractrl
