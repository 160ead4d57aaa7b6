// A property sheet of two pages that write down what they are told; a third one for wizards.
#pragma once

#include <afxcmn.h>
#include <afxdlgs.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui_test.h"

namespace sheets {

constexpr int kFirst = 430, kSecond = 431, kThird = 432;
constexpr int kText = 1001;
constexpr int kHelpButton = 9;
using Log = std::vector<std::string>;

/// A page that writes down what it is told.
class Page : public CPropertyPage {
public:
    Page(UINT id, const char* name, Log& log, UINT caption = 0)
        : CPropertyPage(id, caption), m_name(name), m_log(log) {}

    CString text{L"start"};
    CString set;  ///< put into `text` when the page becomes active
    BOOL activates = TRUE, leaves = TRUE, applies = TRUE, cancels = TRUE, finishes = TRUE;
    LRESULT back = 0, next = 0, sibling = 0;
    int asked = 0, helps = 0, idles = 0;
    bool fails = false;
    std::function<void()> onActive;

    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Text(exchange, kText, text);
        DDV_MaxChars(exchange, text, 8);
    }
    BOOL OnInitDialog() override {
        note("init");
        if (fails) throw 1;
        return CPropertyPage::OnInitDialog();
    }
    BOOL OnSetActive() override {
        note("active");
        if (!set.IsEmpty()) text = set;
        if (onActive) onActive();
        return activates ? CPropertyPage::OnSetActive() : FALSE;
    }
    BOOL OnKillActive() override {
        note("leave");
        return leaves && CPropertyPage::OnKillActive();
    }
    BOOL OnApply() override {
        note("apply");
        return applies && CPropertyPage::OnApply();
    }
    void OnOK() override {
        note("ok");
        CPropertyPage::OnOK();
    }
    void OnReset() override {
        note("reset");
        CPropertyPage::OnReset();
    }
    void OnCancel() override {
        note("cancel");
        CPropertyPage::OnCancel();
    }
    BOOL OnQueryCancel() override {
        note("may cancel");
        return cancels && CPropertyPage::OnQueryCancel();
    }
    LRESULT OnWizardBack() override {
        note("back");
        return back != 0 ? back : CPropertyPage::OnWizardBack();
    }
    LRESULT OnWizardNext() override {
        note("next");
        return next != 0 ? next : CPropertyPage::OnWizardNext();
    }
    BOOL OnWizardFinish() override {
        note("finish");
        return finishes && CPropertyPage::OnWizardFinish();
    }

protected:
    afx_msg LRESULT OnSibling(WPARAM wParam, LPARAM lParam) {
        ++asked;
        return sibling != 0 ? sibling + static_cast<LRESULT>(wParam) + lParam : 0;
    }
    afx_msg void OnHelp() { ++helps; }
    afx_msg LRESULT OnIdle(WPARAM, LPARAM) {
        ++idles;
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    void note(const char* what) { m_log.push_back(std::string(m_name) + " " + what); }
    const char* m_name;
    Log& m_log;
};

class Sheets : public ::testing::Test {
protected:
    Sheets()
        : sheet(L"sheet", &parent),
          first(kFirst, "1", log),
          second(kSecond, "2", log),
          third(kThird, "3", log) {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }
    /// Runs the sheet; `action` has its window as soon as it is there.
    INT_PTR run(std::function<void()> action) {
        ui_test::when_window([this](HWND window) { return window == sheet.m_hWnd; },
                             [action = std::move(action)](HWND) { action(); });
        return sheet.DoModal();
    }
    void press(int button) { sheet.SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button)); }
    HWND button(int id) const { return ::GetDlgItem(sheet.m_hWnd, id); }
    bool enabled(int id) const { return ::IsWindowEnabled(button(id)) != FALSE; }
    bool shown(int id) const { return (::GetWindowLongPtrW(button(id), GWL_STYLE) & WS_VISIBLE) != 0; }

    ui_test::ParentWindow parent;
    Log log;
    CPropertySheet sheet;
    Page first, second, third;
};

}  // namespace sheets
