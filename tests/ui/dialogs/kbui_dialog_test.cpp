// The dialog that resizes by percentages and remembers where it stood.
#include <type_traits>

#include <ktui/dialogs/elastic.h>

#include "dialog_fixture.h"

namespace {

/// A button that moves another control by 5 pixels to the right whenever it is moved itself.
class PushingButton : public CButton {
public:
    CWnd* other = nullptr;
    int pushes = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = CButton::WindowProc(message, wParam, lParam);
        if (message == WM_MOVE && other != nullptr) {
            CRect rect;
            other->GetWindowRect(&rect);
            other->GetParent()->ScreenToClient(&rect);
            ::SetWindowPos(other->m_hWnd, nullptr, rect.left + 5, rect.top, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            ++pushes;
        }
        return result;
    }
};

using ui_test::later;

class ElasticDialog : public DialogTest {
protected:
    ElasticDialog() : dialog(IDD_ELASTIC, &parent) {
        dialog.SetDialogName(L"elastic");
        dialog.Create(IDD_ELASTIC, &parent);
    }
    OpenDialog dialog;
};

using PlacedDialog = DialogTest;

TEST_F(ElasticDialog, GrowingByThreeAtAThirdMovesNothingAndOnePixelTheSecondTime) {
    const CRect before = dialog.rectOf(IDC_FIRST);
    EXPECT_EQ(dialog.MoveControlX(IDC_FIRST, 33), 1);
    dialog.grow(3, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before);
    dialog.grow(3, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before + CPoint(1, 0));
}

TEST_F(ElasticDialog, RegisteringASecondPercentageAnswersOneAndChangesNothing) {
    const CRect before = dialog.rectOf(IDC_FIRST);
    EXPECT_EQ(dialog.MoveControlX(IDC_FIRST, 100), 1);
    EXPECT_EQ(dialog.MoveControlX(IDC_FIRST, 0), 1);
    dialog.grow(10, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST).left, before.left + 10);
}

TEST_F(ElasticDialog, RegisteringAMissingControlAnswersZero) {
    EXPECT_EQ(dialog.MoveControlX(4711, 100), 0);
    EXPECT_EQ(dialog.StretchControlXY(4711, 100, 100), 0);
}

TEST_F(ElasticDialog, RegisteringBeforeTheWindowExistsAnswersZero) {
    OpenDialog unborn;
    EXPECT_EQ(unborn.MoveControlX(IDC_FIRST, 100), 0);
}

TEST_F(ElasticDialog, TwoTagsOnOneControlAddUp) {
    const CRect before = dialog.rectOf(IDC_SECOND);
    dialog.MoveControlX(IDC_SECOND, 50);
    dialog.StretchControlX(IDC_SECOND, 50);
    dialog.StretchControlY(IDC_SECOND, 100);
    dialog.grow(20, 8);
    EXPECT_EQ(dialog.rectOf(IDC_SECOND),
              CRect(before.left + 10, before.top, before.right + 20, before.bottom + 8));
}

TEST_F(ElasticDialog, EachTagStartsFromWhereItsControlStandsAtThatMoment) {
    const CRect second = dialog.rectOf(IDC_SECOND);
    PushingButton first;
    first.SubclassDlgItem(IDC_FIRST, &dialog);
    first.other = dialog.GetDlgItem(IDC_SECOND);
    dialog.MoveControlX(IDC_SECOND, 100);
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.StretchControlX(IDC_SECOND, 100);
    dialog.grow(10, 0);
    EXPECT_EQ(first.pushes, 1);
    EXPECT_EQ(dialog.rectOf(IDC_SECOND),
              CRect(second.left + 15, second.top, second.right + 25, second.bottom));
}

TEST_F(ElasticDialog, ANullEntryIsSkipped) {
    const CRect first = dialog.rectOf(IDC_FIRST), second = dialog.rectOf(IDC_SECOND);
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.m_elastic->m_tags.Add(nullptr);
    EXPECT_EQ(dialog.MoveControlX(IDC_SECOND, 100), 1);
    EXPECT_EQ(dialog.MoveControlX(IDC_SECOND, 50), 1);
    dialog.grow(10, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first + CPoint(10, 0));
    EXPECT_EQ(dialog.rectOf(IDC_SECOND), second + CPoint(10, 0));
}

