#include <kmfc/auto_hide_bar.h>

#include <algorithm>

#include <kmfc/base_tabbed_pane.h>
#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>
#include <kmfc/visual_manager.h>

namespace {

constexpr UINT_PTR kRestTimer = 1, kWatchTimer = 2, kSlideTimer = 3;
constexpr UINT kWatchEvery = 200, kSlideEvery = 20;  // milliseconds
constexpr int kMostOfTheRoom = 80;                   // hundredths that a pane may lie over

/// The edge of a pane that is out.
class InnerEdge : public CPaneDivider {
public:
    explicit InnerEdge(CMFCAutoHideBar& bar) : m_bar(bar) {}

protected:
    int move_edge(int delta) override { return m_bar.move_inner_edge(delta); }

private:
    CMFCAutoHideBar& m_bar;
};

}  // namespace

IMPLEMENT_DYNCREATE(CMFCAutoHideBar, CPane)

BEGIN_MESSAGE_MAP(CMFCAutoHideBar, CPane)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_TIMER()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

int CMFCAutoHideBar::m_nShowAHWndDelay = 400;

CMFCAutoHideBar::CMFCAutoHideBar() = default;
CMFCAutoHideBar::~CMFCAutoHideBar() = default;

CDockablePane* CMFCAutoHideBar::sliding_pane(CDockablePane* pane) {
    CBaseTabbedPane* const tabbed = pane->GetParentTabbedPane();
    return tabbed != nullptr ? tabbed : pane;
}

