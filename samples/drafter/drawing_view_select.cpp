// How the user selects in the drawing view: an object by a click, and more of them by a window.
#include "drawing_view.h"

#include <cstdlib>

#include "hit_test.h"

namespace {

constexpr COLORREF kInsideColor = RGB(60, 140, 255), kTouchingColor = RGB(70, 200, 90);
constexpr int kShadeStep = 6;  // pixels between the lines that shade the window

bool isShiftDown() { return ::GetKeyState(VK_SHIFT) < 0; }

/// Whether a window from one place to the other takes what it touches.
template <class Place>
bool takesTouched(const Place& from, const Place& to) {
    return to.x < from.x;
}

}  // namespace

void CDrawingView::select(const std::set<OdDbObjectId>& objects, bool toSelection) {
    // While objects are picked, each click adds some or takes them away.
    SetSelection(SelectionAfter(m_selection, objects, toSelection || m_picking == Picking::kObjects));
}

void CDrawingView::startWindow(CPoint pixel) {
    m_windowFrom = m_windowTo = pixel;
    SetCapture();
}

void CDrawingView::dragWindow(CPoint pixel) {
    m_windowTo = pixel;
    Invalidate();
}

void CDrawingView::stopWindow() {
    m_windowFrom.reset();
    if (::GetCapture() == m_hWnd) ::ReleaseCapture();
    Invalidate();
}

void CDrawingView::OnCaptureChanged(CWnd*) {
    m_panning = false;
    if (m_windowFrom) stopWindow();
}

void CDrawingView::OnLButtonUp(UINT flags, CPoint point) {
    if (!m_windowFrom) return;
    const CPoint from = *m_windowFrom;
    stopWindow();
    const bool toSelection = (flags & (MK_CONTROL | MK_SHIFT)) != 0;
    // A click beside everything draws no window.
    if (std::abs(point.x - from.x) < ::GetSystemMetrics(SM_CXDRAG) &&
        std::abs(point.y - from.y) < ::GetSystemMetrics(SM_CYDRAG))
        select({}, toSelection);
    else
        selectByWindow(FromPixel(from), FromPixel(point), toSelection);
}

void CDrawingView::selectByWindow(const OdGePoint2d& from, const OdGePoint2d& to, bool toSelection) {
    SceneExtents window;
    window.add(from);
    window.add(to);
    const bool touched = takesTouched(from, to);
    std::set<OdDbObjectId> found =
        touched ? EntitiesTouching(m_scene, window) : EntitiesInside(m_scene, window);
    std::erase_if(found, [](const OdDbObjectId& each) { return !each.isValid(); });
    select(found, toSelection);
}

void CDrawingView::PickCorners(PickEnded ended) {
    PickPlaces(2, [this, ended = std::move(ended)](bool isPicked) {
        m_pickingCorners = false;
        ended(isPicked);
    });
    m_pickingCorners = true;
}

void CDrawingView::SelectByCorners(PickEnded ended) {
    PickCorners([this, ended = std::move(ended)](bool isPicked) {
        if (isPicked) selectByWindow(m_places[0], m_places[1], isShiftDown());
        ended(isPicked);
    });
}

void CDrawingView::paintWindow(CDC& dc) const {
    if (!m_windowFrom && !(m_pickingCorners && m_places.size() == 1)) return;
    const CPoint from = m_windowFrom ? *m_windowFrom : ToPixel(m_places.front());
    const CPoint to = m_windowFrom ? m_windowTo : ToPixel(m_pointer);
    CRect window(from, to);
    window.NormalizeRect();
    const bool touched = takesTouched(from, to);
    const COLORREF color = touched ? kTouchingColor : kInsideColor;
    const int saved = dc.SaveDC();
    dc.SetBkMode(TRANSPARENT);
    CPen edge(touched ? PS_DASH : PS_SOLID, 1, color);
    CPen shade(PS_DOT, 1, color);
    // The two looks differ without colours too: dashes and slanting lines for what is touched.
    dc.SelectStockObject(NULL_BRUSH);
    dc.SelectObject(&edge);
    dc.Rectangle(window);
    window.DeflateRect(1, 1);
    dc.IntersectClipRect(window);
    dc.SelectObject(&shade);
    for (int at = kShadeStep; at < window.Height() + (touched ? window.Width() : 0); at += kShadeStep) {
        dc.MoveTo(window.left, window.top + at);
        dc.LineTo(window.right, window.top + at - (touched ? window.Width() : 0));
    }
    dc.RestoreDC(saved);
}
