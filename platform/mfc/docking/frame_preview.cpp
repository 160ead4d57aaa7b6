// CDockingManager: what goes while a print preview stands in the frame.
#include <algorithm>

#include <kmfc/auto_hide_bar.h>
#include <kmfc/docking_manager.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/registered_messages.h>

#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

BOOL CDockingManager::IsPrintPreviewValid() const { return m_state->preview.has_value(); }

void CDockingManager::SetPrintPreviewMode(BOOL bPreview, CPrintPreviewState*) {
    if (m_pParentWnd == nullptr || (bPreview != FALSE) == (IsPrintPreviewValid() != FALSE)) return;
    if (bPreview)
        begin_preview();
    else
        end_preview();
    m_pParentWnd->PostMessage(AFX_WM_POSTSETPREVIEWFRAME, static_cast<WPARAM>(bPreview != FALSE));
}

void CDockingManager::begin_preview() {
    end_drag(true);
    if (m_state->bars != nullptr) m_state->bars->end_drag(true);
    Preview preview;
    for (HWND window = ::GetTopWindow(nullptr); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT)) {
        auto* const frame = DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(window));
        if (frame != nullptr && frame->GetDockingManager() == this && frame->IsWindowVisible())
            preview.frames.insert(preview.frames.begin(), frame);
    }
    for (const CMFCAutoHideBar* const bar : CMFCAutoHideBar::of_frame(m_pParentWnd))
        if (bar->slid_out() != nullptr) preview.slidOut = bar->slid_out();
    CMFCAutoHideBar::slide_all_in(m_pParentWnd);
    for (CPaneFrameWnd* const frame : preview.frames) frame->ShowWindow(SW_HIDE);
    m_state->preview = std::move(preview);
}

void CDockingManager::end_preview() {
    const Preview over = std::move(*m_state->preview);
    m_state->preview.reset();
    for (CPaneFrameWnd* const frame : over.frames)
        if (frame->GetVisiblePaneCount() != 0)
            frame->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0,
                                SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (over.slidOut != nullptr && over.slidOut->IsAutoHideMode()) over.slidOut->Slide(TRUE, FALSE);
}

bool CDockingManager::waits_for_preview(CPaneFrameWnd& frame) {
    if (!IsPrintPreviewValid()) return false;
    std::vector<CPaneFrameWnd*>& frames = m_state->preview->frames;
    if (std::find(frames.begin(), frames.end(), &frame) == frames.end()) frames.push_back(&frame);
    return true;
}

bool CDockingManager::slides_after_preview(CDockablePane& pane, bool out) {
    if (!IsPrintPreviewValid()) return false;
    CDockablePane*& last = m_state->preview->slidOut;
    if (out)
        last = &pane;
    else if (last == &pane)
        last = nullptr;
    return true;
}

bool CDockingManager::hides_for_preview(const CBasePane& pane) const {
    return IsPrintPreviewValid() && pane.HideInPrintPreviewMode();
}

/// Layouts bring them back.
void CDockingManager::hide_for_preview() {
    if (!IsPrintPreviewValid()) return;
    for (HWND child = ::GetTopWindow(m_pParentWnd->m_hWnd); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        auto* const pane = DYNAMIC_DOWNCAST(CBasePane, CWnd::FromHandlePermanent(child));
        if (pane != nullptr && pane->IsPaneVisible() && hides_for_preview(*pane)) pane->ShowWindow(SW_HIDE);
    }
}
