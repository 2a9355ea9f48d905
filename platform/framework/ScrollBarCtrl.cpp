#include "afxwin.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_SCROLLBARW, nullptr, style, rect, parent, id);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask) {
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, info);
}
