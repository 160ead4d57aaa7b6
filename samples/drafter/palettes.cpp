#include "palettes.h"

#include <algorithm>

#include <afxwinappex.h>

#include "resource.h"
#include "resource_text.h"

namespace {

constexpr int kSetId = 4001, kExtensionSetId = 4002;  // the keys of their state
constexpr DWORD kSetStyle = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | CBRS_LEFT | CBRS_FLOAT_MULTI;
constexpr int kDockedWidth = 330, kExtensionWidth = 260, kHeight = 480;  // pixels at 96 dots an inch
constexpr const wchar_t* kSection = L"Palettes";                         // below the application's state
constexpr const wchar_t* kHidden = L"Hidden";  // a bit for each palette, in the order of the strip
constexpr int kHiddenAtFirst = 4;              // the blocks
constexpr const wchar_t* kActive = L"Active";  // command of the palette in front
constexpr const wchar_t* kLocks = L"Locks";    // the two bits below
constexpr int kDockedBit = 1, kFloatingBit = 2;

}  // namespace

CPalettes::CPalettes(std::function<void(UINT name)> changed, std::function<void()> redrawn,
                     CBlockTarget& target)
    : m_properties(std::move(changed)), m_layers(std::move(redrawn)), m_blocks(target) {}

CPalettes::~CPalettes() = default;

bool CPalettes::Create(CMDIFrameWndEx& frame) {
    m_frame = &frame;
    const int width = KtUiAppearancePixels(frame.m_hWnd, kDockedWidth);
    const int height = KtUiAppearancePixels(frame.m_hWnd, kHeight);
    if (!m_set.Create(textOf(IDS_PALETTES), kSetStyle, CRect(0, 0, width, height), &frame,
                      kKbUiSinglePaletteTab))
        return false;
    m_set.SetDlgCtrlID(kSetId);
    add(ID_VIEW_PALETTE_PROPERTIES,
        std::make_unique<CPanelPalette>(IDS_PALETTE_PROPERTIES, m_properties, IDD_PROPERTIES_PANEL));
    add(ID_VIEW_PALETTE_LAYERS,
        std::make_unique<CPanelPalette>(IDS_PALETTE_LAYERS, m_layers, IDD_LAYERS_PANEL));
    add(ID_VIEW_PALETTE_BLOCKS,
        std::make_unique<CPanelPalette>(IDS_PALETTE_BLOCKS, m_blocks, IDD_BLOCKS_PANEL));
    // At first the blocks are hidden.
    takeOut(m_entries.back());
    if (m_entries.front().palette != nullptr) m_set.SetActivePalette(m_entries.front().palette);
    m_set.EnableDocking(CBRS_ALIGN_ANY);
    frame.DockPane(&m_set, AFX_IDW_DOCKBAR_LEFT);
    return true;
}

void CPalettes::AddExtension(CExtensions& extensions, CDrafterServices& services) {
    const CSize size(KtUiAppearancePixels(m_frame->m_hWnd, kExtensionWidth),
                     KtUiAppearancePixels(m_frame->m_hWnd, kHeight));
    if (!m_extensionSet.Create(textOf(IDS_EXTENSION_PALETTES), kSetStyle, CRect(CPoint(0, 0), size), m_frame,
                               kKbUiSinglePaletteTab))
        return;
    if (!extensions.AddPalettes(m_extensionSet, services)) {
        m_extensionSet.DestroyWindow();
        return;
    }
    m_extensionSet.SetDlgCtrlID(kExtensionSetId);
    CKbUiPalette* const front = m_extensionSet.GetPalette(m_extensionSet.GetPaletteCount() - 1);
    m_extensionSet.SetName(front->GetName());
    m_extensionSet.SetActivePalette(front);
    m_extensionSet.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->DockPane(&m_extensionSet, AFX_IDW_DOCKBAR_RIGHT);
    m_frame->ShowPane(&m_extensionSet, FALSE, FALSE, FALSE);
}

void CPalettes::add(UINT command, std::unique_ptr<CPanelPalette> palette) {
    if (m_set.AddPalette(palette.get()) != 0) palette.reset();
    m_entries.push_back({command, palette.release(), nullptr});
}

CPalettes::Entry* CPalettes::entryOf(UINT command) {
    for (Entry& entry : m_entries)
        if (entry.command == command) return &entry;
    return nullptr;
}

const CPalettes::Entry* CPalettes::entryOf(UINT command) const {
    return const_cast<CPalettes*>(this)->entryOf(command);
}

void CPalettes::ShowDrawing(CDraftDocument& document) {
    if (m_layers.m_hWnd != nullptr) m_layers.Show(*document.database(), document.history());
    m_blocks.Show(*document.database());
    enableExtension(true);
}

void CPalettes::ShowNothing() {
    m_properties.ShowNothing();
    m_layers.ShowNothing();
    m_blocks.ShowNothing();
    enableExtension(false);
}

/// Its palettes know only the working drawing, and nothing of there being none.
void CPalettes::enableExtension(bool enable) {
    for (int i = 0; isExtensionThere() && i < m_extensionSet.GetPaletteCount(); ++i)
        m_extensionSet.GetPalette(i)->EnableWindow(enable);
}

void CPalettes::ShowObjects(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects) {
    m_properties.Show(drawing, objects);
}

void CPalettes::TakeTyped() { m_properties.TakeTyped(); }

