// Whether bytes are a preview image that can be shown, and how many of them belong to it.
#pragma once

#include <cstddef>
#include <cstdint>

inline std::uint32_t ktdbNumber16(const std::uint8_t* at) {
    return at[0] | (static_cast<std::uint32_t>(at[1]) << 8);
}
inline std::uint32_t ktdbNumber32(const std::uint8_t* at) {
    return ktdbNumber16(at) | (ktdbNumber16(at + 2) << 16);
}

/// Greatest width and height of a preview image, in pixels.
constexpr std::uint32_t kKtdbGreatestPreviewSide = 8192;

/// Size in bytes of the image of this KtdbPreviewKind that begins here; 0 if it isn't one that can be shown,
/// or if not all of it is there.
std::size_t ktdbPreviewImageSize(int kind, const std::uint8_t* bytes, std::size_t size);

/// Size in bytes of the header of its own that a metafile begins with for other programs; 0 without one.
std::size_t ktdbPlaceableHeaderSize(const std::uint8_t* bytes, std::size_t size);
