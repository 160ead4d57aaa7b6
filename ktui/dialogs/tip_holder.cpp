#include <ktui/dialogs/tip_holder.h>

#include <ktui/host/appearance.h>
#include <ktui/host/window_context.h>
#include <ktui/tips/kbui_text_tip.h>

namespace {

constexpr COLORREF kToolTipPaper = 0xF9F9F9;
constexpr COLORREF kToolTipInk = 0x4B4846;
constexpr int kToolTipMargin = 3;  // pixels on each side

/// A datum that points to a local object of the sender.
template <class Object>
unsigned __int64 datumOf(Object& object) {
    return reinterpret_cast<unsigned __int64>(&object);
}

}  // namespace

void TipHolder::SetUseTips(int useTips) {
    m_useTips = useTips;
    if (useTips == 1)
        create();
    else
        destroy();
}

void TipHolder::End() {
    m_useTips = 0;
    destroy();
}

void TipHolder::create() {
    if (m_textTip == nullptr) {
        m_textTip = new CKbUiTextTip;
        m_textTip->Create(&m_window);
    }
    if (m_toolTip != nullptr) return;
    m_window.EnableToolTips(TRUE);
    m_toolTip = new CToolTipCtrl;
    m_toolTip->Create(&m_window, TTS_ALWAYSTIP);
    m_toolTip->SendMessage(TTM_SETTIPBKCOLOR, KtUiAppearanceColor(kToolTipPaper, COLOR_INFOBK));
    m_toolTip->SendMessage(TTM_SETTIPTEXTCOLOR, KtUiAppearanceColor(kToolTipInk, COLOR_INFOTEXT));
    RECT margin = {kToolTipMargin, kToolTipMargin, kToolTipMargin, kToolTipMargin};
    m_toolTip->SendMessage(TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    m_toolTip->SendMessage(m_rules.lastMessage, m_rules.lastWord, m_rules.lastDatum);
}

void TipHolder::destroy() {
    if (m_textTip != nullptr) {
        m_textTip->DestroyWindow();
        delete m_textTip;
        m_textTip = nullptr;
    }
    if (m_toolTip != nullptr) {
        m_toolTip->DestroyToolTipCtrl();
        delete m_toolTip;
        m_toolTip = nullptr;
    }
}

void TipHolder::Relay(const MSG& message) {
    if (m_toolTip != nullptr) m_toolTip->SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}

LRESULT TipHolder::Route(WPARAM wParam, LPARAM lParam) {
    const unsigned id = UnpackKbUiNotifyId(wParam);
    CWnd* control = id != 0 ? m_window.GetDlgItem(static_cast<int>(id)) : nullptr;
    if (control == nullptr) return 0;
    LRESULT reply = control->SendMessage(KbUiMessage(), wParam, lParam);
    if (reply == kKbUiReplyNativeTip && m_toolTip != nullptr) reply = offerNativeTip(*control, id, lParam);
    return static_cast<int>(reply);
}

KBUI_REPLY TipHolder::offerNativeTip(CWnd& control, unsigned id, LPARAM update) {
    CString text;
    const KBUI_REPLY reply = KbUiNotify(control, id, kKbUiNotifyGetTipText, datumOf(text));
    if (update == 0)
        m_toolTip->AddTool(&control, text);
    else
        m_toolTip->UpdateTipText(text, &control);
    return reply;
}

KBUI_REPLY TipHolder::UpdateTip(CWnd& control) {
    if (m_useTips != 1) {
        if (m_textTip != nullptr) m_textTip->Hide();
        return kKbUiReplyNone;
    }
    if (m_textTip == nullptr) return kKbUiReplyHandled;
    const unsigned id = static_cast<unsigned>(control.GetDlgCtrlID());
    CPoint point;
    ::GetCursorPos(&point);
    control.ScreenToClient(&point);

    const KBUI_REPLY support = KbUiNotify(control, id, kKbUiNotifyGetTipSupport, datumOf(point));
    const bool sameItem = support == kKbUiReplyHandled || support == kKbUiReplyKeepTip;
    if (sameItem && m_textTip->IsWindowVisible()) return kKbUiReplyNone;
    m_textTip->Hide();
    if (support == kKbUiReplyNone) return kKbUiReplyNone;
    if (KbUiNotify(control, id, kKbUiNotifyHitTipRect, datumOf(point)) == kKbUiReplyNone)
        return kKbUiReplyNone;
    CRect rect(0, 0, 0, 0);
    const KBUI_REPLY found = KbUiNotify(control, id, kKbUiNotifyGetTipRect, datumOf(rect));
    if (m_rules.rectReplyCounts && found == kKbUiReplyNone) return kKbUiReplyNone;
    if (rect.IsRectEmpty()) return kKbUiReplyNone;
    const bool text = support == kKbUiReplyHandled || support == kKbUiReplyTextTip;
    return text ? showTextTip(control, id, rect) : showDrawnTip(control, id, rect);
}

void TipHolder::showAt(CWnd& control, const CRect& rect) {
    m_textTip->SetControl(&control);
    m_textTip->MoveWindow(&rect, TRUE);
    m_textTip->Show();
}

KBUI_REPLY TipHolder::showDrawnTip(CWnd& control, unsigned id, CRect rect) {
    m_textTip->SetUseText(0);
    control.ClientToScreen(&rect);
    showAt(control, rect);
    const WindowContext context(*m_textTip);
    KbUiNotify(control, id, kKbUiNotifyDrawTip, reinterpret_cast<unsigned __int64>(context.dc()));
    return kKbUiReplyHandled;
}

KBUI_REPLY TipHolder::showTextTip(CWnd& control, unsigned id, CRect rect) {
    m_textTip->SetUseText(1);
    CString text;
    KbUiNotify(control, id, kKbUiNotifyGetTipText, datumOf(text));
    if (text.IsEmpty()) return kKbUiReplyNone;
    m_textTip->SetWindowText(text);
    control.ClientToScreen(&rect);
    rect.top -= 2;
    rect.right += 4;
    rect.bottom += 2;
    showAt(control, rect);
    return kKbUiReplyHandled;
}
