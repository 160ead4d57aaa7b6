// The picker bar: the selection's values, what it changes, and its tips.
#include "../../../samples/drafter/picker_bar.h"

#include "../../../samples/drafter/layer_list.h"
#include "drafter_fixture.h"

namespace {

using namespace ui_test;

class OpenBar : public CPickerBar {
public:
    using CKbUiDialogBar::m_toolTip;
    using CPickerBar::CPickerBar;
};

class PickerBar : public DrafterTest {
protected:
    PickerBar()
        : bar([this](UINT name) {
              ++changes;
              changed = name;
          }) {
        frame = new CFrameWnd;
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(40, 40, 900, 440));
        EXPECT_TRUE(bar.CreateBar(frame));
        frame->RecalcLayout();
        auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        for (OdDbObjectId& id : lines) {
            space->appendOdDbEntity(new OdDbLine, &id);
        }
        color(lines[0], 1);
        color(lines[1], 3);
    }
    ~PickerBar() override { frame->DestroyWindow(); }
    static void color(const OdDbObjectId& id, int index) {
        OdCmColor value;
        value.setColorIndex(index);
        id.open<OdDbEntity>(OdDb::kForWrite)->setColor(value);
    }
    static int colorOf(const OdDbObjectId& id) { return id.open<OdDbEntity>()->color().colorIndex(); }
    OdDbObjectId continuous() {
        OdDbLinetypeTablePtr table;
        drawing->getLinetypeTable(table);
        return table->getAt(L"Continuous");
    }
    CString shown(int id) {
        CWnd& combo = *bar.GetDlgItem(id);
        const int index = selected(combo);
        if (index < 0) return L"none";
        CString text;
        static_cast<CComboBox&>(combo).GetLBText(index, text);
        return text;
    }
    /// Gives the frame a width, and the bar the layout that comes of it.
    void makeWide(int pixels) {
        frame->SetWindowPos(nullptr, 0, 0, pixels, 400, SWP_NOMOVE | SWP_NOZORDER);
        pump();
    }
    std::vector<CRect> pickerRects() {
        std::vector<CRect> rects;
        for (const int id :
             {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER, IDC_LAYER_SEARCH}) {
            CRect rect;
            bar.GetDlgItem(id)->GetWindowRect(&rect);
            bar.ScreenToClient(&rect);
            rects.push_back(rect);
        }
        return rects;
    }
    CRect clientOfBar() {
        CRect client;
        bar.GetClientRect(&client);
        return client;
    }
    /// Takes the entry with this text as the user does.
    void take(int id, const wchar_t* text) {
        CWnd& combo = *bar.GetDlgItem(id);
        const LRESULT index =
            combo.SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
        ASSERT_GE(index, 0) << CStringA(text).GetString();
        combo.SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        bar.SendMessage(WM_COMMAND, MAKEWPARAM(id, CBN_SELENDOK), reinterpret_cast<LPARAM>(combo.m_hWnd));
    }

    CFrameWnd* frame;
    int changes = 0;
    UINT changed = 0;  ///< name of what was
    OpenBar bar;
    OdDbObjectId lines[2];
};

TEST_F(PickerBar, ShowsTheValuesOfTheSelectionAndNoneWhereTheyDiffer) {
    bar.Show(*drawing, {lines[0]});
    EXPECT_EQ(shown(IDC_TRUE_COLOR).CompareNoCase(L"Red"), 0) << CStringA(shown(IDC_TRUE_COLOR)).GetString();
    EXPECT_EQ(shown(IDC_LINETYPE), L"ByLayer");
    EXPECT_EQ(shown(IDC_LINE_WEIGHT), L"ByLayer");
    bar.Show(*drawing, {lines[0], lines[1]});
    EXPECT_EQ(shown(IDC_TRUE_COLOR), L"none");
    EXPECT_EQ(shown(IDC_LINETYPE), L"ByLayer");
    lines[1].open<OdDbEntity>(OdDb::kForWrite)->setLineWeight(OdDb::kLnWt050);
    lines[1].open<OdDbEntity>(OdDb::kForWrite)->setLinetype(continuous());
    bar.Show(*drawing, {lines[0], lines[1]});
    EXPECT_EQ(shown(IDC_LINE_WEIGHT), L"none");
    EXPECT_EQ(shown(IDC_LINETYPE), L"none");
    EXPECT_EQ(changes, 0);
}

