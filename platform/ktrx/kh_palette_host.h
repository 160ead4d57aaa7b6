// How the application's dockable bars and palettes look.
#pragma once

#include <windows.h>

/// Paints the face of dock bars and palettes, so that they match the application's own bars.
class CKhPaletteSizing {
public:
    /// Fills `rect` (logical units of `dc`) with the background of a bar.
    virtual void fillBackground(HDC dc, const RECT& rect) = 0;

protected:
    ~CKhPaletteSizing() = default;
};

class CKhPaletteHost {
public:
    /// The object that sizes and paints palettes; never null.
    virtual CKhPaletteSizing* sizing() = 0;

protected:
    ~CKhPaletteHost() = default;
};
