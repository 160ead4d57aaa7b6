// What lies at a point of the set, and the menu of a tab.
#include <ktui/docking/kbui_palette_set.h>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set_data.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/host/string_resources.h>

#include <ktdsres/resource_ids.h>

namespace {

constexpr unsigned kHitTab = 6;
constexpr unsigned kHitArrows = 8;
constexpr unsigned kEditable = 1;
constexpr UINT kEditPaletteNameCommand = 32772;
constexpr UINT kDeleteFlags = 0x8004;

}  // namespace

int CKbUiPaletteSet::HitTest(CPoint point, unsigned& hitType, unsigned long& index) {
    index = 0;
    CXToolTabCtrl& strip = m_data->m_tabs;
    CRect area;
    strip.GetWindowRect(&area);
    if (!area.PtInRect(point)) return 0;
    strip.ScreenToClient(&point);
    int tab = 0;
    switch (static_cast<strip::Target>(strip.HitTest(point, tab))) {
        case strip::Target::Tab:
            hitType = kHitTab;
            index = static_cast<unsigned long>(tab);
            return 1;
        case strip::Target::Arrows: hitType = kHitArrows; return 1;
        default: return 0;
    }
}

void CKbUiPaletteSet::OnContextMenu(CWnd* window, CPoint point) {
    CXToolTabCtrl& tabs = m_data->m_tabs;
    CRect area;
    tabs.GetWindowRect(&area);
    if (!area.PtInRect(point)) return;
    int index = -1;
    if (tabs.HitTest(point - CSize(area.TopLeft()), index) != static_cast<int>(strip::Target::Tab)) return;
    const CKbUiPalette* palette = GetPalette(index);
    // Kept: the style has to be exactly 1; another with that bit set has no menu.
    if (palette == nullptr || palette->GetPaletteStyle() != kEditable) return;
    m_data->m_contextPalette = index;
    CMenu menu;
    if (!menu.CreatePopupMenu()) return;
    menu.InsertMenu(static_cast<UINT>(-1), MF_BYPOSITION | MF_STRING, kEditPaletteNameCommand,
                    LoadToolkitString(IDS_RENAME_PALETTE, L"重命名选项板(&R)"));
    AddContextMenuItems(&menu, kHitTab, index);
    menu.TrackPopupMenu(0, point.x, point.y, window);
    menu.DestroyMenu();
}

int CKbUiPaletteSet::AddContextMenuItems(CMenu* menu, int hitType, int index) {
    if (hitType != static_cast<int>(kHitTab)) return 1;
    CKbUiPalette* palette = GetPalette(index);
    if (palette == nullptr) return 0;
    // Kept: the position and the flags of what is deleted.
    if (!palette->EditNameStyle()) menu->DeleteMenu(0, kDeleteFlags);
    return 1;
}
