// The root of every dialog: its initialisation, notification routing and help.
#include <ktui/host/module.h>

#include "base_dialog_fixture.h"

namespace {

TEST_F(BaseDialog, InitialisationRunsItsHooksInOrder) {
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"init", "begin", "finish"}));
}

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

TEST_F(BaseDialog, MainWindowAndResourceModuleAreStoredThroughTheDatum) {
    CWnd* main = nullptr;
    HINSTANCE module = nullptr;
    EXPECT_EQ(send(kKbUiNotifyAppMainWindow, 0, reinterpret_cast<LPARAM>(&main)), 1);
    EXPECT_EQ(send(kKbUiNotifyAppResourceInstance, 0, reinterpret_cast<LPARAM>(&module)), 1);
    EXPECT_EQ(main, &parent);
    EXPECT_EQ(module, KtUiAppResourceInstance());
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
    CString text;
    dialog.GetToolTipCtrl()->GetText(text, &button);
    EXPECT_EQ(text, L"the whole text");
    button.tipText = L"another";
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 1), 1);
    EXPECT_EQ(dialog.GetToolTipCtrl()->GetToolCount(), before + 1);
    dialog.GetToolTipCtrl()->GetText(text, &button);
    EXPECT_EQ(text, L"another");
}

TEST_F(BaseDialog, ANativeTipWithoutToolTipControlIsPassedOnAsItStands) {
    dialog.SetUseTips(0);
    button.replies[kKbUiNotifyGetTipSupport] = kKbUiReplyNativeTip;
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), kKbUiReplyNativeTip);
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport}));
}

TEST_F(BaseDialog, TheControlGetsTheWholeMessageAsItCame) {
    button.replies[kKbUiNotifyGeneric] = 1;
    const WPARAM word = PackKbUiNotification(IDC_FIRST, kKbUiNotifyGeneric) | WPARAM{0x12} << 32;
    EXPECT_EQ(dialog.SendMessage(KbUiMessage(), word, LPARAM{0x123456789}), 1);
    EXPECT_EQ(button.words, (std::vector<WPARAM>{word}));
    EXPECT_EQ(button.data, (std::vector<LPARAM>{0x123456789}));
}

TEST_F(BaseDialog, ATextOfANativeTipThatIsNotAnsweredLeavesTheRestToTheDialog) {
    button.replies = {{kKbUiNotifyGeneric, kKbUiReplyNativeTip}};
    dialog.hookReply = kKbUiReplyValid;
    dialog.calls.clear();
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 1), kKbUiReplyValid);
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGeneric, kKbUiNotifyGetTipText}));
    EXPECT_EQ(button.words[1] & 0xFFFF, WPARAM{IDC_FIRST});
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"generic"}));
}

TEST_F(BaseDialog, TheReplyOfTheDialogIsWidenedToo) {
    dialog.hookReply = static_cast<KBUI_REPLY>(-3);
    EXPECT_EQ(send(kKbUiNotifyGeneric, 0, 0), -3);
}

TEST_F(BaseDialog, OtherRepliesAddNoTool) {
    const int before = dialog.GetToolTipCtrl()->GetToolCount();
    for (const LRESULT reply : {1, 2, 3, 4, 6, 7}) {
        button.replies = {{kKbUiNotifyGetTipSupport, reply}};
        EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), reply);
    }
    EXPECT_EQ(dialog.GetToolTipCtrl()->GetToolCount(), before);
}

}  // namespace

TEST_F(BaseDialog, ANotificationIsTheOverridesToAnswer) {
    dialog.answers = static_cast<KBUI_REPLY>(0x57);
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0x57);
    dialog.answers.reset();
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0);
}
