// CMFCToolBar: the states of its buttons, asked of whoever handles their commands.
#include <kmfc/frame.h>
#include <kmfc/tool_bar_ex.h>

#include "../window/bar_item_request.h"

void CMFCToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    kmfc::ButtonRequest(*this).ask_all(GetCount(), pTarget, bDisableIfNoHndler);
    CPane::OnUpdateCmdUI(pTarget, bDisableIfNoHndler);
}
