// CWnd and its handle: whose object it is, when it is subclassed, how it ends, what exceptions do.
#include <afxcmn.h>

#include <string>
#include <thread>
#include <vector>

#include "ui_test.h"

namespace {

constexpr UINT kThrow = WM_APP + 5;

HWND bare_window(HWND parent = nullptr, UINT id = 0, const wchar_t* name = L"STATIC") {
    return ::CreateWindowExW(0, name, L"bare", parent != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 200, 20, parent,
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
}

/// Records the order of its own events.
class Witness : public CWnd {
public:
    std::string log;
    bool failCreation = false;
    WNDPROC atPreSubclass = nullptr;
    bool ended = false;

    void PreSubclassWindow() override {
        atPreSubclass = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC));
        log += "pre ";
    }
    void PostNcDestroy() override {
        log += m_hWnd == nullptr ? "post " : "post-with-handle ";
        ended = true;
    }
    BOOL CreateHidden() {
        return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT) {
        log += "create ";
        if (failCreation) AfxThrowResourceException();
        return 0;
    }
    afx_msg void OnDestroy() { log += "destroy "; }
    afx_msg void OnPaint() {
        log += "paint ";
        AfxThrowResourceException();
    }
    afx_msg LRESULT OnThrow(WPARAM, LPARAM) {
        AfxThrowUserException();
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Witness, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(kThrow, &Witness::OnThrow)
END_MESSAGE_MAP()

WNDPROC procedure_of(HWND window) {
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
}

}  // namespace

TEST(WindowObject, AHandleWithoutAnObjectGetsATemporaryOne) {
    HWND bare = bare_window();
    CWnd* first = CWnd::FromHandle(bare);
    EXPECT_EQ(first->m_hWnd, bare);
    EXPECT_EQ(CWnd::FromHandle(bare), first);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(bare)) << "the temporary object does not own the window";
    ::DestroyWindow(bare);
}

TEST(WindowObject, AttachMakesTheObjectPermanentAndDetachLetsGo) {
    HWND bare = bare_window();
    CWnd mine;
    EXPECT_TRUE(mine.Attach(bare));
    EXPECT_EQ(CWnd::FromHandle(bare), &mine);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare), &mine);
    CWnd::DeleteTempMap();
    EXPECT_EQ(CWnd::FromHandle(bare), &mine);
    EXPECT_EQ(mine.Detach(), bare);
    EXPECT_EQ(mine.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare), nullptr);
    EXPECT_FALSE(mine.Attach(nullptr));
    ::DestroyWindow(bare);
}

