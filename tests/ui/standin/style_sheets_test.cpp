// The plot style service of the stand-in host: where it looks for style sheets, and what it makes of them.
#include <kh_plot_style.h>

#include "plot_style_fixture.h"

namespace {

using ui_test::Texts;

class StyleSheets : public ui_test::PlotStyleTest {
protected:
    CKhPlotStyle* service() {
        return static_cast<CKhPlotStyle*>(host.serviceManager()->getService(kKhPlotStyleService));
    }
    /// The names in a sheet, or "refused".
    Texts namesIn(const wchar_t* sheet) {
        OdArray<OdString> names;
        if (!service()->getStyleNames(sheet, names)) return {L"refused"};
        Texts texts;
        for (const OdString& name : names) texts.emplace_back(name.view());
        return texts;
    }
    void setFolders(const std::wstring& folders) {
        host.SetPathVariable(L"PrinterStyleSheetDir", folders.c_str());
    }
    const Texts refused{L"refused"};
};

/// Sets the time at which a file was written, in hundreds of nanoseconds from now.
void shiftTime(const std::wstring& path, LONGLONG by) {
    const HANDLE file =
        ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ULARGE_INTEGER time;
    FILETIME written;
    ::GetFileTime(file, nullptr, nullptr, &written);
    time.LowPart = written.dwLowDateTime;
    time.HighPart = written.dwHighDateTime;
    time.QuadPart += static_cast<ULONGLONG>(by);
    written = {time.LowPart, time.HighPart};
    ::SetFileTime(file, nullptr, nullptr, &written);
    ::CloseHandle(file);
}

/// A service that knows nothing.
class NoStyles final : public CKhPlotStyle {
public:
    bool getStyleNames(const OdString&, OdArray<OdString>&) override { return false; }
};

}  // namespace

TEST_F(StyleSheets, AreFoundByNameInTheFolders) {
    ui_test::TemporaryFolder second;
    folder.write(L"house.stb", tableOf({L"Normal", L"Heavy"}));
    second.write(L"guest.stb", tableOf({L"Guest"}));
    setFolders(L"C:\\no such folder;" + folder.path() + L";" + second.path());
    EXPECT_EQ(namesIn(L"house.stb"), (Texts{L"Normal", L"Heavy"}));
    EXPECT_EQ(namesIn(L"HOUSE.STB"), (Texts{L"Normal", L"Heavy"}));
    EXPECT_EQ(namesIn(L"guest.stb"), Texts{L"Guest"});
}

TEST_F(StyleSheets, TheFirstFolderWins) {
    ui_test::TemporaryFolder second;
    folder.write(L"same.stb", tableOf({L"First"}));
    second.write(L"same.stb", tableOf({L"Second"}));
    setFolders(second.path() + L";" + folder.path());
    EXPECT_EQ(namesIn(L"same.stb"), Texts{L"Second"});
}

TEST_F(StyleSheets, AreFoundByFullPathToo) {
    const std::wstring path = folder.write(L"house.stb", tableOf({L"Heavy"}));
    setFolders(L"");
    EXPECT_EQ(namesIn(path.c_str()), Texts{L"Heavy"});
    EXPECT_EQ(namesIn(L"house.stb"), refused);
}

TEST_F(StyleSheets, ARelativeFolderIsBelowTheProgram) {
    const CString program = ui_test::program_path();
    const CString below = program.Left(program.ReverseFind(L'\\') + 1) + L"sheets of a test";
    ::CreateDirectoryW(below, nullptr);
    const std::wstring path = folder.write(L"below.stb", tableOf({L"Below"}));
    ::CopyFileW(path.c_str(), below + L"\\below.stb", FALSE);
    ::DeleteFileW(path.c_str());
    setFolders(L"sheets of a test");
    EXPECT_EQ(namesIn(L"below.stb"), Texts{L"Below"});
    ::DeleteFileW(below + L"\\below.stb");
    ::RemoveDirectoryW(below);
}

TEST_F(StyleSheets, AtFirstTheFolderIsPlotStyles) {
    CStandinHost fresh(*AfxGetApp());
    wchar_t value[kKhPathLength] = {};
    EXPECT_EQ(fresh.uiHost()->getPathVariable(L"PrinterStyleSheetDir", value), kKhStatusOk);
    EXPECT_STREQ(value, L"Plot Styles");
    EXPECT_NE(fresh.uiHost()->getPathVariable(L"no such variable", value), kKhStatusOk);
}