TEST_F(PickerBar, ActsOnTheSelection) {
    bar.Show(*drawing, {lines[0], lines[1]});
    take(IDC_TRUE_COLOR, L"Blue");
    EXPECT_EQ(colorOf(lines[0]), 5);
    EXPECT_EQ(colorOf(lines[1]), 5);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(changed, UINT{IDS_TIP_COLOR});
    take(IDC_LINETYPE, L"Continuous");
    EXPECT_EQ(lines[0].open<OdDbEntity>()->linetypeId(), continuous());
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(changed, UINT{IDS_TIP_LINETYPE});
    take(IDC_LINE_WEIGHT, L"0.50 mm");
    EXPECT_EQ(lines[1].open<OdDbEntity>()->lineWeight(), OdDb::kLnWt050);
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(changed, UINT{IDS_TIP_WEIGHT});
    EXPECT_EQ(drawing->cecolor().colorIndex(), 256);
}

TEST_F(PickerBar, WithoutASelectionSetsWhatNewObjectsGet) {
    bar.Show(*drawing, {});
    EXPECT_EQ(shown(IDC_TRUE_COLOR), L"ByLayer");
    take(IDC_TRUE_COLOR, L"Green");
    EXPECT_EQ(drawing->cecolor().colorIndex(), 3);
    take(IDC_LINE_WEIGHT, L"0.50 mm");
    EXPECT_EQ(drawing->celweight(), OdDb::kLnWt050);
    take(IDC_LINETYPE, L"Continuous");
    EXPECT_EQ(drawing->celtype(), continuous());
    EXPECT_EQ(colorOf(lines[0]), 1);
    EXPECT_EQ(changes, 3);
}

TEST_F(PickerBar, TheSameValueAgainChangesNothing) {
    bar.Show(*drawing, {lines[0]});
    take(IDC_TRUE_COLOR, L"Red");
    take(IDC_LINETYPE, L"ByLayer");
    take(IDC_LINE_WEIGHT, L"ByLayer");
    EXPECT_EQ(changes, 0);
}

TEST_F(PickerBar, PlotStylesFollowTheKindOfTheDrawing) {
    drawing->setPSTYLEMODE(1);
    bar.Show(*drawing, {lines[0]});
    EXPECT_FALSE(bar.GetDlgItem(IDC_PLOT_STYLE)->IsWindowEnabled());
    drawing->setPSTYLEMODE(0);
    bar.Show(*drawing, {lines[0]});
    EXPECT_TRUE(bar.GetDlgItem(IDC_PLOT_STYLE)->IsWindowEnabled());
    EXPECT_NE(shown(IDC_PLOT_STYLE), L"none");
    for (const wchar_t* name : {L"ByLayer", L"ByBlock"})
        EXPECT_GE(static_cast<CComboBox&>(*bar.GetDlgItem(IDC_PLOT_STYLE)).FindStringExact(-1, name), 0)
            << name;
}

TEST_F(PickerBar, LinetypesThatAreLoadedLaterAreOffered) {
    bar.Show(*drawing, {});
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table, OdDb::kForWrite);
    const auto record = table->newRecord();
    record->setName(L"LATER");
    table->add(record);
    bar.Show(*drawing, {});
    take(IDC_LINETYPE, L"LATER");
    EXPECT_EQ(changes, 1);
}

TEST_F(PickerBar, TheLayerIsThatOfTheSelectionAndIsSet) {
    NeedLayer(*drawing, L"walls");
    const OdDbObjectId doors = NeedLayer(*drawing, L"doors");
    lines[1].open<OdDbEntity>(OdDb::kForWrite)->setLayer(doors);
    bar.Show(*drawing, {lines[1]});
    EXPECT_EQ(shown(IDC_LAYER), L"doors");
    bar.Show(*drawing, {lines[0], lines[1]});
    EXPECT_EQ(shown(IDC_LAYER), L"none");
    take(IDC_LAYER, L"walls");
    EXPECT_EQ(lines[0].open<OdDbEntity>()->layer(), L"walls");
    EXPECT_EQ(lines[1].open<OdDbEntity>()->layer(), L"walls");
    EXPECT_EQ(changed, UINT{IDS_TIP_LAYER});
    bar.Show(*drawing, {});
    EXPECT_EQ(shown(IDC_LAYER), L"0");
    take(IDC_LAYER, L"doors");
    EXPECT_EQ(drawing->clayer(), doors);
    EXPECT_EQ(changes, 2);
}

