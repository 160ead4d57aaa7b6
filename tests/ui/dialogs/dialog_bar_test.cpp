// The dialog bar's share of the notification protocol, and where it differs from a dialog.
#include <ktui/dialogs/kbui_dialog_bar.h>
#include <ktui/tips/kbui_text_tip.h>

#include "answering_button.h"
#include "dialog_fixture.h"
#include "sent_messages.h"

namespace {

class OpenBar : public CKtUiDialogBar {
public:
    using CKbUiDialogBar::AppMainWindow;
    using CKbUiDialogBar::AppResourceInstance;
    using CKbUiDialogBar::AppRootKey;
    using CKbUiDialogBar::m_textTip;
    using CKbUiDialogBar::m_toolTip;
    using CKbUiDialogBar::m_useTips;

    std::vector<std::string> calls;
    KBUI_REPLY reply = kKbUiReplyNone;
    bool failsToStart = false;
    /// The answer in the place of the class's own, if there is one.
    std::optional<KBUI_REPLY> answers;
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) override {
        return answers ? *answers : CKtUiDialogBar::DoKbUiMessage(notification, id, data);
    }

protected:
    KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data) override { return note("change", id, data); }
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override { return note("valid", id, valid); }
    KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data) override { return note("generic", id, data); }
    BOOL PreCreateWindow(CREATESTRUCT& create) override { return CKtUiDialogBar::PreCreateWindow(create); }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE && failsToStart) return -1;
        return CKtUiDialogBar::DefWindowProc(message, wParam, lParam);
    }

private:
    KBUI_REPLY note(const char* call, unsigned id, __int64 data) {
        calls.push_back(std::string(call) + " " + std::to_string(id) + " " + std::to_string(data));
        return reply;
    }
};

class BarTest : public DialogTest {
protected:
    BarTest() {
        frame = new CFrameWnd;
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(80, 80, 480, 380));
        bar.Create(frame, IDD_PAGE, CBRS_ALIGN_TOP, AFX_IDW_DIALOGBAR);
        button.SubclassDlgItem(IDC_FIRST, &bar);
        frame->RecalcLayout();
        ui_test::pump();
    }
    ~BarTest() override {
        if (frame->m_hWnd != nullptr) frame->DestroyWindow();
    }
    LRESULT send(KBUI_NOTIFY notification, unsigned id, LPARAM data) {
        return bar.SendMessage(KbUiMessage(), PackKbUiNotification(id, notification), data);
    }
    LRESULT updateTip() {
        CRect rect;
        button.GetWindowRect(&rect);
        ui_test::move_cursor(rect.CenterPoint());
        return send(kKbUiNotifyUpdateTip, 0, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&button)));
    }
    void giveTip(LRESULT support) {
        button.replies = {{kKbUiNotifyGetTipSupport, support},
                          {kKbUiNotifyHitTipRect, 1},
                          {kKbUiNotifyGetTipRect, 1},
                          {kKbUiNotifyGetTipText, 1}};
    }

    CFrameWnd* frame;
    OpenBar bar;
    AnsweringButton button;
};

using Calls = std::vector<std::string>;

TEST_F(BarTest, StartsWithBothTipWindows) {
    EXPECT_EQ(bar.GetUseTips(), 1);
    ASSERT_NE(bar.m_textTip, nullptr);
    ASSERT_NE(bar.m_toolTip, nullptr);
    EXPECT_TRUE(::IsWindow(bar.m_textTip->m_hWnd));
    EXPECT_TRUE(::IsWindow(bar.m_toolTip->m_hWnd));
    EXPECT_STREQ(bar.AppRootKey(), L"");
    EXPECT_EQ(bar.AppResourceInstance(), AfxGetResourceHandle());
    EXPECT_EQ(bar.AppMainWindow(), AfxGetApp()->m_pMainWnd);
}

TEST_F(BarTest, WithTipsSwitchedOffBeforeThereAreNone) {
    OpenBar silent;
    silent.SetUseTips(0);
    ASSERT_TRUE(silent.Create(frame, IDD_PAGE, CBRS_ALIGN_TOP, 0xE810));
    EXPECT_EQ(silent.m_textTip, nullptr);
    EXPECT_EQ(silent.m_toolTip, nullptr);
    EXPECT_EQ(silent.GetUseTips(), 0);
    OpenBar odd;
    odd.m_useTips = 7;
    ASSERT_TRUE(odd.Create(frame, IDD_PAGE, CBRS_ALIGN_TOP, 0xE811));
    EXPECT_NE(odd.m_textTip, nullptr);
    EXPECT_EQ(odd.GetUseTips(), 1);
}

