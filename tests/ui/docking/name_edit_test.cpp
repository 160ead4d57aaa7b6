// The popup in which palettes and sets are renamed.
#include <ktui/docking/name_edit.h>

#include <afxglobals.h>

#include <string>
#include <vector>

#include "ui_test.h"

namespace {

class OpenEdit : public CNameEdit {
public:
    explicit OpenEdit(bool* gone = nullptr) : m_gone(gone) {}
    ~OpenEdit() override {
        if (m_gone) *m_gone = true;
    }
    using CNameEdit::m_edit;
    using CNameEdit::m_receiver;

private:
    bool* m_gone;
};

/// Hears how the renaming ended.
class Receiver : public CWnd {
public:
    std::vector<std::wstring> heard;
    CNameEdit* from = nullptr;
    bool destroys = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_USER + 102) return CWnd::WindowProc(message, wParam, lParam);
        from = reinterpret_cast<CNameEdit*>(wParam);
        heard.push_back(lParam ? reinterpret_cast<const wchar_t*>(lParam) : L"(cancelled)");
        if (destroys) {
            from->DestroyWindow();
            delete from;
        }
        return 1;
    }
};

struct NameEdit : ::testing::Test {
    ui_test::ParentWindow parent;
    Receiver receiver;
    bool gone = false;
    OpenEdit* edit = new OpenEdit(&gone);

    NameEdit() { receiver.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 100), &parent, 1); }
    ~NameEdit() override {
        if (!gone) delete edit;
    }
    void open(const wchar_t* text = L"Layers", CPoint place = CPoint(120, 140)) {
        ASSERT_TRUE(edit->Create(&receiver, &parent, text, &place));
        ui_test::pump();
    }
    BOOL press(WPARAM key, UINT kind = WM_KEYDOWN) {
        MSG message = {};
        message.hwnd = edit->m_edit->m_hWnd;
        message.message = kind;
        message.wParam = key;
        return edit->PreTranslateMessage(&message);
    }
    static int lineHeight() {
        const HDC dc = ::GetDC(nullptr);
        const HGDIOBJ former = ::SelectObject(dc, afxGlobalData.fontRegular.m_hObject);
        SIZE size = {};
        ::GetTextExtentPoint32W(dc, L"|", 1, &size);
        ::SelectObject(dc, former);
        ::ReleaseDC(nullptr, dc);
        return size.cy;
    }
};

TEST_F(NameEdit, LiesAtItsPositionAHundredWideAndALineHigh) {
    open();
    CRect rect;
    edit->GetWindowRect(&rect);
    EXPECT_TRUE(rect == CRect(120, 140, 220, 140 + lineHeight() + 4));
}

TEST_F(NameEdit, WithoutAPositionLiesBesideTheParentsCorner) {
    ASSERT_TRUE(edit->Create(&receiver, &parent, L"Layers", nullptr));
    CRect rect, area;
    edit->GetWindowRect(&rect);
    parent.GetWindowRect(&area);
    EXPECT_EQ(rect.left, area.left + 20);
    EXPECT_EQ(rect.top, area.top + 10);
    EXPECT_EQ(rect.Width(), 100);
    EXPECT_EQ(rect.Height(), lineHeight() + 4);
}

TEST_F(NameEdit, IsATopmostPopupOfItsParentWithAClassOfItsOwn) {
    open();
    EXPECT_EQ(edit->GetStyle() & 0x92000000, 0x92000000u);
    EXPECT_TRUE(edit->GetExStyle() & WS_EX_TOPMOST);
    EXPECT_EQ(::GetWindow(edit->m_hWnd, GW_OWNER), parent.m_hWnd);
    wchar_t name[200] = {};
    ::GetClassNameW(edit->m_hWnd, name, 200);
    EXPECT_EQ(std::wstring(name).substr(0, 12), L"KH:NameEdit:");
    EXPECT_EQ(ui_test::text_of(edit->m_hWnd), L"Layers");
}

TEST_F(NameEdit, HoldsAnEditWithTheTextSelectedAndTheFocus) {
    open();
    ASSERT_NE(edit->m_edit, nullptr);
    EXPECT_EQ(edit->m_edit->GetDlgCtrlID(), 1127);
    EXPECT_EQ(ui_test::text_of(edit->m_edit->m_hWnd), L"Layers");
    EXPECT_EQ(::GetFocus(), edit->m_edit->m_hWnd);
    EXPECT_EQ(reinterpret_cast<HFONT>(edit->m_edit->SendMessage(WM_GETFONT)),
              static_cast<HFONT>(afxGlobalData.fontRegular));
    DWORD from = 9, to = 9;
    edit->m_edit->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 0u);
    EXPECT_EQ(to, 6u);
}

