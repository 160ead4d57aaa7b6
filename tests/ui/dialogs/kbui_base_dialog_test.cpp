// The root of every dialog: creation, notification routing, tips, the editor command protocol.
#include <ktui/host/module.h>
#include <ktui/tips/kbui_text_tip.h>

#include "dialog_fixture.h"
#include "recording_holder.h"

namespace {

using ui_test::later;
using ui_test::RecordingHolder;

/// A button that answers the protocol as a test says.
class AnsweringButton : public CButton {
public:
    std::map<int, LRESULT> replies;  ///< by notification
    CString tipText = L"the whole text";
    CRect tipRect{2, 3, 40, 12};
    std::vector<int> heard;
    HDC drawnOn = nullptr;
    LPARAM drawDatum = -1;

protected:
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
        const int notification = static_cast<int>(wParam >> 16 & 0xFFFF);
        heard.push_back(notification);
        if (notification == kKbUiNotifyGetTipText) *reinterpret_cast<CString*>(lParam) = tipText;
        if (notification == kKbUiNotifyGetTipRect) *reinterpret_cast<CRect*>(lParam) = tipRect;
        if (notification == kKbUiNotifyDrawTip) {
            drawDatum = lParam;
            drawnOn = lParam ? reinterpret_cast<CDC*>(lParam)->GetSafeHdc() : nullptr;
        }
        const auto found = replies.find(notification);
        return found != replies.end() ? found->second : 0;
    }
    DECLARE_MESSAGE_MAP()
};

const UINT kbUiMessage = KbUiMessage();

BEGIN_MESSAGE_MAP(AnsweringButton, CButton)
    ON_REGISTERED_MESSAGE(kbUiMessage, &AnsweringButton::OnKbUiMessage)
END_MESSAGE_MAP()

class BaseDialog : public DialogTest {
protected:
    BaseDialog() : dialog(IDD_ELASTIC, &parent) {
        dialog.mainWindow = &parent;
        dialog.SetDialogName(L"base");
        dialog.Create(IDD_ELASTIC, &parent);
        button.SubclassDlgItem(IDC_FIRST, &dialog);
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~BaseDialog() override { dialog.DestroyWindow(); }

    LRESULT send(KBUI_NOTIFY notification, unsigned id, LPARAM data) {
        return dialog.SendMessage(kbUiMessage, PackKbUiNotification(id, notification), data);
    }
    /// Answers as a control with a tip of kind `support` does.
    void giveTip(LRESULT support) {
        button.replies = {{kKbUiNotifyGetTipSupport, support},
                          {kKbUiNotifyHitTipRect, 1},
                          {kKbUiNotifyGetTipRect, 1},
                          {kKbUiNotifyGetTipText, 1}};
    }
    bool tipVisible() { return dialog.m_textTip != nullptr && dialog.m_textTip->IsWindowVisible(); }
    LRESULT updateTip() {
        dialog.GetDlgItem(IDOK)->SetFocus();
        CRect rect;
        button.GetWindowRect(&rect);
        ui_test::move_cursor(rect.CenterPoint());
        return send(kKbUiNotifyUpdateTip, 0, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&button)));
    }

    OpenDialog dialog;
    AnsweringButton button;
};

TEST_F(BaseDialog, TheRootKeyIsMadeOfProfileAndVersion) {
    class Plain : public CKtUiDialog {
    public:
        Plain() : CKtUiDialog(IDD_ELASTIC) {}
        using CKtUiDialog::AppRootKey;
    } plain;
    const CString key = plain.AppRootKey();
    EXPECT_EQ(key.Right(13), L"\\9.1\\Dialogs\\") << CStringA(key).GetString();
    plain.SetAppRootKey(L"other\\");
    EXPECT_STREQ(plain.AppRootKey(), L"other\\");
}

TEST_F(BaseDialog, InitialisationRunsItsHooksInOrder) {
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"init", "begin", "finish"}));
}

TEST_F(BaseDialog, AModalShowingSwitchesFloatingWindowsAndActivationOffAround) {
    OpenDialog modal(IDD_ELASTIC, &parent);
    int during = 0;
    later([&] {
        during = modal.m_isModal;
        modal.SendMessage(WM_COMMAND, IDCANCEL);
    });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_EQ(during, 1);
    EXPECT_EQ(modal.m_isModal, 0);
    EXPECT_EQ(modal.calls, (std::vector<std::string>{"floating 0", "activation 0", "init", "begin", "finish",
                                                     "activation 1", "floating 1"}));
}

