#include <ktui/pickers/plot_style_tables_combo_box.h>

#include <ktdsres/resource_ids.h>

#include <algorithm>

#include "picker_fixture.h"
#include "style_table_folders.h"

using ui_test::CurrentFolder;
using ui_test::InHolder;
using ui_test::StyleTableFolders;

namespace {

using Texts = std::vector<std::wstring>;

class Picker : public CKtUiPlotStyleTablesComboBox {
public:
    using CKtUiPlotStyleTablesComboBox::CKtUiPlotStyleTablesComboBox;
    int fills = 0;
    int countAtFill = -1;

    void OnAddItems() override {
        ++fills;
        countAtFill = GetCount();
    }
    unsigned flags() const { return m_mruFlags; }
    int lastSelection() const { return m_lastSelection; }
    int itemsAdded() const { return m_itemsAdded; }
    int showImage() const { return m_showImage; }
    void setShowImage(int show) { m_showImage = show; }
    bool hasBitmap() const { return m_bitmap.GetSafeHandle() != nullptr; }
    std::pair<bool, bool> fileTypes() const { return {m_fileTypeColor, m_fileTypeNamed}; }
};

class LazyPicker : public Picker {
public:
    LazyPicker() : Picker(0) {}
};

std::wstring noneText() {
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_NONE));
    return text.GetString();
}

/// The list of a picker that is filled anew from `folders`.
Texts listOf(const std::wstring& folders) {
    InHolder<Picker> in;
    in.host.pathVariables[L"PrinterStyleSheetDir"] = folders;
    in.picker.ResetContent();
    in.picker.OnComboBoxInit();
    return in.texts();
}

/// The names that follow the first item, sorted: the system decides the order inside a folder.
Texts namesIn(const std::wstring& folders) {
    Texts names = listOf(folders);
    EXPECT_EQ(names.front(), noneText());
    names.erase(names.begin());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

TEST(PlotStyleTables, WithoutAFolderTheListHoldsNoneOnly) {
    InHolder<Picker> in;
    EXPECT_EQ(in.texts(), Texts{noneText()});
    EXPECT_EQ(in.cargos(), std::vector<__int64>{0});
    EXPECT_EQ(in.picker.GetCurSel(), 0);
    EXPECT_EQ(in.picker.lastSelection(), 0);
    EXPECT_EQ(IDS_NONE, 54182);
}

TEST(PlotStyleTables, NeitherOptionNorOtherItemsAppear) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.flags() & ~1u, 0u);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 1);
}

TEST(PlotStyleTables, SubclassedControlIsFilledToo) {
    InHolder<Picker> in(InHolder<Picker>::kBySubclassing);
    EXPECT_EQ(in.texts(), Texts{noneText()});
    EXPECT_EQ(in.picker.lastSelection(), 0);
}

TEST(PlotStyleTables, ExtensionDecidesWithoutRegardToCase) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    for (const wchar_t* name : {L"mono.ctb", L"HOUSE.STB", L"Big.CTB", L"old.ctb.bak", L"plain.txt", L"ctb"})
        folders.addFile(folder + L"\\" + name);
    EXPECT_EQ(namesIn(folder), (Texts{L"Big.CTB", L"HOUSE.STB", L"mono.ctb"}));
}

TEST(PlotStyleTables, SubfoldersAreNotEnteredButCountByTheirExtension) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folders.addFolder(folder + L"\\inner") + L"\\hidden.ctb");
    folders.addFolder(folder + L"\\folder.stb");
    EXPECT_EQ(namesIn(folder), Texts{L"folder.stb"});
}

TEST(PlotStyleTables, FoldersAreListedInTheirOrderAndMissingOnesSkipped) {
    StyleTableFolders folders;
    const std::wstring first = folders.addTemporaryFolder(L"zfirst");
    const std::wstring second = folders.addTemporaryFolder(L"asecond");
    folders.addFile(first + L"\\z.ctb");
    folders.addFile(second + L"\\a.stb");
    EXPECT_EQ(listOf(first + L";C:\\no such folder;" + second), (Texts{noneText(), L"z.ctb", L"a.stb"}));
    EXPECT_EQ(listOf(L"C:\\no such folder;none either"), Texts{noneText()});
}

TEST(PlotStyleTables, TwoFoldersWithOneNameListItTwice) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folder + L"\\a.ctb");
    EXPECT_EQ(namesIn(folder + L";" + folder), (Texts{L"a.ctb", L"a.ctb"}));
}

TEST(PlotStyleTables, RelativeFolderIsFoundBelowTheProgramsFolder) {
    StyleTableFolders folders;
    const std::wstring name = L"styles of the program";
    folders.addFile(folders.addFolder(StyleTableFolders::programFolder() + name) + L"\\below.ctb");
    const CurrentFolder elsewhere(folders.addTemporaryFolder(L"elsewhere"));
    EXPECT_EQ(namesIn(name), Texts{L"below.ctb"});
}

TEST(PlotStyleTables, RelativeFolderBelowTheCurrentOneComesFirst) {
    StyleTableFolders folders;
    const std::wstring name = L"styles of the program";
    folders.addFile(folders.addFolder(StyleTableFolders::programFolder() + name) + L"\\below.ctb");
    const std::wstring current = folders.addTemporaryFolder(L"current");
    folders.addFile(folders.addFolder(current + L"\\" + name) + L"\\nearer.ctb");
    const CurrentFolder there(current);
    EXPECT_EQ(namesIn(name), Texts{L"nearer.ctb"});
}

