#include <ktui/docking/tabbed_pane_ex.h>

#include <ktui/docking/kbui_dock_control_bar.h>
#include <ktui/docking/mfc_tab_ctrl_ex.h>
#include <ktui/docking/multi_pane_frame_wnd_ex.h>
#include <ktui/docking/pane_lock.h>

IMPLEMENT_DYNCREATE(CTabbedPaneEx, CTabbedPane)

BEGIN_MESSAGE_MAP(CTabbedPaneEx, CTabbedPane)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CTabbedPaneEx::CTabbedPaneEx() = default;

int CTabbedPaneEx::OnCreate(LPCREATESTRUCT create) {
    // Kept: the class of the tab control stays set for every tabbed pane that is made later.
    CTabbedPane::m_pTabWndRTC = RUNTIME_CLASS(CMFCTabCtrlEx);
    if (CTabbedPane::OnCreate(create) == -1) return -1;
    SetMiniFrameRTC(RUNTIME_CLASS(CMultiPaneFrameWndEx));
    return 0;
}

BOOL CTabbedPaneEx::CanFloat() const {
    return IsPaneLocked(GetParentMiniFrame()) ? FALSE : CTabbedPane::CanFloat();
}

void CTabbedPaneEx::OnPressCloseButton() {
    const CMFCBaseTabCtrl* tabs = GetUnderlyingWindow();
    CWnd* active = tabs != nullptr ? tabs->GetActiveWnd() : nullptr;
    if (auto* bar = DYNAMIC_DOWNCAST(CKbUiDockControlBar, active)) bar->setVisible(false);
    CTabbedPane::OnPressCloseButton();
}

void CTabbedPaneEx::SetPaneAlignment(DWORD alignment) {
    SetPaneStyle((GetPaneStyle() & ~CBRS_ALIGN_ANY) | alignment);
}

void CTabbedPaneEx::Serialize(CArchive& archive) {
    if (archive.IsStoring()) {
        archive << m_dwEnabledAlignment;
    } else {
        archive >> m_dwEnabledAlignment;
    }
    CTabbedPane::Serialize(archive);
}

void CTabbedPaneEx::ForEachTabWindow(const std::function<void(CWnd* window)>& action) {
    const CMFCBaseTabCtrl* tabs = GetUnderlyingWindow();
    if (tabs == nullptr) return;
    for (int tab = 0; tab < tabs->GetTabsNum(); ++tab) action(tabs->GetTabWnd(tab));
}

void CTabbedPaneEx::OnLButtonDown(UINT flags, CPoint point) {
    CPoint screen = point;
    ClientToScreen(&screen);
    if (!IsPaneLocked(GetParentMiniFrame()) || FindButton(screen) != nullptr) {
        CTabbedPane::OnLButtonDown(flags, point);
        return;
    }
    ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
    m_blockedDrag = true;
    SetFocus();
}

void CTabbedPaneEx::OnLButtonUp(UINT flags, CPoint point) {
    if (m_blockedDrag) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        m_blockedDrag = false;
    }
    CTabbedPane::OnLButtonUp(flags, point);
}

void CTabbedPaneEx::OnMouseMove(UINT flags, CPoint point) {
    if (m_blockedDrag && (flags & MK_LBUTTON) != 0) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        return;
    }
    m_blockedDrag = false;
    CTabbedPane::OnMouseMove(flags, point);
}

void CTabbedPaneEx::OnLButtonDblClk(UINT flags, CPoint point) {
    if (IsPaneLocked(GetParentMiniFrame()))
        SetFocus();
    else
        CTabbedPane::OnLButtonDblClk(flags, point);
}
