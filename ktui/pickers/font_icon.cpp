#include <ktui/pickers/font_icon.h>

#include <ktui/host/loaded_module.h>

HICON LoadFontIcon(UINT id, UINT flags) {
    return static_cast<HICON>(
        ::LoadImageW(KtUiOwnModule(), MAKEINTRESOURCEW(id), IMAGE_ICON, kFontIconSize, kFontIconSize, flags));
}

void DrawFontIcon(CDC& dc, CPoint corner, int size, HICON icon) {
    dc.DrawState(corner, CSize(size, size), icon, DST_ICON, static_cast<HBRUSH>(nullptr));
}
