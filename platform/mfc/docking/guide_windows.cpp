#include "guide_windows.h"

#include <kmfc/docking_types.h>
#include <kmfc/docking_manager.h>

namespace kmfc::docking {

BEGIN_MESSAGE_MAP(GuideWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(ShadeWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

constexpr DWORD kAbove =
    WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT | WS_EX_LAYERED;
constexpr BYTE kShade = 110;  // of 255
constexpr BYTE kGuides = 235;

COLORREF shade_color() {
    const CSmartDockingInfo& info = CDockingManager::GetSmartDockingParams();
    const bool own = info.m_bUseThemeColorInShading && info.m_clrToneDest != static_cast<COLORREF>(-1);
    return own ? info.m_clrToneDest : ::GetSysColor(COLOR_HIGHLIGHT);
}

/// The part of a guide's little picture of a pane that a drop would take.
CRect taken_part(const CRect& picture, const Drop& drop) {
    CRect part(picture);
    if (drop.kind == DropKind::tab) return part;
    switch (drop.side) {
        case Side::left: part.right -= picture.Width() / 2; break;
        case Side::right: part.left += picture.Width() / 2; break;
        case Side::top: part.bottom -= picture.Height() / 2; break;
        case Side::bottom: part.top += picture.Height() / 2; break;
    }
    return part;
}

bool create(CWnd& window, LPCTSTR name, CWnd* owner, BYTE alpha) {
    if (window.m_hWnd != nullptr) return true;
    const LPCTSTR kind = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    if (!window.CreateEx(kAbove, kind, name, WS_POPUP, 0, 0, 1, 1, kmfc::safe_handle(owner), nullptr))
        return false;
    window.SetLayeredWindowAttributes(0, alpha, LWA_ALPHA);
    return true;
}

}  // namespace

void GuideWindow::show(const std::vector<Guide>& guides, const CPoint& point, CWnd* owner) {
    m_point = point;
    if (guides.empty() || !create(*this, L"Dock guides", owner, kGuides)) {
        m_guides.clear();
        if (m_hWnd != nullptr) ShowWindow(SW_HIDE);
        return;
    }
    const auto same = [](const Guide& a, const Guide& b) { return a.rect == b.rect && a.drop == b.drop; };
    if (!std::equal(guides.begin(), guides.end(), m_guides.begin(), m_guides.end(), same)) {
        m_guides = guides;
        m_bounds = guides.front().rect;
        for (const Guide& guide : guides) m_bounds.UnionRect(&m_bounds, &guide.rect);
        HRGN const region = ::CreateRectRgn(0, 0, 0, 0);
        for (const Guide& guide : guides) {
            const CRect rect = guide.rect - m_bounds.TopLeft();
            HRGN const one = ::CreateRectRgn(rect.left, rect.top, rect.right, rect.bottom);
            ::CombineRgn(region, region, one, RGN_OR);
            ::DeleteObject(one);
        }
        // The window owns the region from here on.
        SetWindowRgn(region, FALSE);
    }
    SetWindowPos(&wndTopMost, m_bounds.left, m_bounds.top, m_bounds.Width(), m_bounds.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate(FALSE);
    UpdateWindow();
}

void GuideWindow::OnPaint() {
    CPaintDC dc(this);
    draw(dc);
}

void GuideWindow::draw(CDC& dc) const {
    const COLORREF face = ::GetSysColor(COLOR_WINDOW), line = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF ink = ::GetSysColor(COLOR_WINDOWTEXT), lit = ::GetSysColor(COLOR_HIGHLIGHT);
    // The first ones lie on top, as they are the first to be hit.
    for (auto at = m_guides.rbegin(); at != m_guides.rend(); ++at) {
        const Guide& guide = *at;
        const CRect rect = guide.rect - m_bounds.TopLeft();
        const bool hot = guide.rect.PtInRect(m_point) != FALSE;
        dc.FillSolidRect(rect, hot ? lit : face);
        dc.Draw3dRect(rect, line, line);
        CRect picture(rect);
        picture.DeflateRect(rect.Width() / 5, rect.Height() / 5);
        const COLORREF on = hot ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : ink;
        dc.Draw3dRect(picture, on, on);
        dc.FillSolidRect(taken_part(picture, guide.drop), hot ? on : lit);
    }
}

void ShadeWindow::show(const CRect& rect, CWnd* owner) {
    if (rect.IsRectEmpty() || !create(*this, L"Dock target", owner, kShade)) {
        if (m_hWnd != nullptr) ShowWindow(SW_HIDE);
        return;
    }
    SetWindowPos(&wndTopMost, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    UpdateWindow();
}

void ShadeWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(client, shade_color());
}

}  // namespace kmfc::docking