TEST_F(ElasticDialog, AControlThatIsMadeAnewIsFound) {
    const CRect first = dialog.rectOf(IDC_FIRST);
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.grow(2, 0);
    dialog.GetDlgItem(IDC_FIRST)->DestroyWindow();
    CButton again;
    again.Create(L"First", WS_CHILD | WS_VISIBLE, first, &dialog, IDC_FIRST);
    dialog.grow(3, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first + CPoint(3, 0));
    // A control that takes another id is no longer the one.
    again.SetDlgCtrlID(4712);
    dialog.grow(3, 0);
    CRect rect;
    again.GetWindowRect(&rect);
    dialog.ScreenToClient(&rect);
    EXPECT_EQ(rect, first + CPoint(3, 0));
}

TEST_F(ElasticDialog, NothingNeedsTheResizeState) {
    dialog.MoveControlX(IDC_FIRST, 100);
    const CRect first = dialog.rectOf(IDC_FIRST);
    KbUiElastic* held = dialog.m_elastic;
    dialog.m_elastic = nullptr;
    dialog.SetDialogMinExtents(1, 1);
    dialog.SetDialogMaxExtents(2, 2);
    dialog.LockDialogWidth();
    dialog.LockDialogHeight();
    MINMAXINFO info = {};
    dialog.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, 0);
    _dlgControlTag tag = {IDC_SECOND, kKbUiMoveX, 100};
    EXPECT_EQ(dialog.SetControlProperty(&tag, 1), 1);
    EXPECT_EQ(dialog.StretchControlXY(IDC_LIST, 100, 100), 0);
    dialog.grow(10, 10);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first);
    dialog.m_elastic = held;
}

TEST_F(PlacedDialog, ADialogWithoutResizeStateOpensAndTakesItsStoredPosition) {
    store(L"bare", CRect(50, 60, 650, 560));
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"bare");
    KbUiElastic* held = dialog.m_elastic;
    dialog.m_elastic = nullptr;
    ASSERT_TRUE(dialog.Create(IDD_ELASTIC, &parent));
    EXPECT_EQ(dialog.windowRect().TopLeft(), CPoint(50, 60));
    EXPECT_NE(dialog.windowRect().Width(), 600);
    dialog.DestroyWindow();
    dialog.m_elastic = held;
}

TEST_F(ElasticDialog, XAndYInOneTagMoveAndStretch) {
    const CRect first = dialog.rectOf(IDC_FIRST), list = dialog.rectOf(IDC_LIST);
    dialog.MoveControlXY(IDC_FIRST, 100, 50);
    dialog.StretchControlXY(IDC_LIST, 100, 100);
    dialog.grow(12, 6);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first + CPoint(12, 3));
    EXPECT_EQ(dialog.rectOf(IDC_LIST), CRect(list.left, list.top, list.right + 12, list.bottom + 6));
}

TEST_F(ElasticDialog, ABatchRecordOfTwoAxesIsSkippedAndTheResultIsStillOne) {
    const CRect first = dialog.rectOf(IDC_FIRST), second = dialog.rectOf(IDC_SECOND),
                third = dialog.rectOf(IDC_THIRD);
    _dlgControlTag tags[] = {{IDC_FIRST, 3, 100}, {IDC_SECOND, 1, 100}, {IDC_THIRD, 48, 100}, {4711, 1, 100}};
    EXPECT_EQ(dialog.SetControlProperty(tags, 4), 1);
    dialog.grow(10, 10);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), first);
    EXPECT_EQ(dialog.rectOf(IDC_SECOND), second + CPoint(10, 0));
    EXPECT_EQ(dialog.rectOf(IDC_THIRD), third);
    EXPECT_EQ(dialog.SetControlProperty(nullptr, 0), 1);
}

TEST_F(ElasticDialog, ADestroyedControlIsSkippedAndItsRemainderGoesOn) {
    dialog.MoveControlX(IDC_FIRST, 50);
    dialog.MoveControlX(IDC_SECOND, 100);
    const CRect second = dialog.rectOf(IDC_SECOND);
    const CRect gone = dialog.rectOf(IDC_FIRST);
    dialog.GetDlgItem(IDC_FIRST)->DestroyWindow();
    dialog.grow(1, 0);
    EXPECT_EQ(dialog.rectOf(IDC_SECOND), second + CPoint(1, 0));
    // A control of the same id takes the half pixel over that was left.
    CButton again;
    again.Create(L"First", WS_CHILD | WS_VISIBLE, gone, &dialog, IDC_FIRST);
    dialog.grow(1, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), gone + CPoint(1, 0));
}

TEST_F(ElasticDialog, MinimisingMovesByTheWholeSizeAndTheNextSizeMovesNothing) {
    CRect client;
    dialog.GetClientRect(&client);
    const CRect before = dialog.rectOf(IDC_FIRST);
    dialog.MoveControlX(IDC_FIRST, 100);
    dialog.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST).left, before.left - client.Width());
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    EXPECT_EQ(dialog.rectOf(IDC_FIRST).left, before.left - client.Width());
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width() + 4, client.Height()));
    EXPECT_EQ(dialog.rectOf(IDC_FIRST).left, before.left - client.Width() + 4);
}

