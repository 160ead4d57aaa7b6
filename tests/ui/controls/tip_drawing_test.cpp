// What the list-like controls paint into their tips, pixel by pixel.
#include <ktui/controls/kbui_list_box.h>
#include <ktui/controls/kbui_list_ctrl.h>
#include <ktui/host/appearance.h>
#include <ktui/input/kbui_edit.h>

#include "canvas.h"
#include "recording_holder.h"

namespace {

using ui_test::Canvas;
using ui_test::RecordingHolder;
using ui_test::send_move;

constexpr UINT kId = 61;
constexpr const wchar_t* kText = L"a text that is much wider than what it stands in";

KBUI_REPLY ask(CWnd& control, KBUI_NOTIFY notification, void* datum) {
    return KbUiNotify(control, kId, notification, reinterpret_cast<unsigned __int64>(datum));
}

/// A font that no control has by itself.
class LargeFont {
public:
    LargeFont() { font.CreatePointFont(140, L"Tahoma"); }
    CFont font;
};

/// The framed tip as a reader of the rules draws it.
void drawFramed(Canvas& picture, CFont& font, CRect rect, const CString& text) {
    CBrush fill(RGB(0xFB, 0xFB, 0xFB));
    CPen pen(PS_SOLID, 1, RGB(0x53, 0x52, 0x5C));
    CBrush* brushBefore = picture.dc.SelectObject(&fill);
    CPen* penBefore = picture.dc.SelectObject(&pen);
    CFont* fontBefore = picture.dc.SelectObject(&font);
    picture.dc.Rectangle(rect);
    rect.DeflateRect(2, 2);
    picture.dc.SetBkMode(TRANSPARENT);
    picture.dc.SetTextColor(RGB(0x53, 0x52, 0x5C));
    picture.dc.DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER);
    picture.dc.SelectObject(fontBefore);
    picture.dc.SelectObject(penBefore);
    picture.dc.SelectObject(brushBefore);
}

/// Notes the entry that it is to draw and how the device context stands then.
class NotingList : public CKbUiListBox {
public:
    std::vector<DRAWITEMSTRUCT> drawn;
    HGDIOBJ font = nullptr;
    int mode = 0;
    COLORREF ground = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        drawn.push_back(*item);
        font = ::GetCurrentObject(item->hDC, OBJ_FONT);
        mode = ::GetBkMode(item->hDC);
        ground = ::GetPixel(item->hDC, 0, 0);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 16; }
};

struct Lists : ::testing::Test {
    template <class List>
    void make(List& list, DWORD style) {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | style,
                    CRect(0, 0, 120, 90), &holder, kId);
        list.SetFont(&large.font);
        list.AddString(L"ok");
        list.AddString(kText);
    }
    CPoint pointOf(CListBox& list, int item) {
        CRect rect;
        list.GetItemRect(item, &rect);
        return {rect.left + 3, rect.top + 3};
    }
    RecordingHolder holder;
    LargeFont large;
};

TEST_F(Lists, ATextTipIsFramedWithTheTextInTheMiddleAndInTheFontOfTheList) {
    CKbUiListBox list;
    make(list, 0);
    CPoint point = pointOf(list, 1);
    ask(list, kKbUiNotifyGetTipSupport, &point);
    Canvas drawn(200, 60, RGB(1, 2, 3)), expected(200, 60, RGB(1, 2, 3));
    const HGDIOBJ pen = ::GetCurrentObject(drawn.dc.m_hDC, OBJ_PEN),
                  brush = ::GetCurrentObject(drawn.dc.m_hDC, OBJ_BRUSH),
                  font = ::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT);
    CRect rect(5, 6, 190, 50);
    CKbUiDrawTipText tip(drawn.dc, rect, L"whole & text");
    EXPECT_EQ(ask(list, kKbUiNotifyDrawTipText, &tip), kKbUiReplyHandled);
    drawFramed(expected, large.font, CRect(5, 6, 190, 50), L"whole & text");
    EXPECT_TRUE(drawn == expected);
    EXPECT_EQ(drawn.at(5, 6), RGB(0x53, 0x52, 0x5C));
    EXPECT_EQ(drawn.at(189, 49), RGB(0x53, 0x52, 0x5C));
    EXPECT_EQ(drawn.at(188, 48), RGB(0xFB, 0xFB, 0xFB));
    EXPECT_EQ(drawn.at(4, 5), RGB(1, 2, 3));
    EXPECT_EQ(rect, CRect(7, 8, 188, 48));
    EXPECT_EQ(::GetCurrentObject(drawn.dc.m_hDC, OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(drawn.dc.m_hDC, OBJ_BRUSH), brush);
    EXPECT_EQ(::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT), font);
    EXPECT_EQ(drawn.dc.GetBkMode(), TRANSPARENT);
}

