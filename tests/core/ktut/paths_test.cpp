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

TEST(Paths, ADriveIsALetterAndAColon) {
    EXPECT_EQ(split(L"a:").drive, L"a:") << "nothing behind it";
    EXPECT_EQ(split(L"Z:x").drive, L"Z:");
    EXPECT_EQ(split(L"A:x").drive, L"A:");
    EXPECT_TRUE(split(L"1:x").drive.isEmpty());
    EXPECT_TRUE(split(L"[:x").drive.isEmpty());
    EXPECT_TRUE(split(L"@:x").drive.isEmpty());
    EXPECT_TRUE(split(L":").drive.isEmpty());
}

TEST(Paths, AShareIsAServerAndAFolderOfIt) {
    EXPECT_EQ(split(L"\\\\server\\share").drive, L"\\\\server\\share") << "nothing behind it";
    EXPECT_EQ(split(L"\\\\server").drive, L"\\\\server");
    EXPECT_EQ(split(L"//s/t/u").drive, L"//s/t");
    EXPECT_EQ(split(L"\\\\a").drive, L"\\\\a") << "the shortest";
    EXPECT_TRUE(split(L"\\\\").drive.isEmpty());
    EXPECT_TRUE(split(L"\\\\\\x").drive.isEmpty()) << "three separators name no server";
    EXPECT_TRUE(split(L"\\server\\share\\x").drive.isEmpty()) << "one separator is a folder";
    EXPECT_TRUE(split(L"as\\b\\c").drive.isEmpty());
}

TEST(Paths, AbsoluteTailsStandAlone) {
    EXPECT_EQ(ktutCombinePath(L"a", L"/b"), L"/b");
    EXPECT_EQ(ktutCombinePath(L"a", L"\\b"), L"\\b");
    EXPECT_EQ(ktutCombinePath(L"a", L"d:b"), L"d:b");
    EXPECT_EQ(ktutCombinePath(L"a/", L"b"), L"a/b");
    EXPECT_EQ(ktutCombinePath(nullptr, L"b"), L"b");
    EXPECT_EQ(ktutCombinePath(L"a", nullptr), L"a");
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
    EXPECT_FALSE(ktutPathIsSame(nullptr, base.c_str()) || ktutPathIsSame(base.c_str(), nullptr));
    EXPECT_FALSE(ktutPathIsSame(L"", base.c_str()) || ktutPathIsSame(base.c_str(), L""));
    EXPECT_FALSE(ktutPathIsSame(nullptr, nullptr));
    EXPECT_FALSE(ktutDirectoryExists(nullptr));
    EXPECT_FALSE(ktutDirectoryExists(ktutCombinePath(base.c_str(), L"none")));
    std::filesystem::remove_all(folder);
}

TEST(Paths, EmptyIsNotTheCurrentFolder) {
    const std::wstring here = std::filesystem::current_path().wstring();
    EXPECT_TRUE(ktutPathIsSame(L".", here.c_str()));
    EXPECT_FALSE(ktutPathIsSame(L"", here.c_str()));
    EXPECT_FALSE(ktutPathIsSame(here.c_str(), L""));
    EXPECT_FALSE(ktutDirectoryExists(L""));
}

TEST(Paths, ARootKeepsItsSeparator) {
#ifdef _WIN32
    EXPECT_TRUE(ktutPathIsSame(L"C:\\", L"c:\\."));
    EXPECT_FALSE(ktutPathIsSame(L"C:\\", L"C:\\windows"));
    EXPECT_TRUE(ktutPathIsSame(L"C:\\WINDOWS\\", L"c:/windows")) << "case and kind of separator don't count";
#else
    EXPECT_TRUE(ktutPathIsSame(L"/", L"/."));
    EXPECT_FALSE(ktutPathIsSame(L"/tmp", L"/TMP")) << "case counts";
#endif
}

TEST(Paths, TextsAreSplitAtAnySeparator) {
    const std::vector<OdString> pieces = ktutSplitString(L";a;;b,c;", L";,");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_EQ(pieces[0], L"a");
    EXPECT_EQ(pieces[2], L"c");
    EXPECT_TRUE(ktutSplitString(nullptr, L";").empty());
    ASSERT_EQ(ktutSplitString(L"a;z", nullptr).size(), 1u) << "nothing to split at";
    EXPECT_EQ(ktutSplitString(L"a;b", L"").size(), 1u);
}

TEST(Paths, OnlyAsciiDigitsAreDigits) {
    EXPECT_TRUE(ktutIsDigit(L'0') && ktutIsDigit(L'9'));
    EXPECT_FALSE(ktutIsDigit(L'/') || ktutIsDigit(L':') || ktutIsDigit(L'\xFF11') || ktutIsDigit(L'\x0661'));
}
