// What windows, frames and their menus are made with, to the bit, and what a failed creation calls.
#include <afxext.h>

#include <string>

#include "ui_test.h"

namespace {

/// A frame that answers an update request of one command.
class AskedFrame : public CFrameWnd {
public:
    int asked = 0;
    BOOL make() {
        return CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                        nullptr);
    }

protected:
    void PostNcDestroy() override {}
    afx_msg void OnUpdate(CCmdUI* request) {
        ++asked;
        request->Enable(FALSE);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(AskedFrame, CFrameWnd)
    ON_UPDATE_COMMAND_UI(0x8010, &AskedFrame::OnUpdate)
END_MESSAGE_MAP()

/// Says how often its end was told, and may refuse to begin.
struct Ended : CWnd {
    int ends = 0;
    BOOL begins = TRUE;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return begins && CWnd::PreCreateWindow(cs); }
    void PostNcDestroy() override { ++ends; }
};

SIZE caret_size() {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
    return CRect(info.rcCaret).Size();
}

}  // namespace

TEST(WindowFacts, AWindowThatIsNotMadeEndsOnce) {
    Ended refused, unknown, made;
    refused.begins = FALSE;
    const LPCTSTR name = AfxRegisterWndClass(0);
    EXPECT_FALSE(refused.CreateEx(0, name, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(refused.ends, 1);
    EXPECT_FALSE(unknown.CreateEx(0, L"no class of this name", L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(unknown.ends, 1);
    EXPECT_TRUE(made.CreateEx(0, name, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(made.ends, 0);
    made.DestroyWindow();
    EXPECT_EQ(made.ends, 1);
}

TEST(WindowFacts, TheSystemMenuIsNotAsked) {
    AskedFrame frame;
    ASSERT_TRUE(frame.make());
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 0x8010, L"command");
    const auto open = [&](BOOL system) {
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(0, system));
        return (menu.GetMenuState(0, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) != 0;
    };
    EXPECT_FALSE(open(TRUE));
    EXPECT_EQ(frame.asked, 0);
    EXPECT_TRUE(open(FALSE));
    EXPECT_EQ(frame.asked, 1);
    frame.DestroyWindow();
}

TEST(WindowFacts, AMenuOfWindowsIsFoundByItsCommandsWhereverTheyStand) {
    CMDIFrameWnd frame;
    EXPECT_EQ(frame.GetWindowMenuPopup(nullptr), nullptr);
    for (const UINT id : {AFX_IDM_WINDOW_FIRST, AFX_IDM_WINDOW_LAST}) {
        CMenu bar, first, second;
        bar.CreateMenu();
        first.CreatePopupMenu();
        second.CreatePopupMenu();
        first.AppendMenu(MF_STRING, id, L"alone");
        second.AppendMenu(MF_STRING, AFX_IDM_WINDOW_FIRST - 1u, L"before");
        second.AppendMenu(MF_STRING, AFX_IDM_WINDOW_LAST + 1u, L"behind");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(first.m_hMenu), L"first");
        bar.AppendMenu(MF_STRING, 77, L"no popup");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(second.m_hMenu), L"second");
        EXPECT_EQ(frame.GetWindowMenuPopup(bar.m_hMenu), first.m_hMenu) << id;
        second.AppendMenu(MF_STRING, id, L"too");
        EXPECT_EQ(frame.GetWindowMenuPopup(bar.m_hMenu), second.m_hMenu) << "the last is the usual place";
        first.Detach();
        second.Detach();
    }
}

TEST(WindowFacts, ACaretIsAsLargeAsItsPicture) {
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(50, 60, 250, 160), nullptr,
                    0);
    window.SetFocus();
    window.CreateSolidCaret(3, 11);
    EXPECT_EQ(CSize(caret_size()), CSize(3, 11));
    CBitmap picture;
    picture.CreateBitmap(6, 9, 1, 1, nullptr);
    window.CreateCaret(&picture);
    EXPECT_EQ(CSize(caret_size()), CSize(6, 9));
    window.CreateGrayCaret(2, 5);
    EXPECT_EQ(CSize(caret_size()), CSize(2, 5));
    ::DestroyCaret();
    window.DestroyWindow();
}

TEST(WindowFacts, ADialogTellsItsDefaultButton) {
    ui_test::ParentWindow parent;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(401, &parent));
    dialog.SetDefID(IDCANCEL);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDCANCEL);
    EXPECT_EQ(HIWORD(dialog.GetDefID()), DC_HASDEFID);
    dialog.SetDefID(IDOK);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDOK);
    dialog.DestroyWindow();
}