std::vector<CMFCAutoHideBar*> CMFCAutoHideBar::of_frame(CWnd* frame) {
    std::vector<CMFCAutoHideBar*> bars;
    for (HWND child = ::GetWindow(frame->GetSafeHwnd(), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
        if (auto* const bar = DYNAMIC_DOWNCAST(CMFCAutoHideBar, CWnd::FromHandlePermanent(child)))
            bars.push_back(bar);
    return bars;
}

CMFCAutoHideBar* CMFCAutoHideBar::at_side(CDockingManager& manager, DWORD alignment) {
    CFrameWnd* const frame = manager.GetDockSiteFrameWnd();
    for (CMFCAutoHideBar* const bar : of_frame(frame))
        if (bar->GetCurrentAlignment() == (alignment & CBRS_ALIGN_ANY)) return bar;
    auto* const bar = new CMFCAutoHideBar;
    if (!bar->CreateEx(0, afxGlobalData.RegisterWindowClass(L"kmfc:AutoHideBar"), nullptr,
                       WS_CHILD | WS_CLIPSIBLINGS | (alignment & CBRS_ALIGN_ANY), CRect(0, 0, 0, 0), frame,
                       0))
        return nullptr;
    manager.AddPane(bar);
    return bar;
}

void CMFCAutoHideBar::slide_all_in(CWnd* frame) {
    for (CMFCAutoHideBar* const bar : of_frame(frame)) bar->slide_in();
}

void CMFCAutoHideBar::OnDestroy() {
    for (const auto& button : m_buttons) {
        CDockablePane* const pane = sliding_pane(button->GetAutoHideWindow());
        pane->m_pAutoHideBar = nullptr;
        pane->m_bIsAutoHideMode = FALSE;
    }
    m_buttons.clear();
    m_slidOut = nullptr;
    m_edge.reset();
    CPane::OnDestroy();
}

CMFCAutoHideButton* CMFCAutoHideBar::AddAutoHideWindow(CDockablePane* pAutoHideWnd, DWORD dwAlignment) {
    std::vector<CDockablePane*> panes;
    if (auto* const tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, pAutoHideWnd)) {
        for (int i = 0; i < tabbed->GetTabsNum(); ++i)
            if (auto* const tab = DYNAMIC_DOWNCAST(CDockablePane, tabbed->FindBarByTabNumber(i)))
                if (tab->IsVisible()) panes.push_back(tab);
    } else {
        panes.push_back(pAutoHideWnd);
    }
    CMFCAutoHideButton* first = nullptr;
    for (CDockablePane* const pane : panes) {
        auto button = std::make_unique<CMFCAutoHideButton>();
        button->Create(this, pane, dwAlignment);
        if (first == nullptr) first = button.get();
        m_buttons.push_back(std::move(button));
    }
    UpdateVisibleState();
    return first;
}

BOOL CMFCAutoHideBar::RemoveAutoHideWindow(CDockablePane* pAutoHideWnd) {
    if (m_slidOut == pAutoHideWnd) slide_in();
    m_waiting = nullptr;
    const size_t count = m_buttons.size();
    std::erase_if(m_buttons, [&](const auto& button) {
        CDockablePane* const pane = button->GetAutoHideWindow();
        return pane == pAutoHideWnd || ::IsChild(pAutoHideWnd->m_hWnd, pane->m_hWnd);
    });
    if (m_buttons.size() == count) return FALSE;
    UpdateVisibleState();
    return TRUE;
}

CDockablePane* CMFCAutoHideBar::GetFirstAHWindow() const {
    return m_buttons.empty() ? nullptr : m_buttons.front()->GetAutoHideWindow();
}

int CMFCAutoHideBar::GetVisibleCount() const {
    return static_cast<int>(std::count_if(m_buttons.begin(), m_buttons.end(),
                                          [](const auto& button) { return button->IsVisible(); }));
}

void CMFCAutoHideBar::UpdateVisibleState() {
    RecalcLayout();
    const bool shows = GetVisibleCount() > 0;
    if (shows != (IsVisible() != FALSE)) ShowPane(shows, FALSE, FALSE);
    if (m_hWnd != nullptr) Invalidate();
}

CSize CMFCAutoHideBar::CalcFixedLayout(BOOL, BOOL bHorz) {
    constexpr int kWholeEdge = 32767;
    int thick = 0;
    for (const auto& button : m_buttons)
        thick = std::max<int>(thick, bHorz ? button->GetSize().cy : button->GetSize().cx);
    return bHorz ? CSize(kWholeEdge, thick) : CSize(thick, kWholeEdge);
}

void CMFCAutoHideBar::RecalcLayout() {
    int offset = afxGlobalData.scaled(afxGlobalData.m_nAutoHideToolBarMargin);
    const CDockablePane* group = nullptr;
    for (const auto& button : m_buttons) {
        if (!button->IsVisible()) continue;
        const CDockablePane* const now = sliding_pane(button->GetAutoHideWindow());
        if (group != nullptr && now != group)
            offset += afxGlobalData.scaled(afxGlobalData.m_nAutoHideToolBarSpacing);
        group = now;
        button->Move(offset);
        offset += IsHorizontal() ? button->GetSize().cx : button->GetSize().cy;
    }
}

void CMFCAutoHideBar::DoPaint(CDC* pDC) {
    CPane::DoPaint(pDC);
    for (const auto& button : m_buttons)
        if (button->IsVisible()) button->OnDraw(pDC);
}

CMFCAutoHideButton* CMFCAutoHideBar::button_at(CPoint point) const {
    for (const auto& button : m_buttons)
        if (button->IsVisible() && button->GetRect().PtInRect(point)) return button.get();
    return nullptr;
}

// Sliding.

/// Over the middle of the frame, along this strip, as wide as the pane was.
CRect CMFCAutoHideBar::slid_out_rect(const CDockablePane& pane) const {
    const CRect room = GetDockingManager()->GetOuterEdgeBounds();
    const CSize size = pane.auto_hide_size();
    const int wide = std::min<int>(size.cx, room.Width() * kMostOfTheRoom / 100);
    const int high = std::min<int>(size.cy, room.Height() * kMostOfTheRoom / 100);
    CRect rect = room;
    switch (GetCurrentAlignment()) {
        case CBRS_ALIGN_LEFT: rect.right = rect.left + wide; break;
        case CBRS_ALIGN_RIGHT: rect.left = rect.right - wide; break;
        case CBRS_ALIGN_TOP: rect.bottom = rect.top + high; break;
        default: rect.top = rect.bottom - high; break;
    }
    return rect;
}

BOOL CMFCAutoHideBar::ShowAutoHideWindow(CDockablePane* pAutoHideWnd, BOOL bShow, BOOL bDelay) {
    CDockablePane* const pane = sliding_pane(pAutoHideWnd);
    if (!pane->IsAutoHideMode() || pane->m_pAutoHideBar != this) return FALSE;
    if (GetDockingManager()->slides_after_preview(*pane, bShow != FALSE)) return TRUE;
    if (!bShow) {
        if (m_slidOut == pane) slide_in();
        return TRUE;
    }
    if (auto* const tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, pane);
        tabbed != nullptr && pAutoHideWnd != pane) {
        CMFCBaseTabCtrl* const tabs = tabbed->GetUnderlyingWindow();
        tabs->SetActiveTab(tabs->GetTabFromHwnd(pAutoHideWnd->m_hWnd));
    }
    if (m_slidOut == pane) return TRUE;
    slide_all_in(GetDockSiteFrameWnd());
    m_slidOut = pane;
    m_step = bDelay && !CDockablePane::m_bDisableAnimation ? 1 : std::max(1, CDockablePane::m_nSlideSteps);
    slide_step();
    if (m_step != 0) SetTimer(kSlideTimer, kSlideEvery);
    SetTimer(kWatchTimer, kWatchEvery);
    Invalidate();
    return TRUE;
}

