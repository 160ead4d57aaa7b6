// The main window's palettes: commands that show, lock and go to them, and the blocks that come from there.
#include "main_frame.h"
#include "resource.h"

/// A modal dialog keeps the user from the palettes and toolbars too, also while it has stepped aside.
void CMainFrame::enablePalettes() {
    const bool enable = IsWindowEnabled() && !m_isInCommand;
    m_palettes.Enable(enable);
    m_toolBars.Enable(IsWindowEnabled() != FALSE, enable);
}

/// When a dialog has gone, the window may come to lie on palettes that float.
void CMainFrame::OnActivate(UINT state, CWnd* other, BOOL minimized) {
    CMDIFrameWndEx::OnActivate(state, other, minimized);
    if (state != WA_INACTIVE) m_palettes.RaiseFloating();
}

void CMainFrame::OnPropertiesPalette() { m_palettes.Open(ID_VIEW_PALETTE_PROPERTIES); }

void CMainFrame::OnLayers() { m_palettes.Open(ID_VIEW_PALETTE_LAYERS); }

void CMainFrame::OnBlocks() { m_palettes.Open(ID_VIEW_PALETTE_BLOCKS); }

void CMainFrame::OnPalette(UINT id) { m_palettes.Toggle(id); }

void CMainFrame::OnLock(UINT id) { m_palettes.ToggleLock(id); }

void CMainFrame::OnUpdatePalette(CCmdUI* item) {
    item->Enable(m_palettes.IsThere(item->m_nID));
    if (item->m_nID == ID_VIEW_PALETTE_EXTENSION && m_palettes.IsThere(item->m_nID)) {
        CString text;
        text.Format(IDS_EXTENSION_ITEM, m_palettes.ExtensionName().GetString());
        item->SetText(text);
    }
    item->SetCheck(m_palettes.IsShown(item->m_nID));
}

void CMainFrame::OnLayout(UINT id) { m_layouts.Do(id); }

void CMainFrame::OnUpdateLayout(CCmdUI* item) { m_layouts.Update(item); }

void CMainFrame::OnUpdateLock(CCmdUI* item) { item->SetCheck(m_palettes.IsLocked(item->m_nID)); }

bool CMainFrame::TakesBlockAt(CPoint screen) const {
    return m_active != nullptr && !isPicking() && ::WindowFromPoint(screen) == m_active->view().m_hWnd;
}

void CMainFrame::DropBlock(const OdDbObjectId& block, CPoint screen) {
    CDrawingView& view = m_active->view();
    view.ScreenToClient(&screen);
    m_active->InsertBlockAt(block, view.FromPixel(screen));
}

void CMainFrame::PlaceBlock(const OdDbObjectId& block) {
    if (m_active != nullptr && !isPicking()) m_active->PlaceBlock(block);
}

void CMainFrame::DrawingChanged(const wchar_t* name) {
    if (m_active != nullptr) m_active->FinishChange(CString(name));
}
