// What a dialog does by itself for its controls and for the user: defaults of its hooks, data, help.
#include <ktut.h>

#include <ktui/dialogs/kbui_base_dialog.h>
#include <ktui/host/module.h>
#include <ktui/tips/kbui_text_tip.h>

#include "dialog_fixture.h"

namespace {

/// The dialog as it stands, with its protected operations open.
class PlainDialog : public CKbUiBaseDialog {
public:
    explicit PlainDialog(CWnd* parent = nullptr, HINSTANCE resource = nullptr)
        : CKbUiBaseDialog(IDD_ELASTIC, parent, resource) {}
    using CKbUiBaseDialog::AppMainWindow;
    using CKbUiBaseDialog::AppResourceInstance;
    using CKbUiBaseDialog::AppRootKey;
    using CKbUiBaseDialog::DoDialogHelp;
    using CKbUiBaseDialog::DoKbUiMessage;
    using CKbUiBaseDialog::EnableMultiDocumentActivation;
    using CKbUiBaseDialog::ExchangeData;
    using CKbUiBaseDialog::FindContextHelpFullPath;
    using CKbUiBaseDialog::IsMultiDocumentActivationEnabled;
    using CKbUiBaseDialog::m_editorState;
    using CKbUiBaseDialog::m_font;
    using CKbUiBaseDialog::m_icon;
    using CKbUiBaseDialog::m_isModal;
    using CKbUiBaseDialog::m_resourceInstance;
    using CKbUiBaseDialog::m_savedFocus;
    using CKbUiBaseDialog::m_savedResource;
    using CKbUiBaseDialog::m_textTip;
    using CKbUiBaseDialog::m_wasEnabled;
    using CKbUiBaseDialog::OnNotify_ToolTipText;
    using CKbUiBaseDialog::PreCreateWindow;
};

/// Notes what its message handlers hand on, and the data that is exchanged.
class NotingDialog : public PlainDialog {
public:
    using PlainDialog::PlainDialog;
    std::vector<UINT> defaults;
    std::vector<int> exchanges;
    int helps = 0;
    bool failing = false;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaults.push_back(message);
        return PlainDialog::DefWindowProc(message, wParam, lParam);
    }
    void DoDataExchange(CDataExchange* exchange) override {
        exchanges.push_back(exchange->m_bSaveAndValidate);
        if (failing) exchange->Fail();
    }
    int DoDialogHelp() override {
        ++helps;
        return 1;
    }
};

/// A control that is asked itself for the brush of its background.
class TintedButton : public CButton {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return CButton::WindowProc(message, wParam, lParam);
    }
    BOOL OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT* result) override {
        if (message != WM_CTLCOLORBTN) return FALSE;
        *result = reinterpret_cast<LRESULT>(::GetStockObject(DKGRAY_BRUSH));
        return TRUE;
    }
};

class DialogServices : public DialogTest {};

TEST_F(DialogServices, ADialogStartsWithTipsOnAndAllElseUnset) {
    PlainDialog dialog;
    EXPECT_EQ(dialog.m_wasEnabled, 1);
    EXPECT_EQ(dialog.m_savedFocus, nullptr);
    EXPECT_EQ(dialog.m_editorState, 0);
    EXPECT_EQ(dialog.m_isModal, 0);
    EXPECT_EQ(dialog.m_savedResource, nullptr);
    EXPECT_EQ(dialog.m_font.m_hObject, nullptr);
    EXPECT_EQ(dialog.GetUseTips(), 1);
    EXPECT_EQ(dialog.m_resourceInstance, nullptr);
    EXPECT_EQ(dialog.GetDialogIcon(), nullptr);
    EXPECT_EQ(dialog.m_textTip, nullptr);
    EXPECT_EQ(dialog.GetToolTipCtrl(), nullptr);
    EXPECT_EQ(PlainDialog(nullptr, AfxGetInstanceHandle()).m_resourceInstance, AfxGetInstanceHandle());
}

TEST_F(DialogServices, TheRootKeyIsProfileFileRootAndVersionInThisOrder) {
    PlainDialog dialog;
    const CString file(ktutProfileFileName().c_str()), root(ktutProfileRootName().c_str());
    ASSERT_NE(file, root);
    EXPECT_EQ(CString(dialog.AppRootKey()), file + L"\\" + root + L"\\9.1\\Dialogs\\");
}

TEST_F(DialogServices, TheThreeTextsAboutHelpAreKeptApart) {
    PlainDialog dialog;
    CString name = L"x", path = L"x", prefix = L"x";
    dialog.GetContextHelpFileName(name);
    dialog.GetContextHelpFullPathName(path);
    dialog.GetContextHelpPrefix(prefix);
    EXPECT_TRUE(name.IsEmpty() && path.IsEmpty() && prefix.IsEmpty());
    dialog.SetContextHelpFileName(L"file");
    dialog.SetContextHelpFullPathName(L"path");
    dialog.SetContextHelpPrefix(L"prefix");
    dialog.GetContextHelpFileName(name);
    dialog.GetContextHelpFullPathName(path);
    dialog.GetContextHelpPrefix(prefix);
    EXPECT_EQ(name, L"file");
    EXPECT_EQ(path, L"path");
    EXPECT_EQ(prefix, L"prefix");
}

