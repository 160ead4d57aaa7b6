#include "drawing_view.h"

#include "hit_test.h"
#include "object_tip.h"

#include <afxext.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kPickDistance = 5;    // pixels
constexpr int kTipOffset = 16;      // pixels right of and below the pointer
constexpr double kZoomStep = 1.25;  // for one notch of the wheel
constexpr int kPanStep = 48;        // pixels for an arrow key

}  // namespace

IMPLEMENT_DYNAMIC(CDrawingView, CWnd)

BEGIN_MESSAGE_MAP(CDrawingView, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_DESTROY()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

BOOL CDrawingView::CreateView(CWnd* parent, UINT id) {
    const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_CROSS));
    return Create(name, L"drawing", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, id);
}

void CDrawingView::SetScene(Scene scene, bool keepPlace) {
    SceneBounds bounds(scene);
    SetScene(std::move(scene), std::move(bounds), keepPlace);
}

void CDrawingView::SetScene(Scene scene, SceneBounds bounds, bool keepPlace) {
    HideTip();
    if (m_windowFrom) stopWindow();
    m_scene = std::move(scene);
    m_bounds = std::move(bounds);
    std::erase_if(m_selection, [](const OdDbObjectId& each) { return !each.isValid(); });
    if (!keepPlace) {
        m_selection.clear();
        ZoomExtents();
    }
    Invalidate();
}

void CDrawingView::SetSelection(std::set<OdDbObjectId> selection) {
    m_selection = std::move(selection);
    Invalidate();
    GetParent()->PostMessage(WM_DRAFTER_SELECTION);
}

void CDrawingView::ZoomExtents() {
    CRect client;
    GetClientRect(&client);
    m_fitPending = client.IsRectEmpty();
    ScenePlace shown = place();
    shown.Fit(shownExtents());
    m_center = shown.center;
    m_scale = shown.scale;
    m_showsExtents = true;
    Invalidate();
}

void CDrawingView::GoTo(const ViewPlace& place) {
    if (place.showsExtents) return ZoomExtents();
    m_center = place.center;
    m_scale = place.scale;
    m_showsExtents = m_fitPending = false;
    Invalidate();
}

void CDrawingView::Zoom(double factor) {
    CRect client;
    GetClientRect(&client);
    zoomAt(client.CenterPoint(), factor);
}

ScenePlace CDrawingView::place() const {
    CRect client;
    GetClientRect(&client);
    return {m_center, m_scale, client.Size()};
}

CPoint CDrawingView::ToPixel(const OdGePoint2d& point) const { return place().ToPixel(point); }
OdGePoint2d CDrawingView::FromPixel(CPoint pixel) const { return place().FromPixel(pixel); }

void CDrawingView::OnPaint() {
    CPaintDC dc(this);
    CRect outdated;
    dc.GetClipBox(&outdated);
    if (outdated.IsRectEmpty()) return;
    CMemDC memory(dc, outdated);
    paintSheet(memory.GetDC(), outdated);
    PaintScene(memory.GetDC(), m_scene, m_bounds, place(), m_selection, sceneColors());
    paintBand(memory.GetDC());
    paintWindow(memory.GetDC());
    invertCrosshair(memory.GetDC());
}

void CDrawingView::SetLook(const SceneColors& colors, int crosshair) {
    m_colors = colors;
    m_crosshair = crosshair;
    Invalidate();
}

void CDrawingView::invertCrosshair(CDC& dc) {
    if (!m_crosshairAt) return;
    CRect client;
    GetClientRect(&client);
    const int arm = std::max(client.Width(), client.Height()) * m_crosshair / 100;
    const CPoint at = *m_crosshairAt;
    const int former = dc.SetROP2(R2_NOT);
    dc.MoveTo(at.x - arm, at.y);
    dc.LineTo(at.x + arm + 1, at.y);
    dc.MoveTo(at.x, at.y - arm);
    dc.LineTo(at.x, at.y + arm + 1);
    dc.SetROP2(former);
}

void CDrawingView::moveCrosshair(std::optional<CPoint> pixel) {
    // What waits to be painted comes first, or the old lines would be inverted where they are gone already.
    UpdateWindow();
    CClientDC dc(this);
    invertCrosshair(dc);
    m_crosshairAt = pixel;
    invertCrosshair(dc);
}

void CDrawingView::OnMouseLeave() {
    HideTip();
    moveCrosshair({});
}

BOOL CDrawingView::OnEraseBkgnd(CDC*) { return TRUE; }

void CDrawingView::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_fitPending) ZoomExtents();
    Invalidate();
}

void CDrawingView::OnLButtonDown(UINT flags, CPoint point) {
    HideTip();
    SetFocus();
    if (IsPickingPlaces()) {
        m_pointer = FromPixel(point);
        pickPlace(m_pointer);
        return;
    }
    const OdDbObjectId entity = entityAt(point);
    if (entity.isNull())
        startWindow(point);
    else
        select({entity}, (flags & (MK_CONTROL | MK_SHIFT)) != 0);
}

