// What the loaded library holds, and where its resources come from.
#include <ktdsres/resource_ids.h>
#include <ktui/host/module.h>
#include <ktui/host/test_door.h>
#include <ktui/pickers/color_combo_box.h>

#include <gtest/gtest.h>

#include "replaced_import.h"
#include "test_host.h"

namespace {

HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

/// What the last LoadStringW of the library was asked for.
struct {
    HINSTANCE module;
    UINT id;
    int size;
} askedString;

int WINAPI TellString(HINSTANCE module, UINT id, LPWSTR text, int size) {
    askedString = {module, id, size};
    lstrcpynW(text, L"told text and more", size);
    return 9;
}

int WINAPI TellOneCharacter(HINSTANCE, UINT, LPWSTR text, int) {
    lstrcpyW(text, L"x");
    return 1;
}

int WINAPI TellNoString(HINSTANCE, UINT, LPWSTR, int) { return 0; }

CString chooseColorText() {
    CKtUiColorComboBox colors;
    CString text;
    colors.GetOtherName(0, text);
    return text;
}

}  // namespace

TEST(ModuleLoad, ResourcesComeFromTheResourceLibrary) {
    EXPECT_NE(::GetModuleHandleW(L"ktdsres.dll"), nullptr);
    EXPECT_EQ(KtUiAppResourceInstance(), ::GetModuleHandleW(L"ktdsres.dll"));
    EXPECT_NE(KtUiAppResourceInstance(), ::GetModuleHandleW(L"ktui.dll"));
}

TEST(ModuleLoad, InitialisersChangeNothing) {
    const HINSTANCE before = KtUiAppResourceInstance();
    for (int i = 0; i < 3; ++i) {
        InitKtUiDLL();
        InitKbUiDLL();
    }
    EXPECT_EQ(KtUiAppResourceInstance(), before);
}

TEST(ModuleLoad, BothFilesAreInTheResourceChain) {
    const HMODULE own = ::GetModuleHandleW(L"ktui.dll");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(108), RT_BITMAP), own);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(1017), RT_GROUP_ICON), own);
    CString text;
    EXPECT_TRUE(text.LoadString(54211));
}

TEST(ModuleLoad, OwnFileHoldsTheApplicationTitle) {
    wchar_t title[32] = {};
    ::LoadStringW(::GetModuleHandleW(L"ktui.dll"), 57344, title, 32);
    EXPECT_STREQ(title, L"Velmora");
}

TEST(ModuleLoad, ClassesOfTheLibraryAreFoundByName) {
    EXPECT_NE(CRuntimeClass::FromName("CKbUiEdit"), nullptr);
    EXPECT_NE(CRuntimeClass::FromName("CKtUiMRUComboBox"), nullptr);
}

TEST(ModuleLoad, HoldsWhatTheSystemGave) {
    const ToolkitModule& held = KtUiTestDoor().loadedToolkit();
    WNDCLASSW button = {};
    ASSERT_TRUE(::GetClassInfoW(nullptr, L"BUTTON", &button));
    EXPECT_EQ(held.buttonWndProc, button.lpfnWndProc);
    EXPECT_EQ(reinterpret_cast<void*>(held.initCommonControlsEx),
              reinterpret_cast<void*>(
                  ::GetProcAddress(::GetModuleHandleW(L"comctl32.dll"), "InitCommonControlsEx")));
    EXPECT_EQ(held.ownModule.hModule, toolkit());
    EXPECT_EQ(held.resourceModule.hModule, held.resourceLibrary);
}

TEST(ModuleLoad, StringsComeFromTheResourceLibrary) {
    const ui_test::ReplacedImport replaced(toolkit(), "LoadStringW", &TellString);
    ASSERT_TRUE(replaced.isThere());
    EXPECT_STREQ(chooseColorText(), L"told text") << "as long as the system says";
    EXPECT_EQ(askedString.module, ::GetModuleHandleW(L"ktdsres.dll"));
    EXPECT_EQ(askedString.id, static_cast<UINT>(IDS_CHOOSE_COLOR_ITEM));
    EXPECT_EQ(askedString.size, 1000);
}

TEST(ModuleLoad, AStringOfOneCharacterIsAString) {
    const ui_test::ReplacedImport replaced(toolkit(), "LoadStringW", &TellOneCharacter);
    EXPECT_STREQ(chooseColorText(), L"x");
}

TEST(ModuleLoad, AMissingStringHasASubstitute) {
    const ui_test::ReplacedImport replaced(toolkit(), "LoadStringW", &TellNoString);
    EXPECT_STREQ(chooseColorText(), L"选择颜色...");
}
