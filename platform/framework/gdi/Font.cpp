// CFont: fonts whose height is given in points.
#include "afx/ClientDC.h"
#include "afx/Font.h"

IMPLEMENT_DYNCREATE(CFont, CGdiObject)

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
    if (!pDC) {
        CClientDC screen(nullptr);
        return CreatePointFontIndirect(lpLogFont, &screen);
    }
    POINT top = {0, ::MulDiv(lpLogFont->lfHeight, pDC->GetDeviceCaps(LOGPIXELSY), kTenthsPerInch)};
    POINT origin = {0, 0};
    pDC->DPtoLP(&top);
    pDC->DPtoLP(&origin);
    LOGFONTW font = *lpLogFont;
    const LONG height = top.y - origin.y;
    font.lfHeight = height < 0 ? height : -height;
    return CreateFontIndirect(&font);
}
