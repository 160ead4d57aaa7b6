// CDockablePane: the caption, its buttons and their tips.
#include <kmfc/base_tabbed_pane.h>
#include <kmfc/docking_manager.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/global_data.h>
#include <kmfc/mem_dc.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/visual_manager.h>
#include <kmfc/window_dc.h>

#include "caption_buttons.h"
#include "core/caption_layout.h"
#include "../res/kmfc_ids.h"
#include "dockable_pane_tips.h"
#include "frame_state.h"

using namespace kmfc::docking;

BEGIN_MESSAGE_MAP(CDockablePane, CPane)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_SETTINGCHANGE()
    ON_MESSAGE(WM_SETTEXT, &CDockablePane::OnSetText)
END_MESSAGE_MAP()

void CDockablePane::SetCaptionButtons() {
    RemoveCaptionButtons();
    // From the right end of the caption leftwards.
    add_button(m_arrButtons, AFX_HTCLOSE);
    add_button(m_arrButtons, AFX_HTMAXBUTTON);
    add_button(m_arrButtons, AFX_HTMENU);
}

void CDockablePane::RemoveCaptionButtons() { delete_buttons(m_arrButtons); }

bool CDockablePane::is_button_disabled(LRESULT hit) const {
    if (hit == AFX_HTCLOSE) return !CanBeClosed();
    if (hit == AFX_HTMAXBUTTON) return !CanAutoHide() && !IsAutoHideMode();
    return false;
}

void CDockablePane::place_caption_buttons(CSize window) {
    const CRect caption(0, 0, window.cx, GetCaptionHeight());
    place_buttons_in(m_arrButtons, caption, [this](const CMFCCaptionButton& button) {
        const auto hit = static_cast<LRESULT>(button.GetHit());
        if (GetCaptionHeight() < 1) return false;
        if (hit == AFX_HTMENU) return CDockingManager::m_bDockBarMenu != FALSE;
        return !m_bHideDisabledButtons || !is_button_disabled(hit);
    });
    UpdateTooltips();
}

void CDockablePane::EnableGripper(BOOL bEnable) {
    if (m_bHasGripper == bEnable) return;
    m_bHasGripper = bEnable;
    if (m_hWnd != nullptr)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int CDockablePane::GetCaptionHeight() const {
    if (!m_bHasGripper || IsTabbed()) return 0;
    // A frame around an only pane has the caption.
    const CPaneFrameWnd* frame = GetParentMiniFrame();
    if (frame != nullptr && frame->GetVisiblePaneCount() < 2) return 0;
    return caption_height(afxGlobalData.GetTextHeight(), CMFCCaptionButton::GetSize().cy) +
           CMFCVisualManager::GetInstance()->GetDockingPaneCaptionExtraHeight();
}

CRect CDockablePane::caption_rect() const {
    CRect rect;
    GetWindowRect(&rect);
    return CRect(0, 0, rect.Width(), GetCaptionHeight());
}

int CDockablePane::HitTest(CPoint point, BOOL bDetectCaption) {
    if (const CMFCCaptionButton* button = FindButton(point)) return static_cast<int>(button->GetHit());
    const CPoint corner = to_corner(m_hWnd, point);
    return bDetectCaption && caption_rect().PtInRect(corner) ? HTCAPTION : HTNOWHERE;
}

CMFCCaptionButton* CDockablePane::FindButton(CPoint ptScreen) const {
    return m_hWnd != nullptr ? button_at(m_arrButtons, to_corner(m_hWnd, ptScreen)) : nullptr;
}

CMFCCaptionButton* CDockablePane::FindButtonByHit(LRESULT nHit) const {
    return button_with(m_arrButtons, nHit);
}

void CDockablePane::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp) {
    Default();
    RECT& area = lpncsp->rgrc[0];
    CRect window;
    GetWindowRect(&window);
    area.top = std::min(area.bottom, area.top + GetCaptionHeight());
    const CSize size(area.right - area.left, window.Height());
    place_caption_buttons(size);
}

