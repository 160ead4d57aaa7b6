// CPoint, CSize and CRect: the plain Windows structures with arithmetic.
//
// They add no data, so each converts to and from the structure it extends at no cost, and an array of one is
// an array of the other. Units are whatever the caller counts in; the arithmetic is that of LONG.
#pragma once

#include "kmfc/diagnostics.h"

class CPoint;
class CRect;

/// An extent: width cx and height cy, either of which may be negative.
class CSize : public SIZE {
public:
    CSize() noexcept : SIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : SIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : SIZE(initSize) {}
    CSize(POINT initPt) noexcept : SIZE{initPt.x, initPt.y} {}
    /// cx from the low word, cy from the high word, both signed.
    CSize(DWORD dwSize) noexcept
        : SIZE{static_cast<short>(dwSize & 0xFFFF), static_cast<short>((dwSize >> 16) & 0xFFFF)} {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) noexcept { cx -= size.cx, cy -= size.cy; }
    void SetSize(int newCX, int newCY) noexcept { cx = newCX, cy = newCY; }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A position.
class CPoint : public POINT {
public:
    CPoint() noexcept : POINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : POINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : POINT(initPt) {}
    CPoint(SIZE initSize) noexcept : POINT{initSize.cx, initSize.cy} {}
    /// x from the low word, y from the high word, both signed: what a mouse message carries in lParam.
    CPoint(LPARAM dwPoint) noexcept
        : POINT{static_cast<short>(dwPoint & 0xFFFF), static_cast<short>((dwPoint >> 16) & 0xFFFF)} {}

    void Offset(int xOffset, int yOffset) noexcept { x += xOffset, y += yOffset; }
    void Offset(POINT point) noexcept { x += point.x, y += point.y; }
    void Offset(SIZE size) noexcept { x += size.cx, y += size.cy; }
    void SetPoint(int newX, int newY) noexcept { x = newX, y = newY; }

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { x += size.cx, y += size.cy; }
    void operator-=(SIZE size) noexcept { x -= size.cx, y -= size.cy; }
    void operator+=(POINT point) noexcept { x += point.x, y += point.y; }
    void operator-=(POINT point) noexcept { x -= point.x, y -= point.y; }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    /// The way from `point` to this one.
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle. Left and top edge belong to it, right and bottom don't. Unless said otherwise its functions
/// expect a normalized rectangle (left <= right, top <= bottom).
class KMFC_API CRect : public RECT {
public:
    CRect() noexcept : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : RECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : RECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(right - left, bottom - top); }
    CPoint& TopLeft() noexcept { return reinterpret_cast<CPoint&>(left); }
    const CPoint& TopLeft() const noexcept { return reinterpret_cast<const CPoint&>(left); }
    CPoint& BottomRight() noexcept { return reinterpret_cast<CPoint&>(right); }
    const CPoint& BottomRight() const noexcept { return reinterpret_cast<const CPoint&>(right); }
    /// The middle, rounded down.
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }
    /// Exchanges left and right.
    void SwapLeftRight() noexcept;
    static void WINAPI SwapLeftRight(LPRECT lpRect) noexcept;

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    /// Whether width or height is zero or negative.
    BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    /// Whether all four coordinates are zero.
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    /// Whether the point lies inside; the right and bottom edges are outside.
    BOOL PtInRect(POINT point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { left = x1, top = y1, right = x2, bottom = y2; }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *static_cast<RECT*>(this) = *lpSrcRect; }
    BOOL EqualRect(LPCRECT lpRect) const noexcept;

    /// Moves each edge away from the middle (towards it when negative).
    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept;
    void InflateRect(int l, int t, int r, int b) noexcept;
    /// Moves each edge towards the middle.
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept;
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) noexcept { left += x, right += x, top += y, bottom += y; }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    /// Swaps edges until width and height are not negative.
    void NormalizeRect() noexcept;

    void MoveToY(int y) noexcept { bottom = Height() + y, top = y; }
    void MoveToX(int x) noexcept { right = Width() + x, left = x; }
    void MoveToXY(int x, int y) noexcept { MoveToX(x), MoveToY(y); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// Becomes the common part; empty and FALSE when there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// Becomes the smallest rectangle around both; an empty one counts for nothing. FALSE when both are
    /// empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// Becomes the first without the second, which is cut off only where it covers the first entirely along
    /// one side. FALSE when nothing is left.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept;

    void operator=(const RECT& srcRect) noexcept { CopyRect(&srcRect); }
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }

    CRect operator+(POINT point) const noexcept;
    CRect operator-(POINT point) const noexcept;
    CRect operator+(SIZE size) const noexcept;
    CRect operator-(SIZE size) const noexcept;
    CRect operator+(LPCRECT lpRect) const noexcept;
    CRect operator-(LPCRECT lpRect) const noexcept;
    CRect operator&(const RECT& rect2) const noexcept;
    CRect operator|(const RECT& rect2) const noexcept;

    /// Every coordinate times `nMultiplier` over `nDivisor`, rounded to the nearest; -1 each when the divisor
    /// is 0.
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept;
};

inline CPoint CSize::operator+(POINT point) const noexcept { return CPoint(cx + point.x, cy + point.y); }
inline CPoint CSize::operator-(POINT point) const noexcept { return CPoint(cx - point.x, cy - point.y); }
inline CRect CSize::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CSize::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