TEST_F(Lists, ATextTipOfAnEntryThatIsGoneIsNotPainted) {
    CKbUiListBox list;
    make(list, 0);
    CPoint point = pointOf(list, 1);
    ask(list, kKbUiNotifyGetTipSupport, &point);
    list.DeleteString(1);
    Canvas drawn(60, 20, RGB(1, 2, 3));
    CRect rect(0, 0, 60, 20);
    CKbUiDrawTipText tip(drawn.dc, rect, L"x");
    EXPECT_EQ(ask(list, kKbUiNotifyDrawTipText, &tip), kKbUiReplyNone);
    EXPECT_TRUE(drawn.isAll(RGB(1, 2, 3)));
}

TEST_F(Lists, AnOwnerDrawnEntryIsAskedToPaintItselfWithAllThatItNeeds) {
    NotingList list;
    make(list, LBS_OWNERDRAWFIXED);
    list.SetItemData(1, 0x1234567);
    CPoint point = pointOf(list, 1);
    send_move(list, point.x, point.y);
    CRect rect;
    ASSERT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    Canvas drawn(rect.Width() + 10, rect.Height() + 10, RGB(1, 2, 3));
    Canvas expected(rect.Width() + 10, rect.Height() + 10, RGB(1, 2, 3));
    expected.dc.FillSolidRect(CRect(0, 0, rect.Width(), rect.Height()), RGB(0xF9, 0xF9, 0xF9));
    const HGDIOBJ font = ::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT);
    list.drawn.clear();
    EXPECT_EQ(ask(list, kKbUiNotifyDrawTip, &drawn.dc), kKbUiReplyHandled);
    ASSERT_EQ(list.drawn.size(), 1u);
    const DRAWITEMSTRUCT& item = list.drawn[0];
    EXPECT_EQ(item.CtlType, UINT{ODT_LISTBOX});
    EXPECT_EQ(item.CtlID, kId);
    EXPECT_EQ(item.itemID, 1u);
    EXPECT_EQ(item.itemAction, UINT{ODA_DRAWENTIRE});
    EXPECT_EQ(item.itemState, 0u);
    EXPECT_EQ(item.hwndItem, list.m_hWnd);
    EXPECT_EQ(item.hDC, drawn.dc.m_hDC);
    EXPECT_EQ(CRect(item.rcItem), CRect(0, 0, rect.Width(), rect.Height()));
    EXPECT_EQ(item.itemData, 0x1234567u);
    EXPECT_EQ(list.font, large.font.m_hObject);
    EXPECT_EQ(list.mode, TRANSPARENT);
    EXPECT_EQ(list.ground, RGB(0xF9, 0xF9, 0xF9));
    EXPECT_TRUE(drawn == expected);
    EXPECT_EQ(::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT), font);
}

TEST_F(Lists, ADrawnTipStandsOnTheSystemsColourForAHostThatFollowsIt) {
    NotingList list;
    make(list, LBS_OWNERDRAWVARIABLE);
    CPoint point = pointOf(list, 1);
    CRect rect;
    send_move(list, point.x, point.y);
    ask(list, kKbUiNotifyGetTipSupport, &point);
    ASSERT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    Canvas drawn(rect.Width(), rect.Height(), RGB(1, 2, 3));
    KtUiFollowSystemAppearance(TRUE);
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    KtUiFollowSystemAppearance(FALSE);
    EXPECT_EQ(list.ground, ::GetSysColor(COLOR_WINDOW));
}