bool CPalettes::IsThere(UINT command) const {
    if (command == ID_VIEW_PALETTE_EXTENSION) return isExtensionThere();
    const Entry* entry = entryOf(command);
    return entry != nullptr && entry->palette != nullptr;
}

bool CPalettes::IsShown(UINT command) const {
    if (command == ID_VIEW_PALETTE_EXTENSION) return isExtensionThere() && m_extensionSet.IsVisible();
    const Entry* entry = entryOf(command);
    return entry != nullptr && entry->palette != nullptr && !entry->hidden && m_set.IsVisible();
}

/// Puts the palette into the set, at its place on the strip.
void CPalettes::putIn(Entry& entry) {
    if (!entry.hidden) return;
    int above = 0;
    for (const Entry& each : m_entries) {
        if (&each == &entry) break;
        if (each.palette != nullptr && !each.hidden) ++above;
    }
    m_set.InsertPalette(above, entry.hidden.release());
    m_set.SetActivePalette(entry.palette);
}

void CPalettes::takeOut(Entry& entry) {
    if (entry.palette == nullptr || entry.hidden) return;
    CKbUiPalette* const front = m_set.GetActivePalette();
    m_set.RemovePalette(entry.palette);
    entry.hidden.reset(entry.palette);
    // The set shows no other in its place.
    const bool wasInFront = front == entry.palette;
    if (m_set.GetPaletteCount() > 0)
        m_set.SetActivePalette(wasInFront ? m_set.GetPalette(m_set.GetPaletteCount() - 1) : front);
}

void CPalettes::Toggle(UINT command) {
    if (command == ID_VIEW_PALETTE_EXTENSION) {
        const BOOL show = !IsShown(command);
        if (isExtensionThere()) m_frame->ShowPane(&m_extensionSet, show, FALSE, show);
        return;
    }
    Entry* const entry = entryOf(command);
    if (entry == nullptr || entry->palette == nullptr) return;
    if (!IsShown(command)) {
        putIn(*entry);
        m_set.SetActivePalette(entry->palette);
        m_frame->ShowPane(&m_set, TRUE, FALSE, TRUE);
        return;
    }
    // The keys go on in the drawing.
    if (entry->palette->HasFocus()) m_frame->SetFocus();
    takeOut(*entry);
    if (m_set.GetPaletteCount() == 0) m_frame->ShowPane(&m_set, FALSE, FALSE, FALSE);
}

void CPalettes::Open(UINT command) {
    Entry* const entry = entryOf(command);
    if (entry == nullptr || entry->palette == nullptr) return;
    putIn(*entry);
    m_set.SetActivePalette(entry->palette);
    m_frame->ShowPane(&m_set, TRUE, FALSE, TRUE);
    entry->palette->FocusPanel();
}

bool CPalettes::IsLocked(UINT command) const {
    return command == ID_VIEW_LOCK_DOCKED ? m_isDockedLocked : m_isFloatingLocked;
}

void CPalettes::ToggleLock(UINT command) {
    bool& locked = command == ID_VIEW_LOCK_DOCKED ? m_isDockedLocked : m_isFloatingLocked;
    locked = !locked;
    lock();
}

void CPalettes::lock() const { KbUiLockPanel(m_isDockedLocked, m_isFloatingLocked); }

void CPalettes::Load(CWinAppEx& keeper) {
    const int hidden = keeper.GetSectionInt(kSection, kHidden, kHiddenAtFirst);
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if ((hidden >> i & 1) != 0)
            takeOut(m_entries[i]);
        else
            putIn(m_entries[i]);
    }
    const Entry* front = entryOf(static_cast<UINT>(keeper.GetSectionInt(kSection, kActive, 0)));
    if (front != nullptr && front->palette != nullptr && !front->hidden)
        m_set.SetActivePalette(front->palette);
    if (m_set.GetPaletteCount() == 0) m_frame->ShowPane(&m_set, FALSE, FALSE, FALSE);
    const int locks = keeper.GetSectionInt(kSection, kLocks, 0);
    m_isDockedLocked = (locks & kDockedBit) != 0;
    m_isFloatingLocked = (locks & kFloatingBit) != 0;
    lock();
}

void CPalettes::Save(CWinAppEx& keeper) const {
    int hidden = 0;
    UINT front = 0;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].hidden) hidden |= 1 << i;
        if (m_entries[i].palette != nullptr && m_entries[i].palette == m_set.GetActivePalette())
            front = m_entries[i].command;
    }
    keeper.WriteSectionInt(kSection, kHidden, hidden);
    keeper.WriteSectionInt(kSection, kActive, static_cast<int>(front));
    keeper.WriteSectionInt(kSection, kLocks,
                           (m_isDockedLocked ? kDockedBit : 0) | (m_isFloatingLocked ? kFloatingBit : 0));
}

void CPalettes::Enable(bool enable) {
    for (CKbUiPaletteSet* set : {&m_set, &m_extensionSet}) {
        if (set->m_hWnd == nullptr) continue;
        set->EnableWindow(enable);
        // One that floats can't be dragged or closed by its frame either.
        if (CPaneFrameWnd* const floating = set->GetParentMiniFrame()) floating->EnableWindow(enable);
    }
}

void CPalettes::RaiseFloating() {
    for (CKbUiPaletteSet* set : {&m_set, &m_extensionSet}) {
        CPaneFrameWnd* const floating = set->m_hWnd != nullptr ? set->GetParentMiniFrame() : nullptr;
        if (floating == nullptr || !floating->IsWindowVisible()) continue;
        floating->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}
