// Previews of exchange files for the file dialogs: the pictures that they bring, and drawn ones.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <string>

#include <afxwin.h>
#include <shlobj.h>

#include <ktdb.h>
#include <ktui/nav/thumbnail.h>

#include "drawing_chooser.h"
#include "drawing_thumbnail.h"

namespace {

constexpr ULONGLONG kLargestDrawn = 8u << 20;  // bytes; a larger drawing would keep the dialog waiting

/// What tells one state of a file from another.
struct FileState {
    ULONGLONG size = 0;
    ULONGLONG written = 0;
};

bool stateOf(const wchar_t* path, FileState& state) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) return false;
    const auto whole = [](DWORD high, DWORD low) { return ULONGLONG{high} << 32 | low; };
    state = {whole(data.nFileSizeHigh, data.nFileSizeLow),
             whole(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
    return true;
}

/// The user's folder of drawn previews, made if it is missing; empty if there can be none.
CString previewFolder() {
    wchar_t local[MAX_PATH] = {};
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, local)))
        return {};
    CString folder = local;
    for (const wchar_t* part : {L"\\Velmora", L"\\Previews"}) {
        folder += part;
        ::CreateDirectoryW(folder, nullptr);
    }
    return folder + L"\\";
}

/// The picture of this state of a file is kept under this name.
CString pictureName(const wchar_t* path, const FileState& state) {
    std::uint64_t hash = 14695981039346656037u;
    const auto mix = [&hash](ULONGLONG value) {
        for (int i = 0; i < 8; ++i) hash = (hash ^ (value >> (8 * i) & 0xFF)) * 1099511628211u;
    };
    CString folded = path;
    folded.MakeLower();
    for (int i = 0; i < folded.GetLength(); ++i) mix(folded[i]);
    mix(state.size);
    mix(state.written);
    CString name;
    name.Format(L"%016llx.bmp", hash);
    return name;
}

/// Takes pictures away that nobody has needed for long.
void tidy(const CString& folder) {
    constexpr ULONGLONG kDay = 24ull * 60 * 60 * 10'000'000;
    constexpr ULONGLONG kLongest = 60 * kDay;
    FILETIME now = {};
    ::GetSystemTimeAsFileTime(&now);
    const ULONGLONG present = ULONGLONG{now.dwHighDateTime} << 32 | now.dwLowDateTime;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(folder + L"*.bmp", &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const FILETIME& made = found.ftLastWriteTime;
        if ((ULONGLONG{made.dwHighDateTime} << 32 | made.dwLowDateTime) + kLongest < present)
            ::DeleteFileW(folder + found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

HBITMAP bitmapIn(const CString& picture) {
    return static_cast<HBITMAP>(
        ::LoadImageW(nullptr, picture, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
}

void keep(const CString& folder, const CString& picture, const std::string& dib) {
    tidy(folder);
    BITMAPFILEHEADER head = {};
    head.bfType = 0x4D42;
    head.bfSize = static_cast<DWORD>(sizeof head + dib.size());
    head.bfOffBits = sizeof head + sizeof(BITMAPINFOHEADER) + 256 * sizeof(RGBQUAD);
    // Under a name of its own until it is whole, because the same file may be drawn by several threads.
    CString part;
    part.Format(L"%s.%lu", picture.GetString(), ::GetCurrentThreadId());
    std::ofstream file(part.GetString(), std::ios::binary);
    file.write(reinterpret_cast<const char*>(&head), sizeof head);
    file.write(dib.data(), static_cast<std::streamsize>(dib.size()));
    file.close();
    if (!::MoveFileExW(part, picture, MOVEFILE_REPLACE_EXISTING)) ::DeleteFileW(part);
}

/// The drawing as the view would show it: drawn once for each state of the file.
HBITMAP drawnPreview(const wchar_t* path) {
    FileState state;
    const CString folder = previewFolder();
    if (folder.IsEmpty() || !stateOf(path, state) || state.size > kLargestDrawn) return nullptr;
    const CString picture = folder + pictureName(path, state);
    if (const HBITMAP kept = bitmapIn(picture)) return kept;
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxf(path) != kOdOk) return nullptr;
    const std::string dib = DrawingThumbnail(*drawing, false);
    if (dib.empty()) return nullptr;
    keep(folder, picture, dib);
    return bitmapIn(picture);
}

/// Makes a picture smaller to fit, with its lines mixed and not left out; takes `bitmap` over.
HBITMAP fitted(HBITMAP bitmap, int width, int height) {
    BITMAP picture = {};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof picture, &picture) == 0) return bitmap;
    const double scale = std::min(static_cast<double>(width) / picture.bmWidth,
                                  static_cast<double>(height) / picture.bmHeight);
    const CSize size(static_cast<int>(picture.bmWidth * scale), static_cast<int>(picture.bmHeight * scale));
    if (scale >= 1 || size.cx < 1 || size.cy < 1) return bitmap;
    CClientDC screen(nullptr);
    CDC from, to;
    CBitmap smaller;
    if (!from.CreateCompatibleDC(&screen) || !to.CreateCompatibleDC(&screen) ||
        !smaller.CreateCompatibleBitmap(&screen, size.cx, size.cy))
        return bitmap;
    const HGDIOBJ formerFrom = ::SelectObject(from, bitmap), formerTo = ::SelectObject(to, smaller);
    to.SetStretchBltMode(HALFTONE);
    to.SetBrushOrg(0, 0);
    to.StretchBlt(0, 0, size.cx, size.cy, &from, 0, 0, picture.bmWidth, picture.bmHeight, SRCCOPY);
    ::SelectObject(from, formerFrom);
    ::SelectObject(to, formerTo);
    ::DeleteObject(bitmap);
    return static_cast<HBITMAP>(smaller.Detach());
}

HBITMAP previewOf(const wchar_t* path, int width, int height) {
    const CString name = path;
    if (name.Right(4).CompareNoCase(L".dxf") != 0) return nullptr;
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    if (!ktdbGetPreviewBitmapFromDwg(path, &bitmap, &palette)) bitmap = drawnPreview(path);
    ::DeleteObject(palette);
    return fitted(bitmap, width, height);
}

}  // namespace

void ShowPreviewsOfDrawings() { KtUiSetThumbnailProvider(&previewOf); }
