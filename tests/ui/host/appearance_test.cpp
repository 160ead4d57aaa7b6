// The agreed look, the system's look, and the resolution that lengths go by.
#include <ktui/host/appearance.h>

#include <cstring>

#include "leak_count.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

UINT fakeDpi = 96;
HWND askedFor = nullptr;

UINT dpiOf(HWND window) {
    askedFor = window;
    return fakeDpi;
}

UINT otherDpiOf(HWND) { return 240; }

/// Puts back what a host has at its start.
struct Appearance : ::testing::Test {
    ~Appearance() override {
        KtUiFollowSystemAppearance(FALSE);
        KtUiExchangeDpiSource(nullptr);
    }
};

UINT WINAPI NoWindowOf(HWND) { return 0; }
UINT WINAPI MonitorOf(HWND) { return 168; }

FARPROC monitors = nullptr;  ///< what the system has by the name of GetDpiForWindow

FARPROC WINAPI FindFunction(HMODULE module, LPCSTR name) {
    if (std::strcmp(name, "GetDpiForWindow") != 0) return ::GetProcAddress(module, name);
    EXPECT_EQ(module, ::GetModuleHandleW(L"USER32.DLL"));
    return monitors;
}

UINT screenDpi() {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return static_cast<UINT>(dpi);
}

}  // namespace

TEST_F(Appearance, IsTheAgreedOneUntilAHostAsks) {
    KtUiExchangeDpiSource(dpiOf);
    fakeDpi = 192;
    EXPECT_EQ(KtUiFollowsSystemAppearance(), FALSE);
    EXPECT_EQ(KtUiAppearanceColor(RGB(1, 2, 3), COLOR_HIGHLIGHT), RGB(1, 2, 3));
    EXPECT_EQ(KtUiAppearancePixels(nullptr, 15), 15);
}

TEST_F(Appearance, FollowsTheSystemOnceAHostAsks) {
    KtUiFollowSystemAppearance(TRUE);
    EXPECT_EQ(KtUiFollowsSystemAppearance(), TRUE);
    ASSERT_NE(::GetSysColor(COLOR_HIGHLIGHT), RGB(1, 2, 3));
    EXPECT_EQ(KtUiAppearanceColor(RGB(1, 2, 3), COLOR_HIGHLIGHT), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(KtUiAppearanceColor(RGB(1, 2, 3), COLOR_WINDOW), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(Appearance, LengthsGrowWithTheResolutionOfTheirWindow) {
    KtUiFollowSystemAppearance(TRUE);
    KtUiExchangeDpiSource(dpiOf);
    ui_test::ParentWindow window;
    for (const auto& [dpi, pixels] : {std::pair<UINT, int>{96, 15}, {120, 19}, {144, 23}, {192, 30}}) {
        fakeDpi = dpi;
        askedFor = nullptr;
        EXPECT_EQ(KtUiAppearancePixels(window.m_hWnd, 15), pixels) << dpi;
        EXPECT_EQ(askedFor, window.m_hWnd);
        EXPECT_EQ(KtUiWindowDpi(window.m_hWnd), dpi);
    }
}

TEST_F(Appearance, SourceOfTheResolutionIsHandedBackWhenItIsExchanged) {
    EXPECT_EQ(KtUiExchangeDpiSource(dpiOf), nullptr);
    EXPECT_EQ(KtUiExchangeDpiSource(otherDpiOf), &dpiOf);
    EXPECT_EQ(KtUiWindowDpi(nullptr), 240u);
    EXPECT_EQ(KtUiExchangeDpiSource(nullptr), &otherDpiOf);
}

TEST_F(Appearance, ResolutionIsTheScreensWithoutAWindow) {
    ASSERT_NE(screenDpi(), 0u);
    EXPECT_EQ(KtUiWindowDpi(nullptr), screenDpi());
    ui_test::ParentWindow window;
    EXPECT_EQ(KtUiWindowDpi(window.m_hWnd), ::GetDpiForWindow(window.m_hWnd));
}

TEST_F(Appearance, AskingForTheResolutionKeepsNoDeviceContext) {
    KtUiWindowDpi(nullptr);
    const int before = count_held_objects().gdiObjects;
    for (int i = 0; i < 100; ++i) KtUiWindowDpi(nullptr);
    EXPECT_EQ(count_held_objects().gdiObjects, before);
}

TEST_F(Appearance, EveryWindowHasTheResolutionOfItsMonitorWhereTheSystemTells) {
    const ui_test::ReplacedImport find(::GetModuleHandleW(L"ktui.dll"), "GetProcAddress", &FindFunction);
    ASSERT_TRUE(find.isThere());
    ui_test::ParentWindow window;
    ASSERT_NE(screenDpi(), 168u);
    monitors = reinterpret_cast<FARPROC>(&MonitorOf);
    EXPECT_EQ(KtUiWindowDpi(window.m_hWnd), 168u);
    EXPECT_EQ(KtUiWindowDpi(nullptr), screenDpi()) << "no window stands on no monitor";
    monitors = reinterpret_cast<FARPROC>(&NoWindowOf);
    EXPECT_EQ(KtUiWindowDpi(window.m_hWnd), screenDpi()) << "a window that is none";
    monitors = nullptr;
    EXPECT_EQ(KtUiWindowDpi(window.m_hWnd), screenDpi()) << "a system that does not tell windows apart";
}
