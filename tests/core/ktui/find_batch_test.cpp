// Found files gathered on their way to the window.
#include <ktui/nav/find_batch.h>

#include <gtest/gtest.h>

#include <string>

#include "find_tree.h"

namespace {

class Batches : public ::testing::Test {
protected:
    Batches() {
        tree.folders[L"C:\\"] = {file(L"f.x", 77)};
        tree.folders[L"C:\\"][0].length = 1234;
        listing = tree.List();
        listing->Begin(L"C:\\*.x");
        listing->Next();
    }
    void tellFiles(size_t count) {
        for (size_t i = 0; i < count; ++i) batcher.File(L"C:\\", *listing);
    }
    Tree tree;
    std::unique_ptr<FindListing> listing;
    unsigned long long now = 1'000'000;
    bool isStopped = false;
    std::vector<FindBatch> delivered;
    FindBatcher batcher{[this](const FindBatch& batch) { delivered.push_back(batch); },
                        [this] { return now; }, [this] { return isStopped; }};
};

}  // namespace

TEST_F(Batches, TheFirstFolderAndTheFirstFileGoOutAtOnce) {
    batcher.Status(L"C:\\");
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].m_folder, L"C:\\");
    EXPECT_TRUE(delivered[0].m_files.empty());
    batcher.File(L"C:\\", *listing);
    ASSERT_EQ(delivered.size(), 2u);
    ASSERT_EQ(delivered[1].m_files.size(), 1u);
    EXPECT_EQ(delivered[1].m_folder, L"C:\\");
    const FoundFile& found = delivered[1].m_files[0];
    EXPECT_EQ(found.m_folder, L"C:\\");
    EXPECT_EQ(found.m_name, L"f.x");
    EXPECT_EQ(found.m_length, 1234u);
    EXPECT_EQ(found.m_lastWrite, 77);
}

TEST_F(Batches, LaterOnesWaitForTheirTime) {
    batcher.Status(L"C:\\");
    tellFiles(1);
    delivered.clear();
    now += FindBatcher::kPause - 1;
    tellFiles(3);
    batcher.Status(L"C:\\next\\");
    EXPECT_TRUE(delivered.empty());
    now += 1;
    tellFiles(1);
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].m_files.size(), 4u);
    EXPECT_EQ(delivered[0].m_folder, L"C:\\next\\");
    tellFiles(1);
    EXPECT_EQ(delivered.size(), 1u) << "the time counts anew";
}

TEST_F(Batches, AFolderTakesWaitingFilesAlong) {
    batcher.Status(L"C:\\");
    tellFiles(3);
    delivered.clear();
    now += FindBatcher::kPause;
    batcher.Status(L"C:\\next\\");
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].m_files.size(), 2u);
}

TEST_F(Batches, ManyFilesDoNotWait) {
    batcher.Status(L"C:\\");
    tellFiles(1);
    delivered.clear();
    tellFiles(FindBatcher::kMostFiles - 1);
    EXPECT_TRUE(delivered.empty());
    tellFiles(1);
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].m_files.size(), FindBatcher::kMostFiles);
}

TEST_F(Batches, AFlushDeliversWhatIsLeftAndNothingTwice) {
    batcher.Flush();
    EXPECT_TRUE(delivered.empty());
    batcher.Status(L"C:\\");
    tellFiles(3);
    delivered.clear();
    batcher.Flush();
    batcher.Flush();
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].m_files.size(), 2u);
}

TEST_F(Batches, TheStopIsPassedOn) {
    EXPECT_FALSE(batcher.IsStopped());
    isStopped = true;
    EXPECT_TRUE(batcher.IsStopped());
}
