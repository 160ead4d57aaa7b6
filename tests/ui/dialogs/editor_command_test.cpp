// A dialog and its parents step aside while the user works in the drawing.
#include <ktui/tips/kbui_text_tip.h>

#include "dialog_fixture.h"
#include "recording_holder.h"
#include "sent_messages.h"

namespace {

using ui_test::later;
using ui_test::RecordingHolder;
using ui_test::SentMessages;

/// Main window, dialog and nested dialog as the editor command protocol meets them.
class EditorCommand : public DialogTest {
protected:
    EditorCommand() {
        outer.mainWindow = inner.mainWindow = &holder;
        outer.Create(IDD_ELASTIC, &holder);
        outer.ShowWindow(SW_SHOW);
        inner.Create(IDD_ELASTIC, &outer);
        inner.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~EditorCommand() override {
        inner.DestroyWindow();
        outer.DestroyWindow();
    }
    /// lParams of the editor command notifications that reached the main window.
    std::vector<LPARAM> told() {
        std::vector<LPARAM> data;
        for (const auto& each : holder.heard)
            if (each.notification == kKbUiNotifyEditorCommand) data.push_back(each.datum);
        return data;
    }
    void makeModal(CWnd& window) { window.m_nFlags |= WF_CONTINUEMODAL | WF_MODALLOOP; }

    RecordingHolder holder;
    OpenDialog outer, inner;
};

TEST_F(EditorCommand, BeginHidesTheDialogsAndTellsTheMainWindow) {
    makeModal(inner);
    inner.GetDlgItem(IDOK)->SetFocus();
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.m_editorState, 1);
    EXPECT_FALSE(inner.IsWindowVisible());
    EXPECT_FALSE(outer.IsWindowVisible());
    EXPECT_TRUE(holder.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, CompleteBringsThemBackWithTheFocus) {
    makeModal(inner);
    CWnd* focused = inner.GetDlgItem(IDCANCEL);
    focused->SetFocus();
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_EQ(inner.m_editorState, 0);
    EXPECT_TRUE(inner.IsWindowVisible());
    EXPECT_TRUE(outer.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    EXPECT_EQ(::GetFocus(), focused->m_hWnd);
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, CompleteWithoutRestoringLeavesThemHiddenAndTellsNobody) {
    makeModal(inner);
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(0);
    EXPECT_EQ(inner.m_editorState, 0);
    EXPECT_FALSE(inner.IsWindowVisible());
    EXPECT_FALSE(outer.IsWindowVisible());
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    inner.m_nFlags = 0;
}

TEST_F(EditorCommand, AModelessDialogTellsOnlyACancel) {
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_TRUE(told().empty());
    inner.CancelEditorCommand();
    EXPECT_EQ(told(), (std::vector<LPARAM>{-1}));
    EXPECT_EQ(inner.EditorCommandCancelled(), 1);
}

TEST_F(EditorCommand, CancelEndsTheModalDialogAndCanBeAskedAfterwards) {
    OpenDialog modal(IDD_ELASTIC, &holder);
    modal.mainWindow = &holder;
    later([&] {
        modal.BeginEditorCommand();
        modal.CancelEditorCommand();
    });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_EQ(modal.EditorCommandCancelled(), 1);
}

TEST_F(EditorCommand, ADialogInsideItsOwnCommandStaysHiddenWhenItsChildFinishes) {
    outer.BeginEditorCommand();
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_FALSE(outer.IsWindowVisible());
    outer.CompleteEditorCommand(1);
    EXPECT_TRUE(outer.IsWindowVisible());
}

TEST_F(EditorCommand, TheEnabledStateComesBack) {
    inner.EnableWindow(FALSE);
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.m_wasEnabled, 0);
    inner.EnableWindow(TRUE);
    inner.CompleteEditorCommand(1);
    EXPECT_FALSE(inner.IsWindowEnabled());
}

/// What the main window and the parents hear, each with what is true at that moment.
class EditorCommandOrder : public EditorCommand {
protected:
    void TearDown() override { inner.m_nFlags &= ~(WF_CONTINUEMODAL | WF_MODALLOOP); }
    /// Notes "who what state inner outer" for each notification of the protocol that is sent.
    void look(const CWPSTRUCT& message) {
        if (message.message != KbUiMessage()) return;
        const int notification = static_cast<int>(message.wParam >> 16 & 0xFFFF);
        CStringA line;
        line.Format("%s %d data %d state %d%s%s", message.hwnd == holder.m_hWnd ? "main" : "outer",
                    notification, static_cast<int>(message.lParam), inner.m_editorState,
                    inner.IsWindowVisible() ? " inner" : "", outer.IsWindowVisible() ? " outer" : "");
        lines.push_back(line.GetString());
        words.push_back(message.wParam);
    }
    std::vector<std::string> lines;
    std::vector<WPARAM> words;
};

TEST_F(EditorCommandOrder, BeginHidesTheDialogThenItsParentsThenTellsTheMainWindow) {
    makeModal(inner);
    SentMessages sent([this](const CWPSTRUCT& message) { look(message); });
    inner.BeginEditorCommand();
    EXPECT_EQ(lines, (std::vector<std::string>{"outer 13 data 0 state 1 outer", "main 20 data 1 state 1"}));
}

TEST_F(EditorCommandOrder, CompleteTellsTheMainWindowThenShowsTheParentsThenTheDialog) {
    makeModal(inner);
    inner.BeginEditorCommand();
    SentMessages sent([this](const CWPSTRUCT& message) { look(message); });
    inner.CompleteEditorCommand(1);
    EXPECT_EQ(lines, (std::vector<std::string>{"main 20 data 0 state 0", "outer 14 data 0 state 0"}));
    EXPECT_TRUE(inner.IsWindowVisible());
}

TEST_F(EditorCommandOrder, ACancelIsToldWhileTheDialogStillRuns) {
    OpenDialog modal(IDD_ELASTIC, &holder);
    modal.mainWindow = &holder;
    bool running = false;
    int state = 0;
    LPARAM datum = 0;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != holder.m_hWnd || message.message != KbUiMessage()) return;
        running = (modal.m_nFlags & WF_CONTINUEMODAL) != 0;
        state = modal.m_editorState;
        datum = message.lParam;
    });
    later([&] { modal.CancelEditorCommand(); });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_TRUE(running);
    EXPECT_EQ(state, -1);
    EXPECT_EQ(datum, -1);
}

