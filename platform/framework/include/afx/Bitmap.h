// CBitmap: a bitmap handle. Ownership follows the rules of GdiObject.h.
#pragma once

#include "GdiObject.h"
#include "../atltypes.h"

class CDC;

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
