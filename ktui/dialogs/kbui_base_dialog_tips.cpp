// The tips of a dialog: the decision which tip to show, and the windows that show it.
#include <ktui/dialogs/kbui_base_dialog.h>

#include <ktui/host/appearance.h>
#include <ktui/host/window_context.h>
#include <ktui/tips/kbui_text_tip.h>

namespace {

constexpr COLORREF kToolTipPaper = 0xF9F9F9;
constexpr COLORREF kToolTipInk = 0x4B4846;
constexpr int kToolTipMargin = 3;      // pixels on each side
constexpr int kToolTipMaxWidth = 256;  // pixels before a text breaks

/// A datum that points to a local object of the sender.
template <class Object>
unsigned __int64 datumOf(Object& object) {
    return reinterpret_cast<unsigned __int64>(&object);
}

}  // namespace

void CKbUiBaseDialog::SetUseTips(int useTips) {
    m_useTips = useTips;
    if (useTips == 1)
        createTips();
    else
        destroyTips();
}

void CKbUiBaseDialog::createTips() {
    if (m_textTip == nullptr) {
        m_textTip = new CKbUiTextTip;
        m_textTip->Create(this);
    }
    if (m_toolTip != nullptr) return;
    EnableToolTips(TRUE);
    m_toolTip = new CToolTipCtrl;
    m_toolTip->Create(this, TTS_ALWAYSTIP);
    m_toolTip->SendMessage(TTM_SETTIPBKCOLOR, KtUiAppearanceColor(kToolTipPaper, COLOR_INFOBK));
    m_toolTip->SendMessage(TTM_SETTIPTEXTCOLOR, KtUiAppearanceColor(kToolTipInk, COLOR_INFOTEXT));
    RECT margin = {kToolTipMargin, kToolTipMargin, kToolTipMargin, kToolTipMargin};
    m_toolTip->SendMessage(TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    m_toolTip->SendMessage(TTM_SETMAXTIPWIDTH, 0, kToolTipMaxWidth);
}

void CKbUiBaseDialog::destroyTips() {
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

BOOL CKbUiBaseDialog::PreTranslateMessage(MSG* message) {
    if (m_toolTip != nullptr) m_toolTip->SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
    return CDialog::PreTranslateMessage(message);
}

KBUI_REPLY CKbUiBaseDialog::offerNativeTip(CWnd& control, unsigned id, LPARAM update) {
    CString text;
    const KBUI_REPLY reply = KbUiNotify(control, id, kKbUiNotifyGetTipText, datumOf(text));
    if (update == 0)
        m_toolTip->AddTool(&control, text);
    else
        m_toolTip->UpdateTipText(text, &control);
    return reply;
}

KBUI_REPLY CKbUiBaseDialog::OnNotifyUpdateTip(CWnd* control) {
    if (m_useTips != 1) {
        if (m_textTip != nullptr) m_textTip->Hide();
        return kKbUiReplyNone;
    }
    if (m_textTip == nullptr) return kKbUiReplyHandled;
    const unsigned id = static_cast<unsigned>(control->GetDlgCtrlID());
    CPoint point;
    ::GetCursorPos(&point);
    control->ScreenToClient(&point);

    const KBUI_REPLY support = KbUiNotify(*control, id, kKbUiNotifyGetTipSupport, datumOf(point));
    const bool sameItem = support == kKbUiReplyHandled || support == kKbUiReplyKeepTip;
    if (sameItem && m_textTip->IsWindowVisible()) return kKbUiReplyNone;
    m_textTip->Hide();
    if (support == kKbUiReplyNone) return kKbUiReplyNone;
    if (KbUiNotify(*control, id, kKbUiNotifyHitTipRect, datumOf(point)) == kKbUiReplyNone)
        return kKbUiReplyNone;
    CRect rect(0, 0, 0, 0);
    const KBUI_REPLY found = KbUiNotify(*control, id, kKbUiNotifyGetTipRect, datumOf(rect));
    if (found == kKbUiReplyNone || rect.IsRectEmpty()) return kKbUiReplyNone;
    const bool text = support == kKbUiReplyHandled || support == kKbUiReplyTextTip;
    return text ? showTextTip(*control, id, rect) : showDrawnTip(*control, id, rect);
}

KBUI_REPLY CKbUiBaseDialog::showDrawnTip(CWnd& control, unsigned id, CRect rect) {
    m_textTip->SetUseText(0);
    control.ClientToScreen(&rect);
    m_textTip->SetControl(&control);
    m_textTip->MoveWindow(&rect, TRUE);
    m_textTip->Show();
    const WindowContext context(*m_textTip);
    KbUiNotify(control, id, kKbUiNotifyDrawTip, reinterpret_cast<unsigned __int64>(context.dc()));
    return kKbUiReplyHandled;
}

KBUI_REPLY CKbUiBaseDialog::showTextTip(CWnd& control, unsigned id, CRect rect) {
    m_textTip->SetUseText(1);
    CString text;
    KbUiNotify(control, id, kKbUiNotifyGetTipText, datumOf(text));
    if (text.IsEmpty()) return kKbUiReplyNone;
    m_textTip->SetWindowText(text);
    control.ClientToScreen(&rect);
    rect.top -= 2;
    rect.right += 4;
    rect.bottom += 2;
    m_textTip->SetControl(&control);
    m_textTip->MoveWindow(&rect, TRUE);
    m_textTip->Show();
    return kKbUiReplyHandled;
}
