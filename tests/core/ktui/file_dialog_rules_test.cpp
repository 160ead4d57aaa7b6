// What the navigation file dialog decides without a window.
#include <ktui/nav/file_dialog_rules.h>

#include <gtest/gtest.h>

namespace {

constexpr bool kOpen = true, kSave = false;

unsigned templateFor(bool opens, bool foldersOnly, bool preview, bool security, bool application) {
    return FileDialogTemplate({opens, foldersOnly, preview, security, application});
}

}  // namespace

TEST(FileDialogTemplates, AnOpenDialogHasTheFullOne) {
    for (const bool security : {false, true})
        for (const bool application : {false, true}) {
            EXPECT_EQ(templateFor(kOpen, false, false, security, application), 57010u);
            EXPECT_EQ(templateFor(kOpen, false, true, security, application), 57020u);
            EXPECT_EQ(templateFor(kOpen, true, false, security, application), 0u);
            EXPECT_EQ(templateFor(kOpen, true, true, security, application), 0u);
        }
}

TEST(FileDialogTemplates, ASaveDialogHasTheFullOneForItsSecurityButton) {
    for (const bool application : {false, true}) {
        EXPECT_EQ(templateFor(kSave, false, false, true, application), 57010u);
        EXPECT_EQ(templateFor(kSave, false, true, true, application), 57020u);
    }
    EXPECT_EQ(templateFor(kSave, true, false, true, false), 57010u);
}

TEST(FileDialogTemplates, ASaveDialogWithoutItHasTheListOfPlacesAtMost) {
    for (const bool preview : {false, true}) {
        EXPECT_EQ(templateFor(kSave, false, preview, false, true), 57026u);
        EXPECT_EQ(templateFor(kSave, false, preview, false, false), 0u);
    }
}

TEST(Urls, AreKnownByTheirStartInAnyCase) {
    for (const wchar_t* url : {L"http://a/b.dwg", L"HTTP://A", L"ftp://x", L"Ftp://x", L"www.x", L"WWW.X",
                               L"ftp.x", L"FTP.", L"www."})
        EXPECT_TRUE(BeginsLikeUrl(url)) << CString(url).GetString();
    for (const wchar_t* name :
         {L"", L"http:/a", L"https://a", L"a www.x", L"wwwx", L"ftpx", L" ftp.x", L"file://a", L"xhttp://a"})
        EXPECT_FALSE(BeginsLikeUrl(name)) << CString(name).GetString();
}

TEST(Urls, TheTextTestedStaysAsItWas) {
    const CString text = L"WWW.X";
    EXPECT_TRUE(BeginsLikeUrl(text));
    EXPECT_EQ(text, L"WWW.X");
}

TEST(Urls, WhatIsNoPathOfTheResultCountsAsOne) {
    EXPECT_TRUE(CountsAsUrl(L"one", L"C:\\a\\one", L"C:\\a\\one.dwg"));
    EXPECT_FALSE(CountsAsUrl(L"one.dwg", L"C:\\a\\one.dwg", L"C:\\a\\one.dwg"));
    EXPECT_TRUE(CountsAsUrl(L"one.dwg", L"C:\\a\\one.dwg", L"C:\\a\\ONE.dwg"));
    EXPECT_TRUE(CountsAsUrl(L"www.x", L"C:\\a\\www.x", L"C:\\a\\www.x"));
    EXPECT_FALSE(CountsAsUrl(L"", L"C:\\a", L"C:\\a\\b"));
}

TEST(FirstPaths, OfSeveralFilesIsTheFirstInItsFolder) {
    EXPECT_EQ(FirstPath(L"C:\\a\\\"one.dwg\" \"two.dwg\""), L"C:\\a\\one.dwg");
    EXPECT_EQ(FirstPath(L"C:\\a\\\"one.dwg\""), L"C:\\a\\one.dwg");
    EXPECT_EQ(FirstPath(L"C:\\a\\\"one.dwg"), L"C:\\a\\one.dwg");
    EXPECT_EQ(FirstPath(L"\"one\""), L"one");
    EXPECT_EQ(FirstPath(L"C:\\a\\\"\" \"two\""), L"C:\\a\\");
    EXPECT_EQ(FirstPath(L"C:\\a\\one.dwg"), L"C:\\a\\one.dwg");
    EXPECT_EQ(FirstPath(L""), L"");
}

TEST(NamesToShow, AreBehindTheLastBackslash) {
    EXPECT_EQ(NameToShow(L"C:\\a\\one.dwg", kOpen), L"one.dwg");
    EXPECT_EQ(NameToShow(L"C:\\a\\one.dwg", kSave), L"one.dwg");
    EXPECT_EQ(NameToShow(L"C:\\a\\", kSave), L"");
    EXPECT_EQ(NameToShow(L"\\one", kOpen), L"one");
}

TEST(NamesToShow, WithoutAFolderAreForSavingOnly) {
    EXPECT_EQ(NameToShow(L"one.dwg", kOpen), L"");
    EXPECT_EQ(NameToShow(L"one.dwg", kSave), L"one.dwg");
}

TEST(NamesToLocate, AreNeitherEmptyNorThePoint) {
    EXPECT_FALSE(IsNameToLocate(L""));
    EXPECT_FALSE(IsNameToLocate(L"."));
    EXPECT_TRUE(IsNameToLocate(L".."));
    EXPECT_TRUE(IsNameToLocate(L"a"));
}

TEST(FoldersShown, AreComparedWithABackslashAndWithoutCase) {
    EXPECT_TRUE(IsFolderShown(L"C:\\Work", L"c:\\WORK\\"));
    EXPECT_TRUE(IsFolderShown(L"C:\\", L"c:\\"));
    EXPECT_FALSE(IsFolderShown(L"C:\\Work", L"C:\\Work"));
    EXPECT_FALSE(IsFolderShown(L"C:\\Work\\", L"C:\\Work"));
    EXPECT_FALSE(IsFolderShown(L"C:\\Work", L"C:\\Works\\"));
}
