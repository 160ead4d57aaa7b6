// The icons that tell a shape font from an outline font. Private to the library.
#pragma once

#include <afxwin.h>

constexpr int kFontIconSize = 15;  // pixels, both ways

/// The library's icon `id` in that size. `flags` are those of LoadImage: with LR_SHARED the system owns the
/// icon, otherwise the caller destroys it.
HICON LoadFontIcon(UINT id, UINT flags);

/// Draws `icon` at `corner`, in a square of `size` pixels.
void DrawFontIcon(CDC& dc, CPoint corner, int size, HICON icon);

/// Side in pixels of the icons for a control: 15, or for a host that follows the system what suits the
/// resolution of `window`.
int FontIconSize(HWND window);

/// Draws the icon of a font in a square of `size` pixels at `corner`: `agreed`, or for a host that follows
/// the system the library's icon `id` in that size, in the colour of texts where it would be hard to see on
/// windows.
void DrawFontIconFor(CDC& dc, CPoint corner, int size, HICON agreed, UINT id);
