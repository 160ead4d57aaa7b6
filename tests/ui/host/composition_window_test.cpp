// Where the input method composes, and which of its calls are made.
#include <ktui/host/host_services.h>

#include <imm.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

std::vector<std::string> calls;
HWND askedWindow = nullptr;
HIMC givenContext = nullptr;
COMPOSITIONFORM setForm = {};

HIMC WINAPI GetContext(HWND window) {
    calls.emplace_back("get");
    askedWindow = window;
    return givenContext;
}

BOOL WINAPI ReleaseContext(HWND window, HIMC context) {
    EXPECT_EQ(window, askedWindow);
    EXPECT_EQ(context, givenContext);
    calls.emplace_back("release");
    return TRUE;
}

BOOL WINAPI SetForm(HIMC context, COMPOSITIONFORM* form) {
    EXPECT_EQ(context, givenContext);
    calls.emplace_back("set");
    setForm = *form;
    return TRUE;
}

/// The input method's functions as the library calls them, written down for as long as the object lives.
struct Recorded {
    Recorded() { calls.clear(); }
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ui_test::ReplacedImport get{toolkit, "ImmGetContext", &GetContext};
    ui_test::ReplacedImport release{toolkit, "ImmReleaseContext", &ReleaseContext};
    ui_test::ReplacedImport set{toolkit, "ImmSetCompositionWindow", &SetForm};
};

}  // namespace

TEST(CompositionWindow, ANullWindowMakesNoCall) {
    const Recorded recorded;
    ASSERT_TRUE(recorded.get.isThere() && recorded.release.isThere() && recorded.set.isThere());
    givenContext = reinterpret_cast<HIMC>(0x77);
    ktuiSetCompositionWindow(nullptr, POINT{5, 5});
    EXPECT_TRUE(calls.empty());
}

TEST(CompositionWindow, AWindowsContextGetsThePointAndIsReleased) {
    const Recorded recorded;
    const HWND window = reinterpret_cast<HWND>(0x1234);
    givenContext = reinterpret_cast<HIMC>(0x77);
    ktuiSetCompositionWindow(window, POINT{31, 17});
    EXPECT_EQ(calls, (std::vector<std::string>{"get", "set", "release"}));
    EXPECT_EQ(askedWindow, window);
    EXPECT_EQ(setForm.dwStyle, 2u);
    EXPECT_EQ(setForm.ptCurrentPos.x, 31);
    EXPECT_EQ(setForm.ptCurrentPos.y, 17);
    EXPECT_TRUE(::IsRectEmpty(&setForm.rcArea));
    EXPECT_EQ(setForm.rcArea.left, 0);
    EXPECT_EQ(setForm.rcArea.bottom, 0);
}

TEST(CompositionWindow, AWindowWithoutAContextIsReleasedAllTheSame) {
    const Recorded recorded;
    givenContext = nullptr;
    ktuiSetCompositionWindow(reinterpret_cast<HWND>(0x1234), POINT{31, 17});
    EXPECT_EQ(calls, (std::vector<std::string>{"get", "release"}));
}
