#include <ktui/input/ktui_typed_edits.h>

#include "recording_holder.h"
#include "test_host.h"

using ui_test::RecordingHolder;
using ui_test::send_move;
using ui_test::TestHost;

namespace {

constexpr UINT kEditId = 21;
constexpr const wchar_t* kLongText = L"a text that is much longer than the box that shows it";

/// An edit of `Class` in a holder, 120 pixels wide.
template <class Class>
struct InHolder {
    RecordingHolder holder;
    Class edit;

    InHolder() {
        edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 130, 30), &holder, kEditId);
    }
    void type(const wchar_t* text) {
        edit.SetFocus();
        edit.SetSel(0, -1);
        for (; *text; ++text) edit.SendMessage(WM_CHAR, *text);
    }
    KBUI_REPLY ask(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(edit, kEditId, notification, reinterpret_cast<unsigned __int64>(datum));
    }
};

/// Records the changes of validity that the control tells itself.
class MarkedEdit : public CKtUiNumericEdit {
public:
    std::vector<KBUI_NOTIFY> marks;
    unsigned markedId = 0;

    int isValid() const { return m_valid; }
    int isFocusRestored() const { return m_focusRestored; }
    bool hasDirtyMark() const { return m_dirty != 0; }

protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override {
        if (notification == kKbUiNotifyControlValid || notification == kKbUiNotifyControlInvalid) {
            marks.push_back(notification);
            markedId = id;
        }
        return CKtUiNumericEdit::DoKbUiMessage(notification, id, datum);
    }
};

int boxesShown = 0;

/// Counts dialogs and closes each as it comes up.
LRESULT CALLBACK CloseDialogs(int code, WPARAM wParam, LPARAM lParam) {
    const HWND window = reinterpret_cast<HWND>(wParam);
    wchar_t name[16] = {};
    if (code == HCBT_ACTIVATE && ::GetClassNameW(window, name, 16) && wcscmp(name, L"#32770") == 0) {
        ++boxesShown;
        ::PostMessageW(window, WM_COMMAND, IDOK, 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

/// Number of message boxes that `action` opens; each is closed at once.
template <class Action>
int MessagesShown(Action action) {
    TestHost host;
    boxesShown = 0;
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, CloseDialogs, nullptr, ::GetCurrentThreadId());
    action();
    ::UnhookWindowsHookEx(hook);
    return boxesShown;
}

}  // namespace

TEST(TypedEdits, ConstructionLeavesExactlyTheTypesOwnBit) {
    EXPECT_EQ(CKbUiEdit().GetStyleMask(), 0u);
    EXPECT_EQ(CKtUiEdit().GetStyleMask(), 0u);
    EXPECT_EQ(CKtUiStringEdit().GetStyleMask(), 0x1u);
    EXPECT_EQ(CKtUiSymbolEdit().GetStyleMask(), 0x2u);
    EXPECT_EQ(CKtUiNumericEdit().GetStyleMask(), 0x4u);
    EXPECT_EQ(CKtUiAngleEdit().GetStyleMask(), 0x8u);
}

TEST(TypedEdits, EachKeepsItsOwnBitAndTheBitsWithoutMeaning) {
    CKtUiNumericEdit numeric;
    numeric.SetStyleMask(0xF0000100);
    EXPECT_EQ(numeric.GetStyleMask(), 0xF0000104u);
    EXPECT_TRUE(numeric.IsStyleMaskSet(0x104));
    EXPECT_FALSE(numeric.IsStyleMaskSet(0x105));
}

TEST(StyleMask, ContradictionIsToldAndStoredAllTheSame) {
    CKtUiEdit edit;
    EXPECT_EQ(MessagesShown([&] { edit.SetStyleMask(0x5); }), 1);
    EXPECT_EQ(edit.GetStyleMask(), 0x5u);
}

TEST(StyleMask, TypedEditsTellAMaskOfTheOtherFamily) {
    CKtUiAngleEdit angle;
    EXPECT_EQ(MessagesShown([&] { angle.SetStyleMask(kKtUiEditString); }), 1);
    EXPECT_EQ(angle.GetStyleMask(), 0x9u);
    CKtUiSymbolEdit symbol;
    EXPECT_EQ(MessagesShown([&] { symbol.SetStyleMask(kKtUiEditNumeric); }), 1);
    EXPECT_EQ(symbol.GetStyleMask(), 0x6u);
}

TEST(StyleMask, BaseEditNeverObjects) {
    CKbUiEdit edit;
    EXPECT_EQ(MessagesShown([&] { edit.SetStyleMask(0x5); }), 0);
    EXPECT_EQ(edit.GetStyleMask(), 0x5u);
}

TEST(StyleMask, AngleEditWithTheNumericBitParsesADistanceWithoutAWord) {
    CKtUiAngleEdit angle;
    EXPECT_EQ(MessagesShown([&] { angle.SetStyleMask(kKtUiEditNumeric); }), 0);
    CString text = L"N";
    EXPECT_EQ(angle.ValidateData(text), kKtUiErrorNotNumeric);
}

TEST(StyleMask, RangeOnAStringEditIsNoContradictionAndHasNoEffect) {
    CKtUiStringEdit edit;
    EXPECT_EQ(MessagesShown([&] { edit.SetRange(0, 10); }), 0);
    EXPECT_EQ(edit.GetStyleMask(), 0x801u);
    CString text = L"99";
    EXPECT_EQ(edit.ValidateData(text), kKtUiErrorNone);
}

TEST(StyleMask, RangeCanBeTakenBack) {
    CKtUiNumericEdit edit;
    edit.SetRange(5, 1);
    CString text = L"3";
    EXPECT_EQ(edit.ValidateData(text), kKtUiErrorOutOfRange);
    edit.SetStyleMask(0);
    EXPECT_EQ(edit.ValidateData(text), kKtUiErrorNone);
}

TEST(ValueEdit, WithoutAWindowValidateAnswersTrueAndTheFlagStays) {
    MarkedEdit edit;
    edit.SetRange(5, 1);
    EXPECT_TRUE(edit.Validate());
    EXPECT_TRUE(edit.isValid());
    edit.Convert();
    EXPECT_FALSE(edit.HasChanged());
    EXPECT_FALSE(edit.hasDirtyMark());
    edit.SetDirty();
    EXPECT_TRUE(edit.hasDirtyMark());
}

TEST(ValueEdit, ConvertDataIsFalseForTextAsARule) {
    CKtUiStringEdit edit;
    CString text = L"anything";
    EXPECT_FALSE(edit.ConvertData(text));
    EXPECT_STREQ(text, L"anything");
}

TEST(ValueEdit, OnlyConvertChangesTheControl) {
    InHolder<CKtUiNumericEdit> in;
    in.edit.SetWindowText(L"1.50000000");
    EXPECT_TRUE(in.edit.Validate());
    EXPECT_STREQ(ui_test::text_of(in.edit), L"1.50000000");
    CString text = L"1.50000000";
    EXPECT_EQ(in.edit.ValidateData(text), kKtUiErrorNone);
    EXPECT_STREQ(text, L"1.5000");
    in.edit.Convert();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"1.5000");
    in.edit.SetWindowText(L"nonsense");
    in.edit.Convert();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"nonsense");
}

