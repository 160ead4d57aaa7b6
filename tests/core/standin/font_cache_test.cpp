#include "../../../platform/standin/fonts/font_cache.h"

#include <gtest/gtest.h>

namespace {

const FontFile kOutline{
    FontKind::kTrueType, FontProblem::kNone, {{L"宋体", L"Bold", 700, 3, true}, {L"B", L"R"}}};
const FontFile kBig{FontKind::kBigFont, FontProblem::kNone, {}};
const FontFile kBad{FontKind::kNone, FontProblem::kDamaged, {}};

const FontFileStamp kFirst{L"C:\\fonts\\a.ttf", 1, 2};
const FontFileStamp kSecond{L"C:\\fonts\\\x4E2D.shx", 0xFFFFFFFFFFu, -5};
const FontFileStamp kThird{L"D:\\more\\c.ttf", 7, 8};

FontCache filled() {
    FontCache cache;
    cache.put(kFirst, kOutline);
    cache.put(kSecond, kBig);
    cache.put(kThird, kBad);
    return cache;
}

/// Whether `bytes` are taken; if not, nothing is.
bool isTaken(const std::string& bytes) {
    FontCache cache = filled();
    const bool taken = cache.decode(bytes);
    EXPECT_TRUE(taken || cache.size() == 0);
    return taken;
}

}  // namespace

TEST(FontCache, KnowsAFileAsItWas) {
    const FontCache cache = filled();
    ASSERT_NE(cache.find(kFirst), nullptr);
    EXPECT_EQ(*cache.find(kFirst), kOutline);
    EXPECT_EQ(cache.find({L"C:\\fonts\\other.ttf", 1, 2}), nullptr);
}

TEST(FontCache, AnotherSizeOrTimeIsAnotherFile) {
    const FontCache cache = filled();
    EXPECT_EQ(cache.find({kFirst.path, 2, 2}), nullptr);
    EXPECT_EQ(cache.find({kFirst.path, 1, 3}), nullptr);
}

TEST(FontCache, StoredFormBringsEverythingBack) {
    FontCache cache;
    EXPECT_TRUE(cache.decode(filled().encode()));
    EXPECT_FALSE(cache.hasChanged());
    EXPECT_EQ(cache.size(), 3u);
    EXPECT_EQ(*cache.find(kFirst), kOutline);
    EXPECT_EQ(*cache.find(kSecond), kBig);
    EXPECT_EQ(*cache.find(kThird), kBad);
    EXPECT_EQ(cache.encode(), filled().encode());
}

TEST(FontCache, AnEmptyCacheIsStoredToo) {
    FontCache cache;
    EXPECT_TRUE(cache.decode(FontCache().encode()));
    EXPECT_EQ(cache.size(), 0u);
}

TEST(FontCache, EveryTruncationAndEverySpoiledByteIsRefused) {
    const std::string whole = filled().encode();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        EXPECT_FALSE(isTaken(whole.substr(0, at))) << at;
        std::string spoiled = whole;
        spoiled[at] = static_cast<char>(spoiled[at] ^ 0x41);
        EXPECT_FALSE(isTaken(spoiled)) << at;
    }
    EXPECT_FALSE(isTaken(whole + '\0'));
    EXPECT_TRUE(isTaken(whole));
}

TEST(FontCache, SpoiledContentWithAFittingChecksumIsSafe) {
    std::string content = filled().encode();
    content.resize(content.size() - 8);
    for (std::size_t at = 0; at < content.size(); ++at) {
        for (const int value : {0x00, 0x7F, 0xFF}) {
            std::string spoiled = content;
            spoiled[at] = static_cast<char>(value);
            FontCache cache;
            EXPECT_TRUE(cache.decode(sealFontCache(spoiled)) || cache.size() == 0) << at;
        }
        EXPECT_FALSE(isTaken(sealFontCache(content.substr(0, at)))) << at;
    }
    EXPECT_FALSE(isTaken(sealFontCache(content + "x"))) << "bytes behind the end";
}

TEST(FontCache, AnotherVersionIsRefused) {
    std::string content = FontCache().encode();
    content.resize(content.size() - 8);
    content[8] = static_cast<char>(content[8] + 1);
    EXPECT_FALSE(isTaken(sealFontCache(content)));
}

TEST(FontCache, TellsWhenItHasChanged) {
    FontCache cache;
    EXPECT_FALSE(cache.hasChanged());
    cache.put(kFirst, kBig);
    EXPECT_TRUE(cache.hasChanged());
    cache.decode(cache.encode());
    cache.forgetMissing({L"C:\\fonts"}, {kFirst});
    EXPECT_FALSE(cache.hasChanged()) << "nothing is gone";
    cache.forgetMissing({L"c:\\FONTS\\"}, {});
    EXPECT_TRUE(cache.hasChanged());
    EXPECT_EQ(cache.size(), 0u);
}

TEST(FontCache, ForgetsWhatIsGoneFromTheFoldersThatWereLookedAt) {
    FontCache cache = filled();
    cache.forgetMissing({L"C:\\fonts"}, {kSecond});
    EXPECT_EQ(cache.find(kFirst), nullptr);
    EXPECT_NE(cache.find(kSecond), nullptr);
    EXPECT_NE(cache.find(kThird), nullptr) << "of another folder";
}

TEST(FontCache, IsBounded) {
    FontCache cache;
    for (std::size_t i = 0; i <= FontCache::kMostFiles; ++i)
        cache.put({L"E:\\" + std::to_wstring(i) + L".ttf", i, 0}, kBad);
    cache.put(kFirst, kOutline);
    cache.forgetMissing({L"C:\\fonts"}, {kFirst});
    EXPECT_EQ(cache.size(), 1u);
}
