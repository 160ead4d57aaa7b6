// The main window's Edit menu: undo, redo and the selection.
#include "main_frame.h"
#include "resource.h"
#include "undo_menu.h"

void CMainFrame::finishChange(UINT name) {
    CString text;
    text.LoadString(name);
    finishChange(text);
}

void CMainFrame::finishChange(const CString& name) {
    m_document->history().Commit(name.GetString());
    showDrawing(true);
}

void CMainFrame::DrawingChanged(const wchar_t* name) { finishChange(CString(name)); }

void CMainFrame::OnUndo() {
    if (m_document->history().Undo()) showDrawing(true);
}

void CMainFrame::OnRedo() {
    if (m_document->history().Redo()) showDrawing(true);
}

void CMainFrame::OnUpdateUndo(CCmdUI* item) { ShowUndoStep(*item, m_document->history()); }

void CMainFrame::OnUpdateRedo(CCmdUI* item) { ShowRedoStep(*item, m_document->history()); }

void CMainFrame::OnSelectAll() {
    std::set<OdDbObjectId> all;
    const auto space = m_document->database()->currentSpaceId().open<OdDbBlockTableRecord>();
    for (const OdDbEntity* entity : space->entities())
        if (!entity->isErased()) all.insert(entity->objectId());
    m_view.SetSelection(std::move(all));
}

void CMainFrame::OnSelectWindow() {
    m_firstPrompt = IDS_PICK_CORNER;
    m_view.SetFocus();
    m_view.SelectByCorners([this](bool) { showIdle(); });
    showPrompt();
}

void CMainFrame::OnDeselect() { m_view.SetSelection({}); }