TEST_F(DialogServices, HooksOfNotificationsAnswerNothing) {
    PlainDialog dialog;
    for (const KBUI_NOTIFY each :
         {kKbUiNotifyGeneric, kKbUiNotifyControlChange, kKbUiNotifyControlInvalid, kKbUiNotifyControlValid})
        EXPECT_EQ(dialog.DoKbUiMessage(each, 7, 1), 0) << each;
}

TEST_F(DialogServices, EachNotificationHasItsHook) {
    OpenDialog dialog;
    dialog.hookReply = kKbUiReplyValid;
    dialog.Create(IDD_ELASTIC, &parent);
    const std::pair<KBUI_NOTIFY, const char*> hooks[] = {{kKbUiNotifyGeneric, "generic"},
                                                         {kKbUiNotifyControlChange, "change"},
                                                         {kKbUiNotifyControlInvalid, "valid"},
                                                         {kKbUiNotifyControlValid, "valid"}};
    __int64 datum = 40;
    for (const auto& [notification, hook] : hooks) {
        dialog.calls.clear();
        EXPECT_EQ(dialog.SendMessage(KbUiMessage(), PackKbUiNotification(4711, notification), ++datum), 3);
        EXPECT_EQ(dialog.calls, (std::vector<std::string>{hook}));
        EXPECT_EQ(dialog.lastId, 4711u);
        EXPECT_EQ(dialog.lastData, datum);
    }
    dialog.calls.clear();
    for (int value = 0; value < 40; ++value) {
        const bool known =
            (value >= 1 && value <= 3) || (value >= 12 && value <= 14) || (value >= 16 && value <= 18);
        if (known) continue;
        EXPECT_EQ(dialog.SendMessage(KbUiMessage(), PackKbUiNotification(0, KBUI_NOTIFY(value)), 0), 0);
    }
    EXPECT_TRUE(dialog.calls.empty());
}

TEST_F(DialogServices, TheMainWindowIsTheHostsAndTheResourcesAreTheCurrentOnes) {
    PlainDialog dialog;
    CWnd* former = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = &parent;
    EXPECT_EQ(dialog.AppMainWindow(), &parent);
    host.hasUiHost = false;
    EXPECT_EQ(dialog.AppMainWindow(), nullptr);
    AfxGetApp()->m_pMainWnd = former;
    const HINSTANCE current = AfxGetResourceHandle();
    AfxSetResourceHandle(::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(dialog.AppResourceInstance(), ::GetModuleHandleW(L"kernel32.dll"));
    AfxSetResourceHandle(current);
}

TEST_F(DialogServices, AnApplicationDialogAsksForTheApplicationsOwn) {
    OpenDialog dialog;
    CWnd* former = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = &parent;
    EXPECT_EQ(dialog.AppMainWindow(), &parent);
    AfxGetApp()->m_pMainWnd = former;
    EXPECT_EQ(dialog.AppResourceInstance(), KtUiAppResourceInstance());
    EXPECT_STREQ(dialog.AppRootKey(), kTestRoot);
}

TEST_F(DialogServices, TheWindowIsPreparedByThePlatform) {
    PlainDialog dialog;
    CREATESTRUCTW create = {};
    EXPECT_TRUE(dialog.PreCreateWindow(create));
    EXPECT_NE(create.lpszClass, nullptr);
}

TEST_F(DialogServices, MultiDocumentActivationIsTheHostsAffair) {
    PlainDialog dialog;
    EXPECT_EQ(dialog.IsMultiDocumentActivationEnabled(), 0);
    EXPECT_EQ(dialog.EnableMultiDocumentActivation(1), 0);
    EXPECT_EQ(dialog.EnableMultiDocumentActivation(0), 0);
}

TEST_F(DialogServices, AHelpFileIsFoundThroughTheHost) {
    host.files[L"dialogs.chm"] = L"C:\\help\\dialogs.chm";
    PlainDialog dialog;
    CString path;
    EXPECT_NE(dialog.FindContextHelpFullPath(L"dialogs.chm", path), 0);
    EXPECT_EQ(path, L"C:\\help\\dialogs.chm");
    EXPECT_EQ(dialog.FindContextHelpFullPath(L"none.chm", path), 0);
}

TEST_F(DialogServices, DialogHelpAnswersOneWithAndWithoutAHost) {
    PlainDialog dialog;
    EXPECT_EQ(dialog.DoDialogHelp(), 1);
    EXPECT_EQ(host.helpCalls, 1);
    host.hasUiHost = false;
    EXPECT_EQ(dialog.DoDialogHelp(), 1);
    EXPECT_EQ(host.helpCalls, 1);
}

TEST_F(DialogServices, TheHelpKeyGoesToTheDialogAndThenToThePlatform) {
    NotingDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.defaults.clear();
    HELPINFO info = {};
    info.cbSize = sizeof(info);
    dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(dialog.helps, 1);
    EXPECT_EQ(dialog.defaults, (std::vector<UINT>{WM_HELP}));
}

TEST_F(DialogServices, TheHelpButtonGoesStraightToTheHost) {
    NotingDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.SendMessage(WM_COMMAND, IDHELP);
    EXPECT_EQ(dialog.helps, 0);
    EXPECT_EQ(host.helpCalls, 1);
}

TEST_F(DialogServices, ActivationAndTimersGoToThePlatformAlone) {
    NotingDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.defaults.clear();
    EXPECT_EQ(dialog.SendMessage(WM_TIMER, 77, 0), 0);
    EXPECT_EQ(dialog.defaults, (std::vector<UINT>{WM_TIMER}));
    dialog.defaults.clear();
    dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    ASSERT_FALSE(dialog.defaults.empty());
    EXPECT_EQ(dialog.defaults[0], UINT{WM_ACTIVATE});
}

TEST_F(DialogServices, TheColourOfAControlIsAskedOfTheControlAndThenOfThePlatform) {
    NotingDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    TintedButton button;
    button.SubclassDlgItem(IDC_FIRST, &dialog);
    CClientDC dc(&dialog);
    const auto brushOf = [&](UINT id) {
        return reinterpret_cast<HBRUSH>(
            dialog.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                               reinterpret_cast<LPARAM>(dialog.GetDlgItem(static_cast<int>(id))->m_hWnd)));
    };
    EXPECT_EQ(brushOf(IDC_FIRST), static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH)));
    EXPECT_EQ(brushOf(IDC_SECOND), ::GetSysColorBrush(COLOR_BTNFACE));
}

