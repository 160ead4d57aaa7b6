// The menu of the pane with the focus, and what is done by it without a mouse.
#include "in_language.h"
#include "pane_keys_fixture.h"
#include "replaced_import.h"

using namespace docking_test;

namespace {

/// What a menu offered, in its order: "Name" with "-" for grey and "*" for checked before it; a submenu's
/// lines in brackets behind it.
struct Shown {
    std::vector<std::wstring> lines;
    std::wstring choose;  ///< the line that is chosen
    UINT flags = 0;
    CPoint place{0, 0};
    int times = 0;
} shown;

std::wstring lineOf(HMENU menu, int index) {
    wchar_t text[100] = {};
    ::GetMenuStringW(menu, static_cast<UINT>(index), text, 100, MF_BYPOSITION);
    return text;
}

int WINAPI chooseFromMenu(HMENU menu, UINT flags, int x, int y, int, HWND, const RECT*) {
    shown.flags = flags;
    shown.place = CPoint(x, y);
    ++shown.times;
    shown.lines.clear();
    int chosen = 0;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
        if (state & MF_SEPARATOR && lineOf(menu, i).empty()) continue;
        const std::wstring text = lineOf(menu, i);
        std::wstring line = ((state & 0xFF & (MF_GRAYED | MF_DISABLED)) != 0 ? L"-" : L"") +
                            std::wstring((state & 0xFF & MF_CHECKED) != 0 ? L"*" : L"") + text;
        if (text == shown.choose) chosen = static_cast<int>(::GetMenuItemID(menu, i));
        if (HMENU sub = ::GetSubMenu(menu, i)) {
            line += L"(";
            for (int j = 0; j < ::GetMenuItemCount(sub); ++j) {
                line += (j > 0 ? L", " : L"") + lineOf(sub, j);
                if (lineOf(sub, j) == shown.choose) chosen = static_cast<int>(::GetMenuItemID(sub, j));
            }
            line += L")";
        }
        shown.lines.push_back(line);
    }
    return chosen;
}

struct PaneMenu : PaneKeys {
    ui_test::ReplacedImport menus{::GetModuleHandleW(L"ktui.dll"), "TrackPopupMenu", &chooseFromMenu};

    PaneMenu() {
        EXPECT_TRUE(menus.isThere());
        EXPECT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
        shown = {};
    }
    /// Opens the menu by its key and chooses a line; whether the key came to the window.
    bool open(const wchar_t* choose = L"") {
        shown.choose = choose;
        const bool came = key(VK_OEM_MINUS, {VK_MENU}, WM_SYSKEYDOWN);
        ui_test::pump();
        return came;
    }
    void focus(CWnd& pane) {
        pane.SetFocus();
        ui_test::pump();
    }
    std::wstring said() { return label() != nullptr ? PaneKeys::said() : L""; }
    CRect floatingPlace() { return placeOf(*bars[3]->GetParentMiniFrame()); }
};

}  // namespace

TEST_F(PaneMenu, OpensForThePaneWithTheFocusOnly) {
    EXPECT_TRUE(open()) << "the middle has none";
    EXPECT_EQ(shown.times, 0);
    focus(*bars[0]);
    EXPECT_FALSE(open());
    EXPECT_EQ(shown.times, 1);
    EXPECT_EQ(shown.flags, static_cast<UINT>(TPM_RETURNCMD | TPM_NONOTIFY));
    const CRect pane = placeOf(*bars[0]);
    EXPECT_EQ(shown.place.x, pane.left);
    EXPECT_EQ(shown.place.y, pane.top + bars[0]->GetCaptionHeight());
    EXPECT_FALSE(key(VK_SUBTRACT, {VK_MENU}, WM_SYSKEYDOWN)) << "the other minus";
    EXPECT_EQ(shown.times, 2);
    EXPECT_TRUE(key(VK_OEM_MINUS, {VK_MENU, VK_CONTROL}, WM_SYSKEYDOWN));
    EXPECT_TRUE(key(VK_OEM_MINUS, {VK_MENU, VK_SHIFT}, WM_SYSKEYDOWN));
    EXPECT_TRUE(key(VK_OEM_MINUS)) << "a minus that is typed";
    EXPECT_TRUE(key('X', {VK_MENU}, WM_SYSKEYDOWN));
    EXPECT_EQ(shown.times, 2);
    KtUiEnablePaneKeys(*frame, FALSE);
    EXPECT_TRUE(open());
    EXPECT_EQ(shown.times, 2);
}

