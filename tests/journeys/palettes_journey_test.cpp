// A draughtsman works with the palettes beside the drawing, by mouse and by keys alone, and finds them the
// next time as he left them.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"
#include "own_program.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801;
constexpr int kStrip = 111;           // the tabs at a set's side
constexpr POINT kCaption = {60, -8};  // client pixels of a docked set

class PalettesJourney : public Journey {
protected:
    PalettesJourney() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks, OdDb::kForWrite);
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(L"Door");
        blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        addLine(*block, {10, 5, 0});
        addLine(*drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite), {100, 50, 0});
        open(*drawing, L"palettes.dxf");
        waitUntil([this] { return properties() != nullptr; });
    }
    static void addLine(OdDbBlockTableRecord& space, const OdGePoint3d& to) {
        const OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setEndPoint(to);
        space.appendOdDbEntity(OdDbEntityPtr(line.get()));
    }
    bool becomes(bool modified) const {
        return waitUntil(
            [&] { return (textOf(drafter->frame()).find(L'*') != std::wstring::npos) == modified; });
    }
    HWND properties() const { return drafter->panelWith(kPropertiesPanel); }
    HWND layers() const { return drafter->panelWith(kLayersPanel); }
    HWND blocks() const { return drafter->panelWith(IDC_BLOCK_LIST); }
    HWND status() const { return item(drafter->frame(), kStatusBar); }
    /// The set that a panel's palette is in.
    static HWND setOf(HWND panel) { return ::GetParent(::GetParent(panel)); }
    bool isFloating(HWND panel) const { return ::GetAncestor(panel, GA_ROOT) != drafter->frame(); }
    void selectAll() {
        drafter->activate(drafter->frame());
        drafter->click(drafter->view(), {4, 4});
        drafter->key('A', true);
    }
    /// Takes an entry of View > Palettes, or of View > Lock, by its letters.
    void view(WORD menu, WORD letter) {
        drafter->activate(drafter->frame());
        drafter->key('V', false, true);
        drafter->key(menu);
        if (letter == 'B') picture("journey-palettes-menu");
        drafter->key(letter);
    }
    /// Closes the program, which keeps its state, and starts it anew.
    /// Drags the caption of a panel's set by so many pixels.
    void dragSet(HWND panel, POINT by) {
        drafter->drag(setOf(panel), kCaption, {kCaption.x + by.x, kCaption.y + by.y});
    }
    bool goesTo(HWND window, HWND focus) {
        return waitUntil([&] { return focusOf(window) == focus; });
    }
};

TEST_F(PalettesJourney, AtFirstPropertiesAndLayersStandAtTheLeftAndTheBlocksAreHidden) {
    ASSERT_NE(properties(), nullptr);
    EXPECT_EQ(layers(), nullptr) << "behind the properties";
    EXPECT_EQ(blocks(), nullptr);
    const RECT set = rectOf(setOf(properties())), view = rectOf(drafter->view());
    EXPECT_LT(set.right, view.left) << "the drawing takes the room that is left";
    EXPECT_EQ(set.left, rectOf(status()).left);
    EXPECT_GE(view.right - view.left, 400);
    EXPECT_LE(view.bottom, rectOf(status()).top);
    EXPECT_LE(set.bottom, rectOf(status()).top);
    picture("journey-palettes");
}

