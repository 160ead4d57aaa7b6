// CScrollView: sizes, bars, positions.
#include <algorithm>
#include <cstdlib>

#include <kmfc/scroll_view.h>
#include <kmfc/splitter_wnd.h>
#include <kmfc/window_dc.h>

const SIZE CScrollView::sizeDefault = {0, 0};

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace {

/// A size of logical units in pixels of the screen.
CSize in_pixels(int mapMode, SIZE size) {
    if (mapMode == MM_TEXT) return size;
    CWindowDC dc(nullptr);
    dc.SetMapMode(mapMode);
    POINT corner = {size.cx, size.cy};
    dc.LPtoDP(&corner);
    return {std::abs(corner.x), std::abs(corner.y)};
}

/// `asked`, or a tenth of `whole` where nothing was asked, never 0 and never more than `whole`.
int step_of(int asked, int whole) {
    return std::clamp(asked != 0 ? asked : whole / 10, 1, std::max(1, whole));
}

/// The new place of a bar after a code of WM_HSCROLL or WM_VSCROLL.
int scrolled(int place, UINT code, int thumb, int page, int line) {
    switch (code) {
        case SB_TOP: return 0;
        case SB_BOTTOM: return INT_MAX;
        case SB_LINEUP: return place - line;
        case SB_LINEDOWN: return place + line;
        case SB_PAGEUP: return place - page;
        case SB_PAGEDOWN: return place + page;
        case SB_THUMBTRACK: return thumb;
        default: return place;
    }
}

}  // namespace

CScrollView::CScrollView() = default;
CScrollView::~CScrollView() = default;

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage, const SIZE& sizeLine) {
    ENSURE_ARG(sizeTotal.cx >= 0 && sizeTotal.cy >= 0 && nMapMode > 0 && nMapMode != MM_ISOTROPIC &&
               nMapMode != MM_ANISOTROPIC);
    const int former = m_nMapMode;
    m_nMapMode = nMapMode;
    m_totalLog = sizeTotal;
    m_totalDev = in_pixels(nMapMode, sizeTotal);
    const CSize page = in_pixels(nMapMode, sizePage), line = in_pixels(nMapMode, sizeLine);
    m_pageDev = {step_of(page.cx, m_totalDev.cx), step_of(page.cy, m_totalDev.cy)};
    m_lineDev = {step_of(line.cx, m_pageDev.cx), step_of(line.cy, m_pageDev.cy)};
    if (m_hWnd == nullptr) return;
    UpdateBars();
    if (former != m_nMapMode) Invalidate();
}

void CScrollView::SetScaleToFitSize(SIZE sizeTotal) {
    ENSURE_ARG(sizeTotal.cx >= 0 && sizeTotal.cy >= 0);
    m_nMapMode = kScaleToFit;
    m_totalLog = sizeTotal;
    if (m_hWnd == nullptr) return;
    ShowScrollBar(SB_BOTH, FALSE);
    scale_to_window();
    Invalidate();
}

void CScrollView::scale_to_window() {
    CRect room;
    GetClientRect(&room);
    m_totalDev = room.Size();
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const {
    nMapMode = m_nMapMode;
    sizeTotal = m_totalDev;
    sizePage = m_pageDev;
    sizeLine = m_lineDev;
}

CPoint CScrollView::GetDeviceScrollPosition() const {
    if (m_nMapMode == kScaleToFit) return {0, 0};
    return {bar_place(SB_HORZ), bar_place(SB_VERT)};
}

CPoint CScrollView::GetScrollPosition() const {
    CPoint point = GetDeviceScrollPosition();
    if (m_nMapMode == kScaleToFit || m_nMapMode == MM_TEXT) return point;
    CWindowDC dc(nullptr);
    dc.SetMapMode(m_nMapMode);
    dc.DPtoLP(&point);
    return point;
}

void CScrollView::ScrollToPosition(POINT pt) {
    if (m_nMapMode == kScaleToFit) return;
    if (m_nMapMode != MM_TEXT) {
        CWindowDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.LPtoDP(&pt);
    }
    ScrollToDevicePosition(pt);
}

std::pair<HWND, int> CScrollView::bar_window(int bar) const {
    const CScrollBar* shared = GetScrollBarCtrl(bar);
    return shared != nullptr ? std::pair(shared->m_hWnd, SB_CTL) : std::pair(m_hWnd, bar);
}

int CScrollView::bar_place(int bar) const {
    const auto [window, which] = bar_window(bar);
    return ::GetScrollPos(window, which);
}

void CScrollView::set_bar_place(int bar, int place) {
    const auto [window, which] = bar_window(bar);
    ::SetScrollPos(window, which, place, TRUE);
}

int CScrollView::bar_limit(int bar) const {
    const auto [window, which] = bar_window(bar);
    SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0};
    if (!::GetScrollInfo(window, which, &info)) return 0;
    return std::max(0, info.nMax - std::max(0, static_cast<int>(info.nPage) - 1));
}

