// CMFCStatusBar: its window, where the panes stand, and what the user and assistive programs do with them.
#include <kmfc/status_bar_ex.h>

#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>

#include "../res/kmfc_ids.h"
#include "../window/bar_item_request.h"
#include "bar_accessible.h"
#include "core/status_panes.h"
#include "status_bar_sizes.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CMFCStatusBar, CPane)

BEGIN_MESSAGE_MAP(CMFCStatusBar, CPane)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_TIMER()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDOWN()
    ON_MESSAGE(WM_SIZEPARENT, &CMFCStatusBar::OnSizeParent)
    ON_MESSAGE(WM_SETTEXT, &CMFCStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CMFCStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CMFCStatusBar::OnGetTextLength)
    ON_MESSAGE(WM_GETOBJECT, &CMFCStatusBar::OnGetObject)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CMFCStatusBar::OnTipText)
END_MESSAGE_MAP()

CMFCStatusBar::CMFCStatusBar() = default;

CMFCStatusBar::~CMFCStatusBar() {
    if (m_hWnd != nullptr) DestroyWindow();
}

BOOL CMFCStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CMFCStatusBar::CreateEx(CWnd* pParentWnd, DWORD, DWORD dwStyle, UINT nID) {
    if (!CPane::CreateEx(0, nullptr, nullptr, dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID)) return FALSE;
    EnableToolTips();
    if (CDockingManager* const manager = GetDockingManager()) manager->AddPane(this);
    return TRUE;
}

void CMFCStatusBar::OnDestroy() {
    EnableToolTips(FALSE);
    CPane::OnDestroy();
}

void CMFCStatusBar::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    CPane::ShowPane(bShow, bDelay, bActivate);
    // Frames without a docking manager lay out by themselves.
    auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, m_pDockSite);
    if (GetDockingManager() == nullptr && frame != nullptr) frame->RecalcLayout();
}

// Places.

CSize CMFCStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    const CSize all = CPane::CalcFixedLayout(bStretch, bHorz);
    CClientDC dc(this);
    CFont* const former = dc.SelectObject(&afxGlobalData.fontTooltip);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(former);
    const int height = metrics.tmHeight + 2 * afxGlobalData.scaled(kmfc::kStatusMarginAcross);
    return CSize(all.cx, std::max<LONG>(all.cy, height));
}

LRESULT CMFCStatusBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    if (GetDockingManager() != nullptr) return CPane::OnSizeParent(wParam, lParam);
    if (!IsVisible()) return 0;
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    CRect strip(layout.rect);
    strip.top = std::max(strip.top, strip.bottom - CalcFixedLayout(TRUE, TRUE).cy);
    layout.rect.bottom = strip.top;
    layout.sizeTotal.cy += strip.Height();
    if (layout.hDWP != nullptr)
        layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, strip.left, strip.top, strip.Width(),
                                       strip.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

CRect CMFCStatusBar::grip() const {
    const CWnd* const frame = m_hWnd != nullptr ? GetParent() : nullptr;
    CRect corner(0, 0, 0, 0), client;
    if (frame == nullptr || !frame->IsFrameWnd() || !(frame->GetStyle() & WS_THICKFRAME) || frame->IsZoomed())
        return corner;
    GetWindowRect(&corner);
    frame->ScreenToClient(&corner);
    frame->GetClientRect(&client);
    if (corner.BottomRight() != client.BottomRight()) return CRect(0, 0, 0, 0);
    GetClientRect(&corner);
    corner.left = std::max<LONG>(corner.left, corner.right - afxGlobalData.scaled(kmfc::kStatusGrip));
    return corner;
}

void CMFCStatusBar::RecalcLayout() {
    if (m_hWnd == nullptr) return;
    CRect client;
    GetClientRect(&client);
    const int beside = afxGlobalData.scaled(kmfc::kStatusMargin),
              left = afxGlobalData.scaled(kmfc::kStatusEnd);
    const int gap = afxGlobalData.scaled(kmfc::kStatusPictureGap);
    std::vector<kmfc::StatusPane> wanted;
    for (const CMFCStatusBarPaneInfo& each : m_panes) {
        int width = each.cxWidth + 2 * beside;
        if (!each.pictures.empty())
            width += kmfc::shown_size(*each.pictures.front(), client.Height()).cx + gap;
        wanted.push_back({width, (each.nStyle & SBPS_STRETCH) != 0});
    }
    const std::vector<int> edges =
        kmfc::pane_edges(wanted, left, client.Width() - 2 * left - grip().Width(), 0);
    int from = left;
    for (size_t i = 0; i < m_panes.size(); ++i) {
        m_panes[i].rect.SetRect(from, client.top, edges[i], client.bottom);
        from = edges[i];
    }
    Invalidate(FALSE);
}