DWORD popupStyle = 0, editStyle = 0;
LRESULT CALLBACK noteStyles(int code, WPARAM window, LPARAM data) {
    if (code == HCBT_CREATEWND) {
        const CREATESTRUCTW& create = *reinterpret_cast<CBT_CREATEWNDW*>(data)->lpcs;
        (create.style & WS_CHILD ? editStyle : popupStyle) = static_cast<DWORD>(create.style);
    }
    return ::CallNextHookEx(nullptr, code, window, data);
}

TEST_F(NameEdit, IsMadeWithTheAgreedStyles) {
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, noteStyles, nullptr, ::GetCurrentThreadId());
    open();
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(popupStyle, 0x92000000u);
    EXPECT_EQ(editStyle, 0x50800080u);
}

TEST_F(NameEdit, TheEditFillsItAlsoAfterASizeAndSelectsAll) {
    open();
    edit->m_edit->SendMessage(EM_SETSEL, 2, 2);
    edit->MoveWindow(100, 100, 160, 40);
    CRect client, area;
    edit->GetClientRect(&client);
    edit->m_edit->GetWindowRect(&area);
    edit->ScreenToClient(&area);
    EXPECT_TRUE(area == client);
    EXPECT_EQ(edit->m_edit->SendMessage(EM_GETSEL), MAKELONG(0, 6));
}

TEST_F(NameEdit, ReturnHandsTheTextOverAndIsEaten) {
    open();
    edit->m_edit->SetWindowText(L"Blocks");
    EXPECT_TRUE(press(VK_RETURN));
    EXPECT_EQ(receiver.heard, std::vector<std::wstring>{L"Blocks"});
    EXPECT_TRUE(gone);
}

TEST_F(NameEdit, AnEmptyTextIsHandedOverToo) {
    open();
    edit->m_edit->SetWindowText(L"");
    EXPECT_TRUE(press(VK_RETURN));
    EXPECT_EQ(receiver.heard, std::vector<std::wstring>{L""});
}

TEST_F(NameEdit, EscapeCancelsAndIsEaten) {
    open();
    edit->m_edit->SetWindowText(L"Blocks");
    EXPECT_TRUE(press(VK_ESCAPE));
    EXPECT_EQ(receiver.heard, std::vector<std::wstring>{L"(cancelled)"});
    EXPECT_TRUE(gone);
}

TEST_F(NameEdit, OtherKeysGoToTheEdit) {
    open();
    EXPECT_FALSE(press('A'));
    EXPECT_FALSE(press(VK_RETURN, WM_KEYUP));
    EXPECT_FALSE(press(VK_ESCAPE, WM_CHAR));
    EXPECT_TRUE(receiver.heard.empty());
}

TEST_F(NameEdit, AKeyEndsItOnlyOnce) {
    open();
    receiver.destroys = false;
    press(VK_RETURN);
    EXPECT_EQ(receiver.from, edit);
    EXPECT_EQ(edit->m_receiver, nullptr);
    parent.SetFocus();
    EXPECT_EQ(receiver.heard.size(), 1u);
    EXPECT_TRUE(press(VK_ESCAPE)) << "eaten all the same";
    EXPECT_EQ(receiver.heard.size(), 1u);
}

TEST_F(NameEdit, LosingTheFocusHandsTheTextOver) {
    open();
    edit->m_edit->SetWindowText(L"Blocks");
    parent.SetFocus();
    EXPECT_EQ(receiver.heard, std::vector<std::wstring>{L"Blocks"});
    EXPECT_TRUE(gone);
}

TEST_F(NameEdit, LosingTheFocusLeavesTheReceiverKnown) {
    open();
    receiver.destroys = false;
    parent.SetFocus();
    EXPECT_EQ(edit->m_receiver, &receiver);
    edit->m_edit->SetFocus();
    parent.SetFocus();
    EXPECT_EQ(receiver.heard.size(), 2u);
}

TEST_F(NameEdit, DestroyingItTellsNobodyAndDeletesTheEdit) {
    open();
    const HWND inner = edit->m_edit->m_hWnd;
    edit->DestroyWindow();
    EXPECT_TRUE(receiver.heard.empty());
    EXPECT_EQ(edit->m_edit, nullptr);
    EXPECT_FALSE(::IsWindow(inner));
}

TEST_F(NameEdit, KeysOfTheKeyboardReachIt) {
    open();
    ::PostMessageW(edit->m_edit->m_hWnd, WM_CHAR, L'W', 0);
    ::PostMessageW(edit->m_edit->m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(ui_test::pump_until([this] { return gone; }));
    EXPECT_EQ(receiver.heard, std::vector<std::wstring>{L"W"}) << "what was selected gave way";
}

}  // namespace
