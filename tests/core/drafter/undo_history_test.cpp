// Undo and redo of the sample: steps with names, the saved state among them, and changes that fail.
#include <gtest/gtest.h>

#include <stdexcept>

#include "property_values.h"
#include "undo_history.h"

namespace {

class UndoHistory : public ::testing::Test {
protected:
    UndoHistory() {
        OdDbEntityPtr entity(new OdDbLine);
        drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(entity, &line);
        history = std::make_unique<CUndoHistory>(drawing);
        drawing->setModified(false);
    }
    int color() const { return line.open<OdDbEntity>()->color().colorIndex(); }
    void paint(int index, const wchar_t* name = L"Color") {
        CDrawingChange change(*history);
        line.open<OdDbEntity>(OdDb::kForWrite)->setColorIndex(index);
        EXPECT_TRUE(change.Keep(name));
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDbObjectId line;
    std::unique_ptr<CUndoHistory> history;
};

TEST_F(UndoHistory, AtFirstThereIsNothingToUndoOrRedo) {
    EXPECT_FALSE(history->CanUndo());
    EXPECT_FALSE(history->CanRedo());
    EXPECT_EQ(history->UndoName(), L"");
    EXPECT_FALSE(history->Undo());
    EXPECT_FALSE(history->Redo());
    EXPECT_FALSE(drawing->isModified());
}

TEST_F(UndoHistory, StepsAreUndoneAndRedoneInOrderUnderTheirNames) {
    paint(1, L"Red");
    paint(2, L"Yellow");
    paint(3, L"Green");
    EXPECT_EQ(history->UndoName(), L"Green");
    EXPECT_EQ(history->RedoName(), L"");
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(color(), 2);
    EXPECT_EQ(history->UndoName(), L"Yellow");
    EXPECT_EQ(history->RedoName(), L"Green");
    EXPECT_TRUE(history->Undo());
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(color(), 256);
    EXPECT_FALSE(history->CanUndo());
    EXPECT_TRUE(history->Redo());
    EXPECT_EQ(color(), 1);
    EXPECT_EQ(history->RedoName(), L"Yellow");
    EXPECT_TRUE(history->Redo());
    EXPECT_TRUE(history->Redo());
    EXPECT_EQ(color(), 3);
    EXPECT_FALSE(history->Redo());
}

TEST_F(UndoHistory, AStepAfterUndoTakesTheRedoAway) {
    paint(1);
    paint(2);
    history->Undo();
    paint(3, L"Green");
    EXPECT_FALSE(history->CanRedo());
    EXPECT_EQ(history->UndoName(), L"Green");
    history->Undo();
    EXPECT_EQ(color(), 1);
}

TEST_F(UndoHistory, WhatChangesNothingIsNoStepAndLeavesTheRedo) {
    paint(1);
    history->Undo();
    {
        CDrawingChange change(*history);
        const auto entity = line.open<OdDbEntity>(OdDb::kForWrite);
        entity->setColor(entity->color());
        EXPECT_FALSE(change.Keep(L"Color"));
    }
    EXPECT_FALSE(history->CanUndo());
    EXPECT_TRUE(history->CanRedo());
    EXPECT_FALSE(drawing->isModified()) << "opening for writing alone modifies nothing";
}

TEST_F(UndoHistory, AChangeThatFailsHalfWayLeavesNothing) {
    paint(1);
    const std::string before = drawing->writeDxfBytes();
    try {
        CDrawingChange change(*history);
        PropertyValues values;
        values.layer = OdString(L"half");
        WriteProperties(*drawing, {line}, values);
        drawing->setLUPREC(1);
        throw std::runtime_error("half way");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(drawing->writeDxfBytes() == before);
    EXPECT_EQ(history->UndoName(), L"Color");
    EXPECT_FALSE(history->CanRedo());
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    EXPECT_FALSE(layers->has(L"half"));
}

TEST_F(UndoHistory, BackAtTheSavedStateNothingIsUnsaved) {
    paint(1);
    EXPECT_TRUE(drawing->isModified());
    history->MarkSaved();
    EXPECT_FALSE(drawing->isModified());
    paint(2);
    EXPECT_TRUE(drawing->isModified());
    history->Undo();
    EXPECT_FALSE(drawing->isModified());
    history->Undo();
    EXPECT_TRUE(drawing->isModified()) << "before the saved state";
    history->Redo();
    EXPECT_FALSE(drawing->isModified());
}

TEST_F(UndoHistory, ASavedStateThatCanNoLongerBeReachedIsNeverShown) {
    paint(1);
    paint(2);
    history->MarkSaved();
    history->Undo();
    paint(3);
    EXPECT_TRUE(drawing->isModified());
    history->Undo();
    EXPECT_TRUE(drawing->isModified());
    history->Undo();
    EXPECT_TRUE(drawing->isModified());
    history->Redo();
    history->Redo();
    EXPECT_TRUE(drawing->isModified()) << "as many steps as in the file, but others";
}

TEST_F(UndoHistory, AFailedChangeOfASavedDrawingLeavesItSaved) {
    {
        CDrawingChange change(*history);
        line.open<OdDbEntity>(OdDb::kForWrite)->setColorIndex(1);
        EXPECT_TRUE(drawing->isModified());
    }
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(color(), 256);
}

TEST_F(UndoHistory, WhatWasChangedWithoutAStepIsUndoneByItself) {
    paint(1);
    line.open<OdDbEntity>(OdDb::kForWrite)->setColorIndex(2);
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(color(), 1);
    EXPECT_TRUE(history->CanUndo());
}

TEST_F(UndoHistory, TheOldestOfVeryManyStepsAreForgotten) {
    for (int step = 0; step < 300; ++step) paint(1 + step % 2);
    int undone = 0;
    while (history->Undo()) ++undone;
    EXPECT_EQ(undone, 200);
    EXPECT_TRUE(drawing->isModified()) << "the state in the file is among those forgotten";
    while (history->Redo()) --undone;
    EXPECT_EQ(undone, 0);
    EXPECT_EQ(color(), 2);
}

TEST_F(UndoHistory, ASavedStateKeepsItsPlaceWhenOlderStepsAreForgotten) {
    for (int step = 0; step < 150; ++step) paint(1 + step % 2);
    history->MarkSaved();
    for (int step = 0; step < 100; ++step) paint(3 + step % 2);
    for (int step = 0; step < 99; ++step) history->Undo();
    EXPECT_TRUE(drawing->isModified());
    history->Undo();
    EXPECT_FALSE(drawing->isModified());
}

}  // namespace
