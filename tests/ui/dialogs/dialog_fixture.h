// A toolkit dialog that opens its protected operations to the tests, and a clean place in the registry for
// it.
#pragma once

#include <ktui/dialogs/ktui_dialog.h>

#include <optional>

#include "resource.h"
#include "test_host.h"
#include "ui_test.h"

/// Registry root of the dialogs of these tests, with a backslash at its end.
constexpr const wchar_t* kTestRoot = L"Software\\ktui test\\Dialogs\\";

class OpenDialog : public CKtUiDialog {
public:
    explicit OpenDialog(unsigned templateId = IDD_ELASTIC, CWnd* parent = nullptr)
        : CKtUiDialog(templateId, parent) {
        SetAppRootKey(kTestRoot);
    }

    using CKbUiBaseDialog::m_editorState;
    using CKbUiBaseDialog::m_isModal;
    using CKbUiBaseDialog::m_savedFocus;
    using CKbUiBaseDialog::m_textTip;
    using CKbUiBaseDialog::m_toolTip;
    using CKbUiBaseDialog::m_useTips;
    using CKbUiBaseDialog::m_wasEnabled;
    using CKbUiDialog::AppRootKey;
    using CKbUiDialog::m_elastic;
    using CKbUiDialog::OnDialogHelp;
    using CKtUiDialog::AppResourceInstance;

    /// Runs at the end of OnInitDialog, once the base has captured the sizes.
    std::function<void(OpenDialog&)> onInit;
    /// What the dialog calls on the way, in order.
    std::vector<std::string> calls;
    /// Arguments of the last notification hooks.
    unsigned lastId = 0;
    __int64 lastData = 0;
    KBUI_REPLY hookReply = kKbUiReplyNone;
    CWnd* mainWindow = nullptr;
    /// The answer to notifications in the place of the class's own, if there is one.
    std::optional<KBUI_REPLY> answers;

    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) override {
        return answers ? *answers : CKtUiDialog::DoKbUiMessage(notification, id, data);
    }
    CWnd* AppMainWindow() override {
        return mainWindow != nullptr ? mainWindow : CKtUiDialog::AppMainWindow();
    }

    CRect rectOf(int id) {
        CRect rect;
        GetDlgItem(id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }
    CRect windowRect() {
        CRect rect;
        GetWindowRect(&rect);
        return rect;
    }
    /// Makes the client area larger by (dx, dy) pixels.
    void grow(int dx, int dy) {
        CRect rect = windowRect();
        SetWindowPos(nullptr, 0, 0, rect.Width() + dx, rect.Height() + dy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

protected:
    BOOL OnInitDialog() override {
        calls.push_back("init");
        const BOOL result = CKtUiDialog::OnInitDialog();
        if (onInit) onInit(*this);
        return result;
    }
    void OnInitDialogBegin() override {
        calls.push_back("begin");
        CKtUiDialog::OnInitDialogBegin();
    }
    void OnInitDialogFinish() override {
        calls.push_back("finish");
        CKtUiDialog::OnInitDialogFinish();
    }
    void EnableFloatingWindows(int enable) override { calls.push_back("floating " + std::to_string(enable)); }
    int EnableMultiDocumentActivation(int enable) override {
        calls.push_back("activation " + std::to_string(enable));
        return 0;
    }
    KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data) override { return note("change", id, data); }
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override { return note("valid", id, valid); }
    KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data) override { return note("generic", id, data); }

private:
    KBUI_REPLY note(const char* call, unsigned id, __int64 data) {
        calls.push_back(call);
        lastId = id;
        lastData = data;
        return hookReply;
    }
};

class DialogTest : public ::testing::Test {
protected:
    DialogTest() { clean(); }
    ~DialogTest() override { clean(); }

    static void clean() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test"); }
    /// One stored number of dialog `name`; -1 if there is none.
    static long long stored(const wchar_t* name, const wchar_t* value) {
        DWORD number = 0, size = sizeof(number);
        const CString key = CString(kTestRoot) + name;
        const LSTATUS status =
            ::RegGetValueW(HKEY_CURRENT_USER, key, value, RRF_RT_REG_DWORD, nullptr, &number, &size);
        return status == ERROR_SUCCESS ? static_cast<int>(number) : -1;
    }
    static void store(const wchar_t* name, const CRect& rect) {
        const CString key = CString(kTestRoot) + name;
        const struct {
            const wchar_t* value;
            int number;
        } values[] = {
            {L"X", rect.left}, {L"Y", rect.top}, {L"Width", rect.Width()}, {L"Height", rect.Height()}};
        for (const auto& each : values)
            ::RegSetKeyValueW(HKEY_CURRENT_USER, key, each.value, REG_DWORD, &each.number, sizeof(DWORD));
    }

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
};
