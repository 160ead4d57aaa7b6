// The file dialog with the protocols of the dialogs, and where it differs from them.
#include <ktui/dialogs/kbui_file_dialog.h>
#include <ktui/host/module.h>

#include "answering_button.h"
#include "dialog_fixture.h"
#include "recording_holder.h"
#include "sent_messages.h"

namespace {

using ui_test::RecordingHolder;
using ui_test::when_dialog;

class OpenFile : public CKtUiFileDialog {
public:
    explicit OpenFile(CWnd* parent = nullptr)
        : CKtUiFileDialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST, nullptr, parent) {
        m_ofn.lpstrTitle = L"chooser";
    }
    using CKbUiFileDialog::AppResourceInstance;
    using CKbUiFileDialog::AppRootKey;
    using CKbUiFileDialog::DoDialogHelp;
    using CKbUiFileDialog::FindContextHelpFullPath;
    using CKbUiFileDialog::m_editorState;
    using CKbUiFileDialog::m_icon;
    using CKbUiFileDialog::m_resourceInstance;
    using CKbUiFileDialog::m_savedFocus;
    using CKbUiFileDialog::m_savedResource;
    using CKbUiFileDialog::m_wasEnabled;
    using CKbUiFileDialog::OnHelpInfo;
    using CKbUiFileDialog::OnInitDialog;
    using CKbUiFileDialog::OnNotify_ToolTipText;
    using CKbUiFileDialog::OnNotifyUpdateTip;

    std::vector<std::string> calls;
    KBUI_REPLY reply = kKbUiReplyNone;
    CWnd* mainWindow = nullptr;
    /// The answer in the place of the class's own, if there is one.
    std::optional<KBUI_REPLY> answers;
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) override {
        return answers ? *answers : CKtUiFileDialog::DoKbUiMessage(notification, id, data);
    }
    int commandsPassedOn = 0;  ///< WM_COMMAND that got as far as the platform's own processing
    CWnd* AppMainWindow() override {
        return mainWindow != nullptr ? mainWindow : CKtUiFileDialog::AppMainWindow();
    }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        commandsPassedOn += message == WM_COMMAND;
        return CKtUiFileDialog::DefWindowProc(message, wParam, lParam);
    }
    void OnInitDialogBegin() override { calls.push_back("begin"); }
    void OnInitDialogFinish() override { calls.push_back(m_icon == nullptr ? "finish" : "finish with icon"); }
    void DoDataExchange(CDataExchange*) override { calls.push_back("exchange"); }
    void EnableFloatingWindows(int enable) override { calls.push_back("floating " + std::to_string(enable)); }
    KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data) override { return note("change", id, data); }
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override { return note("valid", id, valid); }
    KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data) override { return note("generic", id, data); }

private:
    KBUI_REPLY note(const char* call, unsigned id, __int64 data) {
        calls.push_back(std::string(call) + " " + std::to_string(id) + " " + std::to_string(data));
        return reply;
    }
};

using Calls = std::vector<std::string>;

/// A file dialog on a window of its own, modeless, below a window that takes part in the protocol.
class FileTest : public DialogTest {
protected:
    FileTest() {
        dialog.mainWindow = &main;
        dialog.Create(IDD_ELASTIC, &holder);
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
        dialog.calls.clear();
    }
    ~FileTest() override { dialog.DestroyWindow(); }
    LRESULT send(KBUI_NOTIFY notification, unsigned id, LPARAM data) {
        return dialog.SendMessage(KbUiMessage(), PackKbUiNotification(id, notification), data);
    }
    std::vector<LPARAM> told() {
        std::vector<LPARAM> data;
        for (const auto& each : main.heard)
            if (each.notification == kKbUiNotifyEditorCommand) data.push_back(each.datum);
        return data;
    }
    RecordingHolder main, holder;
    OpenFile dialog;
};

TEST_F(FileTest, StartsWithItsHooksAroundThePlatformsAndThenTheIcon) {
    OpenFile fresh;
    std::vector<WPARAM> icons;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == WM_SETICON && message.hwnd == fresh.m_hWnd) icons.push_back(message.wParam);
    });
    fresh.Create(IDD_ELASTIC, &holder);
    EXPECT_EQ(fresh.calls, (Calls{"begin", "exchange", "finish"}));
    EXPECT_NE(fresh.m_icon, nullptr);
    EXPECT_EQ(icons, (std::vector<WPARAM>{ICON_BIG, ICON_SMALL}));
    icons.clear();
    fresh.OnInitDialog();
    EXPECT_TRUE(icons.empty());
    fresh.DestroyWindow();
}

