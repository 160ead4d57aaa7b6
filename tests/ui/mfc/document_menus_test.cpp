// The menus of documents in a menu bar: that of the document in front, or of the frame.
#include <afxcontrolbars.h>

#include <functional>

#include "accessible_object.h"
#include "documents_fixture.h"
#include "picture.h"
#include "watchdog.h"

namespace documents_test {

class MenuBarFrame : public CMDIFrameWndEx {
    DECLARE_DYNCREATE(MenuBarFrame)
public:
    CMFCMenuBar bar;
    struct Opened {
        bool isSystems;
        bool restores, maximizes;
    };
    std::vector<Opened> opened;          ///< menus, the documents' system menus among them
    std::function<void()> step = [] {};  ///< done whenever a menu opens

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT answer = CMDIFrameWndEx::WindowProc(message, wParam, lParam);
        if (message != WM_INITMENUPOPUP) return answer;
        const auto can = [menu = reinterpret_cast<HMENU>(wParam)](UINT command) {
            return (::GetMenuState(menu, command, MF_BYCOMMAND) & MF_GRAYED) == 0;
        };
        opened.push_back({HIWORD(lParam) != 0, can(SC_RESTORE), can(SC_MAXIMIZE)});
        step();
        return answer;
    }
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

struct MaximisedDocument : DocumentMenus {
    MaximisedDocument() {
        child = maximised();
        idle();
    }
    CMDIChildWndEx* maximised() {
        Plan* const plan = open();
        POSITION place = plan->GetFirstViewPosition();
        auto* const made = static_cast<CMDIChildWndEx*>(plan->GetNextView(place)->GetParentFrame());
        made->MDIMaximize();
        return made;
    }
    void idle() {
        frame->bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        ui_test::pump();
    }
    CPoint middle_of(int button) const {
        CRect rect;
        frame->bar.GetItemRect(button, &rect);
        return rect.CenterPoint();
    }
    void press(int button) {
        const CPoint point = middle_of(button);
        frame->bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        frame->bar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        ui_test::pump();
    }
    void key(WPARAM code) { ::PostMessageW(frame->bar.m_hWnd, WM_KEYDOWN, code, 0); }