void CDockablePane::DrawCaption(CDC* pDC, CRect rectCaption) {
    const CRect text = text_beside(m_arrButtons, rectCaption);
    const CRect buttons(text.right, rectCaption.top, rectCaption.right, rectCaption.bottom);
    const COLORREF color =
        CMFCVisualManager::GetInstance()->OnDrawPaneCaption(pDC, this, m_bActive, rectCaption, buttons);
    CString name;
    GetWindowText(name);
    draw_caption_text(*pDC, name, text, color);
}

void CDockablePane::draw_caption_and_buttons(CDC* pDC, CSize window) {
    const CRect caption(0, 0, window.cx, GetCaptionHeight());
    if (caption.IsRectEmpty()) return;
    DrawCaption(pDC, caption);
    for (INT_PTR i = 0; i < m_arrButtons.GetSize(); ++i) {
        auto& button = *static_cast<CMFCCaptionButton*>(m_arrButtons[i]);
        const auto hit = static_cast<LRESULT>(button.GetHit());
        button.OnDraw(pDC, m_bActive, TRUE, hit == AFX_HTMAXBUTTON && IsAutoHideMode(),
                      is_button_disabled(hit));
    }
}

void CDockablePane::OnNcPaint() {
    CRect window;
    GetWindowRect(&window);
    const int height = GetCaptionHeight();
    if (height < 1) {
        Default();
        return;
    }
    HWND const focus = ::GetFocus();
    m_bActive = focus != nullptr && (focus == m_hWnd || ::IsChild(m_hWnd, focus));
    CWindowDC dc(this);
    CMemDC memory(dc, CRect(0, 0, window.Width(), height));
    draw_caption_and_buttons(&memory.GetDC(), window.Size());
}

void CDockablePane::redraw_caption() {
    if (m_hWnd != nullptr)
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOERASE | RDW_NOCHILDREN);
}

LRESULT CDockablePane::OnNcHitTest(CPoint point) {
    const LRESULT hit = HitTest(point, TRUE);
    // The mouse handlers of the pane see what happens on the caption.
    if (hit != HTNOWHERE) return HTCLIENT;
    return CPane::OnNcHitTest(point);
}

LRESULT CDockablePane::OnSetText(WPARAM, LPARAM) {
    const LRESULT result = Default();
    redraw_caption();
    if (CBaseTabbedPane* tabbed = GetParentTabbedPane())
        tabbed->rename_tab(*this);
    else if (CPaneFrameWnd* frame = GetParentMiniFrame())
        frame->AdjustPaneFrames();
    return result;
}

void CDockablePane::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CPane::OnSettingChange(uFlags, lpszSection);
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CDockablePane::UpdateTooltips() {
    if (m_tips != nullptr) m_tips->place(*this);
}

namespace {

UINT tip_of(UINT hit) {
    switch (static_cast<LRESULT>(hit)) {
        case AFX_HTCLOSE: return IDS_PANE_CLOSE;
        case AFX_HTMAXBUTTON: return IDS_PANE_AUTOHIDE;
        default: return IDS_PANE_MENU;
    }
}

}  // namespace

void CDockablePane::Tips::create(CDockablePane* pane) {
    if (!control.Create(pane, TTS_ALWAYSTIP)) return;
    if (m_bSetTooltipTopmost)
        control.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    for (INT_PTR i = 0; i < pane->m_arrButtons.GetSize(); ++i) {
        const UINT hit = static_cast<CMFCCaptionButton*>(pane->m_arrButtons[i])->GetHit();
        CString text;
        if (!text.LoadString(tip_of(hit))) continue;
        control.AddTool(pane, text, CRect(0, 0, 0, 0), hit);
    }
    control.Activate(TRUE);
    place(*pane);
}

void CDockablePane::Tips::place(const CDockablePane& pane) {
    if (control.m_hWnd == nullptr) return;
    CPoint client(0, 0);
    pane.ClientToScreen(&client);
    const CPoint origin = to_corner(pane.m_hWnd, client);
    for (INT_PTR i = 0; i < pane.m_arrButtons.GetSize(); ++i) {
        const auto* button = static_cast<CMFCCaptionButton*>(pane.m_arrButtons[i]);
        CRect rect = button->GetRect();
        // Tools count from the client area's corner.
        rect -= origin;
        control.SetToolRect(const_cast<CDockablePane*>(&pane), button->GetHit(), rect);
    }
}