TEST_F(FileTest, SettingsChangeNothing) {
    dialog.SetDialogName(L"name");
    CString name = L"before";
    dialog.GetDialogName(name);
    EXPECT_EQ(name, L"");
    dialog.SetUseTips(0);
    EXPECT_EQ(dialog.GetUseTips(), 1);
    dialog.SetDialogIcon(::LoadIconW(nullptr, IDI_ERROR));
    EXPECT_EQ(dialog.GetDialogIcon(), nullptr);
    dialog.SetContextHelpFileName(L"a");
    dialog.SetContextHelpFullPathName(L"b");
    dialog.SetContextHelpPrefix(L"c");
    CString text = L"untouched";
    EXPECT_EQ(dialog.GetContextHelpFileName(text), 0);
    EXPECT_EQ(dialog.GetContextHelpFullPathName(text), 0);
    EXPECT_EQ(dialog.GetContextHelpPrefix(text), 0);
    EXPECT_EQ(text, L"untouched");
    EXPECT_EQ(dialog.AppRootKey(), nullptr);
    EXPECT_EQ(dialog.OnNotifyUpdateTip(&dialog), kKbUiReplyNone);
    EXPECT_EQ(dialog.OnNotify_ToolTipText(0, nullptr, nullptr), 1);
    dialog.SetDialogHelpTag(L"tag");
    dialog.GetDialogHelpTag(text);
    EXPECT_EQ(text, L"tag");
    EXPECT_EQ(dialog.AppResourceInstance(), KtUiAppResourceInstance());
}

TEST_F(FileTest, HelpIsOpenedByItsOwnOperationOnly) {
    EXPECT_EQ(dialog.DoDialogHelp(), 1);
    EXPECT_EQ(host.helpCalls, 1);
    HELPINFO info = {};
    info.cbSize = sizeof info;
    dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(host.helpCalls, 1);
    host.files[L"topic.htm"] = L"C:\\help\\topic.htm";
    CString path;
    EXPECT_EQ(dialog.FindContextHelpFullPath(L"topic.htm", path), 1);
    EXPECT_EQ(path, L"C:\\help\\topic.htm");
}

TEST_F(FileTest, HelpIsAnsweredAsThePlatformAnswersIt) {
    /// Hands a question for help to the dialog's own handler.
    class Asked : public OpenFile {
    public:
        LRESULT platformsAnswer = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_HELP) return OnHelpInfo(reinterpret_cast<HELPINFO*>(lParam));
            return OpenFile::WindowProc(message, wParam, lParam);
        }
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            return message == WM_HELP ? platformsAnswer : OpenFile::DefWindowProc(message, wParam, lParam);
        }
    } asked;
    asked.Create(IDD_ELASTIC, &holder);
    HELPINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_EQ(asked.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), 0);
    asked.platformsAnswer = 6;
    EXPECT_EQ(asked.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), 6);
    EXPECT_EQ(host.helpCalls, 0);
    asked.DestroyWindow();
}