TEST_F(BaseDialog, TheResourceModuleIsCurrentDuringCreationOnly) {
    class Switching : public OpenDialog {
    public:
        explicit Switching(CWnd* parent) : OpenDialog(IDD_ELASTIC, parent) {
            m_resourceInstance = AfxGetInstanceHandle();
            onInit = [this](OpenDialog&) { during = AfxGetResourceHandle(); };
        }
        HINSTANCE during = nullptr;
    } switching(&parent);
    const HINSTANCE before = AfxGetResourceHandle();
    switching.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(switching.during, AfxGetInstanceHandle());
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(BaseDialog, TheIconIsTheLibrarysUnlessOneWasSetBefore) {
    EXPECT_NE(dialog.GetDialogIcon(), nullptr);
    EXPECT_EQ(dialog.GetIcon(TRUE), dialog.GetDialogIcon());
    EXPECT_EQ(dialog.GetIcon(FALSE), dialog.GetDialogIcon());
    class Own : public OpenDialog {
    public:
        explicit Own(CWnd* parent) : OpenDialog(IDD_ELASTIC, parent) {
            m_icon = ::LoadIconW(nullptr, IDI_WARNING);
        }
    } own(&parent);
    own.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(own.GetDialogIcon(), ::LoadIconW(nullptr, IDI_WARNING));
}

TEST_F(BaseDialog, ThereIsNoContextHelpButton) { EXPECT_EQ(dialog.GetExStyle() & WS_EX_CONTEXTHELP, 0u); }

TEST_F(BaseDialog, AControlThatRepliesIsTheAnswer) {
    button.replies[kKbUiNotifyGeneric] = 77;
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 5), 77);
    EXPECT_EQ(dialog.calls.back(), "finish") << "the dialog was not asked";
}

TEST_F(BaseDialog, AControlThatRepliesNothingLeavesItToTheDialog) {
    dialog.hookReply = kKbUiReplyValid;
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 5), kKbUiReplyValid);
    EXPECT_EQ(dialog.calls.back(), "generic");
    EXPECT_EQ(dialog.lastId, static_cast<unsigned>(IDC_FIRST));
    EXPECT_EQ(dialog.lastData, 5);
}

TEST_F(BaseDialog, RepliesAreWidenedWithTheirSign) {
    button.replies[kKbUiNotifyGeneric] = 0xFFFFFFFE;
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 0), -2);
}

TEST_F(BaseDialog, AnIdWithoutAControlAndTheIdZeroGoToTheDialog) {
    dialog.hookReply = kKbUiReplyHandled;
    EXPECT_EQ(send(kKbUiNotifyControlChange, 4711, 9), kKbUiReplyHandled);
    EXPECT_EQ(dialog.calls.back(), "change");
    EXPECT_EQ(send(kKbUiNotifyControlChange, 0, 9), kKbUiReplyHandled);
    EXPECT_TRUE(button.heard.empty());
}

TEST_F(BaseDialog, ValidAndInvalidBothCarryTheSendersVerdict) {
    send(kKbUiNotifyControlInvalid, 0, 1);
    EXPECT_EQ(dialog.lastData, 1);
    send(kKbUiNotifyControlValid, 0, 0);
    EXPECT_EQ(dialog.lastData, 0);
    EXPECT_EQ(dialog.calls.back(), "valid");
}

TEST_F(BaseDialog, MainWindowAndResourceModuleAreStoredThroughTheDatum) {
    CWnd* main = nullptr;
    HINSTANCE module = nullptr;
    EXPECT_EQ(send(kKbUiNotifyAppMainWindow, 0, reinterpret_cast<LPARAM>(&main)), 1);
    EXPECT_EQ(send(kKbUiNotifyAppResourceInstance, 0, reinterpret_cast<LPARAM>(&module)), 1);
    EXPECT_EQ(main, &parent);
    EXPECT_EQ(module, KtUiAppResourceInstance());
}

TEST_F(BaseDialog, UnknownNotificationsAreAnsweredZero) {
    for (const int value : {0, 4, 5, 6, 7, 8, 9, 10, 11, 15, 19, 20, 21, 500, 0xFFFF})
        EXPECT_EQ(send(static_cast<KBUI_NOTIFY>(value), 0, 0), 0) << value;
}

TEST_F(BaseDialog, HideAndShowByNotification) {
    EXPECT_EQ(send(kKbUiNotifyHideDialog, 0, 0), 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.m_editorState = 1;
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_FALSE(dialog.IsWindowVisible()) << "its own editor command is running";
    dialog.m_editorState = 0;
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 1);
}