TEST(ValueEdit, ConvertLeavesAStringEditAlone) {
    InHolder<CKtUiStringEdit> in;
    in.edit.SetWindowText(L"1.50000000");
    in.edit.Convert();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"1.50000000");
}

TEST(ValueEdit, KeystrokesValidateSilentlyAndTellOnlyTheControlItself) {
    InHolder<MarkedEdit> in;
    EXPECT_EQ(MessagesShown([&] { in.type(L"1x"); }), 0);
    EXPECT_TRUE(in.edit.HasChanged());
    EXPECT_FALSE(in.edit.isValid());
    ASSERT_EQ(in.edit.marks.size(), 1u) << "only the change of validity is told";
    EXPECT_EQ(in.edit.marks[0], kKbUiNotifyControlInvalid);
    EXPECT_EQ(in.edit.markedId, kEditId);
    EXPECT_STREQ(ui_test::text_of(in.edit), L"1x") << "nothing is rewritten while the user types";
    in.edit.SendMessage(WM_CHAR, VK_BACK);
    ASSERT_EQ(in.edit.marks.size(), 2u);
    EXPECT_EQ(in.edit.marks[1], kKbUiNotifyControlValid);
    EXPECT_EQ(in.holder.count(kKbUiNotifyControlValid), 0);
    EXPECT_EQ(in.holder.count(kKbUiNotifyControlInvalid), 0);
}

TEST(ValueEdit, ParentHearsItsOwnChangeNotificationToo) {
    InHolder<CKtUiNumericEdit> in;
    in.type(L"12");
    EXPECT_EQ(in.holder.changes, 2);
}