TEST(WindowObject, AWindowHasOneObjectAndAnObjectOneWindow) {
    HWND first = bare_window(), second = bare_window();
    const WNDPROC own = procedure_of(second);
    CWnd mine, other;
    ASSERT_TRUE(mine.Attach(first));
    EXPECT_TRUE(mine.Attach(first)) << "nothing to do";
    EXPECT_FALSE(mine.Attach(second));
    EXPECT_FALSE(mine.SubclassWindow(second));
    EXPECT_EQ(procedure_of(second), own);
    EXPECT_EQ(CWnd::FromHandlePermanent(second), nullptr);
    EXPECT_FALSE(other.Attach(first));
    EXPECT_EQ(other.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(first), &mine);
    EXPECT_FALSE(mine.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(mine.m_hWnd, first);
    ::DestroyWindow(second);
}

TEST(WindowObject, AnObjectWhoseWindowWentUnseenIsFree) {
    HWND first = bare_window(), second = bare_window();
    CWnd mine;
    ASSERT_TRUE(mine.Attach(first));
    ::DestroyWindow(first);
    EXPECT_TRUE(mine.Attach(second));
    EXPECT_EQ(CWnd::FromHandlePermanent(first), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(second), &mine);
}

TEST(WindowObject, NothingStaysInTheMapOfAnObjectThatGoes) {
    HWND gone, kept = bare_window();
    {
        CWnd mine, unseen;
        ASSERT_TRUE(mine.Attach(gone = bare_window()));
        EXPECT_TRUE(mine.DestroyWindow());
        EXPECT_EQ(mine.m_hWnd, nullptr) << "its messages never came here";
        EXPECT_EQ(CWnd::FromHandlePermanent(gone), nullptr);
        ASSERT_TRUE(unseen.Attach(kept));
        ::DestroyWindow(kept);
    }
    EXPECT_EQ(CWnd::FromHandlePermanent(kept), nullptr);
}

TEST(WindowObject, AFailedCreationLeavesTheReasonInGetLastError) {
    struct Ended : CWnd {
        void PostNcDestroy() override { ::SetLastError(ERROR_SUCCESS); }
    } window;
    const wchar_t* none = L"no class of this name";
    ::CreateWindowExW(0, none, L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    const DWORD reason = ::GetLastError();
    ASSERT_NE(reason, static_cast<DWORD>(ERROR_SUCCESS));
    ::SetLastError(ERROR_SUCCESS);
    EXPECT_FALSE(window.CreateEx(0, none, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(::GetLastError(), reason);
}

TEST(WindowObject, TheDestructorDestroysTheWindow) {
    HWND handle;
    {
        CWnd mine;
        mine.Attach(handle = bare_window());
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowObject, SubclassingAsksBeforeTheProcedureChangesHands) {
    HWND bare = bare_window();
    const WNDPROC own = procedure_of(bare);
    Witness witness;
    ASSERT_TRUE(witness.SubclassWindow(bare));
    EXPECT_EQ(witness.atPreSubclass, own);
    EXPECT_NE(procedure_of(bare), own);
    EXPECT_EQ(witness.UnsubclassWindow(), bare);
    EXPECT_EQ(procedure_of(bare), own);
    EXPECT_EQ(witness.m_hWnd, nullptr);
    ::DestroyWindow(bare);
}

TEST(WindowObject, ASubclassedWindowStillDoesItsOwnWork) {
    ui_test::ParentWindow parent;
    HWND bare = bare_window(parent.m_hWnd, 12, L"EDIT");
    Witness witness;
    ASSERT_TRUE(witness.SubclassDlgItem(12, &parent));
    EXPECT_EQ(witness.m_hWnd, bare);
    witness.SendMessage(EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(L"typed"));
    EXPECT_STREQ(ui_test::text_of(bare).GetString(), L"typedbare");
    Witness other;
    EXPECT_FALSE(other.SubclassDlgItem(13, &parent));
}

TEST(WindowObject, DestructionRunsDestroyThenPostNcDestroyWithoutAHandle) {
    Witness witness;
    ASSERT_TRUE(witness.CreateHidden());
    EXPECT_EQ(witness.log, "pre create ");
    witness.log.clear();
    EXPECT_TRUE(witness.DestroyWindow());
    EXPECT_EQ(witness.log, "destroy post ");
    EXPECT_EQ(witness.m_hWnd, nullptr);
    EXPECT_FALSE(witness.DestroyWindow());
    ASSERT_TRUE(witness.CreateHidden()) << "the object may be used again";
    witness.DestroyWindow();
}

TEST(WindowObject, AnObjectMayDeleteItselfAtTheEnd) {
    static bool gone;
    struct SelfOwned : CWnd {
        ~SelfOwned() override { gone = true; }
        void PostNcDestroy() override { delete this; }
    };
    gone = false;
    auto* window = new SelfOwned;
    ASSERT_TRUE(window->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window->DestroyWindow();
    EXPECT_TRUE(gone);
}

TEST(WindowObject, AnExceptionInCreateFailsTheCreation) {
    Witness witness;
    witness.failCreation = true;
    EXPECT_FALSE(witness.CreateHidden());
    EXPECT_EQ(witness.m_hWnd, nullptr);
    EXPECT_TRUE(witness.ended);
}

TEST(WindowObject, AnExceptionInPaintLeavesNothingToPaint) {
    Witness witness;
    ASSERT_TRUE(witness.CreateHidden());
    witness.ShowWindow(SW_SHOWNOACTIVATE);
    witness.Invalidate();
    witness.log.clear();
    witness.UpdateWindow();
    EXPECT_EQ(witness.log, "paint ");
    EXPECT_FALSE(::GetUpdateRect(witness.m_hWnd, nullptr, FALSE));
    witness.DestroyWindow();
}

TEST(WindowObject, AUserExceptionEndsTheMessageInSilence) {
    Witness witness;
    ASSERT_TRUE(witness.CreateHidden());
    EXPECT_EQ(witness.SendMessage(kThrow), 0);
    witness.DestroyWindow();
}

TEST(WindowObject, ClassesOfTheSameLooksShareAName) {
    HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    const CString first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS, arrow));
    EXPECT_NE(first, AfxRegisterWndClass(CS_DBLCLKS));
    EXPECT_NE(first, AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW, arrow));
    EXPECT_NE(first, AfxRegisterWndClass(CS_DBLCLKS, arrow, ::GetSysColorBrush(COLOR_BTNFACE)));
    WNDCLASSW looks;
    EXPECT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), first, &looks));
    EXPECT_EQ(looks.style, static_cast<UINT>(CS_DBLCLKS));
}

TEST(WindowObject, ClassesMayBeRegisteredFromManyThreads) {
    std::vector<std::thread> threads;
    std::vector<std::vector<CString>> names(4);
    for (size_t t = 0; t < names.size(); ++t)
        threads.emplace_back([&, t] {
            for (UINT_PTR i = 1; i <= 60; ++i)
                names[t].push_back(AfxRegisterWndClass(CS_DBLCLKS | CS_VREDRAW, nullptr,
                                                       reinterpret_cast<HBRUSH>(COLOR_WINDOW + i % 20)));
        });
    for (auto& thread : threads) thread.join();
    for (size_t t = 1; t < names.size(); ++t) EXPECT_EQ(names[t], names[0]);
}

TEST(WindowObject, CenteringStaysInsideTheWorkArea) {
    ui_test::ParentWindow parent;
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    Witness box;
    ASSERT_TRUE(box.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 200), &parent, 0));
    const auto place = [&](int x, int y) {
        parent.SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        box.CenterWindow();
        CRect rect;
        box.GetWindowRect(&rect);
        return rect;
    };
    CRect owner;
    const CRect middle = place(100, 100);
    parent.GetWindowRect(&owner);
    EXPECT_EQ(middle.CenterPoint(), owner.CenterPoint());
    EXPECT_EQ(place(work.right - 50, 100).right, work.right);
    EXPECT_EQ(place(work.left - 580, 100).left, work.left);
    EXPECT_EQ(place(100, work.bottom - 30).bottom, work.bottom);
    EXPECT_EQ(place(100, work.top - 390).top, work.top);
    box.DestroyWindow();
}

TEST(WindowObject, AChildIsCenteredInItsParent) {
    ui_test::ParentWindow parent;
    CWnd child;
    child.Attach(bare_window(parent.m_hWnd));
    child.CenterWindow();
    CRect client, rect;
    parent.GetClientRect(&client);
    child.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect.CenterPoint(), client.CenterPoint());
}

TEST(WindowObject, WindowsOfAnotherThreadAreNotThisThreadsObjects) {
    ui_test::ParentWindow parent;
    bool stranger = false;
    std::thread([&] { stranger = CWnd::FromHandlePermanent(parent.m_hWnd) == nullptr; }).join();
    EXPECT_TRUE(stranger);
}
