// Fonts come and go in the user's fonts folder while a draughtsman edits text styles.
#include <shlobj.h>

#include "font_bytes.h"
#include "journey_fixture.h"
#include "own_program.h"

using namespace journey;

namespace {

const wchar_t* const kFile = L"ktui journey.ttf";

/// A font in the folder of the user's own fonts, which the host looks through; gone again with the test.
class Fonts : public Journey {
protected:
    Fonts() {
        wchar_t local[MAX_PATH] = {};
        ::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, local);
        folder = std::filesystem::path(local) / L"Microsoft" / L"Windows" / L"Fonts";
        std::filesystem::create_directories(folder);
        writeFile(folder / kFile, font_bytes::outlineFont(std::string("Journey Sans"), std::string("Bold")));
        open(scratchCopy(L"site_plan.dxf"));
    }
    ~Fonts() override {
        drafter.reset();
        removeFont();
        std::filesystem::remove(folder / L"ktui damaged.ttf");
        std::filesystem::remove(folder / L"ktui notes.otf");
    }

    void removeFont() { std::filesystem::remove(folder / kFile); }
    HWND openTextStyle() { return openByKey('T'); }
    static bool lists(HWND dialog, const wchar_t* font) { return entryOf(item(dialog, IDC_FONT), font) >= 0; }
    static bool saysNotFound(HWND dialog) {
        return textOf(item(dialog, IDC_MESSAGE)).find(kFile) != std::wstring::npos;
    }
    /// The font file of the style that is current in the saved drawing.
    OdString savedFont() {
        const OdDbDatabasePtr drawing = saved();
        return drawing->textstyle().open<OdDbTextStyleTableRecord>()->fileName();
    }
    /// Picks the font for the style that the dialog shows.
    void pickFont(HWND dialog) {
        drafter->pickByMouse(item(dialog, IDC_FONT), L"Journey Sans");
        EXPECT_EQ(currentEntry(item(dialog, IDC_FONT)), L"Journey Sans");
        EXPECT_EQ(currentEntry(item(dialog, IDC_FONT_STYLE)), L"Bold");
    }

    std::filesystem::path folder;
};

TEST_F(Fonts, AFontThatIsRemovedBetweenTwoDialogsIsNoLongerListed) {
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    pickFont(dialog);
    cancel(dialog);
    removeFont();
    dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(lists(dialog, L"Journey Sans"));
    EXPECT_GT(entryCount(item(dialog, IDC_FONT)), 0) << "the others are";
    cancel(dialog);
    EXPECT_TRUE(drafter->isRunning());
}

TEST_F(Fonts, AStyleKeepsTheFileOfAFontThatIsRemovedAndTheDialogSaysSo) {
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    pickFont(dialog);
    ok(dialog);
    EXPECT_EQ(savedFont(), kFile);
    removeFont();
    dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(lists(dialog, L"Journey Sans"));
    EXPECT_EQ(currentEntry(item(dialog, IDC_FONT)), L"");
    EXPECT_TRUE(saysNotFound(dialog));
    picture("journey-font-removed");
    drafter->replaceText(item(dialog, IDC_TEXT_HEIGHT), L"3");
    ok(dialog);
    EXPECT_EQ(savedFont(), kFile);
    writeFile(folder / kFile, font_bytes::outlineFont(std::string("Journey Sans"), std::string("Bold")));
    dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(currentEntry(item(dialog, IDC_FONT)), L"Journey Sans") << "it is back";
    EXPECT_FALSE(saysNotFound(dialog));
    cancel(dialog);
}

TEST_F(Fonts, AFontThatIsRemovedWhileTheDialogIsOpenLeavesTheListWhenItIsDropped) {
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    pickFont(dialog);
    ok(dialog);
    dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(lists(dialog, L"Journey Sans"));
    removeFont();
    drafter->drop(item(dialog, IDC_FONT));
    EXPECT_FALSE(lists(dialog, L"Journey Sans"));
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(saysNotFound(dialog));
    ok(dialog);
    EXPECT_EQ(savedFont(), kFile);
    EXPECT_TRUE(drafter->isRunning());
}

TEST_F(Fonts, DamagedFontsAreNotListedAndRefusedInWordsWhenTheyAreBrowsedFor) {
    const std::string font = font_bytes::outlineFont(std::string("Journey Torn"), std::string("Regular"));
    writeFile(folder / L"ktui damaged.ttf", font.substr(0, font.size() / 2));
    writeFile(folder / L"ktui notes.otf", "These are notes and no font.");
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(lists(dialog, L"Journey Sans"));
    EXPECT_FALSE(lists(dialog, L"Journey Torn"));
    const std::wstring before = currentEntry(item(dialog, IDC_FONT));
    drafter->key('R', false, true);
    HWND question = drafter->waitForDialogOf(dialog);
    ASSERT_NE(question, nullptr);
    drafter->type((folder / L"ktui damaged.ttf").wstring());
    drafter->key(VK_RETURN);
    ASSERT_TRUE(drafter->waitUntilGone(question));
    EXPECT_NE(drafter->dismissMessage(dialog).find(L"damaged"), std::wstring::npos);
    EXPECT_EQ(currentEntry(item(dialog, IDC_FONT)), before);
    cancel(dialog);
}

TEST_F(Fonts, AFontFromElsewhereIsBrowsedForByKeysAndStored) {
    const std::filesystem::path file = scratchPath(L"ktui elsewhere.ttf");
    writeFile(file, font_bytes::outlineFont(std::string("Journey Serif"), std::string("Regular")));
    HWND dialog = openTextStyle();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(lists(dialog, L"Journey Serif"));
    drafter->key('R', false, true);
    HWND question = drafter->waitForDialogOf(dialog);
    ASSERT_NE(question, nullptr);
    drafter->type(file.wstring());
    drafter->key(VK_RETURN);
    ASSERT_TRUE(drafter->waitUntilGone(question));
    EXPECT_EQ(currentEntry(item(dialog, IDC_FONT)), L"Journey Serif");
    picture("journey-font-browsed");
    ok(dialog);
    EXPECT_EQ(savedFont(), L"ktui elsewhere.ttf");
    drafter.reset();
    std::filesystem::remove(file);
}

}  // namespace
