// CPen: the pens that are made by more than one platform call.
#include "afx/Pen.h"
#include "afx/ResourceException.h"

IMPLEMENT_DYNCREATE(CPen, CGdiObject)

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    AttachNewOrThrow(::CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return pLogBrush && nStyleCount >= 0 &&
           AttachNew(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                    static_cast<DWORD>(nStyleCount), lpStyle));
}
