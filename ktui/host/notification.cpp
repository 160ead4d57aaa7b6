#include <afxwin.h>
#include <ktui/host/notification.h>

UINT KbUiMessage() { return ::RegisterWindowMessageW(kKbUiMessageName); }

KBUI_NOTIFY KbUiNotification(WPARAM wParam) { return UnpackKbUiNotification(wParam); }

unsigned KbUiNotifyId(WPARAM wParam) { return UnpackKbUiNotifyId(wParam); }

KBUI_REPLY KbUiNotify(CWnd& window, unsigned id, KBUI_NOTIFY notification, unsigned __int64 datum) {
    const LRESULT reply = ::SendMessageW(window.m_hWnd, KbUiMessage(), PackKbUiNotification(id, notification),
                                         static_cast<LPARAM>(datum));
    return static_cast<KBUI_REPLY>(static_cast<int>(reply));
}

KBUI_REPLY KbUiNotify(CWnd* window, unsigned id, KBUI_NOTIFY notification, unsigned __int64 datum) {
    return window ? KbUiNotify(*window, id, notification, datum) : kKbUiReplyNone;
}

LRESULT OfferKbUiMessageToChild(const CWnd& holder, WPARAM wParam, LPARAM lParam) {
    const unsigned id = UnpackKbUiNotifyId(wParam);
    if (id == 0) return 0;
    const HWND child = ::GetDlgItem(holder.m_hWnd, static_cast<int>(id));
    return child ? ::SendMessageW(child, KbUiMessage(), wParam, lParam) : 0;
}
