#include "view_frame.h"

namespace documents_test {

IMPLEMENT_DYNCREATE(Sheet, CScrollView)
IMPLEMENT_DYNCREATE(Form, CFormView)

bool is_enabled(CCmdTarget& target, UINT id) {
    CCmdUI item;
    item.m_nID = id;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, id, L"item");
    item.m_pMenu = &menu;
    item.m_nIndex = 0;
    item.m_nIndexMax = 1;
    item.DoUpdate(&target, FALSE);
    return (menu.GetMenuState(0, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) == 0;
}

}  // namespace documents_test
