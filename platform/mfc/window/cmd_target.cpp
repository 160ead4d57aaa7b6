// Command routing, update-command-UI requests and the wait cursor.
#include <kmfc/app.h>

#include "message_dispatch.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    UINT message = WM_COMMAND;
    if (nCode != CN_UPDATE_COMMAND_UI) {
        if (HIWORD(nCode) != 0) message = HIWORD(nCode);
        nCode = message == WM_NOTIFY || message == WM_REFLECT_BASE + WM_NOTIFY
                    ? static_cast<int>(static_cast<short>(LOWORD(nCode)))
                    : LOWORD(nCode);
    }
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        const AFX_MSGMAP_ENTRY* entry =
            kmfc::find_command_entry(map->lpEntries, message, static_cast<UINT>(nCode), nID);
        if (entry != nullptr)
            return kmfc::invoke_command_handler(this, nID, nCode, *entry, pExtra, pHandlerInfo);
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(1);
}
void CCmdTarget::EndWaitCursor() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(-1);
}
void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(1);
}
CWaitCursor::~CWaitCursor() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(-1);
}
void CWaitCursor::Restore() {
    if (CWinApp* app = AfxGetApp()) app->DoWaitCursor(0);
}

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr) return;
        ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex,
                         MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        return;
    }
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd) m_pOther->GetParent()->NextDlgCtrl();
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr)
            ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
        return;
    }
    if (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr) return;
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfoW(m_pMenu->m_hMenu, m_nIndex, TRUE, &info)) return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfoW(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu == nullptr) {
        AfxSetWindowText(m_pOther->m_hWnd, lpszText);
        return;
    }
    if (m_pSubMenu != nullptr) return;
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STRING;
    info.dwTypeData = const_cast<LPTSTR>(lpszText);
    ::SetMenuItemInfoW(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF) return TRUE;
    m_bEnableChanged = FALSE;
    const BOOL handled = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
