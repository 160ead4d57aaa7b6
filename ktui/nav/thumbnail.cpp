#include <ktui/nav/thumbnail.h>

#include <afxwin.h>

#include <algorithm>
#include <utility>

#include <ktdb.h>

#include <ktui/nav/shell_thumbnail.h>
#include <ktui/nav/thumbnail_reading.h>

namespace {

/// The host's own, or null.
KtUiThumbnailProvider provider = nullptr;

/// Whether files with the ending of this one hold a preview of their own.
bool is_drawing(const CString& path) {
    const int point = path.ReverseFind(L'.');
    const CString extension = point > path.ReverseFind(L'\\') ? path.Mid(point) : CString();
    for (const wchar_t* one : {L".dwg", L".dws", L".dwt"})
        if (extension.CompareNoCase(one) == 0) return true;
    return false;
}

HBITMAP of_drawing(const wchar_t* path) {
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    if (!ktdbGetPreviewBitmapFromDwg(path, &bitmap, &palette)) return nullptr;
    ::DeleteObject(palette);
    return bitmap;
}

/// Copies the picture that `source` holds into the middle of the area.
void copy_centred(HDC dc, HDC source, SIZE picture, int width, int height) {
    SIZE shown = picture;
    if (picture.cx > width || picture.cy > height) {
        const double scale =
            std::min(static_cast<double>(width) / picture.cx, static_cast<double>(height) / picture.cy);
        shown = {static_cast<LONG>(picture.cx * scale), static_cast<LONG>(picture.cy * scale)};
        // Kept: the stretch mode stays the device context's.
        ::StretchBlt(dc, (width - shown.cx) / 2, (height - shown.cy) / 2, shown.cx, shown.cy, source, 0, 0,
                     picture.cx, picture.cy, SRCCOPY);
        return;
    }
    // Kept: a small preview stays small.
    ::BitBlt(dc, (width - shown.cx) / 2, (height - shown.cy) / 2, shown.cx, shown.cy, source, 0, 0, SRCCOPY);
}

}  // namespace

HBITMAP ReadThumbnail(KtUiThumbnailProvider asked, const wchar_t* path, int width, int height) {
    const DWORD attributes = path != nullptr ? ::GetFileAttributesW(path) : INVALID_FILE_ATTRIBUTES;
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return nullptr;
    if (asked != nullptr)
        if (const HBITMAP bitmap = asked(path, width, height)) return bitmap;
    if (is_drawing(path))
        if (const HBITMAP bitmap = of_drawing(path)) return bitmap;
    return ExtractShellThumbnail(path, width, height);
}

KtUiThumbnailProvider ThumbnailProvider() { return provider; }

void PaintThumbnail(HBITMAP bitmap, HDC dc, int width, int height) {
    BITMAP picture = {};
    ::GetObjectW(bitmap, sizeof picture, &picture);
    const HDC source = ::CreateCompatibleDC(dc);
    const HGDIOBJ before = ::SelectObject(source, bitmap);
    copy_centred(dc, source, {picture.bmWidth, picture.bmHeight}, width, height);
    ::SelectObject(source, before);
    ::DeleteDC(source);
}

HBITMAP ktuiGetThumbnail(const wchar_t* path, int width, int height) {
    return ReadThumbnail(provider, path, width, height);
}

bool ktuiDisplayThumbnail(const wchar_t* path, HDC dc, int width, int height) {
    const HBITMAP bitmap = dc != nullptr ? ktuiGetThumbnail(path, width, height) : nullptr;
    if (bitmap == nullptr) return false;
    PaintThumbnail(bitmap, dc, width, height);
    ::DeleteObject(bitmap);
    return true;
}

KtUiThumbnailProvider KtUiSetThumbnailProvider(KtUiThumbnailProvider newProvider) {
    return std::exchange(provider, newProvider);
}
