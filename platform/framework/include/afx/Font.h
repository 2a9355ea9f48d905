// CFont: a font handle. Ownership follows the rules of GdiObject.h.
#pragma once

#include "GdiObject.h"

class CDC;

class AFXFRAME_API CFont : public CGdiObject {
    DECLARE_DYNCREATE(CFont)
  public:
    CFont() = default;

    static CFont* PASCAL FromHandle(HFONT hFont) {
        return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
    }
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) {
        return lpLogFont && AttachNew(::CreateFontIndirectW(lpLogFont));
    }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCWSTR lpszFacename) {
        return AttachNew(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                       bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                       nQuality, nPitchAndFamily, lpszFacename));
    }
    // Heights in tenths of a point, for the device of pDC (null: the screen).
    BOOL CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr); // of lfHeight
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};
