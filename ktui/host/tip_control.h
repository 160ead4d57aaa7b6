// KbUiTipControl: the half of the notification protocol that every control with a tip shares. A control
// reports the mouse moves over it to its holder, passes on what is meant for a child of its own, and serves
// the tip questions through virtual operations.
#pragma once

#include <afxwin.h>

#include <ktui/host/draw_tip_text.h>
#include <ktui/host/notification.h>

/// `Slots` is the platform's control with the virtual operations that stand before those of the tip: the
/// order of the slots is fixed. `Control` is the class itself; it befriends this one and holds, where its own
/// fields want them, m_lastMousePoint (the last move that was reported) and m_kbUiParent (who is told, or
/// null).
template <class Control, class Slots>
class KbUiTipControl : public Slots {
public:
    /// Who is told of mouse moves: the window set, or else the parent window. Not owned.
    CWnd* GetKbUiParent() const {
        CWnd* const set = static_cast<const Control*>(this)->m_kbUiParent;
        return set ? set : this->GetParent();
    }
    /// Sets who is told; null for the parent window. Not owned.
    void SetKbUiParent(CWnd* parent) { self().m_kbUiParent = parent; }

protected:
    using TipControl = KbUiTipControl;

    /// Answers a notification; kKbUiReplyNone for those that the class doesn't know.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum);
    /// Paints an owner-drawn tip.
    virtual void OnDrawTip(CDC&) {}
    /// Paints a text tip; FALSE if there is none.
    virtual BOOL OnDrawTipText(CKbUiDrawTipText&) { return FALSE; }
    /// What tip there is at a point (client).
    virtual KBUI_REPLY OnGetTipSupport(CPoint&) { return kKbUiReplyNone; }
    /// TRUE with the tip's rectangle (client) if a tip is wanted.
    virtual BOOL OnGetTipRect(CRect&) { return FALSE; }
    /// TRUE with the tip's text if there is one.
    virtual BOOL OnGetTipText(CString&) { return FALSE; }
    /// TRUE if a point (client) is on the tip's subject.
    virtual BOOL OnHitTipRect(CPoint&) { return FALSE; }

    afx_msg void OnMouseMove(UINT flags, CPoint point) {
        Slots::OnMouseMove(flags, point);
        if (point != self().m_lastMousePoint) reportMove(point);
    }
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
        if (const LRESULT reply = OfferKbUiMessageToChild(*this, wParam, lParam)) return reply;
        return DoKbUiMessage(KbUiNotification(wParam), KbUiNotifyId(wParam), lParam);
    }

    /// Remembers a move and tells the holder of it; without a holder that is all.
    void reportMove(CPoint point) {
        self().m_lastMousePoint = point;
        KbUiNotify(GetKbUiParent(), static_cast<unsigned>(this->GetDlgCtrlID()), kKbUiNotifyUpdateTip,
                   reinterpret_cast<unsigned __int64>(static_cast<CWnd*>(this)));
    }
    /// Asks for the tip's text.
    KBUI_REPLY serveTipText(__int64 datum) {
        CString unwanted;
        return handledIf(OnGetTipText(at(datum, unwanted)));
    }

private:
    Control& self() { return *static_cast<Control*>(this); }

    /// The object that a datum points to. A sender that has none gives 0 or 1, which say whether its tip is
    /// new or known; `substitute` then stands in: of a point, that of the last move.
    template <class Object>
    static Object& at(__int64 datum, Object& substitute) {
        constexpr __int64 kKnown = 1;
        return datum == 0 || datum == kKnown ? substitute : *reinterpret_cast<Object*>(datum);
    }
    /// The reply to a question that is answered by yes or no.
    static KBUI_REPLY handledIf(BOOL answer) { return answer ? kKbUiReplyHandled : kKbUiReplyNone; }
};

template <class Control, class Slots>
KBUI_REPLY KbUiTipControl<Control, Slots>::DoKbUiMessage(KBUI_NOTIFY notification, unsigned, __int64 datum) {
    CPoint lastPoint = self().m_lastMousePoint;
    CRect noRect(0, 0, 0, 0);
    switch (notification) {
        case kKbUiNotifyGetTipSupport: return OnGetTipSupport(at(datum, lastPoint));
        case kKbUiNotifyGetTipText: return serveTipText(datum);
        case kKbUiNotifyGetTipRect: return handledIf(OnGetTipRect(at(datum, noRect)));
        case kKbUiNotifyHitTipRect: return handledIf(OnHitTipRect(at(datum, lastPoint)));
        // Only a question to paint needs its datum.
        case kKbUiNotifyDrawTip:
            if (datum == 0) return kKbUiReplyNone;
            OnDrawTip(*reinterpret_cast<CDC*>(datum));
            return kKbUiReplyHandled;
        case kKbUiNotifyDrawTipText:
            if (datum == 0) return kKbUiReplyNone;
            return handledIf(OnDrawTipText(*reinterpret_cast<CKbUiDrawTipText*>(datum)));
        default: return kKbUiReplyNone;
    }
}

/// The first virtual operation of a control whose entries have one index.
template <class Base>
class KbUiEntrySlots : public Base {
public:
    /// Width and height in pixels of `text`; 0 by 0 unless `index` is an entry.
    virtual void GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) = 0;
};
