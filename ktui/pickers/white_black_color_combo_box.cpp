#include <ktui/pickers/white_black_color_combo_box.h>

#include <ktut.h>
#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CKtUiWhiteBlackTrueColorComboBox, CKtUiTrueColorComboBox)

CKtUiWhiteBlackTrueColorComboBox::CKtUiWhiteBlackTrueColorComboBox() {
    m_mruFlags &= ~(kUseOption1 | kUseOption2);
}

void CKtUiWhiteBlackTrueColorComboBox::OnAddItems() {
    initKtCmColorTable();
    clearEntry(kForegroundEntry);
    addStandardColors(kForegroundEntry - 1);
    OdCmColor color;
    color.setRGB(255, 255, 255);
    addFixedColor(ktutColorToStr(static_cast<short>(OdCmColor::kForeground)), color);
    color.setRGB(0, 0, 0);
    addFixedColor(LoadToolkitString(IDS_BLACK, L"黑").GetString(), color);
}

void CKtUiWhiteBlackTrueColorComboBox::addFixedColor(const wchar_t* text, const OdCmColor& color) {
    shiftAddedEntries();
    setEntry(kFirstAddedEntry, color);
    const int count = static_cast<int>(SendMessage(CB_GETCOUNT));
    AddItemToList(text, std::min(count, kFirstAddedEntry), kFirstAddedEntry);
}