TEST(ValueEdit, FocusLossDoesWhatTheMaskSays) {
    InHolder<MarkedEdit> in;
    in.type(L"2.50");
    in.holder.SetFocus();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"2.50") << "nothing without a bit";

    in.edit.SetStyleMask(kKtUiEditConvertOnKillFocus);
    in.edit.SetFocus();
    in.holder.SetFocus();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"2.5000");

    in.edit.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoZero);
    in.edit.SetFocus();
    in.edit.SetWindowText(L"3.250");
    in.holder.SetFocus();
    EXPECT_STREQ(ui_test::text_of(in.edit), L"3.2500");
    EXPECT_TRUE(in.edit.isValid());
}

TEST(ValueEdit, FocusLossWithABadValueKeepsTextAndLetsTheFocusGo) {
    InHolder<MarkedEdit> in;
    in.edit.SetStyleMask(kKtUiEditValidateOnKillFocus);
    in.type(L"bad");
    EXPECT_EQ(MessagesShown([&] { in.holder.SetFocus(); }), 0);
    EXPECT_STREQ(ui_test::text_of(in.edit), L"bad");
    EXPECT_FALSE(in.edit.isValid());
    EXPECT_EQ(::GetFocus(), in.holder.m_hWnd);
}

TEST(ValueEdit, FocusIsTakenAndTheTextSelectedByMessage) {
    InHolder<MarkedEdit> in;
    in.edit.SetWindowText(L"12345");
    in.holder.SetFocus();
    EXPECT_EQ(in.ask(kKbUiNotifySetFocusToControl, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(::GetFocus(), in.edit.m_hWnd);
    int start = -1;
    int end = -1;
    in.edit.GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 5);
    EXPECT_EQ(in.edit.isFocusRestored(), 1);
}

TEST(ValueEdit, ValidationByMessageRepliesAndLeavesTheText) {
    InHolder<MarkedEdit> in;
    in.edit.SetWindowText(L"4.50");
    EXPECT_EQ(in.ask(kKbUiNotifyValidate, nullptr), kKbUiReplyValid);
    EXPECT_STREQ(ui_test::text_of(in.edit), L"4.50");
    in.edit.SetWindowText(L"x");
    EXPECT_EQ(in.ask(kKbUiNotifyValidate, nullptr), kKbUiReplyInvalid);
    EXPECT_FALSE(in.edit.isValid());
}

TEST(ValueEdit, ValidationByMessageJudgesTheCanonicalSpelling) {
    InHolder<MarkedEdit> in;
    in.edit.SetStyleMask(kKtUiEditNoZero);
    in.edit.SetWindowText(L"0.00001");
    EXPECT_TRUE(in.edit.Validate()) << "as typed it isn't zero";
    EXPECT_EQ(in.ask(kKbUiNotifyValidate, nullptr), kKbUiReplyInvalid) << "in four places it is";
    EXPECT_STREQ(ui_test::text_of(in.edit), L"0.00001");
}

TEST(EditTip, TextThatFitsGivesNone) {
    InHolder<CKbUiEdit> in;
    in.edit.SetWindowText(L"ok");
    CRect rect(1, 2, 3, 4);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectEmpty());
}

TEST(EditTip, ClippedTextGivesOneOverTheWholeText) {
    InHolder<CKbUiEdit> in;
    in.edit.SetWindowText(kLongText);
    CRect formatting;
    in.edit.GetRect(&formatting);
    int width = 0;
    int height = 0;
    in.edit.GetTextExtent(kLongText, width, height);
    ASSERT_GT(width, formatting.Width());
    CRect rect;
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect, CRect(formatting.left, formatting.top, formatting.left + width, formatting.top + height));
}

TEST(EditTip, TextIsMeasuredAsItIsDrawnInTheControlsFont) {
    InHolder<CKbUiEdit> in;
    CFont large;
    large.CreatePointFont(180, L"Tahoma");
    in.edit.SetFont(&large, FALSE);
    CClientDC dc(&in.edit);
    CFont* const former = dc.SelectObject(&large);
    for (const wchar_t* text : {L"three", L"two\nlines and more", L"a&b", L""}) {
        CRect drawn(0, 0, 0, 0);
        dc.DrawText(text, -1, &drawn, DT_CALCRECT);
        int width = -1, height = -1;
        in.edit.GetTextExtent(text, width, height);
        EXPECT_EQ(CSize(width, height), drawn.Size()) << CStringA(text).GetString();
        int contentWidth = -1, contentHeight = -1;
        in.edit.GetContentExtent(text, contentWidth, contentHeight);
        EXPECT_EQ(CSize(contentWidth, contentHeight), drawn.Size());
    }
    dc.SelectObject(former);
}

