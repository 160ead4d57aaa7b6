// The parts of CDC that draw: filled figures, bitmaps and text.
#include <kmfc/dc.h>
#include <kmfc/wnd.h>

#include <algorithm>

namespace {

constexpr int kHimetricPerInch = 2540;

HBRUSH brush_of(const CBrush* brush) { return brush ? static_cast<HBRUSH>(*brush) : nullptr; }
HDC source_of(const CDC* dc) { return dc ? dc->m_hDC : nullptr; }

/// The region between `rect` and itself shrunk by `size`; everything inside when the border is as thick as
/// that.
void make_border(CRgn& border, LPCRECT rect, SIZE size) {
    border.CreateRectRgnIndirect(rect);
    CRect inner(rect);
    inner.DeflateRect(size);
    if (inner.IsRectEmpty()) return;
    CRgn inside;
    inside.CreateRectRgnIndirect(inner);
    border.CombineRgn(&border, &inside, RGN_DIFF);
}

}  // namespace

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, brush_of(pBrush)); }
void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, brush_of(pBrush)); }

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    const COLORREF previous = ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    if (previous != CLR_INVALID) ::SetBkColor(m_hDC, previous);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, *pRgn, *pBrush); }
BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, *pRgn, *pBrush, nWidth, nHeight);
}
BOOL CDC::InvertRgn(CRgn* pRgn) { return ::InvertRgn(m_hDC, *pRgn); }
BOOL CDC::PaintRgn(CRgn* pRgn) { return ::PaintRgn(m_hDC, *pRgn); }

CBrush* PASCAL CDC::GetHalftoneBrush() {
    static HBRUSH const brush = [] {
        const WORD pattern[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        CBitmap checks;
        checks.CreateBitmap(8, 8, 1, 1, pattern);
        return ::CreatePatternBrush(checks);
    }();
    return CBrush::FromHandle(brush);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
    CBrush* const brush = pBrush ? pBrush : GetHalftoneBrush();
    CBrush* const brush_last = pBrushLast ? pBrushLast : brush;
    CRgn fresh, last;
    make_border(fresh, lpRect, size);
    if (lpRectLast) make_border(last, lpRectLast, sizeLast);
    const auto invert = [&](CRgn& region, CBrush* with) {
        CRect box;
        SelectClipRgn(&region);
        GetClipBox(&box);
        CBrush* previous = SelectObject(with);
        PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
        SelectObject(previous);
        SelectClipRgn(nullptr);
    };
    if (lpRectLast && brush->m_hObject == brush_last->m_hObject) {
        // One brush: what both borders cover stays as it is, which keeps the drag from flickering.
        fresh.CombineRgn(&fresh, &last, RGN_XOR);
    } else if (lpRectLast) {
        invert(last, brush_last);
    }
    invert(fresh, brush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return ::DrawStateW(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y, size.cx,
                        size.cy, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, static_cast<HBITMAP>(*pBitmap), nFlags, brush_of(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return ::DrawStateW(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y, size.cx,
                        size.cy, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, hIcon, nFlags, brush_of(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush) {
    return ::DrawStateW(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                        static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy,
                        nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, brush_of(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush) {
    return ::DrawStateW(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy,
                        nFlags | DST_COMPLEX);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, source_of(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, source_of(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop) {
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, source_of(pSrcDC), xSrc, ySrc, maskBitmap, xMask, yMask,
                     dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                 CBitmap& maskBitmap, int xMask, int yMask) {
    return ::PlgBlt(m_hDC, lpPoint, source_of(pSrcDC), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask, yMask);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                         int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, source_of(pSrcDC), xSrc, ySrc,
                            nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, source_of(pSrcDC), xSrc, ySrc,
                        nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate) {
    HRGN update = pRgnUpdate ? static_cast<HRGN>(*pRgnUpdate) : nullptr;
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, update, lpRectUpdate);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOutW(m_hDC, x, y, lpszString, nCount < 0 ? CString::StringLength(lpszString) : nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    const int count = nCount < 0 ? CString::StringLength(lpszString) : nCount;
    return CSize(static_cast<DWORD>(
        ::TabbedTextOutW(m_hDC, x, y, lpszString, count, nTabPositions, lpnTabStopPositions, nTabOrigin)));
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    if (!(nFormat & DT_MODIFYSTRING)) return DrawText(str, str.GetLength(), lpRect, nFormat);
    // The system may write an ellipsis into the text: give it a copy with room.
    CString copy(str);
    constexpr int kEllipsisRoom = 4;
    LPTSTR text = copy.GetBuffer(str.GetLength() + kEllipsisRoom);
    return DrawText(text, str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    return ::DrawTextExW(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    CSize size;
    ::GetTextExtentPoint32W(m_hAttribDC, lpszString, nCount < 0 ? CString::StringLength(lpszString) : nCount,
                            &size);
    return size;
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, lpszString, nCount < 0 ? CString::StringLength(lpszString) : nCount,
                            &size);
    return size;
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    const int count = nCount < 0 ? CString::StringLength(lpszString) : nCount;
    return CSize(static_cast<DWORD>(
        ::GetTabbedTextExtentW(m_hAttribDC, lpszString, count, nTabPositions, lpnTabStopPositions)));
}

int CDC::GetTextFace(CString& rString) const {
    const int size = ::GetTextFaceW(m_hAttribDC, 0, nullptr);
    const int result = ::GetTextFaceW(m_hAttribDC, size, rString.GetBuffer(size));
    rString.ReleaseBuffer();
    return result;
}

void CDC::DPtoLP(LPSIZE lpSize) const {
    POINT corners[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    DPtoLP(corners, 2);
    *lpSize = {std::abs(corners[1].x - corners[0].x), std::abs(corners[1].y - corners[0].y)};
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    POINT corners[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    LPtoDP(corners, 2);
    *lpSize = {std::abs(corners[1].x - corners[0].x), std::abs(corners[1].y - corners[0].y)};
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, kHimetricPerInch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = ::MulDiv(lpSize->cy, kHimetricPerInch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, GetDeviceCaps(LOGPIXELSX), kHimetricPerInch);
    lpSize->cy = ::MulDiv(lpSize->cy, GetDeviceCaps(LOGPIXELSY), kHimetricPerInch);
}
