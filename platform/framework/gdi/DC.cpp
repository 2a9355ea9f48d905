// CDC: handle, selection, mapping and clipping.
#include "window/ThreadTemporaries.h"

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
    HGDIOBJ const handle = pRgn ? pRgn->m_hObject : nullptr;
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
    return ::SelectClipRgn(m_hDC, pRgn ? static_cast<HRGN>(*pRgn) : nullptr);
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ::ExtSelectClipRgn(m_hDC, pRgn ? static_cast<HRGN>(*pRgn) : nullptr, nMode);
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return lpRect ? ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return lpRect ? IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}