TEST_F(PaneMenu, OffersWhatADockedPaneCanDo) {
    focus(*bars[0]);
    open();
    const std::vector<std::wstring> lines = {L"-&Move",
                                             L"&Size",
                                             L"*Dock &left",
                                             L"Dock &right",
                                             L"Dock &bottom",
                                             L"&Float",
                                             L"&Tab with(Bar B, Set, Bar C, Bar D)",
                                             L"&Auto-hide",
                                             L"&Close"};
    EXPECT_EQ(shown.lines, lines);
}

TEST_F(PaneMenu, OffersWhatAFloatingPaneCanDo) {
    focus(*bars[3]);
    open();
    const std::vector<std::wstring> lines = {L"&Move",
                                             L"&Size",
                                             L"Dock &left",
                                             L"Dock &right",
                                             L"Dock &bottom",
                                             L"*&Float",
                                             L"&Tab with(Bar A, Bar B, Set, Bar C)",
                                             L"-&Auto-hide",
                                             L"&Close"};
    EXPECT_EQ(shown.lines, lines);
}

TEST_F(PaneMenu, OffersWhatAPaneThatHidesCanDo) {
    bars[2]->Slide(TRUE, FALSE);
    focus(*bars[2]);
    open();
    const std::vector<std::wstring> lines = {L"-&Move",
                                             L"-&Size",
                                             L"Dock &left",
                                             L"Dock &right",
                                             L"Dock &bottom",
                                             L"&Float",
                                             L"&Tab with(Bar A, Bar B, Set, Bar D)",
                                             L"*&Auto-hide",
                                             L"&Close"};
    EXPECT_EQ(shown.lines, lines);
}

TEST_F(PaneMenu, OffersNoMoveOfALockedPane) {
    KbUiLockPanel(true, false);
    focus(*bars[0]);
    open();
    const std::vector<std::wstring> docked = {L"-&Move",       L"&Size",         L"-*Dock &left",
                                              L"-Dock &right", L"-Dock &bottom", L"-&Float",
                                              L"-&Tab with()", L"&Auto-hide",    L"&Close"};
    EXPECT_EQ(shown.lines, docked) << "its divider can be moved";
    KbUiLockPanel(false, true);
    open();
    EXPECT_EQ(shown.lines[1], L"&Size");
    EXPECT_EQ(shown.lines[6], L"&Tab with(Bar B, Set, Bar C)") << "none that floats in a locked frame";
    focus(*bars[3]);
    open();
    EXPECT_EQ(shown.lines[0], L"-&Move");
    EXPECT_EQ(shown.lines[1], L"-&Size");
    EXPECT_EQ(shown.lines[5], L"-*&Float");
}

TEST_F(PaneMenu, OffersNoSideThatPaneOrFrameRefuses) {
    bars[0]->EnableDocking(CBRS_ALIGN_LEFT);
    focus(*bars[0]);
    open();
    EXPECT_EQ(shown.lines[2], L"*Dock &left");
    EXPECT_EQ(shown.lines[3], L"-Dock &right");
    EXPECT_EQ(shown.lines[4], L"-Dock &bottom");
}

TEST_F(PaneMenu, OffersNoSideThatTheFrameRefuses) {
    auto* other = new Frame;
    ASSERT_TRUE(other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(40, 40, 640, 440)));
    other->EnableDocking(CBRS_ALIGN_RIGHT);
    {
        OpenBar bar;
        ASSERT_TRUE(bar.CKbUiDockControlBar::Create(other, L"Bar", 4700,
                                                    WS_CHILD | WS_VISIBLE | CBRS_RIGHT | CBRS_FLOAT_MULTI,
                                                    CRect(0, 0, 150, 120)));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        other->DockPane(&bar);
        ASSERT_TRUE(KtUiEnablePaneKeys(*other, TRUE));
        focus(bar);
        open();
        EXPECT_EQ(shown.lines[2], L"-Dock &left");
        EXPECT_EQ(shown.lines[3], L"*Dock &right");
        EXPECT_EQ(shown.lines[4], L"-Dock &bottom");
    }
    other->DestroyWindow();
}

