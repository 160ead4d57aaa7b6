#include <ktui/host/appearance.h>

#include <utility>

namespace {

constexpr int kStandardDpi = 96;

BOOL followsSystem = FALSE;
KtUiDpiSource dpiSource = nullptr;

UINT dpiOfScreen() {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return static_cast<UINT>(dpi);
}

UINT dpiOfWindow(HWND window) {
    // Systems before Windows 10 have one resolution for all windows.
    using Function = UINT(WINAPI*)(HWND);
    const auto getDpiForWindow =
        reinterpret_cast<Function>(::GetProcAddress(::GetModuleHandleW(L"USER32.DLL"), "GetDpiForWindow"));
    const UINT dpi = getDpiForWindow && window ? getDpiForWindow(window) : 0;
    return dpi != 0 ? dpi : dpiOfScreen();
}

}  // namespace

void KtUiFollowSystemAppearance(BOOL follow) { followsSystem = follow; }

BOOL KtUiFollowsSystemAppearance() { return followsSystem; }

COLORREF KtUiAppearanceColor(COLORREF agreed, int index) {
    return followsSystem ? ::GetSysColor(index) : agreed;
}

int KtUiAppearancePixels(HWND window, int pixels) {
    return followsSystem ? ::MulDiv(pixels, static_cast<int>(KtUiWindowDpi(window)), kStandardDpi) : pixels;
}

UINT KtUiWindowDpi(HWND window) { return dpiSource ? dpiSource(window) : dpiOfWindow(window); }

KtUiDpiSource KtUiExchangeDpiSource(KtUiDpiSource source) { return std::exchange(dpiSource, source); }
