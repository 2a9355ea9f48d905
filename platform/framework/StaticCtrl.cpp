#include "afxwin.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(WC_STATICW, text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap) {
    return reinterpret_cast<HBITMAP>(
        ::SendMessageW(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CStatic::GetBitmap() const {
    return reinterpret_cast<HBITMAP>(::SendMessageW(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP, 0));
}

HICON CStatic::SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(
        ::SendMessageW(m_hWnd, STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}
