// A tab window with an owner that writes down what it hears.
#pragma once

#include <afxcmn.h>
#include <afxglobals.h>
#include <afxtabctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ui_test.h"

namespace tab_test {

/// A window inside a tab.
class Page : public CWnd {
public:
    Page(CWnd* parent, UINT id, bool focusable = true) {
        (void)focusable;
        CWnd::Create(afxGlobalData.RegisterWindowClass(L"kmfc:TabPage"), L"page", WS_CHILD,
                     CRect(0, 0, 10, 10), parent, id);
    }
};

/// The tab control; opens what is protected and writes down what is called.
class Tabs : public CMFCTabCtrl {
public:
    using CMFCTabCtrl::edit_label;
    int changes = 0;
    int barred = -1;       ///< the tab whose label may not be changed
    CString renamed;       ///< what OnRenameTab was given
    bool refuses = false;  ///< OnRenameTab answers FALSE
    CString* replacement = nullptr;

    CEdit* box() const { return m_pInPlaceEdit; }
    void OnChangeTabs() override { ++changes; }
    BOOL StartRenameTab(int index) override { return index != barred && CMFCTabCtrl::StartRenameTab(index); }
    BOOL OnRenameTab(int, CString& text) override {
        renamed = text;
        if (replacement != nullptr) text = *replacement;
        return !refuses;
    }
};

/// The parent.
class Owner : public ui_test::ParentWindow {
public:
    std::vector<std::string> heard;
    int vetoed = -1;  ///< the tab that may not become active
    Tabs* tabs = nullptr;
    CString tip;

protected:
    LRESULT OnChanging(WPARAM tab, LPARAM) {
        heard.push_back("changing " + std::to_string(tab) + " from " + std::to_string(tabs->GetActiveTab()));
        return static_cast<int>(tab) == vetoed;
    }
    LRESULT OnChanged(WPARAM tab, LPARAM object) {
        EXPECT_EQ(reinterpret_cast<CMFCBaseTabCtrl*>(object), tabs);
        const HWND window = tabs->GetTabWnd(static_cast<int>(tab))->GetSafeHwnd();
        heard.push_back("changed " + std::to_string(tab) +
                        (::IsWindowVisible(window) ? " shown" : " hidden"));
        return 0;
    }
    LRESULT OnMoved(WPARAM from, LPARAM to) {
        heard.push_back("moved " + std::to_string(from) + " to " + std::to_string(to));
        return 0;
    }
    LRESULT OnRenamed(WPARAM tab, LPARAM) {
        heard.push_back("renamed " + std::to_string(tab));
        return 0;
    }
    LRESULT OnTip(WPARAM, LPARAM info) {
        auto& asked = *reinterpret_cast<CMFCTabToolTipInfo*>(info);
        heard.push_back("tip of " + std::to_string(asked.m_nTabIndex));
        EXPECT_EQ(asked.m_pTabWnd, tabs);
        asked.m_strText = tip;
        return 0;
    }
    afx_msg void OnContextMenu(CWnd* window, CPoint) {
        heard.push_back(window == tabs ? "menu of the tabs" : "menu");
    }
    DECLARE_MESSAGE_MAP()
};

struct TabWindow : ::testing::Test {
    TabWindow() { owner.tabs = &tabs; }
    ~TabWindow() override {
        if (tabs.m_hWnd != nullptr) tabs.DestroyWindow();
    }
    void make(CMFCTabCtrl::Style style = CMFCTabCtrl::STYLE_3D,
              CMFCTabCtrl::Location location = CMFCTabCtrl::LOCATION_BOTTOM, bool close = false) {
        ASSERT_TRUE(tabs.Create(style, CRect(0, 0, 400, 200), &owner, 1, location, close));
    }
    Page& add(const wchar_t* label, int at = -1) {
        pages.push_back(std::make_unique<Page>(&tabs, static_cast<UINT>(1000 + pages.size())));
        tabs.InsertTab(pages.back().get(), label, at);
        return *pages.back();
    }
    void add_many(int count) {
        for (int i = 0; i < count; ++i) {
            CString label;
            label.Format(L"Sheet number %d", i);
            add(label);
        }
        owner.heard.clear();
    }
    CRect tab(int index) const {
        CRect rect;
        EXPECT_TRUE(tabs.GetTabRect(index, rect));
        return rect;
    }
    std::wstring labels() const {
        std::wstring all;
        for (int i = 0; i < tabs.GetTabsNum(); ++i) {
            CString label;
            tabs.GetTabLabel(i, label);
            all += (i == 0 ? L"" : L",") + std::wstring(label);
        }
        return all;
    }
    void send(UINT message, CPoint at, WPARAM keys = 0) {
        tabs.SendMessage(message, keys, MAKELPARAM(at.x, at.y));
    }
    void press(CPoint at) { send(WM_LBUTTONDOWN, at, MK_LBUTTON); }
    void release(CPoint at) { send(WM_LBUTTONUP, at); }
    void click(CPoint at) { press(at), release(at); }
    void drag(CPoint at) { send(WM_MOUSEMOVE, at, MK_LBUTTON); }
    void key(UINT code) { tabs.SendMessage(WM_KEYDOWN, code); }
    /// A key as the message loop sees it, when the focus is in `window`.
    bool translated(CWnd& window, UINT code) {
        MSG message = {window.m_hWnd, WM_KEYDOWN, code, 1, 0, {}};
        return CWnd::WalkPreTranslateTree(owner.m_hWnd, &message) != FALSE;
    }
    using Heard = std::vector<std::string>;

    Owner owner;
    std::vector<std::unique_ptr<Page>> pages;
    Tabs tabs;
};

/// Holds a key as the thread's keyboard state has it.
class HeldKey {
public:
    explicit HeldKey(int code) {
        ::GetKeyboardState(m_former);
        BYTE state[256];
        memcpy(state, m_former, sizeof(state));
        state[code] = 0x80;
        ::SetKeyboardState(state);
    }
    ~HeldKey() { ::SetKeyboardState(m_former); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    BYTE m_former[256] = {};
};

}  // namespace tab_test
