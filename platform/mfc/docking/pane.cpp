// CPane: floating, and the places that it remembers.
#include <kmfc/docking_manager.h>
#include <kmfc/pane.h>
#include <kmfc/pane_frame_wnd.h>

#include "frame_state.h"

IMPLEMENT_DYNCREATE(CPane, CBasePane)

CPane::CPane() : m_recentDockInfo(this) {}
CPane::~CPane() = default;

void CPane::OnPressCloseButton() { ShowPane(FALSE, FALSE, FALSE); }

BOOL CPane::OnShowControlBarMenu(CPoint) { return FALSE; }

void CPane::CopyState(CPane* pOrgBar) {
    CBasePane::CopyState(pOrgBar);
    m_recentDockInfo = pOrgBar->m_recentDockInfo;
    m_sizeMin = pOrgBar->m_sizeMin;
    m_pMiniFrameRTC = pOrgBar->m_pMiniFrameRTC;
}

BOOL CPane::IsInFloatingMultiPaneFrameWnd() const {
    const CPaneFrameWnd* frame = GetParentMiniFrame();
    return frame != nullptr && frame->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWnd));
}

CPaneFrameWnd* CPane::CreateDefaultMiniframe(CRect rectInitial) {
    return CanFloat() ? make_miniframe(rectInitial) : nullptr;
}

CPaneFrameWnd* CPane::make_miniframe(const CRect& rect) {
    CDockingManager* manager = GetDockingManager();
    if (manager == nullptr) return nullptr;
    CRuntimeClass* kind = m_pMiniFrameRTC;
    if (kind == nullptr)
        kind = (m_dwStyle & CBRS_FLOAT_MULTI) != 0 ? RUNTIME_CLASS(CMultiPaneFrameWnd)
                                                   : RUNTIME_CLASS(CPaneFrameWnd);
    CObject* made = kind->CreateObject();
    auto* frame = DYNAMIC_DOWNCAST(CPaneFrameWnd, made);
    if (frame == nullptr) {
        delete made;
        return nullptr;
    }
    CString name;
    GetWindowText(name);
    // A frame that can't be made has deleted itself.
    if (!frame->Create(name, WS_POPUP, rect, manager->GetDockSiteFrameWnd())) return nullptr;
    frame->SetDockingManager(manager);
    manager->AddMiniFrame(frame);
    return frame;
}

BOOL CPane::FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod, bool bShow) {
    if (m_hWnd == nullptr || !OnBeforeFloat(rectFloat, dockMethod)) return FALSE;
    CPaneFrameWnd* frame = CreateDefaultMiniframe(rectFloat);
    if (frame == nullptr) return FALSE;
    frame->AddPane(this);
    if (bShow) frame->ShowWindow(SW_SHOWNOACTIVATE);
    OnAfterFloat();
    return TRUE;
}

BOOL CPane::OnBeforeFloat(CRect&, AFX_DOCK_METHOD) { return TRUE; }
BOOL CPane::OnAfterFloat() { return TRUE; }
BOOL CPane::OnBeforeDock(CBasePane**, LPCRECT, AFX_DOCK_METHOD) { return TRUE; }
void CPane::OnAfterDock(CBasePane*, LPCRECT, AFX_DOCK_METHOD) {}

CRecentDockSiteInfo& CRecentDockSiteInfo::operator=(const CRecentDockSiteInfo& src) {
    m_rectRecentFloatingRect = src.m_rectRecentFloatingRect;
    m_dwRecentAlignmentToFrame = src.m_dwRecentAlignmentToFrame;
    m_recentSliderInfo = src.m_recentSliderInfo;
    m_recentMiniFrameInfo = src.m_recentMiniFrameInfo;
    return *this;
}

namespace {

/// The share of its container's room that a pane takes, hundredths, at least 1.
int percent_of(const CRect& pane, const CRect& container) {
    const double all = double{1} * container.Width() * container.Height();
    if (all <= 0) return 100;
    return std::clamp(static_cast<int>(100.0 * pane.Width() * pane.Height() / all + 0.5), 1, 100);
}

}  // namespace

void CRecentDockSiteInfo::StoreDockInfo() {
    if (m_pBar->GetSafeHwnd() == nullptr) return;
    CRect rect, container;
    m_pBar->GetWindowRect(&rect);
    if (CPaneFrameWnd* frame = m_pBar->GetParentMiniFrame()) {
        frame->GetWindowRect(&m_rectRecentFloatingRect);
        frame->GetClientRect(&container);
        m_recentMiniFrameInfo = {rect, percent_of(rect, container), m_pBar->GetCurrentAlignment()};
    } else if (m_pBar->IsDocked()) {
        m_pBar->GetDockSiteFrameWnd()->GetClientRect(&container);
        m_dwRecentAlignmentToFrame = m_pBar->GetCurrentAlignment();
        m_recentSliderInfo = {rect, percent_of(rect, container), m_pBar->GetCurrentAlignment()};
    }
}
