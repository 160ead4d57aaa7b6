// A program may erase a linetype only when nothing in the drawing needs it.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

/// A drawing with the simple linetypes of these names.
class LinetypeUse : public ::testing::Test {
protected:
    LinetypeUse() : drawing(new OdDbDatabase) {
        drawing->getLinetypeTable(table, OdDb::kForWrite);
        for (const wchar_t* name : {L"DASHED", L"DOT"}) add(name);
    }

    OdDbObjectId add(const wchar_t* name) {
        OdSmartPtr<OdDbLinetypeTableRecord> record(new OdDbLinetypeTableRecord);
        record->setName(name);
        record->setDashes({1, -1});
        OdDbObjectId id;
        EXPECT_EQ(table->add(OdDbSymbolTableRecordPtr(record.get()), &id), kOdOk);
        return id;
    }
    OdDbLinetypeUse useOf(const wchar_t* name) { return OdDbLinetypeUses(*drawing).of(table->getAt(name)); }

    /// A line in `block` that has the linetype `name`.
    OdDbEntityPtr addLine(const OdDbObjectId& block, const wchar_t* name) {
        OdSmartPtr<OdDbLine> line(new OdDbLine);
        block.open<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(OdDbEntityPtr(line.get()));
        EXPECT_EQ(line->setLinetype(table->getAt(name)), kOdOk);
        return OdDbEntityPtr(line.get());
    }
    OdDbObjectId addBlock(const wchar_t* name) {
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks, OdDb::kForWrite);
        OdSmartPtr<OdDbBlockTableRecord> block(new OdDbBlockTableRecord);
        block->setName(name);
        blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        return block->objectId();
    }

    OdDbDatabasePtr drawing;
    OdDbLinetypeTablePtr table;
};

}  // namespace

TEST_F(LinetypeUse, AnUnusedLinetypeIsErasable) {
    EXPECT_TRUE(useOf(L"dashed").isErasable());
    EXPECT_FALSE(useOf(L"dashed").isUsed());
}

TEST_F(LinetypeUse, TheStandardOnesNeverAre) {
    for (const wchar_t* name : {L"BYLAYER", L"ByBlock", L"CONTINUOUS"}) {
        EXPECT_TRUE(useOf(name).isStandard);
        EXPECT_FALSE(useOf(name).isErasable());
    }
}

TEST_F(LinetypeUse, DependentOnesNeverAre) {
    add(L"SITE|FENCE");
    EXPECT_TRUE(useOf(L"SITE|FENCE").isDependent);
    EXPECT_FALSE(useOf(L"SITE|FENCE").isUsed() || useOf(L"SITE|FENCE").isErasable());
}

TEST_F(LinetypeUse, TheCurrentOneIsUsed) {
    ASSERT_EQ(drawing->setCeltype(table->getAt(L"DOT")), kOdOk);
    EXPECT_TRUE(useOf(L"DOT").isCurrent && useOf(L"DOT").isUsed());
    EXPECT_EQ(useOf(L"DOT").others, 0);
    EXPECT_TRUE(useOf(L"DASHED").isErasable());
}

TEST_F(LinetypeUse, EntitiesOfSpacesAndBlocksCount) {
    addLine(drawing->modelSpaceId(), L"DASHED");
    addLine(drawing->paperSpaceId(), L"DASHED");
    addLine(addBlock(L"DOOR"), L"DASHED");
    EXPECT_EQ(useOf(L"DASHED").entities, 3);
    EXPECT_FALSE(useOf(L"DASHED").isErasable());
    EXPECT_EQ(useOf(L"DOT").entities, 0);
}

TEST_F(LinetypeUse, ErasedEntitiesAndThoseOfErasedBlocksDoNot) {
    addLine(drawing->modelSpaceId(), L"DASHED")->erase();
    const OdDbObjectId block = addBlock(L"DOOR");
    addLine(block, L"DASHED");
    EXPECT_EQ(useOf(L"DASHED").entities, 1);
    block.openObject(OdDb::kForWrite)->erase();
    EXPECT_TRUE(useOf(L"DASHED").isErasable());
}

TEST_F(LinetypeUse, LayersCount) {
    drawing->clayer().open<OdDbLayerTableRecord>(OdDb::kForWrite)->setLinetypeObjectId(table->getAt(L"dot"));
    EXPECT_EQ(useOf(L"DOT").layers, 1);
    EXPECT_EQ(useOf(L"CONTINUOUS").layers, 0);
}

