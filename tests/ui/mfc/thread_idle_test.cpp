// What a thread does while it is idle, which messages end the pause, who sees a message first, and the items
// of menus and controls that commands bring up to date.
#include <afxext.h>

#include <functional>
#include <vector>

#include "ui_test.h"

namespace {

class Thread : public CWinThread {
public:
    using CWinThread::m_pMainWnd;
    ~Thread() override { m_pMainWnd = nullptr; }
    Thread() { m_bAutoDelete = FALSE; }
};

/// Notes updates and keys.
class Noting : public ui_test::ParentWindow {
public:
    int updates = 0, translated = 0;
    bool takes = false;
    BOOL PreTranslateMessage(MSG* message) override {
        ++translated;
        return takes || ParentWindow::PreTranslateMessage(message);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_IDLEUPDATECMDUI && wParam) ++updates;
        return ParentWindow::WindowProc(message, wParam, lParam);
    }
};

class Child : public CWnd {
public:
    int updates = 0, translated = 0;
    bool takes = false;
    BOOL PreTranslateMessage(MSG* message) override {
        ++translated;
        return takes || CWnd::PreTranslateMessage(message);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_IDLEUPDATECMDUI && wParam) ++updates;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A target that does with an item what the test says.
class Target : public CCmdTarget {
public:
    std::function<void(CCmdUI&)> update;
    bool hasCommand = false;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code == CN_COMMAND) return hasCommand && info != nullptr;
        if (code != CN_UPDATE_COMMAND_UI || !update) return CCmdTarget::OnCmdMsg(id, code, extra, info);
        update(*static_cast<CCmdUI*>(extra));
        return TRUE;
    }
};

MSG message_of(UINT number, CPoint at = CPoint(0, 0), HWND window = nullptr) {
    MSG message = {};
    message.hwnd = window;
    message.message = number;
    message.pt = at;
    return message;
}

}  // namespace

TEST(ThreadIdle, TheFirstStepBringsWindowsUpToDateAndTheSecondIsTheLast) {
    Thread thread;
    EXPECT_TRUE(thread.OnIdle(0)) << "without a window too";
    Noting main;
    Child child;
    child.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &main, 5);
    thread.m_pMainWnd = &main;
    main.ShowWindow(SW_SHOW);
    EXPECT_TRUE(thread.OnIdle(0));
    EXPECT_EQ(main.updates, 1);
    EXPECT_EQ(child.updates, 1);
    EXPECT_FALSE(thread.OnIdle(1));
    EXPECT_EQ(main.updates, 1);
    main.ShowWindow(SW_HIDE);
    EXPECT_TRUE(thread.OnIdle(0));
    EXPECT_EQ(main.updates, 1) << "nobody sees it";
    child.DestroyWindow();
}

TEST(ThreadIdle, TemporaryObjectsGoAtTheSecondStep) {
    Thread thread;
    const HWND window =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    ui_test::ParentWindow owner;
    CWnd::FromHandle(window)->SetOwner(&owner);
    thread.OnIdle(0);
    EXPECT_EQ(CWnd::FromHandle(window)->GetOwner(), &owner) << "the same object";
    thread.OnIdle(1);
    EXPECT_NE(CWnd::FromHandle(window)->GetOwner(), &owner) << "another one knows nothing of it";
    ::DestroyWindow(window);
}

