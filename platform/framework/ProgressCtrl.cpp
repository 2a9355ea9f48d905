#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(PROGRESS_CLASSW, nullptr, style, rect, parent, id);
}

void CProgressCtrl::GetRange(int& lower, int& upper) const {
    PBRANGE range = {};
    ::SendMessageW(m_hWnd, PBM_GETRANGE, FALSE, reinterpret_cast<LPARAM>(&range));
    lower = range.iLow;
    upper = range.iHigh;
}
