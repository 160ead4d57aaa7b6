// Modal dialogs that fail or lose their window: the owner is enabled, nothing is left, the right exception
// comes out.
#include <afxcmn.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "ui_test.h"
#include "watchdog.h"

namespace {

constexpr UINT kAct = WM_APP + 21;

/// A silent exception that counts how many of it are there.
class CountedException : public CUserException {
public:
    CountedException() { ++live; }
    ~CountedException() override { --live; }
    static inline int live = 0;
};

/// A dialog that does what the test says, and tells whether it was ever shown.
class Failing : public CDialog {
public:
    explicit Failing(UINT id = 401, CWnd* parent = nullptr) : CDialog(id, parent) {}
    Failing(LPCDLGTEMPLATE bytes, CWnd* parent) { InitModalIndirect(bytes, parent); }

    std::function<void(Failing&)> onInit, onAct;
    std::function<void(MSG*)> onTranslate;
    int shown = 0, idles = 0;
    std::vector<int> endings;  // of the modal loop, by their results

    void EndModalLoop(int result) override {
        endings.push_back(result);
        CDialog::EndModalLoop(result);
    }
    BOOL PreTranslateMessage(MSG* message) override {
        if (onTranslate) onTranslate(message);
        return CDialog::PreTranslateMessage(message);
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (onInit) onInit(*this);
        return TRUE;
    }
    afx_msg LRESULT OnAct(WPARAM, LPARAM) {
        onAct(*this);
        return 5;
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM) {
        ++idles;
        return FALSE;
    }
    afx_msg void OnWindowPosChanged(WINDOWPOS* place) {
        if (place->flags & SWP_SHOWWINDOW) ++shown;
        CDialog::OnWindowPosChanged(place);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Failing, CDialog)
    ON_MESSAGE(kAct, &Failing::OnAct)
    ON_MESSAGE(WM_KICKIDLE, &Failing::OnKickIdle)
    ON_WM_WINDOWPOSCHANGED()
END_MESSAGE_MAP()

/// A dialog with a handler of its own for WM_INITDIALOG.
class Late : public Failing {
public:
    using Failing::Failing;
    int followed = 0;

protected:
    virtual LRESULT Initialise(WPARAM wParam, LPARAM lParam) = 0;
    afx_msg LRESULT OnInitialise(WPARAM wParam, LPARAM lParam) { return Initialise(wParam, lParam); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Late, Failing)
    ON_MESSAGE(WM_INITDIALOG, &Late::OnInitialise)
END_MESSAGE_MAP()

/// Template bytes of an empty dialog that asks to be visible.
const std::vector<WORD>& visible_template() {
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_VISIBLE;
    static const std::vector<WORD> words = {LOWORD(style), HIWORD(style), 0, 0, 0, 10, 10, 80, 30, 0, 0, 0};
    return words;
}

LPCDLGTEMPLATE visible_bytes() { return reinterpret_cast<LPCDLGTEMPLATE>(visible_template().data()); }

int dialogs_of_this_thread() {
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM counter) -> BOOL {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            if (wcscmp(name, L"#32770") == 0) ++*reinterpret_cast<int*>(counter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

struct Failure {
    const char* name;
    void (*raise)();
};

std::ostream& operator<<(std::ostream& out, const Failure& failure) { return out << failure.name; }

const Failure kFailures[] = {
    {"CException", [] { throw new CountedException; }},
    {"std::exception", [] { throw std::runtime_error("broken"); }},
    {"number", [] { throw 7; }},
};

class ModalFailure : public ::testing::Test {
protected:
    ModalFailure() {
        // With none in use before, the few of a test are kept for another use when they end, and may be
        // looked at.
        AfxGetApp()->OnIdle(1);
        m_outer = CWnd::FromHandle(::GetDesktopWindow());
    }
    ~ModalFailure() override {
        MSG message;
        while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }
    /// What holds after every modal dialog.
    void expect_clean(const CDialog& dialog) {
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(dialog.m_nFlags & (WF_CONTINUEMODAL | WF_MODALLOOP), 0u);
        EXPECT_TRUE(parent.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
        EXPECT_EQ(dialogs_of_this_thread(), 0);
        EXPECT_EQ(CountedException::live, 0);
        // A loop that is still counted would keep the temporary objects from outside it.
        ASSERT_EQ(m_outer->m_hWnd, ::GetDesktopWindow());
        AfxGetApp()->OnIdle(1);
        EXPECT_EQ(m_outer->m_hWnd, nullptr);
        m_outer = CWnd::FromHandle(::GetDesktopWindow());
    }
    ui_test::ParentWindow parent;

private:
    CWnd* m_outer;  // a temporary object from before the dialog
};

class InitialisationFailure : public ModalFailure, public ::testing::WithParamInterface<Failure> {};
INSTANTIATE_TEST_SUITE_P(Of, InitialisationFailure, ::testing::ValuesIn(kFailures));

}  // namespace

TEST_P(InitialisationFailure, IsMinusOneAndShowsNothing) {
    Failing dialog(401, &parent);
    dialog.onInit = [](Failing&) { GetParam().raise(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
    dialog.onInit = [](Failing& d) { d.EndDialog(4); };
    EXPECT_EQ(dialog.DoModal(), 4) << "the object may be used again";
    expect_clean(dialog);
}

TEST_P(InitialisationFailure, ShowsNothingOfATemplateThatAsksToBeVisible) {
    Failing dialog(visible_bytes(), &parent);
    dialog.onInit = [](Failing&) { GetParam().raise(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
}

TEST_P(InitialisationFailure, OfAModelessDialogFailsItsCreation) {
    Failing dialog;
    dialog.onInit = [](Failing&) { GetParam().raise(); };
    EXPECT_FALSE(dialog.Create(401, &parent));
    expect_clean(dialog);
}

TEST_P(InitialisationFailure, InACreationHandlerFailsTheCreation) {
    struct Window : CWnd {
        int ended = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CREATE) GetParam().raise();
            return CWnd::WindowProc(message, wParam, lParam);
        }
        void PostNcDestroy() override { ++ended; }
    } window;
    EXPECT_FALSE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.ended, 1);
    EXPECT_NO_THROW(ui_test::pump());
    EXPECT_EQ(CountedException::live, 0);
}

TEST_P(InitialisationFailure, BeforeTheWindowIsTakenFailsTheCreation) {
    struct Window : CWnd {
        void PreSubclassWindow() override { GetParam().raise(); }
    } window;
    EXPECT_FALSE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_NO_THROW(ui_test::pump());
    EXPECT_EQ(CountedException::live, 0);
}

TEST_F(ModalFailure, ADialogThatEndsWhileItStartsIsNeverShown) {
    Failing dialog(visible_bytes(), &parent);
    dialog.onInit = [](Failing& d) { d.EndDialog(12); };
    EXPECT_EQ(dialog.DoModal(), 12);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
    dialog.onInit = nullptr;
    ui_test::later([&] { dialog.EndDialog(13); });
    EXPECT_EQ(dialog.DoModal(), 13);
    EXPECT_GT(dialog.shown, 0) << "the next time it is shown";
}

TEST_F(ModalFailure, AControlThatFailsWhileTheDialogStartsFailsTheDialog) {
    struct Control : CEdit {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == kAct) throw std::runtime_error("control");
            return CEdit::WindowProc(message, wParam, lParam);
        }
    } control;
    Failing dialog(401, &parent);
    dialog.onInit = [&](Failing& d) {
        ASSERT_TRUE(control.SubclassDlgItem(1001, &d));
        control.SendMessage(kAct);
    };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
}

TEST_F(ModalFailure, WhatFollowsAnInitialisationThatFailedIsLeftOut) {
    class Further : public Late {
    public:
        using Late::Late;

    protected:
        LRESULT Initialise(WPARAM wParam, LPARAM lParam) override {
            const LRESULT result = CDialog::HandleInitDialog(wParam, lParam);
            ++followed;
            ShowWindow(SW_SHOW);
            return result;
        }
    };
    Further dialog(401, &parent);
    dialog.onInit = [](Failing&) { throw 2; };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.followed, 0);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
}

TEST_F(ModalFailure, AnInitialisationThatOnlyDoesTheDefaultFailsToo) {
    class Short : public Late {
    public:
        using Late::Late;

    protected:
        LRESULT Initialise(WPARAM, LPARAM) override { return Default(); }
    };
    Short dialog(401, &parent);
    dialog.onInit = [](Failing&) { throw 2; };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
}

TEST_F(ModalFailure, ToldToTheUserWhenTheDialogStarts) {
    Failing dialog(401, &parent);
    dialog.onInit = [](Failing&) { AfxThrowResourceException(); };
    bool told = false;
    ui_test::when_dialog(AfxGetAppName(), [&](HWND box) {
        told = true;
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(told);
    EXPECT_EQ(dialog.shown, 0);
    expect_clean(dialog);
}

TEST_F(ModalFailure, WhatAHandlerThrowsComesOutOfDoModal) {
    Failing dialog(401, &parent);
    dialog.onAct = [](Failing&) { throw std::runtime_error("in a handler"); };
    dialog.onInit = [](Failing& d) { d.PostMessage(kAct); };
    const ui_test::Watchdog watchdog;
    std::string text;
    try {
        dialog.DoModal();
    } catch (const std::runtime_error& e) {
        text = e.what();
    }
    EXPECT_EQ(text, "in a handler");
    expect_clean(dialog);
}

TEST_F(ModalFailure, WhatAHandlerOfASentMessageThrowsWakesTheLoop) {
    Failing dialog(401, &parent);
    dialog.onAct = [](Failing&) { throw 11; };
    LRESULT answer = -1;
    std::thread sender;
    ui_test::when_dialog(L"plain", [&](HWND window) {
        sender = std::thread([&answer, window] { answer = ::SendMessageW(window, kAct, 0, 0); });
    });
    {
        const ui_test::Watchdog watchdog;
        EXPECT_THROW(dialog.DoModal(), int);
    }
    sender.join();
    EXPECT_EQ(answer, 0) << "the sender gets the answer of a message that was not served";
    expect_clean(dialog);
}

TEST_F(ModalFailure, WhatTheIdleHandlerThrowsComesOutToo) {
    class Idle : public Failing {
    public:
        using Failing::Failing;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_KICKIDLE) throw 3;
            return Failing::WindowProc(message, wParam, lParam);
        }
    } dialog(401, &parent);
    const ui_test::Watchdog watchdog;
    EXPECT_THROW(dialog.DoModal(), int);
    expect_clean(dialog);
}

TEST_F(ModalFailure, AnExceptionOfTheClassLayerEndsTheMessageAndNotTheDialog) {
    Failing dialog(401, &parent);
    dialog.onAct = [](Failing&) { throw new CountedException; };
    dialog.onInit = [](Failing& d) { d.PostMessage(kAct); };
    LRESULT answer = -1;
    ui_test::when_dialog(L"plain", [&](HWND window) {
        answer = ::SendMessageW(window, kAct, 0, 0);
        dialog.EndDialog(9);
    });
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_EQ(answer, 0);
    expect_clean(dialog);
}

TEST_F(ModalFailure, AnExceptionOfTheClassLayerInTheLoopItselfAborts) {
    Failing dialog(401, &parent);
    dialog.onTranslate = [](MSG* message) {
        if (message->message == kAct) throw new CountedException;
    };
    dialog.onInit = [](Failing& d) { d.PostMessage(kAct); };
    EXPECT_EQ(dialog.DoModal(), IDABORT);
    expect_clean(dialog);
}

TEST_F(ModalFailure, OfTheInnerDialogGoesToTheHandlerOfTheOuter) {
    Failing outer(400, &parent), inner(401, &outer);
    inner.onAct = [](Failing&) { throw std::runtime_error("inner"); };
    inner.onInit = [](Failing& d) { d.PostMessage(kAct); };
    std::string caught;
    bool outerEnabled = false;
    outer.onAct = [&](Failing& d) {
        try {
            inner.DoModal();
        } catch (const std::exception& e) {
            caught = e.what();
        }
        outerEnabled = d.IsWindowEnabled();
        d.EndDialog(8);
    };
    outer.onInit = [](Failing& d) { d.PostMessage(kAct); };
    const ui_test::Watchdog watchdog;
    EXPECT_EQ(outer.DoModal(), 8);
    EXPECT_EQ(caught, "inner");
    EXPECT_TRUE(outerEnabled);
    expect_clean(outer);
}

TEST_F(ModalFailure, NobodyCatchesInBetweenEndsBoth) {
    Failing outer(400, &parent), inner(401, &outer);
    inner.onAct = [](Failing&) { throw 5; };
    inner.onInit = [](Failing& d) { d.PostMessage(kAct); };
    outer.onAct = [&](Failing&) { inner.DoModal(); };
    outer.onInit = [](Failing& d) { d.PostMessage(kAct); };
    const ui_test::Watchdog watchdog;
    EXPECT_THROW(outer.DoModal(), int);
    EXPECT_EQ(inner.m_hWnd, nullptr);
    expect_clean(outer);
}

TEST_F(ModalFailure, TheLoopOfAnyWindowIsLeftInOrder) {
    Failing dialog;
    ASSERT_TRUE(dialog.Create(401, &parent));
    dialog.onAct = [](Failing&) { throw 6; };
    dialog.PostMessage(kAct);
    const ui_test::Watchdog watchdog;
    EXPECT_THROW(dialog.RunModalLoop(MLF_SHOWONIDLE), int);
    EXPECT_TRUE(::IsWindow(dialog.m_hWnd)) << "the loop does not own the window";
    parent.SetActiveWindow();
    dialog.DestroyWindow();
    expect_clean(dialog);
}

TEST_F(ModalFailure, OutsideOfAnyDialogComesOutOfThePump) {
    Failing dialog;
    ASSERT_TRUE(dialog.Create(401, &parent));
    dialog.onAct = [](Failing&) { throw 6; };
    EXPECT_EQ(dialog.SendMessage(kAct), 0);
    EXPECT_THROW(ui_test::pump(), int);
    EXPECT_NO_THROW(ui_test::pump()) << "once";
    dialog.DestroyWindow();
}

TEST_F(ModalFailure, ADialogThatIsDestroyedWhileItStartsEnds) {
    for (const bool visible : {false, true}) {
        Failing hidden(401, &parent), shown(visible_bytes(), &parent);
        Failing& dialog = visible ? shown : hidden;
        dialog.onInit = [](Failing& d) { d.DestroyWindow(); };
        const ui_test::Watchdog watchdog;
        EXPECT_EQ(dialog.DoModal(), -1);
        expect_clean(dialog);
    }
}

TEST_F(ModalFailure, ADialogThatIsDestroyedByOthersEnds) {
    using Destroy = std::function<void(HWND)>;
    std::thread other;
    const Destroy ways[] = {
        [](HWND window) { ::DestroyWindow(window); },
        // While the loop waits for a message.
        [&](HWND window) { other = std::thread([window] { ::SendMessageW(window, kAct, 0, 0); }); },
        // Unseen by the object.
        [](HWND window) {
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&::DefWindowProcW));
            ::DestroyWindow(window);
        },
    };
    for (const Destroy& destroy : ways) {
        const bool seen = &destroy != std::end(ways) - 1;
        Failing dialog(401, &parent);
        dialog.onAct = [](Failing& d) { d.DestroyWindow(); };
        ui_test::when_dialog(L"plain", destroy);
        const ui_test::Watchdog watchdog;
        EXPECT_EQ(dialog.DoModal(), -1);
        EXPECT_EQ(dialog.endings, seen ? std::vector<int>{-1} : std::vector<int>());
        expect_clean(dialog);
    }
    other.join();
}

TEST_F(ModalFailure, ADialogWhoseOwnerIsDestroyedEnds) {
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                               CRect(0, 0, 90, 90), nullptr, 0));
    Failing dialog(401, &owner);
    ui_test::when_dialog(L"plain", [&](HWND) { owner.DestroyWindow(); });
    const ui_test::Watchdog watchdog;
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(owner.m_hWnd, nullptr);
}

