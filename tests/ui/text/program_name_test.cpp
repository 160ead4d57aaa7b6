// "%PROGRAM%" and the current directory, with the system's answers given by the test.
#include <ktui/text/ktui_string_exp.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

using Calls = std::vector<std::wstring>;

Calls calls;
std::wstring processPath, modulePath;
const HMODULE kLoaded = reinterpret_cast<HMODULE>(0x5555);
bool loads = true;

DWORD WINAPI TellPath(HMODULE module, LPWSTR path, DWORD size) {
    EXPECT_EQ(size, 260u);
    calls.push_back(module ? L"path of module" : L"path of process");
    EXPECT_TRUE(!module || module == kLoaded);
    lstrcpynW(path, (module ? modulePath : processPath).c_str(), static_cast<int>(size));
    return static_cast<DWORD>(lstrlenW(path));
}

HMODULE WINAPI TellModule(LPCWSTR path) {
    calls.push_back(std::wstring(L"load ") + path);
    return loads ? kLoaded : nullptr;
}

BOOL WINAPI NoteFree(HMODULE module) {
    EXPECT_EQ(module, kLoaded);
    calls.push_back(L"free");
    return TRUE;
}

class ProgramName : public ::testing::Test {
protected:
    ProgramName() {
        calls.clear();
        loads = true;
        processPath = L"c:\\apps\\DRAFT~1.EXE";
        modulePath = L"C:\\Apps\\Drafter.exe";
    }
    static std::wstring expanded(const wchar_t* text) {
        CKtUiStringExp string(text);
        string.ReplaceProductMacroStrings();
        return string.GetString();
    }

    ui_test::TestHost host;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ui_test::ReplacedImport path{toolkit, "GetModuleFileNameW", &TellPath};
    ui_test::ReplacedImport load{toolkit, "LoadLibraryW", &TellModule};
    ui_test::ReplacedImport release{toolkit, "FreeLibrary", &NoteFree};
};

}  // namespace

TEST_F(ProgramName, IsSpelledAsTheLoadedFileIs) {
    ASSERT_TRUE(path.isThere() && load.isThere() && release.isThere());
    EXPECT_EQ(expanded(L"a %PROGRAM% b %PROGRAM%"), L"a Drafter.exe b Drafter.exe");
    EXPECT_EQ(calls, (Calls{L"path of process", L"load c:\\apps\\DRAFT~1.EXE", L"path of module", L"free"}));
}

TEST_F(ProgramName, IsTheProcesssWhereTheFileCannotBeLoaded) {
    loads = false;
    EXPECT_EQ(expanded(L"a %PROGRAM%"), L"a DRAFT~1.EXE");
    EXPECT_EQ(calls, (Calls{L"path of process", L"load c:\\apps\\DRAFT~1.EXE"}));
}

TEST_F(ProgramName, NeedsABackslashBehindTheFirstCharacter) {
    modulePath = L"C\\Drafter.exe";
    EXPECT_EQ(expanded(L"a %PROGRAM%"), L"a Drafter.exe");
    modulePath = L"\\Drafter.exe";
    EXPECT_EQ(expanded(L"a %PROGRAM%"), L"a %PROGRAM%");
    modulePath = L"Drafter.exe";
    EXPECT_EQ(expanded(L"a %PROGRAM%"), L"a %PROGRAM%");
}

TEST_F(ProgramName, IsNotLookedForWithoutItsMacroOrAtTheVeryStart) {
    EXPECT_EQ(expanded(L"%PROGRAM% a"), L"%PROGRAM% a");
    EXPECT_EQ(expanded(L"a"), L"a");
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(expanded(L"a%PROGRAM%"), L"aDrafter.exe") << "one character is enough";
}

namespace {

std::wstring directory;
std::vector<DWORD> statedSizes;
DWORD firstAnswer = 0, secondAnswer = 0;

DWORD WINAPI TellDirectory(DWORD size, LPWSTR buffer) {
    statedSizes.push_back(size);
    const DWORD answer = statedSizes.size() == 1 ? firstAnswer : secondAnswer;
    if (answer < size) lstrcpynW(buffer, directory.c_str(), static_cast<int>(size));
    return answer;
}

std::wstring currentDirectory(DWORD first, DWORD second) {
    const ui_test::ReplacedImport told(::GetModuleHandleW(L"ktui.dll"), "GetCurrentDirectoryW",
                                       &TellDirectory);
    EXPECT_TRUE(told.isThere());
    statedSizes.clear();
    firstAnswer = first;
    secondAnswer = second;
    CKtUiString text(L"as it was");
    text.GetCurrentWorkingDirectory();
    return text.GetString();
}

}  // namespace

TEST(CurrentDirectory, IsTakenAtOnceWhereItFits) {
    directory = std::wstring(259, L'd');
    EXPECT_EQ(currentDirectory(259, 0), directory);
    EXPECT_EQ(statedSizes, std::vector<DWORD>{260});
}

TEST(CurrentDirectory, IsAskedForAgainWithTheSameSizeAndYieldsNoText) {
    directory = std::wstring(299, L'd');
    EXPECT_EQ(currentDirectory(300, 300), L"");
    EXPECT_EQ(statedSizes, (std::vector<DWORD>{260, 260}));
    EXPECT_EQ(currentDirectory(260, 260), L"") << "as long as the size itself";
    EXPECT_EQ(statedSizes.size(), 2u);
}

TEST(CurrentDirectory, ThatHasBecomeShorterIsTakenTheSecondTime) {
    directory = std::wstring(259, L'e');
    EXPECT_EQ(currentDirectory(300, 259), directory);
}
