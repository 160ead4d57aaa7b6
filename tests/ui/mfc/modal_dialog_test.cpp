// Modal and modeless dialogs: results, owners, loops inside loops, keys, initial data.
#include <afxcmn.h>
#include <afxext.h>

#include <functional>
#include <string>
#include <vector>

#include "leak_count.h"
#include "ui_test.h"

namespace {

/// A dialog whose start the test decides.
class Scripted : public CDialog {
public:
    explicit Scripted(UINT id = 401, CWnd* parent = nullptr) : CDialog(id, parent) {}
    Scripted(LPCDLGTEMPLATE bytes, CWnd* parent) { InitModalIndirect(bytes, parent); }

    std::function<void(Scripted&)> onInit;
    int oks = 0, cancels = 0;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (onInit) onInit(*this);
        return TRUE;
    }
    void OnOK() override {
        ++oks;
        CDialog::OnOK();
    }
    void OnCancel() override {
        ++cancels;
        CDialog::OnCancel();
    }
};

void post_key(HWND window, WPARAM key) {
    ::PostMessageW(window, WM_KEYDOWN, key, 1);
    ::PostMessageW(window, WM_KEYUP, key, 0xC0000001);
}

/// Template bytes of an empty dialog at a place, in dialog units.
std::vector<WORD> empty_template(short x, short y) {
    const DWORD style = WS_POPUP | WS_CAPTION;
    return {
        LOWORD(style), HIWORD(style), 0, 0, 0, static_cast<WORD>(x), static_cast<WORD>(y), 80, 30, 0, 0, 0};
}

LPCDLGTEMPLATE bytes_of(const std::vector<WORD>& words) {
    return reinterpret_cast<LPCDLGTEMPLATE>(words.data());
}

class ModalDialog : public ::testing::Test {
protected:
    ui_test::ParentWindow parent;
};

}  // namespace

