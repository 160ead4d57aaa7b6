// Bytes are read at any place, and never beyond the end.
#include "../../../platform/standin/fonts/byte_source.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

constexpr std::uint64_t kFarthest = std::numeric_limits<std::uint64_t>::max();

TEST(ByteSource, NumbersAreReadInTheirOrder) {
    MemorySource source("\x01\x02\x03\x04\x05");
    std::uint16_t two = 0;
    std::uint32_t four = 0;
    EXPECT_TRUE(source.readBig16(1, two));
    EXPECT_EQ(two, 0x0203);
    EXPECT_TRUE(source.readLittle16(3, two));
    EXPECT_EQ(two, 0x0504);
    EXPECT_TRUE(source.readBig32(1, four));
    EXPECT_EQ(four, 0x02030405u);
}

TEST(ByteSource, WhatIsCutOffByTheEndIsNotThere) {
    MemorySource source("\x01\x02\x03\x04");
    std::uint16_t two = 7;
    std::uint32_t four = 7;
    for (const std::uint64_t at : {std::uint64_t{3}, std::uint64_t{4}, kFarthest}) {
        EXPECT_FALSE(source.readBig16(at, two)) << at;
        EXPECT_FALSE(source.readLittle16(at, two)) << at;
        EXPECT_FALSE(source.readBig32(at, four)) << at;
    }
    EXPECT_FALSE(source.readBig32(1, four));
    EXPECT_EQ(two, 7);
    EXPECT_EQ(four, 7u);
    EXPECT_TRUE(source.contains(4, 0));
    EXPECT_FALSE(source.contains(5, 0));
    EXPECT_FALSE(source.contains(2, kFarthest)) << "the sum of the two begins again at 1";
}

TEST(ByteSource, NoPathIsAMissingFile) {
    for (const wchar_t* none : {static_cast<const wchar_t*>(nullptr), L""}) {
        FileSource file(none);
        char byte = 0;
        EXPECT_EQ(file.state(), FileSource::State::kMissing);
        EXPECT_EQ(file.size(), 0u);
        EXPECT_FALSE(file.read(0, &byte, 1));
    }
}

}  // namespace
