#include <ktui/pickers/strip_painter.h>

#include <ktui/host/appearance.h>
#include <ktui/host/loaded_module.h>

namespace {

constexpr int kLargerSizes[] = {20, 24, 32};  // pixels

/// `share` of 255 parts of `white`, the rest of `black`; all three are bytes.
BYTE Between(int black, int white, int share) {
    return static_cast<BYTE>((black * (255 - share) + white * share) / 255);
}

/// Puts ink in the place of black and paper in that of white; what lies between stays between.
void Recolor(const DIBSECTION& section, const StripLook& look) {
    auto* line = static_cast<BYTE*>(section.dsBm.bmBits);
    for (LONG y = 0; y < section.dsBm.bmHeight; ++y, line += section.dsBm.bmWidthBytes)
        for (LONG x = 0; x < section.dsBm.bmWidth; ++x) {
            BYTE* pixel = line + 3 * x;
            pixel[0] = Between(GetBValue(look.ink), GetBValue(look.paper), pixel[0]);
            pixel[1] = Between(GetGValue(look.ink), GetGValue(look.paper), pixel[1]);
            pixel[2] = Between(GetRValue(look.ink), GetRValue(look.paper), pixel[2]);
        }
}

}  // namespace

void DrawStripPicture(CDC& dc, const RECT& image, CDC& memory, CBitmap& strip, int top, int width,
                      int height) {
    if (!strip.GetSafeHandle()) return;
    if (!memory.GetSafeHdc()) {
        if (!memory.CreateCompatibleDC(&dc)) return;
        memory.SelectObject(&strip);
    }
    dc.BitBlt(static_cast<int>(image.left), static_cast<int>(image.top), width, height, &memory, 0, top,
              SRCCOPY);
}

void LoadStrip(CBitmap& strip, UINT id) {
    if (const HBITMAP bitmap = ::LoadBitmapW(KtUiOwnModule(), MAKEINTRESOURCEW(id))) strip.Attach(bitmap);
}

int StripSize(HWND window, int agreed) {
    const int wanted = KtUiAppearancePixels(window, agreed);
    if (wanted <= agreed) return agreed;
    for (const int size : kLargerSizes)
        if (size >= wanted) return size;
    return kLargerSizes[2];
}

void RefreshStrip(CDC& memory, CBitmap& strip, StripLook& look, int size, int agreed, UINT agreedId,
                  UINT largerIds) {
    if (!KtUiFollowsSystemAppearance()) return;
    const StripLook wanted = {size, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW)};
    if (look == wanted) return;
    const UINT id = size == agreed ? agreedId : largerIds + static_cast<UINT>(size);
    const HANDLE loaded =
        ::LoadImageW(KtUiOwnModule(), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    if (!loaded) return;
    memory.DeleteDC();  // The former strip stands in it.
    strip.DeleteObject();
    strip.Attach(static_cast<HBITMAP>(loaded));
    DIBSECTION section = {};
    if (::GetObjectW(loaded, sizeof section, &section) == sizeof section && section.dsBm.bmBitsPixel == 24)
        Recolor(section, wanted);
    look = wanted;
}