TEST_F(StyleSheets, AMissingEmptyOrUnreadableFolderHasNone) {
    setFolders(L"C:\\no such folder");
    EXPECT_EQ(namesIn(L"house.stb"), refused);
    setFolders(folder.path());
    EXPECT_EQ(namesIn(L"house.stb"), refused);
    const std::wstring file = folder.write(L"a file.stb", tableOf({L"A"}));
    setFolders(file);
    EXPECT_EQ(namesIn(L"house.stb"), refused) << "a file in place of a folder";
    EXPECT_EQ(namesIn(L""), refused);
    host.ReplaceUiHost(nullptr);
    EXPECT_EQ(namesIn(L"a file.stb"), refused) << "at shut-down there are no folders";
}

TEST_F(StyleSheets, AFolderOfTheNameOrALockedFileIsRefused) {
    ::CreateDirectoryW((folder.path() + L"\\folder.stb").c_str(), nullptr);
    EXPECT_EQ(namesIn(L"folder.stb"), refused);
    ::RemoveDirectoryW((folder.path() + L"\\folder.stb").c_str());
    const std::wstring path = folder.write(L"locked.stb", tableOf({L"A"}));
    const HANDLE lock =
        ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(namesIn(L"locked.stb"), refused);
    ::CloseHandle(lock);
}

TEST_F(StyleSheets, ADamagedOneIsRefused) {
    const std::string whole = tableOf({L"Normal", L"Heavy"});
    folder.write(L"short.stb", whole.substr(0, whole.size() - 3));
    folder.write(L"empty.stb", "");
    folder.write(L"other.stb", "this is a letter\n");
    for (const wchar_t* name : {L"short.stb", L"empty.stb", L"other.stb"}) {
        EXPECT_EQ(namesIn(name), refused) << name;
        EXPECT_EQ(namesIn(name), refused) << name << " a second time";
    }
}

TEST_F(StyleSheets, AColorTableHasTheNamesOfTheColors) {
    folder.write(L"mono.ctb", tableOf({L"Color_1", L"Color_2"}, true));
    EXPECT_EQ(namesIn(L"mono.ctb"), (Texts{L"Color_1", L"Color_2"}));
}

TEST_F(StyleSheets, AreReadAnewOnlyWhenTheyChange) {
    const std::wstring path = folder.write(L"house.stb", tableOf({L"AAAA"}));
    EXPECT_EQ(namesIn(L"house.stb"), Texts{L"AAAA"});
    WIN32_FILE_ATTRIBUTE_DATA before = {};
    ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &before);
    // Another text of the same length and time goes unnoticed; with another time it counts.
    folder.write(L"house.stb", tableOf({L"BBBB"}));
    const HANDLE file =
        ::CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ::SetFileTime(file, nullptr, nullptr, &before.ftLastWriteTime);
    ::CloseHandle(file);
    WIN32_FILE_ATTRIBUTE_DATA after = {};
    ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &after);
    ASSERT_EQ(after.nFileSizeLow, before.nFileSizeLow);
    EXPECT_EQ(namesIn(L"house.stb"), Texts{L"AAAA"}) << "kept in memory";
    shiftTime(path, 20000000);
    EXPECT_EQ(namesIn(L"house.stb"), Texts{L"BBBB"});
    folder.write(L"house.stb", "damaged");
    shiftTime(path, 40000000);
    EXPECT_EQ(namesIn(L"house.stb"), refused);
    folder.write(L"house.stb", tableOf({L"CCCC", L"DDDD"}));
    shiftTime(path, 60000000);
    EXPECT_EQ(namesIn(L"house.stb"), (Texts{L"CCCC", L"DDDD"}));
    ::DeleteFileW(path.c_str());
    EXPECT_EQ(namesIn(L"house.stb"), refused);
}

TEST_F(StyleSheets, ManyOfThemAreReadAndReadAgain) {
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 70; ++i) {
            const std::wstring name = L"sheet" + std::to_wstring(i);
            if (round == 0) folder.write((name + L".stb").c_str(), tableOf({name}));
            EXPECT_EQ(namesIn((name + L".stb").c_str()), Texts{name});
        }
}

TEST_F(StyleSheets, AnApplicationMayPutItsOwnServiceInPlace) {
    NoStyles own;
    host.SetService(kKhPlotStyleService, &own);
    EXPECT_EQ(service(), &own);
    host.SetService(kKhPlotStyleService, nullptr);
    EXPECT_EQ(service(), nullptr);
}
