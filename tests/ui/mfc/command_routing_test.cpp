// Commands and update requests: frame, application, dialog and owner.
#include <afxext.h>

#include <string>

#include "ui_test.h"

namespace {

constexpr UINT kOwn = 0x8010, kDisabled = 0x8011, kOrphan = 0x8012, kChecked = 0x8013, kEarlier = 0x8014;
constexpr UINT kDialogItem = 40;

class TestFrame : public CFrameWnd {
public:
    std::string log;

    BOOL CreateHidden(HMENU menu = nullptr) {
        return CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                        menu);
    }
    CMenu* Open(CMenu& menu, int position) {
        CMenu* popup = menu.GetSubMenu(position);
        SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(position, FALSE));
        return popup;
    }

protected:
    void PostNcDestroy() override {}
    afx_msg void OnOwn() { log += "own "; }
    afx_msg void OnDisabled() { log += "disabled "; }
    afx_msg void OnUpdateDisabled(CCmdUI* request) { request->Enable(FALSE); }
    afx_msg void OnUpdateChecked(CCmdUI* request) {
        request->SetCheck();
        request->SetText(L"renamed");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_COMMAND(kOwn, &TestFrame::OnOwn)
    ON_COMMAND(kDisabled, &TestFrame::OnDisabled)
    ON_UPDATE_COMMAND_UI(kDisabled, &TestFrame::OnUpdateDisabled)
    ON_COMMAND(kChecked, &TestFrame::OnOwn)
    ON_UPDATE_COMMAND_UI(kChecked, &TestFrame::OnUpdateChecked)
END_MESSAGE_MAP()

/// Passes an update on from a derived class to the frame's handler.
class PassingFrame : public TestFrame {
protected:
    afx_msg void OnUpdateDisabled(CCmdUI* request) {
        log += "passed ";
        request->ContinueRouting();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PassingFrame, TestFrame)
    ON_UPDATE_COMMAND_UI(kEarlier, &PassingFrame::OnUpdateDisabled)
END_MESSAGE_MAP()

UINT state_of(CMenu* menu, UINT command) { return menu->GetMenuState(command, MF_BYCOMMAND); }

class Routing : public ::testing::Test {
protected:
    void SetUp() override {
        CMenu popup;
        popup.CreatePopupMenu();
        for (UINT command : {kOwn, kDisabled, kOrphan, kChecked})
            popup.AppendMenu(MF_STRING, command, L"item");
        popup.AppendMenu(MF_STRING, SC_CLOSE, L"system");
        menu.CreateMenu();
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"popup");
        ASSERT_TRUE(frame.CreateHidden());
    }
    void TearDown() override { frame.DestroyWindow(); }

    TestFrame frame;
    CMenu menu;
};

}  // namespace

TEST_F(Routing, AMenuItemWithoutAHandlerIsDisabled) {
    CMenu* popup = frame.Open(menu, 0);
    EXPECT_EQ(state_of(popup, kOwn) & (MF_GRAYED | MF_DISABLED), 0u);
    EXPECT_NE(state_of(popup, kOrphan) & MF_GRAYED, 0u);
    EXPECT_NE(state_of(popup, kDisabled) & MF_GRAYED, 0u);
    EXPECT_EQ(state_of(popup, SC_CLOSE) & MF_GRAYED, 0u) << "system commands are not the frame's";
}

TEST_F(Routing, WithoutAutoEnableAnItemKeepsItsState) {
    frame.m_bAutoMenuEnable = FALSE;
    CMenu* popup = frame.Open(menu, 0);
    EXPECT_EQ(state_of(popup, kOrphan) & MF_GRAYED, 0u);
    EXPECT_NE(state_of(popup, kDisabled) & MF_GRAYED, 0u);
}

TEST_F(Routing, AnUpdateHandlerChecksAndRenames) {
    CMenu* popup = frame.Open(menu, 0);
    EXPECT_NE(state_of(popup, kChecked) & MF_CHECKED, 0u);
    CString text;
    popup->GetMenuString(kChecked, text, MF_BYCOMMAND);
    EXPECT_EQ(text, L"renamed");
}

TEST_F(Routing, AnAcceleratorOfADisabledCommandDoesNothing) {
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kOwn, 1));
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kDisabled, 1));
    EXPECT_EQ(frame.log, "own ");
}

TEST_F(Routing, AFrameHandsItsCommandsOnToTheApplication) {
    // Closing the application's main window is the application's own command.
    CWinApp* app = AfxGetApp();
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(frame.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, app);
    EXPECT_TRUE(frame.OnCmdMsg(kOwn, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &frame);
    EXPECT_FALSE(frame.OnCmdMsg(kOrphan, CN_COMMAND, nullptr, &info));
}

TEST_F(Routing, ADialogHandsItsCommandsOnToTheOwnerButNotItsControls) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(400, &frame));
    dialog.SendMessage(WM_COMMAND, kOwn);
    EXPECT_EQ(frame.log, "own ");
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(kOwn, EN_CHANGE),
                       reinterpret_cast<LPARAM>(dialog.GetDlgItem(1001)->m_hWnd));
    EXPECT_EQ(frame.log, "own ");
    dialog.DestroyWindow();
}

TEST_F(Routing, AnUpdateThatContinuesIsNotTaken) {
    PassingFrame passing;
    ASSERT_TRUE(passing.CreateHidden());
    CCmdUI request;
    request.m_nID = kEarlier;
    EXPECT_FALSE(request.DoUpdate(&passing, FALSE));
    EXPECT_EQ(passing.log, "passed ");
    passing.DestroyWindow();
}

TEST_F(Routing, DialogControlsAreUpdatedAndButtonsDisabled) {
    HWND button =
        ::CreateWindowExW(0, L"BUTTON", L"a", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, frame.m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kOrphan)), nullptr, nullptr);
    HWND handled = ::CreateWindowExW(0, L"BUTTON", L"b", WS_CHILD | WS_VISIBLE, 20, 0, 20, 20, frame.m_hWnd,
                                     reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kOwn)), nullptr, nullptr);
    HWND edit =
        ::CreateWindowExW(0, L"EDIT", L"c", WS_CHILD | WS_VISIBLE, 40, 0, 20, 20, frame.m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kDialogItem)), nullptr, nullptr);
    HWND check =
        ::CreateWindowExW(0, L"BUTTON", L"d", WS_CHILD | BS_CHECKBOX, 60, 0, 20, 20, frame.m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kChecked)), nullptr, nullptr);
    frame.UpdateDialogControls(&frame, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(button));
    EXPECT_TRUE(::IsWindowEnabled(handled));
    EXPECT_TRUE(::IsWindowEnabled(edit)) << "only push buttons are disabled for want of a handler";
    EXPECT_EQ(::SendMessageW(check, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(ui_test::text_of(check), L"renamed");
}
