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

TEST(ReservedName, IsKnownInEveryLanguage) {
    EXPECT_TRUE(ktdbIsReservedString(L"normal", kKtdbNormal));
    EXPECT_TRUE(ktdbIsReservedString(L"\x666E\x901A", kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(L"Normal", kKtdbByLayer));
    EXPECT_FALSE(ktdbIsReservedString(L"Normally", kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(nullptr, kKtdbNormal));
    EXPECT_FALSE(ktdbIsReservedString(L"Normal", 99));
}

TEST(ReservedName, FollowsTheLanguageWhenAsked) {
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, true), L"Normal");
    ktutSetLanguage(KtutLanguage::kChinese);
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, true), L"\x666E\x901A");
    EXPECT_EQ(ktdbGetReservedString(kKtdbNormal, false), L"Normal");
    ktutSetLanguage(KtutLanguage::kEnglish);
    EXPECT_TRUE(ktdbGetReservedString(99, true).isEmpty());
}
