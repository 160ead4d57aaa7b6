// Going from one layout to another: what is current then, in the drawing, in its files, and after Undo.
#include <gtest/gtest.h>

#include <od_db.h>
#include <od_db_change.h>
#include <od_db_current_layout.h>
#include <od_db_viewport.h>

namespace {

/// A drawing with two sheets and a line on each: 1 long in model space, 2 and 3 on the sheets "Plan" and
/// "Detail".
class CurrentLayout : public ::testing::Test {
protected:
    CurrentLayout() { read(kFile); }
    void read(const std::string& file) {
        drawing = new OdDbDatabase;
        OdDbDxfError error;
        ASSERT_EQ(drawing->readDxfBytes(file, &error), kOdOk) << odUtf8(error.text.view());
    }
    OdDbObjectId layout(const wchar_t* name) const {
        OdDbDictionaryPtr layouts;
        drawing->getLayoutDictionary(layouts);
        return layouts->getAt(name);
    }
    std::wstring current() const {
        const auto shown = drawing->currentLayoutId().open<OdDbLayout>();
        return shown ? std::wstring(shown->getLayoutName().view()) : L"none";
    }
    /// Length of the line in the current space.
    double length() const {
        for (const OdDbEntity* each : drawing->currentSpaceId().open<OdDbBlockTableRecord>()->entities())
            if (const auto* line = dynamic_cast<const OdDbLine*>(each)) return line->endPoint().x;
        return 0;
    }
    void show(const wchar_t* name) { EXPECT_EQ(oddbSetCurrentLayout(layout(name)), kOdOk); }

