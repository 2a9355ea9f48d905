// CImageList: an image list handle.
//
// Ownership, Attach, Detach and FromHandle follow the rules of GdiObject.h. Image indexes are zero-based,
// sizes are pixels. Functions return FALSE (0, -1, null) without a handle and when the system refuses.
#pragma once

#include "Bitmap.h"
#include "DC.h"
#include <commctrl.h>
#include <shellapi.h> // renames ExtractIcon by a macro: every source must see the same name

class AFXFRAME_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)
  public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    // ---- Handle.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // From a bitmap resource cut in images of cx pixels; pixels of crMask become transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCWSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    BOOL Create(CImageList* pImageList); // a duplicate
    BOOL DeleteImageList();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return GetSafeHandle(); }

    // ---- Images. Adding returns the index of the first new image, -1 on failure; bitmaps are copied.
    int GetImageCount() const { return m_hImageList ? ::ImageList_GetImageCount(m_hImageList) : 0; }
    BOOL SetImageCount(UINT uNewCount);
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    BOOL Remove(int nImage); // -1 removes all
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL SetOverlayImage(int nImage, int nOverlay);
    HICON ExtractIcon(int nImage); // the caller destroys it
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    BOOL GetIconSize(int* cx, int* cy) const;
    COLORREF SetBkColor(COLORREF cr); // the former colour
    COLORREF GetBkColor() const;

    // ---- Drawing.
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp); // the list's handle is filled in

  private:
    BOOL AttachNew(HIMAGELIST hImageList);
};
