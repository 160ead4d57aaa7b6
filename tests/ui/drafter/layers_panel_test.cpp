// The panel of the layers palette: what it lists, what it changes, what it refuses, and how it follows the
// drawing.
#include "../../../samples/drafter/layers_panel.h"
#include "drafter_fixture.h"

namespace {

using namespace ui_test;

class Layers : public DrafterTest {
protected:
    Layers() : dialog([this] { ++changes; }) {
        for (const wchar_t* name : {L"walls", L"doors", L"outer walls"}) NeedLayer(*drawing, name);
        history = std::make_unique<CUndoHistory>(drawing);
        drawing->setModified(false);
        EXPECT_TRUE(dialog.Create(IDD_LAYERS_PANEL, &parent));
        dialog.Show(*drawing, *history);
        dialog.ShowWindow(SW_SHOW);
        pump();
    }
    ~Layers() override {
        if (dialog.m_hWnd != nullptr) dialog.DestroyWindow();
    }
    CListCtrl& list() { return static_cast<CListCtrl&>(item(dialog, IDC_LAYER_LIST)); }
    std::vector<CString> names() {
        std::vector<CString> all;
        for (int row = 0; row < list().GetItemCount(); ++row) all.push_back(list().GetItemText(row, 0));
        return all;
    }
    int rowOf(const wchar_t* name) {
        for (int row = 0; row < list().GetItemCount(); ++row)
            if (list().GetItemText(row, 0) == name) return row;
        return -1;
    }
    CString cell(const wchar_t* name, int column) { return list().GetItemText(rowOf(name), column); }
    void select(const std::vector<const wchar_t*>& wanted) {
        for (int row = 0; row < list().GetItemCount(); ++row) list().SetItemState(row, 0, LVIS_SELECTED);
        for (const wchar_t* name : wanted) {
            ASSERT_GE(rowOf(name), 0);
            list().SetItemState(rowOf(name), LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        }
        pump();
    }
    bool isSelected(const wchar_t* name) { return list().GetItemState(rowOf(name), LVIS_SELECTED) != 0; }
    void search(const wchar_t* text) {
        CWnd& box = item(dialog, IDC_LAYER_SEARCH);
        box.SetFocus();
        pump();
        CWnd* editor = CWnd::GetFocus();
        ASSERT_NE(editor, nullptr);
        editor->SetWindowText(text);
        pump();
    }
    void press(int button) {
        item(dialog, button).SendMessage(BM_CLICK);
        pump();
    }
    /// Ends the rename that has begun with this text.
    void enterName(const wchar_t* text) {
        ASSERT_TRUE(pump_until([&] { return list().GetEditControl() != nullptr; }));
        CWnd* edit = list().GetEditControl();
        edit->SetWindowText(text);
        edit->SendMessage(WM_KEYDOWN, VK_RETURN, 1);
        pump();
    }
    CString message() { return text_of(item(dialog, IDC_MESSAGE).m_hWnd); }
    OdDbLayerTableRecordPtr layer(const wchar_t* name) {
        OdDbLayerTablePtr table;
        drawing->getLayerTable(table);
        return table->getAt(name).open<OdDbLayerTableRecord>();
    }
    void take(int id, const wchar_t* text) {
        CWnd& combo = item(dialog, id);
        drop(combo);
        const LRESULT index =
            combo.SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
        ASSERT_GE(index, 0);
        combo.SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, CBN_SELENDOK), reinterpret_cast<LPARAM>(combo.m_hWnd));
        combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
        pump();
    }
    void listKey(WORD virtualKey) {
        list().SetFocus();
        key(list(), virtualKey);
    }
    /// Clicks into a cell of the list.
    void clickCell(const wchar_t* name, int column) {
        CRect cellRect;
        list().GetSubItemRect(rowOf(name), column, LVIR_BOUNDS, cellRect);
        const LPARAM at = MAKELPARAM(cellRect.left + 8, cellRect.CenterPoint().y);
        list().PostMessage(WM_LBUTTONUP, 0, at);
        list().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        pump();
    }

    WithOwnSettings<CLayersPanel> dialog;
    std::unique_ptr<CUndoHistory> history;
    int changes = 0;
};

using Names = std::vector<CString>;

