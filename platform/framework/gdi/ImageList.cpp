// CImageList: handle, images and drawing.
#include "handles/HandleOf.h"
#include "handles/ThreadTemporaries.h"
#include "afx/Resources.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return AttachNew(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCEW(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCWSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    HINSTANCE const module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return AttachNew(::ImageList_LoadImageW(module, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx,
                        int dy) {
    return AttachNew(
        ::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList) {
    return pImageList && pImageList->m_hImageList &&
           AttachNew(::ImageList_Duplicate(pImageList->m_hImageList));
}

BOOL CImageList::DeleteImageList() {
    return m_hImageList ? ::ImageList_Destroy(Detach()) : FALSE;
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    return AttachHandle<CImageList>(this, m_hImageList, hImageList);
}

HIMAGELIST CImageList::Detach() {
    return DetachHandle<CImageList>(this, m_hImageList, &ThreadTemporaries::imageLists);
}

BOOL CImageList::AttachNew(HIMAGELIST hImageList) {
    if (Attach(hImageList))
        return TRUE;
    if (hImageList)
        ::ImageList_Destroy(hImageList);
    return FALSE;
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return FindAttached<CImageList>(hImageList);
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return FindOrBorrow(hImageList, &CImageList::m_hImageList, &ThreadTemporaries::imageLists);
}

void PASCAL CImageList::DeleteTempMap() {
    ClearTemporaries(&ThreadTemporaries::imageLists);
}

BOOL CImageList::SetImageCount(UINT uNewCount) {
    return m_hImageList && ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return m_hImageList && pbmImage ? ::ImageList_Add(m_hImageList, HandleOf(pbmImage), HandleOf(pbmMask))
                                    : -1;
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return m_hImageList && pbmImage ? ::ImageList_AddMasked(m_hImageList, HandleOf(pbmImage), crMask) : -1;
}

int CImageList::Add(HICON hIcon) {
    return Replace(-1, hIcon);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return m_hImageList && pbmImage &&
           ::ImageList_Replace(m_hImageList, nImage, HandleOf(pbmImage), HandleOf(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon) {
    return m_hImageList && hIcon ? ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon) : -1;
}

BOOL CImageList::Remove(int nImage) {
    return m_hImageList && ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags) {
    return m_hImageList && ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay) {
    return m_hImageList && ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

HICON CImageList::ExtractIcon(int nImage) {
    return m_hImageList ? ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL) : nullptr;
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
    return m_hImageList && pImageInfo && ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

BOOL CImageList::GetIconSize(int* cx, int* cy) const {
    return m_hImageList && cx && cy && ::ImageList_GetIconSize(m_hImageList, cx, cy);
}

COLORREF CImageList::SetBkColor(COLORREF cr) {
    return m_hImageList ? ::ImageList_SetBkColor(m_hImageList, cr) : CLR_NONE;
}

COLORREF CImageList::GetBkColor() const {
    return m_hImageList ? ::ImageList_GetBkColor(m_hImageList) : CLR_NONE;
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return m_hImageList && pDC && ::ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                        UINT nStyle) {
    return m_hImageList && pDC &&
           ::ImageList_DrawEx(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                              nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    if (!m_hImageList || !pimldp)
        return FALSE;
    pimldp->cbSize = sizeof(IMAGELISTDRAWPARAMS);
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}
