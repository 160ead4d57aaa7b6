#include <gtest/gtest.h>

#include <ktut.h>

#include "number_cases.h"

TEST(SymbolName, OrdinaryNamesAreLegal) {
    for (const wchar_t* name :
         {L"0", L"WALLS", L"A-B_C$1", L"two words", L"\x5C42", L"x.y", L"(a)[b]{c}", L"a'b"})
        EXPECT_EQ(ktdbSNValid(name, 0), kKtdbOk) << odUtf8(name);
}

TEST(SymbolName, ForbiddenCharactersAreRefused) {
    for (const wchar_t c : std::wstring(L"<>/\\\":;?*,=`\x01\t\n\x1F\x7F")) {
        const std::wstring name = std::wstring(L"a") + c + L"b";
        EXPECT_NE(ktdbSNValid(name.c_str(), 0), kKtdbOk) << static_cast<int>(c);
        EXPECT_NE(ktdbSNValid(name.c_str(), 1), kKtdbOk) << static_cast<int>(c);
    }
}

TEST(SymbolName, BlanksAtTheEndsAreRefused) {
    EXPECT_NE(ktdbSNValid(L" a", 0), kKtdbOk);
    EXPECT_NE(ktdbSNValid(L"a ", 0), kKtdbOk);
    EXPECT_NE(ktdbSNValid(L" ", 0), kKtdbOk);
    EXPECT_NE(ktdbSNValid(L"", 0), kKtdbOk);
    EXPECT_NE(ktdbSNValid(nullptr, 0), kKtdbOk);
}

TEST(SymbolName, AVerticalBarIsLegalOnlyWhenAllowed) {
    EXPECT_NE(ktdbSNValid(L"XREF|WALLS", 0), kKtdbOk);
    EXPECT_EQ(ktdbSNValid(L"XREF|WALLS", 1), kKtdbOk);
}

TEST(SymbolName, LengthEndsAt255) {
    EXPECT_EQ(ktdbSNValid(std::wstring(255, L'a').c_str(), 0), kKtdbOk);
    EXPECT_NE(ktdbSNValid(std::wstring(256, L'a').c_str(), 0), kKtdbOk);
}

TEST(SymbolName, APairOfHalvesCountsAsOneCharacter) {
    // What lies outside the first plane is stored as two halves on Windows; the second doesn't count.
    std::wstring name(254, L'a');
    name += {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDC00)};
    EXPECT_EQ(ktdbSNValid(name.c_str(), 0), kKtdbOk);
    name.back() = static_cast<wchar_t>(0xDFFF);
    EXPECT_EQ(ktdbSNValid(name.c_str(), 0), kKtdbOk);
    name.back() = static_cast<wchar_t>(0xDBFF);
    EXPECT_NE(ktdbSNValid(name.c_str(), 0), kKtdbOk);
    name.back() = static_cast<wchar_t>(0xE000);
    EXPECT_NE(ktdbSNValid(name.c_str(), 0), kKtdbOk);
}

TEST(SymbolName, ControlCharactersEndBeforeTheBlank) {
    EXPECT_NE(ktdbSNValid(L"a\x1F", 0), kKtdbOk);
    EXPECT_EQ(ktdbSNValid(L"a b", 0), kKtdbOk);
    EXPECT_EQ(ktdbSNValid(L"a\x7E", 0), kKtdbOk);
    EXPECT_EQ(ktdbSNValid(L"a\x80", 0), kKtdbOk);
}

TEST(ReservedName, IsKnownInEveryLanguage) {
    EXPECT_TRUE(ktdbIsReservedString(L"normal", kKtdbNormal));
    EXPECT_TRUE(ktdbIsReservedString(L"\x666E\x901A", kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(L"Normal", kKtdbByLayer));
    EXPECT_FALSE(ktdbIsReservedString(L"Normally", kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(nullptr, kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(L"Normal", 99));
}

TEST(ReservedName, EachKindHasItsWordInBothLanguages) {
    struct {
        int kind;
        const wchar_t* english;
        const wchar_t* chinese;
    } const names[] = {{kKtdbByLayer, L"ByLayer", L"\x968F\x5C42"},
                       {kKtdbByBlock, L"ByBlock", L"\x968F\x5757"},
                       {kKtdbContinuous, L"Continuous", L"\x8FDE\x7EED"},
                       {kKtdbStandard, L"Standard", L"\x6807\x51C6"},
                       {kKtdbNormal, L"Normal", L"\x666E\x901A"},
                       {kKtdbModel, L"Model", L"\x6A21\x578B"},
                       {kKtdbNone, L"None", L"\x65E0"}};
    for (const auto& name : names) {
        EXPECT_EQ(ktdbGetReservedString(name.kind, true), name.english);
        EXPECT_TRUE(ktdbIsReservedString(name.english, name.kind));
        EXPECT_TRUE(ktdbIsReservedString(name.chinese, name.kind));
        ktutSetLanguage(KtutLanguage::kChinese);
        EXPECT_EQ(ktdbGetReservedString(name.kind, true), name.chinese);
        ktutSetLanguage(KtutLanguage::kEnglish);
    }
}

TEST(ReservedName, FollowsTheLanguageWhenAsked) {
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, true), L"Normal");
    ktutSetLanguage(KtutLanguage::kChinese);
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, true), L"\x666E\x901A");
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, false), L"Normal");
    ktutSetLanguage(KtutLanguage::kEnglish);
    EXPECT_TRUE(ktdbGetReservedString(99, true).isEmpty());
}
