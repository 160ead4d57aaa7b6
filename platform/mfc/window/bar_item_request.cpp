#include "bar_item_request.h"

namespace kmfc {

void BarItemRequest::ask_all(int count, CCmdTarget* target, BOOL disableIfNoHandler) {
    m_nIndexMax = static_cast<UINT>(count);
    for (m_nIndex = 0; m_nIndex < m_nIndexMax; ++m_nIndex) {
        m_nID = command_of(index());
        if (m_nID == 0) continue;
        m_bContinueRouting = FALSE;
        const BOOL answered = m_pOther->CWnd::OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
        if (!answered || m_bContinueRouting) DoUpdate(target, disableIfNoHandler);
    }
}

}  // namespace kmfc