TEST_F(PickerBar, TheSearchBoxNarrowsTheLayersAndEnterTakesTheFirst) {
    for (const wchar_t* name : {L"walls", L"outer walls", L"doors"}) NeedLayer(*drawing, name);
    bar.Show(*drawing, {lines[0]});
    CWnd& layers = *bar.GetDlgItem(IDC_LAYER);
    const auto count = [&] { return layers.SendMessage(CB_GETCOUNT); };
    const LRESULT all = count();
    bar.SearchLayers();
    pump();
    CWnd* const editor = CWnd::GetFocus();
    ASSERT_NE(editor, nullptr);
    editor->SetWindowText(L"WALL");
    pump();
    EXPECT_EQ(count(), all - 1) << "two are left, and the one that is shown";
    EXPECT_EQ(shown(IDC_LAYER), L"0");
    EXPECT_EQ(changes, 0) << "searching changes nothing";
    MSG enter = {editor->m_hWnd, WM_KEYDOWN, VK_RETURN, 1, ::GetTickCount(), {}};
    EXPECT_TRUE(bar.PreTranslateMessage(&enter));
    EXPECT_EQ(lines[0].open<OdDbEntity>()->layer(), L"outer walls");
    EXPECT_EQ(changes, 1);
    bar.Show(*drawing, {lines[0]});
    EXPECT_EQ(count(), all) << "the box is empty again";
}

TEST_F(PickerBar, EscapeInTheSearchBoxGivesUp) {
    NeedLayer(*drawing, L"walls");
    bar.Show(*drawing, {lines[0]});
    CWnd& layers = *bar.GetDlgItem(IDC_LAYER);
    const LRESULT all = layers.SendMessage(CB_GETCOUNT);
    bar.SearchLayers();
    pump();
    CWnd* const editor = CWnd::GetFocus();
    editor->SetWindowText(L"zzz");
    pump();
    MSG escape = {editor->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, ::GetTickCount(), {}};
    EXPECT_TRUE(bar.PreTranslateMessage(&escape));
    pump();
    EXPECT_EQ(layers.SendMessage(CB_GETCOUNT), all);
    EXPECT_EQ(changes, 0);
}

TEST_F(PickerBar, WhatARowHasNoRoomForGoesOnInTheNext) {
    makeWide(1200);
    const std::vector<CRect> wide = pickerRects();
    const int row = clientOfBar().Height();
    for (const CRect& each : wide) EXPECT_EQ(each.top, wide[0].top) << "one row";
    LONG height = 0;
    for (const int width : {760, 560, 400, 260, 140}) {
        makeWide(width);
        const CRect client = clientOfBar();
        EXPECT_GT(client.Height(), row) << width;
        EXPECT_GE(client.Height(), height) << width << ": no fewer rows than before";
        height = client.Height();
        std::vector<CRect> before;
        for (const CRect& each : pickerRects()) {
            EXPECT_EQ(client | each, client) << width << ": nothing is cut off";
            for (const CRect& other : before) {
                EXPECT_FALSE(CRect().IntersectRect(each, other)) << width;
                EXPECT_TRUE(each.top > other.top || (each.top == other.top && each.left > other.left))
                    << width << ": in their order";
            }
            before.push_back(each);
        }
    }
    makeWide(1200);
    EXPECT_EQ(pickerRects(), wide);
    EXPECT_EQ(clientOfBar().Height(), row);
}

TEST_F(PickerBar, AListIsAsHighAsBeforeWhenTheBarWasNarrow) {
    const auto listHeight = [&] {
        CWnd& combo = *bar.GetDlgItem(IDC_LINETYPE);
        drop(combo);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(combo.m_hWnd, &info);
        CRect rect;
        ::GetWindowRect(info.hwndList, &rect);
        combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
        return rect.Height();
    };
    for (int i = 0; i < 40; ++i) {
        OdDbLinetypeTablePtr table;
        drawing->getLinetypeTable(table, OdDb::kForWrite);
        const auto record = table->newRecord();
        record->setName(OdString((L"L" + std::to_wstring(i)).c_str()));
        table->add(record);
    }
    bar.Show(*drawing, {});
    const int before = listHeight();
    makeWide(120);
    EXPECT_LT(pickerRects()[1].Width(), 120) << "narrowed to the row";
    EXPECT_EQ(listHeight(), before);
    makeWide(1200);
    EXPECT_EQ(listHeight(), before);
    EXPECT_GT(before, 100);
}

