// The menus of documents in a menu bar: that of the document in front, or of the frame.
#include <afxcontrolbars.h>

#include "documents_fixture.h"

namespace documents_test {

class MenuBarFrame : public CMDIFrameWndEx {
    DECLARE_DYNCREATE(MenuBarFrame)
public:
    CMFCMenuBar bar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        if (CMDIFrameWndEx::OnCreate(create) == -1 || !bar.Create(this)) return -1;
        EnableDocking(CBRS_ALIGN_ANY);
        bar.EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&bar);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(MenuBarFrame, CMDIFrameWndEx)
BEGIN_MESSAGE_MAP(MenuBarFrame, CMDIFrameWndEx)
    ON_WM_CREATE()
END_MESSAGE_MAP()

struct DocumentMenus : DocumentsTest {
    DocumentMenus() {
        kind = new CMultiDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(CMDIChildWndEx),
                                     RUNTIME_CLASS(PlanView));
        app.AddDocTemplate(kind);
        frame = new MenuBarFrame;
        EXPECT_TRUE(frame->LoadFrame(IDR_MAIN));
        app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
    }
    /// What the items of the bar say.
    std::string items() const {
        std::string all;
        for (int i = 0; i < frame->bar.GetCount(); ++i)
            all += (i > 0 ? "|" : "") + std::string(CStringA(frame->bar.GetButtonText(i)));
        return all;
    }
    Plan* open() { return static_cast<Plan*>(kind->OpenDocumentFile(nullptr)); }

    CMultiDocTemplate* kind;
    MenuBarFrame* frame;
};

TEST_F(DocumentMenus, the_bar_shows_the_menu_of_the_document_in_front) {
    HMENU const own = frame->bar.GetHMenu();
    EXPECT_EQ(items(), "&File");
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    Plan* const plan = open();
    EXPECT_EQ(items(), "&File|&Window");
    EXPECT_EQ(frame->bar.GetHMenu(), kind->m_hMenuShared);
    EXPECT_EQ(frame->bar.GetDefaultMenu(), own);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    plan->OnCloseDocument();
    EXPECT_EQ(items(), "&File");
    EXPECT_EQ(frame->bar.GetHMenu(), own);
}

TEST_F(DocumentMenus, the_documents_are_listed_in_its_menu_of_windows) {
    open();
    open();
    HMENU const windows = ::GetSubMenu(frame->bar.GetHMenu(), 1);
    wchar_t text[100] = {};
    // A gap and two windows behind the two commands.
    ASSERT_EQ(::GetMenuItemCount(windows), 5);
    EXPECT_EQ(::GetMenuItemID(windows, 4), static_cast<UINT>(AFX_IDM_FIRST_MDICHILD + 1));
    ::GetMenuStringW(windows, 4, text, 100, MF_BYPOSITION);
    EXPECT_EQ(CString(text).Left(3), L"&2 ");
}

TEST_F(DocumentMenus, a_maximised_document_puts_nothing_into_the_menu) {
    Plan* const plan = open();
    POSITION place = plan->GetFirstViewPosition();
    static_cast<CMDIChildWndEx*>(plan->GetNextView(place)->GetParentFrame())->MDIMaximize();
    frame->bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(items(), "&File|&Window");
    EXPECT_EQ(::GetMenuItemCount(frame->bar.GetHMenu()), 2);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
}

TEST_F(DocumentMenus, a_program_gives_the_frame_another_menu_by_its_own_call) {
    HMENU const own = frame->bar.GetHMenu();
    CMenu other;
    other.LoadMenu(IDR_PLAN);
    const CMenu* const before = frame->MDISetMenu(&other, nullptr);
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(before->m_hMenu, own);
    EXPECT_EQ(items(), "&File|&Window");
    EXPECT_EQ(frame->bar.GetHMenu(), other.m_hMenu);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    frame->MDISetMenu(CMenu::FromHandle(own), nullptr);
    EXPECT_EQ(items(), "&File");
}

TEST_F(DocumentMenus, the_frame_takes_its_own_menu_along_and_leaves_that_of_the_documents) {
    HMENU const own = frame->bar.GetHMenu();
    open();
    frame->DestroyWindow();
    frame = nullptr;
    EXPECT_FALSE(::IsMenu(own));
    EXPECT_TRUE(::IsMenu(kind->m_hMenuShared));
}

}  // namespace documents_test
