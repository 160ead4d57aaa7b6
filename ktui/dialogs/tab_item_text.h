// The text of a tab control's item. Private to the library.
#pragma once

#include <afxcmn.h>

/// Reads the text of item `index`, up to 259 characters of it; false without such an item.
inline bool ReadTabItemText(const CTabCtrl& tab, int index, CString& text) {
    constexpr int kItemTextLength = 260;
    wchar_t buffer[kItemTextLength] = {};
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = buffer;
    item.cchTextMax = kItemTextLength;
    if (!tab.GetItem(index, &item)) return false;
    text = item.pszText;
    return true;
}
