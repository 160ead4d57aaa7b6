// The preview image as a bitmap of the screen.
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <shlwapi.h>
#include <wincodec.h>

#include "ktdb.h"
#include "preview_image.h"

namespace {

struct ReleaseIt {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using Reference = std::unique_ptr<T, ReleaseIt>;

/// What `make` puts into the pointer that it is given; null if it fails.
template <class T, class Make>
Reference<T> made(Make make) {
    T* object = nullptr;
    if (FAILED(make(&object))) object = nullptr;
    return Reference<T>(object);
}

/// COM for its lifetime, whether or not the caller has it.
class ComScope {
public:
    ComScope() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    HRESULT m_result;
};

/// Count of the entries of an image's colour table.
int tableLength(const BITMAPINFOHEADER& header) {
    if (header.biBitCount > 8) return 0;
    const int most = 1 << header.biBitCount;
    return header.biClrUsed ? std::min(most, static_cast<int>(header.biClrUsed)) : most;
}

HPALETTE paletteOf(const BITMAPINFO& info, int count) {
    struct {
        LOGPALETTE palette;
        PALETTEENTRY more[255];
    } colors = {};
    colors.palette.palVersion = 0x300;
    colors.palette.palNumEntries = static_cast<WORD>(count);
    PALETTEENTRY* entries = colors.palette.palPalEntry;
    for (int i = 0; i < count; ++i) {
        const RGBQUAD& color = info.bmiColors[i];
        entries[i] = {color.rgbRed, color.rgbGreen, color.rgbBlue, 0};
    }
    return CreatePalette(&colors.palette);
}

HBITMAP bitmapOfDib(const std::vector<std::uint8_t>& dib, HPALETTE& palette) {
    const auto& info = *reinterpret_cast<const BITMAPINFO*>(dib.data());
    const int used = static_cast<int>(info.bmiHeader.biClrUsed);
    const int colors = tableLength(info.bmiHeader);
    const std::size_t table = sizeof(RGBQUAD) * static_cast<std::size_t>(used ? used : colors);
    const HDC screen = GetDC(nullptr);
    if (!screen) return nullptr;
    const HBITMAP bitmap =
        CreateDIBitmap(screen, &info.bmiHeader, CBM_INIT, dib.data() + sizeof(BITMAPINFOHEADER) + table,
                       &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (bitmap && colors) palette = paletteOf(info, colors);
    return bitmap;
}

/// A bitmap of 32 bits, rows from the top, and where its pixels are.
HBITMAP emptyBitmap(int width, int height, void*& pixels) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
}

/// The first picture of a PNG file as the system's decoder gives it; clear parts show the paper, white.
Reference<IWICBitmapSource> pictureOf(IWICImagingFactory& factory, IStream* stream) {
    const auto decoder = made<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) {
        return factory.CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand, out);
    });
    if (!decoder) return nullptr;
    const auto frame =
        made<IWICBitmapFrameDecode>([&](IWICBitmapFrameDecode** out) { return decoder->GetFrame(0, out); });
    return made<IWICBitmapSource>([&](IWICBitmapSource** out) {
        return WICConvertBitmapSource(GUID_WICPixelFormat32bppBGRA, frame.get(), out);
    });
}

void putOnPaper(std::uint8_t* pixels, std::size_t count) {
    for (std::uint8_t* pixel = pixels; count > 0; --count, pixel += 4) {
        const int alpha = pixel[3];
        for (int i = 0; i < 3; ++i)
            pixel[i] = static_cast<std::uint8_t>((pixel[i] * alpha + 255 * (255 - alpha) + 127) / 255);
    }
}

HBITMAP bitmapOfPng(const std::vector<std::uint8_t>& png) {
    const ComScope com;
    const Reference<IStream> stream(SHCreateMemStream(png.data(), static_cast<UINT>(png.size())));
    const auto factory = made<IWICImagingFactory>([](IWICImagingFactory** out) {
        return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IWICImagingFactory, reinterpret_cast<void**>(out));
    });
    if (!factory) return nullptr;
    const Reference<IWICBitmapSource> picture = pictureOf(*factory, stream.get());
    UINT width = 0, height = 0;
    if (!picture || FAILED(picture->GetSize(&width, &height))) return nullptr;
    void* pixels = nullptr;
    const HBITMAP bitmap = emptyBitmap(static_cast<int>(width), static_cast<int>(height), pixels);
    if (!bitmap) return nullptr;
    if (FAILED(picture->CopyPixels(nullptr, width * 4, width * 4 * height, static_cast<BYTE*>(pixels)))) {
        DeleteObject(bitmap);
        return nullptr;
    }
    putOnPaper(static_cast<std::uint8_t*>(pixels), std::size_t{width} * height);
    return bitmap;
}

