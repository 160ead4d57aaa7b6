#include "preview_image.h"

#include <cstring>

#include "ktdb.h"

namespace {

/// A device-independent bitmap: a header, its colour table and uncompressed rows.
std::size_t dibSize(const std::uint8_t* dib, std::size_t size) {
    constexpr std::size_t kInfoHeaderSize = 40;
    if (size < kInfoHeaderSize || ktdbNumber32(dib) != kInfoHeaderSize) return 0;
    const std::uint32_t width = ktdbNumber32(dib + 4);
    const auto signedHeight = static_cast<std::int32_t>(ktdbNumber32(dib + 8));
    const std::uint32_t height = signedHeight < 0 ? 0u - static_cast<std::uint32_t>(signedHeight)
                                                  : static_cast<std::uint32_t>(signedHeight);
    const std::uint32_t bits = ktdbNumber16(dib + 14);
    const std::uint32_t compression = ktdbNumber32(dib + 16);
    const std::uint32_t used = ktdbNumber32(dib + 32);
    if (!width || !height || compression != 0) return 0;
    if (width > kKtdbGreatestPreviewSide || height > kKtdbGreatestPreviewSide) return 0;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) return 0;
    if (used > 256) return 0;
    const std::size_t colors = used ? used : bits <= 8 ? std::size_t{1} << bits : 0;
    const std::size_t row = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
    return kInfoHeaderSize + colors * 4 + row * height;
}

/// A PNG file; what is in its chunks is left to the decoder.
std::size_t pngSize(const std::uint8_t* png, std::size_t size) {
    constexpr std::uint8_t kBeginning[16] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                             0,    0,   0,   13,  'I',  'H',  'D',  'R'};
    constexpr std::size_t kHeaderSize = 33;  // the beginning, 13 bytes and their check sum
    if (size < kHeaderSize || std::memcmp(png, kBeginning, sizeof kBeginning) != 0) return 0;
    const auto side = [png](std::size_t at) {  // the greatest byte first
        return static_cast<std::uint32_t>(png[at]) << 24 | static_cast<std::uint32_t>(png[at + 1]) << 16 |
               static_cast<std::uint32_t>(png[at + 2]) << 8 | png[at + 3];
    };
    for (const std::uint32_t length : {side(16), side(20)})
        if (!length || length > kKtdbGreatestPreviewSide) return 0;
    return size;
}

/// A metafile of 16 bits, with or without a placeable header; the whole is as long as its own header says.
std::size_t wmfSize(const std::uint8_t* wmf, std::size_t size) {
    constexpr std::size_t kHeaderSize = 18;
    constexpr std::uint32_t kHeaderWords = 9;
    const std::size_t placeable = ktdbPlaceableHeaderSize(wmf, size);
    if (size < placeable + kHeaderSize) return 0;
    const std::uint8_t* header = wmf + placeable;
    const std::uint32_t type = ktdbNumber16(header);
    const std::uint32_t version = ktdbNumber16(header + 4);
    const std::size_t words = ktdbNumber32(header + 6);
    if ((type != 1 && type != 2) || ktdbNumber16(header + 2) != kHeaderWords) return 0;
    if ((version != 0x100 && version != 0x300) || words <= kHeaderWords) return 0;
    return placeable + words * 2;
}

}  // namespace

std::size_t ktdbPlaceableHeaderSize(const std::uint8_t* bytes, std::size_t size) {
    constexpr std::uint32_t kPlaceable = 0x9AC6CDD7;
    constexpr std::size_t kPlaceableSize = 22;
    return size >= kPlaceableSize && ktdbNumber32(bytes) == kPlaceable ? kPlaceableSize : 0;
}

std::size_t ktdbPreviewImageSize(int kind, const std::uint8_t* bytes, std::size_t size) {
    std::size_t needed = 0;
    switch (kind) {
        case kKtdbPreviewDib: needed = dibSize(bytes, size); break;
        case kKtdbPreviewPng: needed = pngSize(bytes, size); break;
        case kKtdbPreviewWmf: needed = wmfSize(bytes, size); break;
        default: break;
    }
    return needed <= size ? needed : 0;
}
