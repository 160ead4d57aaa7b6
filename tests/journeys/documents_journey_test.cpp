// A draughtsman works on several drawings at a time, by mouse and by keys alone.
#include <filesystem>
#include <fstream>

#include <windows.h>
#include <commctrl.h>

#include "dropped_on.h"
#include "journey_fixture.h"
#include "message_text.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801, kBar = 0xE805;
constexpr int kPointerPane = 1, kSelectionPane = 2;
using Titles = std::vector<std::wstring>;

/// The words of the tool tip that shows.
std::wstring tipText() {
    for (HWND tip = nullptr; (tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
        wchar_t words[400] = {};
        if (::IsWindowVisible(tip)) ::SendMessageW(tip, WM_GETTEXT, 400, reinterpret_cast<LPARAM>(words));
        if (*words != 0) return words;
    }
    return {};
}

/// Three drawings, each with a line on a current layer of its own: "WALLS one", "WALLS two", "WALLS three".
class Documents : public Journey {
protected:
    Documents() {
        for (const wchar_t* name : {L"one", L"two", L"three"}) m_paths.push_back(write(name));
        drafter = std::make_unique<Drafter>(m_paths[2], std::wstring(),
                                            L"\"" + m_paths[0] + L"\" \"" + m_paths[1] + L"\"");
        waitUntil([this] { return drafter->drawings() == Titles{L"one.dxf", L"two.dxf", L"three.dxf"}; });
        drafter->activate(drafter->frame());
    }
    ~Documents() override {
        drafter.reset();
        for (const std::wstring& each : m_paths) std::filesystem::remove(each);
    }

    static std::wstring write(const std::wstring& name) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        OdDbLayerTablePtr layers;
        drawing->getLayerTable(layers, OdDb::kForWrite);
        const OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
        layer->setName((L"WALLS " + name).c_str());
        layers->add(OdDbSymbolTableRecordPtr(layer.get()));
        drawing->setClayer(layer->objectId());
        OdDbLinetypeTablePtr linetypes;
        drawing->getLinetypeTable(linetypes, OdDb::kForWrite);
        const OdSmartPtr<OdDbLinetypeTableRecord> linetype(new OdDbLinetypeTableRecord);
        linetype->setName((L"FENCE " + name).c_str());
        linetypes->add(OdDbSymbolTableRecordPtr(linetype.get()));
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks, OdDb::kForWrite);
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName((L"Door " + name).c_str());
        blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        addLine(*block);
        addLine(*drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite));
        std::wstring path = scratchPath(name + L".dxf");
        EXPECT_EQ(drawing->writeDxf(path.c_str(), OdDb::kDHL_1032), kOdOk);
        return path;
    }
    static void addLine(OdDbBlockTableRecord& space) {
        const OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setEndPoint({100, 50, 0});
        space.appendOdDbEntity(OdDbEntityPtr(line.get()));
    }

    /// Whether the room of the drawings has scroll bars of its own.
    bool scrolls() const {
        const HWND room = ::GetParent(drafter->drawing());
        return (::GetWindowLongW(room, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL)) != 0;
    }
    std::wstring title() const { return textOf(drafter->frame()); }
    /// Whether the drawing of this title comes to the front, in the frame's title too.
    bool isInFront(const std::wstring& name) {
        return waitUntil(
            [&] { return textOf(drafter->drawing()) == name && title() == name + L" - Drafter"; });
    }
    bool become(const Titles& names) {
        return waitUntil([&] { return drafter->drawings() == names; });
    }
    /// Goes to a drawing by keys.
    bool go(const std::wstring& name) {
        for (std::size_t i = 0; i < drafter->drawings().size(); ++i) {
            if (textOf(drafter->drawing()) == name) break;
            drafter->key(VK_TAB, true);
        }
        return isInFront(name);
    }
    /// Gives everything in the drawing in front a linetype scale, by the dialog.
    void scale(const std::wstring& number) {
        drafter->click(drafter->view(), {4, 4});
        drafter->key('A', true);
        HWND dialog = drafter->openProperties();
        ASSERT_NE(dialog, nullptr);
        drafter->replaceText(item(dialog, IDC_LINETYPE_SCALE), number);
        ok(dialog);
    }
    HWND properties() const { return drafter->panelWith(kPropertiesPanel); }
    std::wstring panelSays(int control) const { return textOf(item(properties(), control)); }
    bool isShown(int control, const std::wstring& text) {
        return waitUntil([&] { return panelSays(control) == text; });
    }
    /// What a pane of the status line says.
    std::wstring pane(int index) const {
        constexpr SIZE_T kBytes = 200 * sizeof(wchar_t);
        const HWND status = item(drafter->frame(), kStatusBar);
        DWORD id = 0;
        ::GetWindowThreadProcessId(status, &id);
        const HANDLE process = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ, FALSE, id);
        void* const there =
            ::VirtualAllocEx(process, nullptr, kBytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
        ::SendMessageW(status, SB_GETTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(there));
        wchar_t text[kBytes / sizeof(wchar_t)] = {};
        ::ReadProcessMemory(process, there, text, kBytes, nullptr);
        ::VirtualFreeEx(process, there, 0, MEM_RELEASE);
        ::CloseHandle(process);
        return text;
    }
    HWND barPicker(int id) const { return item(item(drafter->frame(), kBar), id); }
    std::wstring pickedLayer() const { return currentEntry(item(item(drafter->frame(), kBar), IDC_LAYER)); }
    /// The question that comes up, which names the drawing.
    HWND questionAbout(const std::wstring& name) {
        HWND question = drafter->waitForDialogOf(drafter->frame());
        EXPECT_NE(ui_test::message_text(question).find(name), std::wstring::npos);
        return question;
    }

    std::vector<std::wstring> m_paths;
};