TEST_F(PaneMenu, DocksAtASide) {
    focus(*bars[3]);
    open(L"Dock &bottom");
    EXPECT_TRUE(bars[3]->IsDocked());
    EXPECT_EQ(bars[3]->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_BOTTOM));
    EXPECT_EQ(focused(), L"Bar D") << "the focus comes along";
    EXPECT_EQ(said(), L"Bar D");
    open(L"Dock &right");
    EXPECT_EQ(bars[3]->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    open(L"Dock &left");
    EXPECT_EQ(bars[3]->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    bars[2]->Slide(TRUE, FALSE);
    focus(*bars[2]);
    open(L"Dock &right");
    EXPECT_FALSE(bars[2]->IsAutoHideMode());
    EXPECT_TRUE(bars[2]->IsWindowVisible());
    EXPECT_EQ(bars[2]->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
}

TEST_F(PaneMenu, FloatsWhereThePaneFloatedLast) {
    const CRect before = floatingPlace();
    focus(*bars[3]);
    open(L"Dock &left");
    open(L"&Float");
    ASSERT_FALSE(bars[3]->IsDocked());
    EXPECT_EQ(textOf(floatingPlace()), textOf(before));
    EXPECT_EQ(focused(), L"Bar D");
    open(L"&Float");
    EXPECT_EQ(textOf(floatingPlace()), textOf(before)) << "it floats already";
}

TEST_F(PaneMenu, JoinsAndLeavesTabs) {
    focus(*bars[0]);
    open(L"Bar D");
    ASSERT_TRUE(bars[0]->IsTabbed());
    EXPECT_EQ(bars[0]->GetParentTabbedPane(), bars[3]->GetParentTabbedPane());
    EXPECT_EQ(focused(), L"Bar A") << "it is the one in front";
    EXPECT_EQ(said(), L"Bar A");
    open(L"Dock &right");
    EXPECT_FALSE(bars[0]->IsTabbed()) << "only the tab that shows goes";
    EXPECT_EQ(bars[0]->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_FALSE(bars[3]->IsDocked());
    EXPECT_EQ(focused(), L"Bar A");
}

TEST_F(PaneMenu, FloatsATabThatFloatsWithOthersByItself) {
    focus(*bars[0]);
    open(L"Bar D");
    ASSERT_EQ(bars[0]->GetParentMiniFrame(), bars[3]->GetParentMiniFrame());
    open(L"&Float");
    EXPECT_FALSE(bars[0]->IsTabbed());
    EXPECT_FALSE(bars[0]->IsDocked());
    EXPECT_NE(bars[0]->GetParentMiniFrame(), bars[3]->GetParentMiniFrame());
    EXPECT_EQ(focused(), L"Bar A");
}

TEST_F(PaneMenu, AnAmpersandInANameIsShown) {
    bars[1]->SetWindowText(L"Text & Style");
    focus(*bars[0]);
    open();
    EXPECT_EQ(shown.lines[6], L"&Tab with(Text && Style, Set, Bar C, Bar D)");
}

TEST_F(PaneMenu, HidesAtAnEdgeAndComesBack) {
    focus(*bars[0]);
    const Seen before = seen();
    open(L"&Auto-hide");
    EXPECT_TRUE(bars[0]->IsAutoHideMode());
    EXPECT_TRUE(bars[0]->IsWindowVisible()) << "the focus is in it";
    EXPECT_EQ(focused(), L"Bar A");
    open(L"&Auto-hide");
    EXPECT_EQ(seen(), before);
}

TEST_F(PaneMenu, ClosesAPaneAndGoesToTheMiddle) {
    focus(*bars[1]);
    open(L"&Close");
    EXPECT_FALSE(bars[1]->IsVisible());
    EXPECT_FALSE(bars[1]->isVisible()) << "the bar itself was asked";
    EXPECT_EQ(focused(), L"middle");
    EXPECT_TRUE(said() == L"Drawing area");
}

TEST_F(PaneMenu, AsksThePaneToClose) {
    struct Asked : OpenBar {
        int presses = 0;
        void OnPressCloseButton() override { ++presses; }
    } bar;
    ASSERT_TRUE(bar.CKbUiDockControlBar::Create(
        frame, L"Stays", 4700, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI, CRect(0, 0, 150, 120)));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&bar);
    focus(bar);
    open(L"&Close");
    EXPECT_EQ(bar.presses, 1);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(::GetFocus() == bar.m_hWnd) << "it has kept itself open";
}

TEST_F(PaneMenu, NothingChosenChangesNothing) {
    focus(*bars[0]);
    const Seen before = seen();
    open();
    EXPECT_EQ(seen(), before);
    EXPECT_EQ(focused(), L"Bar A");
    EXPECT_EQ(label(), nullptr);
}

TEST_F(PaneMenu, ArrowsMoveAFloatingPane) {
    focus(*bars[3]);
    const CRect before = floatingPlace();
    open(L"&Move");
    EXPECT_EQ(said(), L"Arrow keys move, Enter keeps, Escape goes back");
    EXPECT_FALSE(key(VK_RIGHT));
    EXPECT_FALSE(key(VK_RIGHT));
    EXPECT_FALSE(key(VK_DOWN));
    EXPECT_EQ(textOf(floatingPlace()), textOf(before + CPoint(16, 8)));
    EXPECT_FALSE(key(VK_LEFT, {VK_CONTROL}));
    EXPECT_FALSE(key(VK_UP, {VK_CONTROL}));
    EXPECT_EQ(textOf(floatingPlace()), textOf(before + CPoint(15, 7)));
    EXPECT_FALSE(key(VK_RETURN));
    EXPECT_EQ(label(), nullptr);
    EXPECT_TRUE(key(VK_RIGHT)) << "the keys are the pane's again";
    EXPECT_EQ(textOf(floatingPlace()), textOf(before + CPoint(15, 7)));
}

TEST_F(PaneMenu, TheKeysOfAMoveAreToldAsLongAsItLasts) {
    focus(*bars[3]);
    open(L"&Move");
    bool later = false;
    ui_test::later([&] { later = true; }, 1800);
    ASSERT_TRUE(ui_test::pump_until([&] { return later; }));
    EXPECT_EQ(said(), L"Arrow keys move, Enter keeps, Escape goes back");
    key(VK_ESCAPE);
    EXPECT_EQ(label(), nullptr);
}

TEST_F(PaneMenu, EscapePutsAFloatingPaneBack) {
    focus(*bars[3]);
    const CRect before = floatingPlace();
    for (const wchar_t* what : {L"&Move", L"&Size"}) {
        open(what);
        key(VK_LEFT);
        key(VK_DOWN);
        EXPECT_NE(textOf(floatingPlace()), textOf(before));
        EXPECT_FALSE(key(VK_ESCAPE));
        EXPECT_EQ(textOf(floatingPlace()), textOf(before));
        EXPECT_TRUE(key(VK_ESCAPE));
    }
}

TEST_F(PaneMenu, ArrowsSizeAFloatingPaneDownToItsLeast) {
    focus(*bars[3]);
    const CRect before = floatingPlace();
    open(L"&Size");
    EXPECT_EQ(said(), L"Arrow keys size, Enter keeps, Escape goes back");
    key(VK_RIGHT);
    key(VK_DOWN);
    key(VK_DOWN);
    CRect wanted = before;
    wanted.right += 8;
    wanted.bottom += 16;
    EXPECT_EQ(textOf(floatingPlace()), textOf(wanted));
    MINMAXINFO limits = {};
    bars[3]->GetParentMiniFrame()->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    ASSERT_GT(limits.ptMinTrackSize.x, 20);
    for (int i = 0; i < 60; ++i) {
        key(VK_LEFT);
        key(VK_UP);
    }
    EXPECT_EQ(floatingPlace().Width(), limits.ptMinTrackSize.x);
    EXPECT_EQ(floatingPlace().Height(), limits.ptMinTrackSize.y);
    EXPECT_EQ(textOf(CRect(floatingPlace().TopLeft(), CSize(0, 0))),
              textOf(CRect(before.TopLeft(), CSize(0, 0))));
}

TEST_F(PaneMenu, ArrowsSizeADockedPaneAtItsDivider) {
    focus(*bars[0]);
    const int left = placeOf(*bars[0]).Width(), right = placeOf(set).Width();
    open(L"&Size");
    key(VK_RIGHT);
    key(VK_RIGHT);
    EXPECT_EQ(placeOf(*bars[0]).Width(), left + 16);
    key(VK_LEFT, {VK_CONTROL});
    EXPECT_EQ(placeOf(*bars[0]).Width(), left + 15);
    key(VK_UP);
    key(VK_DOWN);
    EXPECT_EQ(placeOf(*bars[0]).Width(), left + 15) << "no divider lies there";
    key(VK_ESCAPE);
    EXPECT_EQ(placeOf(*bars[0]).Width(), left);
    focus(set);
    open(L"&Size");
    key(VK_LEFT);
    EXPECT_EQ(placeOf(set).Width(), right + 8) << "its divider is on the other side";
    key(VK_RETURN);
    EXPECT_EQ(placeOf(set).Width(), right + 8);
}

TEST_F(PaneMenu, EscapeUndoesWhatTheLimitsLeftOfTheSteps) {
    focus(*bars[0]);
    const Seen before = seen();
    open(L"&Size");
    for (int i = 0; i < 80; ++i) key(VK_LEFT);
    for (int i = 0; i < 3; ++i) key(VK_RIGHT);
    EXPECT_NE(seen(), before);
    key(VK_ESCAPE);
    EXPECT_EQ(seen(), before);
}

TEST_F(PaneMenu, AnyOtherKeyOrAPressOrAnotherFocusKeepsThePlace) {
    focus(*bars[3]);
    CRect place = floatingPlace();
    const auto moved = [&] {
        focus(*bars[3]);
        open(L"&Move");
        key(VK_RIGHT);
        place.OffsetRect(8, 0);
    };
    moved();
    EXPECT_TRUE(key('A'));
    EXPECT_TRUE(key(VK_RIGHT));
    EXPECT_EQ(textOf(floatingPlace()), textOf(place));
    moved();
    focus(*bars[0]);
    EXPECT_TRUE(key(VK_RIGHT));
    EXPECT_TRUE(key(VK_ESCAPE));
    EXPECT_EQ(textOf(floatingPlace()), textOf(place));
    moved();
    ::PostMessageW(bars[3]->m_hWnd, WM_RBUTTONDOWN, 0, MAKELPARAM(5, 5));
    ui_test::pump();
    EXPECT_EQ(label(), nullptr);
    EXPECT_TRUE(key(VK_ESCAPE));
    EXPECT_EQ(textOf(floatingPlace()), textOf(place));
    moved();
    EXPECT_TRUE(key(VK_CONTROL)) << "a key that others are pressed with";
    EXPECT_FALSE(key(VK_ESCAPE));
    place.OffsetRect(-8, 0);
    EXPECT_EQ(textOf(floatingPlace()), textOf(place));
}

TEST_F(PaneMenu, APaneThatGoesWhileItIsMoved) {
    focus(*bars[3]);
    open(L"&Move");
    key(VK_RIGHT);
    bars[3]->DestroyWindow();
    ui_test::pump();
    focus(*bars[0]);
    EXPECT_TRUE(key(VK_RIGHT));
    EXPECT_TRUE(key(VK_ESCAPE));
    EXPECT_EQ(focused(), L"Bar A");
}

TEST_F(PaneMenu, TheEndOfTheKeysEndsAMove) {
    focus(*bars[3]);
    const CRect before = floatingPlace();
    open(L"&Move");
    key(VK_RIGHT);
    KtUiEnablePaneKeys(*frame, FALSE);
    EXPECT_EQ(label(), nullptr);
    EXPECT_EQ(textOf(floatingPlace()), textOf(before + CPoint(8, 0)));
    KtUiEnablePaneKeys(*frame, TRUE);
    EXPECT_TRUE(key(VK_RIGHT));
}

TEST_F(PaneKeys, TheMenuItselfIsWalkedByKeys) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    bars[3]->SetFocus();
    const CRect before = placeOf(*bars[3]->GetParentMiniFrame());
    ui_test::later([] { ::EndMenu(); }, 3000);
    // The first line is chosen, so Enter takes it.
    ::PostMessageW(bars[3]->m_hWnd, WM_SYSKEYDOWN, VK_OEM_MINUS, 1);
    ui_test::later([&] { bars[3]->PostMessage(WM_KEYDOWN, VK_RETURN, 1); }, 100);
    EXPECT_TRUE(ui_test::pump_until([&] { return said().find(L"Arrow keys move") == 0; }));
    key(VK_DOWN);
    EXPECT_EQ(textOf(placeOf(*bars[3]->GetParentMiniFrame())), textOf(before + CPoint(0, 8)));
    key(VK_RETURN);
}

TEST_F(PaneKeys, TheMenuSpeaksBothLanguages) {
    ui_test::expect_library_texts(
        {{54642, L"&Move", L"移动(&M)"},
         {54643, L"&Size", L"大小(&S)"},
         {54644, L"Dock &left", L"停靠在左侧(&L)"},
         {54645, L"Dock &right", L"停靠在右侧(&R)"},
         {54646, L"Dock &bottom", L"停靠在底部(&B)"},
         {54647, L"&Float", L"浮动(&F)"},
         {54648, L"&Tab with", L"合并为选项卡(&T)"},
         {54649, L"&Auto-hide", L"自动隐藏(&A)"},
         {54650, L"&Close", L"关闭(&C)"},
         {54651, L"Arrow keys move, Enter keeps, Escape goes back", L"方向键移动，Enter 确认，Esc 还原"},
         {54652, L"Arrow keys size, Enter keeps, Escape goes back",
          L"方向键调整大小，Enter 确认，Esc 还原"}});
}
