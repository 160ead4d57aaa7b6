#include "pictures/picture_decoder.h"

#include <windows.h>

#include <shlwapi.h>
#include <wincodec.h>

#include <algorithm>
#include <new>

#include "pictures/picture_header.h"

namespace {

struct ReleaseIt {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Object>
using Reference = std::unique_ptr<Object, ReleaseIt>;

/// What `make` puts into the pointer that it is given; null if it fails.
template <class Object, class Make>
Reference<Object> made(Make make) {
    Object* object = nullptr;
    if (FAILED(make(&object))) object = nullptr;
    return Reference<Object>(object);
}

/// COM for its lifetime, whether or not the caller has it.
class ComInUse {
public:
    ComInUse() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComInUse() {
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    ComInUse(const ComInUse&) = delete;
    ComInUse& operator=(const ComInUse&) = delete;

private:
    HRESULT m_result;
};

/// The mean of squares of `part` pixels in `part` rows of `width`, added to `pixels`.
void addMeans(const std::vector<PicturePixel>& rows, int width, int part, std::vector<PicturePixel>& pixels) {
    for (int left = 0; left + part <= width; left += part) {
        std::uint64_t alpha = 0, red = 0, green = 0, blue = 0;
        for (int y = 0; y < part; ++y)
            for (int x = left; x < left + part; ++x) {
                const PicturePixel pixel =
                    rows[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                         static_cast<std::size_t>(x)];
                const std::uint64_t weight = pixel >> 24;
                alpha += weight;
                red += weight * (pixel >> 16 & 0xFF);
                green += weight * (pixel >> 8 & 0xFF);
                blue += weight * (pixel & 0xFF);
            }
        const auto count = static_cast<std::uint64_t>(part) * static_cast<std::uint64_t>(part);
        pixels.push_back(alpha == 0 ? 0
                                    : static_cast<PicturePixel>((alpha / count) << 24 | (red / alpha) << 16 |
                                                                (green / alpha) << 8 | blue / alpha));
    }
}

bool isInkOnPaper(const std::vector<PicturePixel>& pixels) {
    return std::all_of(pixels.begin(), pixels.end(),
                       [](PicturePixel each) { return each == 0xFF000000 || each == 0xFFFFFFFF; });
}

/// The source's pixels, some rows at a time.
std::shared_ptr<const ScenePicture> pictureFrom(IWICBitmapSource& source, const PictureHeader& header) {
    constexpr PicturePixel kOpaque = 0xFF000000;
    UINT width = 0, height = 0;
    if (FAILED(source.GetSize(&width, &height)) || width < 1 || height < 1) return nullptr;
    const std::uint64_t count = std::uint64_t{width} * height;
    if (count > kMostPicturePixels) return nullptr;
    UINT part = 1;
    while (count / (part * part) > kMostKeptPixels) ++part;
    part = std::min({part, width, height});
    std::vector<PicturePixel> pixels, rows(std::size_t{width} * part);
    pixels.reserve(static_cast<std::size_t>(count / (part * part)));
    for (UINT top = 0; top + part <= height; top += part) {
        const WICRect band = {0, static_cast<INT>(top), static_cast<INT>(width), static_cast<INT>(part)};
        const auto size = static_cast<UINT>(rows.size() * sizeof(PicturePixel));
        if (FAILED(source.CopyPixels(&band, width * sizeof(PicturePixel), size,
                                     reinterpret_cast<BYTE*>(rows.data()))))
            return nullptr;
        // Bitmaps have no opacity: their fourth byte means nothing.
        if (header.kind == PictureKind::kBmp)
            for (PicturePixel& pixel : rows) pixel |= kOpaque;
        if (part == 1)
            pixels.insert(pixels.end(), rows.begin(), rows.end());
        else
            addMeans(rows, static_cast<int>(width), static_cast<int>(part), pixels);
    }
    const bool isBitonal = header.isBitonal && part == 1 && isInkOnPaper(pixels);
    return std::make_shared<ScenePicture>(static_cast<int>(width / part), static_cast<int>(height / part),
                                          std::move(pixels), isBitonal);
}

std::shared_ptr<const ScenePicture> decode(const std::string& bytes, const PictureHeader& header) {
    const ComInUse com;
    const Reference<IStream> stream(
        ::SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size())));
    const auto factory = made<IWICImagingFactory>([](IWICImagingFactory** object) {
        return ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(object));
    });
    if (!stream || !factory) return nullptr;
    const auto decoder = made<IWICBitmapDecoder>([&](IWICBitmapDecoder** object) {
        return factory->CreateDecoderFromStream(stream.get(), nullptr, WICDecodeMetadataCacheOnDemand,
                                                object);
    });
    if (!decoder) return nullptr;
    const auto frame = made<IWICBitmapFrameDecode>(
        [&](IWICBitmapFrameDecode** object) { return decoder->GetFrame(0, object); });
    const auto converter = made<IWICFormatConverter>(
        [&](IWICFormatConverter** object) { return factory->CreateFormatConverter(object); });
    if (!frame || !converter) return nullptr;
    // In memory its bytes are blue, green, red and opacity, as those of a pixel are.
    if (FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                     nullptr, 0, WICBitmapPaletteTypeCustom)))
        return nullptr;
    return pictureFrom(*converter, header);
}

}  // namespace

std::shared_ptr<const ScenePicture> DecodePicture(const std::string& bytes) {
    const PictureHeader header = ReadPictureHeader(bytes);
    if (header.kind == PictureKind::kNone || header.pixels > kMostPicturePixels) return nullptr;
    try {
        return decode(bytes, header);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
