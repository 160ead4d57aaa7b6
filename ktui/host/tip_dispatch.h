// The half of the notification protocol that every control with a tip shares: serving the tip questions, and
// reporting a mouse move to the holder.
//
// A control class befriends TipDispatch and forwards to it from DoKbUiMessage and OnMouseMove. Private to the
// library.
#pragma once

#include <afxwin.h>
#include <ktui/host/draw_tip_text.h>
#include <ktui/host/notification.h>

struct TipDispatch {
    /// Asks `control` what tip question `notification` asks and answers its reply. A question without a
    /// datum, and every other notification, is answered kKbUiReplyNone.
    template <class Control>
    static KBUI_REPLY serve(Control& control, KBUI_NOTIFY notification, __int64 datum) {
        if (datum == 0) return kKbUiReplyNone;
        switch (notification) {
            case kKbUiNotifyGetTipSupport: return control.OnGetTipSupport(at<CPoint>(datum));
            case kKbUiNotifyGetTipText: return handledIf(control.OnGetTipText(at<CString>(datum)));
            case kKbUiNotifyGetTipRect: return handledIf(control.OnGetTipRect(at<CRect>(datum)));
            case kKbUiNotifyHitTipRect: return handledIf(control.OnHitTipRect(at<CPoint>(datum)));
            case kKbUiNotifyDrawTip: control.OnDrawTip(at<CDC>(datum)); return kKbUiReplyHandled;
            case kKbUiNotifyDrawTipText: return handledIf(control.OnDrawTipText(at<CKbUiDrawTipText>(datum)));
            default: return kKbUiReplyNone;
        }
    }

    /// The object that a datum points to.
    template <class Object>
    static Object& at(__int64 datum) {
        return *reinterpret_cast<Object*>(datum);
    }

    /// The reply to a question that is answered by yes or no.
    static KBUI_REPLY handledIf(BOOL answer) { return answer ? kKbUiReplyHandled : kKbUiReplyNone; }

    /// Tells `receiver` that the mouse moved over `control`. Without a receiver nothing happens.
    static void reportMove(CWnd& control, CWnd* receiver) {
        if (!receiver) return;
        KbUiNotify(*receiver, static_cast<unsigned>(control.GetDlgCtrlID()), kKbUiNotifyUpdateTip,
                   reinterpret_cast<unsigned __int64>(&control));
    }
};
