#include "../../../platform/standin/fonts/font_scan.h"

#include <gtest/gtest.h>
#include <od_string.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "../../../platform/standin/fonts/font_storage.h"
#include "../../support/font_bytes.h"

namespace fs = std::filesystem;

namespace {

std::wstring wide(const fs::path& path) {
#ifdef _WIN32
    return path.wstring();
#else
    return std::wstring(odWide(path.string()).view());
#endif
}

std::string font(const char* family, const char* style = "Regular") {
    return font_bytes::outlineFont(std::string(family), std::string(style));
}

/// A folder of fonts that goes with the test.
class FontScan : public ::testing::Test {
protected:
    FontScan() : folder(fs::temp_directory_path() / "ktui_font_scan") {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~FontScan() override { fs::remove_all(folder); }

    fs::path write(const char* name, const std::string& bytes) {
        const fs::path path = folder / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    FontSources sources() const { return {{wide(folder)}, {}}; }
    std::vector<FoundFont> scan(const FontSources& where) {
        std::vector<FoundFont> found;
        EXPECT_TRUE(scanFonts(where, cache, stop, found));
        return found;
    }
    std::vector<std::wstring> names() {
        std::vector<std::wstring> all;
        for (const FoundFont& file : scan(sources())) all.emplace_back(fileNameOf(file.path));
        return all;
    }

    fs::path folder;
    FontCache cache;
    std::atomic<bool> stop = false;
};

using Texts = std::vector<std::wstring>;

}  // namespace

TEST_F(FontScan, FindsTheFontsOfAFolderByName) {
    write("b.TTF", font("B"));
    write("a.shx", font_bytes::unifont(font_bytes::letters()));
    write("C.otf", font("C"));
    write("readme.txt", "no font");
    fs::create_directories(folder / "folder.ttf");
    EXPECT_EQ(names(), (Texts{L"a.shx", L"b.TTF", L"C.otf"}));
}

TEST_F(FontScan, BadFilesAreLeftOutAndRemembered) {
    write("bad.ttf", "not a font");
    write("library.shx", font_bytes::shapes({{130, "\x10"}}));
    write("empty.ttc", "");
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(cache.size(), 3u);
}

TEST_F(FontScan, AMissingFolderHasNoFonts) {
    EXPECT_TRUE(scan({{wide(folder / "missing"), L""}, {}}).empty());
    EXPECT_TRUE(scan({{wide(write("file.ttf", font("A")))}, {}}).empty())
        << "a file in the place of a folder";
}

TEST_F(FontScan, SingleFilesComeBehindTheFolders) {
    const fs::path inner = folder / "inner";
    fs::create_directories(inner);
    const fs::path single = write("a.ttf", font("A"));
    const fs::path text = write("a.txt", font("A"));
    std::ofstream(inner / "z.ttf", std::ios::binary) << font("Z");
    const auto found =
        scan({{wide(inner)}, {wide(single), wide(text), wide(folder / "gone.ttf"), wide(folder)}});
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(fileNameOf(found[0].path), L"z.ttf");
    EXPECT_EQ(found[1].path, wide(single));
}

TEST_F(FontScan, AKnownFileIsNotOpened) {
    const fs::path path = write("a.ttf", font("Real"));
    FontFileStamp stamp;
    ASSERT_TRUE(stampOfFile(wide(path), stamp));
    cache.put(listFontFolder(wide(folder))[0], {FontKind::kTrueType, FontProblem::kNone, {{L"Kept", L"R"}}});
    EXPECT_EQ(scan(sources())[0].file.faces[0].family, L"Kept");
}

TEST_F(FontScan, ListingAndSingleFileGiveTheSameStamp) {
    const fs::path path = write("a.ttf", font("A"));
    const auto listed = listFontFolder(wide(folder));
    ASSERT_EQ(listed.size(), 1u);
    FontFileStamp stamp;
    ASSERT_TRUE(stampOfFile(listed[0].path, stamp));
    EXPECT_EQ(stamp, listed[0]);
    EXPECT_EQ(stamp.size, fs::file_size(path));
    EXPECT_FALSE(stampOfFile(wide(folder), stamp));
    EXPECT_FALSE(stampOfFile(L"", stamp));
}

TEST_F(FontScan, AChangedFileIsReadAgain) {
    const fs::path path = write("a.ttf", font("Before"));
    ASSERT_EQ(scan(sources())[0].file.faces[0].family, L"Before");
    write("a.ttf", font("Behind"));  // of the same size
    fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(5));
    EXPECT_EQ(scan(sources())[0].file.faces[0].family, L"Behind");
}

TEST_F(FontScan, ARemovedFileIsForgotten) {
    write("a.ttf", font("A"));
    write("b.ttf", font("B"));
    names();
    fs::remove(folder / "a.ttf");
    EXPECT_EQ(names(), Texts{L"b.ttf"});
    EXPECT_EQ(cache.size(), 1u);
}

TEST_F(FontScan, StopsWhenTold) {
    write("a.ttf", font("A"));
    stop = true;
    std::vector<FoundFont> found;
    EXPECT_FALSE(scanFonts(sources(), cache, stop, found));
    EXPECT_EQ(cache.size(), 0u);
}

TEST_F(FontScan, CacheGoesToAFileAndBack) {
    write("a.ttf", font("A"));
    names();
    const std::wstring path = wide(folder / "below" / "deep" / "fonts.cache");
    ASSERT_TRUE(cache.save(path));
    EXPECT_FALSE(cache.hasChanged());
    ASSERT_TRUE(cache.save(path)) << "over the former one";
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "below" / "deep"), {}), 1) << "no left-over file";
    FontCache again;
    ASSERT_TRUE(again.load(path));
    EXPECT_EQ(again.encode(), cache.encode());
}