TEST_F(FileTest, HideAndShowCountWhateverTheStateIs) {
    std::vector<WPARAM> shows;
    EXPECT_EQ(send(kKbUiNotifyHideDialog, 0, 0), 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.m_editorState = 1;
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.ShowWindow(SW_MINIMIZE);
    EXPECT_EQ(send(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_FALSE(dialog.IsIconic());
}

TEST_F(FileTest, TheSendersDatumIsTheVerdict) {
    send(kKbUiNotifyControlInvalid, 5, 0x100000001);
    send(kKbUiNotifyControlValid, 6, 0);
    EXPECT_EQ(dialog.calls, (Calls{"valid 5 1", "valid 6 0"}));
}

TEST_F(FileTest, AControlsReplyIsReturnedAsItIs) {
    AnsweringButton button;
    button.SubclassDlgItem(IDC_FIRST, &dialog);
    button.replies = {{kKbUiNotifyGetTipSupport, kKbUiReplyNativeTip}, {kKbUiNotifyGeneric, -7}};
    EXPECT_EQ(send(kKbUiNotifyGetTipSupport, IDC_FIRST, 0), kKbUiReplyNativeTip);
    EXPECT_EQ(button.heard, (std::vector<int>{kKbUiNotifyGetTipSupport}));
    EXPECT_EQ(send(kKbUiNotifyGeneric, IDC_FIRST, 1), -7);
    EXPECT_TRUE(dialog.calls.empty());
    EXPECT_EQ(send(kKbUiNotifyControlChange, IDC_FIRST, 4), 0);
    dialog.reply = kKbUiReplyInvalid;
    EXPECT_EQ(send(kKbUiNotifyGeneric, 0, 3), kKbUiReplyInvalid);
    EXPECT_EQ(dialog.calls, (Calls{"change 1001 4", "generic 0 3"}));
    CWnd* found = nullptr;
    EXPECT_EQ(send(kKbUiNotifyAppMainWindow, 0, reinterpret_cast<LPARAM>(&found)), 1);
    EXPECT_EQ(found, &main);
    EXPECT_EQ(send(kKbUiNotifyUpdateTip, 0, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&dialog))), 0);
    button.UnsubclassWindow();
}

TEST_F(FileTest, ReturnAndEscapeAreLeftToTheSystemsDialog) {
    dialog.commandsPassedOn = 0;
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(dialog.commandsPassedOn, 1) << "a dialog of the toolkit would have ended";
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(dialog.commandsPassedOn, 2);
}

TEST_F(FileTest, TheTabKeyGoesRoundItsControls) {
    dialog.GetDlgItem(IDC_FIRST)->SetFocus();
    MSG tab = {::GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_SECOND);
}

TEST_F(FileTest, HasNoToolTipControlToRelayTo) {
    EXPECT_EQ(dialog.GetWindow(GW_CHILD)->GetDlgCtrlID(), IDC_FIRST);
    int relayed = 0;
    ui_test::SentMessages sent(
        [&](const CWPSTRUCT& message) { relayed += message.message == TTM_RELAYEVENT; });
    MSG move = {dialog.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {}};
    dialog.PreTranslateMessage(&move);
    EXPECT_EQ(relayed, 0);
}

TEST_F(FileTest, KeepsItsContextHelpButton) {
    OpenFile fresh;
    fresh.Create(IDD_ELASTIC, &holder);
    fresh.ModifyStyleEx(0, WS_EX_CONTEXTHELP);
    fresh.OnInitDialog();
    EXPECT_TRUE(fresh.GetExStyle() & WS_EX_CONTEXTHELP);
    fresh.DestroyWindow();
}

TEST_F(FileTest, CompletingTellsTheMainWindowFirstAndEnablesTheDialogBeforeItGivesTheFocusBack) {
    dialog.GetDlgItem(IDC_SECOND)->SetFocus();
    dialog.BeginEditorCommand();
    Calls order;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == KbUiMessage() && message.hwnd == main.m_hWnd)
            order.push_back(dialog.m_editorState == 0 ? "main, completed" : "main");
        if (message.hwnd == dialog.m_hWnd && message.message == WM_SHOWWINDOW) order.push_back("show");
        if (message.hwnd == dialog.m_hWnd && message.message == WM_ENABLE) order.push_back("enable");
        if (message.hwnd == dialog.GetDlgItem(IDC_SECOND)->m_hWnd && message.message == WM_SETFOCUS)
            order.push_back("focus");
    });
    dialog.EnableWindow(FALSE);
    order.clear();
    dialog.CompleteEditorCommand(1);
    ASSERT_EQ(order.size(), 4u);
    EXPECT_EQ(order, (Calls{"main, completed", "show", "enable", "focus"}));
}

TEST_F(FileTest, BeginTellsTheMainWindowThoughItIsModeless) {
    CWnd* focused = dialog.GetDlgItem(IDOK);
    focused->SetFocus();
    dialog.BeginEditorCommand();
    EXPECT_EQ(dialog.m_editorState, 1);
    EXPECT_EQ(dialog.m_savedFocus, focused->m_hWnd);
    EXPECT_EQ(dialog.m_wasEnabled, 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    EXPECT_EQ(holder.count(kKbUiNotifyHideDialog), 1);
    dialog.CompleteEditorCommand(1);
    EXPECT_EQ(dialog.m_editorState, 0);
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(::GetFocus(), focused->m_hWnd);
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    EXPECT_EQ(holder.count(kKbUiNotifyShowDialog), 1);
    EXPECT_EQ(main.count(kKbUiNotifyHideDialog), 0);
}

TEST_F(FileTest, CompleteWithoutRestoringLeavesItHiddenAndTellsNobody) {
    dialog.BeginEditorCommand();
    dialog.CompleteEditorCommand(0);
    EXPECT_EQ(dialog.m_editorState, 0);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
}

TEST_F(FileTest, TheEnabledStateComesBack) {
    dialog.EnableWindow(FALSE);
    dialog.BeginEditorCommand();
    dialog.EnableWindow(TRUE);
    dialog.CompleteEditorCommand(1);
    EXPECT_FALSE(dialog.IsWindowEnabled());
}

TEST_F(FileTest, WhatIsKeptIsFromBeforeTheHiding) {
    CWnd* const focused = dialog.GetDlgItem(IDC_SECOND);
    focused->SetFocus();
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.m_hWnd && message.message == WM_SHOWWINDOW && message.wParam == FALSE)
            dialog.EnableWindow(FALSE);
    });
    dialog.BeginEditorCommand();
    EXPECT_FALSE(dialog.IsWindowEnabled());
    EXPECT_EQ(dialog.m_wasEnabled, 1);
    EXPECT_EQ(dialog.m_savedFocus, focused->m_hWnd);
}

