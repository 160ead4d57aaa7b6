// A draughtsman opens and saves by the toolkit's dialog: the form of the file, looking without writing, the
// preview, and the folders beside the files.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "journey_fixture.h"
#include "message_text.h"

#include <commctrl.h>

using namespace journey;

namespace {

constexpr int kTypeBox = 1136, kNameBox = 1148;
constexpr int kPlaces = 57015, kPreview = 57022;
/// The lines of the list of forms: two for each version, text first.
constexpr int kR12Text = 16, k2000Binary = 11;

class FileDialogs : public Journey {
protected:
    FileDialogs() : first(scratchCopy(L"bracket.dxf")), target(scratchPath(L"file dialog target.dxf")) {
        std::filesystem::remove(target);
        open(first);
    }
    ~FileDialogs() override { std::filesystem::remove(target); }

    HWND openSaveAs() {
        drafter->activate(drafter->frame());
        drafter->key('F', false, true);
        drafter->key('A');
        return drafter->waitForDialogOf(drafter->frame());
    }
    /// Answers Save As with the target in this form.
    void answerSaveAs(int form) {
        HWND dialog = openSaveAs();
        ASSERT_NE(dialog, nullptr);
        drafter->pick(item(dialog, kTypeBox), form);
        drafter->replaceText(item(dialog, kNameBox), target);
        drafter->key(VK_RETURN);
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
    }
    /// The same, and saves although the version can't hold all.
    void saveAs(int form) {
        answerSaveAs(form);
        EXPECT_NE(drafter->dismissMessage(drafter->frame()), L"");
        EXPECT_TRUE(titleHas(L"file dialog target.dxf"));
    }
    bool titleHas(const std::wstring& words) {
        return waitUntil([&] { return textOf(drafter->frame()).find(words) != std::wstring::npos; });
    }
    static std::string bytesOf(const std::wstring& path) {
        std::ifstream stream(std::filesystem::path(path), std::ios::binary);
        std::stringstream text;
        text << stream.rdbuf();
        return text.str();
    }
    /// The form that the saved file has.
    OdDbDatabasePtr targetDrawing() const {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        return drawing->readDxf(target.c_str()) == kOdOk ? drawing : OdDbDatabasePtr();
    }
    static HWND own(HWND dialog, int id) {
        return item(::FindWindowExW(dialog, nullptr, L"#32770", nullptr), id);
    }

    std::wstring first, target;
};

TEST_F(FileDialogs, TheFormIsChosenAndKeptOnSavingAgain) {
    saveAs(kR12Text);
    OdDbDatabasePtr drawing = targetDrawing();
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1009);
    EXPECT_FALSE(drawing->originalFileIsBinary());
    std::filesystem::remove(target);
    saveAs(k2000Binary);
    drawing = targetDrawing();
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1015);
    EXPECT_TRUE(drawing->originalFileIsBinary());
    EXPECT_FALSE(drawing->thumbnail().empty());
    // Ctrl+S goes on in that form, and so does the dialog.
    const std::string before = bytesOf(target);
    drafter->activate(drafter->frame());
    drafter->key('S', true);
    EXPECT_TRUE(waitUntil(
        [&] { return std::filesystem::exists(std::filesystem::path(target).replace_extension(L".bak")); }));
    EXPECT_EQ(bytesOf(target), before);
    HWND dialog = openSaveAs();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(::SendMessageW(item(dialog, kTypeBox), CB_GETCURSEL, 0, 0), k2000Binary);
    picture("journey-save-as");
    cancel(dialog);
    std::filesystem::remove(std::filesystem::path(target).replace_extension(L".bak"));
}

TEST_F(FileDialogs, WhatAVersionCannotHoldIsToldBeforeTheDrawingIsSaved) {
    answerSaveAs(kR12Text);
    HWND question = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(question, nullptr);
    picture("journey-losses");
    const std::wstring words = ui_test::message_text(question);
    EXPECT_NE(words.find(L"can't hold all of the drawing"), std::wstring::npos) << words;
    EXPECT_NE(words.find(L"file dialog target.dxf"), std::wstring::npos) << words;
    EXPECT_NE(words.find(L"LWPOLYLINE: 11 become POLYLINE"), std::wstring::npos) << words;
    EXPECT_NE(words.find(L"MTEXT: 1 become TEXT"), std::wstring::npos) << words;
    EXPECT_NE(words.find(L"Lineweights left out: 26"), std::wstring::npos) << words;
    EXPECT_NE(words.find(L"Settings of DIMENSION left out: 13"), std::wstring::npos) << words;
    EXPECT_FALSE(std::filesystem::exists(target)) << "nothing is written before the answer";
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(drafter->waitUntilGone(question));
    EXPECT_TRUE(titleHas(L"bracket.dxf"));
    EXPECT_FALSE(std::filesystem::exists(target));
    // The second command asks for the version again.
    answerSaveAs(kR12Text);
    question = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(question, nullptr);
    drafter->key(VK_DOWN);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(question));
    HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    ASSERT_NE(item(dialog, kNameBox), nullptr);
    cancel(dialog);
    EXPECT_FALSE(std::filesystem::exists(target));
    // The first one saves, and what the user knows isn't told again.
    saveAs(kR12Text);
    EXPECT_TRUE(std::filesystem::exists(target));
    drafter->activate(drafter->frame());
    drafter->key('S', true);
    const auto backup = std::filesystem::path(target).replace_extension(L".bak");
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(backup); }));
    std::filesystem::remove(backup);
}