TEST_F(FontScan, ACacheFileThatIsNoCacheIsReplaced) {
    const std::wstring path = wide(write("fonts.cache", "something else"));
    FontCache loaded;
    EXPECT_FALSE(loaded.load(path));
    EXPECT_TRUE(loaded.hasChanged());
    EXPECT_TRUE(loaded.save(path));
    EXPECT_TRUE(FontCache().load(path));
}

TEST_F(FontScan, ACacheThatCannotBeSavedLeavesNothing) {
    fs::create_directories(folder / "fonts.cache" / "in the way");
    EXPECT_FALSE(cache.save(wide(folder / "fonts.cache")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "no left-over file";
    EXPECT_FALSE(cache.save(L""));
    EXPECT_FALSE(cache.load(wide(folder / "missing")));
}

TEST_F(FontScan, ProblemsOfASingleFileAreTold) {
    EXPECT_EQ(readFontFile(wide(folder / "gone.ttf")).problem, FontProblem::kMissing);
    EXPECT_EQ(readFontFile(L"").problem, FontProblem::kMissing);
    EXPECT_EQ(readFontFile(wide(write("a.ttf", "x"))).problem, FontProblem::kNotAFont);
    EXPECT_EQ(readFontFile(wide(write("b.ttf", font("B")))).problem, FontProblem::kNone);
    fs::create_directories(folder / "c.ttf");
    EXPECT_NE(readFontFile(wide(folder / "c.ttf")).problem, FontProblem::kNone);
}

TEST_F(FontScan, FolderTimeTellsOfNewFiles) {
    const auto before = timeOfFolder(wide(folder));
    EXPECT_NE(before, 0);
    // The time moves in steps of some milliseconds: files are added until one falls into the next step.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (timeOfFolder(wide(folder)) == before && std::chrono::steady_clock::now() < deadline) {
        write("new.ttf", "x");
        fs::remove(folder / "new.ttf");
    }
    EXPECT_GT(timeOfFolder(wide(folder)), before);
    write("new.ttf", "x");
    EXPECT_EQ(timeOfFolder(wide(folder / "new.ttf")), 0) << "no folder";
    EXPECT_EQ(timeOfFolder(wide(folder / "missing")), 0);
}

TEST_F(FontScan, FilesLargerThanABlockAreReadAcrossItsEdges) {
    // The names stand behind many kilobytes, as they do in real fonts.
    std::string bytes = font("Far");
    const std::string names =
        font_bytes::TinyFont().called(std::string("Far"), std::string("Regular")).nameTable();
    bytes.append(9000 - bytes.size(), '\0');
    const auto place = static_cast<unsigned>(bytes.size());
    std::string offset;
    font_bytes::big32(offset, place);
    bytes.replace(12 + 3 * 16 + 8, 4, offset);
    write("far.ttf", bytes + names);
    EXPECT_EQ(scan(sources())[0].file.faces[0].family, L"Far");
}