TEST_F(BaseDialog, ANativeTipAddsToolsAndTakesTheTextsReply) {
    button.replies = {{kKbUiNotifyGetTipSupport, kKbUiReplyNativeTip}, {kKbUiNotifyGetTipText, 1}};
    const int before = dialog.GetToolTipCtrl()->GetToolCount();
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), 1);
    EXPECT_EQ(dialog.GetToolTipCtrl()->GetToolCount(), before + 1);
    button.tipText = L"another";
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 1), 1);
    CString text;
    dialog.GetToolTipCtrl()->GetText(text, &button);
    EXPECT_EQ(text, L"another");
}

TEST_F(BaseDialog, ANativeTipWithoutToolTipControlIsPassedOnAsItStands) {
    dialog.SetUseTips(0);
    button.replies[kKbUiNotifyGetTipSupport] = kKbUiReplyNativeTip;
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), kKbUiReplyNativeTip);
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport}));
}

TEST_F(BaseDialog, TipsOnTwiceMakeNoSecondWindow) {
    CKbUiTextTip* tip = dialog.m_textTip;
    CToolTipCtrl* tool = dialog.GetToolTipCtrl();
    ASSERT_NE(tip, nullptr);
    dialog.SetUseTips(1);
    EXPECT_EQ(dialog.m_textTip, tip);
    EXPECT_EQ(dialog.GetToolTipCtrl(), tool);
    dialog.SetUseTips(3);
    EXPECT_EQ(dialog.m_textTip, nullptr);
    EXPECT_EQ(dialog.GetToolTipCtrl(), nullptr);
    EXPECT_EQ(dialog.GetUseTips(), 3);
}

TEST_F(BaseDialog, TheToolTipControlIsSetUp) {
    CToolTipCtrl* tool = dialog.GetToolTipCtrl();
    EXPECT_EQ(tool->GetTipBkColor(), 0xF9F9F9u);
    EXPECT_EQ(tool->GetTipTextColor(), 0x4B4846u);
    EXPECT_EQ(tool->GetMaxTipWidth(), 256);
    CRect margin;
    tool->GetMargin(&margin);
    EXPECT_EQ(margin, CRect(3, 3, 3, 3));
    EXPECT_TRUE(tool->GetStyle() & TTS_ALWAYSTIP);
}

TEST_F(BaseDialog, ATextTipLiesOverItsRectangleALittleLarger) {
    giveTip(kKbUiReplyTextTip);
    EXPECT_EQ(updateTip(), kKbUiReplyHandled);
    EXPECT_TRUE(tipVisible());
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    expected.top -= 2;
    expected.right += 4;
    expected.bottom += 2;
    dialog.m_textTip->GetWindowRect(&shown);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(ui_test::text_of(dialog.m_textTip->m_hWnd), L"the whole text");
    EXPECT_EQ(dialog.m_textTip->GetUseText(), 1);
}

TEST_F(BaseDialog, ADrawnTipLiesExactlyOverItsRectangleAndTheControlPaintsIt) {
    giveTip(kKbUiReplyDrawnTip);
    EXPECT_EQ(updateTip(), kKbUiReplyHandled);
    CRect expected = button.tipRect, shown;
    button.ClientToScreen(&expected);
    dialog.m_textTip->GetWindowRect(&shown);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(dialog.m_textTip->GetUseText(), 0);
    EXPECT_NE(button.drawnOn, nullptr);
}

TEST_F(BaseDialog, ADrawnTipWithoutADeviceContextIsOfferedWithoutOne) {
    giveTip(kKbUiReplyDrawnTip);
    const HWND window = dialog.m_textTip->m_hWnd;
    dialog.m_textTip->m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0001));  // no window
    LRESULT reply = -1;
    EXPECT_NO_THROW(reply = updateTip());
    dialog.m_textTip->m_hWnd = window;
    EXPECT_EQ(reply, kKbUiReplyHandled);
    EXPECT_EQ(button.drawDatum, 0);
}

TEST_F(BaseDialog, TheSameItemWithAVisibleTipIsLeftAlone) {
    for (const LRESULT same : {kKbUiReplyHandled, kKbUiReplyKeepTip}) {
        giveTip(kKbUiReplyTextTip);
        updateTip();
        giveTip(same);
        button.heard.clear();
        EXPECT_EQ(updateTip(), 0) << same;
        EXPECT_TRUE(tipVisible());
        EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport}));
        dialog.m_textTip->Hide();
    }
}

TEST_F(BaseDialog, ANewItemIsShownAfresh) {
    for (const LRESULT fresh : {2, 4}) {
        giveTip(fresh);
        updateTip();
        button.heard.clear();
        EXPECT_EQ(updateTip(), 1) << fresh;
        EXPECT_GT(button.heard.size(), 3u);
    }
}

TEST_F(BaseDialog, NoTipSupportHidesTheTip) {
    giveTip(kKbUiReplyTextTip);
    updateTip();
    button.replies[kKbUiNotifyGetTipSupport] = 0;
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
}

