// Plain text files come in several encodings.
#include <gtest/gtest.h>
#include <od_string.h>

using namespace std::string_literals;

TEST(TextOfBytes, AByteOrderMarkDecides) {
    EXPECT_EQ(odTextOfBytes("\xEF\xBB\xBFgr\xC3\xBC\xC3\x9F", 936), L"gr\x00FC\x00DF");
    EXPECT_EQ(odTextOfBytes("\xFF\xFE\x61\x00\xBF\x7E"s, 1252), L"a\x7EBF");
    EXPECT_EQ(odTextOfBytes("\xFE\xFF\x00\x61\x7E\xBF"s, 1252), L"a\x7EBF");
    EXPECT_EQ(odTextOfBytes("\xFF\xFE\x61"s, 1252), L"") << "half a character";
}

TEST(TextOfBytes, WithoutOneLegalUtf8IsTakenAsSuch) {
    EXPECT_EQ(odTextOfBytes("\xE7\xBA\xBF\xE5\x9E\x8B", 1252), L"\x7EBF\x578B");
    EXPECT_EQ(odTextOfBytes("plain", 936), L"plain");
    EXPECT_EQ(odTextOfBytes("", 936), L"");
}

TEST(TextOfBytes, AnythingElseIsInTheCodePage) {
    EXPECT_EQ(odTextOfBytes("\xCF\xDF\xD0\xCD", 936), L"\x7EBF\x578B");
    EXPECT_EQ(odTextOfBytes("gr\xFC\xDF", 1252), L"gr\x00FC\x00DF");
}

TEST(TextOfBytes, BytesThatNoEncodingKnowsAreReplaced) {
    EXPECT_EQ(odTextOfBytes("a\xFF\xFF", 936), L"a\xFFFD\xFFFD");
    EXPECT_EQ(odTextOfBytes("a\0b"s, 1252),
              L"a\xFFFD"
              L"b");
}
