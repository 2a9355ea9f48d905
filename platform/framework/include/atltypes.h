// Entry header: CSize, CPoint, CRect, the platform's SIZE, POINT and RECT with operators.
//
//     CRect client(0, 0, 320, 200);
//     client.DeflateRect(8, 8);
//     CPoint centre = client.CenterPoint();
//
// Plain values: no owner, any thread, no failure. Units are whatever the caller measures in, usually pixels.
// The right and bottom edges of a rectangle lie outside it. Functions marked "normalised" expect left <=
// right and top <= bottom.
#pragma once

#include "afx/Definitions.h"

class CPoint;
class CRect;

class CSize : public tagSIZE {
  public:
    constexpr CSize() noexcept : tagSIZE{0, 0} {}
    constexpr CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    constexpr CSize(SIZE initSize) noexcept : tagSIZE{initSize} {}
    CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
    // Low word is cx, high word is cy, both signed.
    CSize(DWORD dwSize) noexcept
        : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) noexcept {
        cx -= size.cx;
        cy -= size.cy;
    }
    void SetSize(int newCX, int newCY) noexcept {
        cx = newCX;
        cy = newCY;
    }
    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

class CPoint : public tagPOINT {
  public:
    constexpr CPoint() noexcept : tagPOINT{0, 0} {}
    constexpr CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    constexpr CPoint(POINT initPt) noexcept : tagPOINT{initPt} {}
    CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
    // Low word is x, high word is y, both signed, as the system packs mouse positions.
    CPoint(LPARAM dwPoint) noexcept
        : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))} {}

    void Offset(int xOffset, int yOffset) noexcept {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) noexcept {
        x = X;
        y = Y;
    }
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

class CRect : public tagRECT {
  public:
    constexpr CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    constexpr CRect(const RECT& srcRect) noexcept : tagRECT{srcRect} {}
    // A null pointer gives the empty rectangle.
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT{} { CopyRect(lpSrcRect); }
    CRect(POINT point, SIZE size) noexcept
        : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    // ---- Reading.
    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }
    BOOL IsRectEmpty() const noexcept { return right <= left || bottom <= top; } // no width or no height
    BOOL IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { // normalised
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    // ---- Setting.
    void SetRect(int x1, int y1, int x2, int y2) noexcept {
        left = x1;
        top = y1;
        right = x2;
        bottom = y2;
    }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT lpSrcRect) noexcept {
        if (lpSrcRect)
            SetRect(lpSrcRect->left, lpSrcRect->top, lpSrcRect->right, lpSrcRect->bottom);
        else
            SetRectEmpty();
    }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return lpRect && *this == *lpRect; }
    void operator=(const RECT& srcRect) noexcept {
        SetRect(srcRect.left, srcRect.top, srcRect.right, srcRect.bottom);
    }
    // Swaps the edges so that left <= right and top <= bottom.
    void NormalizeRect() noexcept {
        if (left > right)
            SetRect(right, top, left, bottom);
        if (top > bottom)
            SetRect(left, bottom, right, top);
    }

    // ---- Growing and shrinking. Inflating moves left and top back and right and bottom forth.
    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept {
        if (lpRect)
            InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept {
        if (lpRect)
            DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }

    // ---- Moving.
    void OffsetRect(int x, int y) noexcept { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    // ---- Combining, normalised. FALSE when the result is empty; it is all zero then. A null pointer counts
    // as an empty rectangle.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
        const CRect a(lpRect1), b(lpRect2);
        return ::IntersectRect(this, &a, &b);
    }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
        const CRect a(lpRect1), b(lpRect2);
        return ::UnionRect(this, &a, &b);
    }
    // The first without the second, when the second covers it in one direction; else the first.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
        const CRect a(lpRectSrc1), b(lpRectSrc2);
        return ::SubtractRect(this, &a, &b);
    }
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }

    // ---- Operators: points and sizes move, rectangles inflate (+) or deflate (-), & intersects, | unites.
    BOOL operator==(const RECT& rect) const noexcept {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }
    BOOL operator!=(const RECT& rect) const noexcept { return !(*this == rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }
    CRect operator+(POINT point) const noexcept { return Moved(point.x, point.y); }
    CRect operator+(SIZE size) const noexcept { return Moved(size.cx, size.cy); }
    CRect operator+(LPCRECT lpRect) const noexcept {
        CRect result(*this);
        result.InflateRect(lpRect);
        return result;
    }
    CRect operator-(POINT point) const noexcept { return Moved(-point.x, -point.y); }
    CRect operator-(SIZE size) const noexcept { return Moved(-size.cx, -size.cy); }
    CRect operator-(LPCRECT lpRect) const noexcept {
        CRect result(*this);
        result.DeflateRect(lpRect);
        return result;
    }
    CRect operator&(const RECT& rect2) const noexcept {
        CRect result;
        result.IntersectRect(this, &rect2);
        return result;
    }
    CRect operator|(const RECT& rect2) const noexcept {
        CRect result;
        result.UnionRect(this, &rect2);
        return result;
    }

  private:
    CRect Moved(int x, int y) const noexcept { return CRect(left + x, top + y, right + x, bottom + y); }
};

inline CPoint CSize::operator+(POINT point) const noexcept {
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const noexcept {
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
