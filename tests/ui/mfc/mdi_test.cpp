// Programs with several documents: child frames, menus, titles, commands.
#include "mdi_fixture.h"

namespace documents_test {

TEST_F(MdiTest, DocumentsAreNumberedAndEachHasAChildOfItsOwn) {
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_EQ(frame->GetActiveFrame(), frame);
    Plan* first = open();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(take(), (Texts{"new", "empty", "initial update", "update", "view on", "view on"}));
    Plan* second = open();
    EXPECT_STREQ(first->GetTitle(), L"Plan1");
    EXPECT_STREQ(second->GetTitle(), L"Plan2");
    EXPECT_NE(child_of(first), child_of(second));
    EXPECT_EQ(frame->MDIGetActive(), child_of(second));
    EXPECT_EQ(frame->GetActiveFrame(), child_of(second));
    EXPECT_EQ(child_of(first)->GetMDIFrame(), frame);
    EXPECT_EQ(app.GetOpenDocumentCount(), 2);
    EXPECT_STREQ(ui_test::text_of(child_of(first)->m_hWnd), L"Plan1");
    EXPECT_STREQ(title(), L"Pad - Plan2");
    frame->MDIActivate(child_of(first));
    EXPECT_EQ(frame->MDIGetActive(), child_of(first));
    EXPECT_STREQ(title(), L"Pad - Plan1");
    frame->MDINext();
    EXPECT_EQ(frame->MDIGetActive(), child_of(second));
}

TEST_F(MdiTest, TheClientFillsTheFrameAndTheViewItsChild) {
    Plan* document = open();
    CRect room, client, view, inner;
    frame->GetClientRect(&room);
    ::GetWindowRect(frame->m_hWndMDIClient, &client);
    EXPECT_EQ(client.Size(), room.Size());
    EXPECT_EQ(::GetDlgCtrlID(frame->m_hWndMDIClient), AFX_IDW_PANE_FIRST);
    child_of(document)->GetClientRect(&inner);
    POSITION place = document->GetFirstViewPosition();
    document->GetNextView(place)->GetWindowRect(&view);
    EXPECT_EQ(view.Size(), inner.Size());
}

TEST_F(MdiTest, TheMenuIsTheActiveChildsAndGoesBackWithTheLast) {
    HMENU const own = ::GetMenu(frame->m_hWnd);
    EXPECT_EQ(own, frame->GetMenu()->m_hMenu);
    Plan* first = open();
    Plan* second = open();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), kind->m_hMenuShared);
    // The windows are listed in the menu with the window commands.
    HMENU windows = frame->GetWindowMenuPopup(kind->m_hMenuShared);
    EXPECT_EQ(windows, ::GetSubMenu(kind->m_hMenuShared, 1));
    EXPECT_EQ(::GetMenuItemCount(windows), 5) << "two commands, a line, two windows";
    first->OnCloseDocument();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), kind->m_hMenuShared);
    second->OnCloseDocument();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), own);
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_STREQ(title(), L"Pad");
    EXPECT_EQ(frame->GetWindowMenuPopup(own), nullptr);
}

TEST_F(MdiTest, AMaximisedChildIsNamedByTheSystemAndTheNextComesMaximised) {
    Plan* first = open();
    child_of(first)->MDIMaximize();
    BOOL maximized = FALSE;
    EXPECT_EQ(frame->MDIGetActive(&maximized), child_of(first));
    EXPECT_TRUE(maximized);
    EXPECT_STREQ(title(), L"Pad - [Plan1]");
    Plan* second = open();
    EXPECT_EQ(frame->MDIGetActive(&maximized), child_of(second));
    EXPECT_TRUE(maximized);
    EXPECT_STREQ(title(), L"Pad - [Plan2]");
    child_of(second)->MDIRestore();
    frame->MDIGetActive(&maximized);
    EXPECT_FALSE(maximized);
    EXPECT_STREQ(title(), L"Pad - Plan2");
}

TEST_F(MdiTest, CommandsGoToTheActiveChildFirst) {
    Plan* first = open();
    Plan* second = open();
    (void)first;
    take();
    frame->SendMessage(WM_COMMAND, IDC_PLAN_COMMAND);
    EXPECT_EQ(take(), (Texts{"document command"}));
    frame->SendMessage(WM_COMMAND, IDC_MAIN_COMMAND);
    EXPECT_EQ(take(), (Texts{"main command"}));
    second->takesCommands = false;
    frame->SendMessage(WM_COMMAND, IDC_PLAN_COMMAND);
    EXPECT_EQ(take(), (Texts{})) << "the other document is not asked";
    second->takesCommands = true;
}

