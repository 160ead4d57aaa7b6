// How the user picks in the drawing view: places with a rubber band, or objects, by mouse or by keys.
#include "drawing_view.h"

namespace {

constexpr int kPointerStep = 10;  // pixels for an arrow key
constexpr COLORREF kBandColor = RGB(255, 200, 60);

}  // namespace

void CDrawingView::PickPlaces(std::size_t count, PickEnded ended) {
    m_picking = Picking::kPlaces;
    m_wantedPlaces = count;
    m_places.clear();
    m_pickEnded = std::move(ended);
    Invalidate();
}

void CDrawingView::PickObjects(PickEnded ended) {
    m_picking = Picking::kObjects;
    m_selectionBefore = m_selection;
    m_pickEnded = std::move(ended);
}

void CDrawingView::EndPicking(bool isPicked) {
    if (!IsPicking()) return;
    if (!isPicked && m_picking == Picking::kObjects) SetSelection(std::move(m_selectionBefore));
    m_picking = Picking::kNothing;
    Invalidate();
    const PickEnded ended = std::exchange(m_pickEnded, nullptr);
    ended(isPicked);
}

void CDrawingView::pickPlace(const OdGePoint2d& place) {
    m_places.push_back(place);
    Invalidate();
    GetParent()->PostMessage(WM_DRAFTER_POINTER);
    if (m_places.size() == m_wantedPlaces) EndPicking(true);
}

/// Serves the keys of picking; false for one that has its usual meaning.
bool CDrawingView::pickByKey(UINT key) {
    if (key == VK_ESCAPE) {
        EndPicking(false);
        return true;
    }
    if (m_picking == Picking::kObjects) {
        if (key == VK_RETURN) EndPicking(true);
        return key == VK_RETURN;
    }
    switch (key) {
        case VK_RETURN: pickPlace(m_pointer); return true;
        case VK_LEFT: return stepPointer(CSize(-kPointerStep, 0));
        case VK_RIGHT: return stepPointer(CSize(kPointerStep, 0));
        case VK_UP: return stepPointer(CSize(0, -kPointerStep));
        case VK_DOWN: return stepPointer(CSize(0, kPointerStep));
        default: return false;
    }
}

bool CDrawingView::stepPointer(CSize pixels) {
    CRect client;
    GetClientRect(&client);
    CPoint at = ToPixel(m_pointer);
    if (!client.PtInRect(at)) at = client.CenterPoint();
    at += pixels;
    m_pointer = FromPixel(at);
    ClientToScreen(&at);
    ::SetCursorPos(at.x, at.y);
    Invalidate();
    GetParent()->PostMessage(WM_DRAFTER_POINTER);
    return true;
}

void CDrawingView::paintBand(CDC& dc) const {
    if (m_picking != Picking::kPlaces || m_places.empty() || m_pickingCorners) return;
    CPen pen(PS_DOT, 1, kBandColor);
    CPen* former = dc.SelectObject(&pen);
    const int mode = dc.SetBkMode(TRANSPARENT);
    // Of an angle both legs start at the first place.
    const CPoint from = ToPixel(m_places.front());
    for (std::size_t i = 1; i < m_places.size(); ++i) {
        dc.MoveTo(from);
        dc.LineTo(ToPixel(m_places[i]));
    }
    dc.MoveTo(from);
    dc.LineTo(ToPixel(m_pointer));
    dc.SetBkMode(mode);
    dc.SelectObject(former);
}