void CDrawingView::OnMButtonDown(UINT, CPoint point) {
    m_panning = true;
    m_lastPan = point;
    SetCapture();
}

void CDrawingView::OnMButtonUp(UINT, CPoint) {
    m_panning = false;
    ::ReleaseCapture();
}

void CDrawingView::OnMouseMove(UINT, CPoint point) {
    if (m_windowFrom)
        dragWindow(point);
    else
        updateTip(point);
    if (m_panning) {
        panBy(CSize(point.x - m_lastPan.x, point.y - m_lastPan.y));
        m_lastPan = point;
    }
    TRACKMOUSEEVENT track = {sizeof(TRACKMOUSEEVENT), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    moveCrosshair(point);
    m_pointer = FromPixel(point);
    if (IsPickingPlaces()) Invalidate();
    GetParent()->PostMessage(WM_DRAFTER_POINTER);
}

void CDrawingView::updateTip(CPoint pixel) {
    // Where a place is picked, a tip would cover the drawing.
    const bool isQuiet = m_panning || IsPickingPlaces() || !AreTipsOn();
    const OdDbObjectId entity = isQuiet ? OdDbObjectId() : entityAt(pixel);
    if (entity == m_tipEntity) return;
    HideTip();
    if (entity.isNull()) return;
    if (m_tip.m_hWnd == nullptr) {
        if (!m_tip.Create(this)) return;
        // The mouse goes through the tip, which is layered: what is clicked is the drawing behind it.
        m_tip.ModifyStyleEx(0, WS_EX_TRANSPARENT);
    }
    m_tipEntity = entity;
    CPoint place = pixel + CSize(kTipOffset, kTipOffset);
    ClientToScreen(&place);
    m_tip.Activate(place, DescribeObject(m_scene, entity));
}

void CDrawingView::HideTip() {
    m_tipEntity = OdDbObjectId();
    if (m_tip.m_hWnd != nullptr) m_tip.Deactivate();
}

void CDrawingView::OnDestroy() {
    m_tip.DestroyWindow();
    CWnd::OnDestroy();
}

BOOL CDrawingView::OnMouseWheel(UINT, short delta, CPoint point) {
    HideTip();
    ScreenToClient(&point);
    zoomAt(point, std::pow(kZoomStep, delta / static_cast<double>(WHEEL_DELTA)));
    return TRUE;
}

void CDrawingView::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == VK_ESCAPE && m_windowFrom) return stopWindow();
    if (IsPicking() && pickByKey(key)) return;
    switch (key) {
        case VK_ESCAPE:
            if (!m_escape || !m_escape()) SetSelection({});
            break;
        case VK_LEFT: panBy(CSize(kPanStep, 0)); break;
        case VK_RIGHT: panBy(CSize(-kPanStep, 0)); break;
        case VK_UP: panBy(CSize(0, kPanStep)); break;
        case VK_DOWN: panBy(CSize(0, -kPanStep)); break;
        case VK_ADD:
        case VK_OEM_PLUS: Zoom(kZoomStep); break;
        case VK_SUBTRACT:
        case VK_OEM_MINUS: Zoom(1 / kZoomStep); break;
        default: CWnd::OnKeyDown(key, repeat, flags);
    }
}

void CDrawingView::zoomAt(CPoint pixel, double factor) {
    m_showsExtents = false;
    const OdGePoint2d fixed = FromPixel(pixel);
    m_scale = std::clamp(m_scale * factor, 1e-9, 1e9);
    const OdGePoint2d moved = FromPixel(pixel);
    m_center.x += fixed.x - moved.x;
    m_center.y += fixed.y - moved.y;
    Invalidate();
}

void CDrawingView::panBy(CSize pixels) {
    // What is drawn moves along, so that only what comes into sight is painted. The crosshair stays where it
    // is.
    const std::optional<CPoint> crosshair = m_crosshairAt;
    moveCrosshair({});
    m_showsExtents = false;
    m_center.x -= pixels.cx / m_scale;
    m_center.y += pixels.cy / m_scale;
    // A band or a window goes from a place of the drawing to the pointer.
    if (IsPickingPlaces() || m_windowFrom)
        Invalidate();
    else
        ScrollWindow(pixels.cx, pixels.cy);
    moveCrosshair(crosshair);
}

OdDbObjectId CDrawingView::entityAt(CPoint pixel) const {
    // While another scene is being built this one may show what is gone already.
    const OdDbObjectId found = EntityAt(m_scene, m_bounds, FromPixel(pixel), kPickDistance / m_scale);
    return found.isValid() ? found : OdDbObjectId();
}