TEST_F(MdiTest, TheChildsAcceleratorsGoBeforeTheFrames) {
    open();
    take();
    const auto press = [this](WPARAM key) {
        MSG message = {};
        message.hwnd = frame->m_hWnd;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return frame->PreTranslateMessage(&message);
    };
    EXPECT_TRUE(press(VK_F8));
    EXPECT_EQ(take(), (Texts{"document command"}));
    EXPECT_TRUE(press(VK_F9));
    EXPECT_EQ(take(), (Texts{"main command"}));
    EXPECT_FALSE(press(VK_F7));
}

TEST_F(MdiTest, ASecondWindowShowsTheSameDocumentAndBothAreNumbered) {
    Plan* document = open();
    CMDIChildWnd* first = child_of(document);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    CMDIChildWnd* second = frame->MDIGetActive();
    ASSERT_NE(second, first);
    EXPECT_EQ(second->GetActiveDocument(), document);
    EXPECT_STREQ(ui_test::text_of(first->m_hWnd), L"Plan1:1");
    EXPECT_STREQ(ui_test::text_of(second->m_hWnd), L"Plan1:2");
    EXPECT_EQ(app.GetOpenDocumentCount(), 1);
    // One of two windows closes without a question, and the other loses its number.
    document->SetModifiedFlag();
    second->SendMessage(WM_CLOSE);
    EXPECT_TRUE(app.told.empty());
    EXPECT_STREQ(ui_test::text_of(first->m_hWnd), L"Plan1");
    app.answer = IDCANCEL;
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(app.told.size(), 1u);
    EXPECT_EQ(frame->MDIGetActive(), first);
    app.answer = IDNO;
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(Plan::alive, 0);
}

TEST_F(MdiTest, ClosingTheFrameAsksForEachDocumentAndStopsAtCancel) {
    Plan* first = open();
    Plan* second = open();
    first->SetModifiedFlag();
    second->SetModifiedFlag();
    app.answer = IDCANCEL;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(app.told.size(), 1u);
    EXPECT_EQ(Plan::alive, 2);
    EXPECT_TRUE(frame->IsWindowVisible());
    app.answer = IDNO;
    HWND const window = frame->m_hWnd;
    frame->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(Plan::alive, 0);
    app.m_pMainWnd = nullptr;
}

TEST_F(MdiTest, WindowCommandsAreThereOnlyWithAChild) {
    const auto enabled = [this](UINT id) {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenuW(MF_STRING, id, L"item");
        CCmdUI request;
        request.m_nID = id;
        request.m_pMenu = &menu;
        request.m_nIndexMax = 1;
        request.DoUpdate(frame, TRUE);
        return (menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED) == 0;
    };
    for (const UINT id :
         {ID_WINDOW_NEW, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_WINDOW_ARRANGE})
        EXPECT_FALSE(enabled(id)) << id;
    Plan* first = open();
    Plan* second = open();
    for (const UINT id :
         {ID_WINDOW_NEW, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_WINDOW_ARRANGE})
        EXPECT_TRUE(enabled(id)) << id;
    const auto place = [this](CDocument* document) {
        CRect rect;
        child_of(document)->GetWindowRect(&rect);
        frame->ScreenToClient(&rect);
        return rect;
    };
    frame->SendMessage(WM_COMMAND, ID_WINDOW_TILE_HORZ);
    EXPECT_EQ(place(first).left, place(second).left);
    EXPECT_NE(place(first).top, place(second).top);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_TILE_VERT);
    EXPECT_EQ(place(first).top, place(second).top);
    EXPECT_NE(place(first).left, place(second).left);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_CASCADE);
    EXPECT_NE(place(first).top, place(second).top);
    EXPECT_NE(place(first).left, place(second).left);
}

TEST_F(MdiTest, AChildLeavesTheMessagesOfTheMainWindowAlone) {
    CStatusBar status;
    ASSERT_TRUE(status.Create(frame) && status.SetIndicators(nullptr, 1));
    status.SetPaneInfo(0, ID_SEPARATOR, SBPS_NOBORDERS, 100);
    open();
    frame->SetMessageText(L"two strokes");
    frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    EXPECT_STREQ(ui_test::text_of(status.m_hWnd), L"two strokes");
}

TEST_F(MdiTest, ARefusedDocumentTakesNoNumber) {
    Plan::refusesNew = true;
    EXPECT_EQ(open(), nullptr);
    Plan::refusesNew = false;
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_STREQ(open()->GetTitle(), L"Plan1");
}

TEST_F(MdiTest, AChildCanBeMadeWithoutADocument) {
    CMDIChildWnd* child = frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWnd), IDR_NOTE);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(frame->MDIGetActive(), child);
    EXPECT_STREQ(ui_test::text_of(child->m_hWnd), L"Pad");
    child->MDIDestroy();
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
}

}  // namespace documents_test
