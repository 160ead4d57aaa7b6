// A draughtsman picks linetypes, lineweights, colours and plot styles, by mouse and by keys alone, in
// drawings with many, few and changing linetypes.
#include "journey_fixture.h"

using namespace journey;

namespace {

/// The site plan: several linetypes, weights, and named plot styles.
class Pickers : public Journey {
protected:
    Pickers() : Journey(L"site_plan.dxf") {}
};

/// Drawings that the test makes.
class OwnDrawings : public Journey {};

/// A line in a new drawing.
OdDbDatabasePtr drawingWithLine() {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdSmartPtr<OdDbLine> line(new OdDbLine);
    line->setEndPoint({100, 50, 0});
    drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(OdDbEntityPtr(line.get()));
    return drawing;
}

void addLinetype(OdDbDatabase& drawing, const std::wstring& name) {
    OdDbLinetypeTablePtr table;
    drawing.getLinetypeTable(table, OdDb::kForWrite);
    OdSmartPtr<OdDbLinetypeTableRecord> record(new OdDbLinetypeTableRecord);
    record->setName(name.c_str());
    OdArray<double> dashes;
    dashes.append(4);
    dashes.append(-2);
    record->setDashes(dashes);
    table->add(OdDbSymbolTableRecordPtr(record.get()));
}

TEST_F(Pickers, EachKindIsPickedByTheMouseAndStored) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    drafter->pickByMouse(item(dialog, IDC_LINETYPE), L"DASHED");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINETYPE)), L"DASHED");
    drafter->pickByMouse(item(dialog, IDC_LINE_WEIGHT), L"0.50 mm");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINE_WEIGHT)), L"0.50 mm");
    drafter->pickByMouse(item(dialog, IDC_PLOT_STYLE), L"Heavy");
    drafter->pickByMouse(item(dialog, IDC_TRUE_COLOR), L"cyan");
    picture("journey-picked-by-mouse");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    for (const OdDbEntity* entity : entitiesOf(*drawing)) {
        EXPECT_EQ(entity->linetype(), L"DASHED");
        EXPECT_EQ(entity->lineWeight(), OdDb::kLnWt050);
        EXPECT_EQ(entity->plotStyleName(), L"Heavy");
        EXPECT_EQ(entity->colorIndex(), 4);
    }
}

TEST_F(Pickers, EachKindIsPickedByKeysAlone) {
    drafter->activate(drafter->frame());
    drafter->key('A', true);
    HWND dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    const struct {
        WORD mnemonic;
        int id;
        const wchar_t* text;
    } kPicks[] = {{'C', IDC_TRUE_COLOR, L"blue"},
                  {'N', IDC_LINETYPE, L"CENTER"},
                  {'W', IDC_LINE_WEIGHT, L"0.13 mm"},
                  {'P', IDC_PLOT_STYLE, L"ByBlock"}};
    for (const auto& pick : kPicks) {
        HWND combo = item(dialog, pick.id);
        drafter->key(pick.mnemonic, false, true);
        EXPECT_EQ(focusOf(dialog), combo) << static_cast<char>(pick.mnemonic);
        drafter->pickByKeys(combo, pick.text);
        EXPECT_EQ(currentEntry(combo), pick.text);
    }
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    const OdDbDatabasePtr drawing = saved();
    const OdDbEntity* first = firstOf(*drawing);
    EXPECT_EQ(first->colorIndex(), 5);
    EXPECT_EQ(first->linetype(), L"CENTER");
    EXPECT_EQ(first->lineWeight(), OdDb::kLnWt013);
    EXPECT_EQ(first->plotStyleName(), L"ByBlock");
}

TEST_F(Pickers, ObjectsThatDifferShowEmptyPickersAndKeepTheirOwn) {
    const OdDbDatabasePtr before(new OdDbDatabase);
    ASSERT_EQ(before->readDxf(path.c_str()), kOdOk);
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINETYPE)), L"*VARIES*");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINE_WEIGHT)), L"*VARIES*");
    EXPECT_EQ(currentEntry(item(dialog, IDC_PLOT_STYLE)), L"ByLayer");
    drafter->replaceText(item(dialog, IDC_THICKNESS), L"3");
    ok(dialog);
    const OdDbDatabasePtr after = saved();
    ASSERT_EQ(entitiesOf(*after).size(), entitiesOf(*before).size());
    for (std::size_t i = 0; i < entitiesOf(*after).size(); ++i) {
        EXPECT_EQ(entitiesOf(*after)[i]->linetype(), entitiesOf(*before)[i]->linetype()) << i;
        EXPECT_EQ(entitiesOf(*after)[i]->lineWeight(), entitiesOf(*before)[i]->lineWeight()) << i;
        EXPECT_EQ(entitiesOf(*after)[i]->thickness(), 3) << i;
    }
}