TEST(PlotStyleTables, TablesOfAnUnnamedFolderStayOutAndShiftTheOthersOut) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folder + L"\\a.ctb");
    folders.addFile(folder.substr(0, 2) + L"\\at the root.ctb");
    const CurrentFolder there(folder);
    EXPECT_EQ(namesIn(folder + L";"), Texts{L"a.ctb"});
    EXPECT_EQ(namesIn(L";" + folder), Texts{}) << "no item can be inserted behind the end";
}

TEST(PlotStyleTables, BothKindsAreListedWhateverTypeIsSet) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folder + L"\\a.ctb");
    folders.addFile(folder + L"\\b.stb");
    InHolder<Picker> in;
    in.host.pathVariables[L"PrinterStyleSheetDir"] = folder;
    EXPECT_EQ(in.picker.fileTypes(), std::pair(true, false));
    in.picker.SetFileType(false, true);
    EXPECT_EQ(in.picker.fileTypes(), std::pair(false, true));
    in.picker.ResetContent();
    in.picker.OnComboBoxInit();
    EXPECT_EQ(in.picker.GetCount(), 3);
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{0, 0, 0}));
}

TEST(PlotStyleTables, WithoutDialogsOfTheHostTheListHoldsNoneOnly) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folder + L"\\a.ctb");
    InHolder<Picker> in;
    in.host.pathVariables[L"PrinterStyleSheetDir"] = folder;
    in.host.hasUiHost = false;
    in.picker.ResetContent();
    in.picker.OnComboBoxInit();
    EXPECT_EQ(in.picker.GetCount(), 1);
}

TEST(PlotStyleTables, SubclassAddsItsItemsAtInitialisation) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.itemsAdded(), 1);
    EXPECT_EQ(in.picker.fills, 1);
    EXPECT_EQ(in.picker.countAtFill, 1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.fills, 1);
}

TEST(PlotStyleTables, LazySubclassAddsItsItemsAtTheFirstDropDown) {
    InHolder<LazyPicker> in;
    EXPECT_EQ(in.picker.fills, 0);
    EXPECT_EQ(in.picker.itemsAdded(), 0);
    in.picker.SetUseOther(1);
    in.dropDown();
    EXPECT_EQ(in.picker.fills, 1);
    EXPECT_EQ(in.picker.itemsAdded(), 1);
    EXPECT_EQ(in.picker.countAtFill, 1) << "Other comes after";
    EXPECT_EQ(in.picker.GetCount(), 2);
    in.closeUp();
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.fills, 1);
    EXPECT_EQ(in.holder.dropDowns, 2) << "the parent hears of it";
}

TEST(PlotStyleTables, ImageColumnIsAsWideAsAnItemIsHighUnlessOff) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.showImage(), 1);
    EXPECT_FALSE(in.picker.hasBitmap());
    EXPECT_GT(in.picker.ItemHeight(), 0);
    EXPECT_EQ(in.picker.ImageWidth(), in.picker.ItemHeight());
    in.picker.setShowImage(0);
    EXPECT_EQ(in.picker.ImageWidth(), 0);
}

TEST(PlotStyleTables, ItemHeightIsThatOfEveryPicker) {
    InHolder<Picker> in;
    CKtUiMRUComboBox plain;
    EXPECT_EQ(in.picker.CalcItemHeight(), plain.CalcItemHeight());
    EXPECT_EQ(in.picker.ItemHeight(), plain.CalcItemHeight());
}

TEST(PlotStyleTables, ImagesAreEmpty) {
    InHolder<Picker> in;
    ui_test::Canvas canvas(20, 20, RGB(200, 100, 50));
    CRect rect(0, 0, 20, 20);
    in.picker.DrawItemImage(canvas.dc, rect, 0);
    for (int at = 0; at < 20; ++at) EXPECT_EQ(canvas.dc.GetPixel(at, at), RGB(200, 100, 50));
}

TEST(PlotStyleTables, PlaceholdersDoNothing) {
    InHolder<Picker> in;
    EXPECT_FALSE(in.picker.IsMissing(0));
    EXPECT_FALSE(in.picker.IsMissing(99));
    EXPECT_EQ(in.picker.AddMissingStyleTable(L"gone.ctb"), 0);
    EXPECT_EQ(in.picker.GetCount(), 1);
}

TEST(PlotStyleTables, TextOfAnItemIsThatOfTheList) {
    InHolder<Picker> in;
    CString text;
    in.picker.GetLBText(0, text);
    EXPECT_EQ(text.GetString(), noneText());
}

TEST(PlotStyleTables, OpeningAndClosingLeavesNothingBehind) {
    StyleTableFolders folders;
    const std::wstring folder = folders.addTemporaryFolder(L"styles");
    folders.addFile(folder + L"\\a.ctb");
    const auto openAndClose = [&] { EXPECT_EQ(listOf(folder).size(), 2u); };
    ui_test::expectNothingLeft(openAndClose);
}