TEST_F(Documents, ThreeOfTheCommandLineAreOpenAndKeysAndMouseGoFromOneToTheOther) {
    ASSERT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf", L"three.dxf"}));
    EXPECT_TRUE(isInFront(L"three.dxf"));
    EXPECT_FALSE(scrolls());
    picture("journey-three-drawings");
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"one.dxf")) << "around the end";
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"two.dxf")) << "in the order of the tabs";
    drafter->key(VK_TAB, true, false, true);
    EXPECT_TRUE(isInFront(L"one.dxf"));
    drafter->key(VK_TAB, true, false, true);
    EXPECT_TRUE(isInFront(L"three.dxf"));
    drafter->key(VK_F6, true);
    EXPECT_TRUE(isInFront(L"one.dxf")) << "the system's own key";
    drafter->key(VK_F6, true, false, true);
    EXPECT_TRUE(isInFront(L"three.dxf"));
    EXPECT_NE(drafter->chooseTab(L"two.dxf").x, -1);
    EXPECT_TRUE(isInFront(L"two.dxf"));
    // The menu lists them.
    drafter->key('W', false, true);
    picture("journey-window-menu");
    drafter->key('1');
    EXPECT_TRUE(isInFront(L"one.dxf"));
    for (const std::wstring& each : m_paths) EXPECT_TRUE(std::filesystem::exists(each + L".lock"));
}

TEST_F(Documents, ATabSaysTheWholePathInATip) {
    const POINT tab = drafter->chooseTab(L"two.dxf");
    ASSERT_NE(tab.x, -1);
    drafter->hover(drafter->view(), {100, 100});
    drafter->hover(drafter->tabs(), tab);
    const auto isTold = [&](const std::wstring& words) {
        return waitUntil([&] { return tipText().find(words) != std::wstring::npos; });
    };
    EXPECT_TRUE(isTold(m_paths[1]));
    picture("journey-tab-tip");
}

