// Pictures that lie in a drawing: their pixels, and what is seen of one in a window. Knows neither files nor
// windows; who can read picture files gives them to the scene (SceneOptions::picture).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "scene.h"

/// A pixel: opacity in the highest byte, then red, green and blue, which are not multiplied by it.
using PicturePixel = std::uint32_t;

/// Rows of pixels from the top, and the same picture in halves, quarters and so on of its size.
class KTSCENE_API ScenePicture {
public:
    struct Level {
        int width = 0, height = 0;
        std::vector<PicturePixel> pixels;
    };
    /// Takes `width` by `height` pixels, both above 0. A picture of ink and paper alone is `bitonal`.
    ScenePicture(int width, int height, std::vector<PicturePixel> pixels, bool bitonal = false);

    int width() const { return m_levels.front().width; }
    int height() const { return m_levels.front().height; }
    bool isBitonal() const { return m_isBitonal; }
    /// From the whole size down to one pixel, each half of the one before.
    const std::vector<Level>& levels() const { return m_levels; }
    /// What all levels take up.
    std::size_t bytes() const;

private:
    std::vector<Level> m_levels;
    bool m_isBitonal;
};

/// What a picture is drawn on and with, as opaque pixels.
struct PictureColors {
    PicturePixel paper = 0xFFFFFFFF;  ///< to which it fades
    PicturePixel ink = 0xFF000000;    ///< of a transparent one that is bitonal
};

/// How a pixel of a picture looks in the drawing: by its brightness, contrast, fade and transparency.
class KTSCENE_API PictureLook {
public:
    PictureLook(const SceneImage& image, const PictureColors& colors);
    PicturePixel operator()(PicturePixel pixel) const;

private:
    std::uint8_t m_shade[256];
    PictureColors m_colors;
    unsigned m_fade;  // of 100
    bool m_isTransparent, m_isInk;
};

/// A rectangle of window pixels, and where the picture lies in the window; y grows downwards.
struct PictureArea {
    int left = 0, top = 0, width = 0, height = 0;
    OdGePoint2d origin, across, up;  ///< as in SceneImage, in pixels of the window
};

/// What is seen of a picture in a rectangle: rows from the top, colours multiplied by the opacity. Each pixel
/// is that of the picture at its middle, or the mean of those that it covers; clear beside the picture.
KTSCENE_API std::vector<PicturePixel> PicturePixels(const SceneImage& image, const PictureArea& area,
                                                    const PictureColors& colors);