TEST(ThreadIdle, MovesToTheSamePlacePaintingAndTheCaretAreNoInput) {
    Thread thread;
    const auto idle = [&](MSG message) { return thread.IsIdleMessage(&message) != FALSE; };
    EXPECT_TRUE(idle(message_of(WM_KEYDOWN)));
    EXPECT_FALSE(idle(message_of(WM_PAINT)));
    EXPECT_FALSE(idle(message_of(0x0118)));
    EXPECT_TRUE(idle(message_of(WM_MOUSEMOVE, CPoint(5, 6))));
    EXPECT_FALSE(idle(message_of(WM_MOUSEMOVE, CPoint(5, 6))));
    EXPECT_TRUE(idle(message_of(WM_NCMOUSEMOVE, CPoint(5, 6)))) << "another message";
    EXPECT_FALSE(idle(message_of(WM_NCMOUSEMOVE, CPoint(5, 6))));
    EXPECT_TRUE(idle(message_of(WM_NCMOUSEMOVE, CPoint(5, 7))));
    EXPECT_TRUE(idle(message_of(WM_LBUTTONDOWN, CPoint(5, 7))));
}

TEST(ThreadIdle, WindowsSeeAMessageFromTheInnermostToTheMainOne) {
    Thread thread;
    Noting main, beside;
    Child child;
    child.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &main, 5);
    thread.m_pMainWnd = &main;
    MSG message = message_of(WM_KEYDOWN, CPoint(0, 0), child.m_hWnd);
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
    EXPECT_EQ(child.translated, 1);
    EXPECT_EQ(main.translated, 1);
    child.takes = true;
    EXPECT_TRUE(thread.PreTranslateMessage(&message));
    EXPECT_EQ(main.translated, 1) << "taken before";
    message.hwnd = beside.m_hWnd;
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
    EXPECT_EQ(beside.translated, 1);
    EXPECT_EQ(main.translated, 2) << "accelerators of the main window work in other windows";
    main.takes = true;
    EXPECT_TRUE(thread.PreTranslateMessage(&message));
    message.hwnd = nullptr;
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
    child.DestroyWindow();
}

TEST(ThreadIdle, TheThreadOfTheProgramSeesAllMessages) {
    Noting main;
    MSG message = message_of(WM_KEYDOWN, CPoint(0, 0), main.m_hWnd);
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(main.translated, 1);
    main.takes = true;
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
}

TEST(CommandItems, OfMenusAreEnabledCheckedNamedAndMadeRadioItems) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 10, L"first");
    menu.AppendMenu(MF_STRING, 11, L"second");
    Target target;
    const auto update = [&](std::function<void(CCmdUI&)> what, BOOL disables = FALSE) {
        target.update = std::move(what);
        CCmdUI item;
        item.m_nID = 11;
        item.m_nIndex = 1;
        item.m_nIndexMax = 2;
        item.m_pMenu = &menu;
        return item.DoUpdate(&target, disables) != FALSE;
    };
    const auto state = [&] { return menu.GetMenuState(1, MF_BYPOSITION); };
    EXPECT_TRUE(update([](CCmdUI& item) { item.Enable(FALSE); }));
    EXPECT_NE(state() & MF_GRAYED, 0U);
    EXPECT_EQ(menu.GetMenuState(0, MF_BYPOSITION), 0U) << "only that one";
    EXPECT_TRUE(update([](CCmdUI& item) { item.Enable(TRUE); }));
    EXPECT_EQ(state() & MF_GRAYED, 0U);
    update([](CCmdUI& item) { item.SetCheck(); });
    EXPECT_NE(state() & MF_CHECKED, 0U);
    update([](CCmdUI& item) { item.SetCheck(0); });
    EXPECT_EQ(state() & MF_CHECKED, 0U);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    update([](CCmdUI& item) { item.SetRadio(); });
    EXPECT_NE(state() & MF_CHECKED, 0U);
    ASSERT_TRUE(::GetMenuItemInfoW(menu.m_hMenu, 1, TRUE, &info));
    EXPECT_NE(info.fType & MFT_RADIOCHECK, 0U);
    update([](CCmdUI& item) { item.SetRadio(FALSE); });
    EXPECT_EQ(state() & MF_CHECKED, 0U);
    update([](CCmdUI& item) { item.SetText(L"renamed"); });
    CString text;
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"renamed");
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"first");
    EXPECT_TRUE(update([](CCmdUI&) {}, TRUE));
    EXPECT_NE(state() & MF_GRAYED, 0U) << "nobody handles the command";
    target.hasCommand = true;
    update([](CCmdUI&) {}, TRUE);
    EXPECT_EQ(state() & MF_GRAYED, 0U);
    update([](CCmdUI& item) { item.Enable(FALSE); }, TRUE);
    EXPECT_NE(state() & MF_GRAYED, 0U) << "what the handler said counts";
}