TEST_F(BaseDialog, EachUnansweredQuestionEndsTheTip) {
    giveTip(kKbUiReplyTextTip);
    button.replies[kKbUiNotifyHitTipRect] = 0;
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.replies[kKbUiNotifyGetTipRect] = 0;
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.tipRect.SetRectEmpty();
    EXPECT_EQ(updateTip(), 0);
    giveTip(kKbUiReplyTextTip);
    button.tipRect = CRect(2, 3, 40, 12);
    button.tipText.Empty();
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(tipVisible());
}

TEST_F(BaseDialog, WithTipsOffNothingIsAsked) {
    dialog.SetUseTips(0);
    EXPECT_EQ(updateTip(), 0);
    EXPECT_TRUE(button.heard.empty());
}

TEST_F(BaseDialog, ANeedForTextIsTakenAndLeftWithoutOne) {
    NMTTDISPINFOW question = {};
    question.hdr.hwndFrom = dialog.GetToolTipCtrl()->m_hWnd;
    question.hdr.code = TTN_NEEDTEXTW;
    dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_EQ(question.lpszText, nullptr);
}

TEST_F(BaseDialog, HelpKeyAsksTheHost) {
    HELPINFO info = {};
    info.cbSize = sizeof(info);
    dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(host.helpCalls, 1);
}

/// Main window, dialog and nested dialog as the editor command protocol meets them.
class EditorCommand : public DialogTest {
protected:
    EditorCommand() {
        outer.mainWindow = inner.mainWindow = &holder;
        outer.Create(IDD_ELASTIC, &holder);
        outer.ShowWindow(SW_SHOW);
        inner.Create(IDD_ELASTIC, &outer);
        inner.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~EditorCommand() override {
        inner.DestroyWindow();
        outer.DestroyWindow();
    }
    /// lParams of the editor command notifications that reached the main window.
    std::vector<LPARAM> told() {
        std::vector<LPARAM> data;
        for (const auto& each : holder.heard)
            if (each.notification == kKbUiNotifyEditorCommand) data.push_back(each.datum);
        return data;
    }
    void makeModal(CWnd& window) { window.m_nFlags |= WF_CONTINUEMODAL | WF_MODALLOOP; }

    RecordingHolder holder;
    OpenDialog outer, inner;
};

TEST_F(EditorCommand, BeginHidesTheDialogsAndTellsTheMainWindow) {
    makeModal(inner);
    inner.GetDlgItem(IDOK)->SetFocus();
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.m_editorState, 1);
    EXPECT_FALSE(inner.IsWindowVisible());
    EXPECT_FALSE(outer.IsWindowVisible());
    EXPECT_TRUE(holder.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, CompleteBringsThemBackWithTheFocus) {
    makeModal(inner);
    CWnd* focused = inner.GetDlgItem(IDCANCEL);
    focused->SetFocus();
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_EQ(inner.m_editorState, 0);
    EXPECT_TRUE(inner.IsWindowVisible());
    EXPECT_TRUE(outer.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    EXPECT_EQ(::GetFocus(), focused->m_hWnd);
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, CompleteWithoutRestoringLeavesThemHiddenAndTellsNobody) {
    makeModal(inner);
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(0);
    EXPECT_EQ(inner.m_editorState, 0);
    EXPECT_FALSE(inner.IsWindowVisible());
    EXPECT_FALSE(outer.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, AModelessDialogTellsOnlyACancel) {
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_TRUE(told().empty());
    inner.CancelEditorCommand();
    EXPECT_EQ(told(), (std::vector<LPARAM>{-1}));
    EXPECT_EQ(inner.EditorCommandCancelled(), 1);
}

TEST_F(EditorCommand, CancelEndsTheModalDialogAndCanBeAskedAfterwards) {
    OpenDialog modal(IDD_ELASTIC, &holder);
    modal.mainWindow = &holder;
    later([&] {
        modal.BeginEditorCommand();
        modal.CancelEditorCommand();
    });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_EQ(modal.EditorCommandCancelled(), 1);
}

TEST_F(EditorCommand, ADialogInsideItsOwnCommandStaysHiddenWhenItsChildFinishes) {
    outer.BeginEditorCommand();
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_FALSE(outer.IsWindowVisible());
    outer.CompleteEditorCommand(1);
    EXPECT_TRUE(outer.IsWindowVisible());
}

TEST_F(EditorCommand, TheEnabledStateComesBack) {
    inner.EnableWindow(FALSE);
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.m_wasEnabled, 0);
    inner.EnableWindow(TRUE);
    inner.CompleteEditorCommand(1);
    EXPECT_FALSE(inner.IsWindowEnabled());
}

}  // namespace