TEST_F(PalettesJourney, APropertyIsChangedLiveByTheMouseAndUndone) {
    selectAll();
    const HWND panel = properties(), thickness = item(panel, IDC_THICKNESS);
    EXPECT_EQ(textOf(item(panel, IDC_PANEL_TITLE)), L"Line");
    EXPECT_EQ(textOf(thickness), L"0.0000");
    drafter->replaceText(thickness, L"2.5");
    EXPECT_TRUE(becomes(false)) << "nothing is written while it is typed";
    drafter->click(item(panel, IDC_ELEVATION));
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(textOf(thickness), L"2.5000");
    drafter->pickByMouse(item(panel, IDC_TRUE_COLOR), L"red");
    picture("journey-palettes-live");
    OdDbDatabasePtr drawing = saved();
    EXPECT_DOUBLE_EQ(firstOf(*drawing)->thickness(), 2.5);
    EXPECT_EQ(firstOf(*drawing)->colorIndex(), 1);
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    drafter->key('Z', true);
    EXPECT_TRUE(waitUntil([&] { return currentEntry(item(panel, IDC_TRUE_COLOR)) == L"ByLayer"; }));
    EXPECT_EQ(textOf(thickness), L"2.5000") << "each change is a step of its own";
    drafter->key('Z', true);
    EXPECT_TRUE(waitUntil([&] { return textOf(thickness) == L"0.0000"; }));
    drawing = saved();
    EXPECT_DOUBLE_EQ(firstOf(*drawing)->thickness(), 0);
}

TEST_F(PalettesJourney, ByKeysAValueIsEnteredGivenBackAndRefused) {
    selectAll();
    drafter->key('2', true);
    const HWND panel = properties();
    ASSERT_TRUE(goesTo(panel, item(panel, IDC_TRUE_COLOR)));
    const HWND thickness = item(panel, IDC_THICKNESS);
    for (int step = 0; step < 30 && focusOf(panel) != thickness; ++step) drafter->key(VK_TAB);
    ASSERT_EQ(focusOf(panel), thickness);
    drafter->type(L"3");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(focusOf(panel), thickness) << "Enter stays in the field";
    drafter->type(L"7");
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(textOf(thickness), L"3.0000") << "Escape gives the former value back";
    drafter->type(L"-4");
    drafter->key(VK_RETURN);
    EXPECT_EQ(textOf(thickness), L"-4") << "a bad value stays as it was typed";
    EXPECT_NE(textOf(item(panel, IDC_MESSAGE)), L"") << "and is said";
    drafter->key(VK_TAB);
    EXPECT_EQ(textOf(thickness), L"-4");
    picture("journey-palettes-refused");
    drafter->key(VK_TAB, false, false, true);
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(textOf(thickness), L"3.0000");
    EXPECT_EQ(textOf(item(panel, IDC_MESSAGE)), L"");
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(goesTo(panel, drafter->view())) << "where there is nothing to give back, to the drawing";
    EXPECT_DOUBLE_EQ(firstOf(*saved())->thickness(), 3);
}

TEST_F(PalettesJourney, WhatIsBeingTypedIsSavedToo) {
    selectAll();
    drafter->key('2', true);
    const HWND panel = properties();
    drafter->replaceText(item(panel, IDC_THICKNESS), L"12");
    drafter->key('S', true);
    EXPECT_TRUE(waitUntil([&] { return textOf(item(panel, IDC_THICKNESS)) == L"12.0000"; }));
    OdDbDatabasePtr drawing(new OdDbDatabase);
    ASSERT_TRUE(becomes(false));
    ASSERT_EQ(drawing->readDxf(path.c_str()), kOdOk);
    EXPECT_DOUBLE_EQ(firstOf(*drawing)->thickness(), 12);
}

TEST_F(PalettesJourney, ABlockIsDraggedIntoTheDrawingAndUndone) {
    drafter->activate(drafter->frame());
    drafter->key('3', true);
    const HWND list = item(blocks(), IDC_BLOCK_LIST);
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 1);
    picture("journey-blocks");
    // The line from (0, 0) to (100, 50) fills the view, whose middle is the middle of the line.
    RECT room = {};
    ::GetClientRect(drafter->view(), &room);
    drafter->press(list, {50, 40});
    drafter->hover(list, {60, 60});
    drafter->hover(drafter->view(), {room.right / 2, room.bottom / 2});
    drafter->release();
    ASSERT_TRUE(becomes(true));
    picture("journey-block-dropped");
    OdDbDatabasePtr drawing = saved();
    ASSERT_EQ(entitiesOf(*drawing).size(), 2u);
    const auto* reference = dynamic_cast<const OdDbBlockReference*>(entitiesOf(*drawing).back());
    ASSERT_NE(reference, nullptr);
    EXPECT_NEAR(reference->position().x, 50, 0.6);
    EXPECT_NEAR(reference->position().y, 25, 0.6);
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    drawing = saved();
    EXPECT_EQ(entitiesOf(*drawing).size(), 1u);
}

