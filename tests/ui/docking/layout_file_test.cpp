// Layouts as files: exported, imported, and files that are none.
#include <fstream>

#include "in_language.h"
#include "layouts_fixture.h"
#include "parser_error.h"
#include "without_strings.h"

using namespace docking_test;

namespace {

struct LayoutFile : LayoutsTest {
    std::wstring folder = makeFolder();

    ~LayoutFile() override {
        WIN32_FIND_DATAW found;
        const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &found);
        if (search != INVALID_HANDLE_VALUE) {
            do ::DeleteFileW((folder + L"\\" + found.cFileName).c_str());
            while (::FindNextFileW(search, &found));
            ::FindClose(search);
        }
        ::RemoveDirectoryW(folder.c_str());
    }
    static std::wstring makeFolder() {
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        const std::wstring made =
            std::wstring(temporary) + L"layouts # 100% \u56fe " + std::to_wstring(::GetCurrentProcessId());
        ::CreateDirectoryW(made.c_str(), nullptr);
        return made;
    }
    std::wstring path(const wchar_t* name) const { return folder + L"\\" + name; }
    CString write(const std::string& bytes) const {
        const std::wstring file = path(L"written.xml");
        CFile out;
        EXPECT_TRUE(out.Open(file.c_str(), CFile::modeCreate | CFile::modeWrite));
        out.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return file.c_str();
    }
    static std::string read(const std::wstring& file) {
        CFile in;
        if (!in.Open(file.c_str(), CFile::modeRead)) return "(none)";
        std::string bytes(static_cast<std::size_t>(in.GetLength()), ' ');
        in.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }
    int files() const {
        int count = 0;
        WIN32_FIND_DATAW found;
        const HANDLE search = ::FindFirstFileW((folder + L"\\*.*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return 0;
        do count += (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
        while (::FindNextFileW(search, &found));
        ::FindClose(search);
        return count;
    }
    static std::string nested(int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i) text += "<KtUiPaletteLayouts Version='1'>";
        for (int i = 0; i < levels; ++i) text += "</KtUiPaletteLayouts>";
        return text;
    }
    INT_PTR count() {
        CStringArray names;
        layouts.GetNames(names);
        return names.GetSize();
    }
    void expectRefused(const std::string& bytes, const wchar_t* said) {
        const Seen before = seen();
        const INT_PTR stored = count();
        EXPECT_FALSE(layouts.Import(write(bytes))) << bytes.substr(0, 300);
        EXPECT_NE(std::wstring(layouts.GetProblem()).find(said), std::wstring::npos)
            << CStringA(layouts.GetProblem()).GetString();
        EXPECT_EQ(count(), stored);
        EXPECT_EQ(seen(), before);
    }
};

}  // namespace

TEST_F(LayoutFile, WhatIsExportedComesBackToThePixel) {
    fillFrame(5);
    for (int i = 0; i < 15; ++i) doAnything();
    const Seen wanted = seen();
    ASSERT_TRUE(layouts.Save(L"<one> & \"two\" \u56fe"));
    ASSERT_TRUE(layouts.Export(path(L"one.xml").c_str(), L"<ONE> & \"two\" \u56fe"));
    ASSERT_TRUE(layouts.Delete(L"<one> & \"two\" \u56fe"));
    for (int i = 0; i < 15; ++i) doAnything();
    const Seen between = seen();
    CStringArray names;
    ASSERT_TRUE(layouts.Import(path(L"one.xml").c_str(), &names))
        << CStringA(layouts.GetProblem()).GetString();
    ASSERT_EQ(names.GetSize(), 1);
    EXPECT_EQ(names[0], L"<one> & \"two\" \u56fe");
    EXPECT_EQ(seen(), between) << "importing applies nothing";
    ASSERT_TRUE(layouts.Apply(names[0]));
    EXPECT_EQ(seen(), wanted);
}

TEST_F(LayoutFile, AllGoIntoOneFileAndReplaceThoseOfTheirNames) {
    fillFrame(3);
    ASSERT_TRUE(layouts.Save(L"a"));
    bars[0]->FloatPane(CRect(200, 200, 400, 400));
    const Seen floating = seen();
    ASSERT_TRUE(layouts.Save(L"b"));
    ASSERT_TRUE(layouts.Export(path(L"all.xml").c_str()));
    ASSERT_TRUE(layouts.Apply(L"a"));
    ASSERT_TRUE(layouts.Save(L"B"));
    ASSERT_TRUE(layouts.Delete(L"a"));
    ASSERT_TRUE(layouts.Import(path(L"all.xml").c_str()));
    EXPECT_EQ(count(), 2);
    ASSERT_TRUE(layouts.Apply(L"b"));
    EXPECT_EQ(seen(), floating);
}

TEST_F(LayoutFile, IsUtf8InLinesAndTakesThePlaceOfAFormerOne) {
    fillFrame(2);
    ASSERT_TRUE(layouts.Save(L"\u56fe"));
    write("former");
    ASSERT_TRUE(layouts.Export(path(L"written.xml").c_str(), L"\u56fe"));
    const std::string text = read(path(L"written.xml"));
    EXPECT_EQ(text.find("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"), 0u) << text.substr(0, 80);
    EXPECT_NE(text.find("\n  <Layout Name=\"\xe5\x9b\xbe\">"), std::string::npos) << text.substr(0, 300);
    EXPECT_NE(text.find("\n    <Docked>"), std::string::npos);
    EXPECT_EQ(files(), 1);
}

TEST_F(LayoutFile, WhatCannotBeWrittenOrReadSaysSo) {
    fillFrame(1);
    EXPECT_FALSE(layouts.Export(path(L"none.xml").c_str()));
    ASSERT_TRUE(layouts.Save(L"a"));
    EXPECT_FALSE(layouts.Export(path(L"none.xml").c_str(), L"b"));
    EXPECT_FALSE(layouts.Export(path(L"missing\\none.xml").c_str()));
    EXPECT_NE(std::wstring(layouts.GetProblem()).find(L"none.xml"), std::wstring::npos);
    EXPECT_EQ(files(), 0);
    EXPECT_FALSE(layouts.Import(path(L"missing.xml").c_str()));
    EXPECT_NE(std::wstring(layouts.GetProblem()).find(L"missing.xml"), std::wstring::npos);
    // The former file stays whole when the new one can't be completed, and while somebody holds it.
    write("former");
    const std::wstring beside = path(L"written.xml.new");
    ASSERT_TRUE(::CreateDirectoryW(beside.c_str(), nullptr));
    EXPECT_FALSE(layouts.Export(path(L"written.xml").c_str()));
    EXPECT_EQ(read(path(L"written.xml")), "former");
    ASSERT_TRUE(::RemoveDirectoryW(beside.c_str()));
    {
        CFile held;
        ASSERT_TRUE(held.Open(path(L"written.xml").c_str(), CFile::modeRead | CFile::shareDenyWrite));
        EXPECT_FALSE(layouts.Export(path(L"written.xml").c_str()));
    }
    EXPECT_EQ(read(path(L"written.xml")), "former");
    EXPECT_EQ(files(), 1);
}

TEST_F(LayoutFile, AFileThatIsCutOffAnywhereIsRefused) {
    fillFrame(3);
    bars[1]->AttachToTabWnd(bars[0].get(), DM_UNKNOWN);
    ASSERT_TRUE(layouts.Save(L"a"));
    ASSERT_TRUE(layouts.Export(path(L"whole.xml").c_str()));
    ASSERT_TRUE(layouts.Delete(L"a"));
    const std::string whole = read(path(L"whole.xml"));
    ASSERT_GT(whole.size(), 500u);
    const std::size_t end = whole.rfind('>');
    for (std::size_t at = 0; at <= end; at += 37) expectRefused(whole.substr(0, at), L"");
    expectRefused(whole.substr(0, end), L"XML");
    EXPECT_TRUE(layouts.Import(write(whole)));
}

TEST_F(LayoutFile, WhatIsNoFileOfLayoutsIsRefused) {
    fillFrame(1);
    expectRefused("", L"written.xml");
    expectRefused("layouts", L"XML");
    expectRefused(std::string("\0\0\0\0\xff\xfe", 6), L"XML");
    expectRefused("<html/>", L"html");
    expectRefused("<KtUiPaletteLayouts/>", L"Version");
    expectRefused("<KtUiPaletteLayouts Version='2'><Future/></KtUiPaletteLayouts>", L"2");
    expectRefused("<KtUiPaletteLayouts Version='0'/>", L"0");
    expectRefused("<KtUiPaletteLayouts Version='1'/>", L"Layout");
    expectRefused("<!DOCTYPE KtUiPaletteLayouts [<!ENTITY a 'b'>]><KtUiPaletteLayouts Version='1'/>",
                  L"DOCTYPE");
    for (const int levels : {130, 200}) {
        expectRefused(nested(levels), L"lies too deep");
        EXPECT_EQ(std::wstring(layouts.GetProblem()).find(L"[1]"), std::wstring::npos)
            << "nothing in it is looked at";
    }
    expectRefused(nested(129), L"KtUiPaletteLayouts[1]");
    expectRefused(std::string(4 * 1024 * 1024 + 1, ' '), L"written.xml");
    // One of two is damaged: none is taken.
    const std::string sound = "<Docked/><Floating/><Tabs/><Panes/></Layout>";
    expectRefused("<KtUiPaletteLayouts Version='1'><Layout Name='good'>" + sound + "<Layout Name='bad'>" +
                      "<Docked/><Floating/><Tabs/></Layout></KtUiPaletteLayouts>",
                  L"Layout[2]/Panes");
    EXPECT_TRUE(layouts.Import(
        write("<KtUiPaletteLayouts Version='1'><Layout Name='empty'>" + sound + "</KtUiPaletteLayouts>")));
    EXPECT_TRUE(layouts.Apply(L"empty"));
}

TEST_F(LayoutFile, WhatIsNoXmlIsRefusedWithTheLineAndTheColumnOfTheParser) {
    fillFrame(1);
    ToldPlace place(7, 3);
    {
        const ParserTells tells(&place);
        expectRefused("<a>", L"line 7, column 3");
    }
    EXPECT_EQ(place.references, 0u);
    const ParserTells nothing(nullptr);
    expectRefused("<a>", L"line 0, column 0");
}

/// A file that has to be refused, and what has to be said then.
struct BrokenFile {
    std::string name, bytes;
    CString said;
};

std::vector<BrokenFile> brokenFiles() {
    const std::string folder = std::string(KTUI_TEST_DATA) + "/broken_layouts/";
    std::ifstream list(folder + "said.txt");
    EXPECT_TRUE(list.good());
    std::vector<BrokenFile> all;
    for (std::string line; std::getline(list, line);) {
        const std::size_t gap = line.find('\t');
        EXPECT_NE(gap, std::string::npos) << line;
        std::ifstream file(folder + line.substr(0, gap), std::ios::binary);
        EXPECT_TRUE(file.good()) << line;
        all.push_back({line, std::string((std::istreambuf_iterator<char>(file)), {}),
                       CString(line.substr(gap + 1).c_str())});
    }
    return all;
}

TEST_F(LayoutFile, EveryBrokenFileOfTheCollectionIsRefusedWithItsElement) {
    fillFrame(3);
    const std::vector<BrokenFile> files = brokenFiles();
    EXPECT_GE(files.size(), 20u);
    for (const BrokenFile& file : files) {
        SCOPED_TRACE(file.name);
        expectRefused(file.bytes, file.said);
    }
}

TEST_F(LayoutFile, WhatIsSaidIsBuiltInWhereTheLibraryHasNoStrings) {
    std::vector<std::wstring> said[2];
    CKtUiPaletteLayouts detached;
    fillFrame(1);
    const auto sayEverything = [&](std::vector<std::wstring>& all) {
        const auto note = [&](BOOL done, const CKtUiPaletteLayouts& by) {
            EXPECT_FALSE(done);
            all.emplace_back(by.GetProblem());
        };
        note(detached.Save(L"x"), detached);
        note(layouts.Save(L" "), layouts);
        note(layouts.Apply(L"none"), layouts);
        note(layouts.Rename(L"one", L"two"), layouts);
        note(layouts.Import(path(L"none.xml").c_str()), layouts);
        note(layouts.Import(write(std::string(20'000'000, ' '))), layouts);
        note(layouts.Export(path(L"no folder\\one.xml").c_str()), layouts);
        note(layouts.PlacePane(*bars.front()), layouts);
        for (const BrokenFile& file : brokenFiles()) note(layouts.Import(write(file.bytes)), layouts);
    };
    ASSERT_TRUE(layouts.Save(L"one"));
    ASSERT_TRUE(layouts.Save(L"two"));
    {
        const ui_test::InLanguage chinese(ui_test::kChinese);
        sayEverything(said[0]);
    }
    {
        const ui_test::WithoutStrings strings;
        sayEverything(said[1]);
    }
    EXPECT_EQ(said[0][0], L"没有可以布置选项板的窗口。");
    EXPECT_EQ(said[0], said[1]);
}

TEST_F(LayoutFile, WithoutAWindowEveryOperationSaysSo) {
    addBar(kFirstBar);
    CStringArray names;
    names.Add(L"one");
    layouts.GetNames(names);
    EXPECT_EQ(names.GetSize(), 0);
    EXPECT_FALSE(layouts.Has(L"one"));
    const std::function<BOOL()> operations[] = {
        [this] { return layouts.Save(L"one"); },
        [this] { return layouts.Apply(L"one"); },
        [this] { return layouts.Rename(L"one", L"two"); },
        [this] { return layouts.Delete(L"one"); },
        [this] { return layouts.Export(path(L"one.xml").c_str(), L"one"); },
        [this] { return layouts.Export(path(L"one.xml").c_str()); },
        [this] { return layouts.Import(path(L"one.xml").c_str()); },
        [this] { return layouts.PlacePane(*bars.front()); },
        [this] { return layouts.SetKeepReachable(TRUE); },
    };
    for (const auto& each : operations) {
        EXPECT_FALSE(each());
        EXPECT_EQ(layouts.GetProblem(), L"There is no window whose palettes could be laid out.");
    }
    EXPECT_EQ(files(), 0);
}

TEST_F(LayoutFile, APaletteOfAPaneThatHasNoneIsLeftAlone) {
    fillFrame(2);
    ASSERT_TRUE(layouts.Save(L"x"));
    std::wstring text = stored(L"x");
    const std::wstring id = L"<State Id=\"" + std::to_wstring(kFirstBar) + L"\"";
    const std::size_t at = text.find(id);
    ASSERT_NE(at, std::wstring::npos) << CStringA(text.c_str()).GetString();
    text.insert(at + id.size(), L" Palette=\"0\"");
    store(L"x", text);
    const Seen before = seen();
    EXPECT_TRUE(layouts.Apply(L"x")) << CStringA(layouts.GetProblem()).GetString();
    EXPECT_EQ(seen(), before);
}
