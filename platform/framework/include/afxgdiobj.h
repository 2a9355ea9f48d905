// GDI objects: CGdiObject, CPen, CBrush, CFont, CBitmap, CRgn.
//
//     CBrush ground(RGB(0x26, 0x28, 0x2C));
//     CBrush* const former = dc.SelectObject(&ground);
//     dc.PatBlt(0, 0, 10, 10, PATCOPY);
//     dc.SelectObject(former);
//
// An object owns its handle and deletes it when it is destroyed or DeleteObject is called; deselect it from
// every device context first. Attach takes a handle over, Detach gives it back. FromHandle finds the object
// of a handle on the calling thread, or makes a temporary one that borrows the handle: use it at once and
// never keep or delete it; idle processing removes it. Functions return FALSE (0, null) without a handle and
// when the system refuses. Constructors that create throw CResourceException* on failure. Colours are
// 0x00BBGGRR; measures are logical units of the device context in which the object is used.
#pragma once

#include "afxexcept.h"
#include "afxstr.h"
#include "atltypes.h"

class CBitmap;
class CDC;

class AFXFRAME_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
  public:
    HGDIOBJ m_hObject = nullptr; // null while the object has no handle

    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }

    operator HGDIOBJ() const { return GetSafeHandle(); }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    // FALSE for null and while this object has a handle, or the handle has another object on this thread.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach(); // null when there was none
    // The object of a handle, temporary if need be; null for null. Temporary objects have the class of the
    // handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static CGdiObject* PASCAL FromHandlePermanent(HGDIOBJ hObject); // null when nobody has attached it
    static void PASCAL DeleteTempMap(); // removes the thread's temporary objects; handles stay

    BOOL DeleteObject();
    // Fills lpObject with the platform's description; bytes stored, 0 on failure.
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectW(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return m_hObject ? ::GetObjectType(m_hObject) : 0; }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return obj.m_hObject != m_hObject; }

  protected:
    // Attach for handles just made: a handle that cannot be attached is deleted.
    BOOL AttachNew(HGDIOBJ hObject);
    void AttachNewOrThrow(HGDIOBJ hObject);
};

class AFXFRAME_API CPen : public CGdiObject {
    DECLARE_DYNCREATE(CPen)
  public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = nullptr);

    static CPen* PASCAL FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
    // Geometric or cosmetic pen; nStyleCount dashes of lpStyle with PS_USERSTYLE, else 0 and null.
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return lpLogPen && AttachNew(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) const { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

class AFXFRAME_API CBrush : public CGdiObject {
    DECLARE_DYNCREATE(CBrush)
  public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor); // hatch
    explicit CBrush(CBitmap* pBitmap);    // pattern; the bitmap may be deleted afterwards

    static CBrush* PASCAL FromHandle(HBRUSH hBrush) {
        return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
    }
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }
    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) {
        return AttachNew(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
        return lpLogBrush && AttachNew(::CreateBrushIndirect(lpLogBrush));
    }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
        return lpPackedDIB && AttachNew(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
    }
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class AFXFRAME_API CFont : public CGdiObject {
    DECLARE_DYNCREATE(CFont)
  public:
    CFont() = default;

    static CFont* PASCAL FromHandle(HFONT hFont) {
        return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
    }
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) {
        return lpLogFont && AttachNew(::CreateFontIndirectW(lpLogFont));
    }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCWSTR lpszFacename) {
        return AttachNew(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                       bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                       nQuality, nPitchAndFamily, lpszFacename));
    }
    // Heights in tenths of a point, for the device of pDC (null: the screen).
    BOOL CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont,
                                 CDC* pDC = nullptr); // lfHeight in tenths of a point
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class AFXFRAME_API CBitmap : public CGdiObject {
    DECLARE_DYNCREATE(CBitmap)
  public:
    CBitmap() = default;

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap) {
        return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
    }
    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }
    BOOL LoadBitmap(LPCWSTR lpszResourceName); // from the chain of resource modules
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCEW(nIDResource)); }
    BOOL LoadOEMBitmap(UINT nIDBitmap) {
        return AttachNew(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(nIDBitmap)));
    }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return AttachNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(const BITMAP* lpBitmap) {
        return lpBitmap && AttachNew(::CreateBitmapIndirect(lpBitmap));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) {
        return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
    }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
        return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
    }
    CSize SetBitmapDimension(int nWidth, int nHeight); // the former dimension, in 0.1 mm
    CSize GetBitmapDimension() const;
};

class AFXFRAME_API CRgn : public CGdiObject {
    DECLARE_DYNCREATE(CRgn)
  public:
    CRgn() = default;

    static CRgn* PASCAL FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return AttachNew(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) {
        return lpRect && AttachNew(::CreateRectRgnIndirect(lpRect));
    }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return AttachNew(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) {
        return lpRect && AttachNew(::CreateEllipticRgnIndirect(lpRect));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return AttachNew(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
        return lpPoints && AttachNew(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreateFromPath(CDC* pDC);
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) {
        if (lpRect)
            SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    // COMPLEXREGION, NULLREGION, SIMPLEREGION or ERROR. This region must exist already.
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
    BOOL EqualRgn(const CRgn* pRgn) const { return pRgn && ::EqualRgn(*this, *pRgn); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return lpRect && ::RectInRegion(*this, lpRect); }
    int GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nDataSize), lpRgnData));
    }
};