    static const std::string kFile;
    OdDbDatabasePtr drawing;
};

std::string line(double length, const char* before) {
    return std::string("0\nLINE\n5\n") + before + "8\n0\n100\nAcDbLine\n10\n0\n20\n0\n11\n" +
           std::to_string(length) + "\n21\n0\n";
}

std::string blockOf(const char* name, const char* handle, const std::string& content) {
    return std::string("0\nBLOCK\n5\n") + handle + "0\n8\n0\n100\nAcDbBlockBegin\n2\n" + name +
           "\n70\n0\n10\n0\n20\n0\n3\n" + name + "\n" + content + "0\nENDBLK\n5\n" + handle + "1\n8\n0\n";
}

std::string blockRecord(const char* name, const char* handle, const char* layout) {
    return std::string("0\nBLOCK_RECORD\n5\n") + handle + "\n100\nAcDbSymbolTableRecord\n100\n" +
           "AcDbBlockTableRecord\n2\n" + name + "\n340\n" + layout + "\n";
}

std::string layoutObject(const char* name, const char* handle, int order, const char* block) {
    return std::string("0\nLAYOUT\n5\n") + handle + "\n330\nB0\n100\nAcDbPlotSettings\n70\n" +
           (order == 0 ? "1024" : "0") + "\n100\nAcDbLayout\n1\n" + name + "\n71\n" + std::to_string(order) +
           "\n330\n" + block + "\n";
}

const std::string CurrentLayout::kFile =
    "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n9\n$TILEMODE\n70\n1\n0\nENDSEC\n"
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nBLOCK_RECORD\n70\n3\n" +
    blockRecord("*Model_Space", "1A", "A1") + blockRecord("*Paper_Space", "2A", "A2") +
    blockRecord("*Paper_Space0", "3A", "A3") + "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n" +
    blockOf("*Model_Space", "1A", "") + blockOf("*Paper_Space", "2A", "") +
    blockOf("*Paper_Space0", "3A", line(3, "C3\n330\n3A\n67\n1\n")) + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" +
    line(1, "C1\n330\n1A\n") + line(2, "C2\n330\n2A\n67\n1\n") +
    "0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nAA\n100\nAcDbDictionary\n3\nACAD_LAYOUT\n350\nB0\n"
    "0\nDICTIONARY\n5\nB0\n330\nAA\n100\nAcDbDictionary\n3\nModel\n350\nA1\n3\nPlan\n350\nA2\n3\nDetail\n350"
    "\n"
    "A3\n" +
    layoutObject("Model", "A1", 0, "1A") + layoutObject("Plan", "A2", 1, "2A") +
    layoutObject("Detail", "A3", 2, "3A") + "0\nENDSEC\n0\nEOF\n";

TEST_F(CurrentLayout, GoesToEachLayoutAndBack) {
    EXPECT_EQ(current(), L"Model");
    for (int round = 0; round < 2; ++round) {
        show(L"Detail");
        EXPECT_EQ(current(), L"Detail");
        EXPECT_EQ(length(), 3);
        show(L"Plan");
        EXPECT_EQ(current(), L"Plan");
        EXPECT_EQ(length(), 2);
        show(L"Plan");
        EXPECT_EQ(current(), L"Plan");
        show(L"Model");
        EXPECT_EQ(current(), L"Model");
        EXPECT_EQ(length(), 1);
    }
    EXPECT_FALSE(drawing->isModified());
}

TEST_F(CurrentLayout, IsKeptInFilesOfEachVersionWithLayouts) {
    for (const OdDb::DwgVersion version :
         {OdDb::kDHL_1015, OdDb::kDHL_1018, OdDb::kDHL_1021, OdDb::kDHL_1032})
        for (const bool binary : {false, true})
            for (const wchar_t* name : {L"Detail", L"Plan", L"Model"}) {
                read(kFile);
                show(name);
                OdDxfForm form(version);
                form.binary = binary;
                read(drawing->writeDxfBytes(form));
                EXPECT_EQ(current(), name);
                EXPECT_EQ(length(), std::wstring(name) == L"Model" ? 1 : *name == L'P' ? 2 : 3);
                for (const wchar_t* other : {L"Model", L"Plan", L"Detail"}) {
                    show(other);
                    EXPECT_EQ(current(), other);
                }
            }
}

TEST_F(CurrentLayout, ChosenAndLeftAgainLeavesTheFileAsItWas) {
    const std::string before = drawing->writeDxfBytes();
    show(L"Detail");
    EXPECT_NE(drawing->writeDxfBytes(), before);
    show(L"Plan");
    show(L"Model");
    EXPECT_EQ(drawing->writeDxfBytes(), before);
}

TEST_F(CurrentLayout, TheOneSheetOfR12IsTheCurrentOne) {
    show(L"Detail");
    read(drawing->writeDxfBytes(OdDb::kDHL_1009));
    EXPECT_EQ(current(), L"Layout1");
    EXPECT_EQ(length(), 3);
}

TEST_F(CurrentLayout, NewObjectsGoToIt) {
    show(L"Detail");
    OdDbEntityPtr made(new OdDbCircle);
    drawing->currentSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(made);
    show(L"Plan");
    EXPECT_EQ(drawing->currentSpaceId().open<OdDbBlockTableRecord>()->count(), 1);
    show(L"Detail");
    EXPECT_EQ(drawing->currentSpaceId().open<OdDbBlockTableRecord>()->count(), 2);
}

TEST_F(CurrentLayout, UndoAndRedoStayInTheLayoutThatIsShown) {
    OdDbChangeRecorder recorder(drawing);
    show(L"Detail");
    EXPECT_TRUE(recorder.take()->isEmpty()) << "going there is nothing to undo";
    const auto block = drawing->currentSpaceId().open<OdDbBlockTableRecord>();
    block->setOrigin({1, 2, 3});
    drawing->setLTSCALE(4);
    show(L"Plan");
    const auto other = drawing->currentSpaceId().open<OdDbBlockTableRecord>();
    other->setOrigin({4, 5, 6});
    const auto change = recorder.take();
    EXPECT_FALSE(change->isEmpty());
    for (const wchar_t* name : {L"Plan", L"Detail", L"Model"}) {
        show(name);
        change->exchange();
        EXPECT_EQ(current(), name);
        EXPECT_EQ(drawing->getLTSCALE(), 1);
        EXPECT_EQ(block->origin().x, 0);
        EXPECT_EQ(other->origin().x, 0);
        EXPECT_EQ(length(), std::wstring(name) == L"Model" ? 1 : *name == L'P' ? 2 : 3);
        change->exchange();
        EXPECT_EQ(current(), name);
        EXPECT_EQ(drawing->getLTSCALE(), 4);
        EXPECT_EQ(block->origin().x, 1);
        EXPECT_EQ(other->origin().x, 4);
    }
}

TEST_F(CurrentLayout, AHeaderThatWasChangedBeforeAndPutBackIsNoChange) {
    OdDbChangeRecorder recorder(drawing);
    drawing->setLTSCALE(4);
    show(L"Detail");
    drawing->setLTSCALE(1);
    EXPECT_TRUE(recorder.take()->isEmpty());
}

TEST_F(CurrentLayout, WhatIsNoLayoutIsRefused) {
    EXPECT_EQ(oddbSetCurrentLayout({}), kOdInvalidInput);
    EXPECT_EQ(oddbSetCurrentLayout(drawing->modelSpaceId()), kOdInvalidInput);
    const OdDbObjectId plan = layout(L"Plan");
    plan.open<OdDbLayout>()->getBlockTableRecordId().openObject(OdDb::kForWrite)->erase();
    EXPECT_EQ(oddbSetCurrentLayout(plan), kOdInvalidInput);
    EXPECT_EQ(current(), L"Model");
}

}  // namespace
