// A hundred thousand entities: the time they take to read, and the memory they live in.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>

#include "dxf_text.h"

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#define ODRT_MEASURES_HEAP 1
#endif

namespace {

constexpr int kEntities = 100000;

/// Lines, circles and texts as an R12 file has them, with as few groups as can be.
std::string leanFile() {
    std::string text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < kEntities; ++i) {
        const std::string number = std::to_string(i);
        if (i % 3 == 0)
            text += "0\nLINE\n8\nWALLS\n10\n" + number + "\n20\n0.5\n11\n1.25\n21\n" + number + "\n";
        else if (i % 3 == 1)
            text += "0\nCIRCLE\n8\nHOLES\n10\n" + number + "\n20\n2.5\n40\n" + number + "\n";
        else
            text += "0\nTEXT\n8\nNOTES\n10\n" + number + "\n20\n2\n40\n2.5\n1\nnote " + number + "\n";
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

TEST(DxfPerformance, AHundredThousandEntitiesAreReadAndWrittenInTime) {
    const std::string file = leanFile();
    OdDbDatabasePtr drawing(new OdDbDatabase);
    auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(drawing->readDxfBytes(file), kOdOk);
    const double reading = secondsSince(start);
    start = std::chrono::steady_clock::now();
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1032);
    const double writing = secondsSince(start);
    std::printf("%zu bytes: read in %.3f s, %zu bytes written in %.3f s\n", file.size(), reading, text.size(),
                writing);
    EXPECT_EQ(modelEntities(*drawing).size(), static_cast<std::size_t>(kEntities));
#ifdef NDEBUG
    EXPECT_LT(reading, 2.0);
    EXPECT_LT(writing, 2.0);
#else
    EXPECT_LT(reading, 30.0);
    EXPECT_LT(writing, 30.0);
#endif
}

#ifdef ODRT_MEASURES_HEAP
TEST(DxfPerformance, MemoryStaysBelowTenTimesTheFile) {
    const std::string file = leanFile();
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const std::size_t before = mallinfo2().uordblks;
    ASSERT_EQ(drawing->readDxfBytes(file), kOdOk);
    const std::size_t used = mallinfo2().uordblks - before;
    std::printf("%zu bytes of heap for %zu bytes of file\n", used, file.size());
    EXPECT_LT(used, file.size() * 10);
}
#endif
