// CDC: handle, selection, mapping, clipping, lines, shapes, pixels and text.
#include "handles/HandleOf.h"
#include "handles/ThreadTemporaries.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

CDC::~CDC() {
    DeleteDC();
}

BOOL CDC::Attach(HDC hDC) {
    if (!AttachHandle<CDC>(this, m_hDC, hDC))
        return FALSE;
    m_hAttribDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    m_hAttribDC = nullptr;
    return DetachHandle<CDC>(this, m_hDC, &ThreadTemporaries::dcs);
}

// A window with a DC of its own gives the same handle twice: the second object works without being in the
// table.
void CDC::AttachWindowDC(HDC hDC) {
    if (!Attach(hDC))
        m_hDC = m_hAttribDC = hDC;
}

CDC* PASCAL CDC::FromHandlePermanent(HDC hDC) {
    return FindAttached<CDC>(hDC);
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    CDC* const dc = FindOrBorrow(hDC, &CDC::m_hDC, &ThreadTemporaries::dcs);
    if (dc)
        dc->m_hAttribDC = hDC;
    return dc;
}

void PASCAL CDC::DeleteTempMap() {
    ClearTemporaries(&ThreadTemporaries::dcs);
}

BOOL CDC::CreateDC(LPCWSTR lpszDriver, LPCWSTR lpszDevice, LPCWSTR lpszOutput, const void* lpInitData) {
    if (m_hDC)
        return FALSE;
    return Attach(::CreateDCW(lpszDriver, lpszDevice, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return !m_hDC && Attach(::CreateCompatibleDC(HandleOf(pDC)));
}

BOOL CDC::DeleteDC() {
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CGdiObject* CDC::Current(UINT nType) const {
    return CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, nType));
}

CGdiObject* CDC::SelectHandle(const CGdiObject* pObject) {
    HGDIOBJ const handle = pObject ? pObject->m_hObject : nullptr;
    return handle ? CGdiObject::FromHandle(::SelectObject(m_hDC, handle)) : nullptr;
}

CPen* CDC::SelectObject(CPen* pPen) {
    return static_cast<CPen*>(SelectHandle(pPen));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(SelectHandle(pBrush));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return static_cast<CFont*>(SelectHandle(pFont));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return static_cast<CBitmap*>(SelectHandle(pBitmap));
}

// For a region the platform returns the kind of the clip region, not a handle.
int CDC::SelectObject(CRgn* pRgn) {
    HRGN const handle = HandleOf(pRgn);
    return handle ? static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(m_hDC, handle))) : ERROR;
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    if (pObject && pObject->GetObjectType() == OBJ_REGION) {
        ::SelectObject(m_hDC, pObject->m_hObject);
        return nullptr;
    }
    return SelectHandle(pObject);
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    HGDIOBJ const stock = ::GetStockObject(nIndex);
    return stock ? CGdiObject::FromHandle(::SelectObject(m_hDC, stock)) : nullptr;
}

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint former;
    ::SetViewportOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    CPoint former;
    ::OffsetViewportOrgEx(m_hDC, nWidth, nHeight, &former);
    return former;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize former;
    ::SetViewportExtEx(m_hDC, cx, cy, &former);
    return former;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint former;
    ::SetWindowOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    CPoint former;
    ::OffsetWindowOrgEx(m_hDC, nWidth, nHeight, &former);
    return former;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize former;
    ::SetWindowExtEx(m_hDC, cx, cy, &former);
    return former;
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint former;
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    return ::SelectClipRgn(m_hDC, HandleOf(pRgn));
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ::ExtSelectClipRgn(m_hDC, HandleOf(pRgn), nMode);
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return lpRect ? ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return lpRect ? IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, HandleOf(pWnd));
}

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
    HBRUSH const brush = HandleOf(pBrush);
    if (lpRect && brush)
        ::FillRect(m_hDC, lpRect, brush);
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    HBRUSH const brush = HandleOf(pBrush);
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
    return ::FillRgn(m_hDC, HandleOf(pRgn), HandleOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, HandleOf(pRgn), HandleOf(pBrush), nWidth, nHeight);
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, HandleOf(pRgn));
}

BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, HandleOf(pRgn));
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
    return ::DrawStateW(m_hDC, HandleOf(pBrush), nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y,
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