TEST_F(ModalDialog, AnswersWhatEndDialogSaid) {
    Scripted dialog(401, &parent);
    ui_test::when_dialog(L"plain", [&](HWND) { dialog.EndDialog(37); });
    EXPECT_EQ(dialog.DoModal(), 37);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(ModalDialog, MayEndWhileItStarts) {
    Scripted dialog(401, &parent);
    dialog.onInit = [](Scripted& d) { d.EndDialog(12); };
    EXPECT_EQ(dialog.DoModal(), 12);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(ModalDialog, KeepsItsParentDisabledWhileItRuns) {
    Scripted dialog(401, &parent);
    bool disabled = false;
    HWND owner = nullptr;
    ui_test::when_dialog(L"plain", [&](HWND window) {
        disabled = !parent.IsWindowEnabled();
        owner = ::GetWindow(window, GW_OWNER);
        dialog.EndDialog(IDOK);
    });
    dialog.DoModal();
    EXPECT_TRUE(disabled);
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
}

TEST_F(ModalDialog, LeavesAParentDisabledThatWasDisabledBefore) {
    parent.EnableWindow(FALSE);
    Scripted dialog(401, &parent);
    dialog.onInit = [](Scripted& d) { d.EndDialog(1); };
    dialog.DoModal();
    EXPECT_FALSE(parent.IsWindowEnabled());
    parent.EnableWindow(TRUE);
}

TEST_F(ModalDialog, AMissingTemplateIsMinusOne) {
    EXPECT_EQ(Scripted(4711, &parent).DoModal(), -1);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(ModalDialog, TellsByItsFlagsThatItRuns) {
    Scripted dialog(401, &parent);
    UINT starting = 0, running = 0;
    dialog.onInit = [&](Scripted& d) { starting = d.m_nFlags; };
    ui_test::when_dialog(L"plain", [&](HWND) {
        running = dialog.m_nFlags;
        dialog.EndDialog(IDOK);
    });
    dialog.DoModal();
    EXPECT_EQ(starting & WF_CONTINUEMODAL, static_cast<UINT>(WF_CONTINUEMODAL));
    EXPECT_EQ(running & (WF_CONTINUEMODAL | WF_MODALLOOP),
              static_cast<UINT>(WF_CONTINUEMODAL | WF_MODALLOOP));
    EXPECT_EQ(dialog.m_nFlags & (WF_CONTINUEMODAL | WF_MODALLOOP), 0u);
}

TEST_F(ModalDialog, OneInsideAnotherEndsFirst) {
    Scripted outer(400, &parent), inner(401, &outer);
    INT_PTR innerResult = 0;
    bool outerDisabled = false;
    ui_test::when_dialog(L"values", [&](HWND) {
        ui_test::when_dialog(L"plain", [&](HWND) {
            outerDisabled = !outer.IsWindowEnabled();
            inner.EndDialog(5);
        });
        innerResult = inner.DoModal();
        outer.EndDialog(6);
    });
    EXPECT_EQ(outer.DoModal(), 6);
    EXPECT_EQ(innerResult, 5);
    EXPECT_TRUE(outerDisabled);
}

TEST_F(ModalDialog, HandsARequestToQuitOnToTheLoopOutside) {
    Scripted dialog(401, &parent);
    ui_test::when_dialog(L"plain", [](HWND) { ::PostQuitMessage(77); });
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 77u);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(ModalDialog, RunsATemplateInMemory) {
    const std::vector<WORD> words = empty_template(0, 0);
    Scripted dialog(bytes_of(words), &parent);
    dialog.onInit = [](Scripted& d) { d.EndDialog(21); };
    EXPECT_EQ(dialog.DoModal(), 21);
}

TEST_F(ModalDialog, IsCenteredUnlessItsTemplateGivesAPlace) {
    const auto centre = [&](short x, short y) {
        const std::vector<WORD> words = empty_template(x, y);
        Scripted dialog(bytes_of(words), &parent);
        CPoint place;
        ui_test::when_dialog(L"", [&](HWND window) {
            CRect rect;
            ::GetWindowRect(window, &rect);
            place = rect.CenterPoint();
            dialog.EndDialog(1);
        });
        dialog.DoModal();
        return place;
    };
    CRect owner;
    parent.GetWindowRect(&owner);
    EXPECT_EQ(centre(0, 0), owner.CenterPoint());
    EXPECT_NE(centre(3, 4), owner.CenterPoint());
}

TEST_F(ModalDialog, EnterAndEscapePressItsButtons) {
    Scripted confirmed(401, &parent);
    ui_test::when_dialog(L"plain", [&](HWND window) { post_key(::GetDlgItem(window, 1001), VK_RETURN); });
    EXPECT_EQ(confirmed.DoModal(), IDOK);
    EXPECT_EQ(confirmed.oks, 1);
    Scripted cancelled(401, &parent);
    ui_test::when_dialog(L"plain", [&](HWND window) { post_key(::GetDlgItem(window, 1001), VK_ESCAPE); });
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(cancelled.cancels, 1);
}

TEST_F(ModalDialog, TabMovesTheFocus) {
    Scripted dialog(401, &parent);
    int first = 0, second = 0;
    ui_test::when_dialog(L"plain", [&](HWND window) {
        first = ::GetDlgCtrlID(::GetFocus());
        post_key(::GetDlgItem(window, 1001), VK_TAB);
        ui_test::later(
            [&] {
                second = ::GetDlgCtrlID(::GetFocus());
                dialog.EndDialog(1);
            },
            50);
    });
    dialog.DoModal();
    EXPECT_EQ(first, 1001);
    EXPECT_EQ(second, IDOK);
}

TEST_F(ModalDialog, FillsItsListsFromTheInitialData) {
    Scripted dialog(400, &parent);
    int combo = 0, list = 0;
    CString first;
    dialog.onInit = [&](Scripted& d) {
        combo = static_cast<int>(d.SendDlgItemMessage(1007, CB_GETCOUNT));
        list = static_cast<int>(d.SendDlgItemMessage(1008, LB_GETCOUNT));
        d.SendDlgItemMessage(1008, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(first.GetBuffer(64)));
        first.ReleaseBuffer();
        d.EndDialog(1);
    };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_EQ(combo, 2);
    EXPECT_EQ(list, 2);
    EXPECT_EQ(first, L"red");
}

TEST_F(ModalDialog, AModelessOneLivesOn) {
    Scripted dialog;
    ASSERT_TRUE(dialog.Create(401, &parent));
    EXPECT_EQ(dialog.m_nFlags & (WF_CONTINUEMODAL | WF_MODALLOOP), 0u);
    dialog.ShowWindow(SW_SHOW);
    ui_test::pump();
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_FALSE(dialog.Create(4711, &parent));
}

TEST_F(ModalDialog, ThreeHundredLeaveNothingBehind) {
    const auto run = [&] {
        Scripted dialog(400, &parent);
        dialog.onInit = [](Scripted& d) {
            d.GetDlgItem(1001)->GetFont();
            d.EndDialog(1);
        };
        dialog.DoModal();
        AfxGetApp()->OnIdle(1);  // lets the temporary objects go
    };
    for (int i = 0; i < 30; ++i) run();
    const HeldObjects before = count_held_objects();
    for (int i = 0; i < 300; ++i) run();
    const HeldObjects after = count_held_objects();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.gdiObjects, before.gdiObjects);
    EXPECT_LE(after.kernelHandles, before.kernelHandles);
    // The platform keeps a few blocks of its own; one block a dialog would be 300.
    EXPECT_LT(static_cast<long long>(after.heapBlocks) - static_cast<long long>(before.heapBlocks), 30);
}
