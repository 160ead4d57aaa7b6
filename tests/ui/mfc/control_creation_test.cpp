// What each control class asks the system for when it is created.
#include <afxcmn.h>
#include <afxdtctl.h>

#include "ui_test.h"

namespace {

struct ControlCreation : ::testing::Test {
    /// Looks at a child of `parent` with id 77 at (10, 20), 60 wide, that was asked for WS_GROUP.
    void expect_child(CWnd& control, const wchar_t* className, DWORD exStyle = 0) {
        ASSERT_NE(control.m_hWnd, nullptr) << CStringA(className);
        wchar_t name[100] = L"";
        ::GetClassNameW(control.m_hWnd, name, 100);
        EXPECT_STREQ(_wcslwr(name), CString(className).MakeLower()) << CStringA(className);
        EXPECT_EQ(::GetDlgCtrlID(control.m_hWnd), 77) << CStringA(className);
        EXPECT_EQ(::GetParent(control.m_hWnd), parent.m_hWnd) << CStringA(className);
        EXPECT_NE(control.GetStyle() & WS_GROUP, 0U) << CStringA(className);
        EXPECT_EQ(control.GetExStyle() & (WS_EX_TRANSPARENT | WS_EX_ACCEPTFILES), exStyle)
            << CStringA(className);
        CRect place;
        control.GetWindowRect(&place);
        parent.ScreenToClient(&place);
        EXPECT_EQ(place.TopLeft(), CPoint(10, 20)) << CStringA(className);
        EXPECT_EQ(place.Width(), width) << CStringA(className);
        EXPECT_EQ(CWnd::FromHandlePermanent(control.m_hWnd), &control) << CStringA(className);
        control.DestroyWindow();
    }
    template <class Control>
    void expect_created(const wchar_t* className, DWORD style = 0) {
        Control control;
        EXPECT_TRUE(control.Create(kStyle | style, kPlace, &parent, 77)) << CStringA(className);
        expect_child(control, className);
    }
    template <class Control>
    void expect_created_both(const wchar_t* className, DWORD style = 0) {
        expect_created<Control>(className, style);
        Control control;
        EXPECT_TRUE(control.CreateEx(WS_EX_TRANSPARENT, kStyle | style, kPlace, &parent, 77))
            << CStringA(className);
        expect_child(control, className, WS_EX_TRANSPARENT);
    }
    template <class Control>
    void expect_named(const wchar_t* className, DWORD style = 0) {
        Control control;
        EXPECT_TRUE(control.Create(L"its text", kStyle | style, kPlace, &parent, 77)) << CStringA(className);
        EXPECT_EQ(ui_test::text_of(control.m_hWnd), L"its text");
        expect_child(control, className);
    }

    int width = 60;  // pixels that a control is to have
    static constexpr DWORD kStyle = WS_CHILD | WS_GROUP;
    const CRect kPlace{10, 20, 70, 120};
    ui_test::ParentWindow parent;
};

}  // namespace

TEST_F(ControlCreation, OfTheOldControls) {
    expect_named<CStatic>(L"Static");
    expect_named<CButton>(L"Button");
    expect_created<CEdit>(L"Edit");
    expect_created<CListBox>(L"ListBox");
    expect_created<CComboBox>(L"ComboBox", CBS_DROPDOWNLIST);
    expect_created<CScrollBar>(L"ScrollBar");
}

TEST_F(ControlCreation, OfTheCommonControls) {
    expect_created_both<CListCtrl>(WC_LISTVIEWW);
    expect_created_both<CTreeCtrl>(WC_TREEVIEWW);
    expect_created_both<CTabCtrl>(WC_TABCONTROLW);
    expect_created_both<CSliderCtrl>(TRACKBAR_CLASSW);
    expect_created_both<CProgressCtrl>(PROGRESS_CLASSW);
    expect_created_both<CHotKeyCtrl>(HOTKEY_CLASSW);
    expect_created_both<CComboBoxEx>(WC_COMBOBOXEXW, CBS_DROPDOWNLIST);
    expect_created<CHeaderCtrl>(WC_HEADERW);
    expect_created<CDateTimeCtrl>(DATETIMEPICK_CLASSW);
    expect_created<CMonthCalCtrl>(MONTHCAL_CLASSW);
    expect_created_both<CToolBarCtrl>(TOOLBARCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER);
    expect_created_both<CStatusBarCtrl>(STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN);
}