TEST_F(Documents, WhatIsEditedAndUndoneIsTheDrawingInFront) {
    ASSERT_TRUE(go(L"two.dxf"));
    scale(L"2");
    ASSERT_TRUE(isInFront(L"two.dxf*"));
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf*", L"three.dxf"}));
    ASSERT_TRUE(go(L"three.dxf"));
    scale(L"3");
    scale(L"4");
    ASSERT_TRUE(isInFront(L"three.dxf*"));
    ASSERT_TRUE(go(L"one.dxf"));
    drafter->key('Z', true);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf*", L"three.dxf*"}))
        << "nothing was done here";
    ASSERT_TRUE(go(L"two.dxf*"));
    drafter->key('Z', true);
    EXPECT_TRUE(isInFront(L"two.dxf"));
    drafter->key('Z', true);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf", L"three.dxf*"}));
    ASSERT_TRUE(go(L"three.dxf*"));
    drafter->key('Z', true);
    EXPECT_TRUE(isShown(IDC_LINETYPE_SCALE, L"3.0000"));
    drafter->key('Y', true);
    EXPECT_TRUE(isShown(IDC_LINETYPE_SCALE, L"4.0000"));
    drafter->key('S', true);
    EXPECT_TRUE(isInFront(L"three.dxf"));
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    ASSERT_EQ(drawing->readDxf(m_paths[2].c_str()), kOdOk);
    EXPECT_EQ(firstOf(*drawing)->linetypeScale(), 4);
}

TEST_F(Documents, SelectionPalettesAndPickersFollowTheDrawingInFront) {
    ASSERT_NE(properties(), nullptr);
    ASSERT_TRUE(go(L"one.dxf"));
    EXPECT_EQ(pickedLayer(), L"WALLS one");
    EXPECT_GE(entryOf(barPicker(IDC_LINETYPE), L"FENCE one"), 0);
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Line"));
    EXPECT_NE(pane(kPointerPane), L"");
    EXPECT_TRUE(waitUntil([&] { return pane(kSelectionPane) == L"1 selected"; }));
    ASSERT_TRUE(go(L"two.dxf"));
    EXPECT_EQ(pane(kPointerPane), L"") << "the place was one in the other drawing";
    EXPECT_EQ(pane(kSelectionPane), L"Nothing selected");
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Current settings"));
    EXPECT_EQ(pickedLayer(), L"WALLS two");
    for (const HWND list : {barPicker(IDC_LINETYPE), item(properties(), IDC_LINETYPE)}) {
        EXPECT_GE(entryOf(list, L"FENCE two"), 0);
        EXPECT_LT(entryOf(list, L"FENCE one"), 0);
    }
    ASSERT_NE(drafter->openLayers(), nullptr);
    const HWND layers = drafter->panelWith(kLayersPanel);
    const auto says = [&](const std::wstring& name) {
        return waitUntil(
            [&] { return textOf(item(layers, IDC_CURRENT_LAYER)).find(name) != std::wstring::npos; });
    };
    EXPECT_TRUE(says(L"WALLS two"));
    // The key is the frame's, wherever the focus is.
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"three.dxf"));
    EXPECT_TRUE(says(L"WALLS three"));
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_TRUE(says(L"WALLS one"));
    drafter->activate(drafter->frame());
    drafter->key('2', true);
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Line")) << "it is still selected";
}

TEST_F(Documents, WhatIsTypedInAPaletteGoesToTheDrawingThatItWasTypedFor) {
    ASSERT_TRUE(go(L"one.dxf"));
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    ASSERT_TRUE(isShown(IDC_PANEL_TITLE, L"Line"));
    drafter->replaceText(item(properties(), IDC_LINETYPE_SCALE), L"7");
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"two.dxf"));
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf*", L"two.dxf", L"three.dxf"}));
    // By the mouse.
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    drafter->replaceText(item(properties(), IDC_LINETYPE_SCALE), L"8");
    EXPECT_NE(drafter->chooseTab(L"three.dxf").x, -1);
    EXPECT_TRUE(become({L"one.dxf*", L"two.dxf*", L"three.dxf"}));
    // By a file that is dropped, which leaves the focus where it is.
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    drafter->replaceText(item(properties(), IDC_LINETYPE_SCALE), L"9");
    ASSERT_TRUE(DropOn(drafter->frame(), {m_paths[0]}));
    EXPECT_TRUE(become({L"one.dxf*", L"two.dxf*", L"three.dxf*"}));
    EXPECT_TRUE(isInFront(L"one.dxf*"));
    EXPECT_TRUE(isShown(IDC_LINETYPE_SCALE, L"7.0000")) << "its own";
}

