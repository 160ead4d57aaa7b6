#include <ktui/pickers/true_color_combo_box.h>

#include <ktui/pickers/viewport_override.h>

#include <afxdlgs.h>
#include <kh_system.h>
#include <ktut.h>
#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/current_layer.h>
#include <ktui/pickers/palette_lookup.h>
#include <ktui/pickers/swatch_painter.h>

#include <new>

namespace {

constexpr int kColorIndexCount = 256;

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiTrueColorComboBox, CKtUiMRUComboBox)

CKtUiTrueColorComboBox::CKtUiTrueColorComboBox() {
    m_mruFlags |= kUseOption1 | kUseOption2 | kUseOther1;
    m_cargoOption1 = kByLayerEntry;
    m_cargoOption2 = kByBlockEntry;
    m_blockColor.setColorIndex(OdCmColor::kForeground);
    initKtCmColorTable();
}

CKtUiTrueColorComboBox::~CKtUiTrueColorComboBox() = default;

CKtUiTrueColorComboBox::TableColor CKtUiTrueColorComboBox::makeColor(const OdCmColor& color) {
    void* memory = odrxAlloc(sizeof(OdCmColor));
    if (!memory) AfxThrowMemoryException();
    return TableColor(new (memory) OdCmColor(color));
}

OdCmColor* CKtUiTrueColorComboBox::entryAt(__int64 cargo) const {
    return cargo >= 0 && cargo < kTableSize ? m_colorTable[static_cast<std::size_t>(cargo)].get() : nullptr;
}

void CKtUiTrueColorComboBox::setEntry(int entry, const OdCmColor& color) {
    m_colorTable[static_cast<std::size_t>(entry)] = makeColor(color);
}

void CKtUiTrueColorComboBox::initKtCmColorTable() {
    for (int entry = kFirstAddedEntry; entry <= kLastEntry; ++entry) clearEntry(entry);
    OdCmColor color;
    color.setColorIndex(OdCmColor::kByLayerIndex);
    setEntry(kByLayerEntry, color);
    color.setColorIndex(OdCmColor::kByBlockIndex);
    setEntry(kByBlockEntry, color);
    for (int entry = kFirstStandardEntry; entry <= kForegroundEntry; ++entry) {
        color.setColorIndex(entry - 1);
        setEntry(entry, color);
    }
}

DWORD CKtUiTrueColorComboBox::GetColorFromIndex(int index) { return LookupColor(index, m_logPalette); }

int CKtUiTrueColorComboBox::GetOtherColor(OdCmColor& color, const OdCmColor& layerColor, int allowMeta) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    return host && host->showTrueColorDialog(color, allowMeta != 0, layerColor, nullptr) ? 1 : 0;
}

BOOL CKtUiTrueColorComboBox::GetCurrentLayerColor(OdCmColor& color) { return CurrentLayerColor(color); }

int CKtUiTrueColorComboBox::GetCurrentLayerVpOverride() { return 0; }

DWORD CKtUiTrueColorComboBox::LookupColor(int index, LOGPALETTE* palette) {
    COLORREF color = 0;
    return LookupInPalette(index, palette, color) ? color : LookupAtHost(index);
}

int CKtUiTrueColorComboBox::AddColorToMRU(const OdCmColor& color) {
    const int found = FindItemByColor(color);
    if (found >= 0) return found;
    const OdString text = ktutColorToStr(color);
    TableColor copy = makeColor(color);
    dropOldestOfFullList();
    shiftAddedEntries();
    m_colorTable[kFirstAddedEntry] = std::move(copy);
    return AddItemToList(text, positionOfNewest(), kFirstAddedEntry);
}

void CKtUiTrueColorComboBox::dropOldestOfFullList() {
    // Kept: only a list of exactly 25 is full. With an Other item in the list there are 26, and the oldest
    // then stays in the list although the table has dropped it.
    if (SendMessage(CB_GETCOUNT) != kTableSize || !entryAt(kLastEntry)) return;
    const int oldest = FindItemByCargo(kLastEntry);
    if (oldest >= 0) SendMessage(CB_DELETESTRING, static_cast<WPARAM>(oldest));
    clearEntry(kLastEntry);
}

void CKtUiTrueColorComboBox::shiftAddedEntries() {
    for (int entry = kLastEntry - 1; entry >= kFirstAddedEntry; --entry) {
        const OdCmColor* color = entryAt(entry);
        if (!color) continue;
        setEntry(entry + 1, *color);
        const int item = FindItemByCargo(entry);
        if (item >= 0) SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(item), entry + 1);
    }
}

