// A draughtsman edits dimension styles and text styles, by mouse and by keys alone.
#include "journey_fixture.h"

using namespace journey;

namespace {

/// A drawing with dimension and text styles that differ.
class Styles : public Journey {
protected:
    Styles() : Journey(L"site_plan.dxf") {}

    HWND openDimensionStyle() { return openByKey('D'); }
    HWND openTextStyle() { return openByKey('T'); }
    static OdDbDimStyleTableRecordPtr dimStyle(OdDbDatabase& drawing, const wchar_t* name) {
        OdDbDimStyleTablePtr styles;
        drawing.getDimStyleTable(styles);
        return styles->getAt(name).open<OdDbDimStyleTableRecord>();
    }
    static OdDbTextStyleTableRecordPtr textStyle(OdDbDatabase& drawing, const wchar_t* name) {
        OdDbTextStyleTablePtr styles;
        drawing.getTextStyleTable(styles);
        return styles->getAt(name).open<OdDbTextStyleTableRecord>();
    }
};

class OwnBlocks : public Journey {};

TEST_F(Styles, TheCurrentDimensionStyleIsShownAndItsArrowheadsArePicked) {
    HWND dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_STYLE)), L"SURVEY");
    EXPECT_EQ(currentEntry(item(dialog, IDC_FIRST_ARROW)), L"Dot");
    EXPECT_EQ(currentEntry(item(dialog, IDC_SECOND_ARROW)), L"Architectural tick");
    drafter->pickByMouse(item(dialog, IDC_FIRST_ARROW), L"Box");
    drafter->pickByMouse(item(dialog, IDC_LEADER_ARROW), L"Right angle");
    drafter->pickByMouse(item(dialog, IDC_CALLOUT), L"Hexagon");
    drafter->pickByMouse(item(dialog, IDC_DIMENSION_COLOR), L"green");
    drafter->pickByMouse(item(dialog, IDC_DIMENSION_WEIGHT), L"0.35 mm");
    drafter->pickByMouse(item(dialog, IDC_DIMENSION_LINETYPE), L"DOT");
    drafter->replaceText(item(dialog, IDC_ARROW_SIZE), L"1.75");
    picture("journey-dimension-style");
    ok(dialog);
    // Its file is of a version that has no linetypes of dimensions, which is told first.
    drafter->activate(drafter->frame());
    drafter->key('S', true);
    EXPECT_NE(drafter->dismissMessage(drafter->frame()).find(L"Settings of DIMSTYLE left out: 1"),
              std::wstring::npos);
    const OdDbDatabasePtr drawing = saved();
    const auto style = dimStyle(*drawing, L"SURVEY");
    EXPECT_EQ(style->dimblk1(), L"_BoxBlank");
    EXPECT_EQ(style->dimblk2(), L"_ArchTick");
    EXPECT_EQ(style->dimldrblk(), L"_Open90");
    EXPECT_TRUE(style->dimsah());
    EXPECT_EQ(style->dimasz(), 1.75);
    EXPECT_EQ(style->dimclrd().colorIndex(), 3);
    EXPECT_EQ(style->dimlwd(), OdDb::kLnWt035);
    dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_FIRST_ARROW)), L"Box");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LEADER_ARROW)), L"Right angle");
    EXPECT_EQ(currentEntry(item(dialog, IDC_CALLOUT)), L"Hexagon");
    EXPECT_EQ(currentEntry(item(dialog, IDC_DIMENSION_WEIGHT)), L"0.35 mm");
    cancel(dialog);
}

