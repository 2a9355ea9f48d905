// CDC: lines, shapes, pixels and text.
#include "afxdc.h"

namespace {

HBRUSH HandleOfBrush(const CBrush* pBrush) {
    return pBrush ? static_cast<HBRUSH>(*pBrush) : nullptr;
}

HRGN HandleOfRegion(const CRgn* pRgn) {
    return pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
}

} // namespace

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint former;
    ::MoveToEx(m_hDC, x, y, &former);
    return former;
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    HBRUSH const brush = HandleOfBrush(pBrush);
    if (lpRect && brush)
        ::FillRect(m_hDC, lpRect, brush);
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    HBRUSH const brush = HandleOfBrush(pBrush);
    if (lpRect && brush)
        ::FrameRect(m_hDC, lpRect, brush);
}

// Filling through the background of an empty text needs no brush to be made, selected and deleted.
void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    if (!lpRect)
        return;
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const CRect area(x, y, x + cx, y + cy);
    FillSolidRect(static_cast<LPCRECT>(area), clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    if (lpRect)
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, HandleOfRegion(pRgn), HandleOfBrush(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, HandleOfRegion(pRgn), HandleOfBrush(pBrush), nWidth, nHeight);
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, HandleOfRegion(pRgn));
}

BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, HandleOfRegion(pRgn));
}

BOOL CDC::Rectangle(LPCRECT lpRect) {
    return lpRect && Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point) {
    return lpRect && RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Ellipse(LPCRECT lpRect) {
    return lpRect && Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                       DWORD dwMode) {
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return ::DrawStateW(m_hDC, HandleOfBrush(pBrush), nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y,
                        size.cx, size.cy, nFlags | DST_ICON);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

BOOL CDC::TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                         int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::TransparentBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                            clrTransparent);
}

BOOL CDC::AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        blend);
}

CSize CDC::GetTextExtent(LPCWSTR lpszString, int nCount) const {
    CSize extent;
    if (lpszString && nCount >= 0)
        ::GetTextExtentPoint32W(m_hAttribDC, lpszString, nCount, &extent);
    return extent;
}

int CDC::GetTextFace(CString& rString) const {
    const int room = ::GetTextFaceW(m_hAttribDC, 0, nullptr);
    if (room <= 0) {
        rString.Empty();
        return 0;
    }
    ::GetTextFaceW(m_hAttribDC, room, rString.GetBuffer(room));
    rString.ReleaseBuffer();
    return rString.GetLength();
}
