// CRgn: regions of a path and of other regions.
#include "handles/HandleOf.h"
#include "afx/Rgn.h"

IMPLEMENT_DYNCREATE(CRgn, CGdiObject)

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return pDC && AttachNew(::PathToRegion(pDC->m_hDC));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, HandleOf(pRgn1), HandleOf(pRgn2), nCombineMode);
}