TEST_F(EditorCommandOrder, TheDialogIsHiddenInItsPlaceAndShownOnTopOfItsOwners) {
    std::vector<UINT> flags;
    std::vector<HWND> behind;
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != inner.m_hWnd || message.message != WM_WINDOWPOSCHANGING) return;
        const UINT each = ui_test::position_flags(message);
        if (!(each & (SWP_HIDEWINDOW | SWP_SHOWWINDOW))) return;
        flags.push_back(each & (SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_HIDEWINDOW |
                                SWP_SHOWWINDOW | SWP_NOACTIVATE));
        behind.push_back(reinterpret_cast<const WINDOWPOS*>(message.lParam)->hwndInsertAfter);
    });
    inner.MakeDialogsVisible(0);
    ASSERT_EQ(flags.size(), 1u);
    EXPECT_EQ(flags[0] & ~SWP_NOACTIVATE, UINT{SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_HIDEWINDOW});
    inner.MakeDialogsVisible(1);
    ASSERT_EQ(flags.size(), 2u);
    EXPECT_EQ(flags[1] & ~SWP_NOACTIVATE, UINT{SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER | SWP_SHOWWINDOW});
    EXPECT_EQ(behind[1], HWND_TOP);
}

TEST_F(EditorCommandOrder, ShowingTakesTheFocusIntoTheDialog) {
    inner.MakeDialogsVisible(0);
    holder.SetFocus();
    inner.MakeDialogsVisible(1);
    EXPECT_TRUE(::GetFocus() == inner.m_hWnd || ::IsChild(inner.m_hWnd, ::GetFocus()));
}

TEST_F(EditorCommandOrder, TheWalkEndsBelowTheMainWindow) {
    inner.mainWindow = &outer;
    inner.MakeDialogsVisible(0);
    EXPECT_TRUE(outer.IsWindowVisible()) << "the main window is not hidden";
    inner.MakeDialogsVisible(1);
    EXPECT_TRUE(holder.heard.empty());
}

TEST_F(EditorCommandOrder, WithoutAMainWindowEveryParentIsTold) {
    host.hasUiHost = false;
    inner.mainWindow = nullptr;
    makeModal(inner);
    inner.BeginEditorCommand();
    ASSERT_EQ(holder.heard.size(), 1u);
    EXPECT_EQ(holder.heard[0].notification, kKbUiNotifyHideDialog);
    EXPECT_EQ(holder.heard[0].datum, 0);
    inner.CompleteEditorCommand(1);
    ASSERT_EQ(holder.heard.size(), 2u);
    EXPECT_EQ(holder.heard[1].notification, kKbUiNotifyShowDialog);
    inner.CancelEditorCommand();
    EXPECT_EQ(inner.EditorCommandCancelled(), 1);
}

