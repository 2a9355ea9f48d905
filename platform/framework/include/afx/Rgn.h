// CRgn: a region handle. Ownership follows the rules of GdiObject.h.
#pragma once

#include "GdiObject.h"

class CDC;

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
