// A drawing's Edit menu: undo, redo, the selection, and blocks that are inserted.
#include <od_db_viewport.h>

#include "block_list.h"
#include "drawing_window.h"
#include "resource.h"
#include "undo_menu.h"

namespace {

/// Whether it is the viewport that stands for a sheet as a whole.
bool isSheet(const OdDbEntity& entity) {
    const auto* const viewport = dynamic_cast<const OdDbViewport*>(&entity);
    return viewport != nullptr && viewport->isSheet();
}

}  // namespace

void CDrawingWindow::FinishChange(UINT name) {
    CString text;
    text.LoadString(name);
    FinishChange(text);
}

void CDrawingWindow::FinishChange(const CString& name) {
    m_document->history().Commit(name.GetString());
    Refresh(true);
}

void CDrawingWindow::OnUndo() {
    if (m_document->history().Undo()) Refresh(true);
}

void CDrawingWindow::OnRedo() {
    if (m_document->history().Redo()) Refresh(true);
}

void CDrawingWindow::OnUpdateUndo(CCmdUI* item) { ShowUndoStep(*item, m_document->history()); }

void CDrawingWindow::OnUpdateRedo(CCmdUI* item) { ShowRedoStep(*item, m_document->history()); }

void CDrawingWindow::OnSelectAll() {
    std::set<OdDbObjectId> all;
    const auto space = drawing().currentSpaceId().open<OdDbBlockTableRecord>();
    for (const OdDbEntity* entity : space->entities())
        if (!entity->isErased() && !isSheet(*entity)) all.insert(entity->objectId());
    m_view.SetSelection(std::move(all));
}

void CDrawingWindow::OnSelectWindow() {
    m_firstPrompt = IDS_PICK_CORNER;
    m_view.SetFocus();
    m_view.SelectByCorners([this](bool) { m_desk.SayIdle(); });
    sayPrompt();
}

void CDrawingWindow::OnDeselect() { m_view.SetSelection({}); }

void CDrawingWindow::OnUpdateHasSelection(CCmdUI* item) { item->Enable(!m_view.selection().empty()); }

void CDrawingWindow::PlaceBlock(const OdDbObjectId& block) {
    m_view.SetFocus();
    PickPlaces(1, IDS_PICK_INSERTION, [this, block](const std::vector<OdGePoint2d>& places) {
        if (places.empty())
            m_desk.SayIdle();
        else
            InsertBlockAt(block, places.front());
    });
}

void CDrawingWindow::InsertBlockAt(const OdDbObjectId& block, const OdGePoint2d& place) {
    const OdDbObjectId reference = InsertBlock(drawing(), block, place);
    if (reference.isNull()) return;
    FinishChange(IDS_CHANGE_INSERT_BLOCK);
    m_view.SetSelection({reference});
    m_view.SetFocus();
}
