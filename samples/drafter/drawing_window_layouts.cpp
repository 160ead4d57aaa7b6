// The layouts of a drawing: their tabs, the menu that lists them, and how the window goes from one to the
// other.
#include <od_db_current_layout.h>
#include <plotting/layouts_on_paper.h>

#include "drawing_window.h"
#include "name_menu.h"
#include "resource.h"

namespace {

CString nameOf(const OdDbObjectId& id) {
    const auto layout = id.open<OdDbLayout>();
    if (!layout) return {};
    CString name = layout->getLayoutName().c_str();
    if (layout->modelType()) name.LoadString(IDS_MODEL_LAYOUT);
    return name;
}

}  // namespace

std::vector<CString> CDrawingWindow::layoutNames() const {
    std::vector<CString> names;
    for (const OdDbObjectId& each : m_layouts) names.push_back(nameOf(each));
    return names;
}

int CDrawingWindow::currentLayout() const {
    const auto found = std::find(m_layouts.begin(), m_layouts.end(), drawing().currentLayoutId());
    return found != m_layouts.end() ? static_cast<int>(found - m_layouts.begin()) : -1;
}

void CDrawingWindow::showTabs() {
    m_layouts.clear();
    if (const auto model = drawing().modelSpaceId().open<OdDbBlockTableRecord>())
        m_layouts.push_back(model->getLayoutId());
    for (const OdDbLayoutPtr& each : LayoutsOnPaper(drawing()))
        if (each->getBlockTableRecordId().isValid()) m_layouts.push_back(each->objectId());
    const bool wasEmpty = m_tabs.GetItemCount() == 0;
    m_tabs.Show(layoutNames(), currentLayout());
    if (wasEmpty) RecalcLayout();
}

std::optional<SheetPlace> CDrawingWindow::sheetUnder(const Scene& scene) const {
    const auto layout = drawing().currentLayoutId().open<OdDbLayout>();
    if (!layout || layout->modelType()) return {};
    return PlaceSheet(*layout, scene.extents());
}

void CDrawingWindow::ShowLayout(int index) {
    const bool isThere = index >= 0 && static_cast<std::size_t>(index) < m_layouts.size();
    // What is being picked is picked in the layout that shows.
    if (isThere && !m_view.IsPicking()) {
        m_desk.TakeTyped();
        oddbSetCurrentLayout(m_layouts[static_cast<std::size_t>(index)]);
    }
    if (drawing().currentSpaceId() != m_space)
        Refresh(true);
    else
        m_tabs.SetCurSel(currentLayout());
}

void CDrawingWindow::OnLayoutTab(NMHDR*, LRESULT* result) {
    ShowLayout(m_tabs.GetCurSel());
    *result = 0;
}

void CDrawingWindow::OnNextLayout() { ShowLayout(currentLayout() + 1); }

void CDrawingWindow::OnPreviousLayout() { ShowLayout(currentLayout() - 1); }

void CDrawingWindow::OnLayout(UINT command) { ShowLayout(static_cast<int>(command - ID_VIEW_SHEET_FIRST)); }

void CDrawingWindow::OnUpdateLayout(CCmdUI* item) {
    if (item->m_nID == ID_VIEW_SHEET_FIRST)
        ListNamesInMenu(*item, layoutNames(), ID_VIEW_SHEET_LAST, IDS_NO_LAYOUTS, currentLayout());
}

void CDrawingWindow::OnUpdateNextLayout(CCmdUI* item) {
    item->Enable(static_cast<std::size_t>(currentLayout() + 1) < m_layouts.size());
}

void CDrawingWindow::OnUpdatePreviousLayout(CCmdUI* item) { item->Enable(currentLayout() > 0); }