TEST_F(ElasticDialog, TheTemplateSizeIsTheSmallest) {
    MINMAXINFO info = {};
    dialog.GetElasticMinMaxInfo(info);
    EXPECT_EQ(info.ptMinTrackSize.x, dialog.windowRect().Width());
    EXPECT_EQ(info.ptMinTrackSize.y, dialog.windowRect().Height());
    CRect desktop;
    ::GetWindowRect(::GetDesktopWindow(), &desktop);
    EXPECT_EQ(info.ptMaxTrackSize.x, desktop.Width());
    EXPECT_EQ(info.ptMaxTrackSize.y, desktop.Height());
}

TEST_F(ElasticDialog, ANegativeLimitLeavesThePlatformsValue) {
    dialog.SetDialogMinExtents(-1, 77);
    dialog.SetDialogMaxExtents(99, -1);
    MINMAXINFO info = {};
    info.ptMinTrackSize = {1, 2};
    info.ptMaxTrackSize = {3, 4};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 1);
    EXPECT_EQ(info.ptMinTrackSize.y, 77);
    EXPECT_EQ(info.ptMaxTrackSize.x, 99);
    EXPECT_EQ(info.ptMaxTrackSize.y, 4);
}

TEST_F(ElasticDialog, LockingTheHeightLeavesADialogThatGrowsWiderOnly) {
    dialog.LockDialogHeight();
    const int height = dialog.windowRect().Height();
    const CRect before = dialog.rectOf(IDC_FIRST);
    dialog.MoveControlY(IDC_FIRST, 100);
    dialog.ShowWindow(SW_SHOW);
    dialog.grow(30, 40);
    EXPECT_EQ(dialog.windowRect().Height(), height);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before);
}

TEST_F(ElasticDialog, TheCurrentDeltaIsAlwaysZero) {
    dialog.grow(10, 10);
    ASSERT_NE(dialog.GetCurrentDelta(), nullptr);
    EXPECT_EQ(*dialog.GetCurrentDelta(), CSize(0, 0));
    KbUiElastic* held = dialog.m_elastic;
    dialog.m_elastic = nullptr;
    EXPECT_EQ(dialog.GetCurrentDelta(), nullptr);
    EXPECT_EQ(dialog.MoveControlX(IDC_FIRST, 100), 0);
    dialog.m_elastic = held;
    EXPECT_EQ(dialog.GetElasticPointer(), held);
}

TEST_F(ElasticDialog, FixedAnswersStayAsTheyAre) {
    CWnd* button = dialog.GetDlgItem(IDC_FIRST);
    EXPECT_EQ(dialog.AddControl(button), 0);
    EXPECT_EQ(dialog.AutoLoadControl(button), 0);
    EXPECT_EQ(dialog.ReloadControl(button, L"x"), 0);
    EXPECT_EQ(dialog.RemoveControl(button), 0);
    static_cast<CKbUiDialog&>(dialog).OnInitDialogFinish();  // clients may call it
    EXPECT_EQ(dialog.ForceControlRepaint(button, 1), 1);
    EXPECT_EQ(dialog.ForceControlRepaint(button, 2), 0);
    EXPECT_EQ(dialog.ForceControlRepaint(nullptr, 1), 0);
    RECT rect = {1, 2, 31, 22};
    EXPECT_EQ(dialog.ForceControlResize(nullptr, &rect), 0);
    EXPECT_EQ(dialog.ForceControlResize(button, &rect), 1);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), CRect(rect));
}

TEST_F(PlacedDialog, ADialogWithAModalFrameMovesNoControl) {
    OpenDialog dialog(IDD_FIXED, &parent);
    dialog.Create(IDD_FIXED, &parent);
    const CRect before = dialog.rectOf(IDC_FIRST);
    EXPECT_EQ(dialog.MoveControlX(IDC_FIRST, 100), 1);
    dialog.grow(10, 0);
    EXPECT_EQ(dialog.rectOf(IDC_FIRST), before);
}

