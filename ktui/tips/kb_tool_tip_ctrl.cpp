#include <ktui/tips/kb_tool_tip_ctrl.h>

#include <od_host_services.h>
#include <od_tool_tip_setting.h>

BEGIN_MESSAGE_MAP(CKbToolTipCtrl, CToolTipCtrl)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

int CKbToolTipCtrl::s_defaultDelay = 500;

void CKbToolTipCtrl::SetDeaultDelayTime(int milliseconds) {
    if (milliseconds > 0) s_defaultDelay = milliseconds;
}

int CKbToolTipCtrl::OnCreate(LPCREATESTRUCT) {
    const int result = static_cast<int>(Default());
    SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, s_defaultDelay);
    SendMessage(TTM_SETMAXTIPWIDTH, 0, ::GetSystemMetrics(SM_CXSCREEN) / 4);
    return result;
}

void CKbToolTipCtrl::OnDestroy() { CToolTipCtrl::OnDestroy(); }

BOOL CKbToolTipCtrl::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == TTM_RELAYEVENT) {
        const auto* const setting = dynamic_cast<const OdDbToolTipSetting*>(oddbHostApplicationServices());
        if (setting != nullptr && setting->toolTips() == 0) {
            if (result != nullptr) *result = 1;
            return TRUE;
        }
    }
    return CToolTipCtrl::OnWndMsg(message, wParam, lParam, result);
}