int CMFCStatusBar::pane_at(CPoint point) const {
    for (int i = 0; i < GetCount(); ++i)
        if (pane(i)->rect.PtInRect(point)) return i;
    return -1;
}

// The mouse.

void CMFCStatusBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CPane::OnLButtonDblClk(nFlags, point);
    const UINT command = GetItemID(pane_at(point));
    CWnd* const owner = GetOwner();
    if (m_takesDoubleClicks && command != 0 && owner != nullptr)
        owner->SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
}

LRESULT CMFCStatusBar::OnNcHitTest(CPoint point) {
    CPoint inside(point);
    ScreenToClient(&inside);
    return grip().PtInRect(inside) ? HTBOTTOMRIGHT : Default();
}

/// The corner is the frame's.
void CMFCStatusBar::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    if (nHitTest != HTBOTTOMRIGHT) return CPane::OnNcLButtonDown(nHitTest, point);
    GetParent()->SendMessage(WM_NCLBUTTONDOWN, HTBOTTOMRIGHT, MAKELPARAM(point.x, point.y));
}

INT_PTR CMFCStatusBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const int index = pane_at(point);
    if (index == -1 || pane(index)->strTip.IsEmpty()) return -1;
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->rect = pane(index)->rect;
        pTI->uId = static_cast<UINT_PTR>(index) + 1;
        pTI->lpszText = LPSTR_TEXTCALLBACKW;
    }
    return index + 1;
}

BOOL CMFCStatusBar::OnTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    m_tip = GetTipText(static_cast<int>(pNMHDR->idFrom) - 1);
    if (m_tip.IsEmpty()) return FALSE;
    auto& question = *reinterpret_cast<NMTTDISPINFOW*>(pNMHDR);
    question.lpszText = const_cast<LPWSTR>(m_tip.GetString());
    question.hinst = nullptr;
    *pResult = 0;
    return TRUE;
}

// States.

void CMFCStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    for (int i = 0; i < GetCount(); ++i)
        if (std::exchange(pane(i)->isChanged, false)) InvalidateRect(pane(i)->rect, FALSE);
    // A pane that nobody answers for stays as it is.
    kmfc::PaneRequest(*this).ask_all(GetCount(), pTarget, FALSE);
    CPane::OnUpdateCmdUI(pTarget, bDisableIfNoHndler);
}

// Assistive programs.

void CMFCStatusBar::describe(int part, AccessiblePart& about) const {
    if (part == 0) {
        about.name.LoadString(IDS_STATUS_BAR);
        about.role = ROLE_SYSTEM_STATUSBAR;
        return;
    }
    const CMFCStatusBarPaneInfo* const shown = pane(part - 1);
    if (shown == nullptr) return;
    about.name = shown->strText;
    about.role = shown->nProgressTotal > 0 ? ROLE_SYSTEM_PROGRESSBAR : ROLE_SYSTEM_STATICTEXT;
    about.states = STATE_SYSTEM_READONLY;
    if ((shown->nStyle & SBPS_DISABLED) != 0) about.states |= STATE_SYSTEM_UNAVAILABLE;
    if ((shown->nStyle & SBPS_POPOUT) != 0) about.states |= STATE_SYSTEM_CHECKED;
    if (shown->nProgressTotal > 0)
        about.value.Format(L"%d%%", kmfc::percent_of(shown->nProgressCurr, shown->nProgressTotal));
    about.place = shown->rect;
}

LRESULT CMFCStatusBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = answer_get_object(*this, wParam, lParam);
    return answer != 0 ? answer : Default();
}

void CMFCStatusBar::tell_changed(int index, DWORD event) const {
    if (m_hWnd != nullptr) ::NotifyWinEvent(event, m_hWnd, OBJID_CLIENT, index + 1);
}