TEST_F(DialogServices, ATipTextThatIsNeededIsTakenAndLeftAlone) {
    PlainDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    wchar_t own[] = L"own";
    NMTTDISPINFOW question = {};
    question.hdr.hwndFrom = dialog.GetToolTipCtrl()->m_hWnd;
    question.hdr.code = TTN_NEEDTEXTW;
    question.lpszText = own;
    question.szText[0] = L'k';
    LRESULT result = 5;
    EXPECT_EQ(dialog.OnNotify_ToolTipText(0, &question.hdr, &result), 1);
    EXPECT_EQ(result, 5);
    dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_EQ(question.lpszText, own);
    EXPECT_STREQ(question.szText, L"k");
}

TEST_F(DialogServices, DataGoesToTheControlsAndBack) {
    NotingDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.exchanges.clear();
    EXPECT_NE(dialog.DisplayData(), 0);
    EXPECT_NE(dialog.ValidateData(), 0);
    EXPECT_EQ(dialog.exchanges, (std::vector<int>{0, 1}));
    dialog.failing = true;
    EXPECT_EQ(dialog.DisplayData(), 0);
    EXPECT_EQ(dialog.ValidateData(), 0);
    EXPECT_EQ(dialog.exchanges, (std::vector<int>{0, 1, 0, 1}));
}

TEST_F(DialogServices, HidingAndShowingRespectWhatTheUserMadeOfTheWindow) {
    PlainDialog dialog(&parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_EQ(dialog.DoKbUiMessage(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_TRUE(dialog.IsZoomed()) << "a visible dialog is left as it is";
    EXPECT_EQ(dialog.DoKbUiMessage(kKbUiNotifyHideDialog, 0, 0), 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.DoKbUiMessage(kKbUiNotifyHideDialog, 0, 0), 1);
    EXPECT_EQ(dialog.DoKbUiMessage(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_FALSE(dialog.IsZoomed()) << "a hidden one is restored";
    dialog.m_editorState = -1;
    dialog.ShowWindow(SW_HIDE);
    EXPECT_EQ(dialog.DoKbUiMessage(kKbUiNotifyShowDialog, 0, 0), 1);
    EXPECT_TRUE(dialog.IsWindowVisible()) << "a cancelled command is over";
}

TEST_F(DialogServices, TheTipsGoWithAnObjectThatIsDeletedWithItsWindow) {
    auto* dialog = new PlainDialog(&parent);
    dialog->Create(IDD_ELASTIC, &parent);
    const HWND tip = dialog->m_textTip->m_hWnd, tool = dialog->GetToolTipCtrl()->m_hWnd;
    delete dialog;
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_FALSE(::IsWindow(tool));
}

}  // namespace
