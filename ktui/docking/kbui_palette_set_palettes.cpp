// The palettes of a set: which there are, which shows, and where.
#include <ktui/docking/kbui_palette_set.h>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set_data.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/host/appearance.h>

#include <algorithm>

namespace {

/// Pixels that the strip takes from the set: 18, or as many as fit the screen of a host that follows it.
int stripWidth(HWND set) { return KtUiAppearancePixels(set, 18); }

}  // namespace

int CKbUiPaletteSet::GetPaletteCount() const { return m_data->m_tabs.GetTabCount(); }

CKbUiPalette* CKbUiPaletteSet::GetPalette(int index) const {
    if (index < 0 || index >= GetPaletteCount()) return nullptr;
    return static_cast<CKbUiPalette*>(m_data->m_tabs.GetTab(index)->m_window);
}

int CKbUiPaletteSet::GetTabIndex(CKbUiPalette* palette) const {
    for (int index = 0; index < GetPaletteCount(); ++index)
        if (GetPalette(index) == palette) return index;
    return -1;
}

CKbUiPalette* CKbUiPaletteSet::GetActivePalette() const { return GetPalette(m_data->m_tabs.GetActiveTab()); }

int CKbUiPaletteSet::GetActivePaletteTabIndex() const {
    const int active = m_data->m_tabs.GetActiveTab();
    // Kept: an index equal to the count is answered.
    return active < 0 || active > GetPaletteCount() ? -1 : active;
}

int CKbUiPaletteSet::AddPalette(CKbUiPalette* palette) {
    if (palette == nullptr) return -1;
    if (palette->m_hWnd == nullptr) {
        if (!palette->Create(this)) return -1;
        palette->UpdateWindow();
    }
    // Kept: hidden before the name is looked at, so a palette that is refused for its name is hidden too.
    if (GetPaletteCount() > 0) palette->ShowWindow(SW_HIDE);
    return m_data->m_tabs.InsertTab(0, palette->GetName(), palette->GetName(), palette);
}

int CKbUiPaletteSet::InsertPalette(int index, CKbUiPalette* palette) {
    const int count = GetPaletteCount();
    if (palette == nullptr || index < 0 || index > count) return -1;
    // Kept: hidden before the name is looked at.
    if (count != 0) palette->ShowWindow(SW_HIDE);
    // Kept: the index counts from the other end of the list.
    return m_data->m_tabs.InsertTab(count - index, palette->GetName(), palette->GetName(), palette);
}

void CKbUiPaletteSet::takeOut(int index) {
    CKbUiPalette* palette = GetPalette(index);
    palette->ShowWindow(SW_HIDE);
    m_data->m_tabs.RemoveTab(index);
    // Kept: so only a palette that was in the set twice has another shown in its place.
    if (GetActivePalette() == palette) SetActivePalette(std::max(index - 1, 0));
}

int CKbUiPaletteSet::RemovePalette(CKbUiPalette* palette) {
    const int index = palette != nullptr ? GetTabIndex(palette) : -1;
    if (index < 0) return 0;
    takeOut(index);
    return 1;
}

int CKbUiPaletteSet::RemovePalette(int index) {
    if (GetPalette(index) == nullptr) return 0;
    takeOut(index);
    return 1;
}

void CKbUiPaletteSet::UpdateTabs() {
    for (int index = 0; index < GetPaletteCount(); ++index)
        if (const CKbUiPalette* palette = GetPalette(index))
            m_data->m_tabs.SetTabText(index, palette->GetName());
    m_data->m_tabs.Invalidate(FALSE);
    m_data->m_tabs.UpdateWindow();
}

bool CKbUiPaletteSet::showsStrip() const {
    return GetPaletteCount() > 1 || (GetPaletteCount() == 1 && SinglePaletteTabStyle());
}

bool CKbUiPaletteSet::isStripAtLeft() const { return strip::IsAtLeft(m_data->m_tabs.GetStripStyle()); }

void CKbUiPaletteSet::placeStrip(CSize client) {
    const int width = stripWidth(m_hWnd);
    const int x = isStripAtLeft() ? 0 : static_cast<int>(client.cx) - width;
    m_data->m_tabs.MoveWindow(x, 0, width, static_cast<int>(client.cy));
}

void CKbUiPaletteSet::placePalette(CKbUiPalette& palette, CSize client) {
    const int width = stripWidth(m_hWnd);
    palette.MoveWindow(isStripAtLeft() ? width : 0, 0, static_cast<int>(client.cx) - width,
                       static_cast<int>(client.cy));
}

void CKbUiPaletteSet::showActive(CKbUiPalette& palette, int index) {
    CXToolTabCtrl& strip = m_data->m_tabs;
    palette.ShowWindow(SW_SHOW);
    if (strip.GetActiveTab() != index) {
        strip.StoreActiveTab(index);
        strip.Recalc();
    }
    strip.Invalidate(FALSE);
    CRect client;
    GetClientRect(&client);
    // Kept: the strip's width stays off also while the strip is hidden.
    placePalette(palette, client.Size());
}

int CKbUiPaletteSet::SetActivePalette(CKbUiPalette* palette) {
    if (palette == nullptr) return 0;
    if (GetPaletteCount() == 0) return 1;
    if (GetTabIndex(palette) < 0) return 0;
    CXToolTabCtrl& strip = m_data->m_tabs;
    for (int index = 0; index < GetPaletteCount(); ++index) {
        CKbUiPalette* each = GetPalette(index);
        if (each != palette) {
            if (each != nullptr) each->ShowWindow(SW_HIDE);
            continue;
        }
        showActive(*palette, index);
        CRect client;
        GetClientRect(&client);
        // Kept: a single palette's strip is hidden, also with style bit 64.
        if (GetPaletteCount() < 2)
            strip.MoveWindow(0, 0, 0, 0);
        else
            placeStrip(client.Size());
        strip.UpdateWindow();
        strip.BringWindowToTop();
        palette->Invalidate(TRUE);
        palette->BringWindowToTop();
    }
    return 1;
}

int CKbUiPaletteSet::SetActivePalette(int index) {
    if (index < 0 || index > GetPaletteCount()) return 0;
    for (int each = 0; each < GetPaletteCount(); ++each) {
        CKbUiPalette* palette = GetPalette(each);
        if (palette == nullptr) continue;
        if (each != index) {
            palette->ShowWindow(SW_HIDE);
            continue;
        }
        showActive(*palette, index);
        m_data->m_tabs.UpdateWindow();
        palette->Invalidate(TRUE);
        palette->BringWindowToTop();
    }
    return 1;
}