TEST_F(BarTest, AFailureOfTheBaseFailsTheBar) {
    OpenBar failing;
    failing.failsToStart = true;
    EXPECT_FALSE(failing.Create(frame, IDD_PAGE, CBRS_ALIGN_TOP, 0xE810));
    EXPECT_EQ(failing.m_textTip, nullptr);
}

TEST_F(BarTest, TheToolTipControlIsSetUpInOrderAndEndsWithItsDelay) {
    bar.SetUseTips(0);
    std::vector<UINT> messages;
    LPARAM delay = 0;
    WPARAM kind = 99;
    RECT margin = {};
    {
        ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.message < TTM_ACTIVATE || message.message > TTM_GETMARGIN + 40) return;
            wchar_t name[40] = {};
            ::GetClassNameW(message.hwnd, name, 40);
            if (::lstrcmpiW(name, TOOLTIPS_CLASSW) != 0) return;
            messages.push_back(message.message);
            if (message.message == TTM_SETMARGIN) margin = *reinterpret_cast<RECT*>(message.lParam);
            if (message.message != TTM_SETDELAYTIME) return;
            delay = message.lParam;
            kind = message.wParam;
        });
        bar.SetUseTips(1);
    }
    EXPECT_EQ(messages,
              (std::vector<UINT>{TTM_SETTIPBKCOLOR, TTM_SETTIPTEXTCOLOR, TTM_SETMARGIN, TTM_SETDELAYTIME}));
    EXPECT_EQ(delay, 100);
    EXPECT_EQ(kind, static_cast<WPARAM>(TTDT_AUTOMATIC));
    EXPECT_EQ(CRect(margin), CRect(3, 3, 3, 3));
}

TEST_F(BarTest, TheVerdictIsTheNotificationWhateverTheDatumSays) {
    send(kKbUiNotifyControlInvalid, 55, 1);
    send(kKbUiNotifyControlValid, 56, 0);
    EXPECT_EQ(bar.calls, (Calls{"valid 55 0", "valid 56 1"}));
}

TEST_F(BarTest, HidingAndShowingIsIgnored) {
    EXPECT_EQ(send(kKbUiNotifyHideDialog, 0, 0), 0);
    EXPECT_TRUE(bar.IsWindowVisible());
    bar.ShowWindow(SW_HIDE);
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 0);
    EXPECT_FALSE(bar.IsWindowVisible());
}

TEST_F(BarTest, AnswersWhoTheMainWindowIsAndWhereResourcesComeFrom) {
    CWnd* main = &parent;
    EXPECT_EQ(send(kKbUiNotifyAppMainWindow, 0, reinterpret_cast<LPARAM>(&main)), 1);
    EXPECT_EQ(main, AfxGetApp()->m_pMainWnd);
    HINSTANCE module = nullptr;
    EXPECT_EQ(send(kKbUiNotifyAppResourceInstance, 0, reinterpret_cast<LPARAM>(&module)), 1);
    EXPECT_EQ(module, AfxGetResourceHandle());
}

TEST_F(BarTest, EventsReachItsHooksWithTheirReplies) {
    bar.reply = kKbUiReplyValid;
    EXPECT_EQ(send(kKbUiNotifyGeneric, 9, 5), kKbUiReplyValid);
    EXPECT_EQ(send(kKbUiNotifyControlChange, 8, -5), kKbUiReplyValid);
    EXPECT_EQ(bar.calls, (Calls{"generic 9 5", "change 8 -5"}));
    for (int none : {0, 4, 5, 6, 15, 19, 20, 21})
        EXPECT_EQ(send(static_cast<KBUI_NOTIFY>(none), 0, 0), 0) << none;
    CKtUiDialogBar plain;
    plain.Create(frame, IDD_PAGE, CBRS_ALIGN_TOP, 0xE810);
    EXPECT_EQ(plain.SendMessage(KbUiMessage(), PackKbUiNotification(9, kKbUiNotifyGeneric), 0), 0);
    EXPECT_EQ(plain.SendMessage(KbUiMessage(), PackKbUiNotification(9, kKbUiNotifyControlChange), 0), 0);
    EXPECT_EQ(plain.SendMessage(KbUiMessage(), PackKbUiNotification(9, kKbUiNotifyControlValid), 0), 0);
}

