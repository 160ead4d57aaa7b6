// The icons that tell a shape font from an outline font. Private to the library.
#pragma once

#include <afxwin.h>

constexpr int kFontIconSize = 15;  // pixels, both ways

/// The library's icon `id` in that size. `flags` are those of LoadImage: with LR_SHARED the system owns the
/// icon, otherwise the caller destroys it.
HICON LoadFontIcon(UINT id, UINT flags);

/// Draws `icon` at `corner`, in a square of `size` pixels.
void DrawFontIcon(CDC& dc, CPoint corner, int size, HICON icon);