TEST(CommandItems, OfAMenuInsideAMenuAreLeftToIt) {
    CMenu menu, inner;
    menu.CreatePopupMenu();
    inner.CreatePopupMenu();
    inner.AppendMenu(MF_STRING, 12, L"inner");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"more");
    Target target;
    target.update = [](CCmdUI& item) {
        item.Enable(FALSE);
        item.SetCheck();
        item.SetRadio();
        item.SetText(L"renamed");
    };
    CCmdUI item;
    item.m_nID = 12;
    item.m_pMenu = &menu;
    item.m_nIndexMax = 1;
    item.m_pSubMenu = menu.GetSubMenu(0);
    EXPECT_TRUE(item.DoUpdate(&target, FALSE));
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"more");
    EXPECT_EQ(menu.GetMenuState(0, MF_BYPOSITION) & (MF_GRAYED | MF_CHECKED), 0U);
}

TEST(CommandItems, OfDialogsAreTheirControls) {
    ui_test::ParentWindow owner;
    CDialog parent;
    ASSERT_TRUE(parent.Create(401, &owner));
    parent.ShowWindow(SW_SHOW);
    CButton first, second;
    CStatic label;
    first.Create(L"first", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_CHECKBOX, CRect(0, 0, 50, 20), &parent,
                 120);
    second.Create(L"second", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 30, 50, 50), &parent, 121);
    label.Create(L"label", WS_CHILD | WS_VISIBLE, CRect(0, 60, 50, 80), &parent, 122);
    Target target;
    const auto update = [&](CWnd& control, std::function<void(CCmdUI&)> what) {
        target.update = std::move(what);
        CCmdUI item;
        item.m_nID = static_cast<UINT>(control.GetDlgCtrlID());
        item.m_pOther = &control;
        return item.DoUpdate(&target, FALSE) != FALSE;
    };
    parent.SetActiveWindow();
    first.SetFocus();
    EXPECT_TRUE(update(first, [](CCmdUI& item) { item.Enable(FALSE); }));
    EXPECT_FALSE(first.IsWindowEnabled());
    EXPECT_NE(::GetFocus(), first.m_hWnd);
    EXPECT_TRUE(::IsChild(parent.m_hWnd, ::GetFocus())) << "the focus goes on";
    update(first, [](CCmdUI& item) { item.Enable(TRUE); });
    EXPECT_TRUE(first.IsWindowEnabled());
    update(first, [](CCmdUI& item) { item.SetCheck(1); });
    EXPECT_EQ(first.GetCheck(), 1);
    update(first, [](CCmdUI& item) { item.SetRadio(FALSE); });
    EXPECT_EQ(first.GetCheck(), 0);
    update(label, [](CCmdUI& item) { item.SetCheck(1); });
    update(label, [](CCmdUI& item) { item.SetText(L"renamed"); });
    EXPECT_EQ(ui_test::text_of(label.m_hWnd), L"renamed");
    CCmdUI none;
    none.m_nID = 0;
    none.m_pOther = &label;
    target.update = [](CCmdUI& item) { item.SetText(L"never"); };
    EXPECT_TRUE(none.DoUpdate(&target, TRUE)) << "without a command there is nothing to do";
    none.m_nID = 0xFFFF;
    EXPECT_TRUE(none.DoUpdate(&target, TRUE));
    EXPECT_EQ(ui_test::text_of(label.m_hWnd), L"renamed");
    parent.DestroyWindow();
}
