// What a window offers beside its messages: regions, the caret, scrolling, lists of files, transparency.
#include <afxwin.h>

#include "ui_test.h"

namespace {

struct WindowServices : ::testing::Test {
    WindowServices() {
        window.CreateEx(0, AfxRegisterWndClass(0), L"services", WS_OVERLAPPEDWINDOW | WS_VSCROLL | WS_VISIBLE,
                        CRect(50, 60, 350, 260), nullptr, 0);
    }
    CWnd window;
};

}  // namespace

TEST_F(WindowServices, AClientAreaBecomesTheWindowAroundIt) {
    CWnd framed;
    framed.CreateEx(WS_EX_CLIENTEDGE, AfxRegisterWndClass(0), L"", WS_POPUP | WS_BORDER, CRect(0, 0, 50, 50),
                    nullptr, 0);
    const CRect client(10, 20, 110, 70);
    CRect bare = client, whole = client, asked = client;
    ::AdjustWindowRectEx(&bare, framed.GetStyle(), FALSE, framed.GetExStyle() & ~DWORD{WS_EX_CLIENTEDGE});
    ::AdjustWindowRectEx(&whole, framed.GetStyle(), FALSE, framed.GetExStyle());
    ASSERT_NE(bare, whole);
    framed.CalcWindowRect(&asked);
    EXPECT_EQ(asked, bare) << "the client edge is the inside's";
    asked = client;
    framed.CalcWindowRect(&asked, CWnd::adjustOutside);
    EXPECT_EQ(asked, whole);
    CMenu menu;
    menu.CreateMenu();
    menu.AppendMenu(MF_STRING, 1, L"one");
    framed.SetMenu(&menu);
    CRect withMenu = client, expected = client;
    framed.CalcWindowRect(&withMenu);
    ::AdjustWindowRectEx(&expected, framed.GetStyle(), TRUE, framed.GetExStyle() & ~DWORD{WS_EX_CLIENTEDGE});
    EXPECT_EQ(withMenu, expected);
    framed.SetMenu(nullptr);
}

TEST_F(WindowServices, PartsAreInvalidatedAndValidatedByRegions) {
    window.UpdateWindow();
    window.ValidateRect(nullptr);
    CRgn part, found;
    part.CreateRectRgn(5, 6, 25, 36);
    found.CreateRectRgn(0, 0, 0, 0);
    window.InvalidateRgn(&part, FALSE);
    EXPECT_EQ(window.GetUpdateRgn(&found), SIMPLEREGION);
    CRect box;
    found.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(5, 6, 25, 36));
    CRgn half;
    half.CreateRectRgn(5, 6, 15, 36);
    window.ValidateRgn(&half);
    window.GetUpdateRgn(&found);
    found.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(15, 6, 25, 36));
    window.ValidateRgn(nullptr);
    EXPECT_EQ(window.GetUpdateRgn(&found), NULLREGION);
    window.InvalidateRgn(nullptr);
    EXPECT_TRUE(window.GetUpdateRect(nullptr));
}

TEST_F(WindowServices, ADeviceContextMayBeClipped) {
    CRgn part;
    part.CreateRectRgn(0, 0, 10, 10);
    CDC* dc = window.GetDCEx(&part, DCX_INTERSECTRGN | DCX_CACHE);
    ASSERT_TRUE(dc);
    CRect clip;
    dc->GetClipBox(&clip);
    EXPECT_LE(clip.Width(), 10);
    window.ReleaseDC(dc);
    part.Detach();  // the system owns it now
    EXPECT_TRUE(window.ReleaseDC(window.GetDCEx(nullptr, DCX_CACHE)));
}

TEST_F(WindowServices, TheLimitOfABarLeavesRoomForItsPage) {
    window.SetScrollRange(SB_VERT, 0, 100);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 100);
    SCROLLINFO info = {};
    info.nPage = 30;
    info.fMask = SIF_PAGE;
    info.cbSize = sizeof info;
    ::SetScrollInfo(window, SB_VERT, &info, FALSE);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 71);
}

