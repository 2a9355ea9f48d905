// CPen, CBrush, CFont, CBitmap, CRgn: what is more than one platform call.
#include "afxgdi.h"
#include "afxstat_.h"

IMPLEMENT_DYNCREATE(CPen, CGdiObject)
IMPLEMENT_DYNCREATE(CBrush, CGdiObject)
IMPLEMENT_DYNCREATE(CFont, CGdiObject)
IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)
IMPLEMENT_DYNCREATE(CRgn, CGdiObject)

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

BOOL CFont::CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC* pDC) {
    LOGFONTW font = {};
    font.lfHeight = nPointSize;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynW(font.lfFaceName, lpszFaceName ? lpszFaceName : L"", LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

// A font of a device's size is measured from its origin, so that scaled mapping modes give the right height.
BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    constexpr int kTenthsPerInch = 720;
    if (!lpLogFont)
        return FALSE;
    HDC const screen = pDC ? nullptr : ::GetDC(nullptr);
    HDC const device = pDC ? pDC->m_hAttribDC : screen;
    const int dotsPerInch = ::GetDeviceCaps(device, LOGPIXELSY);
    POINT top = {0, ::MulDiv(lpLogFont->lfHeight, dotsPerInch, kTenthsPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(device, &top, 1);
    ::DPtoLP(device, &origin, 1);
    if (screen)
        ::ReleaseDC(nullptr, screen);
    LOGFONTW font = *lpLogFont;
    const LONG height = top.y - origin.y;
    font.lfHeight = height < 0 ? height : -height;
    return CreateFontIndirect(&font);
}

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

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return pDC && AttachNew(::PathToRegion(pDC->m_hDC));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, pRgn1 ? static_cast<HRGN>(*pRgn1) : nullptr,
                        pRgn2 ? static_cast<HRGN>(*pRgn2) : nullptr, nCombineMode);
}