TEST_F(FileDialogs, ADrawingIsOpenedToBeLookedAt) {
    HWND dialog = openByKey('O');
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(::IsWindowVisible(own(dialog, kPlaces)));
    EXPECT_TRUE(::IsWindowVisible(own(dialog, kPreview)));
    drafter->replaceText(item(dialog, kNameBox), scratchCopy(L"site_plan.dxf"));
    // The arrow of the button has the other ways to open.
    const RECT button = rectOf(item(dialog, IDOK));
    drafter->click(item(dialog, IDOK), {button.right - button.left - 6, (button.bottom - button.top) / 2});
    picture("journey-open-menu");
    drafter->key('R');
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(titleHas(L"site_plan.dxf [read-only]"));
    // It takes no lock, so another program may write it.
    EXPECT_FALSE(std::filesystem::exists(scratchPath(L"site_plan.dxf.lock")));
    drafter->activate(drafter->frame());
    dialog = openByKey('S');
    ASSERT_NE(dialog, nullptr);
    EXPECT_NE(item(dialog, kNameBox), nullptr) << "a name is asked for";
    cancel(dialog);
}

TEST_F(FileDialogs, EscapeLeavesEverythingAsItWas) {
    HWND dialog = openByKey('O');
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(item(dialog, kNameBox), scratchCopy(L"site_plan.dxf"));
    cancel(dialog);
    EXPECT_TRUE(titleHas(L"bracket.dxf"));
    dialog = openSaveAs();
    ASSERT_NE(dialog, nullptr);
    cancel(dialog);
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(FileDialogs, FindTakesAFileFromAnotherFolder) {
    const std::filesystem::path folder = scratchPath(L"file dialog find");
    std::filesystem::create_directories(folder / L"deep");
    std::filesystem::copy_file(first, folder / L"deep" / L"wanted one.dxf",
                               std::filesystem::copy_options::overwrite_existing);
    HWND dialog = openByKey('O');
    ASSERT_NE(dialog, nullptr);
    // Typing a folder goes there.
    drafter->replaceText(item(dialog, kNameBox), folder.wstring());
    drafter->key(VK_RETURN);
    drafter->click(own(dialog, 57012));
    HWND find = drafter->waitForDialogOf(dialog);
    ASSERT_NE(find, nullptr);
    picture("journey-find-file");
    HWND page = ::FindWindowExW(find, nullptr, L"#32770", nullptr);
    drafter->replaceText(item(page, 57041), L"wanted");
    drafter->click(item(find, 57031));
    EXPECT_TRUE(waitUntil([&] { return ::SendMessageW(item(find, 57034), LVM_GETITEMCOUNT, 0, 0) > 0; }));
    EXPECT_TRUE(waitUntil([&] { return ::IsWindowEnabled(item(find, IDOK)) != FALSE; }));
    picture("journey-find-file-found");
    drafter->click(item(find, IDOK));
    EXPECT_TRUE(drafter->waitUntilGone(find));
    EXPECT_TRUE(waitUntil([&] { return textOf(item(dialog, kNameBox)) == L"wanted one.dxf"; }));
    drafter->click(item(dialog, IDOK), {10, 8});
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(titleHas(L"wanted one.dxf"));
    drafter.reset();
    // The program may still be leaving the folder.
    std::error_code error;
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::remove_all(folder, error), !error; }));
}

}  // namespace