CSize CScrollView::limit() const { return {bar_limit(SB_HORZ), bar_limit(SB_VERT)}; }

void CScrollView::ScrollToDevicePosition(POINT ptDev) {
    const CPoint former = GetDeviceScrollPosition();
    const CSize most = limit();
    const CPoint place(std::clamp<int>(ptDev.x, 0, most.cx), std::clamp<int>(ptDev.y, 0, most.cy));
    if (place == former) return;
    set_bar_place(SB_HORZ, place.x);
    set_bar_place(SB_VERT, place.y);
    ScrollWindow(former.x - place.x, former.y - place.y);
}

void CScrollView::CenterOnPoint(CPoint ptCenter) {
    CRect room;
    GetClientRect(&room);
    ScrollToDevicePosition({ptCenter.x - room.Width() / 2, ptCenter.y - room.Height() / 2});
}

CSize CScrollView::room_without_bars() const {
    CRect room;
    GetClientRect(&room);
    const DWORD style = GetStyle();
    if ((style & WS_VSCROLL) != 0) room.right += ::GetSystemMetrics(SM_CXVSCROLL);
    if ((style & WS_HSCROLL) != 0) room.bottom += ::GetSystemMetrics(SM_CYHSCROLL);
    return room.Size();
}

void CScrollView::UpdateBars() {
    // Showing a bar changes the window's size, which comes here again.
    if (m_isUpdating || m_nMapMode == kScaleToFit) return;
    m_isUpdating = true;
    const CPoint former = GetDeviceScrollPosition();
    const CSize room = room_without_bars();
    // Shared bars stand outside of the window.
    const CSize bars(GetScrollBarCtrl(SB_VERT) != nullptr ? 0 : ::GetSystemMetrics(SM_CXVSCROLL),
                     GetScrollBarCtrl(SB_HORZ) != nullptr ? 0 : ::GetSystemMetrics(SM_CYHSCROLL));
    // One bar may take the room that makes the other necessary.
    bool across = m_totalDev.cx > room.cx;
    const bool down = m_totalDev.cy > room.cy - (across ? bars.cy : 0);
    across = m_totalDev.cx > room.cx - (down ? bars.cx : 0);
    const CSize left(room.cx - (down ? bars.cx : 0), room.cy - (across ? bars.cy : 0));
    set_bar(SB_HORZ, across ? m_totalDev.cx : 0, left.cx, former.x);
    set_bar(SB_VERT, down ? m_totalDev.cy : 0, left.cy, former.y);
    const CPoint place = GetDeviceScrollPosition();
    if (place != former) ScrollWindow(former.x - place.x, former.y - place.y);
    m_isUpdating = false;
}

void CScrollView::set_bar(int bar, int whole, int page, int place) {
    const auto [window, which] = bar_window(bar);
    SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
    // The system hides a bar that has no way to go; one that is shared stays, disabled.
    if (which == SB_CTL) info.fMask |= SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, whole - 1);
    info.nPage = whole > 0 ? static_cast<UINT>(std::max(0, page)) : 0;
    info.nPos = whole > 0 ? place : 0;
    ::SetScrollInfo(window, which, &info, TRUE);
}

CPoint CScrollView::origin() const {
    if (m_nMapMode == kScaleToFit) return {0, 0};
    const CPoint place = GetDeviceScrollPosition();
    CPoint corner(-place.x, -place.y);
    if (!m_bCenter) return corner;
    CRect room;
    GetClientRect(&room);
    if (m_totalDev.cx < room.Width()) corner.x = (room.Width() - m_totalDev.cx) / 2;
    if (m_totalDev.cy < room.Height()) corner.y = (room.Height() - m_totalDev.cy) / 2;
    return corner;
}

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (m_nMapMode == kScaleToFit) {
        pDC->SetMapMode(MM_ANISOTROPIC);
        pDC->SetWindowExt(std::max<int>(1, m_totalLog.cx), std::max<int>(1, m_totalLog.cy));
        pDC->SetViewportExt(std::max<int>(1, m_totalDev.cx), std::max<int>(1, m_totalDev.cy));
    } else {
        pDC->SetMapMode(m_nMapMode);
    }
    // A page begins at its corner, wherever the window was scrolled to.
    pDC->SetViewportOrg(pDC->IsPrinting() ? CPoint(0, 0) : origin());
    CView::OnPrepareDC(pDC, pInfo);
}

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll) {
    if (m_nMapMode == kScaleToFit) return FALSE;
    const CPoint place = GetDeviceScrollPosition();
    const int thumb = static_cast<int>(nPos);
    const int x = scrolled(place.x, LOBYTE(nScrollCode), thumb, m_pageDev.cx, m_lineDev.cx);
    const int y = scrolled(place.y, HIBYTE(nScrollCode), thumb, m_pageDev.cy, m_lineDev.cy);
    const CSize most = limit();
    const CSize distance(std::clamp<int>(x, 0, most.cx) - place.x, std::clamp<int>(y, 0, most.cy) - place.y);
    const BOOL moved = OnScrollBy(distance, bDoScroll);
    if (moved && bDoScroll) UpdateWindow();
    return moved;
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll) {
    if (m_nMapMode == kScaleToFit) return FALSE;
    const CPoint place = GetDeviceScrollPosition();
    const CSize most = limit();
    const CPoint wanted(std::clamp<int>(place.x + sizeScroll.cx, 0, most.cx),
                        std::clamp<int>(place.y + sizeScroll.cy, 0, most.cy));
    if (wanted == place) return FALSE;
    if (bDoScroll) ScrollToDevicePosition(wanted);
    return TRUE;
}

