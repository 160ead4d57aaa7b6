// What an edit hands on to the system, to its base class and to the validation.
#include <ktui/input/ktui_typed_edits.h>

#include <utility>

#include "recording_holder.h"

namespace {

constexpr UINT kId = 37;

/// Opens what is protected and notes the selections that it is told to make.
class OpenEdit : public CKtUiNumericEdit {
public:
    using CKtUiEdit::m_dirty;
    using CKtUiEdit::m_focusRestored;
    using CKtUiEdit::m_tipRect;
    std::vector<std::pair<WPARAM, LPARAM>> selections;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == EM_SETSEL) selections.emplace_back(wParam, lParam);
        return CKtUiNumericEdit::WindowProc(message, wParam, lParam);
    }
};

struct EditHandOver : ::testing::Test {
    EditHandOver() {
        edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 130, 30), &holder, kId);
        edit.SetWindowText(L"12345");
    }
    KBUI_REPLY ask(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(edit, kId, notification, reinterpret_cast<unsigned __int64>(datum));
    }
    ui_test::RecordingHolder holder;
    OpenEdit edit;
};

}  // namespace

TEST_F(EditHandOver, BeginsAtTheOriginWithoutATipAndWithoutMarks) {
    OpenEdit fresh;
    EXPECT_EQ(fresh.m_tipRect, CRect(0, 0, 0, 0));
    EXPECT_EQ(fresh.m_focusRestored, 0);
    EXPECT_EQ(fresh.m_dirty, 0);
    holder.SetFocus();
    ui_test::send_move(edit, 0, 0);
    EXPECT_EQ(holder.count(kKbUiNotifyUpdateTip), 0) << "the point that it begins with";
    ui_test::send_move(edit, 0, 1);
    EXPECT_EQ(holder.count(kKbUiNotifyUpdateTip), 1);
}

TEST_F(EditHandOver, TheDirtyMarkIsOne) {
    edit.SetDirty();
    EXPECT_EQ(edit.m_dirty, 1);
}

TEST_F(EditHandOver, TheWholeTextIsSelectedWithTheFocus) {
    edit.selections.clear();
    EXPECT_EQ(ask(kKbUiNotifySetFocusToControl, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(edit.selections, (std::vector<std::pair<WPARAM, LPARAM>>{{0, -1}}));
    EXPECT_EQ(edit.m_focusRestored, 1);
}

TEST_F(EditHandOver, TipQuestionsGoOnWithTheirDatum) {
    CString text;
    EXPECT_EQ(ask(kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_STREQ(text, L"12345");
}

TEST_F(EditHandOver, DraggingSelectsText) {
    edit.SetFocus();
    edit.SetSel(0, 0);
    edit.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 8));
    edit.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, 8));
    edit.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(100, 8));
    int first = -1, last = -1;
    edit.GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 5);
}

TEST_F(EditHandOver, BothEndsOfTheRangeReachTheConversion) {
    edit.SetRange(1, 10);
    for (const auto& [typed, legal] : {std::pair<const wchar_t*, BOOL>{L"0.5", FALSE},
                                       {L"1", TRUE},
                                       {L"5", TRUE},
                                       {L"10", TRUE},
                                       {L"10.5", FALSE}}) {
        CString text = typed;
        EXPECT_EQ(edit.ConvertData(text), legal) << typed;
    }
}