TEST_F(Styles, ANewDimensionStyleIsMadeByKeysAlone) {
    HWND dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->key('N', false, true);
    HWND name = drafter->waitForDialogOf(dialog);
    ASSERT_NE(name, nullptr);
    drafter->type(L"SURVEY");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(::IsWindowVisible(name)) << "the name is taken";
    EXPECT_NE(textOf(item(name, IDC_MESSAGE)), L"");
    drafter->replaceText(item(name, IDC_STYLE_NAME), L"Keys");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(name));
    EXPECT_EQ(currentEntry(item(dialog, IDC_STYLE)), L"Keys");
    drafter->key('F', false, true);
    EXPECT_EQ(focusOf(dialog), item(dialog, IDC_FIRST_ARROW));
    drafter->pickByKeys(item(dialog, IDC_FIRST_ARROW), L"Open");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    const OdDbDatabasePtr drawing = saved();
    ASSERT_TRUE(dimStyle(*drawing, L"Keys"));
    EXPECT_EQ(dimStyle(*drawing, L"Keys")->dimblk1(), L"_Open");
    EXPECT_EQ(dimStyle(*drawing, L"SURVEY")->dimblk1(), L"_Dot") << "the copied style is as it was";
    EXPECT_EQ(drawing->dimstyle(), dimStyle(*drawing, L"Keys")->objectId());
}

TEST_F(Styles, AUsersArrowheadIsABlockOfTheDrawing) {
    HWND dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->pickLast(item(dialog, IDC_SECOND_ARROW));
    HWND blocks = drafter->waitForDialogOf(dialog);
    ASSERT_NE(blocks, nullptr);
    drafter->type(L"FLOW");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(blocks));
    EXPECT_EQ(currentEntry(item(dialog, IDC_SECOND_ARROW)), L"FLOW");
    drafter->pickLast(item(dialog, IDC_CALLOUT));
    blocks = drafter->waitForDialogOf(dialog);
    ASSERT_NE(blocks, nullptr);
    cancel(blocks);
    EXPECT_EQ(currentEntry(item(dialog, IDC_CALLOUT)), L"") << "there was none before";
    picture("journey-user-arrow");
    ok(dialog);
    EXPECT_EQ(dimStyle(*saved(), L"SURVEY")->dimblk2(), L"FLOW");
    dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_SECOND_ARROW)), L"FLOW");
    cancel(dialog);
}

TEST_F(Styles, ABadArrowSizeIsRefusedAlsoWhenAnotherStyleIsChosen) {
    HWND dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(item(dialog, IDC_ARROW_SIZE), L"-2");
    EXPECT_NE(textOf(item(dialog, IDC_MESSAGE)), L"");
    drafter->pickByMouse(item(dialog, IDC_STYLE), L"Standard");
    EXPECT_EQ(currentEntry(item(dialog, IDC_STYLE)), L"SURVEY");
    drafter->click(item(dialog, IDOK));
    EXPECT_TRUE(::IsWindowVisible(dialog));
    EXPECT_EQ(focusOf(dialog), item(dialog, IDC_ARROW_SIZE));
    drafter->replaceText(item(dialog, IDC_ARROW_SIZE), L"2");
    drafter->pickByMouse(item(dialog, IDC_DIMENSION_COLOR), L"green");
    drafter->pickByMouse(item(dialog, IDC_STYLE), L"Standard");
    EXPECT_EQ(currentEntry(item(dialog, IDC_FIRST_ARROW)), L"Closed filled");
    EXPECT_EQ(currentEntry(item(dialog, IDC_DIMENSION_COLOR)), L"ByBlock");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    EXPECT_EQ(dimStyle(*drawing, L"SURVEY")->dimasz(), 2) << "what was entered before the change counts";
    EXPECT_EQ(dimStyle(*drawing, L"SURVEY")->dimclrd().colorIndex(), 3);
    EXPECT_TRUE(dimStyle(*drawing, L"Standard")->dimclrd().isByBlock())
        << "one style's color is not another's";
    EXPECT_EQ(drawing->dimstyle(), dimStyle(*drawing, L"Standard")->objectId());
}

TEST_F(Styles, CancelChangesNeitherKindOfStyle) {
    HWND dialog = openDimensionStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->pickByMouse(item(dialog, IDC_FIRST_ARROW), L"Box");
    cancel(dialog);
    dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(item(dialog, IDC_TEXT_HEIGHT), L"7");
    cancel(dialog);
    EXPECT_EQ(textOf(drafter->frame()).find(L'*'), std::wstring::npos);
}

