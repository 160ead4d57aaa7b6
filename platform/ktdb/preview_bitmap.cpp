// The preview image as a bitmap of the screen.
#include <windows.h>

#include <algorithm>

#include "ktdb.h"

namespace {

/// Count of the entries of an image's colour table.
int tableLength(const BITMAPINFOHEADER& header) {
    if (header.biBitCount > 8) return 0;
    const int most = 1 << header.biBitCount;
    return header.biClrUsed ? std::min(most, static_cast<int>(header.biClrUsed)) : most;
}

HPALETTE paletteOf(const BITMAPINFO& info, int count) {
    struct {
        LOGPALETTE palette;
        PALETTEENTRY more[255];
    } colors = {};
    colors.palette.palVersion = 0x300;
    colors.palette.palNumEntries = static_cast<WORD>(count);
    PALETTEENTRY* entries = colors.palette.palPalEntry;
    for (int i = 0; i < count; ++i) {
        const RGBQUAD& color = info.bmiColors[i];
        entries[i] = {color.rgbRed, color.rgbGreen, color.rgbBlue, 0};
    }
    return CreatePalette(&colors.palette);
}

}  // namespace

bool ktdbGetPreviewBitmapFromDwg(const wchar_t* path, HBITMAP* bitmap, HPALETTE* palette) {
    if (!bitmap || !palette) return false;
    *bitmap = nullptr;
    *palette = nullptr;
    std::vector<std::uint8_t> dib;
    if (ktdbReadPreviewDib(path, dib) != kKtdbOk) return false;
    const auto& info = *reinterpret_cast<const BITMAPINFO*>(dib.data());
    const int used = static_cast<int>(info.bmiHeader.biClrUsed);
    const int colors = tableLength(info.bmiHeader);
    const std::size_t table = sizeof(RGBQUAD) * static_cast<std::size_t>(used ? used : colors);
    const HDC screen = GetDC(nullptr);
    if (!screen) return false;
    *bitmap = CreateDIBitmap(screen, &info.bmiHeader, CBM_INIT, dib.data() + sizeof(BITMAPINFOHEADER) + table,
                             &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (*bitmap && colors) *palette = paletteOf(info, colors);
    return *bitmap != nullptr;
}