TEST_F(Documents, TheMiddleButtonAndTheSignCloseATab) {
    const POINT second = drafter->chooseTab(L"two.dxf");
    ASSERT_NE(second.x, -1);
    ASSERT_NE(drafter->chooseTab(L"three.dxf").x, -1);
    drafter->middleClick(drafter->tabs(), second);
    EXPECT_TRUE(become({L"one.dxf", L"three.dxf"}));
    EXPECT_TRUE(isInFront(L"three.dxf")) << "the one in front stays";
    EXPECT_FALSE(scrolls());
    EXPECT_FALSE(std::filesystem::exists(m_paths[1] + L".lock"));
    drafter->key(VK_F4, true);
    EXPECT_TRUE(become({L"one.dxf"}));
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_FALSE(scrolls());
    // The sign stands at the right of the tab in front.
    const RECT strip = rectOf(drafter->tabs());
    for (int x = 20; x < strip.right - strip.left && drafter->drawing() != nullptr; x += 8)
        drafter->click(drafter->tabs(), {x, (strip.bottom - strip.top) / 2});
    EXPECT_TRUE(become({}));
}

TEST_F(Documents, TheEmptyDrawingOfTheStartGoesWithoutATrace) {
    drafter.reset();
    drafter = std::make_unique<Drafter>(L"");
    EXPECT_TRUE(isInFront(L"Untitled"));
    EXPECT_FALSE(scrolls());
    ASSERT_TRUE(DropOn(drafter->frame(), {m_paths[0]}));
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_TRUE(become({L"one.dxf"}));
    EXPECT_FALSE(scrolls());
    drafter.reset();
    drafter = std::make_unique<Drafter>(m_paths[0]);
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_TRUE(become({L"one.dxf"}));
    EXPECT_FALSE(scrolls());
    // Closed by the user, it is gone already.
    drafter.reset();
    drafter = std::make_unique<Drafter>(L"");
    EXPECT_TRUE(isInFront(L"Untitled"));
    drafter->activate(drafter->frame());
    drafter->key(VK_F4, true);
    EXPECT_TRUE(become({}));
    ASSERT_TRUE(DropOn(drafter->frame(), {m_paths[0]}));
    EXPECT_TRUE(become({L"one.dxf"}));
    // One that was changed stays.
    drafter.reset();
    drafter = std::make_unique<Drafter>(L"");
    EXPECT_TRUE(isInFront(L"Untitled"));
    drafter->activate(drafter->frame());
    drafter->pickByMouse(barPicker(IDC_LINE_WEIGHT), L"0.50 mm");
    EXPECT_TRUE(isInFront(L"Untitled*"));
    ASSERT_TRUE(DropOn(drafter->frame(), {m_paths[0]}));
    EXPECT_TRUE(become({L"Untitled*", L"one.dxf"}));
    EXPECT_FALSE(scrolls());
}

TEST_F(Documents, AStartOnAFileThatCannotBeReadTellsItAndBeginsWithAnEmptyDrawing) {
    const std::wstring bad = scratchPath(L"no drawing.dxf");
    std::ofstream(std::filesystem::path(bad)) << "this is no drawing\n";
    drafter.reset();
    drafter = std::make_unique<Drafter>(bad);
    EXPECT_NE(drafter->dismissMessage(drafter->frame()).find(L"no drawing.dxf"), std::wstring::npos);
    EXPECT_TRUE(isInFront(L"Untitled"));
    EXPECT_EQ(drafter->drawings(), Titles{L"Untitled"});
    std::filesystem::remove(bad);
}

TEST_F(Documents, AFileThatIsOpenAlreadyComesToTheFront) {
    drafter->openDrawing(m_paths[0]);
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf", L"three.dxf"}));
    // Named in another way.
    const std::filesystem::path folder = std::filesystem::path(m_paths[1]).parent_path();
    std::wstring other = (folder / L"." / L"TWO.DXF").wstring();
    ASSERT_TRUE(DropOn(drafter->frame(), {other}));
    EXPECT_TRUE(isInFront(L"two.dxf"));
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf", L"three.dxf"}));
}

