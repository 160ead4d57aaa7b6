#include "name_menu.h"

namespace {

constexpr unsigned kLastDigit = 9;  // entries with a key of their own

}  // namespace

void ListNamesInMenu(CCmdUI& item, const std::vector<CString>& names, UINT last, UINT none, int checked) {
    CMenu* const menu = item.m_pMenu;
    // The menu that this one hangs from asks as well.
    if (menu == nullptr || item.m_pSubMenu != nullptr) return;
    const UINT first = item.m_nID;
    for (UINT id = first; id <= last; ++id) menu->DeleteMenu(id, MF_BYCOMMAND);
    item.m_bEnableChanged = TRUE;
    if (names.empty()) {
        CString text;
        text.LoadString(none);
        menu->InsertMenu(item.m_nIndex, MF_BYPOSITION | MF_GRAYED, first, text);
        return;
    }
    for (UINT i = 0; i < names.size() && first + i <= last; ++i) {
        CString name(names[i]), text;
        name.Replace(L"&", L"&&");
        text.Format(i < kLastDigit ? L"&%u %s" : L"%u %s", i + 1, name.GetString());
        const UINT mark = static_cast<int>(i) == checked ? MF_CHECKED : MF_UNCHECKED;
        menu->InsertMenu(item.m_nIndex++, MF_BYPOSITION | mark, first + i, text);
    }
    // The caller goes on behind what was put in.
    item.m_nID = first + static_cast<UINT>(names.size());
    --item.m_nIndex;
    item.m_nIndexMax = static_cast<UINT>(menu->GetMenuItemCount());
}