    static constexpr int kIcon = 0, kMinimize = 3, kRestore = 4, kClose = 5;
    CMDIChildWndEx* child;
    ui_test::Watchdog watchdog;
};

TEST_F(MaximisedDocument, has_its_icon_and_buttons_in_the_bar_and_puts_nothing_into_the_menu) {
    EXPECT_EQ(items(), "Document window|&File|&Window|Minimize document|Restore document|Close document");
    EXPECT_EQ(::GetMenuItemCount(frame->bar.GetHMenu()), 2);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    CRect ahead(0, 0, 0, 0);
    for (int i = 0; i < frame->bar.GetCount(); ++i) {
        CRect rect;
        frame->bar.GetItemRect(i, &rect);
        EXPECT_GE(rect.left, ahead.right) << i;
        EXPECT_GT(rect.Width(), 12) << i;
        ahead = rect;
    }
    CRect icon, sign;
    frame->bar.GetItemRect(kIcon, &icon);
    frame->bar.GetItemRect(kClose, &sign);
    EXPECT_EQ(icon.Width(), 16 + 6);
    for (const CRect& rect : {icon, sign}) {
        const ui_test::Picture shown(frame->bar, rect);
        EXPECT_LT(shown.count(shown.commonest()), shown.width() * shown.height() - 8);
    }
    child->MDIRestore();
    idle();
    EXPECT_EQ(items(), "&File|&Window");
}

TEST_F(MaximisedDocument, is_restored_minimised_and_closed_by_them) {
    press(kRestore);
    EXPECT_FALSE(child->IsZoomed());
    EXPECT_FALSE(child->IsIconic());
    idle();
    EXPECT_EQ(frame->bar.GetCount(), 2);
    child->MDIMaximize();
    idle();
    press(kMinimize);
    EXPECT_TRUE(child->IsIconic());
    child->MDIMaximize();
    idle();
    press(kClose);
    EXPECT_EQ(Plan::alive, 0);
    idle();
    EXPECT_EQ(items(), "&File");
}

TEST_F(MaximisedDocument, gives_way_to_the_next_one_in_front) {
    CMDIChildWndEx* const second = maximised();
    idle();
    press(kClose);
    idle();
    EXPECT_EQ(Plan::alive, 1);
    EXPECT_EQ(frame->MDIGetActive(), child);
    EXPECT_NE(frame->MDIGetActive(), second);
    press(kClose);
    EXPECT_EQ(Plan::alive, 0);
}

TEST_F(MaximisedDocument, opens_its_system_menu_at_the_icon) {
    frame->step = [this] { key(VK_ESCAPE); };
    press(kIcon);
    ASSERT_EQ(frame->opened.size(), 1u);
    EXPECT_TRUE(frame->opened[0].isSystems);
    EXPECT_TRUE(frame->opened[0].restores);
    EXPECT_FALSE(frame->opened[0].maximizes);
    EXPECT_TRUE(child->IsZoomed());
    frame->step = [this] {
        key(VK_DOWN);
        key(VK_RETURN);
    };
    press(kIcon);
    EXPECT_FALSE(child->IsZoomed()) << "the first thing that it can do is to be restored";
}

TEST_F(MaximisedDocument, is_closed_by_a_double_click_on_the_icon) {
    CPoint place = middle_of(kIcon);
    frame->bar.ClientToScreen(&place);
    frame->step = [&] { ::PostMessageW(frame->bar.m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(place.x, place.y)); };
    press(kIcon);
    EXPECT_EQ(Plan::alive, 1) << "a second press closes the menu";
    frame->step = [&] {
        ::PostMessageW(frame->bar.m_hWnd, WM_LBUTTONDBLCLK, 0, MAKELPARAM(place.x, place.y));
    };
    press(kIcon);
    EXPECT_EQ(Plan::alive, 0);
}

TEST_F(MaximisedDocument, that_cant_be_closed_or_minimised_says_so) {
    ::EnableMenuItem(::GetSystemMenu(child->m_hWnd, FALSE), SC_CLOSE, MF_GRAYED);
    child->ModifyStyle(WS_MINIMIZEBOX, 0);
    frame->bar.SetMaximizeMode(FALSE);
    idle();
    EXPECT_EQ(items(), "Document window|&File|&Window|Restore document|Close document");
    EXPECT_FALSE(frame->bar.GetButton(4)->IsEnabled());
    EXPECT_TRUE(frame->bar.GetButton(3)->IsEnabled());
    press(4);
    EXPECT_EQ(Plan::alive, 1);
}

TEST_F(MaximisedDocument, with_tabs_has_none_of_them) {
    frame->EnableMDITabs(TRUE, FALSE);
    idle();
    ASSERT_TRUE(child->IsZoomed());
    EXPECT_EQ(items(), "&File|&Window");
    frame->EnableMDITabs(FALSE);
    idle();
    EXPECT_EQ(frame->bar.GetCount(), 6);
}

TEST_F(MaximisedDocument, shows_changes_of_the_menu_between_its_buttons) {
    HMENU const menu = frame->bar.GetHMenu();
    ::AppendMenuW(menu, MF_STRING, 4711, L"&New");
    idle();
    EXPECT_EQ(items(),
              "Document window|&File|&Window|&New|Minimize document|Restore document|Close document");
    ::DeleteMenu(menu, 4711, MF_BYCOMMAND);
    idle();
    EXPECT_EQ(frame->bar.GetCount(), 6);
    for (const int button : {kIcon, kClose}) frame->bar.GetButton(button)->m_bWrap = TRUE;
    idle();
    for (const int button : {kIcon, kClose})
        EXPECT_TRUE(frame->bar.GetButton(button)->m_bWrap) << "what is up to date isn't made anew";
}

TEST_F(MaximisedDocument, names_its_buttons_to_assistive_programs) {
    ::CoInitialize(nullptr);
    {
        const ui_test::AccessibleObject object(frame->bar.m_hWnd);
        EXPECT_EQ(object.name(kIcon + 1), L"Document window");
        EXPECT_EQ(object.role(kIcon + 1), ROLE_SYSTEM_MENUITEM);
        EXPECT_TRUE(object.state(kIcon + 1) & STATE_SYSTEM_HASPOPUP);
        EXPECT_EQ(object.name(kClose + 1), L"Close document");
        EXPECT_EQ(object.role(kClose + 1), ROLE_SYSTEM_PUSHBUTTON);
        EXPECT_EQ(object.action(kClose + 1), L"Press");
        EXPECT_EQ(object.act(kRestore + 1), S_OK);
    }
    ::CoUninitialize();
    ui_test::pump();
    EXPECT_FALSE(child->IsZoomed());
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