TEST_F(EditorCommandOrder, ADialogThatIsAChildTellsItsIdAndAsksTheWindowThatHoldsIt) {
    OpenDialog page(IDD_PAGE, &inner);
    page.mainWindow = &holder;
    ASSERT_TRUE(page.Create(IDD_PAGE, &inner));
    page.SetDlgCtrlID(0x7BDE);
    page.ShowWindow(SW_SHOW);
    OpenDialog deep(IDD_PAGE, &page);
    deep.mainWindow = &holder;
    ASSERT_TRUE(deep.Create(IDD_PAGE, &page));
    deep.SetDlgCtrlID(0x6123);
    for (const UINT flag : {0u, UINT{WF_CONTINUEMODAL}, UINT{WF_MODALLOOP}}) {
        inner.m_nFlags = (inner.m_nFlags & ~UINT(WF_CONTINUEMODAL | WF_MODALLOOP)) | flag;
        page.BeginEditorCommand();
        page.CompleteEditorCommand(1);
        EXPECT_TRUE(told().empty()) << flag;
    }
    makeModal(inner);
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != page.m_hWnd) look(message);  // inner hands on to it what carries its id
    });
    page.BeginEditorCommand();
    page.CompleteEditorCommand(1);
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    ASSERT_EQ(words.size(), 6u);  // hide and show to two parents, begin and complete
    for (const WPARAM word : words) EXPECT_EQ(word & 0xFFFF, 0x7BDEu);
    holder.heard.clear();
    deep.BeginEditorCommand();
    deep.CompleteEditorCommand(1);
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    holder.heard.clear();
    page.CancelEditorCommand();
    ASSERT_EQ(holder.heard.size(), 1u);
    EXPECT_EQ(holder.heard[0].id, 0x7BDEu);
    deep.DestroyWindow();
    page.DestroyWindow();
}

TEST_F(EditorCommandOrder, ACommandSaysNothingOfTheFlagsOfTheWindowItself) {
    // The flags of a child don't count, only those of the window that holds it.
    OpenDialog page(IDD_PAGE, &inner);
    page.mainWindow = &holder;
    ASSERT_TRUE(page.Create(IDD_PAGE, &inner));
    makeModal(page);
    page.BeginEditorCommand();
    page.CompleteEditorCommand(1);
    EXPECT_TRUE(told().empty());
    page.m_nFlags &= ~(WF_CONTINUEMODAL | WF_MODALLOOP);
    page.DestroyWindow();
}

TEST_F(EditorCommandOrder, AnOwnedDialogIsAskedItselfWhateverElseItsStyleSays) {
    inner.ModifyStyle(0, DS_ABSALIGN);
    makeModal(inner);
    inner.BeginEditorCommand();
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
}

TEST_F(EditorCommandOrder, RunningOutOfParentsCountsAsModal) {
    OpenDialog lone(IDD_ELASTIC, nullptr);
    lone.mainWindow = &holder;
    ASSERT_TRUE(lone.Create(IDD_ELASTIC, nullptr));
    ::SetWindowLongPtrW(lone.m_hWnd, GWLP_HWNDPARENT, 0);
    lone.ModifyStyle(0, WS_CHILD);
    ASSERT_EQ(::GetParent(lone.m_hWnd), nullptr);
    lone.BeginEditorCommand();
    EXPECT_EQ(told(), (std::vector<LPARAM>{1}));
    lone.CompleteEditorCommand(1);
    EXPECT_EQ(told(), (std::vector<LPARAM>{1, 0}));
    lone.ModifyStyle(WS_CHILD, 0);
    lone.DestroyWindow();
}

TEST_F(EditorCommandOrder, TheFocusAndTheEnabledStateAreThoseFromBeforeTheHiding) {
    CWnd* focused = inner.GetDlgItem(IDC_SECOND);
    focused->SetFocus();
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.m_savedFocus, focused->m_hWnd);
    EXPECT_EQ(inner.m_wasEnabled, 1);
    // Enabled again first, the dialog can take the focus back.
    inner.EnableWindow(FALSE);
    inner.m_textTip->EnableWindow(FALSE);
    inner.CompleteEditorCommand(1);
    EXPECT_TRUE(inner.IsWindowEnabled());
    EXPECT_EQ(::GetFocus(), focused->m_hWnd);
    EXPECT_TRUE(inner.m_textTip->IsWindowEnabled());
}

TEST_F(EditorCommandOrder, WhatIsKeptIsFromBeforeTheHiding) {
    SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == inner.m_hWnd && message.message == WM_WINDOWPOSCHANGING &&
            (ui_test::position_flags(message) & SWP_HIDEWINDOW))
            inner.EnableWindow(FALSE);
    });
    inner.BeginEditorCommand();
    EXPECT_FALSE(inner.IsWindowEnabled());
    EXPECT_EQ(inner.m_wasEnabled, 1);
}

TEST_F(EditorCommandOrder, TheTipWindowFollowsADisabledDialog) {
    inner.EnableWindow(FALSE);
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_FALSE(inner.m_textTip->IsWindowEnabled());
    inner.SetUseTips(0);
    inner.BeginEditorCommand();
    inner.CompleteEditorCommand(1);
    EXPECT_EQ(inner.m_editorState, 0) << "without a tip window nothing is missing";
}

TEST_F(EditorCommandOrder, OnlyACancelIsACancel) {
    EXPECT_EQ(inner.EditorCommandCancelled(), 0);
    inner.BeginEditorCommand();
    EXPECT_EQ(inner.EditorCommandCancelled(), 0);
    inner.CompleteEditorCommand(1);
    EXPECT_EQ(inner.EditorCommandCancelled(), 0);
}

}  // namespace