TEST_F(PalettesJourney, ByKeysABlockIsInsertedAtAPlaceThatIsPicked) {
    drafter->activate(drafter->frame());
    drafter->key('3', true);
    ASSERT_NE(blocks(), nullptr);
    ASSERT_TRUE(goesTo(blocks(), item(blocks(), IDC_BLOCK_LIST)));
    drafter->key(VK_RETURN);
    EXPECT_TRUE(goesTo(blocks(), drafter->view()));
    EXPECT_EQ(textOf(status()), L"Insertion point of the block:");
    drafter->key(VK_ESCAPE);
    EXPECT_NE(textOf(status()), L"Insertion point of the block:");
    EXPECT_TRUE(becomes(false)) << "Escape gives up";
    drafter->key('3', true);
    drafter->key(VK_RETURN);
    drafter->key(VK_LEFT);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(entitiesOf(*saved()).size(), 2u);
}

TEST_F(PalettesJourney, ADragThatIsGivenUpOrDroppedElsewhereInsertsNothing) {
    drafter->activate(drafter->frame());
    drafter->key('3', true);
    const HWND list = item(blocks(), IDC_BLOCK_LIST);
    ASSERT_NE(list, nullptr);
    for (const bool gives : {true, false}) {
        drafter->press(list, {50, 40});
        drafter->hover(list, {60, 60});
        if (gives) {
            drafter->hover(drafter->view(), {200, 200});
            drafter->key(VK_ESCAPE);
        } else {
            drafter->hover(list, {90, 90});
        }
        drafter->release();
        EXPECT_TRUE(becomes(false)) << gives;
    }
    EXPECT_EQ(entitiesOf(*saved()).size(), 1u);
}

TEST_F(PalettesJourney, PalettesFloatAndAreFoundThereAgain) {
    const HWND panel = properties();
    ASSERT_NE(panel, nullptr);
    dragSet(panel, {420, 160});
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    const RECT before = rectOf(::GetAncestor(properties(), GA_ROOT));
    const RECT view = rectOf(drafter->view());
    EXPECT_EQ(view.left, rectOf(status()).left) << "the drawing takes the room";
    picture("journey-palettes-floating");
    drafter->activate(drafter->frame());
    drafter->key('L', true);
    EXPECT_TRUE(waitUntil([&] { return layers() != nullptr; }));
    restart();
    ASSERT_TRUE(waitUntil([&] { return layers() != nullptr; })) << "the palette that was in front";
    ASSERT_TRUE(isFloating(layers()));
    const RECT after = rectOf(::GetAncestor(layers(), GA_ROOT));
    EXPECT_TRUE(::EqualRect(&before, &after)) << after.left << ' ' << after.top;
    restart(L"--clean");
    ASSERT_TRUE(waitUntil([&] { return properties() != nullptr; }));
    EXPECT_FALSE(isFloating(properties())) << "as at first";
}

TEST_F(PalettesJourney, AModalDialogKeepsTheUserFromFloatingOnesToo) {
    dragSet(properties(), {420, 160});
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    const HWND panel = properties(), thickness = item(panel, IDC_THICKNESS);
    const HWND dialog = openByKey('D');
    ASSERT_NE(dialog, nullptr);
    // They must not cover each other.
    const RECT floating = rectOf(::GetAncestor(panel, GA_ROOT)), shown = rectOf(dialog);
    drafter->place(dialog, {floating.left - 10 - (shown.right - shown.left), 100, floating.left - 10,
                            100 + shown.bottom - shown.top});
    drafter->click(thickness);
    EXPECT_NE(focusOf(panel), thickness);
    // Nor can it be dragged.
    dragSet(panel, {40, 120});
    const RECT after = rectOf(::GetAncestor(panel, GA_ROOT));
    EXPECT_TRUE(::EqualRect(&floating, &after)) << after.left << " " << after.top;
    drafter->click(item(dialog, IDCANCEL));
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    drafter->click(thickness);
    EXPECT_TRUE(goesTo(panel, thickness));
    dragSet(panel, {40, 120});
    EXPECT_TRUE(waitUntil([&] { return rectOf(::GetAncestor(panel, GA_ROOT)).left == floating.left + 40; }));
}

