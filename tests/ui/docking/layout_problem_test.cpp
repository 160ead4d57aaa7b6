// What is said of layouts that fail, in both languages.
#include "in_language.h"
#include "layouts_fixture.h"

using namespace docking_test;

namespace {

struct LayoutProblem : LayoutsTest {
    /// What is said of a file whose version is `value`.
    std::wstring said(const std::wstring& value) {
        fillFrame(1);
        EXPECT_TRUE(layouts.Save(L"x"));
        store(L"x", L"<KtUiPaletteLayouts Version='" + value + L"'/>");
        EXPECT_FALSE(layouts.Apply(L"x"));
        return std::wstring(layouts.GetProblem());
    }
};

}  // namespace

TEST_F(LayoutProblem, EveryTextIsThereInBothLanguages) {
    ui_test::expect_library_texts({
        {54601, L"There is no window whose palettes could be laid out.", L"没有可以布置选项板的窗口。"},
        {54602, L"A layout's name has 1 to 64 characters.", L"布局的名称为 1 到 64 个字符。"},
        {54603, L"There is no layout \"%1\".", L"没有布局“%1”。"},
        {54604, L"There is a layout \"%1\" already.", L"布局“%1”已存在。"},
        {54605, L"The layout can't be stored.", L"无法保存布局。"},
        {54606, L"The file \"%1\" can't be read.", L"无法读取文件“%1”。"},
        {54607, L"The file \"%1\" is too large for a file of layouts.", L"文件“%1”太大，不是布局文件。"},
        {54608, L"This isn't well-formed XML: line %1, column %2.", L"XML 格式不正确：第 %1 行，第 %2 列。"},
        {54609, L"The file \"%1\" can't be written.", L"无法写入文件“%1”。"},
        {54610, L"This is no file of layouts: its element is \"%1\".", L"这不是布局文件：其元素为“%1”。"},
        {54611, L"The layouts have version %3, which is too old.", L"布局的版本 %3 过旧。"},
        {54612, L"The layouts have version %3, which is newer than this program's.",
         L"布局的版本 %3 比本程序的版本新。"},
        {54613, L"The element %1 is missing.", L"缺少元素 %1。"},
        {54614, L"The element %1 doesn't belong there.", L"元素 %1 不应出现在该处。"},
        {54615, L"In %1 the attribute %2 is missing.", L"%1 缺少属性 %2。"},
        {54616, L"In %1 the attribute %2 can't be \"%3\".", L"%1 的属性 %2 不能为“%3”。"},
        {54617, L"In %1 the attribute %2, \"%3\", is met a second time.", L"%1 的属性 %2“%3”重复出现。"},
        {54618, L"In %1 the attribute %2, \"%3\", fits nothing else.", L"%1 的属性 %2“%3”没有对应的项。"},
        {54619, L"The element %1 lies too deep within others.", L"元素 %1 嵌套过深。"},
        {54620, L"The element %1 has too many elements.", L"元素 %1 的子元素过多。"},
        {54621, L"The window doesn't take the layout.", L"窗口不接受该布局。"},
        {54622, L"There is no built-in layout.", L"没有内置布局。"},
        {54623, L"The layout has no place for the palette, or the palette has one already.",
         L"布局中没有该选项板的位置，或该选项板已有位置。"},
    });
}

TEST_F(LayoutProblem, NamesElementAttributeAndValue) {
    const std::wstring text = said(L"one");
    for (const wchar_t* part : {L"KtUiPaletteLayouts", L"Version", L"one"})
        EXPECT_NE(text.find(part), std::wstring::npos) << CStringA(text.c_str()).GetString();
}

TEST_F(LayoutProblem, WhatAFileSaysStandsForNothing) {
    EXPECT_NE(said(L"%1 %2 %3").find(L"%1 %2 %3"), std::wstring::npos);
}

TEST_F(LayoutProblem, ALongValueIsCutShort) {
    const std::wstring text = said(std::wstring(5000, L'9'));
    EXPECT_LT(text.size(), 300u);
    EXPECT_NE(text.find(std::wstring(100, L'9') + L"..."), std::wstring::npos);
}
