#include <ktui/text/ktui_string_exp.h>

#include <type_traits>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

CString Expanded(const wchar_t* text) {
    ui_test::TestHost host;
    CKtUiStringExp string(text);
    string.ReplaceProductMacroStrings();
    return string;
}

/// The file name of the test program.
CString ProgramFile() {
    const CString path = ui_test::program_path();
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

int WidthOn(CDC& dc, const CString& text) {
    SIZE size{};
    ::GetTextExtentPoint32W(dc.m_hDC, text, text.GetLength(), &size);
    return static_cast<int>(size.cx);
}

}  // namespace

TEST(ProductMacros, EachStandsForItsName) {
    EXPECT_STREQ(Expanded(L"%PRODUCT% %AUTOCAD% %VELMORA%"), L"Test Product Test Product Test Product");
    EXPECT_STREQ(Expanded(L"%ACADPROGRAM%|%KTDSPROGRAM%"), L"Test Program|Test Program");
    EXPECT_STREQ(Expanded(L"%COMPANY%"), L"Test Company Incorporated");
    EXPECT_STREQ(Expanded(L"%ADESKFULLNAME%|%QUORVEXFULLNAME%"),
                 L"Test Company Incorporated|Test Company Incorporated");
    EXPECT_STREQ(Expanded(L"%ADESKSHORTNAME%|%QUORVEXSHORTNAME%"), L"Test Company|Test Company");
}

TEST(ProductMacros, EveryOccurrenceIsReplacedAndTheRestStays) {
    EXPECT_STREQ(Expanded(L"a %PRODUCT%%PRODUCT% 100% %UNKNOWN%"),
                 L"a Test ProductTest Product 100% %UNKNOWN%");
}

TEST(ProductMacros, ProgramAtTheVeryStartStays) {
    EXPECT_STREQ(Expanded(L"%PROGRAM% ends"), L"%PROGRAM% ends");
    EXPECT_EQ(Expanded(L"x%PROGRAM%").CompareNoCase(L"x" + ProgramFile()), 0);
}

TEST(ProductMacros, ProgramAtTheStartHidesALaterOne) {
    EXPECT_STREQ(Expanded(L"%PROGRAM% and %PROGRAM%"), L"%PROGRAM% and %PROGRAM%");
}

TEST(CharacterTests, OnlyTheAlphanumericOneKeepsOtherScriptsOut) {
    const CKtUiString text(L"\x80\xE9");
    EXPECT_TRUE(text.IsAlphabetic(1));
    EXPECT_FALSE(text.IsAlphanumeric(1)) << "its code is above 128";
    EXPECT_FALSE(text.IsAlphanumeric(0));
}

TEST(LoadedStrings, ComeFromTheActiveResourceModule) {
    CKtUiStringExp text;
    EXPECT_TRUE(text.LoadString(54211));
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(CKtUiString(54211u), text);
    EXPECT_TRUE(CKtUiString(59999u).IsEmpty());
}

TEST(StringFitting, ShortensByRealMetrics) {
    CClientDC dc(nullptr);
    const CString path = L"C:\\Projects\\Station\\Drawings\\Details\\section-a.dwg";
    CKtUiString text;
    const int wanted = WidthOn(dc, path) / 2;
    text.ShortenString(&dc, path, static_cast<unsigned>(wanted));
    EXPECT_LT(text.GetLength(), path.GetLength());
    EXPECT_GT(text.Find(L"..."), 0);
    EXPECT_NEAR(WidthOn(dc, text), wanted, 24);
    text.ShortenString(&dc, L"abcd", 1);
    EXPECT_STREQ(text, L"abcd") << "four characters stay however narrow";
}

TEST(StringFitting, ExactMultipleHasNoEllipsis) {
    CClientDC dc(nullptr);
    CKtUiString owner(L"as it was");
    const CString text = L"dashes";
    const auto own = static_cast<unsigned>(WidthOn(dc, text));
    EXPECT_STREQ(owner.CreateEllipsedString(&dc, text, 3 * own), L"dashesdashesdashes");
    EXPECT_STREQ(owner, L"as it was");
}

TEST(WorkingDirectory, IsThatOfTheProcess) {
    wchar_t expected[MAX_PATH] = {};
    ::GetCurrentDirectoryW(MAX_PATH, expected);
    CKtUiString text(L"old");
    text.GetCurrentWorkingDirectory();
    EXPECT_STREQ(text, expected);
}

namespace {

/// Length of the process's directory as the system tells it while the test runs.
DWORD directoryLength = 0;

DWORD WINAPI tellDirectory(DWORD size, LPWSTR buffer) {
    if (size <= directoryLength) return directoryLength + 1;
    for (DWORD i = 0; i < directoryLength; ++i) buffer[i] = L'd';
    buffer[directoryLength] = L'\0';
    return directoryLength;
}

}  // namespace

TEST(CurrentDirectory, OfMoreThanTheLongestPathYieldsNoText) {
    const ui_test::ReplacedImport tells(::GetModuleHandleW(L"ktui.dll"), "GetCurrentDirectoryW",
                                        &tellDirectory);
    ASSERT_TRUE(tells.isThere());
    for (const auto& [length, expected] :
         {std::pair<DWORD, int>{0, 0}, {100, 100}, {259, 259}, {260, 0}, {400, 0}}) {
        directoryLength = length;
        CKtUiString text(L"old");
        text.GetCurrentWorkingDirectory();
        EXPECT_EQ(text.GetLength(), expected) << length;
    }
}

namespace {

/// Counts the calls of the virtual operation.
class CountingString : public CKtUiStringExp {
public:
    int loads = 0;
    BOOL LoadString(unsigned id) override {
        ++loads;
        return CKtUiStringExp::LoadString(id);
    }
};

}  // namespace

TEST(StringExpansion, LoadStringIsTheOnlyVirtualOperation) {
    static_assert(std::is_polymorphic_v<CKtUiStringExp>);
    static_assert(!std::has_virtual_destructor_v<CKtUiStringExp>);
    CountingString text;
    static_cast<CKtUiStringExp&>(text).LoadString(1);
    EXPECT_EQ(text.loads, 1);
}