TEST(EditTip, SupportAndHitGoByTheClientArea) {
    InHolder<CKbUiEdit> in;
    CPoint inside(5, 5);
    CPoint outside(500, 5);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &inside), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &outside), kKbUiReplyNone);
    EXPECT_EQ(in.ask(kKbUiNotifyHitTipRect, &inside), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyHitTipRect, &outside), kKbUiReplyNone);
}

TEST(EditTip, TextIsThatOfTheWindow) {
    InHolder<CKbUiEdit> in;
    in.edit.SetWindowText(kLongText);
    CString text;
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_STREQ(text, kLongText);
}

TEST(EditTip, DrawingWithoutDataRepliesNone) {
    InHolder<CKbUiEdit> in;
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTip, nullptr), kKbUiReplyNone);
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTipText, nullptr), kKbUiReplyNone);
}

TEST(EditTip, TextTipIsFramedAndFilled) {
    InHolder<CKbUiEdit> in;
    CClientDC screen(&in.holder);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 80, 24);
    CBitmap* former = dc.SelectObject(&bitmap);
    CRect rect(0, 0, 80, 24);
    CKbUiDrawTipText tip(dc, rect, L"tip");
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTipText, &tip), kKbUiReplyHandled);
    EXPECT_EQ(dc.GetPixel(0, 0), 0x5C5253u);
    EXPECT_EQ(dc.GetPixel(79, 23), 0x5C5253u);
    EXPECT_EQ(dc.GetPixel(76, 3), 0xFBFBFBu);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.GetTextColor(), 0x5C5253u);
    EXPECT_EQ(rect, CRect(2, 2, 78, 22));
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTip, &dc), kKbUiReplyHandled);
    dc.SelectObject(former);
}

TEST(EditMouse, MoveIsReportedWithTheControl) {
    InHolder<CKbUiEdit> in;
    in.holder.SetFocus();
    send_move(in.edit, 4, 5);
    ASSERT_EQ(in.holder.heard.size(), 1u);
    EXPECT_EQ(in.holder.heard[0].notification, kKbUiNotifyUpdateTip);
    EXPECT_EQ(in.holder.heard[0].id, kEditId);
    EXPECT_EQ(in.holder.heard[0].datum, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&in.edit)));
}

TEST(EditMouse, SamePointIsReportedOnce) {
    InHolder<CKbUiEdit> in;
    in.holder.SetFocus();
    send_move(in.edit, 4, 5);
    send_move(in.edit, 4, 5);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 1);
    send_move(in.edit, 4, 6);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 2);
}

TEST(EditMouse, FocusedControlReportsNothingUntilTheFocusHasGone) {
    InHolder<CKbUiEdit> in;
    in.edit.SetFocus();
    ASSERT_EQ(::GetFocus(), in.edit.m_hWnd);
    send_move(in.edit, 4, 5);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 0);
    in.holder.SetFocus();
    send_move(in.edit, 4, 5);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 1) << "the point had not been stored";
}

TEST(EditMouse, ReportGoesToTheParentThatWasSet) {
    InHolder<CKbUiEdit> in;
    RecordingHolder other;
    in.edit.SetKbUiParent(&other);
    EXPECT_EQ(in.edit.GetKbUiParent(), &other);
    in.holder.SetFocus();
    send_move(in.edit, 4, 5);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 0);
    EXPECT_EQ(other.count(kKbUiNotifyUpdateTip), 1);
    in.edit.SetKbUiParent(nullptr);
    EXPECT_EQ(in.edit.GetKbUiParent(), &in.holder);
}

TEST(EditTip, QuestionsWithoutAnObjectReachTheControl) {
    InHolder<CKbUiEdit> in;
    in.edit.SetWindowText(kLongText);
    in.holder.SetFocus();
    send_move(in.edit, 5, 5);
    // A sender without a place says whether its tip is new (0) or known (1).
    for (const unsigned __int64 datum : {0ull, 1ull}) {
        EXPECT_EQ(KbUiNotify(in.edit, kEditId, kKbUiNotifyGetTipSupport, datum), kKbUiReplyHandled) << datum;
        EXPECT_EQ(KbUiNotify(in.edit, kEditId, kKbUiNotifyHitTipRect, datum), kKbUiReplyHandled) << datum;
        EXPECT_EQ(KbUiNotify(in.edit, kEditId, kKbUiNotifyGetTipText, datum), kKbUiReplyHandled) << datum;
        EXPECT_EQ(KbUiNotify(in.edit, kEditId, kKbUiNotifyGetTipRect, datum), kKbUiReplyHandled) << datum;
    }
}