TEST_F(PalettesJourney, WhatTheMenuHidesStaysHiddenTheNextTime) {
    view('A', 'B');
    ASSERT_TRUE(waitUntil([&] { return blocks() != nullptr; }));
    // It came below the others: the topmost tab is still that of the properties.
    drafter->click(item(setOf(blocks()), kStrip), {9, 40});
    EXPECT_TRUE(waitUntil([&] { return properties() != nullptr; }));
    view('A', 'P');
    view('A', 'L');
    EXPECT_EQ(properties(), nullptr);
    restart();
    EXPECT_TRUE(waitUntil([&] { return blocks() != nullptr; }));
    view('A', 'B');
    EXPECT_TRUE(waitUntil([&] { return blocks() == nullptr; }));
    const LONG edge = rectOf(status()).left;
    EXPECT_TRUE(waitUntil([&] { return rectOf(drafter->view()).left == edge; })) << "no palette is left";
    restart();
    EXPECT_EQ(rectOf(drafter->view()).left, edge);
    drafter->key('2', true);
    EXPECT_TRUE(waitUntil([&] { return properties() != nullptr; })) << "a key brings one back";
    EXPECT_EQ(blocks(), nullptr);
}

TEST_F(PalettesJourney, TheCloseButtonHidesTheSetAndAKeyBringsAllOfItBack) {
    const HWND set = setOf(properties());
    RECT room = {};
    ::GetClientRect(set, &room);
    drafter->click(set, {room.right - 8, kCaption.y});
    const LONG edge = rectOf(status()).left;
    ASSERT_TRUE(waitUntil([&] { return rectOf(drafter->view()).left == edge; }));
    restart();
    EXPECT_EQ(rectOf(drafter->view()).left, edge);
    drafter->key('L', true);
    ASSERT_TRUE(waitUntil([&] { return layers() != nullptr; }));
    drafter->key('2', true);
    EXPECT_TRUE(waitUntil([&] { return properties() != nullptr; }));
}

TEST_F(PalettesJourney, ClosingAsksAboutWhatIsBeingTyped) {
    selectAll();
    drafter->replaceText(item(properties(), IDC_THICKNESS), L"2");
    EXPECT_TRUE(becomes(false));
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    const HWND question = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_DOUBLE_EQ(firstOf(*saved())->thickness(), 2);
}

TEST_F(PalettesJourney, AnArrangementIsKeptUnderANameAndComesBack) {
    const auto save = [&](const std::wstring& name) {
        view('Y', 'S');
        const HWND dialog = drafter->waitForDialog(L"Save Layout");
        ASSERT_NE(dialog, nullptr);
        drafter->type(name);
        drafter->key(VK_RETURN);
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
    };
    view('Y', 'D');  // there is none to delete
    EXPECT_EQ(drafter->waitForDialog(L"Delete Layout", 300), nullptr);
    drafter->key(VK_ESCAPE);
    drafter->key(VK_ESCAPE);
    drafter->key(VK_ESCAPE);
    const RECT docked = rectOf(setOf(properties()));
    save(L"beside");
    dragSet(properties(), {420, 160});
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    const RECT floating = rectOf(::GetAncestor(properties(), GA_ROOT));
    save(L"above");
    restart();
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    view('Y', '2');  // by the alphabet "beside" is the second
    ASSERT_TRUE(waitUntil([&] { return !isFloating(properties()); }));
    EXPECT_TRUE(waitUntil([&] {
        const RECT now = rectOf(setOf(properties()));
        return ::EqualRect(&now, &docked) != FALSE;
    }));
    picture("journey-palettes-layouts");
    view('Y', '1');
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    const RECT now = rectOf(::GetAncestor(properties(), GA_ROOT));
    EXPECT_TRUE(::EqualRect(&now, &floating));
    view('Y', 'B');
    ASSERT_TRUE(waitUntil([&] { return !isFloating(properties()); })) << "as at first";
    // One of the same name is replaced only when that is wanted.
    view('Y', 'S');
    const HWND dialog = drafter->waitForDialog(L"Save Layout");
    ASSERT_NE(dialog, nullptr);
    drafter->type(L"above");
    drafter->key(VK_RETURN);
    ASSERT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_NE(drafter->dismissMessage(drafter->frame()).find(L"\"above\""), std::wstring::npos);
    view('Y', '1');
    EXPECT_FALSE(isFloating(properties())) << "it was replaced";
    view('Y', 'D');
    const HWND choice = drafter->waitForDialog(L"Delete Layout");
    ASSERT_NE(choice, nullptr);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(choice));
    dragSet(properties(), {420, 160});
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    view('Y', '1');
    EXPECT_TRUE(waitUntil([&] { return !isFloating(properties()); })) << "\"beside\" is the first now";
}

