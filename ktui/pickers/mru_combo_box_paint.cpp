// How CKtUiMRUComboBox draws an item: image, background, text.
#include <ktui/pickers/mru_combo_box.h>

#include <ktui/host/appearance.h>

void CKtUiMRUComboBox::DrawItem(LPDRAWITEMSTRUCT item) {
    const int index = static_cast<int>(item->itemID);
    if (index == -1) return;
    CDC* dc = CDC::FromHandle(item->hDC);
    CRect itemRect;
    CRect imageRect;
    DWORD textColor = 0;
    DWORD backColor = 0;
    SetupForImageDraw(item, dc, itemRect, imageRect, textColor, backColor);
    DrawItemImageFromCargo(dc, imageRect, index);
    DrawTextAndFocusRect(item, dc, itemRect, index, textColor, backColor);
}

void CKtUiMRUComboBox::SetupForImageDraw(DRAWITEMSTRUCT* item, CDC*, CRect& itemRect, CRect& imageRect,
                                         DWORD& textColor, DWORD& backColor) {
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    const bool inEdit = (item->itemState & ODS_COMBOBOXEDIT) != 0;
    itemRect = item->rcItem;
    imageRect = itemRect;
    imageRect.right = imageRect.left + ImageWidth();
    textColor = ::GetSysColor(selected && !inEdit ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
    if ((item->itemState & ODS_DISABLED) && KtUiFollowsSystemAppearance())
        textColor = ::GetSysColor(COLOR_GRAYTEXT);
    backColor = ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW);
}

void CKtUiMRUComboBox::DrawItemImageFromCargo(CDC* dc, CRect& rect, int index) {
    DrawItemImage(*dc, rect, GetItemCargo(index));
}

void CKtUiMRUComboBox::DrawTextAndFocusRect(DRAWITEMSTRUCT* item, CDC* dc, CRect& itemRect, int index,
                                            DWORD& textColor, DWORD& backColor) {
    CRect textRect = itemRect;
    textRect.left += ImageWidth();
    // Kept: the closed face is never filled here.
    if (!(item->itemState & ODS_COMBOBOXEDIT)) dc->FillSolidRect(&textRect, backColor);

    CString text;
    GetLBString(index, text);
    if (text.IsEmpty()) return;
    const COLORREF formerColor = dc->SetTextColor(textColor);
    const int formerMode = dc->SetBkMode(TRANSPARENT);
    dc->DrawText(text, &textRect, DT_SINGLELINE | DT_VCENTER);
    dc->SetBkMode(formerMode);
    dc->SetTextColor(formerColor);
}

void CKtUiMRUComboBox::CreateAndSelectPalette(DRAWITEMSTRUCT*, CDC*) {}

void CKtUiMRUComboBox::ResetAndRestorePalette(CDC*, int) {}

void CKtUiMRUComboBox::DrawItemImage(CDC&, CRect&, __int64) {}