TEST_F(Layers, EveryLayerIsListedWithItsValuesAndTheCurrentOneIsSaid) {
    EXPECT_EQ(names(), (Names{L"0", L"doors", L"outer walls", L"walls"}));
    EXPECT_EQ(cell(L"walls", 1), L"On");
    EXPECT_EQ(cell(L"walls", 2).CompareNoCase(L"white"), 0) << CStringA(cell(L"walls", 2)).GetString();
    EXPECT_EQ(cell(L"walls", 3), L"Continuous");
    EXPECT_EQ(cell(L"walls", 4), L"Default");
    EXPECT_EQ(text_of(item(dialog, IDC_CURRENT_LAYER).m_hWnd), L"Current layer: 0");
    EXPECT_TRUE(isSelected(L"0"));
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(history->CanUndo());
}

TEST_F(Layers, TheSearchBoxNarrowsTheListWhileItIsTypedIn) {
    select({L"walls"});
    search(L"WAL");
    EXPECT_EQ(names(), (Names{L"outer walls", L"walls"}));
    EXPECT_TRUE(isSelected(L"walls")) << "the selection stays";
    EXPECT_FALSE(isSelected(L"outer walls"));
    search(L"wals");
    EXPECT_TRUE(names().empty());
    EXPECT_FALSE(item(dialog, IDC_DELETE_LAYER).IsWindowEnabled());
    EXPECT_FALSE(item(dialog, IDC_TRUE_COLOR).IsWindowEnabled());
    search(L"");
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(Layers, ANewLayerIsMadeAndItsNameEditedAtOnce) {
    press(IDC_NEW_LAYER);
    EXPECT_TRUE(layer(L"Layer1"));
    EXPECT_EQ(history->UndoName(), L"New Layer");
    enterName(L"roof");
    EXPECT_TRUE(layer(L"roof"));
    EXPECT_FALSE(layer(L"Layer1"));
    EXPECT_TRUE(isSelected(L"roof"));
    EXPECT_EQ(history->UndoName(), L"Rename Layer");
    EXPECT_EQ(changes, 2);
}

TEST_F(Layers, ANewLayerShowsAlsoWhileTheListIsNarrowed) {
    search(L"walls");
    press(IDC_NEW_LAYER);
    EXPECT_GE(rowOf(L"Layer1"), 0);
    enterName(L"roof");
    EXPECT_EQ(names().size(), 5u);
}

TEST_F(Layers, BadAndTakenNamesAreRefusedWithTheReason) {
    select({L"walls"});
    listKey(VK_F2);
    enterName(L"a|b");
    EXPECT_NE(message().Find(L"1 to 255 characters"), -1);
    EXPECT_TRUE(layer(L"walls"));
    listKey(VK_F2);
    enterName(L"DOORS");
    EXPECT_EQ(message(), L"There is a layer DOORS already.");
    EXPECT_TRUE(layer(L"walls"));
    EXPECT_EQ(names().size(), 4u);
    listKey(VK_F2);
    enterName(L"  facade ");
    EXPECT_EQ(message(), L"");
    EXPECT_TRUE(layer(L"facade"));
    EXPECT_EQ(changes, 1);
}

TEST_F(Layers, TheLayerZeroKeepsItsName) {
    select({L"0"});
    listKey(VK_F2);
    EXPECT_EQ(list().GetEditControl(), nullptr);
    EXPECT_EQ(message(), L"The layer 0 keeps its name.");
}

TEST_F(Layers, AnEditThatIsGivenUpChangesNothing) {
    select({L"walls"});
    listKey(VK_F2);
    ASSERT_NE(list().GetEditControl(), nullptr);
    CWnd* edit = list().GetEditControl();
    edit->SetWindowText(L"other");
    edit->SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    pump();
    EXPECT_TRUE(layer(L"walls"));
    EXPECT_EQ(changes, 0);
}

TEST_F(Layers, AClickOrTheSpaceKeySwitchesOnAndOff) {
    clickCell(L"walls", 1);
    EXPECT_TRUE(layer(L"walls")->isOff());
    EXPECT_EQ(cell(L"walls", 1), L"Off");
    EXPECT_EQ(history->UndoName(), L"Layer Properties");
    clickCell(L"walls", 1);
    EXPECT_FALSE(layer(L"walls")->isOff());
    clickCell(L"walls", 0);
    EXPECT_FALSE(layer(L"walls")->isOff()) << "only the cell that says so";
    select({L"doors", L"walls"});
    listKey(VK_SPACE);
    EXPECT_TRUE(layer(L"walls")->isOff());
    EXPECT_TRUE(layer(L"doors")->isOff());
    EXPECT_EQ(changes, 3);
}

TEST_F(Layers, ThePickersShowAndSetWhatIsSelected) {
    select({L"walls"});
    take(IDC_TRUE_COLOR, L"Red");
    EXPECT_EQ(layer(L"walls")->colorIndex(), 1);
    EXPECT_EQ(cell(L"walls", 2).CompareNoCase(L"Red"), 0);
    take(IDC_LINE_WEIGHT, L"0.50 mm");
    EXPECT_EQ(layer(L"walls")->lineWeight(), OdDb::kLnWt050);
    EXPECT_EQ(cell(L"walls", 4), L"0.50 mm");
    EXPECT_EQ(changes, 2);
    take(IDC_LINE_WEIGHT, L"0.50 mm");
    EXPECT_EQ(changes, 2) << "the same again is no change";
    select({L"doors", L"walls"});
    CString shown;
    static_cast<CComboBox&>(item(dialog, IDC_LINE_WEIGHT))
        .GetLBText(selected(item(dialog, IDC_LINE_WEIGHT)), shown);
    EXPECT_EQ(shown, L"*VARIES*");
    take(IDC_TRUE_COLOR, L"Blue");
    EXPECT_EQ(layer(L"doors")->colorIndex(), 5);
    EXPECT_EQ(layer(L"walls")->colorIndex(), 5);
    EXPECT_EQ(layer(L"walls")->lineWeight(), OdDb::kLnWt050) << "what varies stays";
}

TEST_F(Layers, ALayerIsOfferedNeitherByLayerNorByBlock) {
    for (const int id : {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT}) {
        CWnd& combo = item(dialog, id);
        drop(combo);
        for (const wchar_t* name : {L"ByLayer", L"ByBlock"})
            EXPECT_EQ(combo.SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                        reinterpret_cast<LPARAM>(name)),
                      CB_ERR)
                << id;
        EXPECT_GT(combo.SendMessage(CB_GETCOUNT), 0);
        combo.SendMessage(CB_SHOWDROPDOWN, FALSE);
        pump();
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(Layers, TheLinetypesAreThoseOfTheDrawing) {
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table);
    const auto record = table->newRecord();
    record->setName(L"DASHED");
    table->add(record);
    history->Commit(L"Linetypes");
    dialog.Show(*drawing, *history);
    select({L"walls"});
    take(IDC_LINETYPE, L"DASHED");
    EXPECT_EQ(cell(L"walls", 3), L"DASHED");
    EXPECT_EQ(layer(L"walls")->linetypeObjectId(), table->getAt(L"DASHED"));
}

TEST_F(Layers, WhatNobodyNeedsIsDeletedAndElseTheReasonIsSaid) {
    select({L"doors"});
    listKey(VK_DELETE);
    EXPECT_EQ(names(), (Names{L"0", L"outer walls", L"walls"}));
    EXPECT_EQ(history->UndoName(), L"Delete Layer");
    OdDbEntityPtr line(new OdDbLine);
    drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(line);
    line->setLayer(layer(L"walls")->objectId());
    history->Commit(L"Line");
    select({L"walls"});
    press(IDC_DELETE_LAYER);
    EXPECT_EQ(message(), L"The layer walls is used by an object of the drawing.");
    EXPECT_TRUE(isSelected(L"walls"));
    EXPECT_EQ(history->UndoName(), L"Line") << "a refusal is no step";
    select({L"0"});
    press(IDC_DELETE_LAYER);
    EXPECT_EQ(message(), L"The layer 0 is in every drawing.");
}

TEST_F(Layers, EnterMakesALayerCurrent) {
    select({L"walls"});
    dialog.SendMessage(WM_COMMAND, IDOK);
    pump();
    EXPECT_EQ(drawing->clayer(), layer(L"walls")->objectId());
    EXPECT_EQ(text_of(item(dialog, IDC_CURRENT_LAYER).m_hWnd), L"Current layer: walls");
    EXPECT_EQ(history->UndoName(), L"Current Layer");
    press(IDC_DELETE_LAYER);
    EXPECT_NE(message().Find(L"is the current one"), -1);
    select({L"walls", L"doors"});
    EXPECT_FALSE(item(dialog, IDOK).IsWindowEnabled()) << "only one can be current";
}

TEST_F(Layers, ItFollowsUndoAndAnotherDrawing) {
    select({L"walls"});
    listKey(VK_F2);
    enterName(L"facade");
    history->Undo();
    dialog.Show(*drawing, *history);
    EXPECT_GE(rowOf(L"walls"), 0);
    EXPECT_TRUE(isSelected(L"walls")) << "the same layer under its former name";
    OdDbDatabasePtr other(new OdDbDatabase);
    NeedLayer(*other, L"site");
    CUndoHistory otherHistory(other);
    oddbHostApplicationServices()->setWorkingDatabase(other.get());
    dialog.Show(*other, otherHistory);
    EXPECT_EQ(names(), (Names{L"0", L"site"}));
    select({L"site"});
    listKey(VK_SPACE);
    EXPECT_TRUE(otherHistory.CanUndo());
    EXPECT_FALSE(history->CanUndo());
    dialog.DestroyWindow();
    oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
}

TEST_F(Layers, ANameThatIsBeingTypedGoesWithItsDrawing) {
    select({L"walls"});
    listKey(VK_F2);
    ASSERT_NE(list().GetEditControl(), nullptr);
    list().GetEditControl()->SetWindowText(L"lost");
    OdDbDatabasePtr other(new OdDbDatabase);
    CUndoHistory otherHistory(other);
    dialog.Show(*other, otherHistory);
    pump();
    EXPECT_EQ(list().GetEditControl(), nullptr);
    EXPECT_EQ(names(), (Names{L"0"}));
    EXPECT_TRUE(layer(L"walls"));
    EXPECT_FALSE(otherHistory.CanUndo());
    dialog.DestroyWindow();
}

TEST_F(Layers, ItRemembersItsColumns) {
    list().SetColumnWidth(0, 199);
    dialog.DestroyWindow();
    ASSERT_TRUE(dialog.Create(IDD_LAYERS_PANEL, &parent));
    dialog.Show(*drawing, *history);
    EXPECT_EQ(list().GetColumnWidth(0), 199);
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(Layers, EscapeGoesToTheMainWindowAndTheListStays) {
    list().SetFocus();
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(Layers, WithoutADrawingTheListIsEmptyAndNothingCanBeDone) {
    press(IDC_RENAME_LAYER);
    dialog.ShowNothing();
    EXPECT_EQ(list().GetItemCount(), 0);
    EXPECT_EQ(list().GetEditControl(), nullptr);
    EXPECT_EQ(text_of(item(dialog, IDC_MESSAGE).m_hWnd), L"No drawing is open.");
    EXPECT_EQ(text_of(item(dialog, IDC_CURRENT_LAYER).m_hWnd), L"");
    for (const int id : {IDC_LAYER_LIST, IDC_LAYER_SEARCH, IDC_NEW_LAYER, IDC_RENAME_LAYER, IDC_DELETE_LAYER,
                         static_cast<int>(IDOK), IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT})
        EXPECT_FALSE(item(dialog, id).IsWindowEnabled()) << id;
    for (const UINT command : {IDC_NEW_LAYER, IDC_RENAME_LAYER, IDC_DELETE_LAYER, IDOK})
        dialog.SendMessage(WM_COMMAND, command);
    EXPECT_EQ(changes, 0);
    dialog.Show(*drawing, *history);
    EXPECT_EQ(names().size(), 4u);
    EXPECT_EQ(text_of(item(dialog, IDC_MESSAGE).m_hWnd), L"");
    for (const int id : {IDC_LAYER_LIST, IDC_LAYER_SEARCH, IDC_NEW_LAYER, IDC_TRUE_COLOR})
        EXPECT_TRUE(item(dialog, id).IsWindowEnabled()) << id;
}

}  // namespace
