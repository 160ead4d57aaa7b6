// Every picker made, filled, dropped, drawn, closed and destroyed a thousand times.
#include <ktui/ktui.h>

#include <algorithm>
#include <type_traits>

#include "leak_fixture.h"

namespace {

using namespace leaks;

constexpr UINT kId = 71;
constexpr int kDrawnItems = 24;  // as many as a long list shows
constexpr DWORD kComboStyle = WS_CHILD | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
constexpr DWORD kListStyle = WS_CHILD | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
const CRect kPlace(10, 10, 210, 220);

/// A bitmap to draw items on. Drawing there takes the same code as on the screen and a fraction of the time.
class Canvas {
public:
    Canvas() {
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, kPlace.Width(), kPlace.Height());
        m_former = m_dc.SelectObject(&m_bitmap);
    }
    ~Canvas() { m_dc.SelectObject(m_former); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Has the control of kind `kind` (ODT_...) draw its first items, every other one selected.
    void drawItems(HWND control, UINT kind, LRESULT count) {
        for (int i = 0; i < std::min<LRESULT>(count, kDrawnItems); ++i) {
            DRAWITEMSTRUCT item = {};
            item.CtlType = kind;
            item.CtlID = kId;
            item.itemID = static_cast<UINT>(i);
            item.itemAction = ODA_DRAWENTIRE;
            item.itemState = i % 2 ? ODS_SELECTED : 0;
            item.hwndItem = control;
            item.hDC = m_dc.m_hDC;
            item.rcItem = CRect(0, 0, kPlace.Width(), 18);
            ::SendMessageW(::GetParent(control), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));
        }
    }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_former;
};

/// What the list does when it drops and closes, without the window that it shows.
void notify_drop(HWND combo) {
    for (const UINT code : {CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP})
        ::SendMessageW(::GetParent(combo), WM_COMMAND, MAKEWPARAM(kId, code),
                       reinterpret_cast<LPARAM>(combo));
}

/// Heap blocks that the system keeps for its own combo boxes. Measured once: it is the same for every picker.
size_t growth_of_bare_combos(HWND parent) {
    static const size_t growth = heap_growth([parent] {
        HWND combo = ::CreateWindowExW(0, L"COMBOBOX", L"", kComboStyle, 10, 10, 200, 210, parent,
                                       reinterpret_cast<HMENU>(kId), nullptr, nullptr);
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"text"));
        ::DestroyWindow(combo);
        ui_test::pump();
    });
    return growth;
}

/// A machine may have no fonts that the host finds.
template <class Picker>
constexpr bool listsSomething = !std::is_same_v<Picker, CKtUiFontComboBox>;

template <class Picker>
class PickerLeaks : public leaks::Leaks {};

using Pickers =
    ::testing::Types<CKtUiColorComboBox, CKtUiTrueColorComboBox, CKtUiTrueColorComboBoxForPagesetup,
                     CKtUiWhiteBlackTrueColorComboBox, CKtUiLineTypeComboBox, CKtUiLineWeightComboBox,
                     CKtUiPlotStyleNamesComboBox, CKtUiPlotStyleTablesComboBox, CKtUiArrowHeadComboBox,
                     CKtUiPredefBlockComboBox, CKtUiFontComboBox>;
TYPED_TEST_SUITE(PickerLeaks, Pickers);

TYPED_TEST(PickerLeaks, AThousandLeaveNothing) {
    const size_t systemGrowth = growth_of_bare_combos(this->parent.m_hWnd);
    Canvas canvas;
    int made = 0;
    expect_no_growth(
        [&] {
            TypeParam picker;
            ASSERT_TRUE(picker.Create(kComboStyle, kPlace, &this->parent, kId));
            notify_drop(picker.m_hWnd);
            EXPECT_TRUE(picker.GetCount() > 0 || !listsSomething<TypeParam>);
            canvas.drawItems(picker.m_hWnd, ODT_COMBOBOX, picker.GetCount());
            picker.DestroyWindow();
            ui_test::pump();
            ++made;
        },
        systemGrowth);
    EXPECT_EQ(made, kTimes + kWarmUp);
}

class ShapeFontListLeaks : public leaks::Leaks {};

TEST_F(ShapeFontListLeaks, AThousandLeaveNothing) {
    Canvas canvas;
    expect_no_growth([&] {
        CKtUiShxFontList list;
        ASSERT_TRUE(list.Create(kListStyle, kPlace, &parent, kId));
        list.AddString(L"romans.shx");
        list.FillList(false);
        canvas.drawItems(list.m_hWnd, ODT_LISTBOX, list.GetCount());
        list.DestroyWindow();
        ui_test::pump();
    });
}

}  // namespace
