#include "pictures/picture_decoder.h"

#include <afxwin.h>
#include <atlimage.h>
#include <shlwapi.h>

#include <algorithm>
#include <cmath>
#include <new>

#include "pictures/picture_header.h"

namespace {

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};

/// Rows of a picture that the system unpacked, as pixels.
class Rows {
public:
    Rows(const CImage& image, bool ignoresOpacity)
        : m_image(image), m_bits(image.GetBPP()), m_ignoresOpacity(ignoresOpacity) {
        if (m_bits > 8) return;
        RGBQUAD colors[256] = {};
        image.GetColorTable(0, static_cast<UINT>(image.GetMaxColorTableEntries()), colors);
        for (int i = 0; i < 256; ++i)
            m_colors[i] = i == image.GetTransparentColor()
                              ? 0
                              : opaque(colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue);
    }
    PicturePixel pixel(const BYTE* row, int x) const {
        switch (m_bits) {
            case 1: return m_colors[row[x / 8] >> (7 - x % 8) & 1];
            case 4: return m_colors[x % 2 == 0 ? row[x / 2] >> 4 : row[x / 2] & 15];
            case 8: return m_colors[row[x]];
            case 24: return opaque(row[3 * x + 2], row[3 * x + 1], row[3 * x]);
            default: return wide(row + 4 * x);
        }
    }
    const BYTE* row(int y) const {
        return static_cast<const BYTE*>(m_image.GetBits()) + static_cast<ptrdiff_t>(m_image.GetPitch()) * y;
    }

private:
    static PicturePixel opaque(unsigned red, unsigned green, unsigned blue) {
        return 0xFF000000 | red << 16 | green << 8 | blue;
    }
    /// Colours come multiplied by the opacity.
    PicturePixel wide(const BYTE* at) const {
        const unsigned alpha = at[3];
        if (m_ignoresOpacity || alpha == 255) return opaque(at[2], at[1], at[0]);
        if (alpha == 0) return 0;
        const auto whole = [alpha](unsigned value) {
            return std::min((value * 255 + alpha / 2) / alpha, 255u);
        };
        return alpha << 24 | whole(at[2]) << 16 | whole(at[1]) << 8 | whole(at[0]);
    }

    const CImage& m_image;
    int m_bits;
    bool m_ignoresOpacity;
    PicturePixel m_colors[256] = {};
};

/// The mean of a square of pixels.
PicturePixel meanOf(const Rows& rows, int left, int top, int size) {
    std::uint64_t alpha = 0, red = 0, green = 0, blue = 0;
    for (int y = top; y < top + size; ++y) {
        const BYTE* const row = rows.row(y);
        for (int x = left; x < left + size; ++x) {
            const PicturePixel pixel = rows.pixel(row, x);
            const std::uint64_t weight = pixel >> 24;
            alpha += weight;
            red += weight * (pixel >> 16 & 0xFF);
            green += weight * (pixel >> 8 & 0xFF);
            blue += weight * (pixel & 0xFF);
        }
    }
    if (alpha == 0) return 0;
    const auto count = static_cast<std::uint64_t>(size) * static_cast<std::uint64_t>(size);
    return static_cast<PicturePixel>((alpha / count) << 24 | (red / alpha) << 16 | (green / alpha) << 8 |
                                     blue / alpha);
}

bool isInkOnPaper(const std::vector<PicturePixel>& pixels) {
    return std::all_of(pixels.begin(), pixels.end(),
                       [](PicturePixel each) { return each == 0xFF000000 || each == 0xFFFFFFFF; });
}

std::shared_ptr<const ScenePicture> pictureFrom(const CImage& image, const PictureHeader& header) {
    const int width = image.GetWidth(), height = image.GetHeight();
    const auto count = static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height);
    if (width < 1 || height < 1 || count > kMostPicturePixels) return nullptr;
    int part = 1;
    while (count / static_cast<unsigned>(part * part) > kMostKeptPixels) ++part;
    part = std::min({part, width, height});
    const Rows rows(image, header.kind == PictureKind::kBmp);
    const int across = width / part, down = height / part;
    std::vector<PicturePixel> pixels;
    pixels.reserve(static_cast<std::size_t>(across) * static_cast<std::size_t>(down));
    for (int y = 0; y < down; ++y) {
        const BYTE* const row = rows.row(y);
        for (int x = 0; x < across; ++x)
            pixels.push_back(part == 1 ? rows.pixel(row, x) : meanOf(rows, x * part, y * part, part));
    }
    const bool isBitonal = header.isBitonal && part == 1 && isInkOnPaper(pixels);
    return std::make_shared<ScenePicture>(across, down, std::move(pixels), isBitonal);
}

}  // namespace

std::shared_ptr<const ScenePicture> DecodePicture(const std::string& bytes) {
    const PictureHeader header = ReadPictureHeader(bytes);
    if (header.kind == PictureKind::kNone || header.pixels > kMostPicturePixels) return nullptr;
    try {
        const std::unique_ptr<IStream, ReleaseStream> stream(::SHCreateMemStream(
            reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size())));
        CImage image;
        if (!stream || FAILED(image.Load(stream.get()))) return nullptr;
        return pictureFrom(image, header);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
