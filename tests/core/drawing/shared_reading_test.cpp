// Whoever reads a drawing on a thread of its own hears of a change before it happens.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <semaphore>
#include <thread>

#include <od_db.h>
#include <od_db_change.h>
#include <od_db_current_layout.h>
#include <od_db_layer_use.h>
#include <od_db_shared_reading.h>

namespace {

class SharedReading : public ::testing::Test {
protected:
    SharedReading() {
        space()->appendOdDbEntity(OdDbEntityPtr(new OdDbLine), &line);
        recorder = std::make_unique<OdDbChangeRecorder>(drawing);
        before = drawing->writeDxfBytes();
        reading.emplace(*drawing, [this] {
            ++told;
            // Nothing has changed yet when it is told first.
            if (told == 1) isBefore = drawing->writeDxfBytes() == before;
        });
    }
    OdDbBlockTableRecordPtr space() { return drawing->modelSpaceId().open<OdDbBlockTableRecord>(); }
    OdDbLayerTablePtr layers() {
        OdDbLayerTablePtr table;
        drawing->getLayerTable(table);
        return table;
    }
    void expectToldBefore(const char* what, const std::function<void()>& change) {
        before = drawing->writeDxfBytes();
        told = 0;
        isBefore = false;
        change();
        EXPECT_GT(told, 0) << what;
        EXPECT_TRUE(isBefore) << what;
        EXPECT_NE(drawing->writeDxfBytes(), before) << what;
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDbObjectId line;
    std::unique_ptr<OdDbChangeRecorder> recorder;
    std::string before;
    int told = 0;
    bool isBefore = false;
    std::optional<OdDbSharedReading> reading;
};

TEST_F(SharedReading, EveryKindOfChangeIsToldBeforeItHappens) {
    expectToldBefore("an entity's color", [&] { line.open<OdDbLine>(OdDb::kForWrite)->setColorIndex(3); });
    expectToldBefore("its end", [&] { line.open<OdDbLine>(OdDb::kForWrite)->setEndPoint({7, 8, 9}); });
    expectToldBefore("a new entity", [&] { space()->appendOdDbEntity(OdDbEntityPtr(new OdDbCircle)); });
    OdDbObjectId layer;
    expectToldBefore("a new layer", [&] {
        const OdDbSymbolTableRecordPtr made = layers()->newRecord();
        made->setName(L"walls");
        ASSERT_EQ(layers()->add(made, &layer), kOdOk);
    });
    expectToldBefore("an entity's layer", [&] { line.open<OdDbLine>(OdDb::kForWrite)->setLayer(layer); });
    expectToldBefore("a layer's name", [&] { EXPECT_EQ(oddbRenameLayer(layer, L"stairs"), kOdOk); });
    expectToldBefore("a variable", [&] { drawing->setLTSCALE(3); });
    expectToldBefore("a block's origin", [&] { space()->setOrigin({1, 2, 3}); });
    OdDbDictionaryPtr named;
    drawing->getNamedObjectsDictionary(named);
    expectToldBefore("a dictionary's entry",
                     [&] { named->setAt(L"KTUI_TEST", OdDbObjectPtr(new OdDbDictionary)); });
    expectToldBefore("an entry that goes", [&] { named->remove(L"KTUI_TEST"); });
    expectToldBefore("an erased entity", [&] { line.open<OdDbLine>(OdDb::kForWrite)->erase(); });
    OdDbDictionaryPtr layouts;
    drawing->getLayoutDictionary(layouts);
    expectToldBefore("another layout",
                     [&] { EXPECT_EQ(oddbSetCurrentLayout(layouts->getAt(L"Layout1")), kOdOk); });
    const auto change = recorder->take();
    expectToldBefore("what is taken back", [&] { change->exchange(); });
    expectToldBefore("what is done again", [&] { change->exchange(); });
}

TEST_F(SharedReading, ADrawingThatIsReadAnewTellsBeforeAndAfterwards) {
    OdDbDatabasePtr other(new OdDbDatabase);
    other->setLTSCALE(5);
    const std::string file = other->writeDxfBytes();
    expectToldBefore("read anew", [&] { ASSERT_EQ(drawing->readDxfBytes(file), kOdOk); });
    expectToldBefore("changed after that", [&] { drawing->setLTSCALE(7); });
    reading.reset();
    told = 0;
    drawing->setLTSCALE(8);
    EXPECT_EQ(told, 0) << "nobody is told that has gone";
}

TEST_F(SharedReading, AFailedReadKeepsTellingOfChanges) {
    EXPECT_NE(drawing->readDxfBytes("no drawing"), kOdOk);
    expectToldBefore("a variable", [&] { drawing->setLTSCALE(3); });
}

TEST_F(SharedReading, WhatOnlyReadsIsNotTold) {
    told = 0;
    drawing->writeDxfBytes();
    drawing->lossesIn(OdDb::kDHL_1009);
    constexpr int kByLayer = OdCmColor::kByLayerIndex;
    EXPECT_EQ(line.open<OdDbLine>()->colorIndex(), kByLayer);
    EXPECT_TRUE(layers()->has(L"0"));
    EXPECT_EQ(told, 0);
}

TEST_F(SharedReading, CountsStayRightWhileTwoThreadsOpenTheSameObjects) {
    const auto readOften = [this] {
        for (int i = 0; i < 20'000; ++i) {
            const auto opened = line.open<OdDbLine>();
            const auto layer = opened->layerId().open<OdDbLayerTableRecord>();
            if (!layer) return false;
        }
        return true;
    };
    const long references = line.openObject()->numRefs();
    bool isRead = false;
    std::thread other([&] { isRead = readOften(); });
    EXPECT_TRUE(readOften());
    other.join();
    EXPECT_TRUE(isRead);
    EXPECT_EQ(line.openObject()->numRefs(), references);
}

}  // namespace
