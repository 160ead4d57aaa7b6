#include <gtest/gtest.h>

#include <ktut.h>

#include <cstdio>
#include <filesystem>

namespace {

struct Parts {
    OdString drive, directory, name, extension;
};

Parts split(const wchar_t* path) {
    Parts parts;
    EXPECT_TRUE(ktutSplitPath(path, &parts.drive, &parts.directory, &parts.name, &parts.extension));
    return parts;
}

}  // namespace

TEST(Paths, AreTakenApart) {
    const Parts whole = split(L"C:\\drawings\\site.v2.dxf");
    EXPECT_EQ(whole.drive, L"C:");
    EXPECT_EQ(whole.directory, L"\\drawings\\");
    EXPECT_EQ(whole.name, L"site.v2");
    EXPECT_EQ(whole.extension, L".dxf");
    const Parts share = split(L"\\\\server\\share\\a\\b.lnk");
    EXPECT_EQ(share.drive, L"\\\\server\\share");
    EXPECT_EQ(share.directory, L"\\a\\");
    EXPECT_EQ(share.name, L"b");
    const Parts bare = split(L"part");
    EXPECT_TRUE(bare.drive.isEmpty() && bare.directory.isEmpty() && bare.extension.isEmpty());
    EXPECT_EQ(bare.name, L"part");
    const Parts folder = split(L"a/b/");
    EXPECT_EQ(folder.directory, L"a/b/");
    EXPECT_TRUE(folder.name.isEmpty());
    EXPECT_EQ(split(L"..").name, L"..");
    EXPECT_FALSE(ktutSplitPath(L"", nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(ktutSplitPath(nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(ktutSplitPath(L"x", nullptr, nullptr, nullptr, nullptr));
}

TEST(Paths, ArePutTogetherWithOneSeparator) {
    EXPECT_EQ(ktutCombinePath(L"C:\\a\\", L"b"), L"C:\\a\\b");
    EXPECT_EQ(ktutCombinePath(L"", L"b"), L"b");
    EXPECT_EQ(ktutCombinePath(L"a", L""), L"a");
    EXPECT_EQ(ktutCombinePath(L"a", L"C:\\b"), L"C:\\b");
    EXPECT_EQ(ktutCombinePath(nullptr, nullptr), L"");
#ifdef _WIN32
    EXPECT_EQ(ktutCombinePath(L"C:\\a", L"b"), L"C:\\a\\b");
#else
    EXPECT_EQ(ktutCombinePath(L"/a", L"b"), L"/a/b");
#endif
}

TEST(Paths, ExistOrNot) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "ktut_paths_test";
    std::filesystem::create_directories(folder / "inner");
    std::fclose(std::fopen((folder / "file.txt").string().c_str(), "w"));
    const std::wstring base = folder.wstring();
    const OdString file = ktutCombinePath(base.c_str(), L"file.txt");
    EXPECT_TRUE(ktutDirectoryExists(base.c_str()));
    EXPECT_FALSE(ktutDirectoryExists(file));
    EXPECT_TRUE(ktutPathExists(file));
    EXPECT_FALSE(ktutPathExists(ktutCombinePath(base.c_str(), L"none")));
    EXPECT_FALSE(ktutPathExists(nullptr) || ktutPathExists(L"") || ktutDirectoryExists(L""));
    EXPECT_TRUE(ktutPathIsSame(base.c_str(), ktutCombinePath(base.c_str(), L"inner/..")));
    EXPECT_TRUE(ktutPathIsSame(base.c_str(), (base + L"/").c_str()));
    EXPECT_FALSE(ktutPathIsSame(base.c_str(), file));
    EXPECT_FALSE(ktutPathIsSame(L"", L""));
    std::filesystem::remove_all(folder);
}

TEST(Paths, TextsAreSplitAtAnySeparator) {
    const std::vector<OdString> pieces = ktutSplitString(L";a;;b,c;", L";,");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_EQ(pieces[0], L"a");
    EXPECT_EQ(pieces[2], L"c");
    EXPECT_TRUE(ktutSplitString(nullptr, L";").empty());
    EXPECT_EQ(ktutSplitString(L"a;b", L"").size(), 1u);
}

TEST(Paths, OnlyAsciiDigitsAreDigits) {
    EXPECT_TRUE(ktutIsDigit(L'0') && ktutIsDigit(L'9'));
    EXPECT_FALSE(ktutIsDigit(L'/') || ktutIsDigit(L':') || ktutIsDigit(L'\xFF11') || ktutIsDigit(L'\x0661'));
}