TEST_F(ModalFailure, ALoopWithoutAWindowEndsAtOnce) {
    CWnd none;
    const ui_test::Watchdog watchdog;
    EXPECT_EQ(none.RunModalLoop(), -1);
    EXPECT_EQ(none.m_nFlags, 0u);
}

TEST_F(ModalFailure, TemporaryObjectsOfADialogGoWhileItIsIdle) {
    Failing dialog(401, &parent);
    CWnd* outside = CWnd::FromHandle(::GetDesktopWindow());
    HWND control = nullptr, kept = nullptr;
    CWnd* inside = nullptr;
    CDC* dc = nullptr;
    HDC heldDC = nullptr;
    int idlesBefore = 0;
    dialog.onAct = [&](Failing& d) {
        if (inside == nullptr) {
            inside = d.GetDlgItem(1001);
            dc = d.GetDC();
            heldDC = dc->m_hDC;
            control = inside->m_hWnd;
            idlesBefore = d.idles;
        }
        // The loop is idle before the next message comes by the timer.
        if (d.idles == idlesBefore) {
            ui_test::later([&] { d.PostMessage(kAct); }, 10);
            return;
        }
        control = inside->m_hWnd;
        kept = outside->m_hWnd;
        EXPECT_EQ(dc->m_hDC, nullptr);
        ::ReleaseDC(d.m_hWnd, heldDC);
        d.EndDialog(1);
    };
    ui_test::when_dialog(L"plain", [&](HWND) { dialog.PostMessage(kAct); });
    const ui_test::Watchdog watchdog;
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_EQ(control, nullptr) << "made inside, so it has gone";
    EXPECT_EQ(kept, ::GetDesktopWindow()) << "made before, and perhaps in use by whoever opened the dialog";
    expect_clean(dialog);
}
