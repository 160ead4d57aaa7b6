// A tabbed dialog whose pages write down what they hear.
#pragma once

#include <memory>

#include <ktui/dialogs/ktui_tab.h>
#include <ktui/dialogs/ktui_tab_dialogs.h>

#include "dialog_fixture.h"

class NotingPage : public CKtUiTabChildDialog {
public:
    NotingPage(std::string name, std::vector<std::string>& log) : m_name(std::move(name)), m_log(log) {}

    using CKbUiTabChildDialog::DoDialogHelp;
    using CKbUiTabChildDialog::m_dirty;
    using CKbUiTabChildDialog::m_tab;
    using CKbUiTabChildDialog::m_tabFocus;
    using CKbUiTabChildDialog::OnCancel;
    using CKbUiTabChildDialog::OnMainDialogHelp;
    using CKbUiTabChildDialog::OnOK;
    using CKbUiTabChildDialog::OnTabChanging;

    bool mayLeave = true;
    bool failing = false;  ///< its exchange fails
    bool failsToStart = false;

    using CKtUiTabChildDialog::Create;
    BOOL Create(const wchar_t* name, CWnd* parent) override {
        return failsToStart ? FALSE : CKtUiTabChildDialog::Create(name, parent);
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        if (!exchange->m_bSaveAndValidate) return;
        note("exchange");
        if (failing) exchange->Fail();
    }
    void OnTabActivation(int active) override {
        const char* const calls[] = {"out", "in"};
        note(active == 0 || active == 1 ? calls[active] : "neither in nor out");
    }
    int OnTabChanging() override {
        note("leave?");
        return mayLeave;
    }
    void OnMainDialogApply() override { note("apply"); }
    void OnMainDialogCancel() override { note("cancel"); }
    void OnMainDialogOK() override { note("ok"); }

private:
    void note(const char* call) { m_log.push_back(m_name + " " + call); }
    std::string m_name;
    std::vector<std::string>& m_log;
};

class NotingTab : public CKtUiTab {
public:
    using CKbUiTab::m_activeTab;
    using CKbUiTab::m_applyButtonId;
    using CKbUiTab::m_pages;
    int exchanges = 0;  ///< of the tab window's own data

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        exchanges += exchange->m_bSaveAndValidate ? 1 : 100;
    }
};

class TabbedDialog : public CKtUiTabMainDialog {
public:
    explicit TabbedDialog(CWnd* parent = nullptr) : CKtUiTabMainDialog(IDD_TABBED, parent) {
        SetAppRootKey(kTestRoot);
        SetDialogName(L"tabbed");
    }

    using CKbUiTabMainDialog::m_defaultButton;
    using CKbUiTabMainDialog::m_initialTabIndex;
    using CKbUiTabMainDialog::m_tab;
    using CKbUiTabMainDialog::OnCancel;
    using CKbUiTabMainDialog::OnOK;

    NotingTab tab;
    bool bindsTab = true;
    std::function<void()> onInit;  ///< at the end of OnInitDialog
    std::function<void()> onSave;  ///< when its own data is exchanged
    std::vector<int> heard;        ///< notifications of the strip that came as far as the dialog's own map

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id == IDC_TABS && HIWORD(code) == WM_NOTIFY) heard.push_back(static_cast<short>(LOWORD(code)));
        return CKtUiTabMainDialog::OnCmdMsg(id, code, extra, info);
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CKtUiTabMainDialog::DoDataExchange(exchange);
        if (bindsTab && tab.m_hWnd == nullptr) tab.SubclassDlgItem(IDC_TABS, this);
        if (exchange->m_bSaveAndValidate && onSave) onSave();
    }
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiTabMainDialog::OnInitDialog();
        if (onInit) onInit();
        return result;
    }
};

/// A visible modeless tabbed dialog without pages; pages a, b, c and d are there to be added.
class TabTest : public DialogTest {
protected:
    TabTest() : dialog(&parent) {
        dialog.Create(IDD_TABBED, &parent);
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~TabTest() override { dialog.DestroyWindow(); }

    /// Adds the first `count` pages.
    void addPages(int count) {
        static const wchar_t* const names[] = {L"a", L"b", L"c", L"d"};
        NotingPage* const pages[] = {&a, &b, &c, &d};
        for (int i = 0; i < count; ++i) dialog.AddTab(i, names[i], IDD_TAB_PAGE, pages[i]);
        log.clear();
    }
    /// What is written down since the last call.
    std::vector<std::string> taken() { return std::exchange(log, {}); }
    /// The index of the only visible page; -1 for none, -2 for several.
    int front() {
        int found = -1;
        for (int i = 0; CKbUiTabChildDialog* page = dialog.tab.GetDialogPointer(i); ++i)
            if (page->IsWindowVisible()) found = found == -1 ? i : -2;
        return found;
    }
    /// Clicks item `index` of the strip.
    void click(int index) {
        CRect item;
        dialog.tab.GetItemRect(index, &item);
        const CPoint at = item.CenterPoint();
        dialog.tab.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        dialog.tab.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    }
    /// The window's rectangle in the dialog's client coordinates.
    CRect rectOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        dialog.ScreenToClient(&rect);
        return rect;
    }

    std::vector<std::string> log;
    NotingPage a{"a", log}, b{"b", log}, c{"c", log}, d{"d", log};
    TabbedDialog dialog;
};

using Log = std::vector<std::string>;