TEST_F(Documents, SeveralThatAreChosenInTheDialogAreOpened) {
    drafter->key('F', false, true);
    drafter->key('L');
    ASSERT_TRUE(become({}));
    drafter->key('O', true);
    HWND dialog = drafter->waitForDialog(L"Open");
    ASSERT_NE(dialog, nullptr);
    drafter->type(std::filesystem::path(m_paths[0]).parent_path().wstring());
    drafter->key(VK_RETURN);
    drafter->type(L"\"one.dxf\" \"three.dxf\"");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(become({L"one.dxf", L"three.dxf"}));
}

TEST_F(Documents, ClosingTheProgramAsksForEachChangedDrawingAndCancelKeepsAll) {
    ASSERT_TRUE(go(L"one.dxf"));
    scale(L"2");
    ASSERT_TRUE(go(L"three.dxf"));
    scale(L"3");
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    HWND question = questionAbout(L"one.dxf");
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(textOf(drafter->drawing()), L"one.dxf*") << "the user sees it";
    picture("journey-closing-several");
    // The second command doesn't save.
    drafter->key(VK_DOWN);
    drafter->key(VK_RETURN);
    ASSERT_TRUE(drafter->waitUntilGone(question));
    question = questionAbout(L"three.dxf");
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf*", L"two.dxf", L"three.dxf*"}));
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    question = questionAbout(L"one.dxf");
    ASSERT_NE(question, nullptr);
    drafter->key(VK_RETURN);  // saves
    ASSERT_TRUE(drafter->waitUntilGone(question));
    question = questionAbout(L"three.dxf");
    ASSERT_NE(question, nullptr);
    drafter->key(VK_DOWN);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return !drafter->isRunning(); }));
    const OdDbDatabasePtr first(new OdDbDatabase), third(new OdDbDatabase);
    ASSERT_EQ(first->readDxf(m_paths[0].c_str()), kOdOk);
    ASSERT_EQ(third->readDxf(m_paths[2].c_str()), kOdOk);
    EXPECT_EQ(firstOf(*first)->linetypeScale(), 2);
    EXPECT_EQ(firstOf(*third)->linetypeScale(), 1);
}

TEST_F(Documents, ClosingAllAsksFirstAndCancelKeepsAll) {
    ASSERT_TRUE(go(L"two.dxf"));
    scale(L"2");
    drafter->key('F', false, true);
    drafter->key('L');
    HWND question = questionAbout(L"two.dxf");
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf*", L"three.dxf"}));
    // The same for a single one.
    drafter->activate(drafter->frame());
    drafter->key(VK_F4, true);
    question = questionAbout(L"two.dxf");
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf*", L"three.dxf"}));
}

TEST_F(Documents, WhatIsTypedCountsWhenItsDrawingIsClosed) {
    ASSERT_TRUE(go(L"two.dxf"));
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    ASSERT_TRUE(isShown(IDC_PANEL_TITLE, L"Line"));
    drafter->replaceText(item(properties(), IDC_LINETYPE_SCALE), L"7");
    // As the system asks it, without a command and without a click.
    ::PostMessageW(drafter->drawing(), WM_CLOSE, 0, 0);
    HWND question = questionAbout(L"two.dxf");
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_TRUE(become({L"one.dxf", L"two.dxf*", L"three.dxf"}));
}

TEST_F(Documents, AllAreSavedAndClosedByTheMenu) {
    ASSERT_TRUE(go(L"one.dxf"));
    scale(L"2");
    ASSERT_TRUE(go(L"two.dxf"));
    scale(L"3");
    ASSERT_TRUE(go(L"one.dxf*"));
    drafter->key('F', false, true);
    drafter->key('V');
    EXPECT_TRUE(become({L"one.dxf", L"two.dxf", L"three.dxf"}));
    EXPECT_TRUE(isInFront(L"one.dxf")) << "the one in front stays";
    drafter->key('F', false, true);
    drafter->key('L');
    EXPECT_TRUE(become({}));
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    ASSERT_EQ(drawing->readDxf(m_paths[0].c_str()), kOdOk);
    EXPECT_EQ(firstOf(*drawing)->linetypeScale(), 2);
}

