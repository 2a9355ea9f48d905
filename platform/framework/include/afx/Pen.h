// CPen: a pen handle. Ownership follows the rules of GdiObject.h.
#pragma once

#include "GdiObject.h"

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
