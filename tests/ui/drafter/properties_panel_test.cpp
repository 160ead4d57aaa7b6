// The panel of the properties palette: what it shows, writes at once, refuses and gives back.
#include "../../../samples/drafter/properties_panel.h"
#include "drafter_fixture.h"

namespace {

using namespace ui_test;

class PropertiesPanel : public DrafterTest {
protected:
    PropertiesPanel()
        : panel([this](UINT name) {
              changes.push_back(name);
              showBoth();
          }) {
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        for (int i = 0; i < 2; ++i) {
            const OdSmartPtr<OdDbCircle> circle(new OdDbCircle);
            OdDbObjectId id;
            space->appendOdDbEntity(OdDbEntityPtr(circle.get()), &id);
            circles.push_back(id);
        }
        EXPECT_TRUE(panel.Create(IDD_PROPERTIES_PANEL, &parent));
        panel.ShowWindow(SW_SHOW);
    }
    ~PropertiesPanel() override { panel.DestroyWindow(); }

    OdDbEntityPtr circle(int index) {
        return circles[static_cast<size_t>(index)].open<OdDbEntity>(OdDb::kForWrite);
    }
    void showBoth() { panel.Show(*drawing, circles); }
    CString text(int id) { return text_of(item(panel, id).m_hWnd); }
    CString entry(int id) {
        auto& combo = static_cast<CComboBox&>(item(panel, id));
        CString shown;
        if (combo.GetCurSel() >= 0) combo.GetLBText(combo.GetCurSel(), shown);
        return shown;
    }
    bool offers(int id, const wchar_t* text) {
        return static_cast<CComboBox&>(item(panel, id)).FindStringExact(-1, text) >= 0;
    }
    void type(int id, const wchar_t* words) {
        item(panel, id).SetFocus();
        item(panel, id).SetWindowText(words);
        pump();
    }
    void leave() {
        item(panel, IDC_TRUE_COLOR).SetFocus();
        pump();
    }
    void take(int id, const wchar_t* words) {
        CWnd& combo = item(panel, id);
        drop(combo);
        const LRESULT index =
            combo.SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(words));
        ASSERT_GE(index, 0) << CStringA(words).GetString();
        combo.SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        panel.SendMessage(WM_COMMAND, MAKEWPARAM(id, CBN_SELENDOK), reinterpret_cast<LPARAM>(combo.m_hWnd));
        combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
        pump();
    }

    std::vector<OdDbObjectId> circles;
    std::vector<UINT> changes;
    CPropertiesPanel panel;
};

using Changes = std::vector<UINT>;

TEST_F(PropertiesPanel, FollowsTheSelectionAndSaysWhatItIs) {
    panel.Show(*drawing, {});
    EXPECT_EQ(text(IDC_PANEL_TITLE), L"Current settings");
    EXPECT_FALSE(item(panel, IDC_HYPERLINK).IsWindowEnabled());
    circle(0)->setThickness(4);
    panel.Show(*drawing, {circles[0]});
    EXPECT_EQ(text(IDC_PANEL_TITLE), L"Circle");
    EXPECT_EQ(text(IDC_THICKNESS), L"4.0000");
    EXPECT_TRUE(item(panel, IDC_HYPERLINK).IsWindowEnabled());
    EXPECT_FALSE(item(panel, IDC_ROTATION).IsWindowEnabled());
    showBoth();
    EXPECT_EQ(text(IDC_PANEL_TITLE), L"2 Circles");
    EXPECT_EQ(text(IDC_THICKNESS), L"*VARIES*");
    EXPECT_TRUE(changes.empty()) << "showing is no change";
}

TEST_F(PropertiesPanel, WhatIsTypedIsWrittenWhenTheFieldIsLeft) {
    showBoth();
    type(IDC_THICKNESS, L"2.5");
    EXPECT_TRUE(changes.empty());
    EXPECT_DOUBLE_EQ(circle(0)->thickness(), 0);
    leave();
    EXPECT_EQ(changes, (Changes{IDS_CHANGE_THICKNESS}));
    EXPECT_DOUBLE_EQ(circle(0)->thickness(), 2.5);
    EXPECT_DOUBLE_EQ(circle(1)->thickness(), 2.5);
}