TEST_F(Documents, WithoutADrawingWhatNeedsOneIsDisabledAndANewOneBringsItBack) {
    ASSERT_NE(properties(), nullptr);
    for (int i = 0; i < 3; ++i) drafter->key(VK_F4, true);
    ASSERT_TRUE(become({}));
    EXPECT_EQ(title(), L"Drafter");
    EXPECT_EQ(panelSays(IDC_PANEL_TITLE), L"No drawing is open.");
    EXPECT_EQ(textOf(item(drafter->frame(), kStatusBar)),
              L"No drawing is open. Ctrl+O opens one, Ctrl+N starts a new one.");
    for (const int id : {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER}) {
        EXPECT_FALSE(::IsWindowEnabled(item(properties(), id))) << id;
        EXPECT_FALSE(::IsWindowEnabled(item(item(drafter->frame(), kBar), id))) << id;
    }
    for (const int id : {IDC_LINETYPE_SCALE, IDC_ELEVATION, IDC_THICKNESS}) {
        EXPECT_FALSE(::IsWindowEnabled(item(properties(), id))) << id;
        EXPECT_EQ(panelSays(id), L"") << id;
    }
    picture("journey-no-drawing");
    // Keys that need a drawing do nothing; one would bring the picker bar back.
    drafter->key('V', false, true);
    drafter->key('P');
    const HWND bar = item(drafter->frame(), kBar);
    EXPECT_TRUE(waitUntil([&] { return !::IsWindowVisible(bar); }));
    for (const WORD letter : {'1', 'S', 'E', 'A', 'W', 'Z', 'Y', 'D', 'T', 'M', 'F'})
        drafter->key(letter, true);
    drafter->key(VK_F4, true);
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(::IsWindowEnabled(drafter->frame())) << "no dialog is up";
    EXPECT_FALSE(::IsWindowVisible(bar));
    // The palettes open, and are empty.
    ASSERT_NE(drafter->openLayers(), nullptr);
    const HWND layers = drafter->panelWith(kLayersPanel);
    EXPECT_EQ(::SendMessageW(item(layers, IDC_LAYER_LIST), LVM_GETITEMCOUNT, 0, 0), 0);
    EXPECT_FALSE(::IsWindowEnabled(item(layers, IDC_NEW_LAYER)));
    drafter->key('3', true);
    HWND blocks = nullptr;
    EXPECT_TRUE(waitUntil([&] { return (blocks = drafter->panelWith(IDC_BLOCK_LIST)) != nullptr; }));
    EXPECT_EQ(::SendMessageW(item(blocks, IDC_BLOCK_LIST), LVM_GETITEMCOUNT, 0, 0), 0);
    // Options work, but for what the drawing keeps.
    drafter->activate(drafter->frame());
    drafter->key('O', true, false, true);
    HWND options = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(options, nullptr);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(options));
    drafter->key('N', true);
    EXPECT_TRUE(isInFront(L"Untitled"));
    drafter->key('N', true);
    EXPECT_TRUE(isInFront(L"Untitled 2"));
    EXPECT_TRUE(waitUntil([&] { return ::IsWindowEnabled(item(blocks, IDC_BLOCK_LIST)); }));
    drafter->key('2', true);
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Current settings"));
    EXPECT_TRUE(::IsWindowEnabled(item(properties(), IDC_TRUE_COLOR)));
    EXPECT_EQ(panelSays(IDC_LINETYPE_SCALE), L"1.0000");
}

TEST_F(Documents, TheExtensionsPaletteIsOfUseOnlyWithADrawing) {
    constexpr int kProject = 1001, kProjectLabel = 1310;  // of the extension
    drafter->key('V', false, true);
    drafter->key('A');
    drafter->key('T');
    HWND panel = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (panel = drafter->panelWith(kProjectLabel)) != nullptr; }));
    const HWND project = item(panel, kProject);
    drafter->click(project);
    EXPECT_TRUE(waitUntil([&] { return focusOf(panel) == project; }));
    drafter->activate(drafter->frame());
    for (int i = 0; i < 3; ++i) drafter->key(VK_F4, true);
    ASSERT_TRUE(become({}));
    drafter->click(project);
    EXPECT_NE(focusOf(drafter->frame()), project);
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    ASSERT_TRUE(isInFront(L"Untitled"));
    drafter->click(project);
    EXPECT_TRUE(waitUntil([&] { return focusOf(panel) == project; }));
}

