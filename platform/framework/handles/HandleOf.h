// The platform handle of an object that may not be there: null for a null pointer.
#pragma once

#include "afx/ImageList.h"
#include "afx/Wnd.h"

inline HWND HandleOf(const CWnd* pWnd) {
    return pWnd ? pWnd->m_hWnd : nullptr;
}
inline HDC HandleOf(const CDC* pDC) {
    return pDC ? pDC->m_hDC : nullptr;
}
inline HBRUSH HandleOf(const CBrush* pBrush) {
    return pBrush ? static_cast<HBRUSH>(*pBrush) : nullptr;
}
inline HRGN HandleOf(const CRgn* pRgn) {
    return pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
}
inline HBITMAP HandleOf(const CBitmap* pBitmap) {
    return pBitmap ? static_cast<HBITMAP>(*pBitmap) : nullptr;
}
inline HFONT HandleOf(const CFont* pFont) {
    return pFont ? static_cast<HFONT>(*pFont) : nullptr;
}
inline HMENU HandleOf(const CMenu* pMenu) {
    return pMenu ? pMenu->m_hMenu : nullptr;
}
inline HIMAGELIST HandleOf(const CImageList* pImageList) {
    return pImageList ? pImageList->m_hImageList : nullptr;
}