TEST_F(PropertiesPanel, EachFieldHasItsNameForUndo) {
    const struct {
        int id;
        const wchar_t* words;
        UINT name;
    } fields[] = {{IDC_LINETYPE_SCALE, L"2", IDS_CHANGE_LINETYPE_SCALE},
                  {IDC_HYPERLINK, L"site", IDS_CHANGE_HYPERLINK},
                  {IDC_ELEVATION, L"3", IDS_CHANGE_ELEVATION},
                  {IDC_THICKNESS, L"4", IDS_CHANGE_THICKNESS}};
    for (const auto& each : fields) {
        changes.clear();
        showBoth();
        type(each.id, each.words);
        leave();
        EXPECT_EQ(changes, (Changes{each.name})) << each.id;
    }
    changes.clear();
    take(IDC_TRUE_COLOR, L"Red");
    EXPECT_EQ(changes, (Changes{IDS_TIP_COLOR}));
    EXPECT_EQ(circle(1)->colorIndex(), 1);
    EXPECT_EQ(circle(1)->hyperlink(), L"site");
}

TEST_F(PropertiesPanel, EnterWritesAndEscapeGivesTheFormerValueBack) {
    showBoth();
    type(IDC_THICKNESS, L"6");
    panel.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(changes, (Changes{IDS_CHANGE_THICKNESS}));
    EXPECT_EQ(::GetFocus(), item(panel, IDC_THICKNESS).m_hWnd);
    showBoth();
    type(IDC_THICKNESS, L"7");
    panel.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(text(IDC_THICKNESS), L"6.0000");
    EXPECT_EQ(::GetFocus(), item(panel, IDC_THICKNESS).m_hWnd);
    panel.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
    EXPECT_EQ(changes.size(), 1u);
}

TEST_F(PropertiesPanel, ABadValueIsSaidAndNotWritten) {
    showBoth();
    for (const wchar_t* bad : {L"-1", L"abc", L"10001"}) {
        type(IDC_THICKNESS, bad);
        EXPECT_FALSE(text(IDC_MESSAGE).IsEmpty()) << CStringA(bad).GetString();
        panel.SendMessage(WM_COMMAND, IDOK);
        leave();
        EXPECT_EQ(text(IDC_THICKNESS), bad) << "it stays as it was typed";
        EXPECT_FALSE(text(IDC_MESSAGE).IsEmpty());
    }
    EXPECT_TRUE(changes.empty());
    EXPECT_DOUBLE_EQ(circle(0)->thickness(), 0);
    // Another field is written all the same, and the bad one isn't.
    type(IDC_LINETYPE_SCALE, L"3");
    leave();
    EXPECT_EQ(changes, (Changes{IDS_CHANGE_LINETYPE_SCALE}));
    EXPECT_DOUBLE_EQ(circle(0)->linetypeScale(), 3);
    EXPECT_DOUBLE_EQ(circle(0)->thickness(), 0);
}

TEST_F(PropertiesPanel, ABadValueStaysWhileAnotherFieldIsWritten) {
    showBoth();
    type(IDC_LINETYPE_SCALE, L"0");
    const CString problem = text(IDC_MESSAGE);
    EXPECT_FALSE(problem.IsEmpty());
    type(IDC_THICKNESS, L"2.5");
    leave();
    EXPECT_DOUBLE_EQ(circle(0)->thickness(), 2.5);
    EXPECT_EQ(text(IDC_LINETYPE_SCALE), L"0");
    EXPECT_EQ(text(IDC_MESSAGE), problem);
    EXPECT_EQ(changes, Changes{IDS_CHANGE_THICKNESS});
    // Mended, it is written; and Escape still has the former value.
    item(panel, IDC_LINETYPE_SCALE).SetFocus();
    panel.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(text(IDC_LINETYPE_SCALE), L"1.0000");
    EXPECT_EQ(text(IDC_MESSAGE), L"");
    type(IDC_LINETYPE_SCALE, L"3");
    leave();
    EXPECT_DOUBLE_EQ(circle(0)->linetypeScale(), 3);
    EXPECT_EQ(changes.size(), 2u);
}

TEST_F(PropertiesPanel, ABadValueGoesWithTheSelectionThatItWasTypedFor) {
    showBoth();
    type(IDC_LINETYPE_SCALE, L"0");
    panel.Show(*drawing, {circles[0]});
    EXPECT_EQ(text(IDC_LINETYPE_SCALE), L"1.0000");
    EXPECT_EQ(text(IDC_MESSAGE), L"");
}