TEST_F(PickerBar, EachPickerHasATip) {
    std::vector<CString> texts;
    for (const int id : {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER}) {
        CString text;
        bar.m_toolTip->GetText(text, bar.GetDlgItem(id));
        texts.push_back(text);
    }
    EXPECT_EQ(texts, (std::vector<CString>{L"Color", L"Linetype", L"Lineweight", L"Plot style", L"Layer"}));
}

/// The pointer over a picker of the bar, with a move told to the bar as the message loop does.
class Hover {
public:
    Hover(CPickerBar& bar, CToolTipCtrl& tip, CWnd& picker) : m_bar(bar), m_tip(tip), m_picker(picker) {
        CRect rect;
        picker.GetWindowRect(&rect);
        m_place = rect.CenterPoint();
    }
    /// Moves the pointer within the picker.
    void move() {
        MSG move = {m_picker.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(++m_x, 5), ::GetTickCount(), m_place};
        m_bar.PreTranslateMessage(&move);
    }
    /// Whether the tip comes up while the pointer rests here. A virtual desktop may lose the pointer's place
    /// after a while, and then it is put there again.
    bool showsTip() {
        move_cursor(m_place);
        move();
        return pump_until([&] {
            CPoint now;
            if (::GetCursorPos(&now) && now != m_place && move_cursor(m_place)) move();
            return m_tip.IsWindowVisible() != FALSE;
        });
    }

private:
    CPickerBar& m_bar;
    CToolTipCtrl& m_tip;
    CWnd& m_picker;
    CPoint m_place;
    int m_x = 4;
};

TEST_F(PickerBar, ATipComesUpOverAPicker) {
    EXPECT_TRUE(Hover(bar, *bar.m_toolTip, *bar.GetDlgItem(IDC_LINETYPE)).showsTip());
}

TEST_F(PickerBar, ATipGoesWhenTheListIsDroppedAndComesUpAgainWhenItIsClosed) {
    bar.Show(*drawing, {});
    CWnd& combo = *bar.GetDlgItem(IDC_LINETYPE);
    Hover pointer(bar, *bar.m_toolTip, combo);
    ASSERT_TRUE(pointer.showsTip());
    drop(combo);
    EXPECT_FALSE(bar.m_toolTip->IsWindowVisible());
    pointer.move();
    EXPECT_FALSE(pump_until([&] { return bar.m_toolTip->IsWindowVisible(); }, 1500))
        << "nor does it come back meanwhile";
    combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
    pump();
    EXPECT_TRUE(pointer.showsTip());
}

TEST_F(PickerBar, ATipThatWasToComeUpDoesNotLieOnTheList) {
    bar.Show(*drawing, {});
    CWnd& combo = *bar.GetDlgItem(IDC_TRUE_COLOR);
    Hover pointer(bar, *bar.m_toolTip, combo);
    CRect rect;
    combo.GetWindowRect(&rect);
    ASSERT_TRUE(move_cursor(rect.CenterPoint()));
    pointer.move();
    drop(combo);
    EXPECT_FALSE(pump_until([&] { return bar.m_toolTip->IsWindowVisible(); }, 1500));
    combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(PickerBar, WithoutADrawingItShowsNothingAndNothingCanBePicked) {
    constexpr int kAll[] = {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER};
    bar.Show(*drawing, {lines[0], lines[1]});
    bar.ShowNothing();
    for (const int id : kAll) {
        EXPECT_FALSE(bar.GetDlgItem(id)->IsWindowEnabled()) << id;
        EXPECT_EQ(shown(id), L"none") << id;
    }
    EXPECT_FALSE(bar.GetDlgItem(IDC_LAYER_SEARCH)->IsWindowEnabled());
    drawing->setPSTYLEMODE(1);
    bar.Show(*drawing, {});
    for (const int id : kAll) {
        EXPECT_EQ(bar.GetDlgItem(id)->IsWindowEnabled() != FALSE, id != IDC_PLOT_STYLE) << id;
        EXPECT_NE(shown(id), L"none") << id;
    }
    EXPECT_TRUE(bar.GetDlgItem(IDC_LAYER_SEARCH)->IsWindowEnabled());
}

}  // namespace
