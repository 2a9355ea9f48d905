// CBrush: solid, hatched and patterned brushes.
#include "afx/Bitmap.h"
#include "afx/Brush.h"

IMPLEMENT_DYNCREATE(CBrush, CGdiObject)

CBrush::CBrush(COLORREF crColor) {
    AttachNewOrThrow(::CreateSolidBrush(crColor));
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    AttachNewOrThrow(::CreateHatchBrush(nIndex, crColor));
}

CBrush::CBrush(CBitmap* pBitmap) {
    AttachNewOrThrow(pBitmap ? ::CreatePatternBrush(*pBitmap) : nullptr);
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return pBitmap && AttachNew(::CreatePatternBrush(*pBitmap));
}
