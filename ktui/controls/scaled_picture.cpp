#include <ktui/controls/scaled_picture.h>

#include <ktui/host/appearance.h>

namespace {

constexpr int kWhole = 100;  // per cent
constexpr int kLargerPercents[] = {125, 150, 200};

/// How large in per cent the pictures for `window` are.
int PicturePercent(HWND window) {
    const int wanted = KtUiAppearancePixels(window, kWhole);
    if (wanted <= kWhole) return kWhole;
    for (const int percent : kLargerPercents)
        if (percent >= wanted) return percent;
    return kLargerPercents[2];
}

}  // namespace

CString ScaledPictureName(HWND window, HINSTANCE module, const wchar_t* name) {
    const int percent = PicturePercent(window);
    if (percent == kWhole) return name;
    CString larger;
    larger.Format(L"%s_%d", name, percent);
    return ::FindResourceW(module, larger, RT_BITMAP) ? larger : CString(name);
}
