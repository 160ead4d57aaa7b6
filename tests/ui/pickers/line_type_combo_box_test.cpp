#include "line_type_fixture.h"

using ui_test::addLinetype;
using ui_test::InHolder;
using ui_test::linetypeId;
using ui_test::LinetypePicker;
using ui_test::LinetypePickerInHolder;
using ui_test::WorkingDrawing;

namespace {

using Texts = std::vector<std::wstring>;

const Texts kAllTexts = {L"ByLayer", L"ByBlock", L"Continuous", L"Dash2", L"dash10", L"Zigzag"};

}  // namespace

TEST(LinetypePicker, ListsByLayerByBlockAndTheOthersByName) {
    LinetypePickerInHolder of;
    EXPECT_EQ(of.in.texts(), kAllTexts);
    EXPECT_EQ(of.picker.getOIDSel(0), of.idOf(L"ByLayer"));
    EXPECT_EQ(of.picker.getOIDSel(1), of.idOf(L"ByBlock"));
    EXPECT_EQ(of.picker.getOIDSel(5), of.zigzag);
    EXPECT_EQ(of.picker.getLTLocalMapDB(), of.drawing.database());
    EXPECT_FALSE(of.picker.getDbReload());
}

TEST(LinetypePicker, CargoOfAnItemIsItsRecord) {
    LinetypePickerInHolder of;
    const auto* record = reinterpret_cast<CKtUiLTypeRecord*>(of.picker.GetItemCargo(5));
    EXPECT_STREQ(record->m_name, L"Zigzag");
    EXPECT_EQ(record->m_id, of.zigzag);
    EXPECT_EQ(record->m_flags, 0);
    EXPECT_EQ(CKtUiLTypeRecord::fromCargo(kCargoOther), nullptr);
    EXPECT_EQ(CKtUiLTypeRecord::fromCargo(0), nullptr);
}

TEST(LinetypePicker, LeadersAreKnownByIdNotByName) {
    LinetypePickerInHolder of;
    addLinetype(of.drawing.database(), L"AAA");
    of.picker.ShowLTypes(true);
    EXPECT_EQ(of.picker.getOIDSel(0), of.idOf(L"ByLayer"));
    EXPECT_EQ(of.picker.getOIDSel(1), of.idOf(L"ByBlock"));
    EXPECT_EQ(of.in.texts()[2], L"AAA") << "sorts before both";
}

TEST(LinetypePicker, LinetypesOfExternalReferencesAreAbsent) {
    LinetypePickerInHolder of;
    addLinetype(of.drawing.database(), L"plan|Dash3");
    of.picker.ShowLTypes(true);
    EXPECT_EQ(of.in.texts(), kAllTexts);
}

TEST(LinetypePicker, ErasedLinetypesAreAbsent) {
    LinetypePickerInHolder of;
    OdDbLinetypeTablePtr table;
    of.drawing.database()->getLinetypeTable(table, OdDb::kForWrite);
    table->erase(L"Zigzag");
    of.picker.ShowLTypes(true);
    EXPECT_EQ(of.picker.GetCount(), 5);
    EXPECT_EQ(of.picker.FindItemByCargo(of.zigzag), -1);
}

TEST(LinetypePicker, WithoutADrawingTheFirstDropDownAddsOtherOnly) {
    InHolder<LinetypePicker> in;
    EXPECT_EQ(in.picker.GetCount(), 0);
    EXPECT_EQ(in.picker.getLTLocalMapDB(), nullptr);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{kCargoOther}));
}

TEST(LinetypePicker, NeitherOptionItemsNorStoreEntriesAreListed) {
    LinetypePickerInHolder of;
    EXPECT_EQ(of.picker.GetUseByLayer(), -1);
    EXPECT_EQ(of.picker.GetUseByBlock(), -1);
    EXPECT_EQ(of.picker.GetUseOther(), -1);
    EXPECT_EQ(of.picker.GetCargoOption1(), -104);
    EXPECT_EQ(of.picker.GetCargoOption2(), -105);
    of.picker.AddItemToMRU(L"used", 7);
    of.picker.ResetContent();
    of.picker.AddItems();
    EXPECT_EQ(of.in.texts(), kAllTexts);
}

