// The closed face of an owner-drawn drop-down list under a theme: what is asked of the theme, and when.
#include <ktui/controls/kbui_list_box.h>
#include <ktui/input/kbui_combo_box.h>

#include "canvas.h"
#include "fake_theme.h"
#include "recording_holder.h"

namespace {

using ui_test::Asked;
using ui_test::FakeTheme;
using ui_test::RecordingHolder;

constexpr UINT kId = 33;

class DrawnCombo : public CKbUiComboBox {
public:
    std::vector<DRAWITEMSTRUCT> drawn;
    std::vector<std::string> askedBefore;  ///< the last question before each drawing
    HGDIOBJ font = nullptr;
    COLORREF corner = 0;  ///< of the content, when the item is drawn
    bool dropped = false;
    bool pressed = false;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        drawn.push_back(*item);
        if (!FakeTheme::asked.empty()) askedBefore.push_back(FakeTheme::asked.back().call);
        font = ::GetCurrentObject(item->hDC, OBJ_FONT);
        corner = ::GetPixel(item->hDC, item->rcItem.left, item->rcItem.top);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 18; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_GETDROPPEDSTATE) return dropped;
        if (message == CB_GETCOMBOBOXINFO && pressed) {
            const LRESULT result = CKbUiComboBox::WindowProc(message, wParam, lParam);
            reinterpret_cast<COMBOBOXINFO*>(lParam)->stateButton = STATE_SYSTEM_PRESSED;
            return result;
        }
        return CKbUiComboBox::WindowProc(message, wParam, lParam);
    }
};

struct ThemedFace : ::testing::Test {
    ThemedFace() {
        make(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
        ui_test::move_cursor({0, 0});
    }
    void make(DWORD style) {
        if (combo.m_hWnd) combo.DestroyWindow();
        font.DeleteObject();
        font.CreatePointFont(140, L"Tahoma");
        combo.Create(WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 160, 200), &holder, kId);
        for (const wchar_t* text : {L"one", L"two", L"three"}) combo.AddString(text);
        combo.SetFont(&font);
        combo.SetCurSel(1);
        combo.SetItemData(1, 4711);
        combo.SetItemData(2, 4712);
        combo.GetClientRect(&client);
        holder.SetFocus();
        ui_test::pump();
    }
    LRESULT paint() {
        FakeTheme::asked.clear();
        combo.drawn.clear();
        combo.askedBefore.clear();
        combo.Invalidate();
        return combo.SendMessage(WM_PAINT);
    }
    /// What the theme is asked for a face of `state` and a button of `button`.
    std::vector<Asked> face(int state, int button) {
        const int split = client.right - ::GetSystemMetrics(SM_CXVSCROLL);
        std::vector<Asked> all{{"open COMBOBOX"}, {"transparent?", 5, state}};
        if (FakeTheme::transparent) all.push_back({"parent", 0, 0, client});
        all.push_back({"draw", 5, state, client});
        all.push_back({"draw", 6, button, CRect(split, client.top, client.right, client.bottom)});
        all.push_back({"content", 5, state, CRect(client.left, client.top, split, client.bottom)});
        all.push_back({"close"});
        return all;
    }
    FakeTheme theme;
    RecordingHolder holder;
    CFont font;
    DrawnCombo combo;
    CRect client;
};

TEST_F(ThemedFace, IsPaintedByItsPartsInOrderAndEndsInDrawItem) {
    EXPECT_EQ(paint(), 1);
    EXPECT_EQ(FakeTheme::asked, face(1, 1));
    EXPECT_EQ(FakeTheme::opened, combo.m_hWnd);
    ASSERT_EQ(combo.drawn.size(), 1u);
    EXPECT_EQ(combo.askedBefore, (std::vector<std::string>{"close"})) << "the theme is closed before";
    const DRAWITEMSTRUCT& item = combo.drawn[0];
    EXPECT_EQ(item.CtlType, UINT{ODT_COMBOBOX});
    EXPECT_EQ(item.CtlID, kId);
    EXPECT_EQ(item.itemID, 1u);
    EXPECT_EQ(item.itemAction, UINT{ODA_DRAWENTIRE});
    EXPECT_EQ(item.itemState, 4096u);
    EXPECT_EQ(item.hwndItem, combo.m_hWnd);
    EXPECT_EQ(item.hDC, FakeTheme::dc);
    EXPECT_EQ(item.itemData, 4711u);
    EXPECT_EQ(CRect(item.rcItem),
              CRect(3, 3, client.right - ::GetSystemMetrics(SM_CXVSCROLL) - 3, client.bottom - 3));
    EXPECT_EQ(combo.font, font.m_hObject);
    EXPECT_FALSE(::GetUpdateRect(combo.m_hWnd, nullptr, FALSE)) << "nothing is left to paint";
}