namespace {

/// The page of options that is shown, and the sheet that holds it.
constexpr int kOptions = 57013, kDxfText = 57091, kDxfBinary = 57092, kDecimals = 57096;

class SavingOptions : public FileDialogs {
protected:
    /// Opens the options of a Save As dialog on the page of exchange files.
    HWND openOptions(HWND dialog) {
        drafter->click(own(dialog, kOptions));
        HWND sheet = drafter->waitForDialogOf(dialog);
        EXPECT_NE(sheet, nullptr);
        drafter->activate(sheet);
        drafter->key(VK_TAB, true);
        EXPECT_TRUE(waitUntil([&] { return ::IsWindowVisible(page(sheet, kDecimals)) != FALSE; }));
        return sheet;
    }
    static HWND page(HWND sheet, int control) {
        for (HWND at = nullptr; (at = ::FindWindowExW(sheet, at, L"#32770", nullptr)) != nullptr;)
            if (HWND found = item(at, control)) return found;
        return nullptr;
    }
    static LRESULT form(HWND dialog) { return ::SendMessageW(item(dialog, kTypeBox), CB_GETCURSEL, 0, 0); }
    static bool isChecked(HWND box) { return ::SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED; }
};

/// The reals of a text file that have more decimals than `most`, and how many have that many.
struct Decimals {
    std::string tooMany;
    int exact = 0;
};
Decimals decimalsOf(const std::string& text, std::size_t most) {
    Decimals found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const std::size_t point = line.find('.');
        if (point == std::string::npos || line.find_first_not_of("-0123456789.") != std::string::npos)
            continue;
        const std::size_t count = line.size() - point - 1;
        if (count > most) found.tooMany += line + " ";
        found.exact += count == most;
    }
    return found;
}

TEST_F(SavingOptions, TheDecimalsChosenAreThoseOfTheFile) {
    HWND dialog = openSaveAs();
    ASSERT_NE(dialog, nullptr);
    HWND sheet = openOptions(dialog);
    drafter->replaceText(page(sheet, kDecimals), L"3");
    picture("journey-save-options");
    drafter->click(item(sheet, IDOK));
    EXPECT_TRUE(drafter->waitUntilGone(sheet));
    drafter->replaceText(item(dialog, kNameBox), target);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(titleHas(L"file dialog target.dxf"));
    const OdDbDatabasePtr saved = targetDrawing();
    ASSERT_TRUE(saved);
    OdDbDatabasePtr original(new OdDbDatabase);
    ASSERT_EQ(original->readDxf(first.c_str()), kOdOk);
    // The extents come from the entities, so they are the file's own coordinates.
    for (const auto& [ours, theirs] :
         {std::pair(saved->header().point("EXTMAX"), original->header().point("EXTMAX")),
          std::pair(saved->header().point("EXTMIN"), original->header().point("EXTMIN"))}) {
        EXPECT_NEAR(ours.x, theirs.x, 0.0005);
        EXPECT_NEAR(ours.y, theirs.y, 0.0005);
    }
    const Decimals decimals = decimalsOf(bytesOf(target), 3);
    EXPECT_EQ(decimals.tooMany, "");
    EXPECT_GT(decimals.exact, 0);
}

TEST_F(SavingOptions, TheTypeAndTheSwitchForBinaryFilesFollowEachOther) {
    constexpr int k2018Text = 0, k2018Binary = 1;
    HWND dialog = openSaveAs();
    ASSERT_NE(dialog, nullptr);
    drafter->pick(item(dialog, kTypeBox), k2000Binary);
    HWND sheet = openOptions(dialog);
    EXPECT_TRUE(isChecked(page(sheet, kDxfBinary)));
    EXPECT_FALSE(::IsWindowEnabled(page(sheet, kDecimals)));
    drafter->click(page(sheet, kDxfText));
    EXPECT_TRUE(::IsWindowEnabled(page(sheet, kDecimals)));
    drafter->click(item(sheet, IDOK));
    EXPECT_TRUE(drafter->waitUntilGone(sheet));
    EXPECT_TRUE(waitUntil([&] { return form(dialog) == k2000Binary - 1; })) << form(dialog);
    drafter->pick(item(dialog, kTypeBox), k2018Text);
    sheet = openOptions(dialog);
    EXPECT_TRUE(isChecked(page(sheet, kDxfText)));
    drafter->click(page(sheet, kDxfBinary));
    drafter->click(item(sheet, IDOK));
    EXPECT_TRUE(drafter->waitUntilGone(sheet));
    EXPECT_TRUE(waitUntil([&] { return form(dialog) == k2018Binary; })) << form(dialog);
    // Cancelled, the sheet changes nothing.
    sheet = openOptions(dialog);
    drafter->click(page(sheet, kDxfText));
    cancel(sheet);
    EXPECT_EQ(form(dialog), k2018Binary);
    drafter->replaceText(item(dialog, kNameBox), target);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(titleHas(L"file dialog target.dxf"));
    const OdDbDatabasePtr saved = targetDrawing();
    ASSERT_TRUE(saved);
    EXPECT_TRUE(saved->originalFileIsBinary());
}

}  // namespace