void CScrollView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if (m_nMapMode == kScaleToFit) {
        scale_to_window();
        Invalidate();
    } else {
        UpdateBars();
    }
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    const auto [window, which] = bar_window(SB_HORZ);
    if (pScrollBar != nullptr && pScrollBar->m_hWnd != window)
        return CView::OnHScroll(nSBCode, nPos, pScrollBar);
    SCROLLINFO info = {sizeof(info), SIF_TRACKPOS, 0, 0, 0, 0, 0};
    ::GetScrollInfo(window, which, &info);  // the message has 16 bits of it
    OnScroll(MAKEWORD(nSBCode, 0xFF), static_cast<UINT>(info.nTrackPos));
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    const auto [window, which] = bar_window(SB_VERT);
    if (pScrollBar != nullptr && pScrollBar->m_hWnd != window)
        return CView::OnVScroll(nSBCode, nPos, pScrollBar);
    SCROLLINFO info = {sizeof(info), SIF_TRACKPOS, 0, 0, 0, 0, 0};
    ::GetScrollInfo(window, which, &info);
    OnScroll(MAKEWORD(0xFF, nSBCode), static_cast<UINT>(info.nTrackPos));
}

BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    if ((nFlags & (MK_SHIFT | MK_CONTROL)) != 0 || m_nMapMode == kScaleToFit) return FALSE;
    const CSize most = limit();
    if (most == CSize(0, 0)) return FALSE;
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const bool down = most.cy > 0;
    const int line = down ? m_lineDev.cy : m_lineDev.cx;
    const int page = down ? m_pageDev.cy : m_pageDev.cx;
    const int step = lines == WHEEL_PAGESCROLL ? page : std::min(page, line * static_cast<int>(lines));
    const int distance = -MulDiv(step, zDelta, WHEEL_DELTA);
    const CSize way = down ? CSize(0, distance) : CSize(distance, 0);
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    const BOOL moved = splitter != nullptr ? splitter->DoScrollBy(this, way) : OnScrollBy(way);
    if (moved) UpdateWindow();
    return moved;
}

void CScrollView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    if (nAdjustType == adjustOutside) {
        ::AdjustWindowRectEx(lpClientRect, 0, FALSE, GetExStyle());
        const DWORD style = GetStyle();
        if ((style & WS_VSCROLL) != 0) lpClientRect->right += ::GetSystemMetrics(SM_CXVSCROLL);
        if ((style & WS_HSCROLL) != 0) lpClientRect->bottom += ::GetSystemMetrics(SM_CYHSCROLL);
        return;
    }
    CView::CalcWindowRect(lpClientRect, nAdjustType);
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly) {
    ENSURE(m_nMapMode != kScaleToFit);
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr) return;
    CRect outer, room;
    frame->GetWindowRect(&outer);
    GetClientRect(&room);
    const CSize now = room_without_bars();
    CSize more = m_totalDev - now;
    if (bShrinkOnly) more = {std::min<int>(more.cx, 0), std::min<int>(more.cy, 0)};
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + more.cx, outer.Height() + more.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::FillOutsideRect(CDC* pDC, CBrush* pBrush) {
    CRect room;
    GetClientRect(&room);
    const CRect contents(origin(), m_totalDev);
    // Four strips, the upper and the lower over the whole width.
    const CRect strips[] = {
        {room.left, room.top, room.right, contents.top},
        {room.left, contents.bottom, room.right, room.bottom},
        {room.left, std::max(room.top, contents.top), contents.left, std::min(room.bottom, contents.bottom)},
        {contents.right, std::max(room.top, contents.top), room.right,
         std::min(room.bottom, contents.bottom)},
    };
    for (const CRect& strip : strips)
        if (strip.left < strip.right && strip.top < strip.bottom) pDC->FillRect(&strip, pBrush);
}