TEST(LinetypePicker, ShowingWithoutForceKeepsAMirroredList) {
    LinetypePickerInHolder of;
    addLinetype(of.drawing.database(), L"New");
    of.picker.ShowLTypes(false);
    EXPECT_EQ(of.picker.GetCount(), 6);
    of.picker.setLTLocalMapDB(nullptr);
    of.picker.ShowLTypes(false);
    EXPECT_EQ(of.picker.GetCount(), 7);
}

TEST(LinetypePicker, ShowingDropsSelectionAndOtherItem) {
    LinetypePickerInHolder of;
    of.in.choose(3);
    ASSERT_EQ(of.picker.GetCount(), 7) << "with Other";
    of.picker.ShowLTypes(true);
    EXPECT_EQ(of.picker.GetCount(), 6);
    EXPECT_EQ(of.picker.GetCurSel(), -1);
    of.in.dropDown();
    of.in.closeUp();
    EXPECT_EQ(of.picker.GetItemCargo(6), kCargoOther);
}

TEST(LinetypePicker, LoadingGoesAheadOnlyWhenAskedTo) {
    LinetypePickerInHolder of;
    addLinetype(of.drawing.database(), L"New");
    of.picker.LoadContentsFromDatabase();
    EXPECT_EQ(of.picker.recordCount(), 6);
    of.picker.setDbReload(true);
    EXPECT_TRUE(of.picker.getDbReload());
    of.picker.LoadContentsFromDatabase();
    EXPECT_EQ(of.picker.recordCount(), 7);
    EXPECT_FALSE(of.picker.getDbReload());
    EXPECT_EQ(of.picker.GetCount(), 6) << "the list stays";
}

TEST(LinetypePicker, ReloadAddsToWhatTheListHolds) {
    LinetypePickerInHolder of;
    of.picker.setDbReload(true);
    of.picker.AddItems();
    EXPECT_EQ(of.picker.GetCount(), 12);
    EXPECT_EQ(of.picker.getOIDSel(11), of.zigzag);
    EXPECT_EQ(of.picker.getOIDSel(of.picker.FindItemByCargo(of.zigzag)), of.zigzag)
        << "a former item stands for no linetype, or for one of the new records";
}

TEST(LinetypePicker, EmptyingDropsTheRecordsAndKeepsTheItems) {
    LinetypePickerInHolder of;
    of.picker.emptyLTypeLocalList();
    EXPECT_EQ(of.picker.recordCount(), 0);
    EXPECT_EQ(of.in.texts(), kAllTexts);
    EXPECT_EQ(of.picker.FindItemByCargo(of.zigzag), -1);
}

TEST(LinetypePicker, ReloadWithoutADrawingEmptiesTheList) {
    LinetypePickerInHolder of;
    of.drawing.services().setWorkingDatabase(nullptr);
    of.picker.ShowLTypes(true);
    EXPECT_EQ(of.picker.GetCount(), 0);
    EXPECT_EQ(of.picker.getLTLocalMapDB(), nullptr);
}

TEST(LinetypePicker, ItemWithoutCargoStandsForTheNullId) {
    LinetypePickerInHolder of;
    EXPECT_EQ(of.picker.FindItemByCargo(OdDbObjectId()), -1);
    of.picker.AddItemToList(L"bare", 0);
    EXPECT_EQ(of.picker.FindItemByCargo(OdDbObjectId()), 6);
    EXPECT_TRUE(of.picker.getOIDSel(6).isNull());
    EXPECT_TRUE(of.picker.getOIDSel(99).isNull());
}

TEST(LinetypePicker, AddedRecordStandsBeforeTheKnownItem) {
    LinetypePickerInHolder of;
    CKtUiLTypeRecord renamed(L"Renamed", of.dash2);
    EXPECT_EQ(of.picker.AddLTypeToControl(&renamed), 3);
    EXPECT_EQ(of.in.texts()[3], L"Renamed");
    EXPECT_EQ(of.in.texts()[4], L"Dash2");
    CKtUiLTypeRecord foreign(L"Foreign", OdDbObjectId(of.drawing.database(), 0xABCDE));
    EXPECT_EQ(of.picker.AddLTypeToControl(&foreign), 7);
    EXPECT_EQ(of.picker.getOIDSel(7), foreign.m_id);
}