TEST_F(PalettesJourney, F6GoesThroughDrawingAndPalettes) {
    drafter->click(drafter->view(), {4, 4});
    const HWND panel = properties();
    drafter->key(VK_F6);
    EXPECT_TRUE(waitUntil([&] { return ::IsChild(setOf(panel), focusOf(panel)) != FALSE; }));
    drafter->key(VK_F6, true);
    EXPECT_TRUE(waitUntil([&] { return layers() != nullptr || properties() != panel; }))
        << "the next palette";
    drafter->key(VK_F6);
    EXPECT_TRUE(goesTo(drafter->view(), drafter->view()));
}

TEST_F(PalettesJourney, ByKeysAloneASetIsFloatedMovedSizedDockedHiddenAndClosed) {
    drafter->click(drafter->view(), {4, 4});
    drafter->key(VK_F6);
    const HWND set = setOf(properties());
    ASSERT_TRUE(waitUntil([&] { return ::IsChild(set, focusOf(set)) != FALSE; }));
    const auto choose = [&](WORD letter) {
        drafter->key(VK_OEM_MINUS, false, true);
        if (letter == 'F') picture("journey-pane-menu");
        drafter->key(letter);
    };
    choose('F');
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    const HWND frame = ::GetAncestor(properties(), GA_ROOT);
    RECT wanted = rectOf(frame);
    const auto stands = [&] {
        return waitUntil([&] {
            const RECT now = rectOf(frame);
            return ::EqualRect(&now, &wanted) != FALSE;
        });
    };
    choose('M');
    picture("journey-pane-moves");
    for (const WORD arrow : {VK_RIGHT, VK_RIGHT, VK_DOWN}) drafter->key(arrow);
    drafter->key(VK_RETURN);
    ::OffsetRect(&wanted, 16, 8);
    EXPECT_TRUE(stands());
    choose('S');
    drafter->key(VK_DOWN);
    wanted.bottom += 8;
    EXPECT_TRUE(stands());
    drafter->key(VK_ESCAPE);
    wanted.bottom -= 8;
    EXPECT_TRUE(stands()) << "Escape gives the former size back";
    choose('R');
    ASSERT_TRUE(waitUntil([&] { return !isFloating(properties()); }));
    EXPECT_GE(rectOf(set).left, rectOf(drafter->view()).right);
    const LONG width = rectOf(set).right - rectOf(set).left;
    choose('S');
    drafter->key(VK_LEFT);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return rectOf(set).right - rectOf(set).left == width + 8; }));
    choose('A');
    const RECT view = rectOf(drafter->view());
    EXPECT_TRUE(waitUntil([&] {
        return rectOf(drafter->view()).right > view.right || rectOf(set).left < rectOf(drafter->view()).right;
    })) << "it slid out over the drawing";
    choose('A');
    EXPECT_TRUE(waitUntil([&] { return rectOf(set).left >= rectOf(drafter->view()).right; }));
    choose('C');
    EXPECT_TRUE(waitUntil([&] { return properties() == nullptr; }));
    EXPECT_TRUE(goesTo(drafter->view(), drafter->view()));
}

