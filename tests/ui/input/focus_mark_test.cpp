// The mark of the focus on the closed face of a drop-down list that draws its own items, and what a combo box
// hears of itself through its parent.
#include <ktui/input/kbui_combo_box.h>

#include "canvas.h"
#include "recording_holder.h"

namespace {

using ui_test::Canvas;

constexpr UINT kId = 36;
constexpr COLORREF kGround = RGB(255, 255, 255);

/// Draws nothing itself, and counts a notification that its parent reflects.
class ListeningCombo : public CKbUiComboBox {
public:
    int selections = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override {}
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 16; }

protected:
    afx_msg BOOL OnSelChange() {
        ++selections;
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ListeningCombo, CKbUiComboBox)
    ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, &ListeningCombo::OnSelChange)
END_MESSAGE_MAP()

struct FocusMark : ::testing::Test {
    void make(DWORD kind) {
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | kind,
                     CRect(10, 10, 160, 200), &holder, kId);
    }
    /// The pixels that differ after the parent is told to draw an item of `state`.
    int drawn(UINT state) {
        Canvas canvas(60, 30, kGround);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = kId;
        item.itemState = state;
        item.hwndItem = combo.m_hWnd;
        item.hDC = canvas.dc.m_hDC;
        item.rcItem = CRect(5, 5, 55, 25);
        holder.SendMessage(WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));
        Canvas marked(60, 30, kGround);
        const CRect mark(5, 5, 55, 25);
        marked.dc.DrawFocusRect(&mark);
        const int touched = 60 * 30 - canvas.count(kGround);
        if (touched) {
            EXPECT_TRUE(canvas == marked) << "the mark lies on the item's edge";
        }
        return touched;
    }
    ui_test::RecordingHolder holder;
    ListeningCombo combo;
};

}  // namespace

TEST_F(FocusMark, IsDrawnOnTheFocusedFaceAlone) {
    make(CBS_DROPDOWNLIST);
    EXPECT_GT(drawn(ODS_COMBOBOXEDIT | ODS_FOCUS), 0);
    EXPECT_GT(drawn(ODS_COMBOBOXEDIT | ODS_FOCUS | ODS_SELECTED), 0);
    EXPECT_EQ(drawn(0), 0);
    EXPECT_EQ(drawn(ODS_COMBOBOXEDIT), 0);
    EXPECT_EQ(drawn(ODS_COMBOBOXEDIT | ODS_SELECTED), 0) << "without the focus";
    EXPECT_EQ(drawn(ODS_FOCUS | ODS_SELECTED), 0) << "an item of the open list";
    EXPECT_EQ(drawn(ODS_COMBOBOXEDIT | ODS_FOCUS | ODS_NOFOCUSRECT), 0) << "the user wants no marks yet";
}

TEST_F(FocusMark, IsTheEditsOwnAffairWhereThereIsOne) {
    make(CBS_DROPDOWN);
    EXPECT_EQ(drawn(ODS_COMBOBOXEDIT | ODS_FOCUS), 0);
}

TEST_F(FocusMark, NotificationsComeBackToTheComboBoxByTheirCode) {
    make(CBS_DROPDOWNLIST);
    for (const int code : {CBN_SELCHANGE, CBN_DROPDOWN, CBN_SELENDOK})
        holder.SendMessage(WM_COMMAND, MAKEWPARAM(kId, code), reinterpret_cast<LPARAM>(combo.m_hWnd));
    EXPECT_EQ(combo.selections, 1);
}