TEST_F(WindowServices, TheCaretStandsWhereItIsPut) {
    window.SetFocus();
    window.CreateSolidCaret(2, 10);
    CWnd::SetCaretPos(CPoint(12, 34));
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(12, 34));
    window.ShowCaret();
    window.HideCaret();
    CBitmap picture;
    picture.CreateBitmap(4, 8, 1, 1, nullptr);
    window.CreateCaret(&picture);
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(12, 34));
    ::DestroyCaret();
}

TEST_F(WindowServices, TheClipboardBelongsToWhoEmptiedIt) {
    ASSERT_TRUE(window.OpenClipboard());
    EXPECT_EQ(CWnd::GetOpenClipboardWindow(), &window);
    ::EmptyClipboard();
    ::CloseClipboard();
    EXPECT_EQ(CWnd::GetClipboardOwner(), &window);
}

TEST_F(WindowServices, TransparencyIsReadBack) {
    window.ModifyStyleEx(0, WS_EX_LAYERED);
    ASSERT_TRUE(window.SetLayeredWindowAttributes(RGB(1, 2, 3), 128, LWA_ALPHA));
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    ASSERT_TRUE(window.GetLayeredWindowAttributes(&key, &alpha, &flags));
    EXPECT_EQ(alpha, 128);
    EXPECT_EQ(flags, DWORD{LWA_ALPHA});
}

TEST_F(WindowServices, FactsOfTheWindow) {
    WINDOWINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(window.GetWindowInfo(&info));
    CRect place;
    window.GetWindowRect(&place);
    EXPECT_EQ(CRect(info.rcWindow), place);
    TITLEBARINFO title = {};
    title.cbSize = sizeof title;
    EXPECT_TRUE(window.GetTitleBarInfo(&title));
    SCROLLBARINFO bar = {};
    bar.cbSize = sizeof bar;
    EXPECT_TRUE(window.GetScrollBarInfo(OBJID_VSCROLL, &bar));
    HRGN shape = ::CreateRectRgn(0, 0, 50, 40), found = ::CreateRectRgn(0, 0, 0, 0);
    window.SetWindowRgn(shape, FALSE);
    EXPECT_EQ(window.GetWindowRgn(found), SIMPLEREGION);
    ::DeleteObject(found);
    EXPECT_TRUE(window.SetWindowContextHelpId(4711));
    EXPECT_EQ(window.GetWindowContextHelpId(), 4711u);
    EXPECT_EQ(CWnd::FindWindowEx(nullptr, nullptr, nullptr, L"services"), &window);
}

TEST_F(WindowServices, ModalStateDisablesAndEnables) {
    window.BeginModalState();
    EXPECT_FALSE(window.IsWindowEnabled());
    window.EndModalState();
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST_F(WindowServices, ScrollingTellsWhatIsUncovered) {
    window.UpdateWindow();
    CRgn uncovered;
    uncovered.CreateRectRgn(0, 0, 0, 0);
    CRect client, box;
    window.GetClientRect(&client);
    EXPECT_NE(window.ScrollWindowEx(0, 10, nullptr, nullptr, &uncovered, &box, 0), ERROR);
    EXPECT_EQ(box, CRect(0, 0, client.Width(), 10));
    CRect region;
    uncovered.GetRgnBox(&region);
    EXPECT_EQ(region, box);
}

TEST_F(WindowServices, FoldersAreListed) {
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const CString file = CString(folder) + L"ktui_listed.txt";
    ::CloseHandle(::CreateFileW(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    CWnd list;
    list.Create(L"LISTBOX", L"", WS_CHILD | LBS_NOTIFY, CRect(0, 0, 100, 100), &window, 9);
    CString pattern = CString(folder) + L"ktui_listed.*";
    EXPECT_TRUE(window.DlgDirList(pattern.GetBuffer(MAX_PATH), 9, 0, DDL_READWRITE));
    pattern.ReleaseBuffer();
    ASSERT_EQ(list.SendMessage(LB_GETCOUNT), 1);
    list.SendMessage(LB_SETCURSEL, 0);
    wchar_t name[MAX_PATH] = {};
    EXPECT_FALSE(window.DlgDirSelect(name, 9)) << "no folder";
    EXPECT_STREQ(name, L"ktui_listed.txt");
    ::DeleteFileW(file);
}