TEST_F(Documents, OptionsHoldForEveryOpenDrawing) {
    drafter->key('O', true, false, true);
    HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    drafter->key(VK_NEXT, true);
    HWND page = nullptr;
    ASSERT_TRUE(waitUntil([&] {
        page = ::FindWindowExW(dialog, page, L"#32770", nullptr);
        return page != nullptr && ::IsWindowVisible(page) && item(page, IDC_CROSSHAIR) != nullptr;
    }));
    drafter->replaceText(item(page, IDC_CROSSHAIR), L"100");
    drafter->key(VK_RETURN);
    ASSERT_TRUE(drafter->waitUntilGone(dialog));
    for (const wchar_t* name : {L"one.dxf", L"two.dxf"}) {
        ASSERT_TRUE(go(name));
        // Far from the pointer: the arm of the crosshair, and the paper beside it.
        drafter->hover(drafter->view(), {60, 100});
        const auto pixel = [&](POINT at) {
            ::ClientToScreen(drafter->view(), &at);
            const HDC screen = ::GetDC(nullptr);
            const COLORREF color = ::GetPixel(screen, at.x, at.y);
            ::ReleaseDC(nullptr, screen);
            return color;
        };
        EXPECT_TRUE(waitUntil([&] { return pixel({400, 100}) != pixel({400, 112}); })) << name;
    }
}

TEST_F(Documents, ADialogThatWaitsForAPickComesBackWhenItsDrawingIsToBeLeftOrClosed) {
    HWND dialog = openByKey('M');
    ASSERT_NE(dialog, nullptr);
    const auto isAway = [&] {
        return waitUntil([&] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter->frame()); });
    };
    const auto isBack = [&] {
        return waitUntil([&] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter->frame()); });
    };
    const std::function<void()> ways[] = {[&] { drafter->key(VK_TAB, true); },
                                          [&] { drafter->key(VK_F4, true); },
                                          [&] { drafter->key(VK_F6, true); },
                                          [&] {
                                              drafter->click(drafter->tabs(), {20, 10});
                                          },
                                          [&] {
                                              drafter->middleClick(drafter->tabs(), {20, 10});
                                          }};
    for (const auto& leave : ways) {
        drafter->click(item(dialog, IDC_PICK_DISTANCE));
        ASSERT_TRUE(isAway());
        leave();
        EXPECT_TRUE(isBack());
        EXPECT_EQ(textOf(drafter->drawing()), L"three.dxf");
        EXPECT_EQ(drafter->drawings().size(), 3u);
    }
    cancel(dialog);
    EXPECT_TRUE(isInFront(L"three.dxf"));
}

TEST_F(Documents, APickWithoutADialogEndsWithItsDrawing) {
    drafter->key('3', true);
    HWND blocks = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (blocks = drafter->panelWith(IDC_BLOCK_LIST)) != nullptr; }));
    const HWND status = item(drafter->frame(), kStatusBar);
    const std::wstring idle = textOf(status);
    const auto startPick = [&] {
        drafter->click(item(blocks, IDOK));
        return waitUntil([&] { return textOf(status) != idle; });
    };
    ASSERT_TRUE(startPick());
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(isInFront(L"one.dxf"));
    EXPECT_TRUE(waitUntil([&] { return textOf(status) == idle; }));
    drafter->click(drafter->view(), {100, 100});
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf", L"two.dxf", L"three.dxf"})) << "nothing is inserted";
    // It has ended even if the drawing stays after all.
    scale(L"2");
    ASSERT_TRUE(startPick());
    drafter->key(VK_F4, true);
    HWND question = questionAbout(L"one.dxf");
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_TRUE(waitUntil([&] { return textOf(status) == idle; }));
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_TRUE(become({L"one.dxf", L"two.dxf", L"three.dxf"})) << "commands are served";
    ASSERT_TRUE(startPick());
    drafter->key(VK_F4, true);
    EXPECT_TRUE(become({L"two.dxf", L"three.dxf"}));
    EXPECT_TRUE(waitUntil([&] { return textOf(status) == idle; }));
    drafter->click(drafter->view(), {100, 100});
    EXPECT_EQ(drafter->drawings(), (Titles{L"two.dxf", L"three.dxf"}));
}