TEST_F(PlacedDialog, OkStoresThePlacementAndTheNextShowingTakesIt) {
    CRect placed;
    {
        OpenDialog dialog(IDD_ELASTIC, &parent);
        dialog.SetDialogName(L"kept");
        later([&] {
            dialog.SetWindowPos(nullptr, 130, 90, dialog.windowRect().Width() + 40,
                                dialog.windowRect().Height() + 30, SWP_NOZORDER);
            placed = dialog.windowRect();
            dialog.SendMessage(WM_COMMAND, IDOK);
        });
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }
    EXPECT_EQ(stored(L"kept", L"X"), 130);
    EXPECT_EQ(stored(L"kept", L"Y"), 90);
    EXPECT_EQ(stored(L"kept", L"Width"), placed.Width());
    EXPECT_EQ(stored(L"kept", L"Height"), placed.Height());
    OpenDialog again(IDD_ELASTIC, &parent);
    again.SetDialogName(L"kept");
    CRect shown, first;
    again.onInit = [&](OpenDialog& d) { d.StretchControlX(IDC_THIRD, 100); };
    later([&] {
        shown = again.windowRect();
        first = again.rectOf(IDC_THIRD);
        again.SendMessage(WM_COMMAND, IDCANCEL);
    });
    EXPECT_EQ(again.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, placed);
    OpenDialog plain(IDD_ELASTIC, &parent);
    plain.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(first.Width(), plain.rectOf(IDC_THIRD).Width() + 40) << "the restored size moves the controls";
}

TEST_F(PlacedDialog, CancellingStoresNothing) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"cancelled");
    later([&] {
        dialog.SetWindowPos(nullptr, 111, 99, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        dialog.SendMessage(WM_COMMAND, IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(stored(L"cancelled", L"X"), -1);
}

TEST_F(PlacedDialog, AStoredPlaceOffTheDesktopIsNotTaken) {
    CRect template_size;
    {
        OpenDialog plain(IDD_ELASTIC, &parent);
        plain.Create(IDD_ELASTIC, &parent);
        template_size = plain.windowRect();
    }
    store(L"away", CRect(-5000, -5000, -4000, -4500));
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"away");
    CRect shown;
    later([&] {
        shown = dialog.windowRect();
        dialog.SendMessage(WM_COMMAND, IDCANCEL);
    });
    dialog.DoModal();
    EXPECT_EQ(shown.Size(), template_size.Size());
    CRect owner;
    parent.GetWindowRect(&owner);
    EXPECT_NEAR(shown.CenterPoint().x, owner.CenterPoint().x, 1) << "a modal dialog is centred";
    EXPECT_NEAR(shown.CenterPoint().y, owner.CenterPoint().y, 1);
}

TEST_F(PlacedDialog, AStoredPlaceThatTouchesTheDesktopByAPixelIsTakenUnchanged) {
    const CRect edge(-499, 10, 1, 310);
    store(L"edge", edge);
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"edge");
    dialog.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(dialog.windowRect(), edge);
}

TEST_F(PlacedDialog, ANegativePlaceSurvives) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"negative");
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.SetWindowPos(nullptr, -40, -20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(dialog.StorePixelData(), 1);
    CRect read;
    EXPECT_EQ(dialog.GetPixelData(read), 1);
    EXPECT_EQ(read, dialog.windowRect());
    EXPECT_EQ(read.left, -40);
}

TEST_F(PlacedDialog, AMissingValueGivesTheWindowsOwnPlaceAndZero) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"partial");
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.SetDialogData(L"X", 5UL);
    CRect read;
    EXPECT_EQ(dialog.GetPixelData(read), 0);
    EXPECT_EQ(read, dialog.windowRect());
}

TEST_F(PlacedDialog, ASubclassThatMovedItselfIgnoresTheStoredPlace) {
    store(L"moved", CRect(300, 200, 900, 700));
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"moved");
    dialog.onInit = [](OpenDialog& d) { d.SetWindowPos(nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER); };
    dialog.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(dialog.windowRect().TopLeft(), CPoint(20, 30));
}

TEST_F(PlacedDialog, AModalFrameTakesTheStoredPositionAndNotTheSize) {
    store(L"fixed", CRect(210, 140, 910, 740));
    OpenDialog dialog(IDD_FIXED, &parent);
    dialog.SetDialogName(L"fixed");
    dialog.Create(IDD_FIXED, &parent);
    EXPECT_EQ(dialog.windowRect().TopLeft(), CPoint(210, 140));
    EXPECT_LT(dialog.windowRect().Width(), 700);
}