TEST(LinetypePicker, RecordOfAKnownLinetypeIsTheItems) {
    LinetypePickerInHolder of;
    CString name = L"something";
    CKtUiLTypeRecord* known = of.picker.CreateLTRecord(name, of.zigzag);
    EXPECT_EQ(known->cargo(), of.picker.GetItemCargo(5));
    EXPECT_STREQ(name, L"Zigzag");
}

TEST(LinetypePicker, RecordOfAnUnknownLinetypeIsNewAndTheCallers) {
    LinetypePickerInHolder of;
    CString name = L"something";
    OdDbObjectId unknown(of.drawing.database(), 0xABCDE);
    const std::unique_ptr<CKtUiLTypeRecord> made(of.picker.CreateLTRecord(name, unknown));
    EXPECT_STREQ(made->m_name, L"something");
    EXPECT_EQ(made->m_id, unknown);
    EXPECT_EQ(made->m_flags, 0);
    of.picker.setLTLocalMapDB(nullptr);
    const std::unique_ptr<CKtUiLTypeRecord> unmirrored(of.picker.CreateLTRecord(name, of.zigzag));
    EXPECT_STREQ(unmirrored->m_name, L"something");
    EXPECT_NE(unmirrored->cargo(), of.picker.GetItemCargo(5));
}

TEST(LinetypePicker, SelectsByIdAndFallsBackForAnUnknownOne) {
    LinetypePickerInHolder of;
    EXPECT_TRUE(of.picker.getOIDCurSel().isNull());
    of.picker.setCurSelByOID(of.dash10);
    EXPECT_EQ(of.picker.GetCurSel(), 4);
    EXPECT_EQ(of.picker.getOIDCurSel(), of.dash10);
    EXPECT_EQ(of.picker.getLastSelection(), 4);
    of.picker.setCurSelByOID(OdDbObjectId(of.drawing.database(), 0xABCDE));
    EXPECT_EQ(of.picker.GetCurSel(), 4);
    EXPECT_EQ(of.picker.getLastSelection(), 4);
}

TEST(LinetypePicker, SelectingByIdWhileOtherIsSelectedStillCounts) {
    LinetypePickerInHolder of;
    of.in.dropDown();
    of.in.closeUp();
    of.picker.SetCurSel(6);
    ASSERT_TRUE(of.picker.isOtherSelected());
    EXPECT_TRUE(of.picker.getOIDCurSel().isNull());
    of.picker.setCurSelByOID(of.dash2);
    EXPECT_EQ(of.picker.getLastSelection(), 3);
}

TEST(LinetypePicker, ByLayerSaysAnOverrideInTheViewport) {
    LinetypePickerInHolder of;
    CString text = L"old";
    of.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer");
    of.picker.viewportOverride = 1;
    of.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer (VP)");
    of.picker.GetLBString(1, text);
    EXPECT_STREQ(text, L"ByBlock");
    of.picker.GetLBString(99, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(LinetypePicker, ImageTakesHalfTheControl) {
    LinetypePickerInHolder of;
    EXPECT_EQ(of.picker.ImageWidth(), 100);
    of.picker.SetWindowPos(nullptr, 0, 0, 151, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(of.picker.ImageWidth(), 75);
}

TEST(LinetypePicker, SortStyleOfTheControlOrdersTheNamesAnew) {
    WorkingDrawing drawing;
    for (const wchar_t* name : {L"Zigzag", L"AAA"}) addLinetype(drawing.database(), name);
    InHolder<LinetypePicker> in(InHolder<LinetypePicker>::kByCreate, ui_test::kPickerStyle | CBS_SORT);
    EXPECT_EQ(in.texts(), (Texts{L"AAA", L"ByBlock", L"ByLayer", L"Continuous", L"Zigzag"}));
    EXPECT_EQ(in.picker.getOIDSel(2), linetypeId(drawing.database(), L"ByLayer")) << "each with its record";
    EXPECT_EQ(in.picker.getOIDSel(0), linetypeId(drawing.database(), L"AAA"));
}

TEST(LinetypePicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        LinetypePickerInHolder of;
        of.in.dropDown();
        of.in.closeUp();
        of.picker.ShowLTypes(true);
    };
    ui_test::expectNothingLeft(openAndClose);
}
