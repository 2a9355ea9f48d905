// CWnd: the scroll bars of a window.
#include "afxctl_std.h"

#include <algorithm>

namespace {

// The scroll bar control that takes a window bar's place, with the bar's number in its own terms.
struct Bar {
    HWND hWnd;
    int number;
};

Bar Resolve(const CWnd& wnd, int nBar) {
    const CScrollBar* const control = nBar == SB_CTL ? nullptr : wnd.GetScrollBarCtrl(nBar);
    return control ? Bar{control->m_hWnd, SB_CTL} : Bar{wnd.m_hWnd, nBar};
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    if (!lpScrollInfo)
        return FALSE;
    const Bar bar = Resolve(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.hWnd, bar.number, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    if (!lpScrollInfo)
        return FALSE;
    const Bar bar = Resolve(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(bar.hWnd, bar.number, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    const int hidden = std::max(static_cast<int>(info.nPage) - 1, 0);
    return std::max(info.nMax - hidden, info.nMin);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    const auto enable = [&](int number) {
        if (CScrollBar* const control = GetScrollBarCtrl(number))
            control->EnableWindow(bEnable);
        else
            ::EnableScrollBar(m_hWnd, static_cast<UINT>(number),
                              bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
    };
    if (nBar == SB_BOTH) {
        enable(SB_HORZ);
        enable(SB_VERT);
    } else {
        enable(nBar);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip,
                            prgnUpdate ? static_cast<HRGN>(prgnUpdate->m_hObject) : nullptr, lpRectUpdate,
                            flags);
}
