// Paints colour swatches into the image column of a picker. Private to the library.
#pragma once

#include <afxwin.h>

#include <functional>

/// One swatch. The constructor paints the frame; one of the fill operations paints the colour area.
class SwatchPainter {
public:
    /// Paints the frame of the swatch in `image` (logical units of `dc`).
    SwatchPainter(CDC& dc, const RECT& image);

    /// One colour.
    void fillSolid(COLORREF color);
    /// The black and white diagonal: a colour that is black on light and white on dark.
    void fillDiagonal();
    /// The ramp: any colour. `colorOf` answers the colour of a colour index.
    void fillRamp(const std::function<COLORREF(int)>& colorOf);

private:
    void fillPixels(const std::function<COLORREF(int dx, int dy)>& colorAt);

    CDC& m_dc;
    RECT m_area;
};