TEST_F(Pickers, WithoutASelectionTheCurrentSettingsAreEditedAndShownAgain) {
    HWND dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINETYPE)), L"ByLayer");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINE_WEIGHT)), L"ByLayer");
    drafter->pickByMouse(item(dialog, IDC_LINETYPE), L"DOT");
    drafter->pickByMouse(item(dialog, IDC_LINE_WEIGHT), L"1.00 mm");
    drafter->pickByMouse(item(dialog, IDC_PLOT_STYLE), L"Heavy");
    drafter->replaceText(item(dialog, IDC_LINETYPE_SCALE), L"0.5");
    ok(dialog);
    dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINETYPE)), L"DOT");
    EXPECT_EQ(currentEntry(item(dialog, IDC_LINE_WEIGHT)), L"1.00 mm");
    EXPECT_EQ(currentEntry(item(dialog, IDC_PLOT_STYLE)), L"Heavy");
    cancel(dialog);
    const OdDbDatabasePtr drawing = saved();
    EXPECT_EQ(drawing->celtype().open<OdDbLinetypeTableRecord>()->getName(), L"DOT");
    EXPECT_EQ(drawing->celweight(), OdDb::kLnWt100);
    EXPECT_EQ(drawing->currentPlotStyleName(), L"Heavy");
    EXPECT_EQ(drawing->getCELTSCALE(), 0.5);
}

TEST_F(Pickers, ASecondDrawingBringsItsOwnLinetypesAndPlotStyles) {
    HWND dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_GE(entryOf(item(dialog, IDC_LINETYPE), L"BOUNDARY"), 0);
    EXPECT_LT(entryOf(item(dialog, IDC_LINETYPE), L"SURVEY|DASHED"), 0) << "it came with a reference";
    EXPECT_TRUE(::IsWindowEnabled(item(dialog, IDC_PLOT_STYLE)));
    cancel(dialog);
    drafter->openDrawing(scratchCopy(L"bracket.dxf"));
    EXPECT_EQ(textOf(drafter->frame()), L"bracket.dxf - Drafter");
    dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_LT(entryOf(item(dialog, IDC_LINETYPE), L"BOUNDARY"), 0);
    EXPECT_GE(entryOf(item(dialog, IDC_LINETYPE), L"PHANTOM"), 0);
    EXPECT_FALSE(::IsWindowEnabled(item(dialog, IDC_PLOT_STYLE)));
    EXPECT_EQ(currentEntry(item(dialog, IDC_PLOT_STYLE)), L"ByColor");
    cancel(dialog);
}

TEST_F(OwnDrawings, TwoThousandLinetypesAreListedInOrderAndTheLastIsPicked) {
    const OdDbDatabasePtr drawing = drawingWithLine();
    for (int i = 1999; i >= 0; --i) addLinetype(*drawing, L"TYPE-" + std::to_wstring(10000 + i));
    open(*drawing, L"many_linetypes.dxf");
    const ULONGLONG start = ::GetTickCount64();
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    EXPECT_LT(::GetTickCount64() - start, 10000u);
    HWND combo = item(dialog, IDC_LINETYPE);
    EXPECT_EQ(entryCount(combo), 2003);
    EXPECT_EQ(entryOf(combo, L"Continuous"), 2);
    EXPECT_EQ(entryOf(combo, L"TYPE-10000"), 3);
    drafter->drop(combo);
    picture("journey-many-linetypes");
    drafter->key(VK_END);
    drafter->key(VK_UP);  // Other stands last
    drafter->key(VK_RETURN);
    EXPECT_EQ(currentEntry(combo), L"TYPE-11999");
    ok(dialog);
    EXPECT_EQ(firstOf(*saved())->linetype(), L"TYPE-11999");
}

TEST_F(OwnDrawings, ADrawingWithoutLinetypesOfItsOwnListsTheThreeFixedOnes) {
    const OdDbDatabasePtr drawing = drawingWithLine();
    open(*drawing, L"no_linetypes.dxf");
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND combo = item(dialog, IDC_LINETYPE);
    EXPECT_EQ(entryCount(combo), 3);
    drafter->drop(combo);
    EXPECT_EQ(entryCount(combo), 4) << "Other joins when the list is dropped";
    picture("journey-no-linetypes");
    drafter->key(VK_ESCAPE);
    drafter->pickByMouse(combo, L"Continuous");
    ok(dialog);
    EXPECT_EQ(firstOf(*saved())->linetype(), L"Continuous");
}

}  // namespace
