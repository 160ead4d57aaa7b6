#include "sample_preview.h"

#include <afxwin.h>

#include <atomic>

namespace {

constexpr DWORD kSlow = 10000;  // milliseconds
std::atomic<bool> slow = false;

/// A plan of 240 by 160, or of 60 by 40 for a library.
HBITMAP plan(SIZE size) {
    const HDC screen = ::GetDC(nullptr);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size.cx, size.cy);
    CDC dc;
    dc.Attach(::CreateCompatibleDC(screen));
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ former = ::SelectObject(dc.m_hDC, bitmap);
    dc.FillSolidRect(0, 0, size.cx, size.cy, RGB(33, 40, 48));
    const auto wall = [&](int left, int top, int right, int bottom, COLORREF color) {
        const CRect place(size.cx * left / 24, size.cy * top / 16, size.cx * right / 24,
                          size.cy * bottom / 16);
        dc.Draw3dRect(&place, color, color);
    };
    wall(2, 2, 22, 14, RGB(255, 255, 255));
    wall(2, 2, 10, 8, RGB(0, 255, 255));
    wall(10, 2, 22, 9, RGB(255, 255, 0));
    wall(14, 9, 22, 14, RGB(0, 255, 0));
    ::SelectObject(dc.m_hDC, former);
    return bitmap;
}

HBITMAP provide(const wchar_t* path, int, int) {
    if (slow) ::Sleep(kSlow);
    const bool isLibrary = CString(path).Right(4).CompareNoCase(L".dll") == 0;
    return plan(isLibrary ? SIZE{60, 40} : SIZE{240, 160});
}

}  // namespace

KtUiThumbnailProvider ShowSamplePreviews(bool show) {
    return KtUiSetThumbnailProvider(show ? &provide : nullptr);
}

void MakeSamplePreviewsSlow(bool isSlow) { slow = isSlow; }