TEST_F(LinetypeUse, PartsOfEntitiesCount) {
    const OdDbDatabasePtr read = readDrawing(
        withEntities("0|POLYLINE\n5|A0\n8|0\n66|1\n0|VERTEX\n5|A1\n8|0\n6|TRACE\n0|SEQEND\n5|A2\n8|0\n"));
    ASSERT_TRUE(read);
    OdDbLinetypeTablePtr linetypes;
    read->getLinetypeTable(linetypes);
    EXPECT_EQ(OdDbLinetypeUses(*read).of(linetypes->getAt(L"TRACE")).entities, 1);
}

TEST_F(LinetypeUse, RecordsThatNameItByHandleCount) {
    OdDbDimStyleTablePtr styles;
    drawing->getDimStyleTable(styles);
    const auto standard = styles->getAt(L"Standard").open<OdDbSymbolTableRecord>(OdDb::kForWrite);
    standard->editGroups().addHandle(345, table->getAt(L"DASHED").handle());
    EXPECT_EQ(useOf(L"DASHED").others, 1);
    EXPECT_FALSE(useOf(L"DASHED").isErasable());
}

TEST_F(LinetypeUse, OverridesInExtendedDataCount) {
    OdGroupList data;
    data.addHandle(1005, table->getAt(L"DASHED").handle());
    addLine(drawing->modelSpaceId(), L"DOT")->setXData(L"ACAD", data);
    EXPECT_EQ(useOf(L"DASHED").others, 1);
}

TEST_F(LinetypeUse, ReactorsDoNot) {
    OdGroupList reactors;
    reactors.addText(102, "{ACAD_REACTORS");
    reactors.addHandle(330, table->getAt(L"DASHED").handle());
    reactors.addText(102, "}");
    addLine(drawing->modelSpaceId(), L"DOT")->editGroups().replace(0, 0, reactors);
    EXPECT_TRUE(useOf(L"DASHED").isErasable());
}

TEST_F(LinetypeUse, MultilineStylesAndHeaderVariablesCount) {
    const OdDbDatabasePtr read = readDrawing(
        dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1024\n9|$DIMLTYPE\n6|Trace\n0|ENDSEC\n"
            "0|SECTION\n2|TABLES\n0|TABLE\n2|LTYPE\n70|2\n0|LTYPE\n5|A1\n2|TRACE\n70|0\n"
            "0|LTYPE\n5|A2\n2|ELEMENT\n70|0\n0|ENDTAB\n0|ENDSEC\n"
            "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n3|ACAD_MLINESTYLE\n350|D\n"
            "0|DICTIONARY\n5|D\n330|C\n100|AcDbDictionary\n3|STANDARD\n350|E\n"
            "0|MLINESTYLE\n5|E\n330|D\n100|AcDbMlineStyle\n2|STANDARD\n71|1\n49|0.5\n62|256\n6|ELEMENT\n"
            "0|ENDSEC\n0|EOF"));
    ASSERT_TRUE(read);
    OdDbLinetypeTablePtr linetypes;
    read->getLinetypeTable(linetypes);
    const OdDbLinetypeUses uses(*read);
    EXPECT_EQ(uses.of(linetypes->getAt(L"TRACE")).others, 1);
    EXPECT_EQ(uses.of(linetypes->getAt(L"ELEMENT")).others, 1);
}

TEST_F(LinetypeUse, AnIdOfNoLinetypeIsUsedByNothing) {
    EXPECT_FALSE(OdDbLinetypeUses(*drawing).of(OdDbObjectId::kNull).isUsed());
    EXPECT_FALSE(OdDbLinetypeUses(*drawing).of(drawing->clayer()).isUsed());
}

TEST_F(LinetypeUse, AnErasedLinetypeIsGoneFromTheFileAndItsNameIsFree) {
    ASSERT_TRUE(useOf(L"DASHED").isErasable());
    ASSERT_EQ(table->erase(L"DASHED"), kOdOk);
    EXPECT_FALSE(table->has(L"DASHED"));
    const OdDbDatabasePtr read = readDrawing(drawing->writeDxfBytes());
    OdDbLinetypeTablePtr linetypes;
    read->getLinetypeTable(linetypes);
    EXPECT_FALSE(linetypes->has(L"DASHED"));
    EXPECT_TRUE(linetypes->has(L"DOT"));
    EXPECT_TRUE(add(L"DASHED").isValid());
    EXPECT_TRUE(useOf(L"DASHED").isErasable());
}