TEST_F(PropertiesPanel, WithoutADrawingNothingIsShownAndNothingCanBeEntered) {
    constexpr int kAll[] = {IDC_TRUE_COLOR,     IDC_INDEX_COLOR, IDC_LINETYPE,  IDC_LINE_WEIGHT,
                            IDC_PLOT_STYLE,     IDC_LAYER,       IDC_HYPERLINK, IDC_ELEVATION,
                            IDC_LINETYPE_SCALE, IDC_THICKNESS,   IDC_ROTATION};
    showBoth();
    type(IDC_LINETYPE_SCALE, L"0");
    panel.ShowNothing();
    EXPECT_EQ(text(IDC_PANEL_TITLE), L"No drawing is open.");
    EXPECT_EQ(text(IDC_MESSAGE), L"");
    for (const int id : kAll) EXPECT_FALSE(item(panel, id).IsWindowEnabled()) << id;
    for (const int id : {IDC_HYPERLINK, IDC_ELEVATION, IDC_LINETYPE_SCALE, IDC_THICKNESS, IDC_ROTATION})
        EXPECT_EQ(text(id), L"") << id;
    for (const int id :
         {IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER})
        EXPECT_EQ(item(panel, id).SendMessage(CB_GETCURSEL), CB_ERR) << id;
    panel.TakeTyped();
    EXPECT_TRUE(changes.empty());
    showBoth();
    EXPECT_EQ(text(IDC_PANEL_TITLE), L"2 Circles");
    EXPECT_TRUE(item(panel, IDC_TRUE_COLOR).IsWindowEnabled());
    EXPECT_TRUE(item(panel, IDC_THICKNESS).IsWindowEnabled());
    EXPECT_FALSE(item(panel, IDC_ROTATION).IsWindowEnabled()) << "circles have none";
    EXPECT_EQ(text(IDC_THICKNESS), L"0.0000");
    EXPECT_EQ(entry(IDC_LAYER), L"0");
}

TEST_F(PropertiesPanel, WhatIsTheSameIsNoChange) {
    showBoth();
    type(IDC_THICKNESS, text(IDC_THICKNESS));
    leave();
    take(IDC_TRUE_COLOR, L"ByLayer");
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertiesPanel, VariesIsOfferedOnlyWhileTheObjectsDiffer) {
    OdCmColor red;
    red.setColorIndex(1);
    circle(0)->setColor(red);
    circle(0)->setLineWeight(OdDb::kLnWt050);
    showBoth();
    for (const int id : {IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINE_WEIGHT})
        EXPECT_EQ(entry(id), L"*VARIES*") << id;
    EXPECT_FALSE(offers(IDC_LINETYPE, L"*VARIES*"));
    take(IDC_TRUE_COLOR, L"*VARIES*");
    EXPECT_TRUE(changes.empty());
    panel.Show(*drawing, {circles[0]});
    for (const int id : {IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINE_WEIGHT})
        EXPECT_FALSE(offers(id, L"*VARIES*")) << id;
    EXPECT_EQ(entry(IDC_TRUE_COLOR).CompareNoCase(L"red"), 0);
    EXPECT_EQ(entry(IDC_LINE_WEIGHT), L"0.50 mm");
}

TEST_F(PropertiesPanel, PlotStylesFollowTheKindOfTheDrawing) {
    OdDbDatabasePtr other(new OdDbDatabase);
    for (const int mode : {1, 0, 1, 0}) {
        other->setPSTYLEMODE(mode);
        oddbHostApplicationServices()->setWorkingDatabase(other.get());
        panel.Show(*other, {});
        EXPECT_EQ(item(panel, IDC_PLOT_STYLE).IsWindowEnabled() != FALSE, mode == 0) << mode;
        EXPECT_EQ(offers(IDC_PLOT_STYLE, L"ByColor"), mode != 0) << mode;
        for (const wchar_t* name : {L"ByLayer", L"ByBlock"})
            EXPECT_EQ(offers(IDC_PLOT_STYLE, name), mode == 0) << mode;
    }
    panel.Show(*drawing, {});
    oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
}

}  // namespace