TEST_F(Lists, NoEntryPaintsItselfWithoutOwnerDrawingAPlaceAndAnEntry) {
    Canvas drawn(40, 20, RGB(1, 2, 3));
    NotingList plain, list;
    make(plain, 0);
    CPoint point = pointOf(plain, 1);
    CRect rect;
    send_move(plain, point.x, point.y);
    ASSERT_EQ(ask(plain, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(ask(plain, kKbUiNotifyDrawTip, &drawn.dc), kKbUiReplyHandled);
    EXPECT_TRUE(plain.drawn.empty()) << "not owner-drawn";
    plain.DestroyWindow();
    make(list, LBS_OWNERDRAWVARIABLE);
    list.drawn.clear();
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    EXPECT_TRUE(list.drawn.empty()) << "no entry yet";
    point = pointOf(list, 1);
    ask(list, kKbUiNotifyGetTipSupport, &point);
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    EXPECT_TRUE(list.drawn.empty()) << "no place yet";
    send_move(list, point.x, point.y);
    ASSERT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    list.drawn.clear();
    list.DeleteString(0);
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    EXPECT_TRUE(list.drawn.empty()) << "the entry is gone";
    EXPECT_TRUE(drawn.isAll(RGB(1, 2, 3)));
    // An entry that fits takes the place away again.
    list.AddString(kText);
    list.drawn.clear();
    send_move(list, point.x, point.y - 1);
    ASSERT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    EXPECT_EQ(list.drawn.size(), 1u);
    list.InsertString(0, L"i");
    list.drawn.clear();
    point = pointOf(list, 0);
    send_move(list, point.x, point.y);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    list.drawn.clear();
    ask(list, kKbUiNotifyDrawTip, &drawn.dc);
    EXPECT_TRUE(list.drawn.empty()) << "no place any more";
}

/// A report list with two columns, whose rows and headings don't fit.
struct Reports : ::testing::Test {
    Reports() {
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 120), &holder, kId);
        header.SubclassWindow(ListView_GetHeader(list.m_hWnd));
        list.InsertColumn(0, L"A heading that does not fit", LVCFMT_LEFT, 60);
        list.InsertItem(0, kText);
        text.font.CreatePointFont(140, L"Tahoma");
    }
    ~Reports() override { header.UnsubclassWindow(); }
    /// The text alone, as a reader of the rules draws it.
    void expectText(CWnd& control) {
        Canvas drawn(200, 60), expected(200, 60);
        CRect rect(5, 6, 190, 50);
        for (Canvas* each : {&drawn, &expected}) {
            each->dc.SelectObject(&text.font);
            each->dc.SetTextColor(RGB(200, 0, 0));
        }
        CKbUiDrawTipText tip(drawn.dc, rect, L"whole text");
        EXPECT_EQ(ask(control, kKbUiNotifyDrawTipText, &tip), kKbUiReplyHandled);
        CRect place(5, 6, 190, 50);
        expected.dc.DrawText(L"whole text", &place, DT_SINGLELINE | DT_VCENTER);
        EXPECT_TRUE(drawn == expected);
        EXPECT_FALSE(drawn.isAll(RGB(255, 255, 255)));
        for (Canvas* each : {&drawn, &expected}) each->dc.SelectStockObject(SYSTEM_FONT);
    }
    void expectNothing(CWnd& control) {
        Canvas drawn(200, 60);
        CRect rect(5, 6, 190, 50);
        CKbUiDrawTipText tip(drawn.dc, rect, L"whole text");
        EXPECT_EQ(ask(control, kKbUiNotifyDrawTipText, &tip), kKbUiReplyNone);
        EXPECT_EQ(ask(control, kKbUiNotifyDrawTip, &drawn.dc), kKbUiReplyHandled);
        EXPECT_TRUE(drawn.isAll(RGB(255, 255, 255)));
    }
    struct Text {
        CFont font;
    } text;
    RecordingHolder holder;
    CKbUiListCtrl list;
    CKbUiHeaderCtrl header;
};

TEST_F(Reports, ACellsTipIsTheTextInTheMiddleOfItsHeight) {
    expectNothing(list);
    CRect cell;
    list.GetSubItemRect(0, 0, cell);
    CPoint point = cell.CenterPoint();
    ASSERT_EQ(ask(list, kKbUiNotifyGetTipSupport, &point), kKbUiReplyTextTip);
    expectText(list);
    list.DeleteItem(0);
    expectNothing(list);
}

TEST_F(Reports, AHeadingsTipIsTheTextInTheMiddleOfItsHeight) {
    expectNothing(header);
    CPoint point(5, 5);
    ASSERT_EQ(ask(header, kKbUiNotifyGetTipSupport, &point), kKbUiReplyTextTip);
    expectText(header);
    list.DeleteColumn(0);
    expectNothing(header);
}

}  // namespace