/// What a metafile draws in: the corners of its window.
RECT windowOf(const std::vector<std::uint8_t>& wmf, std::size_t placeable) {
    const auto whole = [&wmf](std::size_t at) {
        return static_cast<LONG>(static_cast<std::int16_t>(ktdbNumber16(wmf.data() + at)));
    };
    if (placeable) return {whole(6), whole(8), whole(10), whole(12)};
    constexpr std::uint32_t kSetWindowOrigin = 0x020B, kSetWindowExtent = 0x020C;
    constexpr std::size_t kHeaderSize = 18;
    RECT window = {};
    std::size_t size = 0;
    for (std::size_t at = kHeaderSize; at + 10 <= wmf.size(); at += size) {
        size = std::size_t{ktdbNumber32(wmf.data() + at)} * 2;
        if (size < 6) break;
        const std::uint32_t function = ktdbNumber16(wmf.data() + at + 4);
        if (function == kSetWindowOrigin)
            OffsetRect(&window, whole(at + 8) - window.left, whole(at + 6) - window.top);
        if (function == kSetWindowExtent) {
            window.right = window.left + whole(at + 8);
            window.bottom = window.top + whole(at + 6);
            break;
        }
    }
    return window;
}

/// A metafile drawn on white, its longer side 256 pixels.
HBITMAP bitmapOfWmf(const std::vector<std::uint8_t>& wmf) {
    constexpr LONG kLongerSide = 256;
    const std::size_t placeable = ktdbPlaceableHeaderSize(wmf.data(), wmf.size());
    const RECT window = windowOf(wmf, placeable);
    const LONG across = std::abs(window.right - window.left);
    const LONG down = std::abs(window.bottom - window.top);
    if (!across || !down) return nullptr;
    const LONG longer = std::max(across, down);
    const LONG width = std::max(1L, across * kLongerSide / longer);
    const LONG height = std::max(1L, down * kLongerSide / longer);
    const HMETAFILE file =
        SetMetaFileBitsEx(static_cast<UINT>(wmf.size() - placeable), wmf.data() + placeable);
    if (!file) return nullptr;
    void* pixels = nullptr;
    const HBITMAP bitmap = emptyBitmap(static_cast<int>(width), static_cast<int>(height), pixels);
    const HDC memory = bitmap ? CreateCompatibleDC(nullptr) : nullptr;
    if (memory) {
        const HGDIOBJ former = SelectObject(memory, bitmap);
        PatBlt(memory, 0, 0, static_cast<int>(width), static_cast<int>(height), WHITENESS);
        SetMapMode(memory, MM_ANISOTROPIC);
        SetViewportExtEx(memory, static_cast<int>(width), static_cast<int>(height), nullptr);
        SetWindowOrgEx(memory, window.left, window.top, nullptr);
        SetWindowExtEx(memory, window.right - window.left, window.bottom - window.top, nullptr);
        PlayMetaFile(memory, file);
        SelectObject(memory, former);
        DeleteDC(memory);
    }
    DeleteMetaFile(file);
    if (memory) return bitmap;
    if (bitmap) DeleteObject(bitmap);
    return nullptr;
}

}  // namespace

bool ktdbGetPreviewBitmapFromDwg(const wchar_t* path, HBITMAP* bitmap, HPALETTE* palette) {
    if (!bitmap || !palette) return false;
    *bitmap = nullptr;
    *palette = nullptr;
    KtdbPreview preview;
    if (ktdbReadPreview(path, preview) != kKtdbOk) return false;
    switch (preview.kind) {
        case kKtdbPreviewPng: *bitmap = bitmapOfPng(preview.bytes); break;
        case kKtdbPreviewWmf: *bitmap = bitmapOfWmf(preview.bytes); break;
        default: *bitmap = bitmapOfDib(preview.bytes, *palette); break;
    }
    return *bitmap != nullptr;
}
