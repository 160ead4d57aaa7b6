// What the drafter reads from its command line.
#include "command_line.h"

#include <gtest/gtest.h>

namespace {

using Files = std::vector<std::wstring>;

DrafterCommandLine read(const wchar_t* line, const wchar_t* file = L"") {
    return ReadCommandLine(line, [=](const std::wstring& path) { return path == file; });
}

TEST(CommandLine, NothingIsNoFile) {
    EXPECT_TRUE(read(L"").files.empty());
    EXPECT_TRUE(read(L" \t ").files.empty());
    EXPECT_TRUE(read(L"\"\"").files.empty());
    EXPECT_FALSE(read(L"").isClean);
}

TEST(CommandLine, WordsAreFilesAndQuotesHoldThemTogether) {
    EXPECT_EQ(read(L"a.dxf").files, Files{L"a.dxf"});
    EXPECT_EQ(read(L"  a.dxf\tb.dxf  c.dxf ").files, (Files{L"a.dxf", L"b.dxf", L"c.dxf"}));
    EXPECT_EQ(read(L"\"C:\\my drawings\\a.dxf\" b.dxf \"c d.dxf\"").files,
              (Files{L"C:\\my drawings\\a.dxf", L"b.dxf", L"c d.dxf"}));
    EXPECT_EQ(read(L"C:\\\"my drawings\"\\a.dxf b").files, (Files{L"C:\\my drawings\\a.dxf", L"b"}));
}

TEST(CommandLine, AQuoteThatIsNotClosedHoldsTheRestTogether) {
    EXPECT_EQ(read(L"a.dxf \"b c.dxf").files, (Files{L"a.dxf", L"b c.dxf"}));
}

TEST(CommandLine, AFileWithBlanksNeedsNoQuotesWhenItIsThere) {
    EXPECT_EQ(read(L" C:\\my drawings\\a.dxf ", L"C:\\my drawings\\a.dxf").files,
              Files{L"C:\\my drawings\\a.dxf"});
    EXPECT_EQ(read(L"--clean C:\\my drawings\\a.dxf", L"C:\\my drawings\\a.dxf").files,
              Files{L"C:\\my drawings\\a.dxf"});
    EXPECT_EQ(read(L"C:\\my drawings\\a.dxf").files, (Files{L"C:\\my", L"drawings\\a.dxf"}))
        << "there is no such file";
}

TEST(CommandLine, TheSwitchStandsAtTheHead) {
    EXPECT_TRUE(read(L"--clean").isClean);
    EXPECT_TRUE(read(L"--clean").files.empty());
    const DrafterCommandLine told = read(L" --clean \"a b.dxf\" c.dxf");
    EXPECT_TRUE(told.isClean);
    EXPECT_EQ(told.files, (Files{L"a b.dxf", L"c.dxf"}));
    EXPECT_FALSE(read(L"a.dxf --clean").isClean);
    EXPECT_EQ(read(L"--cleaner.dxf").files, Files{L"--cleaner.dxf"});
}

}  // namespace