TEST_F(ControlCreation, OfASpinButtonWhichChoosesItsWidth) {
    const HWND bare =
        ::CreateWindowExW(0, UPDOWN_CLASSW, L"", kStyle, 10, 20, 60, 100, parent, nullptr, nullptr, nullptr);
    CRect place;
    ::GetWindowRect(bare, &place);
    width = place.Width();
    expect_created_both<CSpinButtonCtrl>(UPDOWN_CLASSW);
}

TEST_F(ControlCreation, ATipIsAPopupOfItsParent) {
    CToolTipCtrl plain, styled;
    ASSERT_TRUE(plain.Create(&parent));
    ASSERT_TRUE(styled.CreateEx(&parent, TTS_ALWAYSTIP, WS_EX_TRANSPARENT));
    EXPECT_EQ(::GetWindow(plain.m_hWnd, GW_OWNER), parent.m_hWnd);
    EXPECT_NE(plain.GetStyle() & WS_POPUP, 0U);
    EXPECT_EQ(plain.GetStyle() & TTS_ALWAYSTIP, 0U);
    EXPECT_NE(styled.GetStyle() & TTS_ALWAYSTIP, 0U);
    EXPECT_NE(styled.GetExStyle() & WS_EX_TRANSPARENT, 0U);
    EXPECT_TRUE(styled.DestroyToolTipCtrl());
    EXPECT_EQ(styled.m_hWnd, nullptr);
    CToolTipCtrl without;
    EXPECT_TRUE(without.Create(nullptr));
}

TEST_F(ControlCreation, FailsWithoutAParent) {
    CListCtrl list;
    EXPECT_FALSE(list.Create(kStyle, kPlace, nullptr, 77));
    CButton button;
    EXPECT_FALSE(button.Create(L"", kStyle, kPlace, nullptr, 77));
    CToolBarCtrl bar;
    EXPECT_FALSE(bar.Create(kStyle, kPlace, nullptr, 77));
    CMonthCalCtrl calendar;
    EXPECT_FALSE(calendar.Create(kStyle, CPoint(1, 2), nullptr, 77));
    EXPECT_EQ(calendar.m_hWnd, nullptr);
}

TEST_F(ControlCreation, AScrollBarKeepsItsNumbers) {
    CScrollBar bar;
    bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 0, 200, 16), &parent, 77);
    bar.SetScrollRange(5, 95);
    int low = 0, high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(low, 5);
    EXPECT_EQ(high, 95);
    EXPECT_EQ(bar.SetScrollPos(40), 5);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    EXPECT_EQ(bar.GetScrollLimit(), 95);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(bar.GetScrollLimit(), 85);
    SCROLLINFO found = {};
    EXPECT_TRUE(bar.GetScrollInfo(&found, SIF_POS));
    EXPECT_EQ(found.nPos, 40);
    EXPECT_EQ(found.nPage, 0U) << "not asked for";
    EXPECT_TRUE(bar.GetScrollInfo(&found));
    EXPECT_EQ(found.nPage, 11U);
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.IsWindowVisible());
    bar.ShowScrollBar();
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    EXPECT_FALSE(bar.IsWindowEnabled());
    EXPECT_TRUE(bar.EnableScrollBar());
    EXPECT_TRUE(bar.IsWindowEnabled());
}

TEST_F(ControlCreation, AButtonKnowsItsStyle) {
    CButton button;
    button.Create(L"", kStyle | BS_AUTOCHECKBOX | BS_RIGHT, kPlace, &parent, 77);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
}

TEST_F(ControlCreation, AComboBoxTellsItsParts) {
    CComboBox box;
    box.Create(kStyle | WS_VISIBLE | CBS_DROPDOWN, kPlace, &parent, 77);
    COMBOBOXINFO info = {};
    EXPECT_TRUE(box.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, box.m_hWnd);
    EXPECT_NE(info.hwndItem, nullptr);
    EXPECT_NE(info.hwndList, nullptr);
}
