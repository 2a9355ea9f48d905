// CDC: a device context.
//
//     void CPane::OnPaint() {
//         CPaintDC dc(this);
//         dc.FillSolidRect(dc.m_ps.rcPaint, ground);
//     }
//
// A CDC owns its handle and deletes it when it is destroyed, except temporary objects of FromHandle, which
// borrow (rules in GdiObject.h). CClientDC, CWindowDC and CPaintDC get and release the DC of a window. Select
// the former object back before you delete one. Co-ordinates are logical units, colours 0x00BBGGRR. Functions
// return what the platform call of the same name returns; without a handle they fail as it does. Selecting a
// null object does nothing and returns null.
#pragma once

#include "Bitmap.h"
#include "Brush.h"
#include "Font.h"
#include "Pen.h"
#include "Rgn.h"
#include "String.h"
#include "../atltypes.h"

class CWnd;

class AFXFRAME_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
  public:
    HDC m_hDC = nullptr;       // where output goes
    HDC m_hAttribDC = nullptr; // where attributes are asked; the same context

    CDC() = default;
    ~CDC() override;

    // ---- Handle.
    BOOL Attach(HDC hDC);
    HDC Detach();
    static CDC* PASCAL FromHandle(HDC hDC);
    static CDC* PASCAL FromHandlePermanent(HDC hDC);
    static void PASCAL DeleteTempMap();
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL CreateDC(LPCWSTR lpszDriver, LPCWSTR lpszDevice, LPCWSTR lpszOutput, const void* lpInitData);
    BOOL CreateCompatibleDC(CDC* pDC); // null: compatible with the screen
    BOOL DeleteDC();
    CWnd* GetWindow() const; // the window of a window DC, may be temporary; else null
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // ---- Selecting: the object selected before, may be temporary. Regions: the kind of the clip region.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    HGDIOBJ SelectObject(HGDIOBJ hObject) { return hObject ? ::SelectObject(m_hDC, hObject) : nullptr; }
    CGdiObject* SelectStockObject(int nIndex);
    CPen* GetCurrentPen() const { return static_cast<CPen*>(Current(OBJ_PEN)); }
    CBrush* GetCurrentBrush() const { return static_cast<CBrush*>(Current(OBJ_BRUSH)); }
    CFont* GetCurrentFont() const { return static_cast<CFont*>(Current(OBJ_FONT)); }
    CBitmap* GetCurrentBitmap() const { return static_cast<CBitmap*>(Current(OBJ_BITMAP)); }

    // ---- Attributes: setters return the former value.
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags) { return ::SetTextAlign(m_hDC, nFlags); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int nDrawMode) { return ::SetROP2(m_hDC, nDrawMode); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode) { return ::SetStretchBltMode(m_hDC, nStretchMode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode) { return ::SetPolyFillMode(m_hDC, nPolyFillMode); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hAttribDC); }
    int SetGraphicsMode(int iMode) { return ::SetGraphicsMode(m_hDC, iMode); }

    // ---- Mapping: setters return the former value.
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    int SetMapMode(int nMapMode) { return ::SetMapMode(m_hDC, nMapMode); }
    CPoint GetViewportOrg() const;
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    BOOL SetWorldTransform(const XFORM* pXform) { return ::SetWorldTransform(m_hDC, pXform); }
    BOOL GetWorldTransform(XFORM* pXform) const { return ::GetWorldTransform(m_hAttribDC, pXform); }
    BOOL DPtoLP(LPPOINT lpPoints, int nCount = 1) const { return ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    BOOL LPtoDP(LPPOINT lpPoints, int nCount = 1) const { return ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { DPtoLP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPRECT lpRect) const { LPtoDP(reinterpret_cast<LPPOINT>(lpRect), 2); }

    // ---- Clipping: the kind of the new clip region, ERROR on failure. A null region removes the clip.
    int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2) { return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2); }
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2) {
        return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
    }
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y) { return ::OffsetClipRgn(m_hDC, x, y); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    BOOL RectVisible(LPCRECT lpRect) const { return lpRect && ::RectVisible(m_hDC, lpRect); }

    // ---- Lines.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y); // the former position
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); } // without the end point itself
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }

    // ---- Shapes and surfaces.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    void FillSolidRect(LPCRECT lpRect, COLORREF clr); // sets the background colour, too
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight); // one unit wide
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL PaintRgn(CRgn* pRgn);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point);
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush = nullptr);

    // ---- Pixels.
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    // A null source is allowed for raster operations that need none.
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                        int nSrcHeight, UINT clrTransparent);
    BOOL AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, BLENDFUNCTION blend);

    // ---- Text. Counts are UTF-16 units.
    BOOL TextOut(int x, int y, LPCWSTR lpszString, int nCount) {
        return ::TextOutW(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCWSTR lpszString, UINT nCount,
                    const INT* lpDxWidths) {
        return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, const INT* lpDxWidths) {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    // The height of the text; nCount -1: up to the terminator. DT_MODIFYSTRING needs a writable lpszString.
    int DrawText(LPCWSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
        return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
        return DrawText(str, str.GetLength(), lpRect, nFormat & ~static_cast<UINT>(DT_MODIFYSTRING));
    }
    int DrawTextEx(LPWSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpParams) {
        return ::DrawTextExW(m_hDC, lpszString, nCount, lpRect, nFormat, lpParams);
    }
    CSize GetTextExtent(LPCWSTR lpszString, int nCount) const; // 0, 0 on failure
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsW(m_hAttribDC, lpMetrics); }
    int GetTextFace(CString& rString) const; // units of the name
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth32W(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }

  protected:
    void AttachWindowDC(HDC hDC);
    CGdiObject* Current(UINT nType) const;
    CGdiObject* SelectHandle(const CGdiObject* pObject);
};
