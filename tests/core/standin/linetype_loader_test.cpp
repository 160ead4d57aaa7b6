// Linetypes of a file join a drawing, or change those that are there.
#include <gtest/gtest.h>

#include "linetypes/linetype_loader.h"

namespace {

class LinetypeLoader : public ::testing::Test {
protected:
    LinetypeLoader() : drawing(new OdDbDatabase) { drawing->getLinetypeTable(table); }

    static LinetypeDefinition definition(const wchar_t* name, std::vector<double> dashes) {
        LinetypeDefinition made;
        made.name = name;
        made.description = L"words";
        made.dashes = std::move(dashes);
        return made;
    }
    LinetypeLoad load(const LinetypeDefinition& made, bool replace = false) {
        return LoadLinetype(*drawing, made, replace, id);
    }
    double firstDash(const wchar_t* name) {
        return table->getAt(name).open<OdDbLinetypeTableRecord>()->dashLengthAt(0);
    }

    OdDbDatabasePtr drawing;
    OdDbLinetypeTablePtr table;
    OdDbObjectId id;
};

}  // namespace

TEST_F(LinetypeLoader, AddsANewOne) {
    const LinetypeDefinition dashed = definition(L"DASHED", {2, -1});
    EXPECT_FALSE(HasLinetype(*drawing, dashed));
    EXPECT_EQ(load(dashed), LinetypeLoad::kAdded);
    EXPECT_TRUE(HasLinetype(*drawing, dashed));
    EXPECT_EQ(id, table->getAt(L"DASHED"));
    const auto record = id.open<OdDbLinetypeTableRecord>();
    EXPECT_EQ(record->comments(), L"words");
    EXPECT_EQ(record->patternLength(), 3);
    EXPECT_EQ(record->numDashes(), 2);
    EXPECT_TRUE(drawing->isModified());
}

TEST_F(LinetypeLoader, WhatItAddsIsSaved) {
    load(definition(L"DASHED", {2, -1, 0, -1}));
    OdDbDatabasePtr read(new OdDbDatabase);
    ASSERT_EQ(read->readDxfBytes(drawing->writeDxfBytes()), kOdOk);
    OdDbLinetypeTablePtr linetypes;
    read->getLinetypeTable(linetypes);
    const auto record = linetypes->getAt(L"DASHED").open<OdDbLinetypeTableRecord>();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->numDashes(), 4);
    EXPECT_EQ(record->comments(), L"words");
    EXPECT_EQ(read->writeDxfBytes(), drawing->writeDxfBytes());
}

TEST_F(LinetypeLoader, SkipsOrReplacesAKnownOneByItsNameInAnyCase) {
    load(definition(L"DASHED", {2, -1}));
    const OdDbObjectId first = id;
    EXPECT_EQ(load(definition(L"dashed", {5, -1})), LinetypeLoad::kSkipped);
    EXPECT_EQ(firstDash(L"DASHED"), 2);
    id = OdDbObjectId();
    EXPECT_EQ(load(definition(L"dashed", {5, -1}), true), LinetypeLoad::kReplaced);
    EXPECT_EQ(firstDash(L"DASHED"), 5);
    EXPECT_EQ(id, first) << "what has the linetype keeps it";
    EXPECT_EQ(table->getAt(L"dashed").open<OdDbLinetypeTableRecord>()->getName(), L"DASHED");
}

TEST_F(LinetypeLoader, TakesTheNameOfAnErasedOne) {
    load(definition(L"DASHED", {2, -1}));
    id.openObject(OdDb::kForWrite)->erase();
    EXPECT_EQ(load(definition(L"DASHED", {7, -1})), LinetypeLoad::kAdded);
    EXPECT_EQ(firstDash(L"DASHED"), 7);
}

TEST_F(LinetypeLoader, RefusesTheStandardOnesAndComplexOnes) {
    for (const wchar_t* name : {L"bylayer", L"ByBlock", L"CONTINUOUS"})
        EXPECT_EQ(load(definition(name, {1, -1}), true), LinetypeLoad::kRefused);
    LinetypeDefinition gas = definition(L"GAS", {1, -1});
    gas.inserts.push_back({1, L"\"GAS\",STANDARD"});
    EXPECT_EQ(load(gas), LinetypeLoad::kRefused);
    EXPECT_EQ(table->count(), 3);
    EXPECT_TRUE(id.isNull());
}
