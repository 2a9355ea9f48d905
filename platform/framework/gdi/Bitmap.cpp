// CBitmap: bitmaps of resources and of a device, and their dimension.
#include "afx/Bitmap.h"
#include "afx/DC.h"
#include "afx/Resources.h"

IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)

BOOL CBitmap::LoadBitmap(LPCWSTR lpszResourceName) {
    return AttachNew(::LoadBitmapW(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return pDC && AttachNew(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    CSize former;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &former);
    return former;
}

CSize CBitmap::GetBitmapDimension() const {
    CSize dimension;
    ::GetBitmapDimensionEx(*this, &dimension);
    return dimension;
}
