// One font file that the user names.
#include "font_folder.h"

using ui_test::FontFolder;
using ui_test::FontHost;

namespace {

class LoadFont : public ::testing::Test {
protected:
    LoadFont() : of({folder.path()}) {}
    ~LoadFont() override { ::SetThreadLocale(locale); }

    /// What the host says of the file; "font" if it is one.
    std::wstring problemOf(const std::wstring& name) {
        CString message = L"font";
        const CKhFontStyle* style = of.host.LoadFontFile(name.c_str(), message);
        EXPECT_EQ(style == nullptr, message != L"font");
        return message.GetString();
    }

    std::wstring pathOf(const wchar_t* name) const { return elsewhere.file(name).GetString(); }

    const LCID locale = ::GetThreadLocale();
    const FontFolder folder{L"listed"};
    const FontFolder elsewhere{L"elsewhere"};
    FontHost of;
};

}  // namespace

TEST_F(LoadFont, AFileFromElsewhereBecomesOneOfTheFonts) {
    elsewhere.writeOutline(L"new.ttf", "New", "Bold", 700);
    ASSERT_EQ(of.list()->find(L"new.ttf"), nullptr);
    CString message;
    CKhFontStyle* style = of.host.LoadFontFile(elsewhere.file(L"new.ttf"), message);
    ASSERT_NE(style, nullptr);
    EXPECT_STREQ(style->styleName(), L"Bold");
    EXPECT_TRUE(message.IsEmpty());
    EXPECT_EQ(of.list()->find(L"new.ttf"), style);
    EXPECT_EQ(of.names(), std::vector<std::wstring>{L"New"});
}

TEST_F(LoadFont, TheVeryFileIsAnsweredWhenTheNameIsThereTwice) {
    folder.writeOutline(L"same.ttf", "Listed", "Regular");
    elsewhere.writeOutline(L"same.ttf", "Asked for", "Regular");
    CString message;
    const CKhFontStyle* style = of.host.LoadFontFile(elsewhere.file(L"same.ttf"), message);
    ASSERT_NE(style, nullptr);
    EXPECT_STREQ(style->font()->name(), L"Asked for");
}

TEST_F(LoadFont, ANameIsLookedForAmongTheFontsAndInTheSupportFolders) {
    folder.writeShx(L"plan.shx");
    elsewhere.writeShx(L"support.shx");
    EXPECT_EQ(problemOf(L"plan"), L"font");
    EXPECT_NE(problemOf(L"support.shx"), L"font");
    of.host.SetSupportDirectories({elsewhere.path()});
    EXPECT_EQ(problemOf(L"support.shx"), L"font");
}

TEST_F(LoadFont, EachProblemIsTold) {
    elsewhere.write(L"no.ttf", "no font");
    elsewhere.write(L"cut.ttf", font_bytes::outlineFont(std::string("A"), std::string("B")).substr(0, 90));
    elsewhere.write(L"cut.shx", font_bytes::shapes(font_bytes::letters()).substr(0, 40));
    elsewhere.write(L"library.shx", font_bytes::shapes({{130, "\x10"}}));
    elsewhere.write(L"text.txt", "text");
    EXPECT_EQ(problemOf(L"gone.ttf"), L"The font file was not found:\ngone.ttf");
    EXPECT_EQ(problemOf(pathOf(L"")), L"The font file was not found:\n" + pathOf(L""));
    EXPECT_EQ(problemOf(L""), L"The font file was not found:\n");
    for (const wchar_t* name : {L"no.ttf", L"text.txt"})
        EXPECT_EQ(problemOf(pathOf(name)),
                  L"This file is not a font. Choose a TrueType, OpenType or shape font:\n" + pathOf(name));
    for (const wchar_t* name : {L"cut.ttf", L"cut.shx"})
        EXPECT_EQ(problemOf(pathOf(name)), L"The font file is damaged:\n" + pathOf(name));
    EXPECT_EQ(
        problemOf(pathOf(L"library.shx")),
        L"This file holds shapes for linetypes and symbols, but no letters:\n" + pathOf(L"library.shx"));
    EXPECT_TRUE(of.names().empty()) << "none of them is listed";
}

TEST_F(LoadFont, AFileInUseIsToldApart) {
    elsewhere.writeOutline(L"used.ttf", "Used", "Regular");
    const std::wstring path = pathOf(L"used.ttf");
    HANDLE user = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(user, INVALID_HANDLE_VALUE);
    EXPECT_EQ(problemOf(path),
              L"The font file can't be opened. Another program may be using it, or you may not be "
              L"allowed to read it:\n" +
                  path);
    ::CloseHandle(user);
    EXPECT_EQ(problemOf(path), L"font");
}

TEST_F(LoadFont, ProblemsAreToldInChineseToo) {
    ::SetThreadLocale(MAKELCID(MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED), SORT_DEFAULT));
    EXPECT_EQ(problemOf(L"gone.ttf"), L"找不到字体文件：\ngone.ttf");
    elsewhere.write(L"library.shx", font_bytes::shapes({{130, "\x10"}}));
    EXPECT_EQ(problemOf(pathOf(L"library.shx")),
              L"此文件只包含用于线型和符号的形，没有文字：\n" + pathOf(L"library.shx"));
}
