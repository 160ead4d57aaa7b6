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
    /// Asks `control` what tip question `notification` asks and answers its reply. Only a question to paint
    /// needs its datum; without one, and for every other notification, the reply is kKbUiReplyNone.
    template <class Control>
    static KBUI_REPLY serve(Control& control, KBUI_NOTIFY notification, __int64 datum) {
        CPoint lastPoint = control.m_lastMousePoint;
        CRect noRect(0, 0, 0, 0);
        switch (notification) {
            case kKbUiNotifyGetTipSupport: return control.OnGetTipSupport(at(datum, lastPoint));
            case kKbUiNotifyGetTipText: return serveText(control, datum);
            case kKbUiNotifyGetTipRect: return handledIf(control.OnGetTipRect(at(datum, noRect)));
            case kKbUiNotifyHitTipRect: return handledIf(control.OnHitTipRect(at(datum, lastPoint)));
            case kKbUiNotifyDrawTip:
                if (datum == 0) return kKbUiReplyNone;
                control.OnDrawTip(*reinterpret_cast<CDC*>(datum));
                return kKbUiReplyHandled;
            case kKbUiNotifyDrawTipText:
                if (datum == 0) return kKbUiReplyNone;
                return handledIf(control.OnDrawTipText(*reinterpret_cast<CKbUiDrawTipText*>(datum)));
            default: return kKbUiReplyNone;
        }
    }

    /// Asks `control` for its tip's text.
    template <class Control>
    static KBUI_REPLY serveText(Control& control, __int64 datum) {
        CString unwanted;
        return handledIf(control.OnGetTipText(at(datum, unwanted)));
    }

    /// The object that a datum points to. A sender that has none gives 0 or 1, which say whether its tip is
    /// new or known; `substitute` then stands in: of a point, that of the last move.
    template <class Object>
    static Object& at(__int64 datum, Object& substitute) {
        constexpr __int64 kKnown = 1;
        return datum == 0 || datum == kKnown ? substitute : *reinterpret_cast<Object*>(datum);
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