TEST_F(PalettesJourney, ByKeysAloneThePalettesOfASetAreChangedAndEntered) {
    drafter->click(drafter->view(), {4, 4});
    drafter->key('2', true);
    const HWND panel = properties(), set = setOf(panel), strip = item(set, kStrip);
    ASSERT_TRUE(goesTo(panel, item(panel, IDC_TRUE_COLOR)));
    drafter->key(VK_TAB, false, false, true);
    ASSERT_TRUE(goesTo(set, strip));
    picture("journey-strip-focus");
    drafter->key(VK_UP);
    drafter->key(VK_DOWN);
    ASSERT_NE(layers() != nullptr, properties() != nullptr);
    drafter->key(layers() != nullptr ? VK_UP : VK_DOWN);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return focusOf(set) != strip && ::IsChild(set, focusOf(set)); }));
}

TEST_F(PalettesJourney, LockedPalettesStayWhereTheyAre) {
    view('K', 'D');
    dragSet(properties(), {420, 160});
    EXPECT_FALSE(isFloating(properties()));
    restart();
    dragSet(properties(), {420, 160});
    EXPECT_FALSE(isFloating(properties())) << "the next time as well";
    view('K', 'D');
    dragSet(properties(), {420, 160});
    ASSERT_TRUE(waitUntil([&] { return isFloating(properties()); }));
    view('K', 'F');
    const HWND frame = ::GetAncestor(properties(), GA_ROOT);
    const RECT before = rectOf(frame);
    drafter->drag(frame, {60, -4}, {160, 60});
    const RECT after = rectOf(frame);
    EXPECT_TRUE(::EqualRect(&before, &after)) << "a floating one as well";
}

TEST_F(PalettesJourney, WidthsAreKept) {
    const HWND set = setOf(properties());
    const RECT before = rectOf(set);
    // The divider stands between the set and the drawing.
    POINT divider = {before.right + 2, (before.top + before.bottom) / 2};
    const HWND bar = ::WindowFromPoint(divider);
    ::ScreenToClient(bar, &divider);
    drafter->drag(bar, divider, {divider.x + 70, divider.y});
    const RECT wider = rectOf(set);
    EXPECT_EQ(wider.right - wider.left, before.right - before.left + 70);
    const RECT field = rectOf(item(properties(), IDC_THICKNESS));
    EXPECT_GT(field.right, before.right) << "the fields take the room";
    restart();
    const RECT again = rectOf(setOf(properties()));
    EXPECT_TRUE(::EqualRect(&wider, &again));
}

/// The extension's palette is a dialog with its first field.
constexpr int kProject = 1001, kTitleMessage = 1004, kTitleLabel = 1310;

HWND extensionPanel(const Drafter& drafter) { return drafter.panelWith(kTitleLabel); }

TEST_F(PalettesJourney, TheExtensionsPaletteFillsTheTitleBlockAndIsUndone) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const OdSmartPtr<OdDbText> mark(new OdDbText);
    mark->setTextString(L"[PROJECT]");
    drawing->modelSpaceId()
        .open<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(OdDbEntityPtr(mark.get()));
    drafter.reset();
    open(*drawing, L"title.dxf");
    EXPECT_EQ(extensionPanel(*drafter), nullptr) << "hidden at first";
    view('A', 'T');
    HWND panel = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (panel = extensionPanel(*drafter)) != nullptr; }));
    EXPECT_GT(rectOf(panel).left, rectOf(drafter->view()).left) << "at the right";
    drafter->replaceText(item(panel, kProject), std::wstring(81, L'x'));
    ASSERT_TRUE(waitUntil([&] { return textOf(item(panel, kProject)).size() == 81; }));
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return !textOf(item(panel, kTitleMessage)).empty(); })) << "too long";
    EXPECT_TRUE(becomes(false));
    drafter->replaceText(item(panel, kProject), L"Mill Lane");
    drafter->key(VK_RETURN);
    ASSERT_TRUE(becomes(true));
    picture("journey-palettes-extension");
    EXPECT_EQ(dynamic_cast<OdDbText*>(firstOf(*saved()))->textString(), L"Mill Lane");
    drafter->key(VK_ESCAPE);
    drafter->key('Z', true);
    EXPECT_EQ(dynamic_cast<OdDbText*>(firstOf(*saved()))->textString(), L"[PROJECT]");
}