TEST_F(BarTest, AControlsReplyEndsTheWay) {
    button.replies = {{kKbUiNotifyGeneric, -3}};
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 5), -3);
    EXPECT_TRUE(bar.calls.empty());
    button.replies = {};
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 5), 0);
    EXPECT_EQ(bar.calls, (Calls{"generic 1001 5"}));
}

TEST_F(BarTest, ANativeTipBecomesATool) {
    button.replies = {{kKbUiNotifyGetTipSupport, kKbUiReplyNativeTip}, {kKbUiNotifyGetTipText, 1}};
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), 1);
    CString text;
    bar.m_toolTip->GetText(text, &button);
    EXPECT_EQ(text, L"the whole text");
    button.tipText = L"another";
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 1), 1);
    bar.m_toolTip->GetText(text, &button);
    EXPECT_EQ(text, L"another");
    bar.SetUseTips(0);
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), kKbUiReplyNativeTip);
}

TEST_F(BarTest, TheReplyToTheQuestionForTheRectangleIsNotLookedAt) {
    giveTip(kKbUiReplyTextTip);
    button.replies.erase(kKbUiNotifyGetTipRect);
    EXPECT_EQ(updateTip(), 1);
    EXPECT_TRUE(bar.m_textTip->IsWindowVisible());
    CRect expected = button.tipRect, window;
    button.ClientToScreen(&expected);
    bar.m_textTip->GetWindowRect(&window);
    EXPECT_EQ(window.left, expected.left);
    EXPECT_EQ(window.top, expected.top - 2);
    button.tipRect = CRect(0, 0, 0, 0);
    EXPECT_EQ(updateTip(), 0);
    EXPECT_FALSE(bar.m_textTip->IsWindowVisible());
}

TEST_F(BarTest, TheFocusGoesNowhereElseForATip) {
    giveTip(kKbUiReplyDrawnTip);
    EXPECT_EQ(updateTip(), 1);
    EXPECT_TRUE(bar.m_textTip->IsWindowVisible());
    EXPECT_NE(button.drawnOn, nullptr);
    bar.SetUseTips(0);
    EXPECT_EQ(bar.m_textTip, nullptr);
    EXPECT_EQ(updateTip(), 0);
}

TEST_F(BarTest, MessagesAreRelayedToTheToolTipControl) {
    std::vector<UINT> relayed;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == bar.m_toolTip->m_hWnd && message.message == TTM_RELAYEVENT)
            relayed.push_back(reinterpret_cast<MSG*>(message.lParam)->message);
    });
    MSG move = {button.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {}};
    bar.PreTranslateMessage(&move);
    EXPECT_EQ(relayed, (std::vector<UINT>{WM_MOUSEMOVE}));
    // The rest is the platform's bar: the Tab key goes round.
    ::SetFocus(button.m_hWnd);
    MSG tab = {button.m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(bar.PreTranslateMessage(&tab));
}

TEST_F(BarTest, TheQuestionForATipsTextIsLeftToOthers) {
    TOOLTIPTEXTW question = {};
    question.hdr = {bar.m_toolTip->m_hWnd, 0, static_cast<UINT>(TTN_NEEDTEXTW)};
    int asked = 0;
    class Asked : public CFrameWnd {
    public:
        explicit Asked(int& count) : m_count(count) {}
        BOOL OnNotify(WPARAM, LPARAM, LRESULT*) override {
            ++m_count;
            return TRUE;
        }

    private:
        int& m_count;
    };
    auto* owner = new Asked(asked);
    owner->Create(nullptr, L"owner");
    bar.SetOwner(owner);
    bar.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_EQ(asked, 1);
    bar.SetOwner(frame);
    owner->DestroyWindow();
}

TEST_F(BarTest, TheTipsGoWithTheWindow) {
    const HWND text = bar.m_textTip->m_hWnd, tool = bar.m_toolTip->m_hWnd;
    bar.DestroyWindow();
    EXPECT_FALSE(::IsWindow(text));
    EXPECT_FALSE(::IsWindow(tool));
    EXPECT_EQ(bar.m_textTip, nullptr);
    EXPECT_EQ(bar.m_toolTip, nullptr);
    EXPECT_EQ(bar.GetUseTips(), 0);
}

}  // namespace

TEST_F(BarTest, ANotificationIsTheOverridesToAnswer) {
    bar.answers = static_cast<KBUI_REPLY>(0x57);
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0x57);
    bar.answers.reset();
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0);
}