TEST_F(ThemedFace, ATransparentFaceShowsTheParentBehindIt) {
    FakeTheme::transparent = true;
    paint();
    EXPECT_EQ(FakeTheme::asked, face(1, 1));
}

TEST_F(ThemedFace, WithoutThemeDataNothingIsPainted) {
    FakeTheme::hasData = false;
    EXPECT_EQ(paint(), 1);
    EXPECT_EQ(FakeTheme::asked, (std::vector<Asked>{{"open COMBOBOX"}}));
    EXPECT_TRUE(combo.drawn.empty());
}

TEST_F(ThemedFace, TheFirstConditionThatHoldsChoosesTheState) {
    CRect place;
    combo.GetWindowRect(&place);
    ui_test::move_cursor(place.CenterPoint());
    ASSERT_TRUE(ui_test::pump_until([&] {
        POINT cursor{};
        ::GetCursorPos(&cursor);
        return ::WindowFromPoint(cursor) == combo.m_hWnd;
    }));
    paint();
    EXPECT_EQ(FakeTheme::asked, face(2, 1));
    EXPECT_EQ(combo.drawn.at(0).itemState, 4160u);
    combo.dropped = true;
    paint();
    EXPECT_EQ(FakeTheme::asked, face(3, 1));
    EXPECT_EQ(combo.drawn.at(0).itemState, 4097u);
    combo.EnableWindow(FALSE);
    paint();
    EXPECT_EQ(FakeTheme::asked, face(4, 4));
    EXPECT_EQ(combo.drawn.at(0).itemState, 4100u);
}

TEST_F(ThemedFace, AFocusedFaceIsMarkedUnlessItIsSelected) {
    combo.SetFocus();
    const auto mark = [this] {
        paint();
        CClientDC dc(&combo);
        return combo.corner;
    };
    holder.SetFocus();
    const COLORREF unmarked = mark();
    combo.SetFocus();
    const COLORREF marked = mark();
    EXPECT_NE(marked, unmarked);
    combo.dropped = true;
    EXPECT_EQ(mark(), unmarked);
}

TEST_F(ThemedFace, IsLeftToThePlatformWithoutOwnerDrawingWithAnEditAndWithoutATheme) {
    for (const DWORD style :
         {DWORD{CBS_DROPDOWNLIST}, DWORD{CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS}}) {
        make(style);
        paint();
        EXPECT_TRUE(FakeTheme::asked.empty()) << style;
    }
    make(CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS);
    EXPECT_EQ(paint(), 1);
    EXPECT_FALSE(FakeTheme::asked.empty());
    FakeTheme::active = false;
    EXPECT_FALSE(CKbUiComboBox::IsVistaTheme());
    paint();
    EXPECT_TRUE(FakeTheme::asked.empty());
}

TEST_F(ThemedFace, AChangeOfFocusOrSelectionPaintsItAfresh) {
    ui_test::pump();
    const auto dirty = [this](UINT message, WPARAM wParam) {
        combo.ValidateRect(nullptr);
        combo.SendMessage(message, wParam);
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(combo.m_hWnd, &rect, FALSE);
        return rect;
    };
    FakeTheme::active = true;
    EXPECT_EQ(dirty(CB_SETCURSEL, 2), client);
    EXPECT_EQ(dirty(WM_KILLFOCUS, 0), client);
    EXPECT_EQ(dirty(WM_SETFOCUS, 0), client);
}

TEST_F(ThemedFace, AFaceWithoutASelectionIsStillDrawn) {
    combo.SetCurSel(-1);
    paint();
    ASSERT_EQ(combo.drawn.size(), 1u);
    EXPECT_EQ(combo.drawn[0].itemID, static_cast<UINT>(-1));
}

}  // namespace