TEST_F(PalettesJourney, TwoSetsShareTabsAndFindThemAgain) {
    view('A', 'T');
    ASSERT_TRUE(waitUntil([&] { return extensionPanel(*drafter) != nullptr; }));
    // Dropped on the caption of the other set it becomes a tab of it.
    const HWND set = setOf(extensionPanel(*drafter)), other = setOf(properties());
    drafter->press(set, kCaption);
    drafter->hover(set, {kCaption.x - 30, kCaption.y + 30});
    drafter->hover(other, kCaption);
    drafter->release();
    ASSERT_TRUE(waitUntil([&] {
        return extensionPanel(*drafter) != nullptr && properties() == nullptr &&
               rectOf(extensionPanel(*drafter)).left < rectOf(drafter->view()).left;
    }));
    picture("journey-palettes-tabs");
    drafter->activate(drafter->frame());
    drafter->key('2', true);
    EXPECT_TRUE(waitUntil([&] { return properties() != nullptr; })) << "a key brings the other tab forward";
    EXPECT_EQ(extensionPanel(*drafter), nullptr);
    restart();
    EXPECT_TRUE(waitUntil([&] { return properties() != nullptr; }));
    EXPECT_EQ(extensionPanel(*drafter), nullptr);
    const LONG edge = rectOf(drafter->view()).left;
    view('A', 'T');
    view('A', 'T');
    EXPECT_TRUE(waitUntil([&] { return extensionPanel(*drafter) != nullptr; }));
    EXPECT_EQ(rectOf(drafter->view()).left, edge) << "still a tab beside it";
}

TEST_F(PalettesJourney, WhatIsHiddenAtTheEdgeSlidesOutForAKey) {
    const HWND set = setOf(properties());
    RECT room = {};
    ::GetClientRect(set, &room);
    const LONG before = rectOf(drafter->view()).left;
    // The pin stands beside the button that closes.
    drafter->click(set, {room.right - 26, kCaption.y});
    ASSERT_TRUE(waitUntil([&] { return rectOf(drafter->view()).left < before - 200; }));
    picture("journey-palettes-at-the-edge");
    restart();
    EXPECT_LT(rectOf(drafter->view()).left, before - 200);
    drafter->activate(drafter->frame());
    drafter->key('L', true);
    EXPECT_TRUE(waitUntil([&] { return layers() != nullptr && ::IsChild(layers(), focusOf(layers())); }));
}

TEST_F(PalettesJourney, APaletteThatCannotBeMadeIsSaidAndTheRestWorks) {
    drafter.reset();
    const OwnProgram program;
    std::filesystem::copy_file(std::filesystem::path(programFolder()) / L"failing_title_block.dll",
                               program.file(L"extensions\\title_block.dll"),
                               std::filesystem::copy_options::overwrite_existing);
    open(path, program.folder());
    ASSERT_TRUE(waitUntil([&] { return properties() != nullptr; }));
    view('A', 'E');
    drafter->key(VK_ESCAPE);
    drafter->key(VK_ESCAPE);
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(extensionPanel(*drafter), nullptr);
    drafter->activate(drafter->frame());
    drafter->key('O', true, false, true);
    const HWND options = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(options, nullptr);
    EXPECT_NE(textOf(item(options, IDC_MESSAGE)).find(L"can't be shown"), std::wstring::npos);
    cancel(options);
    selectAll();
    drafter->replaceText(item(properties(), IDC_THICKNESS), L"2");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(becomes(true));
    drafter.reset();
}

}  // namespace
