// What each class of edit says to a mask of the wrong family, and what it does when the focus goes.
#include <ktui/input/ktui_typed_edits.h>

#include "messages_shown.h"
#include "recording_holder.h"

namespace {

using ui_test::messagesShown;
using ui_test::RecordingHolder;

constexpr UINT kId = 91;

/// Gives `Class` each family bit alone, and expects a message for `contradicting` only and `own` in the mask.
template <class Class>
void expectFamily(DWORD contradicting, DWORD own) {
    for (const DWORD bit : {0x1u, 0x2u, 0x4u, 0x8u, 0x3u, 0xCu, 0x10u, 0xFF0u, 0x80000000u}) {
        Class edit;
        const auto shown = messagesShown([&] { edit.SetStyleMask(bit); });
        const bool objects = (bit & contradicting) != 0;
        ASSERT_EQ(shown.size(), objects ? 1u : 0u) << bit;
        if (objects) {
            EXPECT_EQ(shown[0], L"Contradictory style masks set");
        }
        EXPECT_EQ(edit.GetStyleMask(), bit | own);
        EXPECT_TRUE(edit.IsStyleMaskSet(bit | own));
        EXPECT_FALSE(edit.IsStyleMaskSet(bit | own | 0x1000u));
    }
}

TEST(ValueMasks, EachTypedEditObjectsToTheOtherFamilyAndKeepsItsBit) {
    expectFamily<CKtUiAngleEdit>(0x3, 0x8);
    expectFamily<CKtUiNumericEdit>(0x3, 0x4);
    expectFamily<CKtUiStringEdit>(0xC, 0x1);
    expectFamily<CKtUiSymbolEdit>(0xC, 0x2);
    expectFamily<CKbUiEdit>(0, 0);
}

TEST(ValueMasks, AnEditWithoutATypeObjectsToBothFamiliesTogether) {
    for (DWORD mask = 0; mask < 16; ++mask) {
        CKtUiEdit edit;
        const auto shown = messagesShown([&] { edit.SetStyleMask(mask); });
        EXPECT_EQ(shown.size(), (mask & 0x3) && (mask & 0xC) ? 1u : 0u) << mask;
        EXPECT_EQ(edit.GetStyleMask(), mask);
    }
}

TEST(ValueMasks, MakingATypedEditSaysNothing) {
    EXPECT_TRUE(messagesShown([] {
                    CKtUiAngleEdit angle;
                    CKtUiNumericEdit numeric;
                    CKtUiStringEdit string;
                    CKtUiSymbolEdit symbol;
                }).empty());
}

TEST(ValueMasks, ARangeGoesThroughTheMaskOfTheClass) {
    class Masked : public CKtUiNumericEdit {
    public:
        std::vector<DWORD> masks;
        std::vector<double> rangesThen;
        void SetStyleMask(DWORD mask) override {
            masks.push_back(mask);
            rangesThen.push_back(m_rangeMaximum);
            CKtUiNumericEdit::SetStyleMask(mask);
        }
        double minimum() const { return m_rangeMinimum; }
        double maximum() const { return m_rangeMaximum; }
    } edit;
    EXPECT_EQ(edit.minimum(), 0);
    EXPECT_EQ(edit.maximum(), 0);
    edit.SetRange(2, 7);
    EXPECT_EQ(edit.masks, (std::vector<DWORD>{0x804}));
    EXPECT_EQ(edit.rangesThen, (std::vector<double>{0})) << "the mask comes first";
    EXPECT_EQ(edit.minimum(), 2);
    EXPECT_EQ(edit.maximum(), 7);
}

/// Opens the state of an edit, and lets a test count what it asks of its own text.
template <class Base>
class Watched : public Base {
public:
    using Base::m_changed;
    using Base::m_valid;
    std::vector<UINT> defaults;
    std::vector<CString> textsSet;
    std::vector<std::pair<KBUI_NOTIFY, __int64>> told;
    /// Ignores the notifications of its own changes, so that the flag stays what it was.
    bool deaf = false;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaults.push_back(message);
        return Base::DefWindowProc(message, wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETTEXT) textsSet.push_back(reinterpret_cast<const wchar_t*>(lParam));
        return Base::WindowProc(message, wParam, lParam);
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        return deaf ? FALSE : Base::OnChildNotify(message, wParam, lParam, result);
    }
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override {
        told.emplace_back(notification, datum);
        return Base::DoKbUiMessage(notification, id, datum);
    }
};

template <class Base>
struct Held {
    RecordingHolder holder;
    Watched<Base> edit;
    Held() { edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 130, 30), &holder, kId); }
    /// Gives the edit the focus, then a text and a flag, and takes the focus away.
    void leave(const wchar_t* text, int valid) {
        edit.deaf = true;
        edit.SetFocus();
        edit.SetWindowText(text);
        edit.m_valid = valid;
        edit.textsSet.clear();
        edit.defaults.clear();
        holder.SetFocus();
    }
};

TEST(FocusLoss, ValidatesATextWithoutTouchingIt) {
    Held<CKtUiStringEdit> in;
    in.edit.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoBlank);
    in.leave(L"", 1);
    EXPECT_EQ(in.edit.m_valid, 0);
    in.leave(L"x", 0);
    EXPECT_EQ(in.edit.m_valid, 1);
    EXPECT_TRUE(in.edit.textsSet.empty());
    ASSERT_FALSE(in.edit.defaults.empty());
    EXPECT_EQ(in.edit.defaults[0], UINT{WM_KILLFOCUS});
}

