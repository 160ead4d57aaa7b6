#include <ktui/pickers/color_combo_box.h>

#include <afxdlgs.h>
#include <kh_system.h>
#include <ktut.h>
#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/current_layer.h>
#include <ktui/pickers/palette_lookup.h>
#include <ktui/pickers/swatch_painter.h>

namespace {

constexpr int kByLayerIndex = 256;
constexpr int kByBlockIndex = 0;
constexpr int kForegroundIndex = 7;  // white on dark, black on light
constexpr int kFirstStandardColor = 1;
constexpr int kLastStandardColor = 7;

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiColorComboBox, CKtUiMRUComboBox)

CKtUiColorComboBox::CKtUiColorComboBox() {
    m_mruFlags |= kUseOption1 | kUseOption2 | kUseOther1;
    m_cargoOption1 = kByLayerIndex;
    m_cargoOption2 = kByBlockIndex;
}

int CKtUiColorComboBox::GetOtherColorIndex(int current, int layerIndex, int allowMeta, int& chosen) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    if (!host) return 0;
    chosen = current;
    return host->showColorIndexDialog(chosen, allowMeta != 0, layerIndex) ? 1 : 0;
}

int CKtUiColorComboBox::GetWindowsColor(DWORD& color) {
    CColorDialog dialog(color);
    if (dialog.DoModal() != IDOK) return 0;
    color = dialog.GetColor();
    return 1;
}

DWORD CKtUiColorComboBox::GetColorFromIndex(int index) { return LookupColor(index, m_logPalette); }

int CKtUiColorComboBox::GetColorIndex(DWORD) { return -1; }

int CKtUiColorComboBox::GetCurrentLayerColorIndex() { return CurrentLayerColorIndex(); }

DWORD CKtUiColorComboBox::LookupColor(int index, LOGPALETTE* palette) {
    COLORREF color = 0;
    return LookupInPalette(index, palette, color) ? color : LookupAtHost(index);
}

int CKtUiColorComboBox::indexOf(__int64 cargo) {
    const int index = static_cast<int>(cargo);
    return index == cargo ? index : -1;
}

int CKtUiColorComboBox::AddColorToMRU(int index) {
    return AddItemToMRU(ktutColorToStr(static_cast<short>(index)), index);
}

int CKtUiColorComboBox::GetOtherName(int, CString& text) {
    text = LoadToolkitString(IDS_CHOOSE_COLOR_ITEM, L"选择颜色...");
    return 1;
}

void CKtUiColorComboBox::OnAddItems() {
    for (int index = kFirstStandardColor; index <= kLastStandardColor; ++index)
        AddItemToList(ktutColorToStr(static_cast<short>(index)), index);
}

int CKtUiColorComboBox::OnSelectOther(int, int lastSel, int& newIndex) {
    const int current = indexOf(GetItemCargo(lastSel));
    const int layerIndex = GetCurrentLayerColorIndex();
    const int allowMeta = GetUseByLayer() && GetUseByBlock() ? 1 : 0;
    int chosen = -1;
    if (!GetOtherColorIndex(current, layerIndex, allowMeta, chosen)) return 0;
    newIndex = FindItemByCargo(chosen);
    if (newIndex < 0) newIndex = AddColorToMRU(chosen);
    return newIndex >= 0 ? 1 : 0;
}

void CKtUiColorComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    SwatchPainter swatch(dc, rect);
    switch (cargo) {
        case kCargoOther: swatch.fillRamp([this](int index) { return GetColorFromIndex(index); }); break;
        case kForegroundIndex: swatch.fillDiagonal(); break;
        case kByLayerIndex: swatch.fillSolid(GetColorFromIndex(GetCurrentLayerColorIndex())); break;
        case kByBlockIndex: swatch.fillSolid(GetColorFromIndex(m_blockColorIndex)); break;
        default: swatch.fillSolid(GetColorFromIndex(indexOf(cargo))); break;
    }
}
