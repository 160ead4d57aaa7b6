// A draughtsman sets the options, by mouse and by keys alone, with the extension and without it.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"
#include "own_program.h"

using namespace journey;

namespace {

class Options : public Journey {
protected:
    Options() : Journey(L"bracket.dxf") {}
    HWND openOptions() {
        drafter->activate(drafter->frame());
        drafter->key('O', true, false, true);
        return drafter->waitForDialog(L"Options");
    }
    /// Options of the drafter in another folder, whose extension isn't used; the dialog says so in these
    /// words.
    HWND openWithoutExtension(const OwnProgram& program, const wchar_t* words) {
        open(path, program.folder());
        HWND dialog = openOptions();
        EXPECT_EQ(::SendMessageW(item(dialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 3);
        EXPECT_NE(textOf(item(dialog, IDC_MESSAGE)).find(words), std::wstring::npos);
        return dialog;
    }
    /// The page in front.
    static HWND page(HWND dialog) {
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            wchar_t name[16] = {};
            ::GetClassNameW(child, name, 16);
            if (::IsWindowVisible(child) && wcscmp(name, L"#32770") == 0) return child;
        }
        return nullptr;
    }
    static HWND pageWith(HWND dialog, int id) {
        waitUntil([&] { return item(page(dialog), id) != nullptr; });
        return page(dialog);
    }
    static int current(HWND dialog) {
        return static_cast<int>(::SendMessageW(item(dialog, IDC_TABS), TCM_GETCURSEL, 0, 0));
    }
    /// Clicks the tab at `x` pixels from the left of the strip.
    void clickTab(HWND dialog, int x) { drafter->click(item(dialog, IDC_TABS), {x, 9}); }
};

TEST_F(Options, ByMouseApplyWorksOnTheDrawingAndThePageComesBack) {
    HWND dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(::SendMessageW(item(dialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 4);
    for (int x = 20; current(dialog) != 2 && x < 250; x += 15) clickTab(dialog, x);
    HWND units = pageWith(dialog, IDC_LINEAR_UNITS);
    drafter->pick(item(units, IDC_LINEAR_UNITS), 3);
    picture("journey-options-units");
    drafter->click(item(dialog, IDC_APPLY));
    EXPECT_TRUE(waitUntil([&] { return textOf(drafter->frame()).find(L'*') != std::wstring::npos; }));
    ok(dialog);
    EXPECT_EQ(saved()->getLUNITS(), 4);
    dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(current(dialog), 2);
    EXPECT_EQ(::SendMessageW(item(pageWith(dialog, IDC_LINEAR_UNITS), IDC_LINEAR_UNITS), CB_GETCURSEL, 0, 0),
              3);
    cancel(dialog);
}

TEST_F(Options, ByKeysAPageRefusesSaysWhyAndLetsGo) {
    HWND dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    drafter->key(VK_TAB, true);
    HWND display = pageWith(dialog, IDC_CROSSHAIR);
    ASSERT_NE(item(display, IDC_CROSSHAIR), nullptr);
    // The mnemonic leads to the field.
    drafter->key('H', false, true);
    EXPECT_TRUE(waitUntil([&] { return focusOf(dialog) == item(display, IDC_CROSSHAIR); }));
    drafter->key(VK_END);
    drafter->type(L"99");
    drafter->key(VK_NEXT, true);
    EXPECT_TRUE(waitUntil([&] { return !textOf(item(display, IDC_MESSAGE)).empty(); }));
    EXPECT_EQ(current(dialog), 1);
    picture("journey-options-refused");
    drafter->key(VK_BACK);
    drafter->key(VK_BACK);
    drafter->key(VK_BACK);
    drafter->type(L"60");
    drafter->key(VK_NEXT, true);
    EXPECT_TRUE(waitUntil([&] { return current(dialog) == 2; }));
    drafter->key(VK_PRIOR, true);
    EXPECT_TRUE(waitUntil([&] { return current(dialog) == 1; }));
    drafter->key(VK_TAB, true, false, true);
    EXPECT_TRUE(waitUntil([&] { return current(dialog) == 0; }));
    drafter->key(VK_RIGHT);
    EXPECT_TRUE(waitUntil([&] { return current(dialog) == 1; }));
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    dialog = openOptions();
    EXPECT_EQ(textOf(item(pageWith(dialog, IDC_CROSSHAIR), IDC_CROSSHAIR)), L"60");
    cancel(dialog);
}

/// The tip of an object in the drawing, once it can be seen; null without one.
HWND tipInSight() {
    for (HWND tip = nullptr;
         (tip = ::FindWindowExW(nullptr, tip, L"Quorvex Velmora tip", nullptr)) != nullptr;)
        if (::IsWindowVisible(tip) && rectOf(tip).left >= 0) return tip;
    return nullptr;
}

TEST_F(Options, TheTipOfAnObjectGoesWhenTheDialogComes) {
    drafter->activate(drafter->frame());
    const RECT view = rectOf(drafter->view());
    const int middle = (view.bottom - view.top) / 2;
    HWND tip = nullptr;
    // The outline crosses the middle of the view, wherever that is.
    for (int x = 8; tip == nullptr && x < view.right - view.left; x += 3) {
        drafter->hover(drafter->view(), {x, middle});
        waitUntil([&] { return (tip = tipInSight()) != nullptr; }, x % 2 != 0 ? 1 : 700);
    }
    ASSERT_NE(tip, nullptr);
    HWND dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(waitUntil([&] { return tipInSight() == nullptr; }, 2000));
    cancel(dialog);
}

TEST_F(Options, MessagesAreShownAgainByKeysAlone) {
    const wchar_t* const key = L"Software\\Velmora\\ktui\\Default\\Messages";
    const wchar_t* const name = L"OverwriteNewer";
    DWORD answered = 1;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, key, name, REG_DWORD, &answered, sizeof answered);
    HWND dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    drafter->key(VK_TAB, true);
    HWND display = pageWith(dialog, IDC_SHOW_MESSAGES);
    HWND button = item(display, IDC_SHOW_MESSAGES);
    EXPECT_TRUE(::IsWindowEnabled(button));
    drafter->key('M', false, true);
    EXPECT_TRUE(waitUntil([&] { return !::IsWindowEnabled(button); }));
    DWORD size = sizeof answered;
    ::RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_DWORD, nullptr, &answered, &size);
    EXPECT_EQ(answered, 0u);
    cancel(dialog);
}

TEST_F(Options, TheExtensionsPageFillsTheTitleBlock) {
    HWND dialog = openOptions();
    ASSERT_NE(dialog, nullptr);
    drafter->key(VK_PRIOR, true);
    HWND title = pageWith(dialog, 1002);
    ASSERT_NE(item(title, 1002), nullptr);
    drafter->replaceText(item(title, 1002), L"Ada");
    picture("journey-options-title-block");
    ok(dialog);
    dialog = openOptions();
    EXPECT_EQ(current(dialog), 3);
    EXPECT_EQ(textOf(item(pageWith(dialog, 1002), 1002)), L"Ada");
    cancel(dialog);
}

TEST_F(Options, WithoutTheExtensionTheRestWorksAndTheDialogSaysSo) {
    drafter.reset();
    const OwnProgram program;
    std::filesystem::remove(program.file(L"extensions\\title_block.dll"));
    HWND dialog = openWithoutExtension(program, L"title_block.dll is missing");
    ASSERT_NE(dialog, nullptr);
    picture("journey-options-without-extension");
    drafter->key(VK_TAB, true);
    EXPECT_NE(pageWith(dialog, IDC_CROSSHAIR), nullptr);
    ok(dialog);
    drafter.reset();
}

TEST_F(Options, AnExtensionOfAnotherVersionIsSaidAndTheRestWorks) {
    drafter.reset();
    const OwnProgram program;
    std::filesystem::copy_file(std::filesystem::path(programFolder()) / L"later_title_block.dll",
                               program.file(L"extensions\\title_block.dll"),
                               std::filesystem::copy_options::overwrite_existing);
    HWND dialog = openWithoutExtension(program, L"was made for version");
    ASSERT_NE(dialog, nullptr);
    picture("journey-options-other-version");
    drafter->key(VK_TAB, true);
    drafter->key(VK_TAB, true);
    HWND units = pageWith(dialog, IDC_LINEAR_UNITS);
    drafter->pick(item(units, IDC_LINEAR_UNITS), 3);
    ok(dialog);
    EXPECT_EQ(saved()->getLUNITS(), 4);
    drafter.reset();
}

TEST_F(Options, ADamagedExtensionIsSaid) {
    drafter.reset();
    const OwnProgram program;
    writeFile(program.file(L"extensions\\title_block.dll"), "no library");
    HWND dialog = openWithoutExtension(program, L"damaged");
    ASSERT_NE(dialog, nullptr);
    cancel(dialog);
    drafter.reset();
}

}  // namespace