int CKtUiTrueColorComboBox::positionOfNewest() {
    const int foreground = entryAt(kForegroundEntry) ? FindItemByCargo(kForegroundEntry) : -1;
    if (foreground >= 0) return foreground + 1;
    const int count = static_cast<int>(SendMessage(CB_GETCOUNT));
    return count < kFirstAddedEntry ? count : kFirstAddedEntry;
}

int CKtUiTrueColorComboBox::AddItemToMRU(const wchar_t*, int) { return -1; }

int CKtUiTrueColorComboBox::FindItemByColor(const OdCmColor& color) {
    for (int entry = 0; entry < kTableSize; ++entry) {
        const OdCmColor* candidate = entryAt(entry);
        if (candidate && *candidate == color) return FindItemByCargo(entry);
    }
    return -1;
}

void CKtUiTrueColorComboBox::GetCurrentItemColor(OdCmColor& color) {
    if (const OdCmColor* entry = entryAt(GetCurrentItemCargo())) color = *entry;
}

DWORD CKtUiTrueColorComboBox::getColorByCargo(int cargo) {
    const OdCmColor* entry = entryAt(cargo);
    return entry ? getColorData(*entry) : 0;
}

DWORD CKtUiTrueColorComboBox::getColorData(OdCmColor color) {
    if (color.isByACI()) return GetColorFromIndex(color.colorIndex());
    return RGB(color.red(), color.green(), color.blue());
}

int CKtUiTrueColorComboBox::GetColorIndex(DWORD color) {
    for (int index = 0; index < kColorIndexCount; ++index)
        if (GetColorFromIndex(index) == color) return index;
    return 0;
}

int CKtUiTrueColorComboBox::AddItemToList(const wchar_t* text, int index, __int64 cargo) {
    return InsertItemInList(index, text, cargo);
}

int CKtUiTrueColorComboBox::GetWindowsColor(OdCmColor& color) {
    CColorDialog dialog(color.color());
    if (dialog.DoModal() != IDOK) return 0;
    const COLORREF chosen = dialog.GetColor();
    color.setRGB(GetRValue(chosen), GetGValue(chosen), GetBValue(chosen));
    return 1;
}

void CKtUiTrueColorComboBox::GetLBString(int index, CString& text) {
    CKtUiMRUComboBox::GetLBString(index, text);
    const bool isByLayer = index >= 0 && GetItemCargo(index) == kByLayerEntry;
    if (isByLayer && GetCurrentLayerVpOverride()) text += kViewportOverrideSuffix;
}

int CKtUiTrueColorComboBox::GetOtherName(int, CString& text) {
    text = LoadToolkitString(IDS_CHOOSE_COLOR_ITEM, L"选择颜色...");
    return 1;
}

void CKtUiTrueColorComboBox::addStandardColors(int lastEntry) {
    for (int entry = kFirstStandardEntry; entry <= lastEntry; ++entry)
        AddItemToList(ktutColorToStr(static_cast<short>(entry - 1)), -1, entry);
}

void CKtUiTrueColorComboBox::OnAddItems() {
    initKtCmColorTable();
    addStandardColors(kForegroundEntry);
}

int CKtUiTrueColorComboBox::OnSelectOther(int which, int lastSel, int& newIndex) {
    OdCmColor color;
    if (const OdCmColor* current = entryAt(GetItemCargo(lastSel))) color = *current;
    if (which != 0) {
        if (!GetWindowsColor(color)) return 0;
    } else {
        OdCmColor layerColor;
        if (!GetCurrentLayerColor(layerColor)) return 0;
        // Kept: the ByBlock flag isn't looked at, unlike in the indexed picker.
        if (!GetOtherColor(color, layerColor, GetUseByLayer())) return 0;
    }
    newIndex = AddColorToMRU(color);
    return newIndex >= 0 ? 1 : 0;
}

void CKtUiTrueColorComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    SwatchPainter swatch(dc, rect);
    switch (cargo) {
        case kCargoOther: swatch.fillRamp([this](int index) { return GetColorFromIndex(index); }); break;
        case kForegroundEntry: swatch.fillDiagonal(); break;
        case kByLayerEntry: {
            OdCmColor layerColor;
            GetCurrentLayerColor(layerColor);
            swatch.fillSolid(getColorData(layerColor));
            break;
        }
        case kByBlockEntry: swatch.fillSolid(getColorData(m_blockColor)); break;
        default: swatch.fillSolid(entryAt(cargo) ? getColorByCargo(static_cast<int>(cargo)) : 0); break;
    }
}
