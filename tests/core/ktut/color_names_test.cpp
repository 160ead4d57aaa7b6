#include <gtest/gtest.h>

#include <ktut.h>

TEST(ColorNames, AnIndexHasItsWordOrItsNumber) {
    EXPECT_EQ(ktutColorToStr(0), L"ByBlock");
    EXPECT_EQ(ktutColorToStr(256), L"ByLayer");
    EXPECT_EQ(ktutColorToStr(1), L"red");
    EXPECT_EQ(ktutColorToStr(7), L"white");
    EXPECT_EQ(ktutColorToStr(30), L"color 30");
    EXPECT_EQ(ktutColorToStr(255), L"color 255");
    EXPECT_TRUE(ktutColorToStr(-1).isEmpty());
    EXPECT_TRUE(ktutColorToStr(257).isEmpty());
}

TEST(ColorNames, TheFirstSevenHaveWordsInBothLanguages) {
    const wchar_t* const english[] = {L"red", L"yellow", L"green", L"cyan", L"blue", L"magenta", L"white"};
    const wchar_t* const chinese[] = {L"\x7EA2", L"\x9EC4",       L"\x7EFF", L"\x9752",
                                      L"\x84DD", L"\x6D0B\x7EA2", L"\x767D"};
    for (short index = 1; index <= 7; ++index) {
        ktutSetLanguage(KtutLanguage::kEnglish);
        EXPECT_EQ(ktutColorToStr(index), english[index - 1]) << index;
        ktutSetLanguage(KtutLanguage::kChinese);
        EXPECT_EQ(ktutColorToStr(index), chinese[index - 1]) << index;
    }
    ktutSetLanguage(KtutLanguage::kEnglish);
}

TEST(ColorNames, FollowTheLanguage) {
    EXPECT_EQ(ktutLanguage(), KtutLanguage::kEnglish);
    ktutSetLanguage(KtutLanguage::kChinese);
    EXPECT_EQ(ktutLanguage(), KtutLanguage::kChinese);
    EXPECT_EQ(ktutColorToStr(0), L"ByBlock");
    EXPECT_EQ(ktutColorToStr(256), L"ByLayer");
    EXPECT_EQ(ktutColorToStr(30), L"\x989C\x8272 30");
    ktutSetLanguage(KtutLanguage::kEnglish);
    EXPECT_EQ(ktutColorToStr(8), L"color 8");
}

TEST(ColorNames, AColorValueIsNamedByItsForm) {
    OdCmColor color;
    EXPECT_EQ(ktutColorToStr(color), L"ByLayer");
    color.setColorIndex(3);
    EXPECT_EQ(ktutColorToStr(color), L"green");
    color.setRGB(255, 127, 0);
    EXPECT_EQ(ktutColorToStr(color), L"255,127,0");
    color.setNames(L"WARM RED", L"PRINTERS");
    EXPECT_EQ(ktutColorToStr(color), L"PRINTERS$WARM RED");
    color.setNames(L"WARM RED");
    EXPECT_EQ(ktutColorToStr(color), L"WARM RED");
}

TEST(Profile, HasDefaultsAndTakesTheHostsNames) {
    EXPECT_EQ(ktutProfileFileName(), L"Software\\Velmora\\ktui");
    EXPECT_EQ(ktutProfileRootName(), L"Default");
    ktutSetProfileFileName(L"Software\\Host");
    ktutSetProfileRootName(L"Draughting");
    EXPECT_EQ(ktutProfileFileName(), L"Software\\Host");
    EXPECT_EQ(ktutProfileRootName(), L"Draughting");
    for (const wchar_t* none : {L"", static_cast<const wchar_t*>(nullptr)}) {
        ktutSetProfileFileName(L"Software\\Host");
        ktutSetProfileRootName(L"Draughting");
        ktutSetProfileFileName(none);
        ktutSetProfileRootName(none);
        EXPECT_EQ(ktutProfileFileName(), L"Software\\Velmora\\ktui");
        EXPECT_EQ(ktutProfileRootName(), L"Default");
    }
    EXPECT_EQ(ktutProfileFileName(), L"Software\\Velmora\\ktui");
    EXPECT_EQ(ktutProfileRootName(), L"Default");
}