TEST(FocusLoss, ConvertsANumberAndThenValidatesIt) {
    Held<CKtUiNumericEdit> in;
    in.edit.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditConvertOnKillFocus);
    in.leave(L"2.50", 0);
    EXPECT_EQ(in.edit.textsSet, (std::vector<CString>{L"2.5000"}));
    EXPECT_EQ(in.edit.m_valid, 1);
    in.leave(L"bad", 1);
    EXPECT_EQ(in.edit.textsSet, (std::vector<CString>{L"bad"})) << "what is no number goes back as typed";
    EXPECT_EQ(in.edit.m_valid, 0);
}

TEST(FocusLoss, WithConversionAloneTheFlagIsLeft) {
    Held<CKtUiNumericEdit> in;
    in.edit.SetStyleMask(kKtUiEditConvertOnKillFocus);
    in.leave(L"2.50", 0);
    EXPECT_EQ(in.edit.textsSet, (std::vector<CString>{L"2.5000"}));
    EXPECT_EQ(in.edit.m_valid, 0);
    in.leave(L"bad", 1);
    EXPECT_EQ(in.edit.m_valid, 1);
}

TEST(FocusLoss, WithoutABitNothingHappens) {
    Held<CKtUiNumericEdit> in;
    in.leave(L"2.50", 0);
    EXPECT_TRUE(in.edit.textsSet.empty());
    EXPECT_EQ(in.edit.m_valid, 0);
    EXPECT_EQ(in.edit.defaults[0], UINT{WM_KILLFOCUS});
}

TEST(ValueFlag, IsWhatTheLatestValidationSaid) {
    Held<CKtUiNumericEdit> in;
    EXPECT_EQ(in.edit.m_valid, 1) << "an untouched control is valid";
    EXPECT_EQ(in.edit.m_changed, 0);
    in.edit.SetWindowText(L"bad");
    EXPECT_EQ(in.edit.m_changed, 1);
    EXPECT_TRUE(in.edit.HasChanged());
    EXPECT_EQ(in.edit.m_valid, 0);
    EXPECT_EQ(in.edit.told, (std::vector<std::pair<KBUI_NOTIFY, __int64>>{{kKbUiNotifyControlInvalid, 0}}));
    in.edit.SetWindowText(L"worse");
    EXPECT_EQ(in.edit.told.size(), 1u);
    in.edit.SetWindowText(L"3");
    EXPECT_EQ(in.edit.m_valid, 1);
    EXPECT_EQ(in.edit.told.back(), (std::pair<KBUI_NOTIFY, __int64>{kKbUiNotifyControlValid, 0}));
    EXPECT_EQ(in.edit.told.size(), 2u);
}

TEST(ValueFlag, AMessageValidatesANumberTwiceAndATextOnce) {
    class Counting : public CKtUiEdit {
    public:
        int isValid() const { return m_valid; }
    };
    RecordingHolder holder;
    Counting edit;
    edit.Create(WS_CHILD, CRect(0, 0, 90, 20), &holder, kId);
    edit.SetStyleMask(kKtUiEditString | kKtUiEditNoBlank);
    EXPECT_EQ(KbUiNotify(edit, kId, kKbUiNotifyValidate, 0), kKbUiReplyInvalid);
    EXPECT_EQ(edit.isValid(), 0);
    edit.SetWindowText(L"x");
    EXPECT_EQ(KbUiNotify(edit, kId, kKbUiNotifyValidate, 0), kKbUiReplyValid);
    EXPECT_EQ(edit.isValid(), 1);
}

TEST(ValueFlag, ConvertWritesANumberAndLeavesTheFlag) {
    Held<CKtUiAngleEdit> in;
    in.edit.deaf = true;
    in.edit.SetWindowText(L"bad");
    in.edit.m_valid = 1;
    in.edit.textsSet.clear();
    in.edit.Convert();
    EXPECT_EQ(in.edit.textsSet, (std::vector<CString>{L"bad"}));
    EXPECT_EQ(in.edit.m_valid, 1);
    CKtUiEdit* volatile none = nullptr;
    none->Convert();
}

TEST(ValueFlag, LackOfSpaceAndChangesGoOnToTheHolder) {
    Held<CKtUiNumericEdit> in;
    in.edit.SetWindowText(L"1");
    EXPECT_EQ(in.holder.changes, 1);
    in.holder.SendMessage(WM_COMMAND, MAKEWPARAM(kId, EN_ERRSPACE), reinterpret_cast<LPARAM>(in.edit.m_hWnd));
    EXPECT_EQ(in.edit.m_valid, 1);
    EXPECT_EQ(in.holder.changes, 1);
}

TEST(EditTipPlace, AnEditsTextFitsWhenNeitherSideIsShort) {
    class Sized : public CKbUiEdit {
    public:
        int width = 0, height = 0;
        using CKbUiEdit::m_tipRect;
        void GetContentExtent(const wchar_t*, int& cx, int& cy) override {
            cx = width;
            cy = height;
        }
    } edit;
    RecordingHolder holder;
    edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 120, 40), &holder, kId);
    CRect place;
    edit.GetRect(&place);
    const struct {
        int wider, higher;
        bool wanted;
    } cases[] = {{0, 0, false}, {-1, -1, false}, {1, 0, true}, {0, 1, true}, {-5, 1, true}, {1, -5, true}};
    for (const auto& each : cases) {
        edit.width = place.Width() + each.wider;
        edit.height = place.Height() + each.higher;
        CRect rect(1, 2, 3, 4);
        EXPECT_EQ(KbUiNotify(edit, kId, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect)),
                  each.wanted ? kKbUiReplyHandled : kKbUiReplyNone);
        EXPECT_EQ(rect,
                  each.wanted ? CRect(place.TopLeft(), CSize(edit.width, edit.height)) : CRect(0, 0, 0, 0));
        EXPECT_EQ(edit.m_tipRect, rect);
    }
}

}  // namespace
