// What the menu says of the step that Undo and Redo would take.
#include "../../../samples/drafter/undo_menu.h"

#include "../../../samples/drafter/resource.h"
#include "drafter_fixture.h"

namespace {

using namespace ui_test;

class UndoMenu : public DrafterTest {
protected:
    UndoMenu() {
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, ID_EDIT_UNDO, L"?");
        menu.AppendMenu(MF_STRING, ID_EDIT_REDO, L"?");
    }
    void change(const wchar_t* name) {
        drawing->setLUPREC((drawing->getLUPREC() + 1) % 8);
        history.Commit(name);
    }
    /// Text of an item, in brackets if it is greyed.
    CString shown(UINT id) {
        CCmdUI item;
        item.m_pMenu = &menu;
        item.m_nID = id;
        item.m_nIndex = id == ID_EDIT_REDO ? 1 : 0;
        item.m_nIndexMax = 2;
        if (id == ID_EDIT_REDO)
            ShowRedoStep(item, history);
        else
            ShowUndoStep(item, history);
        CString text;
        menu.GetMenuString(id, text, MF_BYCOMMAND);
        return menu.GetMenuState(id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED) ? L"[" + text + L"]" : text;
    }

    CMenu menu;
    CUndoHistory history{drawing};
};

TEST_F(UndoMenu, WithoutStepsItIsPlainAndGreyed) {
    EXPECT_EQ(shown(ID_EDIT_UNDO), L"[&Undo\tCtrl+Z]");
    EXPECT_EQ(shown(ID_EDIT_REDO), L"[&Redo\tCtrl+Y]");
}

TEST_F(UndoMenu, TheNextStepsAreNamed) {
    change(L"Properties");
    change(L"Options");
    EXPECT_EQ(shown(ID_EDIT_UNDO), L"&Undo Options\tCtrl+Z");
    EXPECT_EQ(shown(ID_EDIT_REDO), L"[&Redo\tCtrl+Y]");
    history.Undo();
    EXPECT_EQ(shown(ID_EDIT_UNDO), L"&Undo Properties\tCtrl+Z");
    EXPECT_EQ(shown(ID_EDIT_REDO), L"&Redo Options\tCtrl+Y");
    history.Undo();
    EXPECT_EQ(shown(ID_EDIT_UNDO), L"[&Undo\tCtrl+Z]") << "the name doesn't stay behind";
}

TEST_F(UndoMenu, AnAmpersandInANameIsShown) {
    change(L"Walls & Doors");
    EXPECT_EQ(shown(ID_EDIT_UNDO), L"&Undo Walls && Doors\tCtrl+Z");
}

}  // namespace