TEST_F(Styles, ATextStylesSizesAreEditedMarkedAndStored) {
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    drafter->pickByMouse(item(dialog, IDC_STYLE), L"NOTES");
    EXPECT_EQ(textOf(item(dialog, IDC_TEXT_SLANT)).substr(0, 2), L"10");
    drafter->replaceText(item(dialog, IDC_TEXT_HEIGHT), L"-1");
    drafter->click(item(dialog, IDOK));
    EXPECT_TRUE(::IsWindowVisible(dialog));
    EXPECT_NE(textOf(item(dialog, IDC_MESSAGE)), L"");
    picture("journey-text-height");
    drafter->replaceText(item(dialog, IDC_TEXT_HEIGHT), L"2.25");
    drafter->replaceText(item(dialog, IDC_TEXT_WIDTH), L"0.8");
    drafter->replaceText(item(dialog, IDC_TEXT_SLANT), L"-12");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    const auto style = textStyle(*drawing, L"NOTES");
    EXPECT_EQ(style->textSize(), 2.25);
    EXPECT_EQ(style->xScale(), 0.8);
    EXPECT_NEAR(style->obliquingAngle(), -12 * 3.14159265358979 / 180, 1e-9);
    EXPECT_EQ(style->fileName(), L"drafter.shx") << "a font that was not picked stays";
    EXPECT_EQ(style->bigFontFileName(), L"drafterc.shx");
    EXPECT_EQ(textStyle(*drawing, L"TITLES")->typeFace(), L"Arial");
    EXPECT_EQ(drawing->textstyle(), style->objectId());
}

TEST_F(Styles, HelpIsAtHandInEachDialogByKeyAndButton) {
    for (const WORD letter : {WORD{'1'}, WORD{'D'}, WORD{'T'}}) {
        HWND dialog = openByKey(letter);
        ASSERT_NE(dialog, nullptr);
        drafter->key(VK_F1);
        HWND help = drafter->waitForDialogOf(dialog);
        ASSERT_NE(help, nullptr) << static_cast<char>(letter);
        cancel(help);
        drafter->click(item(dialog, IDHELP));
        help = drafter->waitForDialogOf(dialog);
        ASSERT_NE(help, nullptr) << static_cast<char>(letter);
        cancel(help);
        cancel(dialog);
    }
}

TEST_F(Styles, BothDialogsGrowAndComeBackWhereTheyWereLeft) {
    for (const WORD letter : {WORD{'D'}, WORD{'T'}}) {
        HWND dialog = openByKey(letter);
        ASSERT_NE(dialog, nullptr);
        const RECT before = rectOf(dialog), sample = rectOf(item(dialog, IDC_SAMPLE));
        const RECT wanted = {50, 30, 50 + before.right - before.left + 90,
                             30 + before.bottom - before.top + 60};
        drafter->place(dialog, wanted);
        const RECT grown = rectOf(item(dialog, IDC_SAMPLE));
        EXPECT_EQ(grown.right - grown.left, sample.right - sample.left + 90);
        EXPECT_EQ(grown.bottom - grown.top, sample.bottom - sample.top + 60);
        picture(letter == 'D' ? "journey-dimension-resized" : "journey-text-resized");
        ok(dialog);
        dialog = openByKey(letter);
        ASSERT_NE(dialog, nullptr);
        const RECT again = rectOf(dialog);
        EXPECT_TRUE(::EqualRect(&again, &wanted)) << static_cast<char>(letter);
        cancel(dialog);
    }
}

TEST_F(OwnBlocks, WithoutBlocksTheUserIsToldSo) {
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    open(*drawing, L"no_blocks.dxf");
    drafter->key('D', true);
    HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    drafter->pickLast(item(dialog, IDC_FIRST_ARROW));
    HWND message = drafter->waitForDialogOf(dialog);
    ASSERT_NE(message, nullptr);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(message));
    EXPECT_EQ(currentEntry(item(dialog, IDC_FIRST_ARROW)), L"Closed filled");
    cancel(dialog);
}

}  // namespace
