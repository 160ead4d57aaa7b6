// A draughtsman takes changes back and does them again, by mouse and by keys alone.
#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kBar = 0xE805;

class UndoJourney : public Journey {
protected:
    UndoJourney() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        OdDbLine* const line = new OdDbLine;
        line->setEndPoint({100, 50, 0});
        space->appendOdDbEntity(line);
        open(*drawing, L"undo.dxf");
    }
    bool isModified() const { return textOf(drafter->frame()).find(L'*') != std::wstring::npos; }
    bool becomes(bool modified) const {
        return waitUntil([&] { return isModified() == modified; });
    }
    /// Gives everything in the drawing a linetype scale.
    void scale(const wchar_t* number) {
        HWND dialog = openOnAll();
        ASSERT_NE(dialog, nullptr);
        drafter->replaceText(item(dialog, IDC_LINETYPE_SCALE), number);
        ok(dialog);
    }
    std::wstring shownScale() {
        HWND dialog = openOnAll();
        const std::wstring text = textOf(item(dialog, IDC_LINETYPE_SCALE));
        cancel(dialog);
        return text;
    }
    /// Takes the entry of the Edit menu with this letter.
    void edit(WORD letter) {
        drafter->activate(drafter->frame());
        drafter->key('E', false, true);
        if (letter == 'U') picture("journey-undo-menu");
        drafter->key(letter);
    }
};

TEST_F(UndoJourney, ByKeysChangesGoAndComeBackAndTheTitleFollows) {
    EXPECT_FALSE(isModified());
    scale(L"2");
    EXPECT_TRUE(becomes(true));
    scale(L"3");
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_EQ(shownScale(), L"2.0000");
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_TRUE(becomes(false)) << "as it was opened";
    EXPECT_EQ(shownScale(), L"1.0000");
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_FALSE(isModified()) << "nothing more to undo";
    drafter->key('Y', true);
    drafter->key('Y', true);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(shownScale(), L"3.0000");
    EXPECT_EQ(firstOf(*saved())->linetypeScale(), 3);
    drafter->key('Z', true);
    EXPECT_TRUE(becomes(true)) << "another state than the saved one";
    drafter->key('Y', true);
    EXPECT_TRUE(becomes(false));
}

TEST_F(UndoJourney, ByTheMenuAndThePickerBar) {
    HWND bar = item(drafter->frame(), kBar);
    drafter->pickByMouse(item(bar, IDC_LINE_WEIGHT), L"0.50 mm");
    ASSERT_TRUE(becomes(true));
    edit('U');
    EXPECT_TRUE(becomes(false));
    EXPECT_EQ(currentEntry(item(bar, IDC_LINE_WEIGHT)), L"ByLayer") << "the bar follows";
    edit('R');
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(currentEntry(item(bar, IDC_LINE_WEIGHT)), L"0.50 mm");
    EXPECT_EQ(saved()->celweight(), OdDb::kLnWt050);
}

TEST_F(UndoJourney, UnitsAndTextStylesAreUndoneToo) {
    drafter->activate(drafter->frame());
    drafter->key('O', true, false, true);
    HWND options = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(options, nullptr);
    HWND tabs = item(options, IDC_TABS);
    ASSERT_NE(tabs, nullptr);
    drafter->key(VK_TAB, true);
    drafter->key(VK_TAB, true);
    HWND precision = nullptr;
    ASSERT_TRUE(waitUntil([&] {
        ::EnumChildWindows(
            options,
            [](HWND child, LPARAM found) -> BOOL {
                if (::GetDlgCtrlID(child) != IDC_LINEAR_PRECISION || !::IsWindowVisible(child)) return TRUE;
                *reinterpret_cast<HWND*>(found) = child;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&precision));
        return precision != nullptr;
    }));
    drafter->pick(precision, 1);
    ok(options);
    ASSERT_TRUE(becomes(true));
    HWND style = openByKey('T');
    ASSERT_NE(style, nullptr);
    drafter->replaceText(item(style, IDC_TEXT_WIDTH), L"3");
    ok(style);
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_TRUE(isModified()) << "the units are still changed";
    drafter->key('Z', true);
    EXPECT_TRUE(becomes(false));
}

TEST_F(UndoJourney, ClosingAsksOnlyInAnUnsavedState) {
    scale(L"2");
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    HWND question = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(question, nullptr);
    cancel(question);
    drafter->activate(drafter->frame());
    drafter->key('Z', true);
    EXPECT_TRUE(becomes(false));
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(waitUntil([&] { return !drafter->isRunning(); }));
}

TEST_F(UndoJourney, AnotherDrawingBeginsWithoutSteps) {
    scale(L"2");
    EXPECT_FALSE(saved().isNull());
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    EXPECT_TRUE(waitUntil([&] { return textOf(drafter->frame()).rfind(L"undo.dxf", 0) != 0; }));
    drafter->key('Z', true);
    EXPECT_FALSE(isModified());
}

}  // namespace