TEST_F(FileTest, TheOrderIsDialogParentsMainAndBack) {
    Calls order;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == KbUiMessage())
            order.push_back((message.hwnd == main.m_hWnd ? "main " : "holder ") +
                            std::to_string(message.wParam >> 16) +
                            (dialog.IsWindowVisible() ? " visible" : ""));
    });
    dialog.BeginEditorCommand();
    dialog.CompleteEditorCommand(1);
    EXPECT_EQ(order, (Calls{"holder 13", "main 20", "main 20", "holder 14"}));
}

TEST_F(FileTest, TheWalkStopsAtTheMainWindow) {
    dialog.mainWindow = &holder;
    dialog.MakeDialogsVisible(0);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(holder.heard.empty());
    dialog.MakeDialogsVisible(1);
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_TRUE(holder.heard.empty());
}

TEST_F(FileTest, HidingUsesShowWindowAndNoPlacement) {
    dialog.ShowWindow(SW_MINIMIZE);
    dialog.MakeDialogsVisible(0);
    dialog.MakeDialogsVisible(1);
    EXPECT_FALSE(dialog.IsIconic());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(::GetActiveWindow(), dialog.m_hWnd);
}

/// The system's own dialog with the object on it.
class ShownFile : public DialogTest {
protected:
    RecordingHolder main;
    OpenFile dialog{&parent};
};

TEST_F(ShownFile, FloatingWindowsAreOffWhileItRunsWithItsOwnResources) {
    dialog.m_resourceInstance = ::GetModuleHandleW(L"kernel32.dll");
    const HINSTANCE former = AfxGetResourceHandle();
    HINSTANCE inside = nullptr, saved = nullptr;
    when_dialog(L"chooser", [&](HWND window) {
        inside = AfxGetResourceHandle();
        saved = dialog.m_savedResource;
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.calls, (Calls{"floating 0", "begin", "exchange", "finish", "floating 1"}));
    EXPECT_EQ(inside, ::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(saved, former);
    EXPECT_EQ(AfxGetResourceHandle(), former);
    EXPECT_EQ(dialog.m_savedResource, nullptr);
}

TEST_F(ShownFile, WithoutResourcesOfItsOwnTheCurrentOnesStay) {
    const HINSTANCE former = AfxGetResourceHandle();
    HINSTANCE inside = nullptr, saved = former;
    EXPECT_EQ(dialog.m_resourceInstance, nullptr);
    when_dialog(L"chooser", [&](HWND window) {
        inside = AfxGetResourceHandle();
        saved = dialog.m_savedResource;
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(inside, former);
    EXPECT_EQ(saved, nullptr);
}

TEST_F(ShownFile, CancellingAnEditorCommandEndsIt) {
    dialog.mainWindow = &main;
    when_dialog(L"chooser", [&](HWND) {
        dialog.BeginEditorCommand();
        dialog.CancelEditorCommand();
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.EditorCommandCancelled(), 1);
    EXPECT_EQ(main.count(kKbUiNotifyEditorCommand), 2);
    EXPECT_EQ(main.heard.back().datum, -1);
}

TEST_F(ShownFile, OnlyTheCancelledStateCounts) {
    EXPECT_EQ(dialog.EditorCommandCancelled(), 0);
    dialog.m_editorState = 1;
    EXPECT_EQ(dialog.EditorCommandCancelled(), 0);
    dialog.m_editorState = -1;
    EXPECT_EQ(dialog.EditorCommandCancelled(), 1);
}

}  // namespace

TEST_F(FileTest, ANotificationIsTheOverridesToAnswer) {
    dialog.answers = static_cast<KBUI_REPLY>(0x57);
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0x57);
    dialog.answers.reset();
    EXPECT_EQ(send(kKbUiNotifyGeneric, 3, 4), 0);
}

TEST_F(FileTest, ItsOwnAnswersAreNone) {
    struct Open : CKtUiFileDialog {
        using CKbUiFileDialog::OnNotifyControlChange;
        using CKbUiFileDialog::OnNotifyControlValid;
        using CKbUiFileDialog::OnNotifyGeneric;
        using CKbUiFileDialog::OnNotifyUpdateTip;
        using CKtUiFileDialog::CKtUiFileDialog;
    } open(TRUE);
    EXPECT_EQ(open.OnNotifyControlChange(1, 2), kKbUiReplyNone);
    EXPECT_EQ(open.OnNotifyControlValid(1, 2), kKbUiReplyNone);
    EXPECT_EQ(open.OnNotifyGeneric(1, 2), kKbUiReplyNone);
    EXPECT_EQ(open.OnNotifyUpdateTip(nullptr), kKbUiReplyNone);
}
