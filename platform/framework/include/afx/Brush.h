// CBrush: a brush handle. Ownership follows the rules of GdiObject.h.
#pragma once

#include "GdiObject.h"

class CBitmap;

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