TEST_F(Documents, PalettesThatAreHiddenOrFloatFollowWhatIsOpenedAndClosed) {
    const HWND panel = properties();
    ASSERT_NE(panel, nullptr);
    const HWND set = ::GetParent(::GetParent(panel));
    drafter->drag(set, {60, -8}, {360, 200});
    ASSERT_TRUE(waitUntil([&] { return ::GetAncestor(panel, GA_ROOT) != drafter->frame(); }));
    for (const wchar_t* name : {L"three.dxf", L"two.dxf"}) {
        drafter->activate(drafter->frame());
        ASSERT_TRUE(go(name));
        drafter->key(VK_F4, true);
    }
    ASSERT_TRUE(become({L"one.dxf"}));
    drafter->click(drafter->view(), {4, 4});
    drafter->key('A', true);
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Line"));
    // Hidden, and meanwhile the last drawing goes and another one comes.
    drafter->key('V', false, true);
    drafter->key('A');
    drafter->key('P');
    ASSERT_TRUE(waitUntil([&] { return properties() == nullptr; }));
    drafter->key(VK_F4, true);
    ASSERT_TRUE(become({}));
    drafter->openDrawing(m_paths[1]);
    ASSERT_TRUE(isInFront(L"two.dxf"));
    drafter->key('2', true);
    ASSERT_TRUE(waitUntil([&] { return properties() != nullptr; }));
    EXPECT_TRUE(isShown(IDC_PANEL_TITLE, L"Current settings"));
    EXPECT_EQ(currentEntry(item(properties(), IDC_LAYER)), L"WALLS two");
}

TEST_F(Documents, OneIsNotSavedOverAnotherThatIsOpen) {
    ASSERT_TRUE(go(L"two.dxf"));
    const std::uintmax_t size = std::filesystem::file_size(m_paths[0]);
    drafter->key('F', false, true);
    drafter->key('A');
    HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(focusOf(dialog), m_paths[0]);
    drafter->key(VK_RETURN);
    HWND question = drafter->waitForDialogOf(dialog);
    ASSERT_NE(question, nullptr);
    drafter->click(item(question, IDYES));
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_NE(drafter->dismissMessage(drafter->frame()).find(L"is open here as well"), std::wstring::npos);
    EXPECT_EQ(std::filesystem::file_size(m_paths[0]), size);
    EXPECT_TRUE(isInFront(L"two.dxf"));
}

TEST_F(Documents, AFileThatAnotherProgramWroteIsToldForItsOwnDrawingOnly) {
    for (const wchar_t* name : {L"one.dxf", L"two.dxf"}) {
        ASSERT_TRUE(go(name));
        scale(L"2");
    }
    std::filesystem::last_write_time(m_paths[0],
                                     std::filesystem::last_write_time(m_paths[0]) + std::chrono::hours(1));
    drafter->key('S', true);
    EXPECT_TRUE(isInFront(L"two.dxf")) << "this one is as it was";
    ASSERT_TRUE(go(L"one.dxf*"));
    drafter->key('S', true);
    HWND question = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(question, nullptr);
    cancel(question);
    EXPECT_EQ(drafter->drawings(), (Titles{L"one.dxf*", L"two.dxf", L"three.dxf"}));
}

TEST_F(Documents, ADamagedFileAmongOthersIsToldAndTheOthersOpen) {
    drafter->key('F', false, true);
    drafter->key('L');
    ASSERT_TRUE(become({}));
    const std::wstring bad = scratchPath(L"no drawing.dxf");
    std::ofstream(std::filesystem::path(bad)) << "this is no drawing\n";
    ASSERT_TRUE(DropOn(drafter->frame(), {m_paths[0], bad, m_paths[1]}));
    HWND told = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(told, nullptr);
    EXPECT_NE(drafter->dismissMessage(drafter->frame()).find(L"no drawing.dxf"), std::wstring::npos);
    EXPECT_TRUE(become({L"one.dxf", L"two.dxf"}));
    std::filesystem::remove(bad);
}

}  // namespace