/// Shows as much of the pane as the step says; the last one ends the sliding.
void CMFCAutoHideBar::slide_step() {
    CRect rect = slid_out_rect(*m_slidOut);
    const int steps = std::max(1, CDockablePane::m_nSlideSteps);
    const int wide = rect.Width() * m_step / steps, high = rect.Height() * m_step / steps;
    switch (GetCurrentAlignment()) {
        case CBRS_ALIGN_LEFT: rect.right = rect.left + wide; break;
        case CBRS_ALIGN_RIGHT: rect.left = rect.right - wide; break;
        case CBRS_ALIGN_TOP: rect.bottom = rect.top + high; break;
        default: rect.top = rect.bottom - high; break;
    }
    ::SetWindowPos(m_slidOut->m_hWnd, HWND_TOP, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
    m_step = m_step >= steps ? 0 : m_step + 1;
    if (m_step != 0) return;
    KillTimer(kSlideTimer);
    place_inner_edge();
}

/// Along the inner side of the pane that is out, over the middle of the frame.
void CMFCAutoHideBar::place_inner_edge() {
    CRect rect = slid_out_rect(*m_slidOut);
    const bool isUpright = !IsHorizontal();
    const int width = CPaneDivider::m_nDefaultWidth;
    switch (GetCurrentAlignment()) {
        case CBRS_ALIGN_LEFT: rect.left = rect.right; break;
        case CBRS_ALIGN_RIGHT: rect.left -= width; break;
        case CBRS_ALIGN_TOP: rect.top = rect.bottom; break;
        default: rect.top -= width; break;
    }
    (isUpright ? rect.right : rect.bottom) = (isUpright ? rect.left : rect.top) + width;
    if (m_edge == nullptr) {
        m_edge = std::make_unique<InnerEdge>(*this);
        m_edge->CreateEx(0, isUpright ? CPaneDivider::SS_VERT : CPaneDivider::SS_HORZ, rect,
                         GetDockSiteFrameWnd(), 0xFFFF);
    }
    ::SetWindowPos(m_edge->m_hWnd, HWND_TOP, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

int CMFCAutoHideBar::move_inner_edge(int delta) {
    if (m_slidOut == nullptr || m_step != 0) return 0;
    const bool isUpright = !IsHorizontal();
    const DWORD side = GetCurrentAlignment();
    const int outward = side == CBRS_ALIGN_LEFT || side == CBRS_ALIGN_TOP ? 1 : -1;
    const CRect room = GetDockingManager()->GetOuterEdgeBounds(), now = slid_out_rect(*m_slidOut);
    CSize least;
    m_slidOut->GetMinSize(least);
    const int before = isUpright ? now.Width() : now.Height();
    const int most = (isUpright ? room.Width() : room.Height()) * kMostOfTheRoom / 100;
    const int after =
        std::min<int>(std::max<int>(before + outward * delta, isUpright ? least.cx : least.cy), most);
    (isUpright ? m_slidOut->m_autoHideSize.cx : m_slidOut->m_autoHideSize.cy) = after;
    follow_frame();
    return outward * (after - before);
}

void CMFCAutoHideBar::follow_frame() {
    if (m_slidOut == nullptr || m_step != 0) return;
    const CRect rect = slid_out_rect(*m_slidOut);
    ::SetWindowPos(m_slidOut->m_hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
    place_inner_edge();
}

void CMFCAutoHideBar::slide_in() {
    CDockablePane* const pane = m_slidOut;
    if (pane == nullptr) return;
    m_slidOut = nullptr;
    m_step = 0;
    m_edge.reset();
    KillTimer(kSlideTimer);
    KillTimer(kWatchTimer);
    const HWND focus = ::GetFocus();
    const bool hadFocus = focus != nullptr && (focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus));
    if (pane->m_hWnd != nullptr) pane->ShowWindow(SW_HIDE);
    if (hadFocus) GetDockSiteFrameWnd()->SetFocus();
    Invalidate();
}

bool CMFCAutoHideBar::check_condition() {
    if (m_slidOut == nullptr || m_step != 0 || ::GetCapture() != nullptr) return false;
    const HWND pane = m_slidOut->m_hWnd, focus = ::GetFocus();
    if (focus != nullptr && (focus == pane || ::IsChild(pane, focus))) return false;
    CPoint cursor;
    ::GetCursorPos(&cursor);
    CRect rect;
    m_slidOut->GetWindowRect(&rect);
    if (rect.PtInRect(cursor)) return false;
    m_edge->GetWindowRect(&rect);
    if (rect.PtInRect(cursor)) return false;
    ScreenToClient(&cursor);
    const CMFCAutoHideButton* const under = button_at(cursor);
    if (under != nullptr && sliding_pane(under->GetAutoHideWindow()) == m_slidOut) return false;
    slide_in();
    return true;
}

// The mouse.

void CMFCAutoHideBar::highlight(CMFCAutoHideButton* button) {
    bool changed = false;
    for (const auto& each : m_buttons) {
        const BOOL lit = each.get() == button;
        changed = changed || each->IsHighlighted() != lit;
        each->HighlightButton(lit);
    }
    if (changed) Invalidate();
}

void CMFCAutoHideBar::OnMouseMove(UINT nFlags, CPoint point) {
    CPane::OnMouseMove(nFlags, point);
    CMFCAutoHideButton* const under = button_at(point);
    highlight(under);
    if (under == m_waiting) return;
    m_waiting = under;
    KillTimer(kRestTimer);
    if (under != nullptr) SetTimer(kRestTimer, static_cast<UINT>(m_nShowAHWndDelay));
    TRACKMOUSEEVENT leave = {sizeof(leave), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leave);
}

void CMFCAutoHideBar::OnMouseLeave() {
    CPane::OnMouseLeave();
    highlight(nullptr);
    m_waiting = nullptr;
    KillTimer(kRestTimer);
}

void CMFCAutoHideBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CPane::OnLButtonDown(nFlags, point);
    CMFCAutoHideButton* const pressed = button_at(point);
    if (pressed == nullptr) return;
    KillTimer(kRestTimer);
    CDockablePane* const pane = pressed->GetAutoHideWindow();
    ShowAutoHideWindow(pane, TRUE, TRUE);
    pane->SetFocus();
}

void CMFCAutoHideBar::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == kRestTimer) {
        KillTimer(kRestTimer);
        if (m_waiting != nullptr) m_waiting->ShowAttachedWindow(TRUE);
    } else if (nIDEvent == kSlideTimer && m_slidOut != nullptr) {
        slide_step();
    } else if (nIDEvent == kWatchTimer) {
        check_condition();
    }
    CPane::OnTimer(nIDEvent);
}
