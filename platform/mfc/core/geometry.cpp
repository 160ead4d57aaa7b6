#include "kmfc/geometry.h"

#include <algorithm>
#include <utility>

namespace {

/// a * b / c to the nearest, halves away from zero; -1 when c is zero or the result doesn't fit.
int scaled(int a, int b, int c) {
    if (c == 0) return -1;
    const long long product = static_cast<long long>(a) * b;
    const long long divisor = c;
    const long long magnitude = (std::abs(product) + std::abs(divisor) / 2) / std::abs(divisor);
    const long long result = (product < 0) != (divisor < 0) ? -magnitude : magnitude;
    return result == static_cast<int>(result) ? static_cast<int>(result) : -1;
}

BOOL is_empty(const RECT& r) { return r.left >= r.right || r.top >= r.bottom; }

}  // namespace

void CRect::SwapLeftRight() noexcept { SwapLeftRight(this); }

void WINAPI CRect::SwapLeftRight(LPRECT lpRect) noexcept { std::swap(lpRect->left, lpRect->right); }

BOOL CRect::EqualRect(LPCRECT lpRect) const noexcept {
    return left == lpRect->left && top == lpRect->top && right == lpRect->right && bottom == lpRect->bottom;
}

void CRect::InflateRect(int l, int t, int r, int b) noexcept { left -= l, top -= t, right += r, bottom += b; }

void CRect::InflateRect(LPCRECT lpRect) noexcept {
    InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CRect::DeflateRect(LPCRECT lpRect) noexcept {
    DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CRect::NormalizeRect() noexcept {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
}

BOOL CRect::IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    const CRect common(std::max(lpRect1->left, lpRect2->left), std::max(lpRect1->top, lpRect2->top),
                       std::min(lpRect1->right, lpRect2->right), std::min(lpRect1->bottom, lpRect2->bottom));
    if (is_empty(*lpRect1) || is_empty(*lpRect2) || common.IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    CopyRect(&common);
    return TRUE;
}

BOOL CRect::UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    const CRect a(lpRect1), b(lpRect2);
    if (a.IsRectEmpty() && b.IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    if (b.IsRectEmpty()) {
        CopyRect(&a);
    } else if (a.IsRectEmpty()) {
        CopyRect(&b);
    } else {
        SetRect(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                std::max(a.bottom, b.bottom));
    }
    return TRUE;
}

BOOL CRect::SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
    const CRect first(lpRectSrc1), second(lpRectSrc2);
    CRect common;
    CopyRect(&first);
    if (first.IsRectEmpty()) {
        SetRectEmpty();
        return FALSE;
    }
    if (!common.IntersectRect(&first, &second)) return TRUE;
    if (common == first) {
        SetRectEmpty();
        return FALSE;
    }
    if (common.top == first.top && common.bottom == first.bottom) {
        if (common.left == first.left) {
            left = common.right;
        } else if (common.right == first.right) {
            right = common.left;
        }
    } else if (common.left == first.left && common.right == first.right) {
        if (common.top == first.top) {
            top = common.bottom;
        } else if (common.bottom == first.bottom) {
            bottom = common.top;
        }
    }
    return TRUE;
}

CRect CRect::operator+(POINT point) const noexcept {
    CRect moved(*static_cast<const RECT*>(this));
    moved += point;
    return moved;
}

CRect CRect::operator-(POINT point) const noexcept { return *this + CPoint(-point.x, -point.y); }
CRect CRect::operator+(SIZE size) const noexcept { return *this + CPoint(size); }
CRect CRect::operator-(SIZE size) const noexcept { return *this - CPoint(size); }

CRect CRect::operator+(LPCRECT lpRect) const noexcept {
    CRect grown(*static_cast<const RECT*>(this));
    grown.InflateRect(lpRect);
    return grown;
}

CRect CRect::operator-(LPCRECT lpRect) const noexcept {
    CRect shrunk(*static_cast<const RECT*>(this));
    shrunk.DeflateRect(lpRect);
    return shrunk;
}

CRect CRect::operator&(const RECT& rect2) const noexcept {
    CRect common;
    common.IntersectRect(this, &rect2);
    return common;
}

CRect CRect::operator|(const RECT& rect2) const noexcept {
    CRect both;
    both.UnionRect(this, &rect2);
    return both;
}

CRect CRect::MulDiv(int nMultiplier, int nDivisor) const noexcept {
    return CRect(scaled(left, nMultiplier, nDivisor), scaled(top, nMultiplier, nDivisor),
                 scaled(right, nMultiplier, nDivisor), scaled(bottom, nMultiplier, nDivisor));
}