TEST_F(PlacedDialog, ModalAndModelessShowingsHaveTwoNames) {
    OpenDialog modeless(IDD_ELASTIC, &parent), modal(IDD_ELASTIC, &parent), named(IDD_ELASTIC, &parent);
    CString name;
    modeless.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(modeless.GetDialogName(name), 1);
    EXPECT_EQ(name.Right(5), L"-C8-0");
    later([&] {
        modal.GetDialogName(name);
        modal.SendMessage(WM_COMMAND, IDCANCEL);
    });
    modal.DoModal();
    EXPECT_EQ(name.Right(5), L"-C8-1");
    CString later_name;
    modal.GetDialogName(later_name);
    EXPECT_EQ(later_name, name) << "the name is fixed at its first use";
    EXPECT_EQ(name, CString(name).MakeUpper()) << "the module's name is in capitals";
    named.SetDialogName(L"  own  ");
    named.GetDialogName(name);
    EXPECT_EQ(name, L"own");
    CString tag;
    named.GetDialogHelpTag(tag);
    EXPECT_EQ(tag, L"  own  ");
    named.SetDialogName(L"other");
    named.GetDialogName(name);
    EXPECT_EQ(name, L"own");
}

TEST_F(PlacedDialog, TheKeyIsTheRootAndTheNameWithABackslash) {
    OpenDialog dialog;
    dialog.SetDialogName(L"keyed");
    CString key;
    EXPECT_EQ(dialog.GetDialogKey(key), 1);
    EXPECT_EQ(key, CString(kTestRoot) + L"keyed\\");
}

TEST_F(PlacedDialog, DataIsReadBackAsItWasStored) {
    OpenDialog dialog;
    dialog.SetDialogName(L"data");
    unsigned long number = 7;
    CString text = L"old";
    EXPECT_EQ(dialog.GetDialogData(L"Number", number), 0);
    EXPECT_EQ(number, 0UL);
    EXPECT_EQ(dialog.GetDialogData(L"Text", text), 0);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(dialog.SetDialogData(L"Number", 0xFFFFFFFFUL), 1);
    EXPECT_EQ(dialog.SetDialogData(L"Text", L"\x56FE\x5C42"), 1);
    EXPECT_EQ(dialog.GetDialogData(L"Number", number), 1);
    EXPECT_EQ(number, 0xFFFFFFFFUL);
    EXPECT_EQ(dialog.GetDialogData(L"Text", text), 1);
    EXPECT_EQ(text, L"\x56FE\x5C42");
}

TEST_F(PlacedDialog, ColumnWidthsComeBackUnderTheDoubledBackslash) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"columns");
    dialog.Create(IDD_ELASTIC, &parent);
    CListCtrl list;
    list.SubclassDlgItem(IDC_LIST, &dialog);
    list.InsertColumn(0, L"a", LVCFMT_LEFT, 61);
    list.InsertColumn(1, L"b", LVCFMT_LEFT, 47);
    EXPECT_EQ(dialog.SaveColumnSizes(&list), 1);
    const CString key = CString(L"columns\\") + L"\\ListView-1004";
    EXPECT_EQ(stored(key, L"Column1"), 61);
    EXPECT_EQ(stored(key, L"Column2"), 47);
    list.SetColumnWidth(0, 20);
    list.SetColumnWidth(1, 20);
    const DWORD zero = 0;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + key, L"Column2", REG_DWORD, &zero,
                      sizeof(zero));
    EXPECT_EQ(dialog.GetColumnSizes(&list), 1);
    EXPECT_EQ(list.GetColumnWidth(0), 61);
    EXPECT_EQ(list.GetColumnWidth(1), 20) << "a stored 0 leaves the column";
    list.UnsubclassWindow();
}

TEST_F(PlacedDialog, ListsWithoutColumnsAreRefused) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.SetDialogName(L"bare");
    dialog.Create(IDD_ELASTIC, &parent);
    CListCtrl bare;
    bare.SubclassDlgItem(IDC_BARE_LIST, &dialog);
    EXPECT_EQ(dialog.SaveColumnSizes(nullptr), 0);
    EXPECT_EQ(dialog.GetColumnSizes(nullptr), 0);
    EXPECT_EQ(dialog.SaveColumnSizes(&bare), 0);
    EXPECT_EQ(dialog.GetColumnSizes(&bare), 0);
    bare.UnsubclassWindow();
}

TEST_F(PlacedDialog, HelpGoesToTheHostOrNowhere) {
    OpenDialog dialog(IDD_ELASTIC, &parent);
    dialog.Create(IDD_ELASTIC, &parent);
    dialog.OnDialogHelp();
    dialog.SendMessage(WM_COMMAND, IDHELP);
    EXPECT_EQ(host.helpCalls, 2);
    host.hasUiHost = false;
    dialog.OnDialogHelp();
    dialog.SendMessage(WM_COMMAND, IDHELP);
    EXPECT_EQ(host.helpCalls, 2);
}

}  // namespace
